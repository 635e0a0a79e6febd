#pragma once

/// @file
/// Cross products, turns and the winding of outlines, with y growing upward.

#include <zarnex/config.h>
#include <zarnex/geometry/DPoint.h>
#include <zarnex/geometry/IPoint.h>

#include <list>

/// The cross product of the vectors a - b and c - d:
/// (a.x - b.x) * (c.y - d.y) - (c.x - d.x) * (a.y - b.y).
///
/// The pointer form gives 0 if a pointer is null.
/// @{
ZARNEX_API double crossProd(const DPoint& a, const DPoint& b, const DPoint& c, const DPoint& d);
ZARNEX_API double crossProduct(const DPoint* a, const DPoint* b, const DPoint* c, const DPoint* d);
/// @}

/// The same for integer points.
///
/// Kept as is: computed in 32 bits, where it wraps, although IVector::cross is exact
/// as far as doubles are.
ZARNEX_API double crossProduct(const IPoint* a, const IPoint* b, const IPoint* c, const IPoint* d);

/// The turn at `b` on the way from `a` to `c`: 1 to the left (counter-clockwise), -1 to
/// the right, 0 for straight on, straight back, a point that repeats its predecessor,
/// or NaN.
///
/// Kept as is: there is no tolerance. The sign is that of the cross product of the two
/// steps, each normalized by DVector::normalize(); for points nearly on one line, its
/// rounding decides.
ZARNEX_API int Are3PointsCCW(const DPoint& a, const DPoint& b, const DPoint& c);

/// 1 if the closed outline through the points of `outline` runs counter-clockwise, else
/// 0. `valid` becomes 1 if the direction could be determined; 0 for fewer than three
/// points and for points that coincide or lie on one line through the topmost.
///
/// Decides by the turn at the topmost point, the first of several, so it is right for
/// any outline that does not cross itself. Linear in the number of points.
///
/// Kept as is: on the way back from the topmost point, points within 3.16e-5 of it (a
/// squared distance of 1e-9) are skipped; on the way forward only those that make no
/// turn. An outline that lies within that distance as a whole is judged by the turn
/// from the point after the topmost, which can be the opposite.
ZARNEX_API int isCCWSTDListDPoint(int& valid, const std::list<DPoint>& outline);

ZARNEX_INLINE double crossProd(const DPoint& a, const DPoint& b, const DPoint& c, const DPoint& d) {
    return (a.x - b.x) * (c.y - d.y) - (c.x - d.x) * (a.y - b.y);
}

ZARNEX_INLINE double crossProduct(const DPoint* a, const DPoint* b, const DPoint* c,
                                  const DPoint* d) {
    if (a == nullptr || b == nullptr || c == nullptr || d == nullptr)
        return 0.0;
    return crossProd(*a, *b, *c, *d);
}

ZARNEX_INLINE double crossProduct(const IPoint* a, const IPoint* b, const IPoint* c,
                                  const IPoint* d) {
    namespace detail = zarnex::detail;
    if (a == nullptr || b == nullptr || c == nullptr || d == nullptr)
        return 0.0;
    return detail::difference(
        detail::product(detail::difference(a->x, b->x), detail::difference(c->y, d->y)),
        detail::product(detail::difference(c->x, d->x), detail::difference(a->y, b->y)));
}
