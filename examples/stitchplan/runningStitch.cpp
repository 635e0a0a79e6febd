#include "stitchplan/runningStitch.h"

#include <zarnex/containers/ZXArray.h>
#include <zarnex/geometry/projection.h>
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

/// A piece of an outline, and how far each of its points is along it.
class Way {
public:
    explicit Way(const DPoint& start) {
        add(start);
    }

    void add(const DPoint& point) {
        along_.add(points_.length() == 0 ? 0.0 : length() + last().distance(point));
        points_.add(point);
    }

    const DPoint& last() const {
        return points_[points_.length() - 1];
    }

    double length() const {
        return along_[along_.length() - 1];
    }

    int points() const {
        return points_.length();
    }

    const DPoint& point(int i) const {
        return points_[i];
    }

    double along(int i) const {
        return along_[i];
    }

    /// The point at `distance` along the way, which is beyond point `i` and not beyond the
    /// next.
    DPoint at(double distance, int i) const {
        DPoint found = points_[i + 1];
        pointOnLineSegmentWithDistanceAway(found, distance - along_[i], points_[i], points_[i + 1]);
        return found;
    }

private:
    ZXArray<DPoint> points_;
    ZXArray<double> along_;
};

// Sews along the way, whose first point the needle has reached.
void sewWay(const Way& way, double stitchLength, StitchPath& path) {
    constexpr double mostBeside = 1.0;
    const double count = std::ceil(way.length() / stitchLength - 1e-6);
    const double step = way.length() / (std::max)(count, 1.0);
    double reached = 0.0;
    int behind = 0; // the last point of the way that is reached
    while (way.length() - reached > 1e-6) {
        double ahead = step;
        DPoint needle;
        int next = behind;
        for (bool isNear = false; !isNear; ahead /= 2.0) {
            const double goal = (std::min)(reached + ahead, way.length());
            for (next = behind; next + 2 < way.points() && way.along(next + 1) < goal;)
                ++next;
            needle = way.length() - goal > 1e-6 ? way.at(goal, next) : way.last();
            isNear = true;
            for (int i = behind + 1; isNear && i <= next; ++i)
                isNear =
                    ahead <= shortestStitch ||
                    distanceToLineSegment(path.lastNeedle(), needle, way.point(i)) <= mostBeside;
            if (isNear)
                reached = goal;
        }
        path.sewTo(needle);
        behind = next;
    }
    path.sewTo(way.last());
}

} // namespace

void sewAlong(const Outline& outline, double stitchLength, StitchPath& path) {
    path.cutThread();
    path.sewTo(outline.corners[0]);
    Way way(outline.corners[0]);
    for (int i = 0; i < outline.corners.length(); ++i) {
        const int next = outline.next(i);
        const DPoint& corner = outline.corners[next];
        way.add(corner);
        if (next == 0 || isSharp(outline.corners[i], corner, outline.corners[outline.next(next)])) {
            sewWay(way, stitchLength, path);
            way = Way(corner);
        }
    }
}

} // namespace stitchplan
