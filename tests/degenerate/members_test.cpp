#include <zarnex/geometry/GPoint.h>
#include <zarnex/geometry/averages.h>
#include <zarnex/geometry/tolerance.h>

#include "grid.h"

#include <cstdint>
#include <functional>
#include <type_traits>

namespace {

// What `made` makes of the coordinates of both in a wider type: whole numbers wrap.
template <class P, class Made>
P byCoordinate(const P& a, const P& b, Made made) {
    using T = decltype(P::x);
    using Wide = std::conditional_t<std::is_integral_v<T>, long long, double>;
    const auto wide = [](T coordinate) { return static_cast<Wide>(coordinate); };
    return P(static_cast<T>(made(wide(a.x), wide(b.x))),
             static_cast<T>(made(wide(a.y), wide(b.y))));
}

template <class P>
void expectSums(const P& a, const P& b) {
    EXPECT_NE(a == b, a != b);
    EXPECT_EQ(a == b, b == a);
    P sum = a;
    sum += b;
    EXPECT_TRUE(samePlace(sum, byCoordinate(a, b, std::plus<>())) && samePlace(a + b, sum));
    const P difference = byCoordinate(a, b, std::minus<>());
    EXPECT_TRUE(samePlace(a - b, difference) && samePlace(-a, P(0, 0) - a));
    if constexpr (requires { sum -= b; }) {
        P reduced = a;
        reduced -= b;
        EXPECT_TRUE(samePlace(reduced, difference));
    }
}

template <class P>
void expectDominance(const P& a, const P& b) {
    EXPECT_EQ(a < b, a.x < b.x && a.y < b.y);
    EXPECT_EQ(a > b, a.x > b.x && a.y > b.y);
    EXPECT_EQ(a <= b, a.x <= b.x && a.y <= b.y);
    EXPECT_EQ(a >= b, a.x >= b.x && a.y >= b.y);
}

template <class P>
void expectDistances(const P& a, const P& b) {
    const double dx = static_cast<double>(a.x) - b.x, dy = static_cast<double>(a.y) - b.y;
    EXPECT_TRUE(same(a.distance(b), std::sqrt(dx * dx + dy * dy)));
    EXPECT_TRUE(same(a.squaredDistance(b), dx * dx + dy * dy));
    EXPECT_TRUE(same(a.manhattanDistance(b), std::fabs(dx) + std::fabs(dy)));
}

template <class V>
void expectVectorRules(const V& u, const V& v) {
    expectSums(u, v);
    const double x = u.x, y = u.y;
    EXPECT_TRUE(same(u.squaredLength(), x * x + y * y) &&
                same(u.length(), std::sqrt(x * x + y * y)));
    EXPECT_TRUE(same(u.cross(v), x * v.y - y * v.x) && same(u * v, v * u));
    EXPECT_EQ(u < v, u.length() < v.length());
    EXPECT_EQ(u > v, u.length() > v.length());
    EXPECT_TRUE(samePlace(u.ortho(1), -u.ortho(-1)));
    EXPECT_TRUE(samePlace(V(u).reverse().reverse(), u));
    EXPECT_TRUE(!(u.normalize().length() > 1.0 + DBL_EPSILON) || std::isinf(u.length()));
    const V zero(0, 0);
    EXPECT_TRUE(samePlace(u.projectOn(zero), zero));
    EXPECT_TRUE(samePlace(u.mirror(zero), -u));
    EXPECT_TRUE(zero.isSameSense(v) || std::isnan(v.x) || std::isnan(v.y) || std::isinf(v.x) ||
                std::isinf(v.y));
    for (const int turns : {INT_MIN, INT_MAX, 0})
        u.ortho(turns);
    u.projectOn(v).isSameSense(u.mirror(v));
    u.projectOnUnit(v);
}

// What moves a place by numbers: overflow and NaN have an outcome, and null a harmless one.
template <class P>
void moveBy(const P& a, const P& b, double s, double t) {
    const double m[2][3] = {{s, t, s}, {t, -s, t}};
    P p = a;
    EXPECT_EQ(&p.matrixRot(nullptr, s), &p);
    EXPECT_TRUE(samePlace(p, a));
    p.roundScale(s, t).matrixRot(m, t).mirror(a, b).rotate(s, b).scale(s, t);
    P(a).mirror(b, b).roundScale(t, s);
    if constexpr (std::is_same_v<P, ZCoord<short>>)
        P(a).translate(b.x, b.y);
    else
        P(a).translate(s, t);
    auto v = a - b;
    v = v * s;
    v.scale(s, t);
    p = (a * s) / t;
    p += v;
    EXPECT_TRUE(samePlace(a + v, P(a) += v) && samePlace(a - v, P(a) -= v));
    const P corner(p.x, a.y);
    EXPECT_TRUE(p.xval() == p.x || std::isnan(p.x));
    EXPECT_TRUE(same(corner.xval(), p.x) && same(corner.yval(), a.y));
    EXPECT_TRUE(same(p.yval(), p.y) && same(v.xval(), v.x) && same(v.yval(), v.y));
    const auto w = v;
    EXPECT_TRUE(same(w.xval(), v.x) && same(w.yval(), v.y));
}

template <class P>
void tryAll(const std::vector<P>& grid) {
    const auto vector = [](const P& p) { return decltype(p - p)(p.x, p.y); };
    EXPECT_TRUE(samePlace(P(), P(0, 0)) && samePlace(vector(P()), decltype(vector(P()))()));
    for (const P& a : grid) {
        for (const P& b : grid) {
            SCOPED_TRACE(testing::Message()
                         << "(" << a.x << ", " << a.y << "), (" << b.x << ", " << b.y << ")");
            expectSums(a, b);
            expectDominance(a, b);
            expectDistances(a, b);
            expectVectorRules(vector(a), vector(b));
            EXPECT_EQ(isEqual(a, b), isEqual(b, a));
            if constexpr (!std::is_same_v<P, ZCoord<short>>) {
                EXPECT_EQ(isEqual(vector(a), vector(b)), isEqual(a, b));
            }
            for (const double s : numbers())
                moveBy(a, b, s, numbers()[static_cast<std::size_t>(a == b)]);
        }
        for (const double s : numbers())
            for (const double t : numbers())
                moveBy(a, grid.front(), s, t);
    }
}

TEST(DegenerateMembers, OfDoubles) {
    tryAll(places());
    for (const DPoint& a : places()) {
        for (const double d : numbers()) {
            const DVector v(a.x, a.y);
            EXPECT_TRUE(std::fabs(d) <= 1e-11 ? samePlace(v / d, v)
                                              : samePlace(v / d, DVector(a.x / d, a.y / d)));
            EXPECT_TRUE(samePlace(v * d, DVector(a.x * d, a.y * d)) && samePlace(d * v, v * d));
        }
    }
}

TEST(DegenerateMembers, Of32Bits) {
    tryAll(intPlaces());
}

TEST(DegenerateMembers, Of16Bits) {
    tryAll(shortPlaces());
    for (const ZCoord<short>& a : shortPlaces())
        for (const int tol : {0, 65535, INT_MAX, -1, INT_MIN})
            EXPECT_EQ(isEqual(a, shortPlaces().front(), tol),
                      std::abs(a.x) <= tol && std::abs(a.y) <= tol);
}

TEST(DegenerateMembers, OfPointsForDrawing) {
    using Z = ZTPoint<double>;
    for (const DPoint& a : places()) {
        const Z p(a.x, a.y);
        for (const DPoint& b : places()) {
            const Z q(b.x, b.y);
            expectSums(p, q);
            expectDominance(p, q);
            EXPECT_EQ(p == q, a.x == b.x && a.y == b.y);
            EXPECT_TRUE(samePlace(p * q, byCoordinate(p, q, std::multiplies<>())));
            EXPECT_TRUE(samePlace(p / q, byCoordinate(p, q, std::divides<>())));
            EXPECT_TRUE(samePlace(p * b.x, p * Z(b.x)) && samePlace(p / b.y, p / Z(b.y)));
        }
        GPoint g(a), h;
        EXPECT_TRUE(samePlace(DPoint(g), a) && same(g.getX(), a.x) && same(g.getY(), a.y));
        h.set(a.x, a.y);
        EXPECT_TRUE(samePlace(h, GPoint(p)));
        h.init();
        EXPECT_TRUE(samePlace(h, GPoint(0.0)));
        h.setX(a.y);
        h.setY(a.x);
        EXPECT_TRUE(samePlace(h, GPoint(a.y, a.x)));
        Z turned;
        turned.xVal() = p.yVal();
        turned.yVal() = p.xVal();
        EXPECT_TRUE(samePlace(turned, h) && same(h.xVal(), a.y) && same(h.yVal(), a.x));
    }
}

TEST(DegenerateTolerance, IsSymmetricAndNaNsAreEqualToNothing) {
    for (const double a : numbers()) {
        EXPECT_FALSE(IS_ZERO(a, NAN));
        EXPECT_EQ(IS_ZERO(a), std::fabs(a) <= 1e-9);
        for (const double b : numbers()) {
            for (const double tol : numbers()) {
                const int equal = std::fabs(a - b) <= tol;
                EXPECT_EQ(IS_EQUAL(a, b, tol), equal);
                EXPECT_EQ(isEqual(DPoint(a, 7), DPoint(b, 7), tol), equal && 0.0 <= tol);
                EXPECT_EQ(isEqual(DVector(7, a), DVector(7, b), tol), equal && 0.0 <= tol);
            }
        }
    }
    EXPECT_FALSE(IS_EQUAL(INT_MIN, INT_MAX) || IS_EQUAL(LONG_MIN, LONG_MAX) || IS_ZERO(INT_MIN));
    EXPECT_FALSE(IS_EQUAL(-1LL, UINT64_MAX) || IS_EQUAL(-1, UINT_MAX) || IS_ZERO(LLONG_MIN));
}

TEST(DegenerateAverages, AreByTheCoordinate) {
    for (const DPoint& a : places()) {
        for (const DPoint& b : places()) {
            EXPECT_TRUE(samePlace(midpoint(a, b), (a + b) * 0.5));
            DPoint p = a, q = b;
            pointsAverage(p, q);
            EXPECT_TRUE(samePlace(p, q) && samePlace(p, (a + b) / 2.0));
            for (const double w : numbers())
                EXPECT_TRUE(samePlace(weightedSum(a, w, b, 3.0), a * w + b * 3.0));
        }
    }
}

} // namespace
