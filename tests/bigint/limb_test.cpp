// The arithmetic of compilers without a 128-bit integer, against the one that the library
// was built with.

#define ZARNEX_PORTABLE_LIMBS
#include <zarnex/bigint/internal/limb.h>

#include "tests/bigint/numbers.h"

#include <gtest/gtest.h>

namespace {

using namespace zarnex::detail;

const Limb limbs[] = {
    0,
    1,
    2,
    0xffffffff,
    0x100000000,
    0x8000000000000000,
    ~Limb{0},
    ~Limb{0} - 1,
    0x7fffffffffffffff,
    0x123456789abcdef0,
    0xfedcba9876543210,
    0xffffffff00000000,
};

SigUInt whole(Limb high, Limb low) {
    return (SigUInt(high) << 64) + low;
}

TEST(PortableLimbs, MultiplyAndCarryAsTheCompilerDoes) {
    for (const Limb a : limbs) {
        for (const Limb b : limbs) {
            SCOPED_TRACE(testing::Message() << std::hex << a << " " << b);
            const LimbPair pair = product(a, b);
            EXPECT_EQ(whole(pair.high, pair.low), SigUInt(a) * b);
            for (const Limb c : limbs) {
                Limb carry = b;
                const Limb low = multiplyAdd(a, b, c, carry);
                EXPECT_EQ(whole(carry, low), SigUInt(a) * b + c + b);
            }
            for (unsigned char bit = 0; bit <= 1; ++bit) {
                unsigned char carry = bit;
                Limb sum = 0;
                addCarry(sum, a, b, carry);
                EXPECT_EQ(whole(carry, sum), SigUInt(a) + b + bit);
                unsigned char borrow = bit;
                Limb difference = 0;
                subtractBorrow(difference, a, b, borrow);
                EXPECT_EQ(SigUInt(difference) + b + bit, whole(borrow, 0) + a);
            }
        }
    }
}

TEST(PortableLimbs, DivideByTheReciprocal) {
    for (const Limb divisor : limbs) {
        if (divisor >> 63 == 0)
            continue; // not normal
        const LimbDivisor normal(divisor);
        for (const Limb any : limbs) {
            for (const Limb low : limbs) {
                const Limb high = any % divisor;
                SCOPED_TRACE(testing::Message() << std::hex << divisor << " " << high << low);
                Limb rest = 0;
                const Limb quotient = normal.divide({low, high}, rest);
                EXPECT_LT(rest, divisor);
                EXPECT_EQ(SigUInt(quotient) * divisor + rest, whole(high, low));
            }
        }
    }
}

} // namespace
