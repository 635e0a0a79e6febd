#include "tests/bigint/numbers.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <utility>

namespace {

const SigUInt two64 = SigUInt(1) << 64;

TEST(SigUInt, ReadsDigitsMostSignificantFirst) {
    const unsigned char bytes[] = {0, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    const unsigned short words[] = {0, 0x1, 0x203, 0x405, 0x607, 0x809};
    const struct {
        SigUInt number;
        const char* hex;
    } rows[] = {
        {SigUInt(bytes, 11), "10203040506070809"},
        {SigUInt(bytes, 3), "1"},
        {SigUInt(bytes, 2), "0"},
        {SigUInt(bytes, -1), "0"},
        {SigUInt(bytes + 2, 8), "102030405060708"},
        {SigUInt(words, 6), "10203040506070809"},
        {SigUInt(words, 2), "1"},
        {SigUInt(words + 2, 4), "203040506070809"},
        {SigUInt(words, INT_MIN), "0"},
        {SigUInt(static_cast<const unsigned char*>(nullptr), 5), "0"},
        {SigUInt(static_cast<const unsigned short*>(nullptr), 5), "0"},
        {SigUInt(nullptr, 5), "0"},
        {SigUInt(), "0"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.hex);
        EXPECT_EQ(hex(row.number), row.hex);
        EXPECT_EQ(row.number.isZero(), *row.hex == '0');
    }
}

TEST(SigUInt, WritesBytesOnlyWhereTheyFit) {
    const SigUInt number = fromHex("a0b0c0d0e0f0010203");
    unsigned char out[11] = {};
    EXPECT_EQ(number.getBytes(nullptr, 0), 9);
    EXPECT_EQ(number.getBytes(nullptr, 100), 9);
    EXPECT_EQ(number.getBytes(out, 8), 9);
    EXPECT_EQ(number.getBytes(out, INT_MIN), 9);
    EXPECT_EQ(SigUInt(out, 11), 0) << "wrote although there was no room";
    EXPECT_EQ(number.getBytes(out, 10), 9);
    EXPECT_EQ(SigUInt(out, 11), number << 16);
    EXPECT_EQ(SigUInt().getBytes(out, 10), 0);
}

template <class Number>
void expectTakesLiterals() {
    SCOPED_TRACE(std::numeric_limits<Number>::digits);
    SigUInt n = Number{5};
    const Number two = 2;
    EXPECT_TRUE(n + two == 7 && two + n == 7 && n - two == 3 && two - n == 0);
    EXPECT_TRUE(n * two == 10 && n % two == 1 && two % n == 2 && n << two == 20 && n >> two == 1);
    EXPECT_TRUE(n > two && two < n && n >= two && two <= n && n != two && two != n);
    EXPECT_FALSE(n == two || two == n || n < two || n <= two || two > n || two >= n);
    ((((n += two) *= two) -= two) <<= two) >>= two;
    EXPECT_EQ(n, 12);
    EXPECT_EQ(n %= two, 0);
    EXPECT_EQ(a_exp_b_mod_c(two, two, Number{3}), 1);
    n = std::numeric_limits<Number>::max();
    EXPECT_EQ(n, (SigUInt(1) << std::numeric_limits<Number>::digits) - 1);
    EXPECT_EQ(SigUInt(std::numeric_limits<Number>::min()), 0);
}

TEST(SigUInt, TakesIntegersOfEveryTypeAndNegativeOnesAsZero) {
    expectTakesLiterals<int>();
    expectTakesLiterals<unsigned int>();
    expectTakesLiterals<long>();
    expectTakesLiterals<unsigned long>();
    expectTakesLiterals<long long>();
    expectTakesLiterals<unsigned long long>();
    expectTakesLiterals<std::uint8_t>();
    expectTakesLiterals<short>();
    EXPECT_FALSE((std::is_constructible_v<SigUInt, double>));
    EXPECT_TRUE((std::is_same_v<decltype(two64 == 0), int>));
    EXPECT_TRUE((std::is_same_v<decltype(two64 < 0), int>));
}

TEST(SigUInt, StaysAtZeroBelowItAndGivesZeroForARemainderByZero) {
    SigUInt n;
    EXPECT_TRUE(--n == 0 && n-- == 0 && n++ == 0 && ++n == 2 && n-- == 2 && n == 1);
    EXPECT_EQ(n - two64, 0);
    EXPECT_EQ(two64 % 0, 0);
    EXPECT_EQ(hex((two64 * two64 - 1) + 1), hex(SigUInt(1) << 128)) << "a carry through all";
    EXPECT_EQ(hex(--SigUInt(two64)), "ffffffffffffffff");
}

TEST(SigUInt, ShiftsByAnyCountAndNegativeOnesTheOtherWay) {
    const SigUInt ones = (two64 - 1) << 8;
    const struct {
        long long count;
        const char* up;
        const char* down;
    } rows[] = {
        {64, "ffffffffffffffff000000000000000000", "ff"},
        {71, "7fffffffffffffff80000000000000000000", "1"},
        {INT_MAX, "0", "0"}, // longer than the longest number
        {LLONG_MAX, "0", "0"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.count);
        EXPECT_EQ(hex(ones << row.count), row.up);
        EXPECT_EQ(hex(ones >> row.count), row.down);
        EXPECT_EQ(hex(ones << -row.count), row.down);
        EXPECT_EQ(hex(ones >> -row.count), row.up);
        SigUInt n = ones;
        EXPECT_EQ(hex(n <<= row.count), row.up);
        n = ones;
        EXPECT_EQ(hex(n >>= row.count), row.down);
        EXPECT_EQ(SigUInt() << row.count, 0);
    }
    EXPECT_EQ(ones >> INT_MIN, 0);
    EXPECT_EQ(ones >> SIZE_MAX, 0);
}

TEST(SigUInt, IsZeroPastItsLongestLength) {
    SigUInt n = SigUInt(1) << (INT_MAX - 1);
    EXPECT_EQ(n.bitLength(), INT_MAX);
    EXPECT_EQ(n * n, 0);
    EXPECT_EQ(n * 2, 0);
    EXPECT_EQ(a_exp_b_mod_c(3, 1, n), 0);
    EXPECT_EQ(n <<= 1, 0);
    n = SigUInt(1) << (INT_MAX - 1);
    EXPECT_EQ(n += n, 0);
}

TEST(SigUInt, OperandsMayBeTheNumberItself) {
    for (const int bits : {1, 64, 300, 4000}) {
        SCOPED_TRACE(bits);
        const SigUInt n = (SigUInt(3) << bits) - 1;
        SigUInt x = n;
        x = static_cast<const SigUInt&>(x);
        EXPECT_EQ(x, n);
        x = a_exp_b_mod_c(x, x, x);
        EXPECT_EQ(x, 0);
        // The other operand, here of another length, is the result as well.
        const SigUInt more = (n << 100) + 1;
        x = n;
        x = more % x;
        EXPECT_EQ(x, 1 % n);
        x = n;
        x = more - x;
        EXPECT_EQ(x, n * ((SigUInt(1) << 100) - 1) + 1);
    }
}

TEST(SigUInt, CopiesAreIndependentAndMovesLeaveZero) {
    for (const int shift : {0, 1000}) {
        const SigUInt original = SigUInt(77) << shift;
        SigUInt number = original, copy(number);
        ++copy;
        EXPECT_TRUE(number == original && copy == original + 1);
        SigUInt moved(std::move(number));
        EXPECT_TRUE(moved == original && number == 0); // NOLINT: what a moved number is, is told
        number = std::move(copy);
        EXPECT_TRUE(number == original + 1 && copy == 0); // NOLINT
        copy = number;
        number = 3;
        std::swap(copy, number);
        EXPECT_TRUE(copy == 3 && number == original + 1);
    }
}

TEST(ModularPower, IsZeroModuloZeroAndOneForTheExponentZero) {
    const SigUInt odd = two64 + 1;
    const SigUInt even = two64 * 3;
    const struct {
        SigUInt a, b, c, power;
    } rows[] = {
        {5, 3, 0, 0},
        {0, 0, 1, 0},
        {0, 0, 2, 1},
        {7, 0, even, 1},
        {odd, two64, odd, 0},
        {even, two64, even, 0},
        {2, 64, even, two64},
        {two64 - 1, two64 + 1, two64, two64 - 1},
        {3, 27, 7625597484987, 0},
        {-1, 3, 7, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(hex(row.a) + " " + hex(row.b) + " " + hex(row.c));
        EXPECT_EQ(a_exp_b_mod_c(row.a, row.b, row.c), row.power);
    }
}

} // namespace
