#include <zarnex/geometry/DRECT.h>
#include <zarnex/geometry/circleCentre.h>
#include <zarnex/geometry/cubic.h>
#include <zarnex/geometry/quadratic.h>

#include "grid.h"

namespace {

bool sameRect(const DRECT& a, const DRECT& b) {
    return same(a.left, b.left) && same(a.top, b.top) && same(a.right, b.right) &&
           same(a.bottom, b.bottom);
}

TEST(DegenerateCircles, NoCentreLeavesTheOutputAlone) {
    for (const DPoint& a : places()) {
        for (const DPoint& b : places()) {
            for (const DPoint& c : places()) {
                for (const auto find : {computeCentre, LUcomputeCentre}) {
                    DPoint centre(99, 77);
                    const int status = find(&centre, a, b, c);
                    EXPECT_TRUE(status == 0 || (status == -1 && centre == DPoint(99, 77)));
                    EXPECT_EQ(find(nullptr, a, b, c), status);
                    EXPECT_FALSE(status == 0 && (a == b || b == c || a == c))
                        << a.x << " " << b.x << " " << c.x;
                }
                DPoint centre;
                EXPECT_EQ(computeCentre(&centre, a, b, c), computeCentre(&centre, a, c, b));
            }
        }
    }
}

TEST(DegenerateRoots, AreWrittenAsFarAsTheyAreCounted) {
    const auto expectWritten = [](const double(&roots)[3], int count) {
        for (int i = count; i < 3; ++i)
            EXPECT_EQ(roots[i], 99) << i << " of " << count;
    };
    for (const double a : numbers()) {
        for (const double b : numbers()) {
            for (const double c : numbers()) {
                double roots[] = {99, 99, 99};
                const int count = quadraticSolve(&roots[0], &roots[1], a, b, c);
                EXPECT_TRUE(count >= 0 && count <= 2);
                expectWritten(roots, count);
                EXPECT_EQ(quadraticSolve(nullptr, nullptr, a, b, c), count);
                for (const double d : numbers()) {
                    double mine[] = {99, 99, 99};
                    int found = 7;
                    ZQuadraticSolver::quadraticSolve(&found, &mine[0], &mine[1], a, b, c, d, 1e-9);
                    EXPECT_TRUE(found >= 0 && found <= 2);
                    expectWritten(mine, found);
                    ZQuadraticSolver::quadraticSolve(nullptr, nullptr, nullptr, a, b, c, 1e-9, d);
                    double cubic[] = {99, 99, 99};
                    const int three = cubicRoots(a, b, c, d, cubic);
                    EXPECT_TRUE(three >= 0 && three <= 3);
                    expectWritten(cubic, three);
                    EXPECT_EQ(cubicRoots(a, b, c, d, nullptr), three);
                }
            }
        }
    }
}

TEST(DegenerateRectangles, TestsAgreeWithOperations) {
    std::vector<DRECT> rects;
    for (const DPoint& p : places())
        for (const DPoint& q : places())
            if (rects.empty() || (p.x <= q.x) == (p.y <= q.y))
                rects.push_back({p.x, p.y, q.x, q.y});
    for (const DRECT& a : rects) {
        DRECT r{1, 2, 3, 4};
        CopyDRect(&r, &a);
        EXPECT_TRUE(sameRect(r, a));
        NormalizeDRect(&r);
        DRECT again = r;
        NormalizeDRect(&again);
        EXPECT_TRUE(sameRect(again, r));
        SetDRectEmpty(&again);
        EXPECT_TRUE(IsDRectEmpty(&again));
        for (const double d : numbers())
            InflateDRect(&r, d, -d);
        for (const DPoint& p : places()) {
            const DBLPOINT place{p.x, p.y};
            EXPECT_LE(PtInDRect(&a, &place), PointInDRect(&a, &place));
        }
        for (const DRECT& b : rects) {
            DRECT both{1, 2, 3, 4}, exchanged = both, around = both, aliased = a;
            const int meet = IntersectDRect(&both, &a, &b);
            EXPECT_EQ(IntersectDRect(&exchanged, &b, &a), meet);
            EXPECT_TRUE(meet == 1 || sameRect(both, {0, 0, 0, 0}));
            EXPECT_EQ(IntersectDRect(&aliased, &aliased, &b), meet);
            EXPECT_TRUE(sameRect(aliased, both));
            EXPECT_EQ(DRectInDRect(&a, &b) != 0, meet != 0);
            const int inside = DRectInDRect(&b, &a), outside = DRectInDRect(&a, &b);
            EXPECT_TRUE(inside == (outside == 2   ? 3
                                   : outside == 3 ? 2
                                                  : outside) ||
                        (inside == 2 && outside == 2)) // both: not normalised
                << inside << " " << outside;
            UnionDRect(&around, &a, &b);
            EXPECT_FALSE(IsDRectEmpty(&a) && !sameRect(around, b));
            UnionDRect(&(aliased = b), &a, &aliased);
            EXPECT_TRUE(sameRect(aliased, around));
            EXPECT_FALSE(EqualDRect(&a, &b) && std::isnan(a.left));
        }
    }
}

} // namespace
