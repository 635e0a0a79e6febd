#pragma once

/// What is made of rows, for the processor that the library runs on.

#include <zarnex/bigint/internal/limb.h>

namespace zarnex::detail {

/// `out` must not overlap the operands.
struct Kernels {
    /// out += a * factor, in `count` limbs; returns what is to be added to the limb above.
    Limb (*addMultiple)(Limb* out, const Limb* a, Size count, Limb factor);

    /// out = a * b, in aCount + bCount limbs, both counts at least 1.
    void (*multiply)(Limb* out, const Limb* a, Size aCount, const Limb* b, Size bCount);

    /// out = the lower `count` limbs of a * b.
    void (*multiplyLow)(Limb* out, const Limb* a, const Limb* b, Size count);

    /// out = a * a, in 2 * count limbs; count at least 1.
    void (*square)(Limb* out, const Limb* a, Size count);

    /// Adds the multiple of `modulus` to `number`, which has 2 * count limbs, that makes the
    /// lower half zero, and leaves the upper half in `out`. `inverse` is -1 / modulus[0].
    /// Returns the carry. The lower half of `number` is lost.
    unsigned char (*reduce)(Limb* out, Limb* number, const Limb* modulus, Size count, Limb inverse);
};

/// The fastest ones; where the environment has ZARNEX_PLAIN_KERNELS, as the tests set it, those
/// for every processor. Chosen at the first call.
const Kernels& kernels();

} // namespace zarnex::detail
