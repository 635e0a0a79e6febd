#pragma once

#include "stitchplan/Motif.h"
#include "stitchplan/StitchPath.h"

#include <functional>
#include <vector>

namespace stitchplan {

/// Fills a shape, an outline and the holes in it, with parallel rows at the motif's angle
/// and spacing; returns the number of rows that were sewn.
///
/// Rows are sewn to and fro, section by section, each time beginning at the nearest end
/// of a section that is left. Where the way there leaves the shape or is longer than
/// 10 mm, the thread is cut. `progress` is told the number of needle points after each row.
///
/// In a row the needle goes in at both ends and on a grid of the stitch length that is
/// shifted by a third from row to row, so that no furrows show; a stitch at an end is up
/// to 0.3 mm longer than the others rather than shorter than 0.3 mm. Rows of less than
/// 0.3 mm are left out.
///
/// Throws MotifError for too many rows, TooManyNeedles for too many stitches.
int fill(const std::vector<Outline>& shape, const Motif& motif, StitchPath& path,
         const std::function<void(int)>& progress);

} // namespace stitchplan
