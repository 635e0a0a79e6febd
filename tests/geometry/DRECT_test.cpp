#include <zarnex/geometry/DRECT.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

namespace {

bool same(const DRECT& a, const DRECT& b) {
    return std::memcmp(&a, &b, sizeof a) == 0; // without the tolerance of EqualDRect
}

constexpr DRECT none = {0, 0, 0, 0};
constexpr DRECT ten = {0, 0, 10, 10};

TEST(DRECT, TwoRectanglesMeet) {
    constexpr double near = 10 - 5e-10; // within the tolerance of 10
    constexpr double off = 10 - 2e-9;
    const struct {
        DRECT a, b;
        int relation;
        DRECT common, around;
    } rows[] = {
        {ten, {10, 0, 20, 10}, 1, {10, 0, 10, 10}, {0, 0, 20, 10}}, // touching is meeting
        {{-1, -1, 0, 0}, {0, 0, 1, 1}, 1, none, {-1, -1, 1, 1}},    // in an empty rectangle
        {ten, {0, 10 + 5e-10, 9, 20}, 1, {0, 10 + 5e-10, 9, 10}, {0, 0, 10, 20}},
        {ten, {0, 10 + 2e-9, 10, 20}, 0, none, {0, 0, 10, 20}},
        {ten, {10 + 2e-9, 0, 20, 10}, 0, none, {0, 0, 20, 10}},
        {ten, {-20, 0, -2e-10, 10}, 0, none, {-20, 0, 10, 10}},
        {ten, none, 0, none, ten},
        {{1e-11, 0, 0, 0}, none, 0, none, none},   // both empty: the second
        {{5, 5, 5, 5}, ten, 2, {5, 5, 5, 5}, ten}, // without an area, but not empty
        {{2, 5e-11, 8, 8}, ten, 1, {2, 5e-11, 8, 8}, {0, 5e-11, 10, 10}}, // on an edge
        {{5e-11, 2, 8, 8}, ten, 1, {5e-11, 2, 8, 8}, {5e-11, 0, 10, 10}}, // is not inside
        {{2, 2, near, 8}, ten, 1, {2, 2, near, 8}, {0, 0, near, 10}},     // edges of the first
        {{2, 2, 8, near}, ten, 1, {2, 2, 8, near}, {0, 0, 10, near}},
        {{2, 2, off, off}, ten, 2, {2, 2, off, off}, ten},
        {ten, ten, 1, ten, ten},
        {{-5e-11, 5e-11, 9, 9}, ten, 1, {-5e-11, 5e-11, 9, 9}, {-5e-11, 5e-11, 10, 10}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        EXPECT_EQ(DRectInDRect(&row.a, &row.b), row.relation);
        EXPECT_EQ(DRectInDRect(&row.b, &row.a), row.relation == 2 ? 3 : row.relation);
        DRECT common, around = row.b;
        EXPECT_EQ(IntersectDRect(&common, &row.a, &row.b), row.relation != 0);
        EXPECT_TRUE(same(common, row.common));
        UnionDRect(&around, &row.a, &around);
        EXPECT_TRUE(same(around, row.around));
    }
}

TEST(DRECT, EdgesBelongToTheClosedTestAndInPartToTheHalfOpenOne) {
    const struct {
        double x, y;
        int closed, halfOpen;
    } rows[] = {
        {0, 0, 1, 1},           {10, 5, 1, 0},         {5, 10, 1, 0},
        {-5e-11, -5e-11, 1, 1}, {-2e-10, 5, 0, 0},     {5, -2e-10, 0, 0},
        {10 + 5e-10, 5, 1, 0},  {10 + 2e-9, 5, 0, 0},  {5, 10 + 2e-9, 0, 0},
        {10 - 5e-10, 5, 1, 0},  {5, 10 - 5e-10, 1, 0}, {10 - 2e-9, 10 - 2e-9, 1, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.x << " " << row.y);
        const DBLPOINT p = {row.x, row.y};
        EXPECT_EQ(PointInDRect(&ten, &p), row.closed);
        EXPECT_EQ(PtInDRect(&ten, &p), row.halfOpen);
    }
}

TEST(DRECT, OneRectangle) {
    DRECT r;
    SetDRect(&r, 7, 10, 5, 10 - 1e-12);
    NormalizeDRect(&r);
    EXPECT_TRUE(same(r, {5, 10, 7, 10 - 1e-12}));
    SetDRect(&r, 10, 7, 10 - 1e-12, 5);
    NormalizeDRect(&r);
    EXPECT_TRUE(same(r, {10, 5, 10 - 1e-12, 7})) << "within the tolerance nothing moves";
    InflateDRect(&r, -3, 0.5);
    EXPECT_TRUE(same(r, {13, 4.5, 10 - 1e-12 - 3, 7.5}));
    NormalizeDRect(&r);
    EXPECT_TRUE(same(r, {10 - 1e-12 - 3, 4.5, 13, 7.5}));
    for (double DRECT::*field : {&DRECT::left, &DRECT::top, &DRECT::right, &DRECT::bottom}) {
        DRECT other = r = none;
        other.*field = -1e-10;
        EXPECT_TRUE(IsDRectEmpty(&other) && EqualDRect(&other, &r));
        other.*field = 1.01e-10;
        EXPECT_FALSE(IsDRectEmpty(&other) || EqualDRect(&other, &r));
        r.*field = 1e10;
        other.*field = 1e10 + 0.999; // of a tolerance of 1
        EXPECT_TRUE(EqualDRect(&r, &other));
        other.*field = HUGE_VAL; // and so is its tolerance
        EXPECT_TRUE(EqualDRect(&r, &other) && !EqualDRect(&other, &r));
    }
}

TEST(DRECT, NullPointersAreHarmless) {
    DRECT r = ten;
    const DBLPOINT p = {1, 2};
    SetDRectEmpty(nullptr);
    SetDRect(nullptr, 1, 2, 3, 4);
    CopyDRect(nullptr, &r);
    CopyDRect(&r, nullptr);
    InflateDRect(nullptr, 1, 1);
    NormalizeDRect(nullptr);
    UnionDRect(nullptr, &r, &r);
    UnionDRect(&r, nullptr, &r);
    EXPECT_TRUE(same(r, ten));
    EXPECT_FALSE(IntersectDRect(nullptr, &r, &r) || EqualDRect(&r, nullptr) ||
                 EqualDRect(nullptr, &r) || PointInDRect(nullptr, &p) ||
                 PointInDRect(&r, nullptr) || PtInDRect(nullptr, &p) || PtInDRect(&r, nullptr) ||
                 DRectInDRect(nullptr, &r) || DRectInDRect(&r, nullptr));
    EXPECT_TRUE(IsDRectEmpty(nullptr));
    UnionDRect(&r, nullptr, nullptr);
    EXPECT_TRUE(same(r, none));
}

} // namespace
