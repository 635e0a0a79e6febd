#include "tests/support.h"

#include <zarnex/strings/hashFunctions.h>

#include <climits>
#include <string>

namespace {

TEST(HashFunctions, GiveFixedValues) {
    const struct {
        const wchar_t* text;
        long size;
        std::int64_t first, second, third;
    } rows[] = {
        {L"", 10, 0, 0, 0},
        {L"A", 1000, 65, 678, 10193},
        {L"A", 0, 0, 0, 10193},
        {L"A", -7, 2, 6, 10193},
        {L"sequins, beads and stitches in order", 1009, 769, 806, 1118633216}, // shifts wrap
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << shown(row.text) << " modulo " << row.size);
        EXPECT_EQ(HashFunction1(row.size)(row.text), row.first);
        EXPECT_EQ(HashFunction2(row.size)(row.text), row.second);
        EXPECT_EQ(HashFunction3(row.size)(row.text), row.third);
    }
}

TEST(HashFunctions, TheSmallestIntegerStaysNegative) {
    // 4^15 + 3 * (4^14 + ... + 4) + 4 = 2^31
    const std::wstring first = L"\x1" + std::wstring(14, L'\x3') + L"\x4";
    EXPECT_EQ(HashFunction1(1000)(first.c_str()), -648);
    EXPECT_EQ(HashFunction1(-1)(first.c_str()), 0) << "does not trap";
    // In pairs the units cancel; U+0080 at index 16 becomes 2^31 and at 17 nothing, and 25
    // at index 24 cancels the length.
    std::wstring third;
    for (int i = 0; i < 12; ++i)
        third += i == 8 ? L"\x80\x80" : L"\x2\x1";
    third += L'\x19';
    EXPECT_EQ(HashFunction3()(third.c_str()), -1315424640);
    if (sizeof(wchar_t) == 4) {
        EXPECT_EQ(HashFunction3()(L"\U00010041"), 10193) << "the low 16 bits of a unit count";
    }
}

TEST(ZHashInt, HoldsAndHashesAnInteger) {
    const struct {
        int value;
        int hash;
    } rows[] = {{3, 5223}, {INT_MAX, INT_MAX - 1740}, {INT_MIN, INT_MIN}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value);
        const ZHashInt key(row.value);
        EXPECT_EQ(key.hash(), row.hash);
        EXPECT_EQ(IntHashFunction()(key), row.hash);
        EXPECT_EQ(key.getInt(), row.value);
        EXPECT_TRUE(key == row.value && row.value == key && key != row.value + 1LL && 5L != key);
    }
}

} // namespace
