#pragma once

/// @file
/// The line that fits a list of points best.

#include <zarnex/config.h>
#include <zarnex/geometry/DPoint.h>
#include <zarnex/geometry/DVector.h>

#include <list>

/// Fits a line to `pts` by the least squares of the distances from it, and gives its normal
/// (a, b), of any length, and `c`; 0 then. -1 for an empty list, with all three left alone.
///
/// Linear in the number of points; a ZList makes a list by its begin() and end(). Points that
/// coincide have a normal of 0 but for rounding.
///
/// Kept as is: so have points on one vertical line, although every other line has a normal.
///
/// Kept as is: c is a * mx + b + my with the mean point (mx, my), although the equation
/// a * x + b * y + c = 0 of the line has -(a * mx + b * my).
ZARNEX_API int fitToLine(const std::list<DPoint>& pts, double& a, double& b, double& c);

/// Fits a line by the form above and gives a point `onLine` for it; 0 then.
///
/// `onLine` is (0, -c / b), or (-c / a, 0) if b is at most 1e-9 in size. -1, with both
/// arguments left alone, for an empty list and if neither a nor b is greater than that; -1
/// with `onLine` set if no point has two coordinates of more than 1e-9 in size. `onLine` may
/// be a point of the list.
///
/// Kept as is: `dir` is an input. The direction of the line is not computed: the caller's
/// vector is negated if it has not the sense of the way from the first point to the last
/// (DVector::isSameSense), and kept otherwise.
///
/// Kept as is: `onLine` follows from the c of the form above, and so does not lie on the
/// line that fits.
///
/// Kept as is: points that all lie on the axes are refused, although they have a line.
ZARNEX_API int fitToLine(const std::list<DPoint>& pts, DVector& dir, DPoint& onLine);
