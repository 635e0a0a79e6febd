#pragma once

/// One limb of a large number, and the arithmetic that is wider than it.
///
/// A number is an array of limbs, least significant first. Define ZARNEX_PORTABLE_LIMBS
/// to do without the compiler's 128-bit integer and carry instructions.

#include <cstddef>
#include <cstdint>
#include <limits>

#if !defined(ZARNEX_PORTABLE_LIMBS)
#if defined(__SIZEOF_INT128__)
#define ZARNEX_WIDE_LIMBS
#endif
#if defined(__x86_64__)
#define ZARNEX_CARRY_INSTRUCTIONS
#include <immintrin.h>
#endif
#endif

namespace zarnex::detail {

using Limb = unsigned long long;
using Size = std::ptrdiff_t; ///< a number of limbs

inline constexpr int limbBits = 64;
static_assert(std::numeric_limits<Limb>::digits == limbBits);

/// The two limbs of high * 2^64 + low.
struct LimbPair {
    Limb low;
    Limb high;
};

#if defined(ZARNEX_WIDE_LIMBS)

__extension__ typedef unsigned __int128 WideLimb;

inline LimbPair product(Limb a, Limb b) {
    const WideLimb wide = WideLimb{a} * b;
    return {static_cast<Limb>(wide), static_cast<Limb>(wide >> limbBits)};
}

#else

inline LimbPair product(Limb a, Limb b) {
    const Limb half = 0xffffffff;
    const Limb low = (a & half) * (b & half);
    const Limb cross = (a >> 32) * (b & half) + (low >> 32);
    const Limb other = (a & half) * (b >> 32) + (cross & half);
    return {other << 32 | (low & half), (a >> 32) * (b >> 32) + (cross >> 32) + (other >> 32)};
}

#endif

/// The low limb of a * b + addend + carry; `carry` takes the high one. It always fits.
inline Limb multiplyAdd(Limb a, Limb b, Limb addend, Limb& carry) {
#if defined(ZARNEX_WIDE_LIMBS)
    WideLimb wide = WideLimb{a} * b;
    wide += addend;
    wide += carry;
    carry = static_cast<Limb>(wide >> limbBits);
    return static_cast<Limb>(wide);
#else
    LimbPair sum = product(a, b);
    sum.low += addend;
    sum.high += sum.low < addend ? 1 : 0;
    sum.low += carry;
    sum.high += sum.low < carry ? 1 : 0;
    carry = sum.high;
    return sum.low;
#endif
}

/// sum = a + b + carry; `carry` is 0 or 1 before and after. Into the place where the sum is
/// wanted, for compilers store it where they are told.
inline void addCarry(Limb& sum, Limb a, Limb b, unsigned char& carry) {
#if defined(ZARNEX_CARRY_INSTRUCTIONS)
    carry = _addcarry_u64(carry, a, b, &sum);
#else
    const Limb partial = a + b;
    sum = partial + carry;
    carry = (partial < a || sum < partial) ? 1 : 0;
#endif
}

/// difference = a - b - borrow; `borrow` is 0 or 1 before and after.
inline void subtractBorrow(Limb& difference, Limb a, Limb b, unsigned char& borrow) {
#if defined(ZARNEX_CARRY_INSTRUCTIONS)
    borrow = _subborrow_u64(borrow, a, b, &difference);
#else
    const Limb partial = a - b;
    difference = partial - borrow;
    borrow = (partial > a || difference > partial) ? 1 : 0;
#endif
}

/// (high * 2^64 + low) / divisor, for `high` below `divisor`.
inline Limb divideSlowly(LimbPair number, Limb divisor) {
#if defined(ZARNEX_WIDE_LIMBS)
    return static_cast<Limb>((WideLimb{number.high} << limbBits | number.low) / divisor);
#else
    Limb quotient = 0;
    for (int i = 0; i < limbBits; ++i) {
        const bool over = number.high >> (limbBits - 1) != 0;
        number.high = number.high << 1 | number.low >> (limbBits - 1);
        number.low <<= 1;
        quotient <<= 1;
        if (over || number.high >= divisor) {
            number.high -= divisor;
            ++quotient;
        }
    }
    return quotient;
#endif
}

/// A divisor of one limb whose highest bit is set, ready to divide pairs of limbs by
/// multiplying with its reciprocal.
///
/// Source: Moeller and Granlund, "Improved division by invariant integers", IEEE
/// Transactions on Computers 60 (2011).
class LimbDivisor {
public:
    explicit LimbDivisor(Limb divisor)
        : divisor_(divisor), reciprocal_(divideSlowly({~Limb{0}, ~divisor}, divisor)) {}

    /// The quotient; `number.high` must be below the divisor. Sets `remainder`.
    Limb divide(LimbPair number, Limb& remainder) const {
        LimbPair quotient = product(reciprocal_, number.high);
        unsigned char carry = 0;
        addCarry(quotient.low, quotient.low, number.low, carry);
        addCarry(quotient.high, quotient.high, number.high, carry);
        ++quotient.high;
        remainder = number.low - quotient.high * divisor_;
        if (remainder > quotient.low) {
            --quotient.high;
            remainder += divisor_;
        }
        if (remainder >= divisor_) {
            ++quotient.high;
            remainder -= divisor_;
        }
        return quotient.high;
    }

private:
    Limb divisor_;
    Limb reciprocal_; ///< floor((2^128 - 1) / divisor) - 2^64
};

} // namespace zarnex::detail
