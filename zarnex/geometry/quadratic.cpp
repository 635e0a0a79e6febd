#include <zarnex/geometry/quadratic.h>

#include <cmath>

namespace {

using zarnex::detail::oneRoot;
using zarnex::detail::twoRoots;

int rootsWithin(double* r1, double* r2, double a, double b, double c, double zeroTol,
                double discTol) {
    if (std::fabs(a) < zeroTol)
        return std::fabs(b) >= zeroTol ? oneRoot(r1, -c / b) : 0;
    const double p = b / a;
    const double q = c / a;
    const double disc = p * p - 4.0 * q;
    const double bound = std::fabs(discTol);
    if (-disc > bound)
        return 0;
    if (disc < bound)
        return oneRoot(r1, -0.5 * p);
    const double d = std::sqrt(disc);
    const double larger = -0.5 * (p + (p < 0.0 ? -d : d));
    return twoRoots(r1, r2, larger, q / larger);
}

} // namespace

void ZQuadraticSolver::quadraticSolve(int* count, double* r1, double* r2, double a, double b,
                                      double c, double zeroTol, double discTol) {
    const int written = rootsWithin(r1, r2, a, b, c, zeroTol, discTol);
    if (count != nullptr)
        *count = written;
}
