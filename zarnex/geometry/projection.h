#pragma once

/// @file
/// Feet, nearest points and distances on a line or a segment through two points.
///
/// A line ab is infinite, a segment ab ends at `a` and `b`. Overflow and NaN follow IEEE
/// arithmetic unless said. Each `out` may be one of the other arguments.
///
/// Kept as is: each family has a bound of its own below which `a` and `b` count as one
/// point: 3.16e-5 (a squared length of 1e-9) in the projections, 1e-7 (a squared length
/// of 9.999999999999998e-15) for the nearest point, and == of DPoint for the distance to a
/// line.

#include <zarnex/config.h>
#include <zarnex/geometry/DPoint.h>
#include <zarnex/geometry/tolerance.h>

#include <cmath>

/// Sets `out` to the foot of the perpendicular from `p` to the line ab; 0 then.
///
/// 1, with `out` at `a`, if the squared length of ab is at most 1e-9.
ZARNEX_API int projectPointOntoLine(DPoint& out, const DPoint& p, const DPoint& a, const DPoint& b);

/// Sets `out` to the foot of the perpendicular from `p` to the segment ab; 0 then.
///
/// 1 where the foot lies outside, with `out` at the nearer end; and, with `out` at `a`, if
/// the squared length of ab is at most 1e-9 or the place of the foot is a NaN.
ZARNEX_API int projectPointOntoLineSegment(DPoint& out, const DPoint& p, const DPoint& a,
                                           const DPoint& b);

/// The point of the segment ab that is nearest to `p`.
///
/// `a` if the squared length of ab is at most 9.999999999999998e-15, and where a NaN leaves
/// the place open.
ZARNEX_API DPoint closestToLineSegment(const DPoint& a, const DPoint& b, const DPoint& p);

/// The distance from `p` to closestToLineSegment(), and its square.
/// @{
ZARNEX_API double distanceToLineSegment(const DPoint& a, const DPoint& b, const DPoint& p);
ZARNEX_API double squaredDistanceToLineSegment(const DPoint& a, const DPoint& b, const DPoint& p);
/// @}

/// The distance from `p` to the line ab, and its square; to `a` if a == b.
/// @{
ZARNEX_API double distanceToVector(const DPoint& a, const DPoint& b, const DPoint& p);
ZARNEX_API double squaredDistanceToVector(const DPoint& a, const DPoint& b, const DPoint& p);
/// @}

namespace zarnex::detail {

/// The squared length up to which a projection takes a line as degenerate.
inline constexpr double noLineWithin = 1e-9;

/// The squared length up to which closestToLineSegment() takes a segment as a point.
inline constexpr double noSegmentWithin = 9.999999999999998e-15;

} // namespace zarnex::detail

ZARNEX_INLINE int projectPointOntoLine(DPoint& out, const DPoint& p, const DPoint& a,
                                       const DPoint& b) {
    const DVector d = b - a;
    const double squared = d.squaredLength();
    if (IS_ZERO(squared, zarnex::detail::noLineWithin)) {
        out = a;
        return 1;
    }
    const double t = (p - a) * d / squared;
    out = a + d * t;
    return 0;
}

ZARNEX_INLINE int projectPointOntoLineSegment(DPoint& out, const DPoint& p, const DPoint& a,
                                              const DPoint& b) {
    const DVector d = b - a;
    const double squared = d.squaredLength();
    if (!IS_ZERO(squared, zarnex::detail::noLineWithin)) {
        const double t = (p - a) * d / squared;
        if (t >= 0.0 && t <= 1.0) {
            out = a + d * t;
            return 0;
        }
        if (t > 1.0) {
            out = b;
            return 1;
        }
    }
    out = a;
    return 1;
}

ZARNEX_INLINE DPoint closestToLineSegment(const DPoint& a, const DPoint& b, const DPoint& p) {
    const DVector d = b - a;
    const double squared = d.squaredLength();
    const double s = (p - a) * d;
    if (IS_ZERO(squared, zarnex::detail::noSegmentWithin) || !(s > 0.0))
        return a;
    if (s < squared)
        return a + d * (s / squared);
    return s >= squared ? b : a;
}

ZARNEX_INLINE double squaredDistanceToLineSegment(const DPoint& a, const DPoint& b,
                                                  const DPoint& p) {
    return closestToLineSegment(a, b, p).squaredDistance(p);
}

ZARNEX_INLINE double distanceToLineSegment(const DPoint& a, const DPoint& b, const DPoint& p) {
    return std::sqrt(squaredDistanceToLineSegment(a, b, p));
}

ZARNEX_INLINE double squaredDistanceToVector(const DPoint& a, const DPoint& b, const DPoint& p) {
    if (a == b)
        return a.squaredDistance(p);
    const DVector d = b - a;
    const DPoint foot = a + d * ((p - a) * d / d.squaredLength());
    return foot.squaredDistance(p);
}

ZARNEX_INLINE double distanceToVector(const DPoint& a, const DPoint& b, const DPoint& p) {
    return std::sqrt(squaredDistanceToVector(a, b, p));
}
