#include <zarnex/geometry/internal/withinEnds.h>
#include <zarnex/geometry/lineFit.h>
#include <zarnex/geometry/lineIntersection.h>
#include <zarnex/geometry/lineTests.h>
#include <zarnex/geometry/projection.h>
#include <zarnex/geometry/segmentAtDistance.h>
#include <zarnex/geometry/segmentOverlap.h>

#include "coordinates.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <limits>
#include <random>

namespace {

using Limits = std::numeric_limits<double>;
const DPoint unset(99, 99);

TEST(LineIntersection, IsTheExactQuotientForSmallIntegers) {
    std::mt19937 random(20240702);
    for (int round = 0; round < 20000; ++round) {
        SCOPED_TRACE(round);
        int k[8];
        for (int& coordinate : k)
            coordinate = static_cast<int>(random() % 17) - 8;
        const DPoint p(k[0], k[1]), q(k[4], k[5]);
        const DVector u(k[2], k[3]), v(k[6], k[7]);
        const IPoint ip(k[0], k[1]), iq(k[4], k[5]);
        const IVector iu(k[2], k[3]), iv(k[6], k[7]);
        DPoint out[2] = {unset, q};
        IPoint grid[2] = {IPoint(99, 99), iq};
        const double det = u.cross(v), along = (q - p).cross(v);
        EXPECT_EQ(intersect(out[0], p, u, q, v), det == 0);
        EXPECT_EQ(intersect(&out[1], p, p + u, out[1], q + v), det == 0);
        EXPECT_EQ(intersect(grid[0], ip, iu, iq, iv), det == 0);
        EXPECT_EQ(intersect(&grid[1], ip, ip + iu, grid[1], iq + iv), det == 0);
        for (int form = 0; form < 2; ++form) {
            const DPoint meet = det != 0 ? (p * det + u * along) / det : form == 0 ? unset : q;
            EXPECT_TRUE(at(out[form], meet.x, meet.y));
            EXPECT_TRUE(at(grid[form], std::round(meet.x), std::round(meet.y)));
        }
    }
}

TEST(LineIntersection, EndsAtTheBoundOfTheDeterminantAndOfInt) {
    DPoint out;
    const DPoint p(0, 0), q(1, 0);
    EXPECT_EQ(intersect(out, p, DVector(1, 0), q, DVector(0, 1e-14)), 0);
    EXPECT_EQ(intersect(out, p, DVector(1, 0), q, DVector(0, -0.99e-14)), 1);
    EXPECT_EQ(intersect(static_cast<DPoint*>(nullptr), p, q, p, DPoint(0, 1)), 1);

    IPoint grid(99, 99); // 2147483647.5 does not fit, -2147483647.5 does
    const IVector steep(1, 2), level(1, 0);
    EXPECT_EQ(intersect(grid, IPoint(INT_MAX, 0), steep, IPoint(0, 1), level), 1);
    EXPECT_EQ(intersect(grid, IPoint(INT_MIN, 0), steep, IPoint(0, -1), level), 1);
    EXPECT_TRUE(at(grid, 99, 99));
    EXPECT_EQ(intersect(grid, IPoint(INT_MIN, 0), steep, IPoint(0, 1), level), 0);
    EXPECT_TRUE(at(grid, INT_MIN, 1));
    // Differences of 2^32 - 1: the line crosses x = 0 just above 0.5.
    const IPoint west(INT_MIN, 0), east(INT_MAX, 1), south(0, INT_MIN), north(0, INT_MAX);
    EXPECT_EQ(intersect(&grid, west, east, south, north), 0);
    EXPECT_TRUE(at(grid, 0, 1));
}

TEST(ContainedIntersection, IsThatOfSidesAndNotMissedByRounding) {
    // Above 0 if a and b lie on the same side of the line cd.
    const auto sameSide = [](const DPoint& a, const DPoint& b, const DPoint& c, const DPoint& d) {
        return (d - c).cross(a - c) * (d - c).cross(b - c);
    };
    for (int code = 0; code < 9 * 9 * 9 * 9; ++code) {
        const auto pick = [code](int n) { return DPoint(code / n % 9 % 3, code / n % 9 / 3); };
        const DPoint a = pick(1), b = pick(9), c = pick(81), d = pick(729);
        const bool meet =
            (b - a).cross(d - c) != 0 && sameSide(c, d, a, b) <= 0 && sameSide(a, b, c, d) <= 0;
        EXPECT_EQ(isContainedIntersect(a, b, c, d), meet) << code;
    }
    DPoint p;
    const DPoint a(0.2, -0.8), b(0.2, 0.7), c(0.6, 0.5), d(-0.3, 0);
    intersect(p, a, b, c, d);
    EXPECT_NE(p.x, a.x) << "not the case that is meant";
    const auto turned = [](const DPoint& q) { return DPoint(q.y, q.x); };
    EXPECT_TRUE(isContainedIntersect(a, b, c, d));
    EXPECT_TRUE(isContainedIntersect(turned(c), turned(d), turned(b), turned(a)));
}

// The comparison of both coordinates at once, by the plain one.
TEST(ContainedIntersection, ComparesEveryValueWithTheEndsAsOneByOne) {
    const double values[] = {-1.0, -0.0, 0.0, 1.0, HUGE_VAL, -HUGE_VAL, std::nan("")};
    std::mt19937 random(12);
    int within = 0;
    for (int i = 0; i < 200000; ++i) {
        const auto pick = [&] { return DPoint(values[random() % 7], values[random() % 7]); };
        const DPoint p = pick(), a = pick(), b = pick(), c = pick(), d = pick();
        const bool expected = zarnex::detail::withinEndsPlainly(p, a, b, c, d);
        within += expected;
        ASSERT_EQ(zarnex::detail::withinEnds(p, a, b, c, d), expected) << i;
    }
    EXPECT_GT(within, 1000);
}

TEST(Collinear, MeasuresOneEndAndTheSineOfTheAngle) {
    // The end of ab on the x axis, c, d, the tolerance of the angle; as ab, cd and as cd, ab.
    const double rows[][8] = {{4, 6, 0.5, 9, 0.5, 0, 1, 1},     {4, 6, 0.51, 9, 0.51, 0, 0, 0},
                              {7, 4, 3, 8, 0, 0.6, 1, 0},       {7, 4, 3, 8, 0, 0.59, 0, 0},
                              {4, 9, 0.5, 9, 1, 0, 1, 1},       {4, 9, 0.6, 9, 0.2, 0, 0, 0},
                              {1, 96, -3, 100, 0, 0.625, 1, 0}, {0.3, 70, 80, 70, 80.3, 0, 1, 1}};
    for (const auto& [end, cx, cy, dx, dy, angleTol, expected, swapped] : rows) {
        const DPoint o(0, 0), b(end, 0), c(cx, cy), d(dx, dy);
        EXPECT_EQ(collinear(o, b, c, d, 0.5, angleTol), expected) << cx << " " << cy;
        EXPECT_EQ(collinear(c, d, o, b, 0.5, angleTol), swapped) << cx << " " << cy;
    }
    DPoint a(0, 0), b(10, 0), tenth(10, 0.1), off(10, 0.11), low(-5, 0.087279), high(-5, 0.08728);
    EXPECT_TRUE(collinear(&a, &b, &a, &tenth) && collinear(&a, &b, &a, &low));
    EXPECT_FALSE(collinear(&a, &b, &a, &off) || collinear(&a, &b, &a, &high));
    EXPECT_FALSE(collinear(&a, &b, &a, nullptr));
}

TEST(Parallel, BoundsTheSineEitherWayRound) {
    DPoint a(0, 0), b(7, 0), c(1, 1), d(5, 4), dot(0, 0.9e-9), dash(0, 1.1e-9);
    EXPECT_TRUE(parallel(&a, &b, &c, &d, 0.6) && parallel(&a, &b, &d, &c, 0.6));
    EXPECT_FALSE(parallel(&a, &b, &c, &d, 0.59) || parallel(&a, &b, &d, &c, 0.59));
    EXPECT_TRUE(parallel(&a, &b, &a, &dot, -1) && parallel(&a, &dot, &a, &b, -1));
    EXPECT_FALSE(parallel(&a, &b, &a, &dash, 0.9) || parallel(nullptr, &b, &a, &dot, 1));
}

TEST(PointOnSegment, CodesFollowTheOrderAlongTheLine) {
    for (int code = 0; code < 16 * 16 * 16; ++code) {
        const auto pick = [code](int n) { return IPoint(code / n % 4, code / n % 16 / 4); };
        const IPoint p = pick(1), a = pick(16), b = pick(256);
        const IVector d = b - a, e = p - a;
        if (d.cross(e) != 0 && std::abs(d.x * (d.y - e.y)) == std::abs(d.y * (d.x - e.x)))
            continue; // mirror images have rows of their own
        const int expected = d.cross(e) != 0 ? 0 : d * e < 0 ? 1 : d * e > d * d ? 3 : 2;
        EXPECT_EQ(pointOnLineSegment(p, a, b), expected) << code;
        EXPECT_EQ(pointOnLineSegment(DPoint(p.x, p.y), DPoint(a.x, a.y), DPoint(b.x, b.y), 0.25),
                  a == b && p != a ? 0 : expected)
            << code;
    }
}

TEST(PointOnSegment, MirroredSlopesPassAndToleranceWidensOneEnd) {
    // In the last two, the segment is as long as the tolerance, or has no length that way.
    const double rows[][7] = {
        {8, 12, 0, 0, 10, 10, 3}, {6, 5, 0, 0, 8, 4, 3},      {4, 0.0625, 0, 0, 8, 0, 2},
        {-0.5, 0, 0, 0, 8, 0, 1}, {8.5, 0, 0, 0, 8, 0, 2},    {4, 0.07, 0, 0, 8, 0, 0},
        {-0.5, 0, 8, 0, 0, 0, 3}, {8.5, 0, 8, 0, 0, 0, 2},    {0.5, 0.5, 0, 0, 0, 0.4, 0},
        {0, -0.5, 0, 0, 0, 8, 1}, {0, 8.5, 0, 0, 0, 8, 2},    {0.2, 0.2, 0, 0, 0.4, 0, 2},
        {0, -0.5, 0, 8, 0, 0, 3}, {0, 8.5, 0, 8, 0, 0, 2},    {-0.1, 18, 0, 0, 0.4, 8, 3},
        {-1, 0, 0, 0, 0.5, 0, 2}, {0.6, 0.3, 0, 0, 0, 0.7, 2}};
    for (const auto& [px, py, ax, ay, bx, by, code] : rows)
        EXPECT_EQ(pointOnLineSegment(DPoint(px, py), DPoint(ax, ay), DPoint(bx, by), 0.5), code)
            << px << " " << py << " " << ax << " " << ay;
    const IPoint o(0, 0), least(INT_MIN, 0);
    EXPECT_EQ(pointOnLineSegment(IPoint(8, 12), o, IPoint(10, 10)), 3);
    EXPECT_EQ(pointOnLineSegment(IPoint(65536, 0), o, IPoint(65536, 65536)), 2) << "2^32 is 0";
    EXPECT_EQ(pointOnLineSegment(IPoint(INT_MIN, 2), least, IPoint(0, 1)), 3);
}

TEST(QuickCheck, IsAnEllipseAndTwoCircles) {
    // p, the end of ab on the x axis, all in tolerances; the result, relTol, the result with it.
    const double rows[][6] = {
        {5, 0.49, 10, 1, 0, 1},  {5, 0.51, 10, 0, 1e-9, 0}, {5, 0.51, 10, 0, 2e-9, 1},
        {11, 0, 10, 1, 0, 1},    {-1, 0, 10, 1, 0, 1},      {11.1, 0, 10, 0, 0, 0},
        {5, 1, 10, 0, 0.03, 0},  {5, 1, 10, 0, 0.05, 1},    {1e6, 0.9, 10, 0, 0.1, 1},
        {0.9, -1, 0, 0, 0.1, 1}, {0.5, 1.1, 0, 0, 0.1, 0},  {0.9, -1, 0, 0, 0, 0}};
    for (const auto& [x, y, end, found, relTol, foundAtSecond] : rows) {
        const DPoint p(x / 2, y / 2), a(0, 0), b(end / 2, 0);
        EXPECT_EQ(quickCheckPointOnLine(p, a, b, 0.5), found) << x << " " << y;
        EXPECT_EQ(quickCheckPointOnLine(p, a, b, 0.5, relTol), foundAtSecond) << x << " " << relTol;
    }
    // In the box about one end of a segment that is no line, and not in the other.
    const DPoint a(0, 0), b(3e-5, 0), p(-0.9e-6, 0.9e-6);
    EXPECT_TRUE(quickCheckPointOnLine(p, a, b, 1e-6, 0.1));
    EXPECT_TRUE(quickCheckPointOnLine(p, b, a, 1e-6, 0.1));
}

TEST(Projection, AgreesWithTheAreaOverTheLength) {
    std::mt19937 random(20240704);
    const auto pick = [&random] { return static_cast<int>(random() % 13) - 6; };
    for (int round = 0; round < 5000; ++round) {
        SCOPED_TRACE(round);
        const DPoint p(pick(), pick()), a(pick(), pick()), b(pick(), pick());
        const double squared = a.squaredDistance(b), s = (p - a) * (b - a);
        const double area = (b - a).cross(p - a);
        const bool outside = squared == 0 || s < 0 || s > squared;
        const DPoint end = squared > 0 && s > 0 ? b : a;
        const double toLine = squared == 0 ? a.squaredDistance(p) : area * area / squared;
        const double toSegment = outside ? end.squaredDistance(p) : toLine;
        EXPECT_NEAR(squaredDistanceToVector(a, b, p), toLine, 1e-12);
        EXPECT_NEAR(distanceToVector(a, b, p), std::sqrt(toLine), 1e-7);
        EXPECT_NEAR(squaredDistanceToLineSegment(a, b, p), toSegment, 1e-12);
        EXPECT_NEAR(distanceToLineSegment(a, b, p), std::sqrt(toSegment), 1e-7);
        const DPoint closest = closestToLineSegment(a, b, p);
        DPoint foot[] = {p, b};
        EXPECT_EQ(projectPointOntoLine(foot[0], foot[0], a, b), squared == 0);
        EXPECT_NEAR((foot[0] - a) * (b - a), s, 1e-12);
        EXPECT_NEAR(foot[0].squaredDistance(p), toLine, 1e-12);
        EXPECT_EQ(projectPointOntoLineSegment(foot[1], p, a, foot[1]), outside);
        EXPECT_TRUE(at(foot[1], closest.x, closest.y));
        EXPECT_TRUE(outside ? at(closest, end.x, end.y) : at(foot[0], foot[1].x, foot[1].y));
    }
}

TEST(Projection, EachFamilyHasABoundOfItsOwnForNoLine) {
    const struct {
        double length;
        int degenerate, closestIsA, toA, overlap;
    } rows[] = {{0.9e-11, 1, 1, 1, -1}, {1e-11, 1, 1, 0, -1},  {1.1e-9, 1, 1, 0, -4},
                {1.1e-7, 1, 0, 0, -4},  {3.1e-5, 1, 0, 0, -4}, {3.2e-5, 0, 0, 0, 0}};
    const DPoint p(3, 4), a(0, 0);
    for (const auto& [length, degenerate, closestIsA, toA, overlap] : rows) {
        SCOPED_TRACE(length);
        const DPoint b(length, 0);
        DPoint out[3];
        EXPECT_EQ(projectPointOntoLine(out[0], p, a, b), degenerate);
        EXPECT_NEAR(out[0].x, degenerate ? 0 : 3, 1e-12);
        projectPointOntoLineSegment(out[1], p, a, b);
        EXPECT_TRUE(at(out[1], degenerate ? 0 : length, 0));
        EXPECT_TRUE(at(closestToLineSegment(a, b, p), closestIsA ? 0 : length, 0));
        EXPECT_NEAR(distanceToVector(a, b, p), toA ? 5 : 4, 1e-12);
        EXPECT_EQ(findOverlapLine(out[2], out[2], a, b, a, p), overlap);
    }
}

TEST(Overlap, IsThatOfIntervalsOpenAtOneEnd) {
    std::mt19937 random(20240705);
    const auto pick = [&random] { return static_cast<int>(random() % 11) - 5; };
    for (int round = 0; round < 5000; ++round) {
        DPoint a(pick(), pick());
        const DVector step(pick(), 3);
        const int n = 1 + static_cast<int>(random() % 4), c = pick(), d = pick();
        DPoint b = a + step * n;
        const DPoint pc = a + step * c + step.ortho(pick()), pd = a + step * d + step.ortho(pick());
        const int low = (std::min)(c, d), high = (std::max)(c, d);
        const int result = low >= n ? -3 : high < 0 ? -2 : 0;
        const DPoint from = result != 0 ? b : a + step * (std::max)(low, 0);
        const DPoint to = result != 0 ? a : a + step * (std::min)(high, n);
        EXPECT_EQ(findOverlapLine(b, a, a, b, pc, pd), result) << round;
        EXPECT_TRUE(isEqual(b, from, 1e-12) && isEqual(a, to, 1e-12)) << round;
    }
}

TEST(AtDistance, EndsNearTheCircleComeFirstAndRoundingAloneFindsTwo) {
    constexpr double step = Limits::epsilon();
    // The radius, a, b, the result and the first point. In the last two rows b lies inside
    // by a rounding step, and the roots fall on it.
    const double rows[][8] = {
        {5, 0, 0, 10, 0, 1, 5, 0},
        {5, 4, 10, 4, 0, 1, 4, 3},
        {5, 0, 0, 5.5, 0, 1, 5.5, 0},
        {5, 0, 0, 5.75, 0, 1, 5, 0},
        {5, 4.5, 0, 10, 0, 1, 4.5, 0},
        {5, 4.5, 0, 0, -5.5, 1, 0, -5.5},
        {5, -5.75, 0, 5.75, 0, 2, 99, 99},
        {5, -1, 0, 1, 0, 2, 99, 99},
        {-5, 0, 0, 10, 0, 2, 99, 99},
        {3 / step + 2, -7 / step, 3 / step, 0, 3 / step, 1, 0, 3 / step},
        {4 / step + 4, 4 / step, 4 / step, -4 / step, 0, 0, 2.4 / step, 3.2 / step}};
    for (const auto& [r, ax, ay, bx, by, result, x, y] : rows) {
        SCOPED_TRACE(testing::Message() << r << " " << ax << " " << bx);
        const DPoint o(0, 0);
        DPoint first = unset, second = unset, a(ax, ay), b(bx, by);
        EXPECT_EQ(pointOnLineSegmentWithDistanceAway(first, second, r, o, a, b), result);
        EXPECT_TRUE(isEqual(first, DPoint(x, y), 1e-7 * std::fabs(r)));
        EXPECT_TRUE(isEqual(second, result == 0 ? b : unset, 1e-7 * std::fabs(r)));
        pointOnLineSegmentWithDistanceAway(b, a, r, o, a, b);
        EXPECT_TRUE(result == 2 || at(b, first.x, first.y));
        EXPECT_TRUE(result != 0 || at(a, second.x, second.y));
    }
}

TEST(AtDistance, FromTheStart) {
    const double rows[][5] = {{2.5, 10, 1, 1.5, 2},   {5, 5, 1, 3, 4},    {5.001, 5, 0, 99, 99},
                              {-1e-12, 5, 0, 99, 99}, {1e-9, 0, 1, 0, 0}, {1e-8, 1e-9, 0, 99, 99}};
    for (const auto& [dist, length, found, x, y] : rows) {
        DPoint out = unset;
        const DPoint a(0, 0), b(0.6 * length, 0.8 * length);
        EXPECT_EQ(pointOnLineSegmentWithDistanceAway(out, dist, a, b), found) << dist;
        EXPECT_TRUE(isEqual(out, DPoint(x, y), 1e-12)) << dist;
    }
}

TEST(LineFit, ThePointFollowsFromTheOddConstantAndDirIsOnlyTurned) {
    const struct {
        std::list<DPoint> pts;
        int result;
        double a, b, c;
        DPoint onLine;
        DVector before, after;
    } rows[] = {
        {{}, -1, 99, 99, 99, unset, {-1, 0}, {-1, 0}},
        {{{3, 1}, {3, 5}}, -1, 0, 0, 3, unset, {0, -1}, {0, -1}}, // vertical
        {{{1, 7}, {3, 7}}, 0, 0, -4, 3, {0, 0.75}, {-1, 5}, {1, -5}},
        {{{1, 2}, {3, 4}}, 0, 4, -4, 7, {0, 1.75}, {2, 0}, {2, 0}},
        {{{3, 4}, {1, 2}}, 0, 4, -4, 7, {0, 1.75}, {2, 0}, {-2, 0}},
        {{{1, 1}, {2, 2}, {4, 3}, {5, 2}}, 0, 6, -18, 2, {0, 2 / 18.0}, {0, 1}, {0, 1}},
        {{{-1e-6, -995}, {1e-6, 1005}}, 0, 4e-3, 0, 5, {-1250, 0}, {0, -1}, {0, 1}},
        {{{1, 0}, {0, 1}}, -1, -1, -1, -1, {0, -1}, {-1, 1}, {-1, 1}}, // on the axes
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        double a = 99, b = 99, c = 99;
        std::list<DPoint> pts = row.pts;
        DVector dir = row.before;
        DPoint away = unset;
        EXPECT_EQ(fitToLine(pts, a, b, c), pts.empty() ? -1 : 0);
        EXPECT_TRUE(IS_EQUAL(a, row.a) && IS_EQUAL(b, row.b) && IS_EQUAL(c, row.c));
        DPoint& onLine = row.onLine == unset ? away : pts.back();
        EXPECT_EQ(fitToLine(pts, dir, onLine), row.result);
        EXPECT_TRUE(isEqual(onLine, row.onLine)) << onLine.x << " " << onLine.y;
        EXPECT_TRUE(at(dir, row.after.x, row.after.y));
    }
}

} // namespace
