#pragma once

/// The real roots of quadratic equations.
///
/// Both solvers write only as many roots as they count, and none through a null pointer.
/// Coefficients that are NaN, or overflow on the way, may give roots that are NaN, infinite
/// or 0, and any count.

#include <zarnex/config.h>

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
