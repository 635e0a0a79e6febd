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

void expectPair(const SigUInt& a, const SigUInt& b, const std::vector<SigUInt>& results) {
    const bool greater = results[1] != 0;
    EXPECT_TRUE((a > b) == greater && (b < a) == greater && (a != b) == greater);
    EXPECT_TRUE((a == b) == !greater && (a <= b) == !greater && (b >= a) == !greater);
    EXPECT_TRUE(a >= b && b <= a && !(a < b) && !(b > a));
    EXPECT_TRUE(a + b == results[0] && b + a == results[0]);
    EXPECT_TRUE(a - b == results[1] && b - a == 0);
    EXPECT_TRUE(a * b == results[2] && b * a == results[2] && (greater || a * a == results[2]));
    EXPECT_EQ(a % b, results[3]);
    SigUInt sum = a, difference = a, product = a, rest = a;
    EXPECT_EQ(sum += b, results[0]);
    EXPECT_EQ(difference -= b, results[1]);
    EXPECT_EQ(product *= b, results[2]);
    EXPECT_EQ(rest %= b, results[3]);
}

TEST(SigUInt, AgreesWithIndependentArithmetic) {
    std::ifstream file(ZARNEX_TEST_VECTORS);
    ASSERT_TRUE(file) << ZARNEX_TEST_VECTORS;
    std::map<std::string, int> rows;
    for (std::string line; std::getline(file, line);) {
        SCOPED_TRACE(line);
        std::istringstream in(line);
        std::string kind;
        in >> kind;
        ++rows[kind];
        std::vector<SigUInt> n;
        for (std::string field; in >> field;)
            n.push_back(checkedNumber(field));
        if (kind == "pair" && n.size() == 6) {
            expectPair(n[0], n[1], {n.begin() + 2, n.end()});
        } else if (kind == "remainder" && n.size() == 3) {
            EXPECT_EQ(n[0] % n[1], n[2]);
        } else if (kind == "power" && n.size() == 4) {
            EXPECT_EQ(a_exp_b_mod_c(n[0], n[1], n[2]), n[3]);
        } else {
            ADD_FAILURE() << "an unknown row";
        }
    }
    for (const char* kind : {"pair", "remainder", "power"})
        EXPECT_GE(rows[kind], 10) << kind;
}

} // namespace
