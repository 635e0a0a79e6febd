#include "stitchplan/runningStitch.h"

#include <zarnex/containers/ZList.h>
#include <zarnex/geometry/segmentAtDistance.h>

#include <algorithm>
#include <cmath>

namespace stitchplan {

namespace {

// Whether the way through `at` turns by more than 20 degrees.
bool isSharp(const DPoint& before, const DPoint& at, const DPoint& after) {
    constexpr double cosineOf20Degrees = 0.9396926207859084;
    return (at - before).normalize() * (after - at).normalize() < cosineOf20Degrees;
}

double lengthOf(const ZList<DPoint>& way) {
    double sum = 0.0;
    const DPoint* before = nullptr;
    for (const DPoint& point : way) {
        if (before != nullptr)
            sum += (point - *before).length();
        before = &point;
    }
    return sum;
}

// Sews along the way, whose first point the needle has reached.
void sewWay(const ZList<DPoint>& way, double stitchLength, StitchPath& path) {
    const double length = lengthOf(way);
    const double fewest = *way.begin() == *way.rbegin() ? 3.0 : 1.0; // round a tiny circle
    const double count = (std::max)(std::ceil(length / stitchLength - 1e-6), fewest);
    const double step = length / count;
    double toGo = step; // to the next needle
    const DPoint* from = nullptr;
    double sewn = 1.0;
    for (const DPoint& to : way) {
        DPoint needle;
        while (from != nullptr && sewn < count &&
               pointOnLineSegmentWithDistanceAway(needle, toGo, *from, to)) {
            path.sewTo(needle);
            toGo += step;
            ++sewn;
        }
        if (from != nullptr)
            toGo -= (to - *from).length();
        from = &to;
    }
    path.sewTo(*from);
}

} // namespace

void sewAlong(const Outline& outline, double stitchLength, StitchPath& path) {
    const int count = outline.corners.length();
    path.cutThread();
    path.sewTo(outline.corners[0]);
    ZList<DPoint> way{outline.corners[0]};
    for (int i = 1; i <= count; ++i) {
        const DPoint& corner = outline.corners[i % count];
        way.add(corner);
        if (i == count ||
            isSharp(outline.corners[i - 1], corner, outline.corners[(i + 1) % count])) {
            sewWay(way, stitchLength, path);
            way = {corner};
        }
    }
}

} // namespace stitchplan
