#pragma once

/// @file
/// Whether segments are collinear or parallel, and where a point lies on a segment.
///
/// No function changes what its arguments point to.

#include <zarnex/config.h>
#include <zarnex/geometry/DPoint.h>
#include <zarnex/geometry/IPoint.h>
#include <zarnex/geometry/orientation.h>
#include <zarnex/geometry/tolerance.h>

#include <cmath>

/// 1 if the segments ab and cd lie on one line, else 0.
///
/// `angleTol` bounds the sine of the angle between them, either way round, and `distTol`
/// the distance of `d` from the line ab; both bounds are inclusive. A segment whose squared
/// length does not exceed distTol^2, or is a NaN, is short and has no direction: it lies on
/// the line of a long one if its first point is at most `distTol` away from it, and two
/// short ones lie on one line wherever they are.
///
/// Kept as is: of two long segments only `d` is measured, not `c`.
ZARNEX_API int collinear(const DPoint& a, const DPoint& b, const DPoint& c, const DPoint& d,
                         double distTol, double angleTol);

/// The same with a `distTol` of 0.1 and an `angleTol` of 0.017453292522222223; 0 if a
/// pointer is null.
///
/// Kept as is: the angle is a degree by the pi 3.141592654 of angle(), in radians, and
/// bounds a sine.
ZARNEX_API int collinear(DPoint* a, DPoint* b, DPoint* c, DPoint* d);

/// 1 if the sine of the angle between the segments ab and cd is at most `tol` in size, or if
/// one of them is at most 1e-9 long; else 0. 0 for a null pointer, and with a NaN unless a
/// segment is that short.
ZARNEX_API int parallel(DPoint* a, DPoint* b, DPoint* c, DPoint* d, double tol);

/// Where `p` lies: 0 off the line ab, 1 on it beyond `a`, 2 on the segment, 3 beyond `b`.
///
/// A point counts as one of the ends, and gives 2, where both coordinates differ by less
/// than `tol`. Apart from that a segment whose ends are as near to each other gives 0. The
/// test for the line lets a NaN pass: a `p` of NaNs gives 2.
///
/// Kept as is: `tol` bounds the difference of two products of distances, an area, although
/// it is a distance elsewhere.
///
/// Kept as is: only the sizes of the slopes are compared. A point on the mirror image of
/// the line, about the horizontal or vertical through `b`, passes as well.
///
/// Kept as is: the tolerance widens the segment at one end only. With `a` more than `tol` to
/// the left of `b`, a point to the left of `a` that does not count as `a` gives 1, and one to
/// the right of `b` gives 3 only beyond `tol`; with `a` to the right it is 3 at once and 1
/// beyond `tol`. The same holds for below and above.
ZARNEX_API int pointOnLineSegment(const DPoint& p, const DPoint& a, const DPoint& b, double tol);

/// The same for integer points, without tolerance.
///
/// Kept as is: differences, their sizes and products wrap into 32 bits, although
/// intersect() of integer points computes in doubles.
///
/// Kept as is: on a segment with a == b every point gives 2, although the double form gives
/// 0. Mirror images pass here as well.
ZARNEX_API int pointOnLineSegment(const IPoint& p, const IPoint& a, const IPoint& b);

/// 1 if `p` lies on the segment ab, else 0: if its distance from `a` or `b` is at most
/// `tol`, or if the square of the sum of both distances is at most tol^2 away from the
/// squared length of ab. A NaN in one end leaves the other end to be found.
///
/// Kept as is: the second test is an ellipse about `a` and `b` that reaches tol / 2 beside
/// the middle of the segment, although the first is a circle of radius `tol`.
ZARNEX_API int quickCheckPointOnLine(const DPoint& p, const DPoint& a, const DPoint& b, double tol);

/// The same with a second chance: 1 also if that sum squared, over the squared length of ab,
/// is 1 within `relTol`, or if the distance of `p` from the line ab is below `tol`
/// in size.
///
/// There is none if `relTol` is at most 1e-9 in size. If the squared length of ab is, the
/// chance is that each coordinate of `p` differs by at most `tol` from that of `a`, or of `b`.
///
/// Kept as is: the distance is that from the infinite line, so that a point far beyond `a`
/// or `b` passes, although the form without `relTol` refuses it.
ZARNEX_API int quickCheckPointOnLine(const DPoint& p, const DPoint& a, const DPoint& b, double tol,
                                     double relTol);

ZARNEX_INLINE int parallel(DPoint* a, DPoint* b, DPoint* c, DPoint* d, double tol) {
    if (a == nullptr || b == nullptr || c == nullptr || d == nullptr)
        return 0;
    const double ab = a->distance(*b);
    const double cd = c->distance(*d);
    if (IS_ZERO(ab) || IS_ZERO(cd))
        return 1;
    return std::fabs(crossProd(*a, *b, *c, *d)) / ab / cd <= tol;
}

ZARNEX_INLINE int quickCheckPointOnLine(const DPoint& p, const DPoint& a, const DPoint& b,
                                        double tol) {
    const double fromA = p.distance(a);
    const double fromB = p.distance(b);
    if (IS_ZERO(fromA, tol) || IS_ZERO(fromB, tol))
        return 1;
    const double sum = fromA + fromB;
    return IS_EQUAL(sum * sum, a.squaredDistance(b), tol * tol);
}
