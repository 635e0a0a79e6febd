#pragma once

/// @file
/// The centre of the circle through three points.

#include <zarnex/config.h>
#include <zarnex/geometry/DPoint.h>

/// Writes the centre of the circle through `p1`, `p2` and `p3` and returns 0, or returns -1
/// and leaves `centre` as it is if the points are too close to each other or to one line.
///
///     DPoint centre;
///     if (computeCentre(&centre, a, b, c) == 0)
///         radius = centre.distance(a);
///
/// Refused are two points equal within 1e-7 in both coordinates, an angle at `p1` with a
/// sine below 0.01 (so the order counts: of a flat arc, pass the middle point first), and a
/// determinant, four times the area of the parallelogram of the points, of at most 1e-9. A null
/// `centre` is not written. Coordinates that are NaN or overflow when squared may give a centre of
/// NaN or infinities, with 0.
///
/// Kept as is: the sine is that of the steps from `p1` after DVector::normalize(), which
/// leaves steps up to 3.16e-6 as short as they are: such a step is refused whatever its
/// angle. LUcomputeCentre has no test of the angle.
ZARNEX_API int computeCentre(DPoint* centre, const DPoint& p1, const DPoint& p2, const DPoint& p3);

/// The same by elimination with partial pivoting.
///
/// Refused are two points equal within 1e-9 in both coordinates, and a pivot of at most
/// 1e-9.
///
/// Kept as is: nearly straight points that computeCentre refuses have a centre here,
/// far away: (0, 0), (100, 0), (200, 1) have one at (50, 10000.5). Points on one line end
/// with a pivot of 0, unless rounding lifts the pivot above 1e-9, as it may for coordinates
/// from about 1e7.
ZARNEX_API int LUcomputeCentre(DPoint* centre, const DPoint& p1, const DPoint& p2,
                               const DPoint& p3);
