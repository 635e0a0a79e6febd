#pragma once

/// The closed outlines of a motif: how they are made and what they must be like.

#include "stitchplan/Motif.h"

#include <zarnex/transforms/Z2DTrans.h>

namespace stitchplan {

/// Appends a corner that `line` of the file gives; nothing where it repeats the last one.
void addCorner(Outline& outline, const DPoint& corner, int line);

/// A circle as an outline of 24 corners or more, whose edges keep within 0.02 mm of it.
Outline circleOutline(const DPoint& centre, double radius, int line);

/// Maps all corners.
void transform(std::vector<Outline>& outlines, const Z2DTrans& by);

/// Throws MotifError for an outline that is too small, or touches itself or another. Sets
/// how deep each lies in others, and lets outer outlines run counter-clockwise and holes
/// clockwise, so that what is filled is to the left.
void checkAndOrient(std::vector<Outline>& outlines);

/// What is filled: each outer outline with the holes that are right in it, the outer one
/// first. For outlines that checkAndOrient() has taken.
std::vector<std::vector<Outline>> shapesOf(const std::vector<Outline>& outlines);

} // namespace stitchplan
