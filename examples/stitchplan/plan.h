#pragma once

#include "stitchplan/Motif.h"
#include "stitchplan/StitchPath.h"

#include <zarnex/geometry/DRECT.h>
#include <zarnex/transforms/Z2DTrans.h>

#include <functional>
#include <vector>

namespace stitchplan {

/// What is sewn.
struct Plan {
    Motif motif;                  ///< its outlines scaled, checked and oriented
    std::vector<Z2DTrans> copies; ///< that take the motif to where it is sewn
    StitchPath path;
    int rows = 0;   ///< of all copies
    DRECT extent{}; ///< of the needle points, bottom above top
};

/// Plans the stitches of a motif: each copy's fill, then its outlines. Throws MotifError.
Plan planStitches(Motif motif, const std::function<void(int)>& progress);

} // namespace stitchplan
