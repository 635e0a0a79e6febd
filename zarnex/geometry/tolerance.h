#pragma once

/// @file
/// Comparisons within a tolerance.
///
/// Every function returns 1 or 0. A comparison with a NaN gives 0 unless said, as does a
/// negative tolerance except in isPointInBox. A tolerance in double is 1e-9 where the
/// caller names none.
///
/// Kept as is: every bound is inclusive, although == of the points has a strict one, and
/// a test of two points is a box test, coordinate by coordinate, not one of their
/// distance.

#include <zarnex/config.h>
#include <zarnex/geometry/DPoint.h>
#include <zarnex/geometry/DVector.h>
#include <zarnex/geometry/IPoint.h>
#include <zarnex/geometry/IVector.h>
#include <zarnex/geometry/ZCoord.h>

#include <cmath>
#include <type_traits>

/// 1 if a = b.
/// @{
ZARNEX_API int IS_EQUAL(int a, int b);
ZARNEX_API int IS_EQUAL(long a, long b);
/// @}

/// 1 if -tol <= a - b <= tol.
ZARNEX_API int IS_EQUAL(double a, double b, double tol = 1e-9);

/// The same for any other two numbers: integers are equal if their values are,
/// whatever their types and signs; with a float or double on either side both are
/// compared as doubles, within 1e-9.
template <class A, class B,
          class = std::enable_if_t<std::is_arithmetic_v<A> && std::is_arithmetic_v<B>>>
int IS_EQUAL(A a, B b);

/// 1 if a = 0.
ZARNEX_API int IS_ZERO(int a);

/// 1 if -tol <= a <= tol.
ZARNEX_API int IS_ZERO(double a, double tol = 1e-9);

/// The same for every other integer type.
template <class A, class = std::enable_if_t<std::is_integral_v<A>>>
int IS_ZERO(A a);

/// 1 if |a.x - b.x| <= tol and |a.y - b.y| <= tol; for ZCoord in integers, which
/// cannot overflow, and exactly where the caller names no tolerance.
/// @{
ZARNEX_API int isEqual(const ZCoord<short>& a, const ZCoord<short>& b, int tol = 0);
ZARNEX_API int isEqual(const DPoint& a, const DPoint& b, double tol = 1e-9);
ZARNEX_API int isEqual(const DVector& a, const DVector& b, double tol = 1e-9);
/// @}

/// 1 if both coordinates are exactly equal.
/// @{
ZARNEX_API int isEqual(const IPoint& a, const IPoint& b);
ZARNEX_API int isEqual(const IVector& a, const IVector& b);
/// @}

/// 0 if (p.x - x1) * (p.x - x2) > tol or (p.y - y1) * (p.y - y2) > tol, else 1; so 1
/// in and on the box between two opposite corners, given in either order, and for NaN.
///
/// Kept as is: the tolerance bounds a product of two distances, an area, although it
/// bounds a distance everywhere else. In a box 10 wide, 11 reaches 1 outside.
ZARNEX_API int isPointInBox(const DPoint& p, double x1, double y1, double x2, double y2,
                            double tol = 1e-9);

ZARNEX_INLINE int IS_EQUAL(int a, int b) {
    return a == b;
}

ZARNEX_INLINE int IS_EQUAL(long a, long b) {
    return a == b;
}

ZARNEX_INLINE int IS_EQUAL(double a, double b, double tol) {
    const double d = a - b;
    return -tol <= d && d <= tol;
}

ZARNEX_INLINE int IS_ZERO(int a) {
    return a == 0;
}

ZARNEX_INLINE int IS_ZERO(double a, double tol) {
    return -tol <= a && a <= tol;
}

ZARNEX_INLINE int isEqual(const ZCoord<short>& a, const ZCoord<short>& b, int tol) {
    const int dx = a.x - b.x;
    const int dy = a.y - b.y;
    return (dx < 0 ? -dx : dx) <= tol && (dy < 0 ? -dy : dy) <= tol;
}

ZARNEX_INLINE int isEqual(const DPoint& a, const DPoint& b, double tol) {
    return std::fabs(a.x - b.x) <= tol && std::fabs(a.y - b.y) <= tol;
}

ZARNEX_INLINE int isEqual(const DVector& a, const DVector& b, double tol) {
    return std::fabs(a.x - b.x) <= tol && std::fabs(a.y - b.y) <= tol;
}

ZARNEX_INLINE int isEqual(const IPoint& a, const IPoint& b) {
    return a.x == b.x && a.y == b.y;
}

ZARNEX_INLINE int isEqual(const IVector& a, const IVector& b) {
    return a.x == b.x && a.y == b.y;
}

ZARNEX_INLINE int isPointInBox(const DPoint& p, double x1, double y1, double x2, double y2,
                               double tol) {
    return !((p.x - x1) * (p.x - x2) > tol || (p.y - y1) * (p.y - y2) > tol);
}

template <class A, class B, class>
int IS_EQUAL(A a, B b) {
    using Common = std::common_type_t<A, B>;
    if constexpr (std::is_floating_point_v<Common>)
        return IS_EQUAL(static_cast<double>(a), static_cast<double>(b), 1e-9);
    else
        return (a < A()) == (b < B()) && static_cast<Common>(a) == static_cast<Common>(b);
}

template <class A, class>
int IS_ZERO(A a) {
    return a == A();
}
