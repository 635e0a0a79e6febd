#pragma once

/// @file
/// Points between points.

#include <zarnex/config.h>
#include <zarnex/geometry/DPoint.h>

/// Half the sum of both points.
ZARNEX_API DPoint midpoint(const DPoint& a, const DPoint& b);

/// wa * a + wb * b, coordinate by coordinate. The weights are taken as they are: for a
/// point of the line ab they must sum to 1.
ZARNEX_API DPoint weightedSum(const DPoint& a, double wa, const DPoint& b, double wb);

/// Moves both points to the one half way between them.
///
/// Kept as is: overwrites both arguments with the average of the two, although
/// midpoint() returns it.
ZARNEX_API void pointsAverage(DPoint& a, DPoint& b);

ZARNEX_INLINE DPoint midpoint(const DPoint& a, const DPoint& b) {
    return DPoint(0.5 * (a.x + b.x), 0.5 * (a.y + b.y));
}

ZARNEX_INLINE DPoint weightedSum(const DPoint& a, double wa, const DPoint& b, double wb) {
    return DPoint(wa * a.x + wb * b.x, wa * a.y + wb * b.y);
}

ZARNEX_INLINE void pointsAverage(DPoint& a, DPoint& b) {
    a = DPoint((a.x + b.x) / 2.0, (a.y + b.y) / 2.0);
    b = a;
}
