#include <zarnex/geometry/tolerance.h>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>

namespace {

TEST(Tolerance, BoundsAreInclusiveAndThoseOfABox) {
    EXPECT_TRUE(IS_EQUAL(1.0, 1.5, 0.5) && IS_ZERO(-0.5, 0.5));
    EXPECT_FALSE(IS_EQUAL(1.0, 1.5, 0.4999) || IS_EQUAL(1.0, 1.0, -0.1));
    EXPECT_TRUE(isEqual(DPoint(0, 0), DPoint(1, 1), 1.0)) << "a box, not a circle";
    EXPECT_FALSE(isEqual(DPoint(0, 0), DPoint(1, 1.5), 1.0));
    EXPECT_FALSE(isEqual(DVector(0, 0), DVector(1.5, 1), 1.0));
}

TEST(Tolerance, NumbersOfEveryTypeCompare) {
    EXPECT_TRUE(IS_EQUAL(3, 3L) && IS_EQUAL(sizeof(int), 4) && IS_EQUAL(2.0, 2));
    EXPECT_FALSE(IS_EQUAL(3L, 4L) || IS_EQUAL(1ull << 32, 0u) || IS_EQUAL(0.5, 0.6));
    EXPECT_FALSE(IS_EQUAL(-1, UINT_MAX)) << "the values differ, not the bits";
    EXPECT_TRUE(IS_EQUAL(0.1f, static_cast<double>(0.1f)));
    EXPECT_TRUE(IS_ZERO(0) && IS_ZERO(0u));
    EXPECT_FALSE(IS_ZERO(-1) || IS_ZERO(1ull << 32));
    EXPECT_FALSE(IS_ZERO(0.5)) << "not the integer 0";
}

TEST(Tolerance, IntegerPointsCompareByCoordinate) {
    using C = ZCoord<short>;
    EXPECT_TRUE(isEqual(C(1, 5), C(3, 3), 2));
    EXPECT_FALSE(isEqual(C(1, 5), C(4, 5), 2));
    EXPECT_FALSE(isEqual(C(1, 5), C(1, 2), 2));
    EXPECT_FALSE(isEqual(C(32767, 0), C(-32768, 0), 65534));
    EXPECT_TRUE(isEqual(C(32767, 0), C(-32768, 0), 65535));
    EXPECT_TRUE(isEqual(IPoint(1, 2), IPoint(1, 2)));
    EXPECT_FALSE(isEqual(IPoint(1, 2), IPoint(1, 3)) || isEqual(IPoint(1, 2), IPoint(0, 2)));
    EXPECT_TRUE(isEqual(IVector(1, 2), IVector(1, 2)));
    EXPECT_FALSE(isEqual(IVector(1, 2), IVector(1, 3)) || isEqual(IVector(1, 2), IVector(0, 2)));
}

TEST(Tolerance, BoxToleranceBoundsAProduct) {
    const struct {
        DPoint p;
        double tolerance;
        int inside;
    } rows[] = {
        {DPoint(5, 5), 0, 1},     {DPoint(10, 5), 0, 1},           {DPoint(0, 0), 0, 1},
        {DPoint(11, 5), 0, 0},    {DPoint(5, -1), 0, 0},           {DPoint(11, 5), 11, 1}, // 11 * 1
        {DPoint(11, 5), 10.9, 0}, {DPoint(5, -1), 11, 1},          {DPoint(5, 5), -25, 1},
        {DPoint(5, 5), -26, 0},   {DPoint(std::nan(""), 5), 0, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.p.x << " " << row.p.y << " " << row.tolerance);
        EXPECT_EQ(isPointInBox(row.p, 0, 0, 10, 10, row.tolerance), row.inside);
        EXPECT_EQ(isPointInBox(row.p, 10, 0, 0, 10, row.tolerance), row.inside);
    }
}

} // namespace
