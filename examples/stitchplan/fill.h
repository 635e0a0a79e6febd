#pragma once

#include "stitchplan/Motif.h"
#include "stitchplan/StitchPath.h"

#include <functional>

namespace stitchplan {

/// Plans of more stitches are refused.
inline constexpr int mostStitches = 10000000;

/// Fills the inside of the motif's outlines, by the even-odd rule, with parallel rows;
/// returns the number of rows that were sewn.
///
/// Rows are sewn to and fro, section by section, each time beginning at the nearest end
/// of a section that is left. Where the way there leaves the shape or is longer than
/// 10 mm, the thread is cut. `progress` is told the number of stitches after each row.
///
/// In a row the needle goes in at both ends and on a grid of the stitch length that is
/// shifted by a third from row to row, so that no furrows show; a stitch at an end is up
/// to 0.3 mm longer than the others rather than shorter than 0.3 mm.
///
/// Throws MotifError for too many rows or stitches.
int fill(const Motif& motif, StitchPath& path, const std::function<void(int)>& progress);

} // namespace stitchplan
