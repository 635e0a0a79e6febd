#pragma once

#include <cfloat>
#include <cmath>
#include <iterator>
#include <random>

/// The next of a fixed sequence of values that break arithmetic.
inline double hostileValue() {
    static constexpr double values[] = {
        0.0,  -0.0,   DBL_TRUE_MIN, -1e-11,   1e-10,    1.0,       -3.0,
        1e10, -1e154, 1e200,        -DBL_MAX, HUGE_VAL, -HUGE_VAL, NAN,
    };
    static std::mt19937 random(4);
    return values[random() % std::size(values)];
}
