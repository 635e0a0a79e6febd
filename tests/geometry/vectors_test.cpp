#include <zarnex/geometry/DVector.h>
#include <zarnex/geometry/IVector.h>
#include <zarnex/geometry/ZVector.h>

#include "coordinates.h"

#include <climits>
#include <cmath>

namespace {

template <class V>
class Vectors : public testing::Test {};
using VectorTypes = testing::Types<DVector, IVector, ZVector<short>>;
TYPED_TEST_SUITE(Vectors, VectorTypes);

TYPED_TEST(Vectors, Arithmetic) {
    using V = TypeParam;
    V v(3, -4);
    EXPECT_TRUE(at(v * 3, 9, -12));
    EXPECT_EQ(v * V(2, 5), -14);
    EXPECT_TRUE(at(v.reverse(), -3, 4));
    EXPECT_TRUE(at(v.scale(2, 0.5), -6, 2));
    EXPECT_TRUE(v == V(-6, 2) && v != V(-6, 1) && v != V(-5, 2));
    EXPECT_FALSE(V(3, 4) < V(0, 5) || V(3, 4) > V(0, 5) || V(3, 4) == V(0, 5));
}

TYPED_TEST(Vectors, QuarterTurns) {
    using V = TypeParam;
    EXPECT_TRUE(at(V(2, 5).ortho(1), -5, 2));
    EXPECT_TRUE(at(V(2, 5).ortho(-1), 5, -2));
    EXPECT_TRUE(at(V(2, 5).ortho(3), -15, 6));
}

TYPED_TEST(Vectors, ProjectionAndReflection) {
    using V = TypeParam;
    EXPECT_TRUE(at(V(3, 5).projectOn(V(2, 0)), 3, 0));
    EXPECT_TRUE(at(V(3, 5).projectOn(V(0, 0)), 0, 0));
    EXPECT_TRUE(at(V(3, 5).projectOnUnit(V(0, 2)), 0, 20)); // the length is not checked
    EXPECT_TRUE(at(V(3, 5).mirror(V(4, 4)), 5, 3));
    EXPECT_TRUE(at(V(3, 5).mirror(V(0, 0)), -3, -5));
}

TYPED_TEST(Vectors, SenseOfPerpendicularsIsThatOfTheCrossProduct) {
    using V = TypeParam;
    const struct {
        V v;
        int same;
    } rows[] = {
        {V(5, 9), 1},  {V(-1, 9), 0}, {V(0, 1), 1}, // to the left
        {V(0, -1), 0}, {V(0, 0), 1},  {V(-1, 0), 0},
    };
    for (const auto& row : rows)
        EXPECT_EQ(V(1, 0).isSameSense(row.v), row.same) << &row - rows;
}

TEST(DVector, DivisionByNearlyNothingChangesNothing) {
    const DVector v(2, 4);
    EXPECT_TRUE(at(v / 0.0, 2, 4));
    EXPECT_TRUE(at(v / 1e-12, 2, 4));
    EXPECT_TRUE(at(v / -1e-11, 2, 4));
    EXPECT_TRUE(at(v / 0.5, 4, 8));
    EXPECT_EQ((v / -2e-11).x, 2 / -2e-11);
    EXPECT_TRUE(std::isnan((v / std::nan("")).x));
}

TEST(DVector, NormalizesBySquaredLength) {
    EXPECT_TRUE(at(DVector(0, -4).normalize(), 0, -1));
    EXPECT_TRUE(at(DVector(1e-6, 0).normalize(), 1e-6, 0));
    EXPECT_NEAR(DVector(4e-6, 0).normalize().x, 1.0, 1e-15);
    const double inverse = 1.0 / std::sqrt(49.0 * 49.0);
    EXPECT_EQ(DVector(49, 0).normalize().x, 49.0 * inverse); // not 49.0 / 49.0
}

TEST(DVector, ToleranceDecidesTheSense) {
    EXPECT_EQ(DVector(1, 0).isSameSense(DVector(-0.9e-9, 1)), 1);
    EXPECT_EQ(DVector(1, 0).isSameSense(DVector(-1e-9, 1)), 0);
    EXPECT_EQ(DVector(1, 0).isSameSense(DVector(1e-9, -1)), 1);
    EXPECT_EQ(DVector(1, 0).isSameSense(DVector(std::nan(""), 1)), 0);
}

TEST(DVector, EqualityAndScalingFromTheLeft) {
    EXPECT_TRUE(DVector(0, 0) == DVector(-0.9e-11, 0.9e-11));
    EXPECT_TRUE(DVector(0, 0) != DVector(0, 1e-11));
    EXPECT_TRUE(at(0.5 * DVector(3, -1), 1.5, -0.5));
}

TEST(IVector, NormalizesByTruncation) {
    EXPECT_TRUE(at(IVector(3, 4).normalize(), 0, 0));
    EXPECT_TRUE(at(IVector(5, 0).normalize(), 1, 0));
    EXPECT_TRUE(at(IVector(0, -8).normalize(), 0, -1));
    EXPECT_TRUE(at(IVector(49, 0).normalize(), 0, 0)); // 49 * (1.0 / 49) is below 1
    EXPECT_TRUE(at(IVector(0, 0).normalize(), 0, 0));
}

TEST(IVector, OnlyTheDotProductWraps) {
    const IVector wide(65536, 32768);
    EXPECT_EQ(wide * wide, 1073741824);
    EXPECT_EQ(wide.squaredLength(), 5368709120.0);
    EXPECT_EQ(wide.cross(IVector(0, 65536)), 4294967296.0);
    EXPECT_TRUE(at(wide.projectOn(wide), 65536, 32768));
    EXPECT_EQ(IVector(65536, 0).isSameSense(IVector(40000, 0)), 1);
    EXPECT_TRUE(at(wide.projectOnUnit(wide), INT_MAX, INT_MAX));
    EXPECT_TRUE(at(IVector(0, INT_MIN).ortho(1), INT_MIN, 0));
}

TEST(IVector, ReflectionDoublesTheTruncatedProjection) {
    // The projection of (3, 0) on (1, 1) is (1.5, 1.5).
    EXPECT_TRUE(at(IVector(3, 0).mirror(IVector(1, 1)), -1, 2));
    EXPECT_TRUE(at(IVector(-3, 0).projectOn(IVector(1, 1)), -1, -1));
    EXPECT_TRUE(at(IVector(5, -5) * -0.5, -2, 2));
}

TEST(ZVector, DotProductWrapsInto16Bits) {
    using V = ZVector<short>;
    EXPECT_EQ(V(200, 200) * V(200, 200), 14464);
    EXPECT_EQ(V(-32768, -32768) * V(-32768, -32768), 0);
    EXPECT_TRUE(at(V(200, 200).projectOn(V(300, 300)), 200, 200));
    EXPECT_TRUE(at(V(32767, -32768) + V(1, -1), -32768, 32767));
    EXPECT_TRUE(at(V(-32768, 1).reverse(), -32768, -1));
}

} // namespace
