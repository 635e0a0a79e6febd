#include <zarnex/geometry/ZrnRandomGenerator.h>
#include <zarnex/geometry/ZrnRandomGenerator2.h>

#include <gtest/gtest.h>

#include <atomic>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <thread>
#include <type_traits>
#include <vector>

static_assert(sizeof(ZrnRandomGenerator2) == 2500 && offsetof(ZrnRandomGenerator2, index) == 2496);
static_assert(!std::is_polymorphic_v<ZrnRandomGenerator>);

namespace {

TEST(Congruential, StartsBehindAnyNumberOfSteps) {
    const ZrnRandomGenerator fresh(0);
    int fields[3];
    static_assert(sizeof fields == sizeof fresh);
    std::memcpy(fields, static_cast<const void*>(&fresh), sizeof fields);
    EXPECT_TRUE(fields[0] == 515 && fields[1] == 566387 && fields[2] == 524288);

    constexpr int period = 131072;
    std::vector<float> numbers; // by plain steps
    for (int i = 0, x = 566387; i < 2 * period; ++i) {
        x = 515 * x % 524288;
        numbers.push_back(static_cast<float>(x) / 524288.0f);
    }
    ASSERT_EQ(numbers[0], numbers[period]);
    EXPECT_EQ(numbers[0], 185177.0f / 524288.0f);
    // Where a long has 64 bits, the low 32 count: 5 in the last.
    const long wide = static_cast<long>((1ll << 32) + 5);
    for (const long n :
         {LONG_MIN, -1L, 0L, 1L, 2L, 77L, 131071L, 131073L, 1234567L, 2147483647L, wide}) {
        const ZrnRandomGenerator generator(n);
        const int steps = static_cast<int>(n) < 0 ? 0 : static_cast<int>(n) % period;
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_EQ(generator.random(), numbers[static_cast<std::size_t>(steps) + i]) << n;
    }
}

// One test, as the sequence of the process starts only once.
TEST(Congruential, TheProcessSharesASequence) {
    const ZrnRandomGenerator own(0);
    for (int i = 0; i < 100; ++i)
        ASSERT_EQ(zrnrandom(), own.random());
    std::atomic<int> strange = 0;
    const auto take = [&strange] {
        for (int i = 0; i < 20000; ++i)
            strange += static_cast<int>(zrnrandom() * 524288.0f) % 2 != 1;
    };
    std::thread other(take);
    take();
    other.join();
    EXPECT_EQ(strange, 0) << "every number is an odd multiple of 1 / 524288";
}

std::uint32_t output(ZrnRandomGenerator2& generator) {
    return static_cast<std::uint32_t>(generator.randomOpenEnd() * 4294967296.0);
}

// The numbers come from a Python program of the generator as published in 1998, which finds
// each partner by a remainder. They begin as the authors' list of outputs does.
TEST(MersenneTwister, GivesThePublishedSequence) {
    ZrnRandomGenerator2 seeded(4357);
    ZrnRandomGenerator2 unseeded(1);
    unseeded.index = 625;
    std::uint64_t hash = 14695981039346656037u; // FNV-1a over whole outputs
    const struct {
        int place;
        std::uint32_t output;
        std::uint64_t hash;
    } rows[] = {{1, 3510405877u, 0xabea67fca31a8c70u},
                {2, 4290933890u, 0xf847a3d1c4af0336u},
                {625, 2222118351u, 0xfbe5ef516916f5afu},
                {1000, 1309179303u, 0xf149d1110d6f3385u},
                {100000, 2448953499u, 0xac4e0f6283217df6u}};
    for (int i = 1; i <= 100000; ++i) {
        const std::uint32_t y = output(seeded);
        ASSERT_EQ(output(unseeded), y);
        hash = (hash ^ y) * 1099511628211u;
        for (const auto& row : rows)
            EXPECT_TRUE(i != row.place || (y == row.output && hash == row.hash)) << i;
    }
}

TEST(MersenneTwister, EndsOfTheRange) {
    ZrnRandomGenerator2 zeros(0);
    for (int i = 0; i < 2000; ++i)
        ASSERT_EQ(zeros.random() + zeros.randomClosedEnd(), 0.0);

    // The word that is tempered to all ones: found backward through the shifts.
    zeros.word[0] = zeros.word[1] = 0x12dd9bb3u;
    zeros.index = 0;
    EXPECT_EQ(zeros.randomClosedEnd(), 1.0);
    EXPECT_EQ(zeros.random(), 1.0 - 1.0 / 4294967296.0);
    for (const int index : {-1, INT_MIN, 624, 626, INT_MAX}) {
        ZrnRandomGenerator2 regular(1), strange(1);
        strange.index = index;
        EXPECT_EQ(strange.random(), regular.random()) << index;
    }
}

} // namespace
