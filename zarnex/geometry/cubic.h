#pragma once

/// @file
/// The real roots of cubic equations.

#include <zarnex/config.h>

/// The real roots of a * x^3 + b * x^2 + c * x + d = 0, into roots[0] on; returns their
/// number, 0 to 3. `roots` has room for three; entries past the number stay as they are.
/// With a null `roots` only the number is returned.
///
/// Three roots come in falling order, but for rounding; two are the single root, then the
/// double one; a triple root comes once. Where `a` counts as zero, the roots are those of
/// ZQuadraticSolver, in its order; where `b` does too, -d/c alone; where `c` does too, none.
///
/// The last bits are those of cbrt, acos and cos in the platform's mathematical library.
///
/// Coefficients that are NaN, or overflow on the way, may give roots that are NaN or
/// infinite, and any number from 0 to 3.
///
/// Kept as is: the bounds are absolute. An |a| up to 1e-6 counts as zero, then |b| and |c|
/// up to 1e-9. A discriminant up to 1e-9 in size is a double root, which spoils small roots:
/// x^3 = 0.00001 gives 0.034 and -0.017, not 0.0215.
///
/// Kept as is: the turns by a third of a half circle have the short pi 3.141592654 of
/// angle(), so that the second and third of three roots are about 1e-10 of their spread off.
///
/// Source: Cardano's formula; with three roots, Viete's by cosines.
ZARNEX_API int cubicRoots(double a, double b, double c, double d, double* roots);
