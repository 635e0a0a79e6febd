#pragma once

#include <zarnex/bigint/internal/Scratch.h>

namespace zarnex::detail {

/// Arithmetic modulo an odd number m > 1 of n limbs, on numbers in Montgomery's form:
/// x * 2^(64 n) mod m stands for x.
///
/// Products are made whole and then reduced, so that squares can have a routine of their own
/// and long ones the method for long numbers.
///
/// Source: Montgomery, "Modular multiplication without trial division", Mathematics of
/// Computation 44 (1985); the orders of the work: Koc, Acar and Kaliski, "Analyzing and
/// comparing Montgomery multiplication algorithms", IEEE Micro 16 (1996).
class Montgomery {
public:
    /// `modulus` must outlive the object; its top limb is not 0.
    Montgomery(const Limb* modulus, Size count);

    /// The limbs of every number here.
    Size size() const {
        return count_;
    }

    /// out = the form of `number`, which is any number of any size.
    void enter(Limb* out, const Limb* number, Size count);

    /// out = the number that `form` stands for.
    void leave(Limb* out, const Limb* form);

    /// out = a * b; `out` may be an operand.
    void multiply(Limb* out, const Limb* a, const Limb* b);
    void square(Limb* out, const Limb* a);

private:
    void reduce(Limb* out);

    const Limb* modulus_;
    Size count_;
    Limb inverse_;    ///< -1 / modulus modulo 2^64
    Scratch product_; ///< 2 * count_ limbs
};

} // namespace zarnex::detail
