#include <zarnex/bigint/internal/Montgomery.h>

#include <zarnex/bigint/internal/division.h>
#include <zarnex/bigint/internal/kernels.h>
#include <zarnex/bigint/internal/limbs.h>
#include <zarnex/bigint/internal/multiplication.h>

#include <algorithm>

namespace zarnex::detail {

namespace {

// -1 / odd modulo 2^64, by Newton's iteration.
Limb negatedInverse(Limb odd) {
    Limb inverse = odd; // right in the lowest three bits
    for (int bits = 3; bits < limbBits; bits *= 2)
        inverse *= 2 - odd * inverse;
    return 0 - inverse;
}

} // namespace

Montgomery::Montgomery(const Limb* modulus, Size count)
    : modulus_(modulus), count_(count), inverse_(negatedInverse(modulus[0])), product_(2 * count) {}

void Montgomery::enter(Limb* out, const Limb* number, Size count) {
    Scratch shifted(count_ + (std::max)(count, count_) + 1);
    std::fill_n(static_cast<Limb*>(shifted), count_, Limb{0});
    std::copy_n(number, count, shifted + count_);
    remainder(shifted, shifted, count_ + count, modulus_, count_);
    std::copy_n(static_cast<Limb*>(shifted), count_, out);
}

void Montgomery::leave(Limb* out, const Limb* form) {
    std::fill_n(std::copy_n(form, count_, static_cast<Limb*>(product_)), count_, Limb{0});
    reduce(out);
}

void Montgomery::multiply(Limb* out, const Limb* a, const Limb* b) {
    detail::multiply(product_, a, count_, b, count_);
    reduce(out);
}

void Montgomery::square(Limb* out, const Limb* a) {
    detail::square(product_, a, count_);
    reduce(out);
}

// out = product_ / 2^(64 n).
void Montgomery::reduce(Limb* out) {
    const unsigned char carry = kernels().reduce(out, product_, modulus_, count_, inverse_);
    if (carry != 0 || compare(out, modulus_, count_) >= 0)
        subtract(out, out, modulus_, count_);
}

} // namespace zarnex::detail
