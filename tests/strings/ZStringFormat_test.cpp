#include "tests/support.h"

#include <zarnex/strings/ZString.h>

#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <vector>

namespace {

template <class... Arguments>
std::wstring formatted(const wchar_t* format, Arguments... arguments) {
    ZString string;
    string.set(format, arguments...);
    return wide(string);
}

TEST(ZStringSet, FormatsNumbers) {
    EXPECT_EQ(formatted(L"%d|%5d|%-5d|%05d|%+d|% i", 42, 42, 42, 42, 42, INT_MIN),
              L"42|   42|42   |00042|+42|-2147483648");
    EXPECT_EQ(formatted(L"%.4d|%8.4d|%-8.4d|%08.4d|%.0d|%+.0d", 42, 42, 42, 42, 0, 0),
              L"0042|    0042|0042    |    0042||+");
    EXPECT_EQ(formatted(L"%u %o %x %X %#x %#o %#x %#.0o", UINT_MAX, 8, 255, 255, 255, 8, 0, 0),
              L"4294967295 10 ff FF 0xff 010 0 0");
    EXPECT_EQ(formatted(L"%hd %hhd %hu %hhx", 65537, 257, 65537, 0x1FF), L"1 1 1 ff");
    EXPECT_EQ(formatted(L"%ld %lld %I64d %zu %lu %llu", -1L, LLONG_MIN, LLONG_MAX, std::size_t{7},
                        7ul, ULLONG_MAX),
              L"-1 -9223372036854775808 9223372036854775807 7 7 18446744073709551615");
    EXPECT_EQ(formatted(L"%I32d %Iu %jd %td %d", 7, std::size_t{8}, std::intmax_t{-9},
                        std::ptrdiff_t{-1}, 2),
              L"7 8 -9 -1 2");
    EXPECT_EQ(formatted(L"%*d|%*d|%-*d|%%|%5%", 4, 7, -4, 7, 4, 7), L"   7|7   |7   |%|%");
    void* const address = reinterpret_cast<void*>(std::uintptr_t{0xABC});
    EXPECT_EQ(formatted(L"%p|%18p|%-18p|", address, address, address),
              L"0000000000000ABC|  0000000000000ABC|0000000000000ABC  |");
}

TEST(ZStringSet, FormatsDoubles) {
    EXPECT_EQ(formatted(L"%#.3g|%#.3g|%#.0e|%G", 100.0, 1e6, 5.0, 1e20),
              L"100.|1.00e+06|5.e+00|1E+20");
    EXPECT_EQ(formatted(L"%.1e|%.2E", 1e300, -0.0), L"1.0e+300|-0.00E+00") << "two digits at least";
    EXPECT_EQ(formatted(L"%a|%.1A", 1.0, 0.5), L"0x1p+0|0X1.0P-1");
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(formatted(L"%f|%5.1f|%06f|%F|%+g|%f", infinity, -infinity, infinity, infinity,
                        infinity, -std::nan("")),
              L"inf| -inf|   inf|INF|+inf|nan");
    const std::wstring longest = formatted(L"%.1200f", std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(longest.size(), 1202u);
    EXPECT_EQ(longest.substr(1000, 80), formatted(L"%.1078f", 4.9e-324).substr(1000, 80));
    EXPECT_EQ(longest.back(), L'0');
}

TEST(ZStringSet, ReadsADigitBehindTheStarAsAFurtherDigitOfThePrecision) {
    EXPECT_EQ(formatted(L"%4.*2f", 1, 2.5), L"2.500000000000");           // 12 decimals
    EXPECT_EQ(formatted(L"%4.*2f", 2, 2.5), L"2.5000000000000000000000"); // 22 decimals
    EXPECT_EQ(formatted(L"%.*2f", 0, 2.5), L"2.50");
    EXPECT_EQ(formatted(L"%.*2f", -1, 2.5), L"2.500000");
    EXPECT_EQ(formatted(L"%*.*lf", 8, 2, 2.5), L"    2.50");
}

TEST(ZStringSet, FormatsTextOfBothTypes) {
    EXPECT_EQ(
        formatted(L"%s|%ls|%S|%hs|%5s|%-5s|%.2s", L"ab", L"ab", "cd", "cd", L"ab", L"ab", L"abc"),
        L"ab|ab|cd|cd|   ab|ab   |ab");
    EXPECT_EQ(formatted(L"%c%C%hc%lc|%3c|%-3c", L'a', 'b', 'c', L'd', L'e', L'f'), L"abcd|  e|f  ");
    EXPECT_EQ(formatted(L"%s|%.3s|%S", static_cast<wchar_t*>(nullptr),
                        static_cast<wchar_t*>(nullptr), static_cast<char*>(nullptr)),
              L"(null)|(nu|(null)");
    const wchar_t open[2] = {L'a', L'b'}; // not terminated
    const char openBytes[1] = {'x'};
    EXPECT_EQ(formatted(L"%.2s|%.1S|%ws|%.1Lf", open, openBytes, L"w", 2.5L), L"ab|x|w|2.5");
}

TEST(ZStringSet, CopiesWhatItDoesNotKnow) {
    EXPECT_EQ(formatted(L"%y %5.2k%n|%d", 7), L"%y %5.2k%n|7");
    EXPECT_EQ(formatted(L"50%"), L"50%");
    EXPECT_EQ(formatted(L"%-5.3"), L"%-5.3");
    EXPECT_EQ(formatted(L"%\u00E9|%\u0164", 7), L"%\u00E9|%\u0164")
        << "U+0164 ends in the byte of 'd'";
}

TEST(ZStringSet, SlotsDoubleUntilTheTextIsStrictlyShorter) {
    const struct {
        int slots;
        const wchar_t* format;
        const wchar_t* argument;
        int after;
    } rows[] = {
        {1, L"%s", L"abc", 5},                                 // twice the format is 4: 3 units fit
        {1, L"%s", L"abcd", 9},                                // 4 units fill 4: doubled once
        {1, L"%s", L"abcdefghi", 17}, {31, L"%s", L"abc", 31}, // the room stays
        {4, L"x%sy", L"a", 9},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.after);
        ZString string;
        string.truncate(row.slots - 1);
        string.set(row.format, row.argument);
        string.set(nullptr); // leaves all as it is
        EXPECT_EQ(string.allocLength(), row.after);
        EXPECT_EQ(static_cast<const ZString&>(string)[row.after - 1], L'\0');
    }
}

// Digits in integers, against the standard library's: halves, what carries, the edges of
// the range, and numbers of any size in between.
TEST(ZStringSet, RoundsShortDecimalsExactly) {
    std::vector<double> values = {0.0,    0.5,     1.5,      2.5,        0.125,
                                  0.0625, 9.995,   0.999999, 99.99,      999999999.9999999,
                                  1e9,    0x1p-11, 0x1p53,   0x1.8p-12,  0.00048828125,
                                  1e-300, 5e-324,  1e22,     0x1.fffp52, 4503599627370495.5};
    std::mt19937_64 random(5);
    for (int turn = 0; turn < 5000; ++turn) {
        const auto bits = static_cast<double>(random() >> 11);
        values.push_back(std::ldexp(bits, -static_cast<int>(random() % 70)));
        values.push_back(std::floor(bits / 0x1p30) / 1024); // many halves
    }
    for (const double value : values) {
        for (int precision = 0; precision <= 10; ++precision) {
            char expected[400];
            *std::to_chars(expected, expected + sizeof expected, value, std::chars_format::fixed,
                           precision)
                 .ptr = '\0';
            ASSERT_EQ(formatted(L"%.*f", precision, value), wide(ZString(expected)));
        }
    }
}

TEST(ZStringSet, WritesADotUnderALocaleWithAComma) {
    const CommaLocale comma;
    if (!comma.isSet())
        GTEST_SKIP() << "no locale with a decimal comma here";
    char text[8];
    std::snprintf(text, sizeof text, "%.1f", 2.5);
    ASSERT_STREQ(text, "2,5");
    EXPECT_EQ(formatted(L"%4.2lf %g", 2.5, 0.25), L"2.50 0.25");
}

} // namespace
