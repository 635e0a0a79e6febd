#include <zarnex/bigint/SigUInt.h>

#include <zarnex/bigint/internal/Montgomery.h>
#include <zarnex/bigint/internal/Scratch.h>
#include <zarnex/bigint/internal/kernels.h>
#include <zarnex/bigint/internal/limbs.h>
#include <zarnex/bigint/internal/power.h>

#include <algorithm>
#include <limits>

namespace {

using namespace zarnex::detail;

// Products of two remainders must have room in a number.
constexpr int longestModulus = (std::numeric_limits<int>::max)() / 2;

// Arithmetic modulo 2^(64 n).
class LowLimbs {
public:
    explicit LowLimbs(Size count) : count_(count), product_(count) {}

    Size size() const {
        return count_;
    }

    void multiply(Limb* out, const Limb* a, const Limb* b) {
        kernels().multiplyLow(product_, a, b, count_);
        std::copy_n(static_cast<Limb*>(product_), count_, out);
    }

    void square(Limb* out, const Limb* a) {
        multiply(out, a, a);
    }

private:
    Size count_;
    Scratch product_;
};

} // namespace

// *this mod 2^bits.
SigUInt SigUInt::lowBits(int bits) const {
    if (bitLength() <= bits)
        return *this;
    SigUInt low;
    const int count = (bits + limbBits - 1) / limbBits;
    low.reserve(count);
    std::copy_n(limbs_, count, low.limbs_);
    if (bits % limbBits != 0)
        low.limbs_[count - 1] &= ~(~Limb{0} << (bits % limbBits));
    low.setSize(count);
    return low;
}

// *this to the power of `exponent` > 0, modulo an odd number > 1.
SigUInt SigUInt::powerModOdd(const SigUInt& exponent, const SigUInt& modulus) const {
    Montgomery ring(modulus.limbs_, modulus.size_);
    SigUInt result;
    result.reserve(modulus.size_);
    Scratch base(modulus.size_);
    ring.enter(base, limbs_, size_);
    power(ring, result.limbs_, base, exponent.limbs_, exponent.bitLength());
    ring.leave(result.limbs_, result.limbs_);
    result.setSize(modulus.size_);
    return result;
}

// *this to the power of `exponent` > 0, modulo 2^bits, with bits > 0.
SigUInt SigUInt::powerModTwos(const SigUInt& exponent, int bits) const {
    SigUInt base = lowBits(bits);
    if (base.isZero())
        return base;
    const bool odd = base.limbs_[0] % 2 != 0;
    if (!odd && exponent.bitLength() > 31)
        return 0; // at least as many factors of two as `bits`
    // The odd residues are a group whose elements have orders that divide 2^(bits - 1).
    const SigUInt shortened = odd ? exponent.lowBits(bits - 1) : exponent;
    if (shortened.isZero())
        return 1;

    LowLimbs ring((bits + limbBits - 1) / limbBits);
    const int size = static_cast<int>(ring.size());
    base.reserve(size);
    std::fill(base.limbs_ + base.size_, base.limbs_ + size, Limb{0});
    SigUInt result;
    result.reserve(size);
    power(ring, result.limbs_, base.limbs_, shortened.limbs_, shortened.bitLength());
    result.setSize(size);
    return result.lowBits(bits);
}

// 1 / *this modulo 2^bits, for an odd number, by Newton's iteration.
SigUInt SigUInt::inverseModTwos(int bits) const {
    SigUInt inverse = 1;
    for (int right = 1; right < bits;) {
        right = right > bits / 2 ? bits : 2 * right;
        const SigUInt two = (SigUInt(1) << right) + 2; // the modulus keeps it above the product
        inverse = (inverse * (two - (lowBits(right) * inverse).lowBits(right))).lowBits(right);
    }
    return inverse;
}

SigUInt a_exp_b_mod_c(const SigUInt& a, const SigUInt& b, const SigUInt& c) {
    if (c.bitLength() < 2 || c.bitLength() > longestModulus)
        return 0;
    if (b.isZero())
        return 1;
    int twos = 0;
    while (c.limbs_[twos / limbBits] == 0)
        twos += limbBits;
    while ((c.limbs_[twos / limbBits] >> (twos % limbBits) & 1) == 0)
        ++twos;
    if (twos == 0)
        return a.powerModOdd(b, c);

    SigUInt low = a.powerModTwos(b, twos);
    const SigUInt odd = c >> twos;
    if (odd == 1)
        return low;
    // The number that has both remainders: rest + odd * ((low - rest) / odd mod 2^twos).
    // Source: Garner, "The residue number system", 1959.
    const SigUInt rest = a.powerModOdd(b, odd);
    const SigUInt difference = low + (SigUInt(1) << twos) - rest.lowBits(twos);
    return rest + odd * (difference * odd.inverseModTwos(twos)).lowBits(twos);
}
