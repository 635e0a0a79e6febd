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

/// Throws MotifError for an outline that has no area or touches itself. Sets which
/// outlines are holes, by how many others are around each, and lets outer outlines run
/// counter-clockwise and holes clockwise.
void settle(std::vector<Outline>& outlines);

/// Whether `p` lies inside by the even-odd rule; either on an outline.
bool isInside(const DPoint& p, const std::vector<Outline>& outlines);

} // namespace stitchplan
