#include <zarnex/geometry/quadratic.h>

#include <cmath>

namespace {

struct Roots {
    int count = 0;
    double first = 0.0;
    double second = 0.0;
};

int write(const Roots& roots, double* r1, double* r2) {
    if (r1 != nullptr && roots.count > 0)
        *r1 = roots.first;
    if (r2 != nullptr && roots.count > 1)
        *r2 = roots.second;
    return roots.count;
}

bool isSmall(double coefficient) {
    return std::fabs(coefficient) < 1e-10;
}

Roots rootsOf(double a, double b, double c) {
    constexpr double doubleRootBelow = 1e-5;
    if (isSmall(a))
        return isSmall(b) ? Roots{} : Roots{1, -c / b};
    if (isSmall(c))
        return isSmall(b) ? Roots{1, 0.0} : Roots{2, 0.0, -b / a};
    if (isSmall(b)) {
        if (a * c > 0.0)
            return {};
        const double root = std::sqrt(-c / a);
        return {2, root, -root};
    }
    const double disc = b * b - 4.0 * a * c;
    if (disc <= -doubleRootBelow)
        return {};
    if (std::fabs(disc) < doubleRootBelow)
        return {1, -0.5 * b / a};
    const double d = std::sqrt(disc);
    return {2, 2.0 * c / (-b + d), 2.0 * c / (-b - d)};
}

Roots rootsWithin(double a, double b, double c, double zeroTol, double discTol) {
    if (std::fabs(a) < zeroTol)
        return std::fabs(b) >= zeroTol ? Roots{1, -c / b} : Roots{};
    const double p = b / a;
    const double q = c / a;
    const double disc = p * p - 4.0 * q;
    const double bound = std::fabs(discTol);
    if (-disc > bound)
        return {};
    if (disc < bound)
        return {1, -0.5 * p};
    const double d = std::sqrt(disc);
    const double larger = -0.5 * (p + (p < 0.0 ? -d : d));
    return {2, larger, q / larger};
}

} // namespace

int quadraticSolve(double* r1, double* r2, double a, double b, double c) {
    return write(rootsOf(a, b, c), r1, r2);
}

void ZQuadraticSolver::quadraticSolve(int* count, double* r1, double* r2, double a, double b,
                                      double c, double zeroTol, double discTol) {
    const int written = write(rootsWithin(a, b, c, zeroTol, discTol), r1, r2);
    if (count != nullptr)
        *count = written;
}
