#pragma once

/// @file
/// The formulas that points and vectors share; for the bodies of their members.
///
/// A formula takes the coordinates widened to doubles, which is exact for the
/// 32-bit and 16-bit types, and hands doubles back. truncated() and rounded() turn
/// those into the coordinates of a type. So a formula stands here once, and no
/// intermediate value of an integer type can overflow.
///
/// Plain sums and differences of integer coordinates do not take this way: they
/// wrap, see sum() and difference().
///
/// The order of operations is fixed, and with it every bit of a result, as long as the
/// compiler does not fuse products into sums: where it would, as g++ does for processors
/// with FMA, compile hosts with -ffp-contract=off as the library is.

#include <zarnex/geometry/rounding.h>

#include <cmath>
#include <limits>
#include <type_traits>

namespace zarnex::detail {

/// Two coordinates on their way through a formula.
struct Pair {
    double x;
    double y;
};

/// a == b, and not a slip: hosts may have compilers warn of == between doubles.
constexpr bool isExactly(double a, double b) {
    return a <= b && a >= b;
}

/// `whole` as a coordinate of the integer type T: where it does not fit, the nearest
/// value of T.
template <class T>
constexpr T clampedTo(int whole) {
    constexpr int least = (std::numeric_limits<T>::min)();
    constexpr int most = (std::numeric_limits<T>::max)();
    return static_cast<T>(whole < least ? least : whole > most ? most : whole);
}

/// `value` as a coordinate of type T. Integer types truncate toward zero, take their
/// nearest value where it does not fit, and 0 for NaN; a double stays as it is.
template <class T>
constexpr T truncateTo(double value) {
    if constexpr (std::is_floating_point_v<T>)
        return static_cast<T>(value);
    else
        return clampedTo<T>(truncateToInt(value));
}

/// `value` as a coordinate of type T on the integer grid, halves away from zero.
template <class T>
T roundTo(double value) {
    if constexpr (std::is_floating_point_v<T>)
        return static_cast<T>(roundHalfAway(value));
    else
        return clampedTo<T>(roundHalfAwayToInt(value));
}

/// a + b, a - b, -a and a * s. Integer types wrap.
template <class T>
constexpr T sum(T a, T b) {
    if constexpr (std::is_floating_point_v<T>)
        return a + b;
    else
        return static_cast<T>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
}

template <class T>
constexpr T difference(T a, T b) {
    if constexpr (std::is_floating_point_v<T>)
        return a - b;
    else
        return static_cast<T>(static_cast<unsigned>(a) - static_cast<unsigned>(b));
}

template <class T>
constexpr T negated(T a) {
    if constexpr (std::is_floating_point_v<T>)
        return -a;
    else
        return static_cast<T>(0u - static_cast<unsigned>(a));
}

template <class T>
constexpr T product(T a, int s) {
    if constexpr (std::is_floating_point_v<T>)
        return a * static_cast<T>(s);
    else
        return static_cast<T>(static_cast<unsigned>(a) * static_cast<unsigned>(s));
}

template <class V>
constexpr Pair widened(const V& v) {
    return {static_cast<double>(v.x), static_cast<double>(v.y)};
}

template <class V>
constexpr V truncated(Pair p) {
    return V(truncateTo<decltype(V::x)>(p.x), truncateTo<decltype(V::y)>(p.y));
}

template <class V>
V rounded(Pair p) {
    return V(roundTo<decltype(V::x)>(p.x), roundTo<decltype(V::y)>(p.y));
}

constexpr Pair offset(Pair from, Pair to) {
    return {to.x - from.x, to.y - from.y};
}

constexpr Pair scaled(Pair v, double sx, double sy) {
    return {v.x * sx, v.y * sy};
}

constexpr Pair divided(Pair v, double d) {
    return {v.x / d, v.y / d};
}

constexpr double dot(Pair a, Pair b) {
    return a.x * b.x + a.y * b.y;
}

constexpr double cross(Pair a, Pair b) {
    return a.x * b.y - a.y * b.x;
}

inline double length(Pair v) {
    return std::sqrt(dot(v, v));
}

inline double manhattanLength(Pair v) {
    return std::fabs(v.x) + std::fabs(v.y);
}

/// The bound below which the coordinates of double points and vectors are equal.
inline constexpr double sameCoordinateBelow = 1e-11;

inline bool sameWithinTolerance(Pair a, Pair b) {
    return std::fabs(a.x - b.x) < sameCoordinateBelow && std::fabs(a.y - b.y) < sameCoordinateBelow;
}

/// The largest size of a divisor that DVector does not divide by.
inline constexpr double noDivisorWithin = 1e-11;

/// The squared length up to which normalize() leaves a vector as it is.
inline constexpr double shortSquaredLength = 1e-11;

inline Pair normalized(Pair v) {
    const double squared = dot(v, v);
    if (!(squared > shortSquaredLength))
        return v;
    const double inverse = 1.0 / std::sqrt(squared);
    return {v.x * inverse, v.y * inverse};
}

constexpr Pair projected(Pair v, Pair onto) {
    const double squared = dot(onto, onto);
    if (isExactly(squared, 0.0))
        return onto;
    const double share = dot(v, onto) / squared;
    return {share * onto.x, share * onto.y};
}

constexpr Pair projectedOnUnit(Pair v, Pair unit) {
    const double share = dot(v, unit);
    return {share * unit.x, share * unit.y};
}

/// The dot product below which isSameSense() takes two vectors as perpendicular.
inline constexpr double perpendicularBelow = 1e-9;

inline bool sameSense(Pair a, Pair b) {
    double sense = dot(a, b);
    if (std::fabs(sense) < perpendicularBelow)
        sense = cross(a, b);
    return sense >= 0.0;
}

/// Kept as is: 3.1415926 / 180, a shorter pi than the 3.141592654 of angle(). A
/// turn by 90 degrees takes (1, 0) to (2.7e-8, 1).
inline constexpr double rotationRadiansPerDegree = 0.017453292222222222;

inline Pair rotated(Pair p, double degrees, Pair centre) {
    const double radians = degrees * rotationRadiansPerDegree;
    const double cosine = std::cos(radians);
    const double sine = std::sin(radians);
    const Pair d = offset(centre, p);
    return {centre.x + d.x * cosine - d.y * sine, centre.y + d.x * sine + d.y * cosine};
}

constexpr Pair mapped(Pair p, const double m[2][3], double z) {
    return {p.x * m[0][0] + p.y * m[0][1] + m[0][2] * z,
            p.x * m[1][0] + p.y * m[1][1] + m[1][2] * z};
}

inline Pair mirrored(Pair p, Pair a, Pair b) {
    if (isExactly(a.y, b.y))
        return {p.x, 2.0 * a.y - p.y};
    if (isExactly(a.x, b.x))
        return {2.0 * a.x - p.x, p.y};
    const double m = (b.y - a.y) / (b.x - a.x);
    const double footX = (m * (p.y - a.y) + p.x + m * m * a.x) / (1.0 + m * m);
    const double footY = m * (footX - a.x) + a.y;
    return {2.0 * roundHalfAway(footX) - p.x, 2.0 * roundHalfAway(footY) - p.y};
}

} // namespace zarnex::detail
