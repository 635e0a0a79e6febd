#pragma once

/// What the rows of the topic geometry share: pools of cases, and formulas by hand.

#include "plane.h"

#if BENCH_BOOST
#include <boost/geometry.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#endif

#include <cmath>
#include <cstddef>

namespace bench {

inline constexpr std::size_t cases = 4096;

#if BENCH_BOOST
namespace bg = boost::geometry;
using BoostPoint = bg::model::d2::point_xy<double>;
using BoostSegment = bg::model::segment<BoostPoint>;
using BoostBox = bg::model::box<BoostPoint>;
#endif

/// A pool of cases, each of as many neighbouring points as it takes.
template <class P>
Array<P> places(std::size_t each) {
    return pairedOnPages<P>(randomNumbers(2 * each * cases, -100.0, 100.0, 1));
}

/// The sum of what `measure` makes of each case of the pool, given its first point.
template <std::size_t Each, class Pool, class Measure>
auto sumOver(const Pool& pool, Measure measure) {
    return [&pool, measure] {
        double sum = 0.0;
        for (std::size_t i = 0; i < cases; ++i)
            sum += measure(&pool[i * Each]);
        return sum;
    };
}

// By hand: the same formulas and guarantees on plain structures.

inline Plain operator-(const Plain& p, const Plain& q) {
    return {p.x - q.x, p.y - q.y};
}

inline double dot(const Plain& u, const Plain& v) {
    return u.x * v.x + u.y * v.y;
}

inline double cross(const Plain& u, const Plain& v) {
    return u.x * v.y - u.y * v.x;
}

inline Plain normalized(const Plain& v) {
    const double squared = dot(v, v);
    if (!(squared > 1e-11))
        return v;
    const double inverse = 1.0 / std::sqrt(squared);
    return {v.x * inverse, v.y * inverse};
}

inline int plainTurn(const Plain* p) {
    const double k = cross(normalized(p[1] - p[0]), normalized(p[2] - p[1]));
    return k > 0.0 ? 1 : k < 0.0 ? -1 : 0;
}

} // namespace bench
