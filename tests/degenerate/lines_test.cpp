#include <zarnex/geometry/angles.h>
#include <zarnex/geometry/lineFit.h>
#include <zarnex/geometry/lineIntersection.h>
#include <zarnex/geometry/lineTests.h>
#include <zarnex/geometry/orientation.h>
#include <zarnex/geometry/projection.h>
#include <zarnex/geometry/segmentAtDistance.h>
#include <zarnex/geometry/segmentOverlap.h>

#include "grid.h"

#include <cstddef>
#include <initializer_list>
#include <sstream>
#include <string>

namespace {

constexpr double shortPi = 3.141592654; // that of angles
const double tolerances[] = {0.0, 1e-9, 0.25, HUGE_VAL, NAN};
const double radii[] = {-1.0, 0.0, 1e-10, 2.5, 1e160, HUGE_VAL, NAN};

const DPoint untouched(99, 77);
const IPoint untouchedInts(99, 77);

bool isUntouched(const DPoint& p) {
    return p.x == untouched.x && p.y == untouched.y;
}

DPoint mirrored(const DPoint& p) {
    return DPoint(p.y, p.x);
}

std::string shown(std::initializer_list<DPoint> points) {
    std::ostringstream text;
    text.precision(17);
    for (const DPoint& p : points)
        text << "(" << p.x << ", " << p.y << ") ";
    return text.str();
}

// Two lines: exchanging them, or x and y, changes nothing.
void expectIntersection(const DPoint& a, const DPoint& b, const DPoint& c, const DPoint& d) {
    DPoint out = untouched, exchanged = untouched, turned = untouched, aliased = a;
    const int parallels = intersect(out, a, b, c, d);
    EXPECT_TRUE(parallels == 0 || (parallels == 1 && isUntouched(out)));
    EXPECT_EQ(intersect(&exchanged, c, d, a, b), parallels);
    EXPECT_EQ(intersect(turned, mirrored(a), mirrored(b), mirrored(c), mirrored(d)), parallels);
    EXPECT_EQ(intersect(aliased, aliased, b - a, c, d - c), parallels);
    EXPECT_TRUE(samePlace(exchanged, out));
    EXPECT_TRUE(parallels != 0 || samePlace(mirrored(turned), out));
    EXPECT_TRUE(samePlace(aliased, parallels == 0 ? out : a));
    const int meet = isContainedIntersect(a, b, c, d);
    EXPECT_EQ(meet, isContainedIntersect(c, d, a, b));
    EXPECT_EQ(meet, isContainedIntersect(mirrored(a), mirrored(b), mirrored(c), mirrored(d)));
    EXPECT_TRUE(meet == 0 || (meet == 1 && parallels == 0));
}

void expectCrossProduct(const DPoint& a, const DPoint& b, const DPoint& c, const DPoint& d) {
    const double k = crossProd(a, b, c, d);
    EXPECT_TRUE(same(k, (b - a).cross(d - c)) && same(k, -crossProd(c, d, a, b)));
    EXPECT_TRUE(same(k, crossProduct(&a, &b, &c, &d)));
}

void expectSegments(DPoint a, DPoint b, DPoint c, DPoint d) {
    for (const double tol : tolerances) {
        EXPECT_EQ(parallel(&a, &b, &c, &d, tol), parallel(&b, &a, &d, &c, tol));
        const int onOne = collinear(a, b, c, d, tol, 0.25);
        EXPECT_TRUE(onOne == 0 || onOne == 1);
    }
    EXPECT_EQ(collinear(&a, &b, &c, &d), collinear(a, b, c, d, 0.1, 0.017453292522222223));
    DPoint start = untouched, end = untouched;
    const int overlap = findOverlapLine(start, end, a, b, c, d);
    EXPECT_TRUE(overlap <= 0 && overlap >= -4);
    EXPECT_TRUE(overlap == 0 || (isUntouched(start) && isUntouched(end)));
}

void expectPlaceOnSegment(const DPoint& p, const DPoint& a, const DPoint& b) {
    for (const double tol : tolerances) {
        const int place = pointOnLineSegment(p, a, b, tol);
        EXPECT_TRUE(place >= 0 && place <= 3);
        const int on = quickCheckPointOnLine(p, a, b, tol);
        EXPECT_EQ(on, quickCheckPointOnLine(p, b, a, tol)) << "the ends, exchanged";
        EXPECT_EQ(on, quickCheckPointOnLine(p, a, b, tol, 0.0));
        EXPECT_GE(quickCheckPointOnLine(p, a, b, tol, 0.5), on);
    }
    EXPECT_TRUE(isSize(distanceToLineSegment(a, b, p)) && isSize(distanceToVector(a, b, p)));
    EXPECT_TRUE(isSize(squaredDistanceToLineSegment(a, b, p)));
    EXPECT_TRUE(isSize(squaredDistanceToVector(a, b, p)));
    DPoint foot = untouched, foot2 = untouched;
    const int noLine = projectPointOntoLine(foot, p, a, b);
    const int outside = projectPointOntoLineSegment(foot2, p, a, b);
    EXPECT_FALSE(noLine == 1 && !samePlace(foot, a));
    EXPECT_FALSE(outside == 1 && !samePlace(foot2, a) && !samePlace(foot2, b));
    EXPECT_FALSE(outside == 0 && !samePlace(foot, foot2));
    EXPECT_TRUE(noLine == 0 || outside == 1);
    for (const double r : radii) {
        DPoint first = untouched, second = untouched, out = untouched;
        const int found = pointOnLineSegmentWithDistanceAway(first, second, r, p, a, b);
        EXPECT_TRUE(found >= 0 && found <= 2);
        EXPECT_TRUE(found == PointFoundTwo || isUntouched(second));
        EXPECT_TRUE(found != PointFoundNone || isUntouched(first));
        EXPECT_FALSE(r < -0.5 && found != PointFoundNone);
        EXPECT_TRUE(pointOnLineSegmentWithDistanceAway(out, r, a, b) == 1 || isUntouched(out));
    }
}

// Turns and angles, of which those of the way back are the opposite.
void expectTurn(const DPoint& a, const DPoint& b, const DPoint& c) {
    const int turn = Are3PointsCCW(a, b, c);
    EXPECT_EQ(turn, -Are3PointsCCW(c, b, a));
    EXPECT_EQ(turn, -Are3PointsCCW(mirrored(a), mirrored(b), mirrored(c)));
    const double k = (b - a).normalize().cross((c - b).normalize());
    EXPECT_EQ(turn, (k > 0.0) - (k < 0.0));
    for (const double radians : {angleRad(a, b, c), angleRad(c, b, a)})
        EXPECT_FALSE(std::fabs(radians) > shortPi);
    EXPECT_TRUE(same(angle(a, b, c), angleRad(a, b, c) / 0.017453292522222223));
}

TEST(DegenerateLines, Pairs) {
    for (const DPoint& a : places()) {
        for (const DPoint& b : places()) {
            SCOPED_TRACE(shown({a, b}));
            const double direction = atan3(a.y, b.x);
            EXPECT_FALSE(std::fabs(direction) > shortPi);
            for (const double tol : numbers())
                EXPECT_EQ(isPointInBox(a, b.x, b.y, 1, -1, tol),
                          isPointInBox(a, 1, -1, b.x, b.y, tol));
        }
    }
    DPoint a(0, 0), b(1, 0);
    EXPECT_TRUE(intersect(static_cast<DPoint*>(nullptr), a, b, b, a) == 1 &&
                parallel(&a, &b, &a, nullptr, 1) == 0 && collinear(&a, nullptr, &a, &b) == 0);
}

TEST(DegenerateLines, Triples) {
    for (const DPoint& a : places()) {
        for (const DPoint& b : places()) {
            for (const DPoint& c : places()) {
                SCOPED_TRACE(shown({a, b, c}));
                expectTurn(a, b, c);
                expectPlaceOnSegment(a, b, c);
                double k[] = {1, 2, 3};
                EXPECT_EQ(fitToLine({a, b, c}, k[0], k[1], k[2]), 0);
                DVector dir(1, 2);
                DPoint onLine = untouched;
                const int refused = fitToLine({a, b, c}, dir, onLine);
                EXPECT_TRUE(refused == 0 || refused == -1);
                EXPECT_TRUE(std::fabs(dir.x) == 1 && dir.y == 2 * dir.x);
                EXPECT_TRUE(refused == 0 || dir.x == 1);
                for (const double t : {a.x, b.y})
                    intersect(onLine, a, DVector(t, c.y), b, DVector(c.x, t));
            }
        }
    }
}

TEST(DegenerateLines, FoursOfPoints) {
    for (const DPoint& a : places()) {
        for (const DPoint& b : places()) {
            for (const DPoint& c : places()) {
                for (const DPoint& d : places()) {
                    expectIntersection(a, b, c, d);
                    expectCrossProduct(a, b, c, d);
                    expectSegments(a, b, c, d);
                    int valid = 7;
                    const int left = isCCWSTDListDPoint(valid, {a, b, c, d});
                    EXPECT_TRUE(valid == 1 || (valid == 0 && left == 0));
                    if (HasFailure()) {
                        FAIL() << shown({a, b, c, d});
                    }
                }
            }
        }
    }
}

TEST(DegenerateLines, IntegersOf32And16Bits) {
    const std::vector<IPoint>& grid = intPlaces();
    IPoint previous(1, -1);
    for (const IPoint& a : grid) {
        for (const IPoint& b : grid) {
            for (const IPoint& c : grid) {
                const IPoint d = previous;
                previous = grid[(static_cast<std::size_t>(&c - grid.data()) * 7 + 3) % grid.size()];
                IPoint out = untouchedInts, exchanged = untouchedInts, byVector = untouchedInts;
                const int none = intersect(out, a, b, c, d);
                EXPECT_TRUE(none == 0 || (none == 1 && out == untouchedInts));
                EXPECT_EQ(intersect(&exchanged, c, d, a, b), none);
                EXPECT_TRUE(exchanged == out);
                intersect(byVector, a, IVector(b.x, b.y), c, IVector(d.x, d.y));
                EXPECT_EQ(crossProduct(&a, &b, &c, &d), crossProduct(&b, &a, &d, &c));
                const int place = pointOnLineSegment(a, b, c);
                EXPECT_TRUE(place >= 0 && place <= 3);
                EXPECT_TRUE(place == 2 || (a != b && a != c));
                for (const double radians : {angleRad(a, b, c), angle(a, b, c) / 58})
                    EXPECT_FALSE(std::fabs(radians) > shortPi);
            }
        }
    }
    for (const auto& a : shortPlaces())
        for (const auto& b : shortPlaces())
            for (const auto& c : shortPlaces())
                EXPECT_FALSE(std::fabs(angleRad(a, b, c)) > shortPi ||
                             std::fabs(angle(c, a, b)) > 180.0);
}

} // namespace
