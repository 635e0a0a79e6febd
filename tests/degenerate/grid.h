#pragma once

/// Where the trials put points, and the numbers that they pass: what arithmetic trips over.

#include <zarnex/geometry/DPoint.h>
#include <zarnex/geometry/IPoint.h>
#include <zarnex/geometry/ZCoord.h>

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <vector>

/// The first `brief` of `all`; all of them in the long trial, which the environment asks for.
template <class T>
std::vector<T> gridOf(std::vector<T> all, std::size_t brief) {
    if (std::getenv("ZARNEX_LONG_TRIAL") == nullptr && brief < all.size())
        all.erase(all.begin() + static_cast<std::ptrdiff_t>(brief), all.end());
    return all;
}

/// NaN, infinities, zeros, denormal, coinciding, collinear, nearly collinear and huge ones.
inline const std::vector<DPoint>& places() {
    static const std::vector<DPoint> grid = gridOf<DPoint>({{0, 0},
                                                            {1, 1},
                                                            {3, 3},
                                                            {3, 3 + 4 * DBL_EPSILON},
                                                            {4, 0},
                                                            {1, -2},
                                                            {NAN, 0},
                                                            {HUGE_VAL, 1},
                                                            {DBL_MAX, -DBL_MAX},
                                                            {1e160, 1e160},
                                                            {-1e10, 1e10},
                                                            {DBL_TRUE_MIN, -DBL_TRUE_MIN},
                                                            {1e-12, 0},
                                                            {4e-6, 3},
                                                            {0.1, 0.7},
                                                            {-0.0, 1e-5},
                                                            // The long trial goes on from here.
                                                            {0.3, 2.1},
                                                            {0.5, 0.5},
                                                            {0.5 + DBL_EPSILON, 0.5},
                                                            {12, 12},
                                                            {24, 24},
                                                            {4, -0.0},
                                                            {-0.0, -0.0},
                                                            {4, 1e-300},
                                                            {1e-160, 1e-160},
                                                            {1e154, 1e-154},
                                                            {DBL_MAX, DBL_MAX},
                                                            {-DBL_MAX, 0},
                                                            {-HUGE_VAL, HUGE_VAL},
                                                            {0, NAN},
                                                            {NAN, NAN},
                                                            {1e16, 1e16 + 2},
                                                            {2147483647.5, -2147483648.5},
                                                            {-3.1e-5, 0},
                                                            {1e-9, 1e-9},
                                                            {-1e8, 3e-8}},
                                                           16);
    return grid;
}

/// For factors, tolerances, angles and coefficients.
inline const std::vector<double>& numbers() {
    static const std::vector<double> grid = gridOf<double>(
        {0.0, 1.0, -1.0, 1e-9, 0.5, 1e308, HUGE_VAL, NAN, DBL_TRUE_MIN, -3.0, -0.0, -HUGE_VAL,
         // The long trial goes on from here.
         -1e-9, 1e-10, 1e-154, -1e154, 90.0, 3.5, 1e9, -DBL_MAX, 0.5 - DBL_EPSILON / 4},
        12);
    return grid;
}

template <class T, class P>
std::vector<P> wholePlaces(const std::vector<T>& coordinates) {
    std::vector<P> grid;
    for (const T x : coordinates)
        for (const T y : coordinates)
            grid.push_back(P(x, y));
    return grid;
}

inline const std::vector<IPoint>& intPlaces() {
    static const std::vector<IPoint> grid = wholePlaces<int, IPoint>(
        gridOf<int>({0, INT_MIN, INT_MAX, 1, -2, 46341, -65536, INT_MIN + 1}, 4));
    return grid;
}

inline const std::vector<ZCoord<short>>& shortPlaces() {
    static const std::vector<ZCoord<short>> grid = wholePlaces<short, ZCoord<short>>(
        gridOf<short>({0, SHRT_MIN, SHRT_MAX, 1, -2, 182, -16384, SHRT_MIN + 1}, 4));
    return grid;
}

/// Whether two numbers are equal or both not numbers.
inline bool same(double a, double b) {
    return a == b || (std::isnan(a) && std::isnan(b));
}

template <class P, class Q>
bool samePlace(const P& p, const Q& q) {
    return same(p.x, q.x) && same(p.y, q.y);
}

/// Whether a length, distance or square is one: never below 0, but perhaps not a number.
inline bool isSize(double value) {
    return !(value < 0.0);
}
