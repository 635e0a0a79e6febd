#include "stitchplan/outlines.h"

#include <zarnex/geometry/lineIntersection.h>
#include <zarnex/geometry/orientation.h>
#include <zarnex/geometry/projection.h>
#include <zarnex/geometry/tolerance.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <list>
#include <numeric>

namespace stitchplan {

namespace {

/// What is nearer than 1 micrometre touches.
constexpr double touching = 0.01;

constexpr std::size_t mostCorners = 20000;

struct Edge {
    DPoint from;
    DPoint to;

    double left() const {
        return (std::min)(from.x, to.x);
    }
    double right() const {
        return (std::max)(from.x, to.x);
    }
    bool isBeside(const Edge& other) const {
        return (std::max)(from.y, to.y) + touching < (std::min)(other.from.y, other.to.y) ||
               (std::max)(other.from.y, other.to.y) + touching < (std::min)(from.y, to.y);
    }
};

std::vector<Edge> edgesOf(const Outline& outline) {
    const int count = outline.corners.length();
    std::vector<Edge> edges;
    for (int i = 0; i < count; ++i)
        edges.push_back({outline.corners[i], outline.corners[(i + 1) % count]});
    return edges;
}

bool isOn(const DPoint& p, const Edge& edge) {
    return distanceToLineSegment(edge.from, edge.to, p) < touching;
}

bool touch(const Edge& a, const Edge& b) {
    return isContainedIntersect(a.from, a.to, b.from, b.to) || isOn(a.from, b) || isOn(a.to, b) ||
           isOn(b.from, a) || isOn(b.to, a);
}

// Whether the outline turns straight back where edge `a` ends and `b` begins.
bool foldsBack(const Edge& a, const Edge& b) {
    return isOn(a.from, b) || isOn(b.to, a);
}

// The first corner of an edge that touches another one; -1 if none does. Edges are taken
// from left to right and compared with those that reach as far.
int touchingCorner(const Outline& outline) {
    const std::vector<Edge> edges = edgesOf(outline);
    const std::size_t count = edges.size();
    std::vector<std::size_t> byLeft(count);
    std::iota(byLeft.begin(), byLeft.end(), std::size_t(0));
    std::sort(byLeft.begin(), byLeft.end(),
              [&edges](std::size_t a, std::size_t b) { return edges[a].left() < edges[b].left(); });
    std::vector<std::size_t> reaching;
    for (const std::size_t i : byLeft) {
        const double left = edges[i].left() - touching;
        const auto isPassed = [&](std::size_t j) { return edges[j].right() < left; };
        reaching.erase(std::remove_if(reaching.begin(), reaching.end(), isPassed), reaching.end());
        for (const std::size_t j : reaching) {
            if (edges[i].isBeside(edges[j]))
                continue;
            const bool follows = j == (i + 1) % count;
            const bool precedes = i == (j + 1) % count;
            const bool wrong = follows    ? foldsBack(edges[i], edges[j])
                               : precedes ? foldsBack(edges[j], edges[i])
                                          : touch(edges[i], edges[j]);
            if (wrong)
                return static_cast<int>((std::max)(i, j));
        }
        reaching.push_back(i);
    }
    return -1;
}

bool runsCounterClockwise(const Outline& outline) {
    std::list<DPoint> corners;
    for (int i = 0; i < outline.corners.length(); ++i)
        corners.push_back(outline.corners[i]);
    int valid = 0;
    const bool counterClockwise = isCCWSTDListDPoint(valid, corners) != 0;
    if (!valid)
        throw MotifError(outline.lines.front(), "an outline without area");
    return counterClockwise;
}

void reverse(Outline& outline) {
    const int count = outline.corners.length();
    for (int i = 0; i < count / 2; ++i)
        std::swap(outline.corners[i], outline.corners[count - 1 - i]);
    std::reverse(outline.lines.begin(), outline.lines.end());
}

bool isInside(const DPoint& p, const Outline& outline) {
    const int count = outline.corners.length();
    bool inside = false;
    for (int i = 0; i < count; ++i) {
        const DPoint& a = outline.corners[i];
        const DPoint& b = outline.corners[i + 1 < count ? i + 1 : 0];
        if ((a.y <= p.y) == (b.y <= p.y))
            continue;
        const bool isLeftOf = crossProd(b, a, p, a) > 0.0;
        if (isLeftOf == (b.y > a.y)) // the edge passes to the right of p
            inside = !inside;
    }
    return inside;
}

} // namespace

void addCorner(Outline& outline, const DPoint& corner, int line) {
    const int count = outline.corners.length();
    if (count > 0 && isEqual(outline.corners[count - 1], corner, touching))
        return;
    outline.corners.add(corner);
    outline.lines.push_back(line);
}

Outline circleOutline(const DPoint& centre, double radius, int line) {
    constexpr double deviation = 0.2;
    constexpr double pi = 3.14159265358979323846;
    constexpr int fewest = 24; // so that none of its corners is sharp
    const double share = 1.0 - deviation / (std::max)(radius, deviation);
    const int count = (std::max)(fewest, static_cast<int>(std::ceil(pi / std::acos(share))));
    Outline outline;
    outline.line = line;
    for (int i = 0; i < count; ++i) {
        const double angle = 2.0 * pi * i / count;
        addCorner(outline, centre + DVector(std::cos(angle), std::sin(angle)) * radius, line);
    }
    return outline;
}

void transform(std::vector<Outline>& outlines, const Z2DTrans& by) {
    for (Outline& outline : outlines)
        for (int i = 0; i < outline.corners.length(); ++i)
            outline.corners[i] *= by;
}

void settle(std::vector<Outline>& outlines) {
    std::size_t corners = 0;
    for (Outline& outline : outlines) {
        const int last = outline.corners.length() - 1;
        if (last > 0 && isEqual(outline.corners[0], outline.corners[last], touching)) {
            outline.corners.remove(last);
            outline.lines.pop_back();
        }
        if (outline.corners.length() < 3)
            throw MotifError(outline.line, "an outline of fewer than three corners");
        corners += outline.lines.size();
        if (corners > mostCorners)
            throw MotifError(outline.line, "more than 20000 corners");
        if (const int corner = touchingCorner(outline); corner >= 0)
            throw MotifError(outline.lines[static_cast<std::size_t>(corner)],
                             "the outline touches itself near this point");
    }
    for (Outline& outline : outlines) {
        for (const Outline& other : outlines)
            if (&other != &outline && isInside(outline.corners[0], other))
                outline.isHole = !outline.isHole;
        if (runsCounterClockwise(outline) == outline.isHole)
            reverse(outline);
    }
}

bool isInside(const DPoint& p, const std::vector<Outline>& outlines) {
    bool inside = false;
    for (const Outline& outline : outlines)
        inside = inside != isInside(p, outline);
    return inside;
}

} // namespace stitchplan
