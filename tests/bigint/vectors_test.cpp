// What independent arithmetic says: the rows of vectors.txt, which vectors.py writes.

#include "tests/bigint/numbers.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

namespace {

// Both ways of handing over digits, and back.
SigUInt checkedNumber(const std::string& digits) {
    const SigUInt number = fromHex(digits);
    EXPECT_EQ(hex(number), digits);

    const std::string padded = std::string(3 - (digits.size() + 3) % 4, '0') + digits;
    std::vector<unsigned short> words;
    for (std::size_t i = 0; i < padded.size(); i += 4)
        words.push_back(static_cast<unsigned short>(std::stoi(padded.substr(i, 4), nullptr, 16)));
    EXPECT_EQ(SigUInt(words.data(), static_cast<int>(words.size())), number);

    std::vector<unsigned char> bytes((digits.size() + 1) / 2);
    const int room = static_cast<int>(bytes.size());
    EXPECT_EQ(number.getBytes(bytes.data(), room), digits == "0" ? 0 : room);
    EXPECT_EQ(SigUInt(bytes.data(), room), number);
    return number;
}

void expectOrder(const SigUInt& a, const SigUInt& b, bool greater) {
    EXPECT_EQ(a > b, greater);
    EXPECT_EQ(b < a, greater);
    EXPECT_EQ(a != b, greater);
    EXPECT_EQ(a == b, !greater);
    EXPECT_EQ(a <= b, !greater);
    EXPECT_EQ(b >= a, !greater);
    EXPECT_TRUE(a >= b && b <= a);
    EXPECT_FALSE(a < b || b > a);
}

TEST(SigUInt, AgreesWithIndependentArithmetic) {
    std::ifstream file(ZARNEX_TEST_VECTORS);
    ASSERT_TRUE(file) << ZARNEX_TEST_VECTORS;
    std::map<std::string, int> rows;
    for (std::string line; std::getline(file, line);) {
        SCOPED_TRACE(line);
        std::istringstream fields(line);
        std::string operation, first, second, result;
        fields >> operation >> first >> second;
        ++rows[operation];
        const SigUInt a = checkedNumber(first);
        if (operation == "bits") {
            EXPECT_EQ(a.bitLength(), std::stoi(second));
            continue;
        }
        if (operation == "<<" || operation == ">>") {
            fields >> result;
            const int count = std::stoi(second);
            EXPECT_EQ(operation == "<<" ? a << count : a >> count, fromHex(result));
            continue;
        }
        const SigUInt b = checkedNumber(second);
        if (operation == "power") {
            std::string third;
            fields >> third >> result;
            EXPECT_EQ(a_exp_b_mod_c(a, b, checkedNumber(third)), fromHex(result));
            continue;
        }
        fields >> result;
        const SigUInt expected = fromHex(result);
        SigUInt inPlace = a;
        if (operation == "compare") {
            expectOrder(a, b, result == "1");
        } else if (operation == "+") {
            EXPECT_EQ(a + b, expected);
            EXPECT_EQ(b + a, expected);
            EXPECT_EQ(inPlace += b, expected);
        } else if (operation == "-") {
            EXPECT_EQ(a - b, expected);
            EXPECT_EQ(b - a, 0);
            EXPECT_EQ(inPlace -= b, expected);
        } else if (operation == "*") {
            EXPECT_EQ(a * b, expected);
            EXPECT_EQ(b * a, expected);
            EXPECT_EQ(inPlace *= b, expected);
            if (first == second) {
                EXPECT_EQ(a * a, expected);
            }
        } else if (operation == "%") {
            EXPECT_EQ(a % b, expected);
            EXPECT_EQ(inPlace %= b, expected);
        } else {
            ADD_FAILURE() << "an unknown operation";
        }
    }
    for (const char* operation : {"compare", "+", "-", "*", "%", "<<", ">>", "bits", "power"})
        EXPECT_GE(rows[operation], 70) << operation;
}

} // namespace
