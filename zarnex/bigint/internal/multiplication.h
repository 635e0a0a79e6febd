#pragma once

/// Products of numbers of several limbs. `out` must not overlap the operands.

#include <zarnex/bigint/internal/limb.h>

namespace zarnex::detail {

/// Adds a[0] * b[0] + a[1] * b[-1] + a[2] * b[-2] + ..., `count` products.
inline void addColumn(Accumulator& sum, const Limb* a, const Limb* b, Size count) {
    Size i = 0;
    for (; i + 4 <= count; i += 4) {
        sum.addProduct(a[i], b[-i]);
        sum.addProduct(a[i + 1], b[-i - 1]);
        sum.addProduct(a[i + 2], b[-i - 2]);
        sum.addProduct(a[i + 3], b[-i - 3]);
    }
    for (; i < count; ++i)
        sum.addProduct(a[i], b[-i]);
}

/// out = a * factor, in `count` limbs; returns the limb above. `out` may be `a`.
Limb multiplyByLimb(Limb* out, const Limb* a, Size count, Limb factor);

/// out = a * b, in aCount + bCount limbs. Both counts are at least 1.
///
/// Takes aCount * bCount steps for short numbers and, with m the lesser and n the
/// greater count, about n * m^0.585 for long ones.
void multiply(Limb* out, const Limb* a, Size aCount, const Limb* b, Size bCount);

/// out = a * a, in 2 * count limbs, in about two thirds of the time.
void square(Limb* out, const Limb* a, Size count);

/// The lower `count` limbs of the products of numbers of `count` limbs, in about half the
/// steps.
void multiplyLow(Limb* out, const Limb* a, const Limb* b, Size count);
void squareLow(Limb* out, const Limb* a, Size count);

} // namespace zarnex::detail
