#include <zarnex/geometry/DPoint.h>
#include <zarnex/geometry/IPoint.h>
#include <zarnex/geometry/ZCoord.h>

#include "coordinates.h"

#include <climits>
#include <cmath>
#include <cstddef>
#include <type_traits>

namespace {

template <class P, class V, class T>
constexpr bool isPlainValue = sizeof(P) == 2 * sizeof(T) && sizeof(V) == 2 * sizeof(T) &&
                              offsetof(P, y) == sizeof(T) && offsetof(V, y) == sizeof(T) &&
                              std::is_trivially_copyable_v<P>&& std::is_trivially_copyable_v<V>;

static_assert(isPlainValue<DPoint, DVector, double>);
static_assert(isPlainValue<IPoint, IVector, int>);
static_assert(isPlainValue<ZCoord<short>, ZVector<short>, short>);

// What all three families of points and vectors do alike.
template <class P>
class Points : public testing::Test {};
using PointTypes = testing::Types<DPoint, IPoint, ZCoord<short>>;
TYPED_TEST_SUITE(Points, PointTypes);

TYPED_TEST(Points, PointsAndVectorsCombine) {
    using P = TypeParam;
    using V = decltype(P() - P());
    static_assert(!std::is_same_v<P, V>);
    static_assert(std::is_same_v<decltype(P() - V()), P>);
    static_assert(std::is_same_v<decltype(P() + V()), P>);
    static_assert(std::is_same_v<decltype(P() + P()), P>);
    const P p(7, -2);
    EXPECT_TRUE(p == P(7, -2) && p != P(7, -1) && p != P(6, -2));
    EXPECT_FALSE(p == P(7, -1) || p == P(6, -2) || p != P(7, -2));
    EXPECT_TRUE(at(p + V(1, 2), 8, 0) && at(p - V(1, 2), 6, -4));
    P moved = p;
    EXPECT_TRUE(at(moved += V(2, 3), 9, 1) && at(moved -= V(4, 2), 5, -1));
    EXPECT_TRUE(at(moved -= moved, 0, 0));
    EXPECT_TRUE(at(moved.translate(5, -6), 5, -6));
    EXPECT_TRUE(at(moved.scale(2, 0.5), 10, -3));
}

TYPED_TEST(Points, RoundingMembersTakeHalvesAwayFromZero) {
    using P = TypeParam;
    P p(3, -5);
    EXPECT_TRUE(at(p.roundScale(0.5, 0.5), 2, -3));
    const double m[2][3] = {{0.5, 1.0, 2.0}, {1.0, -0.5, -4.0}};
    // 1 - 3 + 2 * 0.25 = -1.5 and 2 + 1.5 - 4 * 0.25 = 2.5
    EXPECT_TRUE(at(p.matrixRot(m, 0.25), -2, 3)); // both rows see the old point
    EXPECT_TRUE(at(p.matrixRot(nullptr, 1.0), -2, 3));
}

TYPED_TEST(Points, MirrorRoundsTheFootOffTheAxes) {
    using P = TypeParam;
    const struct {
        P p, a, b;
        double x, y;
    } rows[] = {
        {P(3, 7), P(0, 2), P(9, 2), 3, -3},  // horizontal
        {P(3, 7), P(2, 0), P(2, 9), 1, 7},   // vertical
        {P(3, 7), P(1, 2), P(1, 2), 3, -3},  // no line: horizontal
        {P(3, 7), P(0, 0), P(5, 5), 7, 3},   // the foot is (5, 5)
        {P(0, 1), P(0, 0), P(1, 1), 2, 1},   // the foot (0.5, 0.5) counts as (1, 1)
        {P(0, -1), P(0, 0), P(1, 1), -2, -1} // and (-0.5, -0.5) as (-1, -1)
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        P p = row.p;
        EXPECT_TRUE(at(p.mirror(row.a, row.b), row.x, row.y));
    }
    P self(3, 7);
    EXPECT_TRUE(at(self.mirror(self, P(4, 9)), 3, 7));
}

TEST(DPoint, EqualityIsStrictlyBelowTheTolerance) {
    EXPECT_TRUE(DPoint(0, 0) == DPoint(0.5e-11, -0.9e-11));
    EXPECT_FALSE(DPoint(0, 0) == DPoint(1e-11, 0));
    EXPECT_TRUE(DPoint(0, 0) != DPoint(0, -1e-11));
    const double infinity = HUGE_VAL;
    EXPECT_FALSE(DPoint(infinity, 0) == DPoint(infinity, 0));
    EXPECT_TRUE(DPoint(0, std::nan("")) != DPoint(0, std::nan("")));
}

TEST(DPoint, DividesByAnything) {
    EXPECT_TRUE(at(DPoint(1, -1) / 0.0, HUGE_VAL, -HUGE_VAL));
    EXPECT_TRUE(at(DPoint(2, 4) / 0.5, 4, 8));
    EXPECT_TRUE(at(DPoint(2, 4) * 0.25, 0.5, 1));
}

TEST(DPoint, RoundScaleStaysOnTheGridAtAnySize) {
    EXPECT_TRUE(at(DPoint(1.4, 2.6).roundScale(1, 1), 1, 3));
    EXPECT_TRUE(at(DPoint(-1.5, -2.5).roundScale(1, 1), -2, -3));
    EXPECT_TRUE(at(DPoint(1e10, -3e9).roundScale(1, 1), 1e10, -3e9));
}

TEST(DPoint, RotationHasTheShortPi) {
    DPoint p(1, 0);
    p.rotate(90, DPoint(0, 0));
    EXPECT_NEAR(p.x, 2.679e-8, 1e-11);
    EXPECT_NEAR(p.y, 1.0, 1e-15);
    DPoint q(3, 2);
    q.rotate(-90, DPoint(1, 2));
    EXPECT_NEAR(q.x, 1.0, 1e-7);
    EXPECT_NEAR(q.y, 0.0, 1e-7);
    EXPECT_TRUE(at(q.rotate(33, q), q.x, q.y));
}

TEST(IPoint, ProductsQuotientsAndMovesAreTruncated) {
    EXPECT_TRUE(at(IPoint(3, 3) * 0.5, 1, 1));
    EXPECT_TRUE(at(IPoint(-3, -3) * 0.5, -1, -1));
    EXPECT_TRUE(at(IPoint(7, -7) / 4, 1, -1));
    EXPECT_TRUE(at(IPoint(7, 0) / 0.0, INT_MAX, 0));
    EXPECT_TRUE(at(IPoint(1, -1).translate(0.9, -0.9), 1, -1));
    EXPECT_TRUE(at(IPoint(1, -1).translate(-1.9, 1.9), 0, 0));
    EXPECT_TRUE(at(IPoint(10, 0).rotate(90, IPoint(0, 0)), 0, 9)); // 9.99..., cut
    EXPECT_TRUE(at(IPoint(3, -3).scale(0.5, 1e10), 1, INT_MIN));
}

TEST(IPoint, SumsWrapAndDistancesDoNot) {
    EXPECT_TRUE(at(IPoint(INT_MAX, INT_MIN) + IPoint(1, -1), INT_MIN, INT_MAX));
    EXPECT_TRUE(at(IPoint(INT_MAX, 0) - IPoint(-1, 0), INT_MIN, 0));
    EXPECT_TRUE(at(-IPoint(INT_MIN, 5), INT_MIN, -5));
    const IPoint low(INT_MIN, 0);
    const IPoint high(INT_MAX, 0);
    EXPECT_EQ(low.distance(high), 4294967295.0);
    EXPECT_EQ(low.manhattanDistance(high), 4294967295.0);
    EXPECT_EQ(low.squaredDistance(high), 4294967295.0 * 4294967295.0);
}

TEST(ZCoord, WrapsInto16BitsOrTakesTheNearest) {
    using P = ZCoord<short>;
    EXPECT_TRUE(at(P(32767, -32768) + P(1, -1), -32768, 32767));
    EXPECT_TRUE(at(-P(-32768, 1), -32768, -1));
    EXPECT_TRUE(at(P(32767, 0).translate(1, 0), -32768, 0));
    EXPECT_TRUE(at(P(20000, -20000) * 2, 32767, -32768));
    EXPECT_TRUE(at(P(20000, -20000).roundScale(2, 2), 32767, -32768));
    EXPECT_TRUE(at(P(-7, 7) / 2, -3, 3));
    EXPECT_EQ(P(-32768, 0).manhattanDistance(P(32767, 0)), 65535.0);
}

} // namespace
