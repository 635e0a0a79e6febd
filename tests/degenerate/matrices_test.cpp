#include <zarnex/transforms/IdTrans.h>
#include <zarnex/transforms/ZHashablePointer.h>
#include <zarnex/transforms/elementaryTransforms.h>

#include "grid.h"

#include <utility>

namespace {

using Matrix = Z2DMatrix<double>;
using AnyShape = ZMatrix<double>;

bool sameElements(const AnyShape& a, const AnyShape& b) {
    if (!a.rangeCheck(b.getRows(), b.getCols()))
        return false;
    for (int r = 0; r < a.getRows(); ++r)
        for (int c = 0; c < a.getCols(); ++c)
            if (!same(a(r, c), b(r, c)))
                return false;
    return true;
}

Matrix matrixOf(const DPoint& p, const DPoint& q) {
    const double elements[] = {p.x, p.y, q.x, q.y};
    return Matrix(AnyShape(2, 2, elements));
}

TEST(DegenerateMatrices, RefusedOperationsWriteNothing) {
    for (const DPoint& p : places()) {
        for (const DPoint& q : places()) {
            SCOPED_TRACE(testing::Message() << p.x << " " << p.y << " " << q.x << " " << q.y);
            const Matrix m = matrixOf(p, q), other = matrixOf(DPoint(3, 5), DPoint(7, 11));
            EXPECT_TRUE(same(m.det(), p.x * q.y - p.y * q.x));
            Matrix inverse = other, inPlace = m, solved = m;
            AnyShape right = other;
            const int singular = m.invert(inverse);
            EXPECT_EQ(singular, std::fabs(m.det()) <= 1e-9 ? 2 : 0);
            EXPECT_EQ(inPlace.invert(), singular);
            EXPECT_EQ(solved.solve(right), singular);
            EXPECT_TRUE(sameElements(inPlace, singular == 0 ? inverse : m));
            EXPECT_TRUE(singular == 0 ||
                        (sameElements(inverse, other) && sameElements(right, other)));
            Matrix product = m, general = m, turned = other;
            product *= other;
            EXPECT_EQ(m.multiply(other, static_cast<AnyShape&>(general)), 0);
            EXPECT_EQ(m.multiply(other, turned), 0);
            EXPECT_TRUE(sameElements(product, turned));
            EXPECT_EQ(m.multiply(static_cast<const AnyShape&>(other), turned), 0);
            EXPECT_TRUE(sameElements(general, turned)) << "in the order of the general form";
            EXPECT_EQ(m.transpose(turned), 0);
            EXPECT_TRUE(sameElements(turned, matrixOf(DPoint(p.x, q.x), DPoint(p.y, q.y))));
            EXPECT_TRUE(sameElements((Matrix(m) += other) -= m, (Matrix(other) += m) -= m));
            for (const double s : numbers())
                EXPECT_TRUE(sameElements(Matrix(m) *= s, matrixOf(p * s, q * s)));

            Z2DTrans rest(DVector(1, 2), DVector(3, 4)), t(DVector(p.x, p.y), DVector(q.x, q.y));
            const Z2DTrans before = rest;
            for (const int count : {1, 7, INT_MAX, 0, INT_MIN}) {
                double sx = 1, sy = 1;
                int nx = count, ny = count;
                const int status = t.split(rest, sx, sy, nx, ny);
                EXPECT_TRUE(status == 0 || status == 1);
                EXPECT_TRUE(status == 0 ||
                            (sameElements(rest, before) && nx == count && ny == count));
                rest = before;
            }
            const DVector moved = t * DVector(p.x, p.y);
            EXPECT_TRUE(samePlace(t * p, DPoint(moved.x, moved.y)));
            const DPoint image = t * DPoint(INT_MIN, INT_MAX);
            IVector ints(INT_MIN, INT_MAX);
            EXPECT_TRUE(samePlace(ints *= t, IVector(zarnex::roundToNearestInt(image.x),
                                                     zarnex::roundToNearestInt(image.y))));
        }
    }
}

// Lets hosts' derived classes reach the exchange.
struct Exchanges : AnyShape {
    using AnyShape::swap;
};

// What is refused leaves the shape and the elements; what is taken has those of its source.
template <class Step>
void expectTaken(const AnyShape& wide) {
    Step step, other(step);
    Z2DTrans whole;
    EXPECT_TRUE(sameElements(step, Matrix()) && sameElements(whole, other));
    other = wide;
    step = other;
    whole = wide;
    EXPECT_TRUE(sameElements(step, wide) && sameElements(whole, wide));
    EXPECT_EQ(step.transpose(), 1);
    EXPECT_TRUE(same(step.det(), 0.0) && sameElements(step.rotate(NAN).xShear(1), wide));
    EXPECT_TRUE(samePlace(step * DPoint(3, HUGE_VAL), DPoint(3, HUGE_VAL)));
}

TEST(DegenerateTransforms, OfAnotherShapeAreLeftAlone) {
    AnyShape wide(2, 3, nullptr);
    for (int i = 0; i < 6; ++i)
        wide.set(i / 3, i % 3, i == 4 ? NAN : DBL_TRUE_MIN);
    wide(1, 1) = -DBL_MAX;
    Exchanges::swap(wide.get(0, 0), wide.get(1, 1));
    expectTaken<Z2DRotate>(wide);
    expectTaken<Z2DXScale>(wide);
    expectTaken<Z2DYScale>(wide);
    expectTaken<Z2DXShear>(wide);
    expectTaken<Z2DYShear>(wide);
    Matrix m(wide), before = m;
    int rank = 7;
    EXPECT_TRUE(m.invert(wide) == 1 && m.guassianReduction(wide, rank) == 0 && rank == 7);
    EXPECT_TRUE(m.transpose() == 0 && m.transpose() == 0 && sameElements(m, before));
    EXPECT_TRUE(same(std::as_const(wide).get(0, 0), -DBL_MAX));
    m.clear();
    EXPECT_TRUE(m.invert() == 2 && m.identity() == 0 && sameElements(m, before));
}

TEST(DegenerateTransforms, EveryStepIsTheProductOnTheLeft) {
    for (const DPoint& p : places()) {
        for (const double s : numbers()) {
            const DVector v(p.x, p.y), u(s, p.x);
            const Z2DTrans start(v, DVector(s, 2));
            const Z2DTrans steps[] = {Z2DRotate(s), Z2DRotate(v), Z2DRotate(u, v), Z2DXScale(s),
                                      Z2DYScale(s), Z2DXShear(s), Z2DYShear(s)};
            for (const Z2DTrans& step : steps) {
                Z2DTrans composed = start;
                composed.compose(step);
                Matrix product = step;
                product *= start;
                EXPECT_TRUE(sameElements(composed, product));
            }
            const bool finite = std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(s);
            const Z2DTrans byName[] = {Z2DTrans(start).rotate(s),    Z2DTrans(start).rotate(v),
                                       Z2DTrans(start).rotate(u, v), Z2DTrans(start).xScale(s),
                                       Z2DTrans(start).yScale(s),    Z2DTrans(start).xShear(s),
                                       Z2DTrans(start).yShear(s)};
            for (int i = 0; i < 7; ++i) {
                Z2DTrans composed = start;
                EXPECT_TRUE(!finite || sameElements(byName[i], composed.compose(steps[i])))
                    << i << " " << p.x << " " << s;
            }
            Z2DTrans t = start;
            t.rotateInDegree(s).scale(s, p.x).mirror().flip();
            DPoint place = p;
            place *= t;
            IPoint whole(INT_MAX, -1);
            whole *= t;
            DVector way = v;
            way *= t;
            EXPECT_TRUE(samePlace(place, t * p) && samePlace(way, t * v));
        }
    }
}

TEST(DegenerateChains, PointersAreInTheOrderOfAddresses) {
    using Pointer = ZHashablePointer<ArbTrans<DPoint>>;
    IdTrans<DPoint> own[2];
    ArbTrans<DPoint>* const addresses[] = {nullptr, &own[0], &own[1]};
    for (int i = 0; i < 3; ++i) {
        for (int k = 0; k < 3; ++k) {
            Pointer a(addresses[i]);
            const Pointer b(addresses[k]);
            const ArbTrans<DPoint>* plain = addresses[k];
            EXPECT_TRUE((a == b) == (i == k) && (a != b) == (i != k) && (a < b) == (i < k) &&
                        (a > b) == (i > k));
            EXPECT_TRUE((a == plain) == (i == k) && (a != plain) == (i != k) &&
                        (a < plain) == (i < k) && (a > plain) == (i > k));
            EXPECT_TRUE((plain == a) == (i == k) && (plain != a) == (i != k) &&
                        (plain < a) == (i > k) && (plain > a) == (i < k));
            EXPECT_TRUE((a == addresses[k]) == (i == k) && (addresses[k] < a) == (i > k));
            EXPECT_TRUE((a == nullptr) == (i == 0) && (nullptr != b) == (k != 0));
            EXPECT_TRUE(a.getPointer() == addresses[i] && b.getPointer() == plain);
            EXPECT_TRUE(static_cast<ArbTrans<DPoint>*>(b) == plain &&
                        (i != k || a.hash() == b.hash()));
            if (k != 0) {
                EXPECT_TRUE(&*b == plain && b.operator->() == plain);
            }
        }
    }
    EXPECT_TRUE(Pointer() == nullptr && Pointer() == 0 && Pointer().hash() == 0);
}

} // namespace
