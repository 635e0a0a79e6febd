#pragma once

/// Where the trials put points, and the numbers that they pass: what arithmetic trips over.

#include <zarnex/geometry/DPoint.h>
#include <zarnex/geometry/IPoint.h>
#include <zarnex/geometry/ZCoord.h>

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <vector>

/// All of `brief`, and in the long trial, which the environment asks for, of `more`.
template <class T>
std::vector<T> gridOf(std::vector<T> brief, const std::vector<T>& more) {
    if (std::getenv("ZARNEX_LONG_TRIAL") != nullptr)
        brief.insert(brief.end(), more.begin(), more.end());
    return brief;
}

/// NaN, infinities, zeros, denormal, coinciding, collinear, nearly collinear and huge ones.
inline const std::vector<DPoint>& places() {
    static const std::vector<DPoint> brief = {
        {0, 0},        {1, 1},         {3, 3},       {3, 3 + 4 * DBL_EPSILON},
        {4, 0},        {1, -2},        {NAN, 0},     {HUGE_VAL, 1},
        {1e-12, 0},    {4e-6, 3},      {0.1, 0.7},   {DBL_TRUE_MIN, -DBL_TRUE_MIN},
        {-1e10, 1e10}, {1e160, 1e160}, {-0.0, 1e-5}, {DBL_MAX, -DBL_MAX}};
    static const std::vector<DPoint> more = {
        {0.3, 2.1},    {0.5, 0.5},       {12, 12},        {0.5 + DBL_EPSILON, 0.5},
        {24, 24},      {4, -0.0},        {-0.0, -0.0},    {2147483647.5, -2147483648.5},
        {4, 1e-300},   {0, NAN},         {NAN, NAN},      {-HUGE_VAL, HUGE_VAL},
        {-3.1e-5, 0},  {1e-9, 1e-9},     {-1e8, 3e-8},    {1e16, 1e16 + 2},
        {-DBL_MAX, 0}, {1e-160, 1e-160}, {1e154, 1e-154}, {DBL_MAX, DBL_MAX}};
    static const std::vector<DPoint> grid = gridOf(brief, more);
    return grid;
}

/// For factors, tolerances, angles and coefficients.
inline const std::vector<double>& numbers() {
    static const std::vector<double> grid = gridOf<double>(
        {0.0, 1.0, -1.0, 1e-9, 0.5, 1e308, HUGE_VAL, NAN, DBL_TRUE_MIN, -3.0, -0.0, -HUGE_VAL},
        {-1e-9, 1e-10, 1e-154, -1e154, 90.0, 3.5, 1e9, -DBL_MAX, 0.5 - DBL_EPSILON / 4});
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
        gridOf<int>({0, INT_MIN, INT_MAX, 1}, {-2, 46341, -65536, INT_MIN + 1}));
    return grid;
}

inline const std::vector<ZCoord<short>>& shortPlaces() {
    static const std::vector<ZCoord<short>> grid = wholePlaces<short, ZCoord<short>>(
        gridOf<short>({0, SHRT_MIN, SHRT_MAX, 1}, {-2, 182, -16384, SHRT_MIN + 1}));
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
