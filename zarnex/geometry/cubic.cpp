#include <zarnex/geometry/cubic.h>

#include <zarnex/geometry/quadratic.h>
#include <zarnex/geometry/tolerance.h>

#include <cmath>

namespace {

constexpr double third = 0.3333333333333333;
constexpr double twoOver27 = 0.07407407407407407;

// Kept as is: a third of the short pi 3.141592654.
constexpr double thirdOfHalfTurn = 1.0471975513333334;

// Of b * x^2 + c * x + d.
int quadraticRoots(double b, double c, double d, double* roots) {
    if (IS_ZERO(b)) {
        if (IS_ZERO(c))
            return 0;
        roots[0] = -d / c;
        return 1;
    }
    int count = 0;
    ZQuadraticSolver::quadraticSolve(&count, &roots[0], &roots[1], b, c, d, 1e-20, 1e-9);
    return count;
}

// Of y^3 + 3p * y + 2q.
int depressedRoots(double p, double q, double* roots) {
    const double disc = q * q + p * p * p;
    if (IS_ZERO(disc)) {
        if (IS_ZERO(q)) {
            roots[0] = 0.0;
            return 1;
        }
        const double u = std::cbrt(-q);
        roots[0] = 2.0 * u;
        roots[1] = -u;
        return 2;
    }
    if (disc < 0.0) {
        const double cosine = -q / std::sqrt(-(p * p * p));
        if (!(cosine >= -1.0 && cosine <= 1.0))
            return 0;
        const double phi = std::acos(cosine) / 3.0;
        const double s = std::sqrt(-p);
        roots[0] = 2.0 * s * std::cos(phi);
        roots[1] = -2.0 * s * std::cos(phi + thirdOfHalfTurn);
        roots[2] = -2.0 * s * std::cos(phi - thirdOfHalfTurn);
        return 3;
    }
    const double w = std::sqrt(disc);
    roots[0] = std::cbrt(w - q) - std::cbrt(w + q);
    return 1;
}

int rootsOf(double a, double b, double c, double d, double* roots) {
    constexpr double noCubicWithin = 1e-6;
    if (IS_ZERO(a, noCubicWithin))
        return quadraticRoots(b, c, d, roots);
    const double B = b / a;
    const double C = c / a;
    const double D = d / a;
    const double p = third * (C - third * (B * B));
    const double q = 0.5 * (twoOver27 * (B * B * B) - third * B * C + D);
    const int count = depressedRoots(p, q, roots);
    for (int i = 0; i < count; ++i)
        roots[i] -= B / 3.0;
    return count;
}

} // namespace

int cubicRoots(double a, double b, double c, double d, double* roots) {
    double unwanted[3];
    return rootsOf(a, b, c, d, roots != nullptr ? roots : unwanted);
}
