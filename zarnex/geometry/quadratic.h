#pragma once

/// @file
/// The real roots of quadratic equations.
///
/// Both solvers write only as many roots as they count, and none through a null pointer.
/// Coefficients that are NaN, or overflow on the way, may give roots that are NaN, infinite
/// or 0, and any count.

#include <zarnex/config.h>

#include <cmath>

/// The real roots of a * x^2 + b * x + c = 0. Returns how many were written: 0, 1 (to r1;
/// a double root counts once) or 2.
///
/// Coefficients smaller than 1e-10 in size count as zero. An equation without x, even
/// 0 = 0, has no root here. Without a constant the roots are 0, then -b/a; without a linear
/// term the positive root comes first; else they rise for an `a` above 0 and fall below.
///
/// Kept as is: the bounds are absolute. With a discriminant b^2 - 4ac between -1e-5 and
/// 1e-5 there is one root, a double one: 0.0015 for x^2 - 0.003x + 0.000002, although 0.001 and
/// 0.002 solve it. Only where b or c counts as zero is the discriminant not asked.
///
/// Kept as is: the roots are 2c / (-b + d) and 2c / (-b - d) with the root d of the
/// discriminant. One of the two sums cancels where b^2 is far above 4|ac|, and its root, the
/// greater one in size, loses digits, down to an infinity for x^2 + 1e9 x + 1.
/// ZQuadraticSolver keeps them.
ZARNEX_API int quadraticSolve(double* r1, double* r2, double a, double b, double c);

/// The same equation with tolerances of the caller's choice. Holds no data.
class ZARNEX_API ZQuadraticSolver {
public:
    /// Writes the number of real roots, 0 to 2, to `count`, and the roots.
    ///
    /// An |a| below `zeroTol` counts as zero; then so does a |b| below it, and without either
    /// there is no root. `discTol`, whose sign is ignored, bounds (b/a)^2 - 4c/a: from
    /// -discTol on, up to but not including discTol, there is one root, a double one; below
    /// there is none. With a `zeroTol` of 0 or below nothing counts as zero: an `a` of 0 is
    /// divided by, which gives two roots, infinite or NaN.
    ///
    /// The root without cancellation comes first, the greater one in size; the second is c/a
    /// over the first.
    ///
    /// Kept as is: with a `discTol` of 0 a double root counts as two, and x^2 = 0 then has
    /// the roots 0 and NaN.
    static void quadraticSolve(int* count, double* r1, double* r2, double a, double b, double c,
                               double zeroTol, double discTol);
};

namespace zarnex::detail {

/// Each writes the roots, as far as they have a place, and returns their number.
inline int oneRoot(double* r1, double root) {
    if (r1 != nullptr)
        *r1 = root;
    return 1;
}

inline int twoRoots(double* r1, double* r2, double first, double second) {
    if (r1 != nullptr)
        *r1 = first;
    if (r2 != nullptr)
        *r2 = second;
    return 2;
}

/// Whether quadraticSolve() takes a coefficient as zero.
inline bool isNoCoefficient(double coefficient) {
    return std::fabs(coefficient) < 1e-10;
}

/// The size of the discriminant below which quadraticSolve() finds a double root.
inline constexpr double doubleRootBelow = 1e-5;

} // namespace zarnex::detail

ZARNEX_INLINE int quadraticSolve(double* r1, double* r2, double a, double b, double c) {
    namespace detail = zarnex::detail;
    const bool noLinear = detail::isNoCoefficient(b);
    if (detail::isNoCoefficient(a))
        return noLinear ? 0 : detail::oneRoot(r1, -c / b);
    if (detail::isNoCoefficient(c))
        return noLinear ? detail::oneRoot(r1, 0.0) : detail::twoRoots(r1, r2, 0.0, -b / a);
    if (noLinear) {
        if (a * c > 0.0)
            return 0;
        const double root = std::sqrt(-c / a);
        return detail::twoRoots(r1, r2, root, -root);
    }
    const double disc = b * b - 4.0 * a * c;
    if (disc <= -detail::doubleRootBelow)
        return 0;
    if (std::fabs(disc) < detail::doubleRootBelow)
        return detail::oneRoot(r1, -0.5 * b / a);
    const double d = std::sqrt(disc);
    return detail::twoRoots(r1, r2, 2.0 * c / (-b + d), 2.0 * c / (-b - d));
}
