#pragma once

/// Whether a place lies within the box that two ends span.

#include <zarnex/geometry/DPoint.h>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace zarnex::detail {

/// Whether `value` is from `a` to `b`, in either order; true if there is nothing between
/// the two, as it is then known but for its rounding.
constexpr bool isBetweenOrFlat(double value, double a, double b) {
    return a < b ? a <= value && value <= b : a == b || (b <= value && value <= a);
}

/// Whether both coordinates of `p` are between those of `a` and `b`, in this sense, and
/// between those of `c` and `d`.
inline bool withinEndsPlainly(const DPoint& p, const DPoint& a, const DPoint& b, const DPoint& c,
                              const DPoint& d) {
    return isBetweenOrFlat(p.x, a.x, b.x) && isBetweenOrFlat(p.y, a.y, b.y) &&
           isBetweenOrFlat(p.x, c.x, d.x) && isBetweenOrFlat(p.y, c.y, d.y);
}

#if defined(__SSE2__)

/// isBetweenOrFlat() of both coordinates, as masks. Without branches, which a processor
/// guesses wrong for segments in random order.
inline __m128d betweenOrFlat(__m128d p, __m128d a, __m128d b) {
    const __m128d rising = _mm_and_pd(_mm_cmple_pd(a, p), _mm_cmple_pd(p, b));
    const __m128d falling = _mm_and_pd(_mm_cmple_pd(b, p), _mm_cmple_pd(p, a));
    return _mm_or_pd(_mm_cmpeq_pd(a, b), _mm_or_pd(rising, falling));
}

inline __m128d coordinates(const DPoint& p) {
    return _mm_loadu_pd(&p.x);
}

inline bool withinEnds(const DPoint& p, const DPoint& a, const DPoint& b, const DPoint& c,
                       const DPoint& d) {
    const __m128d place = _mm_set_pd(p.y, p.x);
    const __m128d inFirst = betweenOrFlat(place, coordinates(a), coordinates(b));
    const __m128d inSecond = betweenOrFlat(place, coordinates(c), coordinates(d));
    return _mm_movemask_pd(_mm_and_pd(inFirst, inSecond)) == 3;
}

#else

inline bool withinEnds(const DPoint& p, const DPoint& a, const DPoint& b, const DPoint& c,
                       const DPoint& d) {
    return withinEndsPlainly(p, a, b, c, d);
}

#endif

} // namespace zarnex::detail
