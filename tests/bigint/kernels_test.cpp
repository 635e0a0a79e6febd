// The products of this processor, against those that every processor can make.

#include <zarnex/bigint/internal/kernels.h>

#include "tests/bigint/numbers.h"

#include <gtest/gtest.h>

namespace {

// What a long calculation with numbers of up to `bits` bits comes to.
std::vector<SigUInt> results(std::uint64_t seed, int bits) {
    std::mt19937_64 random(seed);
    const SigUInt a = randomNumber(random, bits);
    const SigUInt b = randomNumber(random, bits);
    const SigUInt c = (randomNumber(random, bits) << 1) + 1;
    const SigUInt exponent = randomNumber(random, 70);
    return {a * b,
            a * a,
            a % c,
            (a * b) % c,
            (a * b + b) % (b + 1),
            a_exp_b_mod_c(a, exponent, c),
            a_exp_b_mod_c(a, exponent, c << static_cast<int>(random() % 700))};
}

TEST(Kernels, GiveTheSameOnEveryProcessor) {
    for (std::uint64_t seed = 0; seed < 600; ++seed) {
        SCOPED_TRACE(seed);
        const int bits = seed % 50 == 0 ? 20000 : 1 + static_cast<int>(seed * 7);
        const std::vector<SigUInt> fast = results(seed, bits);
        zarnex::detail::usePlainKernels(true);
        const std::vector<SigUInt> plain = results(seed, bits);
        zarnex::detail::usePlainKernels(false);
        EXPECT_EQ(fast, plain);
    }
}

} // namespace
