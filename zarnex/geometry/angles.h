#pragma once

/// @file
/// Angles of directions and at corners.

#include <zarnex/config.h>
#include <zarnex/geometry/DPoint.h>
#include <zarnex/geometry/IPoint.h>
#include <zarnex/geometry/ZCoord.h>

/// The angle of the direction (x, y) in radians, counter-clockwise from the +x axis,
/// from -pi to pi; NaN if a coordinate is NaN, unless a rule below decides before.
///
/// Kept as is: near the axes it snaps to them, with short values of pi. With |y| up to
/// 1e-6 it is 0 for x above 0 and 3.141592654 otherwise, also for (0, 0); else with
/// |x| up to 1e-6 it is 1.570796327 or -1.570796327. In between it is std::atan2.
ZARNEX_API double atan3(double y, double x);

/// The signed angle at the corner `b`, in radians: from the direction to `a` round to
/// the direction to `c`, above 0 counter-clockwise, at most 3.141592654 in size. A straight
/// line may have either sign. A point that coincides with `b` counts as lying straight below it.
/// NaN with a NaN.
///
/// Kept as is: differences of IPoint are 32-bit integers and wrap, those of 16-bit
/// points do not. Directions are measured from the +y axis, clockwise.
///
/// Kept as is: a difference of two directions outside (-3.141592654, 3.141592654] is
/// brought back by 6.283185308, full turns of a short pi, so that an angle over such a
/// step is 7e-10 off: (1, 0), (0, 0), (0, 1) has -3 pi / 2 + 6.283185308.
/// @{
ZARNEX_API double angleRad(const DPoint& a, const DPoint& b, const DPoint& c);
ZARNEX_API double angleRad(const IPoint& a, const IPoint& b, const IPoint& c);
ZARNEX_API double angleRad(const ZCoord<short>& a, const ZCoord<short>& b, const ZCoord<short>& c);
/// @}

/// angleRad() in degrees.
///
/// Kept as is: divides by 3.141592654 / 180, so that a straight line has an angle
/// slightly below 180; rotate() of the points has the shorter pi 3.1415926.
/// @{
ZARNEX_API double angle(const DPoint& a, const DPoint& b, const DPoint& c);
ZARNEX_API double angle(const IPoint& a, const IPoint& b, const IPoint& c);
ZARNEX_API double angle(const ZCoord<short>& a, const ZCoord<short>& b, const ZCoord<short>& c);
/// @}
