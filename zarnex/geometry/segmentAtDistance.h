#pragma once

/// @file
/// The points of a segment that lie at a given distance.

#include <zarnex/config.h>
#include <zarnex/geometry/DPoint.h>
#include <zarnex/geometry/tolerance.h>

/// How many points pointOnLineSegmentWithDistanceAway() found.
enum PointFoundResult : int {
    /// Two: `first` is the one nearer to the start of the segment, `second` the other.
    PointFoundTwo = 0,
    /// One, in `first`.
    PointFoundOne = 1,
    /// None.
    PointFoundNone = 2
};

/// Finds where the segment ab crosses the circle of radius `r` about `centre`.
///
/// An end that lies within 0.5 of the circle is the one point found, `b` before `a`. Only
/// the points found are written; both may be arguments too. There are none for a degenerate
/// segment apart from the circle and for a radius below -0.5; with a NaN an end can be found
/// at most.
///
/// Kept as is: the 0.5 is absolute, whatever `r`, and hides a true crossing further along:
/// with `b` at 5.3 from the centre and a radius of 5 the point is `b`.
///
/// Kept as is: a segment with both ends outside the circle has no point, even where it
/// crosses twice, so that PointFoundTwo is a matter of rounding. With an end some 3e7 radii
/// away rounding can give it, or no point where there is one.
ZARNEX_API PointFoundResult pointOnLineSegmentWithDistanceAway(DPoint& first, DPoint& second,
                                                               double r, const DPoint& centre,
                                                               const DPoint& a, const DPoint& b);

/// Sets `out` to the point of the segment ab at `dist` from `a`; 1 then. `out` may be an
/// argument too.
///
/// 1, with `out` at `a`, if `dist` is from 0 to 1e-9. 0, with `out` left alone, if `dist` is
/// negative or greater than the length of ab, or if that length is at most 1e-9. With a
/// NaN it is 1 otherwise, and `out` has NaNs.
ZARNEX_API int pointOnLineSegmentWithDistanceAway(DPoint& out, double dist, const DPoint& a,
                                                  const DPoint& b);

ZARNEX_INLINE int pointOnLineSegmentWithDistanceAway(DPoint& out, double dist, const DPoint& a,
                                                     const DPoint& b) {
    if (dist < 0.0)
        return 0;
    if (IS_ZERO(dist)) {
        out = a;
        return 1;
    }
    const DVector d = b - a;
    const double length = d.length();
    if (IS_ZERO(length) || dist > length)
        return 0;
    out = a + d * (dist / length);
    return 1;
}
