#include "../rows.h"
#include "plane.h"

#include <zarnex/geometry/cubic.h>
#include <zarnex/geometry/quadratic.h>

#if BENCH_GSL
#include <gsl/gsl_poly.h>
#endif

#include <cmath>
#include <vector>

namespace bench {

namespace {

constexpr std::size_t cases = 4096;

bool isSmall(double v) {
    return std::fabs(v) < 1e-10;
}

// The library's formulas and bounds, by hand.

int plainQuadratic(double* r, double a, double b, double c) {
    if (isSmall(a)) {
        if (isSmall(b))
            return 0;
        r[0] = -c / b;
        return 1;
    }
    if (isSmall(c)) {
        r[0] = 0.0;
        if (isSmall(b))
            return 1;
        r[1] = -b / a;
        return 2;
    }
    if (isSmall(b)) {
        if (a * c > 0.0)
            return 0;
        r[0] = std::sqrt(-c / a);
        r[1] = -r[0];
        return 2;
    }
    const double disc = b * b - 4.0 * a * c;
    if (disc <= -1e-5)
        return 0;
    if (disc < 1e-5) {
        r[0] = -0.5 * b / a;
        return 1;
    }
    const double d = std::sqrt(disc);
    r[0] = 2.0 * c / (-b + d);
    r[1] = 2.0 * c / (-b - d);
    return 2;
}

int plainCubic(double* r, double a, double b, double c, double d) {
    const double third = 1.0 / 3.0;
    const double B = b / a;
    const double C = c / a;
    const double D = d / a;
    const double p = third * (C - third * (B * B));
    const double q = 0.5 * (2.0 / 27.0 * (B * B * B) - third * B * C + D);
    const double disc = q * q + p * p * p;
    int count = 1;
    if (std::fabs(disc) <= 1e-9) {
        const double u = std::cbrt(-q);
        r[0] = 2.0 * u;
        r[1] = -u;
        count = std::fabs(q) <= 1e-9 ? 1 : 2;
    } else if (disc < 0.0) {
        const double phi = std::acos(-q / std::sqrt(-(p * p * p))) / 3.0;
        const double s = std::sqrt(-p);
        r[0] = 2.0 * s * std::cos(phi);
        r[1] = -2.0 * s * std::cos(phi + 1.0471975513333334);
        r[2] = -2.0 * s * std::cos(phi - 1.0471975513333334);
        count = 3;
    } else {
        const double w = std::sqrt(disc);
        r[0] = std::cbrt(w - q) - std::cbrt(w + q);
    }
    for (int i = 0; i < count; ++i)
        r[i] -= B / 3.0;
    return count;
}

/// The sum of all roots of all equations in `pool`, of `Terms` coefficients each.
template <std::size_t Terms, class Solve>
auto sumOfRoots(const std::vector<double>& pool, Solve solve) {
    return [&pool, solve] {
        double sum = 0.0;
        for (std::size_t i = 0; i < pool.size(); i += Terms) {
            double roots[Terms - 1];
            const int count = solve(&pool[i], roots);
            for (int root = 0; root < count; ++root)
                sum += roots[root];
        }
        return sum;
    };
}

void quadraticRow(Suite& suite) {
    suite.row("quadratic roots", 1.0, "Random equations, most with two real roots or none.",
              [](Row& row, const auto& measure) {
                  std::vector<double> pool = randomNumbers(3 * cases, -10.0, 10.0, 7);
                  row.per(cases);
                  row.tolerance(1e-9);
                  row.ours(sumOfRoots<3>(pool, [](const double* k, double* r) {
                      return quadraticSolve(&r[0], &r[1], k[0], k[1], k[2]);
                  }));
                  row.peer("by hand", sumOfRoots<3>(pool, [](const double* k, double* r) {
                               return plainQuadratic(r, k[0], k[1], k[2]);
                           }));
#if BENCH_GSL
                  row.peer("GSL", sumOfRoots<3>(pool, [](const double* k, double* r) {
                               return gsl_poly_solve_quadratic(k[0], k[1], k[2], &r[0], &r[1]);
                           }));
#endif
                  measure();
              });
}

/// Equations with one real root or with three.
std::vector<double> cubics(bool threeRoots) {
    std::vector<double> pool;
    const std::vector<double> roots = randomNumbers(3 * cases, -10.0, 10.0, 8);
    for (std::size_t i = 0; i < roots.size(); i += 3) {
        // (x - r) * (x^2 + m * x + n)
        const double r = roots[i];
        const double m = -(roots[i + 1] + roots[i + 2]);
        const double n =
            threeRoots ? roots[i + 1] * roots[i + 2] : m * m + 1.0 + std::fabs(roots[i + 1]);
        pool.insert(pool.end(), {1.0, m - r, n - r * m, -r * n});
    }
    return pool;
}

void cubicRow(Suite& suite, const char* name, const char* what, bool threeRoots) {
    suite.row(name, 1.0, what, [threeRoots](Row& row, const auto& measure) {
        const std::vector<double> pool = cubics(threeRoots);
        row.per(cases);
        row.tolerance(1e-6);
        if (!threeRoots)
            row.why("With one root the formula, whose rounding is fixed, takes two cube roots, "
                    "most of the time; GSL takes one power.");
        row.ours(sumOfRoots<4>(pool, [](const double* k, double* r) {
            return cubicRoots(k[0], k[1], k[2], k[3], r);
        }));
        row.peer("by hand", sumOfRoots<4>(pool, [](const double* k, double* r) {
                     return plainCubic(r, k[0], k[1], k[2], k[3]);
                 }));
#if BENCH_GSL
        row.peer("GSL", sumOfRoots<4>(pool, [](const double* k, double* r) {
                     return gsl_poly_solve_cubic(k[1] / k[0], k[2] / k[0], k[3] / k[0], &r[0],
                                                 &r[1], &r[2]);
                 }));
#endif
        measure();
    });
}

} // namespace

void rootRows(Suite& suite) {
    quadraticRow(suite);
    cubicRow(suite, "cubic roots, one", "Random equations with one real root.", false);
    cubicRow(suite, "cubic roots, three", "Random equations with three real roots.", true);
}

} // namespace bench
