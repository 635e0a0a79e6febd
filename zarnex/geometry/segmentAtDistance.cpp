#include <zarnex/geometry/segmentAtDistance.h>

#include <cmath>

namespace {

bool isOnSegment(double t) {
    return t >= 0.0 && t <= 1.0;
}

} // namespace

PointFoundResult pointOnLineSegmentWithDistanceAway(DPoint& first, DPoint& second, double r,
                                                    const DPoint& centre, const DPoint& a,
                                                    const DPoint& b) {
    constexpr double onCircleWithin = 0.5;
    const double fromA = a.distance(centre);
    const double fromB = b.distance(centre);
    if (IS_EQUAL(fromB, r, onCircleWithin)) {
        first = b;
        return PointFoundOne;
    }
    if (IS_EQUAL(fromA, r, onCircleWithin)) {
        first = a;
        return PointFoundOne;
    }
    if ((fromB - r) * (fromA - r) > 0.0)
        return PointFoundNone;

    // |a + t * d - centre| = r as qa * t^2 + qb * t + qc = 0.
    const DVector d = b - a;
    const DVector f = a - centre;
    const double qa = d * d;
    const double qb = 2.0 * (d * f);
    const double qc = f * f - r * r;
    if (IS_ZERO(qa))
        return PointFoundNone;
    const double disc = qb * qb - 4.0 * qa * qc;
    if (IS_ZERO(disc)) {
        const double t = -0.5 * qb / qa;
        if (!isOnSegment(t))
            return PointFoundNone;
        first = a + d * t;
        return PointFoundOne;
    }
    if (disc < 0.0)
        return PointFoundNone;
    const double root = std::sqrt(disc);
    const double late = 0.5 * (-qb + root) / qa;
    const double early = 0.5 * (-qb - root) / qa;
    if (isOnSegment(early) && isOnSegment(late)) {
        const DPoint end = a + d * late;
        first = a + d * early;
        second = end;
        return PointFoundTwo;
    }
    if (!isOnSegment(early) && !isOnSegment(late))
        return PointFoundNone;
    first = a + d * (isOnSegment(early) ? early : late);
    return PointFoundOne;
}
