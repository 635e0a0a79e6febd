#pragma once

/// @file
/// Doubles to integers: without the fraction, and to the nearest.
///
/// No argument is out of contract: an int result that does not fit is the nearest int,
/// and NaN gives 0. All are a few instructions without a call.

#include <cmath>
#include <limits>

namespace zarnex {

/// `value` without its fraction: 2.9 gives 2, -2.9 gives -2.
constexpr int truncateToInt(double value);

/// `value` rounded to the nearest integer, halves away from zero: 2.5 gives 3,
/// -2.5 gives -3.
///
/// Kept as is: computed as trunc(value + 0.5) for values above 0 and as
/// -trunc(0.5 - value) for the others, so that the largest double below 0.5 gives 1,
/// where std::round gives 0.
inline int roundHalfAwayToInt(double value);

/// The same rounding with a double as its result, for values of any size.
///
/// A result of zero is +0. Infinities and NaN are returned unchanged.
///
/// Kept as is: as for roundHalfAwayToInt; odd values from 2^52 to 2^53 move to the
/// next even one away from zero.
inline double roundHalfAway(double value);

/// `value` rounded to the nearest integer, halves away from zero, without exception: the
/// largest double below 0.5 gives 0, as with std::round.
constexpr int roundToNearestInt(double value);

constexpr int truncateToInt(double value) {
    if (value > -2147483649.0 && value < 2147483648.0)
        return static_cast<int>(value);
    if (value > 0.0)
        return (std::numeric_limits<int>::max)();
    return value < 0.0 ? (std::numeric_limits<int>::min)() : 0;
}

// Truncation is symmetric, so trunc(value - 0.5) is -trunc(0.5 - value).
inline int roundHalfAwayToInt(double value) {
    return truncateToInt(value + std::copysign(0.5, value));
}

inline double roundHalfAway(double value) {
    const double shifted = value + std::copysign(0.5, value);
    constexpr double wholeFrom = 4503599627370496.0; // 2^52: no double has a fraction from here on
    if (shifted > -wholeFrom && shifted < wholeFrom)
        return static_cast<double>(static_cast<long long>(shifted));
    return shifted;
}

// The rest is exact: nothing of it is lost as a sum with 0.5 would lose it.
constexpr int roundToNearestInt(double value) {
    const int whole = truncateToInt(value);
    const double rest = value - whole;
    if (rest >= 0.5 && whole < (std::numeric_limits<int>::max)())
        return whole + 1;
    if (rest <= -0.5 && whole > (std::numeric_limits<int>::min)())
        return whole - 1;
    return whole;
}

} // namespace zarnex
