#pragma once

/// Products of numbers of several limbs. `out` must not overlap the operands.

#include <zarnex/bigint/internal/limb.h>

namespace zarnex::detail {

/// out = a * factor, in `count` limbs; returns the limb above. `out` may be `a`.
Limb multiplyByLimb(Limb* out, const Limb* a, Size count, Limb factor);

/// out = a * b, in aCount + bCount limbs. Both counts are at least 1.
///
/// Takes aCount * bCount steps for short numbers and, with m the lesser and n the
/// greater count, about n * m^0.585 for long ones.
void multiply(Limb* out, const Limb* a, Size aCount, const Limb* b, Size bCount);

/// out = a * a, in 2 * count limbs, in about two thirds of the time.
void square(Limb* out, const Limb* a, Size count);

} // namespace zarnex::detail
