#pragma once

/// @file
/// Where two lines or two segments meet.
///
/// Each `out` is written on success only, and may be one of the other arguments.

#include <zarnex/config.h>
#include <zarnex/geometry/DPoint.h>
#include <zarnex/geometry/DVector.h>
#include <zarnex/geometry/IPoint.h>
#include <zarnex/geometry/IVector.h>
#include <zarnex/geometry/formulas.h>
#include <zarnex/geometry/rounding.h>

#include <cmath>

/// Sets `out` to the point where the line through `p` with direction `u` meets the line
/// through `q` with direction `v`; 0 then.
///
/// 1 if the lines are parallel, coincide or a direction is zero. With a NaN or an infinity
/// among the arguments the result is 0 and `out` not finite, unless the test for parallel
/// lines decides before.
///
///     DPoint corner;
///     intersect(corner, DPoint(0, 0), DVector(1, 1), DPoint(4, 0), DVector(0, 2)); // (4, 4)
///
/// The types tell the forms apart: bare braces fit several. Whether two segments meet,
/// isContainedIntersect() tells.
///
/// Kept as is: lines are parallel if the cross product of their directions is below 1e-14
/// in size, whatever their lengths, so that (1e-8, 0) and (0, 1e-8) are. parallel() bounds
/// the sine of the angle instead.
ZARNEX_API int intersect(DPoint& out, const DPoint& p, const DVector& u, const DPoint& q,
                         const DVector& v);

/// The same for the line through `a` and `b` and the line through `c` and `d`: with the
/// directions b - a and d - c. The pointer form gives 1 if `out` is null.
/// @{
ZARNEX_API int intersect(DPoint& out, const DPoint& a, const DPoint& b, const DPoint& c,
                         const DPoint& d);
ZARNEX_API int intersect(DPoint* out, const DPoint& a, const DPoint& b, const DPoint& c,
                         const DPoint& d);
/// @}

/// The same for integer points: computed in doubles, then rounded to the nearest point of
/// the grid, halves away from zero. The directions b - a and d - c do not wrap.
///
/// 1 if a coordinate does not fit before it is rounded, and if the lines coincide.
///
/// Kept as is: parallel lines are found by their infinite coordinates alone, not by the
/// tolerance of the double form.
/// @{
ZARNEX_API int intersect(IPoint& out, const IPoint& p, const IVector& u, const IPoint& q,
                         const IVector& v);
ZARNEX_API int intersect(IPoint& out, const IPoint& a, const IPoint& b, const IPoint& c,
                         const IPoint& d);
ZARNEX_API int intersect(IPoint* out, const IPoint& a, const IPoint& b, const IPoint& c,
                         const IPoint& d);
/// @}

/// 1 if the segments ab and cd meet, ends included; 0 if not and for parallel segments,
/// even where they overlap, and with a NaN.
///
/// Kept as is: the point where the lines meet, as intersect() computes it, is compared
/// exactly with the ends of both segments. Where the segments just touch, its rounding
/// decides. Only the constant coordinate of a horizontal or vertical segment is not
/// compared with that segment.
ZARNEX_API int isContainedIntersect(const DPoint& a, const DPoint& b, const DPoint& c,
                                    const DPoint& d);

namespace zarnex::detail {

/// The solution of two line equations a * x + b * y = c, before the division.
struct Crossing {
    double determinant;
    Pair numerators;
};

constexpr Crossing crossing(Pair p, Pair u, Pair q, Pair v) {
    const double a1 = u.y;
    const double b1 = -u.x;
    const double c1 = a1 * p.x + b1 * p.y;
    const double a2 = v.y;
    const double b2 = -v.x;
    const double c2 = a2 * q.x + b2 * q.y;
    return {a1 * b2 - b1 * a2, {c1 * b2 - b1 * c2, a1 * c2 - c1 * a2}};
}

/// The size of the determinant below which intersect() takes lines as parallel.
inline constexpr double parallelBelow = 1e-14;

inline int intersectInDoubles(DPoint& out, Pair p, Pair u, Pair q, Pair v) {
    const Crossing found = crossing(p, u, q, v);
    if (std::fabs(found.determinant) < parallelBelow)
        return 1;
    out = truncated<DPoint>(divided(found.numerators, found.determinant));
    return 0;
}

constexpr bool fitsInt(double value) {
    return value >= -2147483648.0 && value <= 2147483647.0;
}

inline int intersectInIntegers(IPoint& out, Pair p, Pair u, Pair q, Pair v) {
    const Crossing found = crossing(p, u, q, v);
    const Pair place = divided(found.numerators, found.determinant);
    if (!fitsInt(place.x) || !fitsInt(place.y))
        return 1;
    out = IPoint(roundToNearestInt(place.x), roundToNearestInt(place.y));
    return 0;
}

} // namespace zarnex::detail

ZARNEX_INLINE int intersect(DPoint& out, const DPoint& p, const DVector& u, const DPoint& q,
                            const DVector& v) {
    namespace detail = zarnex::detail;
    return detail::intersectInDoubles(out, detail::widened(p), detail::widened(u),
                                      detail::widened(q), detail::widened(v));
}

ZARNEX_INLINE int intersect(DPoint& out, const DPoint& a, const DPoint& b, const DPoint& c,
                            const DPoint& d) {
    return intersect(out, a, b - a, c, d - c);
}

ZARNEX_INLINE int intersect(DPoint* out, const DPoint& a, const DPoint& b, const DPoint& c,
                            const DPoint& d) {
    return out == nullptr ? 1 : intersect(*out, a, b, c, d);
}

ZARNEX_INLINE int intersect(IPoint& out, const IPoint& p, const IVector& u, const IPoint& q,
                            const IVector& v) {
    namespace detail = zarnex::detail;
    return detail::intersectInIntegers(out, detail::widened(p), detail::widened(u),
                                       detail::widened(q), detail::widened(v));
}

ZARNEX_INLINE int intersect(IPoint& out, const IPoint& a, const IPoint& b, const IPoint& c,
                            const IPoint& d) {
    namespace detail = zarnex::detail;
    return detail::intersectInIntegers(
        out, detail::widened(a), detail::offset(detail::widened(a), detail::widened(b)),
        detail::widened(c), detail::offset(detail::widened(c), detail::widened(d)));
}

ZARNEX_INLINE int intersect(IPoint* out, const IPoint& a, const IPoint& b, const IPoint& c,
                            const IPoint& d) {
    return out == nullptr ? 1 : intersect(*out, a, b, c, d);
}
