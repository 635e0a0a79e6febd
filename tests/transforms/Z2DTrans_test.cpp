#include "matrices.h"

#include "tests/geometry/coordinates.h"

#include <zarnex/transforms/elementaryTransforms.h>

#include <climits>
#include <cmath>

namespace {

Z2DTrans trans(double m00, double m01, double m10, double m11) {
    return Z2DTrans(DVector(m00, m01), DVector(m10, m11));
}

TEST(Z2DTrans, ConstructorsByName) {
    const double c = std::cos(0.75), s = std::sin(0.75);
    const DVector none(1e-9, 0), v(3, 4), u(4, 3);
    const struct {
        Z2DTrans trans;
        Numbers elements;
    } rows[] = {
        {Z2DTrans(), {1, 0, 0, 1}},
        {trans(1, 2, 3, 4), {1, 2, 3, 4}},
        {Z2DRotate(), {1, 0, 0, 1}},
        {Z2DRotate(0.75), {c, -s, s, c}},
        {Z2DRotate(v), {0.6, -0.8, 0.8, 0.6}},
        {Z2DRotate(none), {1, 0, 0, 1}},
        {Z2DRotate(v, u), {24.0 / 25, -7.0 / 25, 7.0 / 25, 24.0 / 25}}, // from u to v
        {Z2DRotate(none, u * 0.1), {1, 0, 0, 1}}, // the product of the lengths is 5e-10
        {Z2DXScale(3), {3, 0, 0, 1}},
        {Z2DYScale(3), {1, 0, 0, 3}},
        {Z2DXShear(3), {1, 3, 0, 1}},
        {Z2DYShear(3), {1, 0, 3, 1}},
        {Z2DXScale(), {1, 0, 0, 1}},
        {Z2DYScale(), {1, 0, 0, 1}},
        {Z2DXShear(), {1, 0, 0, 1}},
        {Z2DYShear(), {1, 0, 0, 1}},
        {Z2DYShear(Z2DYShear(2)), {1, 0, 2, 1}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(elementsOf(row.trans), row.elements) << &row - rows;
}

TEST(Z2DTrans, StepsActAfterThoseBeforeAndNotOnAnotherShape) {
    volatile double ninety = 90 * 0.017453292522222223; // not folded by the compiler
    const double c = std::cos(ninety), s = std::sin(ninety);
    Z2DTrans t = trans(1.5, -2, 0.25, 8);
    EXPECT_EQ(elementsOf(t.compose(t)), Numbers({1.75, -19, 2.375, 63.5}));
    EXPECT_EQ(elementsOf(t.scale(2, -3)), Numbers({3.5, -38, -7.125, -190.5}));
    EXPECT_EQ(elementsOf(t.mirror().flip().xShear(3)), Numbers({17.875, 609.5, 7.125, 190.5}));
    EXPECT_EQ(elementsOf(Z2DTrans().rotateInDegree(90)), Numbers({c, -s, s, c}));
    EXPECT_EQ(elementsOf(Z2DTrans().rotate(DVector(3, 4), DVector(0, 1e-10))),
              Numbers({1, 0, 0, 1}));
    const ZMatrix<double> wide = matrix(1, 3, {1, 2, 3});
    t = wide;
    t.compose(t).scale(2, -3).mirror().flip().xShear(3).yShear(4).rotateInDegree(90).rotate(1);
    t.rotate(DVector(3, 4)).rotate(DVector(3, 4), DVector(4, 3));
    EXPECT_EQ(elementsOf(t), elementsOf(wide));
    EXPECT_TRUE(at(t * IVector(7, 9), 7, 9));
}

TEST(Z2DTrans, MapsPointsAndVectorsAndRoundsIntegers) {
    const auto maps = [](const Z2DTrans& t, auto v, double x, double y) {
        return at(t * v, x, y) && at(v *= t, x, y);
    };
    const Z2DTrans t = trans(1, 2, 3, 4), half = trans(0.5, 0, 0, 0.5);
    EXPECT_TRUE(maps(t, DPoint(5, 6), 17, 39) && maps(t, DVector(5, 6), 17, 39));
    EXPECT_TRUE(maps(t, IPoint(5, 6), 17, 39) && maps(t, IVector(5, 6), 17, 39));
    EXPECT_TRUE(maps(half, IPoint(3, -3), 2, -2) && maps(half, IVector(3, -3), 2, -2));
    EXPECT_TRUE(at(trans(1e9, 0, 0, -1e9) * IPoint(3, 3), INT_MAX, INT_MIN));
    EXPECT_TRUE(at(trans(INT_MAX + 0.5, 0, 0, INT_MIN - 0.5) * IPoint(1, 1), INT_MAX, INT_MIN));
}

TEST(Z2DTrans, AssignsAndCombinesWithEveryKindOfMatrix) {
    Z2DTrans t;
    Z2DRotate turn(0.5);
    const Z2DMatrix<double> own = matrix({1, 2, 3, 4});
    const ZMatrix<double> general(own);
    t = own;
    turn = general;
    EXPECT_EQ(elementsOf(t), elementsOf(turn));
    EXPECT_EQ(elementsOf(t *= turn), Numbers({7, 10, 15, 22}));
    ((t *= 2) += own) -= general;
    EXPECT_EQ(t.invert(turn) + t.multiply(general, t) + turn.transpose(t), 0);
    EXPECT_EQ(elementsOf(turn), Numbers({44.0 / 16, -20.0 / 16, -30.0 / 16, 14.0 / 16}));
    EXPECT_EQ(elementsOf(t), Numbers({44.0 / 16, -30.0 / 16, -20.0 / 16, 14.0 / 16}));

    EXPECT_EQ(elementsOf(t = general), Numbers({1, 2, 3, 4}));
    EXPECT_EQ(elementsOf(t = {}), Numbers({1, 0, 0, 1}));
    EXPECT_EQ(elementsOf(turn = {DVector(1, 0), DVector(0, 2)}), Numbers({0, 1, -1, 0}));
}

TEST(Z2DTrans, SplitsIntoScalesAndTheRest) {
    const Numbers kept{9, 9, 9, 9};
    const struct {
        Z2DTrans trans;
        int nx, ny, status;
        double sx, sy;
        int nxAfter, nyAfter;
        Numbers rest;
    } rows[] = {
        {trans(2, 0, 0, 3), 1, 1, 0, 2, 3, 2, 3, {1, 0, 0, 1}},
        {trans(2, 0, 0, 3), 4, 1, 0, 1, 3, 4, 3, {2, 0, 0, 1}},
        {trans(3, -4, 4, 3), 1, 2, 0, 5, 3.5, 5, 7, {3 / 5.0, -4 / 3.5, 4 / 5.0, 3 / 3.5}},
        {trans(0.5, 0, 0, 3), 1, 1, 1, 0, 3, 1, 1, kept}, // too short for one whole
        {trans(3, 0, 0, 0.5), 1, 1, 1, 3, 0, 1, 1, kept},
        {trans(-1, 0, 0, 1), 1, 1, 1, 7, 7, 1, 1, kept},
        {trans(1, 1, 1, 1 + 5e-10), 1, 1, 1, 7, 7, 1, 1, kept},
        {trans(2, 0, 0, 3), 0, 1, 1, 7, 7, 0, 1, kept},
        {trans(2, 0, 0, 3), 1, -1, 1, 7, 7, 1, -1, kept},
        {trans(1e-5, 0, 0, 1e6), 1, 1, 1, 7, 7, 1, 1, kept},
        {trans(1e6, 0, 0, 1e-5), 1, 1, 1, 7, 7, 1, 1, kept},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        Z2DTrans rest = trans(9, 9, 9, 9);
        double sx = 7, sy = 7;
        int nx = row.nx, ny = row.ny;
        EXPECT_EQ(row.trans.split(rest, sx, sy, nx, ny), row.status);
        EXPECT_TRUE(at(DPoint(sx, sy), row.sx, row.sy) &&
                    at(IPoint(nx, ny), row.nxAfter, row.nyAfter));
        EXPECT_EQ(elementsOf(rest), row.rest);
        Z2DTrans self(row.trans);
        nx = row.nx, ny = row.ny;
        self.split(self, sx, sy, nx, ny);
        EXPECT_EQ(elementsOf(self), row.status ? elementsOf(row.trans) : row.rest);
    }
    struct Flat : Z2DTrans {
        double det() const override {
            return 0.0;
        }
    } flat;
    double sx = 7, sy = 7;
    int nx = 1, ny = 1;
    EXPECT_EQ(flat.split(flat, sx, sy, nx, ny), 1);
}

TEST(Z2DTrans, AnInfiniteVectorTurnsDependingOnTheWay) {
    const DVector endless(0, std::numeric_limits<double>::infinity());
    EXPECT_EQ(Z2DRotate(endless)(0, 0), 0.0); // each component over the length
    EXPECT_TRUE(std::isnan(Z2DTrans().rotate(endless)(0, 0)));
}

} // namespace
