#include <zarnex/geometry/circleCentre.h>
#include <zarnex/geometry/cubic.h>
#include <zarnex/geometry/quadratic.h>
#include <zarnex/geometry/tolerance.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace {

// The test by the sine itself, without the short way for steps that are clearly bent.
TEST(CircleCentre, IsRefusedByTheSineOfNormalizedSteps) {
    std::mt19937 random(6);
    std::uniform_real_distribution<double> mantissa(-1.0, 1.0);
    int refused = 0;
    for (int i = 0; i < 20000; ++i) {
        const double size = std::ldexp(1.0, static_cast<int>(random() % 24) - 12);
        const DVector u = DVector(mantissa(random), mantissa(random)) * size;
        // Sines from 0 to about 0.02, most of them next to the bound.
        const double sine = 0.01 + std::ldexp(mantissa(random), -7 - static_cast<int>(i % 45));
        const DPoint p1(0.0, 0.0), p2(u.x, u.y);
        const DPoint p3 = p1 + u * std::sqrt(1.0 - sine * sine) + u.ortho(1) * sine;
        if (isEqual(p3, p2, 1e-7) || isEqual(p2, p1, 1e-7) || u.squaredLength() < 1e-4)
            continue;
        const bool isStraight =
            std::fabs((p2 - p1).normalize().cross((p3 - p1).normalize())) < 0.01;
        refused += isStraight;
        ASSERT_EQ(computeCentre(nullptr, p1, p2, p3), isStraight ? -1 : 0) << u.x << " " << u.y;
    }
    EXPECT_GT(refused, 1000);
}

TEST(CircleCentre, TheTwoRefuseDifferentPoints) {
    const DPoint before(-12345, -12345);
    const DPoint remote(-1.1624689811485716e+23, 1.2916322012761913e+22); // by rounding alone
    const struct {
        DPoint p1, p2, p3;
        int angled, eliminated;
        DPoint centre;
    } rows[] = {
        {{0, 0}, {2, 0}, {0, 2}, 0, 0, {1, 1}},
        {{0, 0}, {0, 2}, {2, 0}, 0, 0, {1, 1}}, // rows exchanged
        {{0, 0}, {1, 0}, {2, 0}, -1, -1, before},
        {{0, 0}, {4e-10, 1}, {0, 2}, -1, -1, before}, // no pivot
        {{0, 0}, {1e-9, 0}, {0, 10}, -1, -1, before}, // two of them near, in each place
        {{0, 0}, {0, 10}, {1e-9, 0}, -1, -1, before},
        {{0, 0}, {0, 10}, {1e-9, 10}, -1, -1, before},
        {{0, 0}, {1.5e-9, 0}, {0, 10}, -1, 0, {7.5e-10, 5}},
        {{0, 0}, {0, 10}, {1.5e-9, 10}, -1, 0, {0, 5}},
        {{0, 0}, {100, 0}, {100, 1.005}, 0, 0, {50, 0.5025}}, // sines around 0.01
        {{0, 0}, {100, 0}, {100, 0.999}, -1, 0, {50, 0.4995}},
        {{0, 0}, {100, 0}, {200, 1}, -1, 0, {50, 10000.5}},
        {{0, 0}, {16, 0}, {0, 2e-6}, -1, 0, {8, 1e-6}},                 // a short step from p1
        {{0, 0}, {1e-5, 0}, {0, 1e-5}, -1, 0, {5e-6, 5e-6}},            // a small area
        {{0, 0}, {679008, 6111072}, {1111104, 9999936}, -1, 0, remote}, // on one line
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        DPoint angled = before, eliminated = before;
        EXPECT_EQ(computeCentre(&angled, row.p1, row.p2, row.p3), row.angled);
        EXPECT_EQ(LUcomputeCentre(&eliminated, row.p1, row.p2, row.p3), row.eliminated);
        EXPECT_LT(angled.distance(row.angled == 0 ? row.centre : before), 1e-8);
        EXPECT_LT(eliminated.distance(row.eliminated == 0 ? row.centre : before), 1e-8);
    }
}

int fixed(const double* k, double* r) {
    return quadraticSolve(&r[0], &r[1], k[0], k[1], k[2]);
}

// The tolerances follow the coefficients.
int chosen(const double* k, double* r) {
    int count = -1;
    ZQuadraticSolver().quadraticSolve(&count, &r[0], &r[1], k[0], k[1], k[2], k[3], k[4]);
    return count;
}

int cubic(const double* k, double* r) {
    return cubicRoots(k[0], k[1], k[2], k[3], r);
}

TEST(Roots, ComeInTheirOrderWithinAbsoluteBounds) {
    const double small = std::cbrt(1.1e-9), spoilt = std::cbrt(3.1e-5);
    constexpr double d = 7.0 / 2048; // whose square, 1.168e-5, is the discriminant
    const struct {
        int (*solve)(const double* coefficients, double* roots);
        double coefficients[5];
        std::vector<double> roots;
    } rows[] = {
        {fixed, {0, 2, -4}, {2}},
        {fixed, {9e-11, 9e-11, 5}, {}},
        {fixed, {2, 0, 0}, {0}},
        {fixed, {2, -4, 9e-11}, {0, 2}},
        {fixed, {1, 0, 1}, {}},
        {fixed, {-1, 0, 4}, {2, -2}},
        {fixed, {1, -3, 2}, {1, 2}},
        {fixed, {2, -8, 8}, {2}},
        {fixed, {1e-10, 2, 0}, {0, -2 / 1e-10}},
        {fixed, {1, 2, 1 - 9e-6 / 4}, {-1}}, // a discriminant of 9e-6, -9e-6, -1.1e-5
        {fixed, {1, 2, 1 + 9e-6 / 4}, {-1}},
        {fixed, {1, 2, 1 + 1.1e-5 / 4}, {}},
        {fixed, {1, 2, 1 - d * d / 4}, {-1 - d / 2, -1 + d / 2}},
        {fixed, {0.25, 1e-10, 1.0000000000000011e-05}, {}}, // exactly -1e-5, and 1e-5
        {fixed,
         {0.25, 0.0031, -3.9000000000000135e-07},
         {-0.012524555320336767, 0.0001245553203367591}},
        {fixed, {1, 1e9, 1}, {HUGE_VAL, -1e-9}}, // cancelled
        {chosen, {1, 1e9, 1, 1e-9, 1e-9}, {-1e9, -1e-9}},
        {chosen, {0.5, 0.5, 2, 0.5, 0}, {}}, // 0.5 is not below 0.5
        {chosen, {0.4, 0.5, 2, 0.5, 0}, {-4}},
        {chosen, {2, -6, 4, 1e-9, 1e-9}, {2, 1}},
        {chosen, {1, 0, -4, 1e-9, 1e-9}, {-2, 2}},
        {chosen, {1, -2, 0, 1e-9, 4}, {2, 0}}, // a discriminant of 4, then of -4
        {chosen, {1, -2, 0, 1e-9, 4.1}, {1}},
        {chosen, {1, 0, 1, 1e-9, -4}, {0}},
        {chosen, {1, 0, 1, 1e-9, 3.9}, {}},
        {chosen, {1, 0, 0, 1e-9, 0}, {0, NAN}},
        {chosen, {0, 1, -1, 0, 1e-9}, {-HUGE_VAL, NAN}}, // divided by 0
        {cubic, {1, -6, 11, -6}, {3, 2, 1}},
        {cubic, {2, -12, 24, -16}, {2}},
        {cubic, {1, -3, 0, 4}, {-1, 2}},
        {cubic, {1, 0, 1, -10}, {2}},
        {cubic, {1, -600, 110000, -6e6}, {300, 200.00000001578886, 100.00000000789444}},
        {cubic, {1e-6, 1, -3, 2}, {2, 1}}, // a counts as zero
        {cubic, {1.1e-6, 1, -3, 2}, {1.9999840122763999, 1.000080055790022, -909093.909083209}},
        {cubic, {0, 1, -2, 1 - 1e-8}, {1.0001, 0.9999}},
        {cubic, {0, 1, -2, 1 - 2e-10}, {1}},
        {cubic, {0, 1e-9, 2, -4}, {2}},
        {cubic, {0, 2e-9, 2, -4}, {-1000000001.9999999, 1.999999996}},
        {cubic, {0, 0, 1e-9, 5}, {}},
        {cubic, {0, 0, 2e-9, 4e-9}, {-2}},
        {cubic, {1, 0, 0, 2e-9}, {0}},
        {cubic, {1, 0, 0, 2.2e-9}, {-2 * small, small}},
        {cubic, {1, 0, 0, -6.2e-5}, {2 * spoilt, -spoilt}}, // 0.0396 would be the root
        {cubic, {1, 0, 0, -6.4e-5}, {0.04}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        double found[3] = {};
        ASSERT_EQ(row.solve(row.coefficients, found), static_cast<int>(row.roots.size()));
        for (std::size_t i = 0; i < row.roots.size(); ++i) {
            const double expected = row.roots[i];
            EXPECT_TRUE(found[i] == expected || (std::isnan(found[i]) && std::isnan(expected)) ||
                        (row.solve == cubic && std::fabs(found[i] - expected) < 1e-9))
                << found[i];
        }
    }
}

} // namespace
