#pragma once

/// @file
/// The part that two segments on one line have in common.

#include <zarnex/config.h>
#include <zarnex/geometry/DPoint.h>

/// What findOverlapLine() found.
enum OverlapLineReturnCode : int {
    /// The segments overlap or touch at `a`.
    OverlapLineFound = 0,
    /// `a` and `b` are at most 1e-9 apart.
    OverlapLineDegenerate = -1,
    /// All of cd lies before `a`, seen in the direction from `a` to `b`.
    OverlapLineBefore = -2,
    /// All of cd lies beyond `b` or touches `b` only.
    OverlapLineBeyond = -3,
    /// The squared length of ab is at most 1e-9: nothing could be projected onto it.
    OverlapLineNotProjected = -4
};

/// Sets `start` and `end`, in the direction from `a` to `b`, to the part of the segment ab
/// that the segment cd covers; both are left alone unless the result is OverlapLineFound.
///
/// `c` and `d` may come in either order. The feet of their perpendiculars to the line ab
/// stand for them, so that cd need not lie on that line. `start` and `end` may be arguments
/// too. A NaN in `a`, `b` or `c` gives no overlap; one in `d` alone may give
/// OverlapLineFound with NaNs in `start`.
///
///     DPoint from, to;
///     findOverlapLine(from, to, DPoint(0, 0), DPoint(10, 0), DPoint(12, 0), DPoint(4, 0));
///     // OverlapLineFound, from (4, 0) to (10, 0)
///
/// Kept as is: the ends are not treated alike. A cd that touches `a` overlaps in that point,
/// one that touches `b` lies beyond. Within 1e-9 of such a touch (the dot product with ab)
/// DVector::isSameSense() asks the cross product, whose rounding may decide either way.
///
/// Kept as is: for an ab between 1e-9 and 3.16e-5 long the result is
/// OverlapLineNotProjected, not OverlapLineDegenerate.
ZARNEX_API OverlapLineReturnCode findOverlapLine(DPoint& start, DPoint& end, const DPoint& a,
                                                 const DPoint& b, const DPoint& c, const DPoint& d);
