#include "stitchplan/outlines.h"

#include <zarnex/geometry/lineIntersection.h>
#include <zarnex/geometry/orientation.h>
#include <zarnex/geometry/projection.h>
#include <zarnex/geometry/tolerance.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <list>
#include <utility>

namespace stitchplan {

namespace {

/// What is nearer than 1 micrometre touches.
constexpr double touching = 0.01;

/// An edge and where it stands.
struct PlacedEdge : Edge {
    std::size_t outline;
    int corner; ///< at `from`
    int next;   ///< corner, at `to`

    double left() const {
        return (std::min)(from.x, to.x);
    }
    double right() const {
        return (std::max)(from.x, to.x);
    }
    bool isBeside(const PlacedEdge& other) const {
        return (std::max)(from.y, to.y) + touching < (std::min)(other.from.y, other.to.y) ||
               (std::max)(other.from.y, other.to.y) + touching < (std::min)(from.y, to.y);
    }
};

std::vector<PlacedEdge> edgesOf(const std::vector<Outline>& outlines) {
    std::vector<PlacedEdge> edges;
    for (std::size_t i = 0; i < outlines.size(); ++i)
        for (int corner = 0; corner < outlines[i].corners.length(); ++corner)
            edges.push_back({outlines[i].edge(corner), i, corner, outlines[i].next(corner)});
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

bool touchWrongly(const PlacedEdge& a, const PlacedEdge& b) {
    if (a.isBeside(b))
        return false;
    if (a.outline == b.outline && a.next == b.corner)
        return foldsBack(a, b);
    if (a.outline == b.outline && b.next == a.corner)
        return foldsBack(b, a);
    return touch(a, b);
}

// Throws for the first edge found that touches another one. Edges are taken from left to
// right and compared with those that reach as far.
void refuseTouching(const std::vector<Outline>& outlines) {
    std::vector<PlacedEdge> edges = edgesOf(outlines);
    std::sort(edges.begin(), edges.end(),
              [](const PlacedEdge& a, const PlacedEdge& b) { return a.left() < b.left(); });
    std::vector<const PlacedEdge*> reaching;
    for (const PlacedEdge& edge : edges) {
        const auto isPassed = [&edge](const PlacedEdge* other) {
            return other->right() < edge.left() - touching;
        };
        reaching.erase(std::remove_if(reaching.begin(), reaching.end(), isPassed), reaching.end());
        for (const PlacedEdge* other : reaching) {
            if (!touchWrongly(edge, *other))
                continue;
            const PlacedEdge& later =
                std::pair(edge.outline, edge.corner) > std::pair(other->outline, other->corner)
                    ? edge
                    : *other;
            throw MotifError(outlines[later.outline].lines[static_cast<std::size_t>(later.corner)],
                             edge.outline == other->outline
                                 ? "the outline touches itself near this point"
                                 : "the outline touches another near this point");
        }
        reaching.push_back(&edge);
    }
}

double lengthOf(const Outline& outline) {
    double sum = 0.0;
    for (int i = 0; i < outline.corners.length(); ++i)
        sum += outline.corners[i].distance(outline.corners[outline.next(i)]);
    return sum;
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
    bool inside = false;
    for (int i = 0; i < outline.corners.length(); ++i) {
        const auto [a, b] = outline.edge(i);
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

void checkAndOrient(std::vector<Outline>& outlines) {
    for (Outline& outline : outlines) {
        const int last = outline.corners.length() - 1;
        if (last > 0 && isEqual(outline.corners[0], outline.corners[last], touching)) {
            outline.corners.remove(last);
            outline.lines.pop_back();
        }
        if (outline.corners.length() < 3)
            throw MotifError(outline.line, "an outline of fewer than three corners");
        if (lengthOf(outline) < 4.0 * shortestStitch)
            throw MotifError(outline.line, "an outline of less than 1.2 mm all round");
    }
    refuseTouching(outlines);
    for (Outline& outline : outlines) {
        for (const Outline& other : outlines)
            if (&other != &outline && isInside(outline.corners[0], other))
                ++outline.depth;
        if (runsCounterClockwise(outline) == outline.isHole())
            reverse(outline);
    }
}

std::vector<std::vector<Outline>> shapesOf(const std::vector<Outline>& outlines) {
    std::vector<std::vector<Outline>> shapes;
    for (const Outline& outer : outlines) {
        if (outer.isHole())
            continue;
        shapes.push_back({outer});
        for (const Outline& hole : outlines)
            if (hole.depth == outer.depth + 1 && isInside(hole.corners[0], outer))
                shapes.back().push_back(hole);
    }
    return shapes;
}

} // namespace stitchplan
