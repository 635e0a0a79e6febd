#include "tests/units/quantityChecks.h"

#include <zarnex/units/ZDegree.h>
#include <zarnex/units/ZHalfNumber.h>
#include <zarnex/units/ZNumber.h>
#include <zarnex/units/ZPercent.h>
#include <zarnex/units/ZRealNumber.h>

#include <climits>
#include <cmath>
#include <limits>
#include <string>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(ZNumber, CutsDoublesTowardZero) {
    const struct {
        double value;
        int number;
    } rows[] = {
        {2.9, 2},         {-2.9, -2},        {2147483647.9, INT_MAX}, {2147483648.0, INT_MAX},
        {1e300, INT_MAX}, {-1e300, INT_MIN}, {std::nan(""), 0},       {infinity, INT_MAX},
    };
    for (const auto& row : rows)
        EXPECT_EQ(double(ZNumber(row.value)), row.number) << row.value;
}

TEST(ZNumber, ReadsTheLeadingInteger) {
    const struct {
        const wchar_t* text;
        int number;
    } rows[] = {
        {L"50.0 %", 50},
        {L"", 0},
        {L" \t+7x", 7},
        {L"-8", -8},
        {L"- 8", 0},
        {L"--8", 0},
        {L"2147483648", INT_MAX},
        {L"-99999999999999999999999", INT_MIN},
        {L"0x10", 0},
    };
    for (const auto& row : rows)
        EXPECT_EQ(double(ZNumber(ZString(row.text))), row.number) << shown(row.text);
}

TEST(ZRealNumber, ReadsTheLeadingNumber) {
    const struct {
        const wchar_t* text;
        double number;
    } rows[] = {
        {L" \t\n-2.5e2x", -250.0},
        {L"0x1F", 31.0},
        {L"0x.8p1", 1.0},
        {L"0xg", 0.0},
        {L"0x", 0.0},
        {L"inf", infinity},
        {L"-INFINITYx", -infinity},
        {L"1e999", infinity},
        {L"-1e999", -infinity},
        {L"1e-999", 0.0},
        {L"0e999", 0.0},
        {L"1e99999999999999999999", infinity},
        {L"0.00001e-99999999999999999999", 0.0},
        {L"1e9223372036854775807", infinity},
        {L"0.01e-9223372036854775808", 0.0},
        {L"0x1p9223372036854775807", infinity},
        {L"0xinf", 0.0},
        {L"0xnan", 0.0},
        {L"0x1p+-5", 1.0},
        {L"0x1p+5", 32.0},
        {L"0x1p99999", infinity},
        {L"4.9e-324", 4.9e-324},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << shown(row.text));
        const double number = ZRealNumber(ZString(row.text));
        EXPECT_EQ(number, row.number);
        EXPECT_EQ(std::signbit(number), std::signbit(row.number));
    }
    EXPECT_TRUE(std::isnan(double(ZRealNumber(ZString(L"nan")))));

    // Where the digits reach beyond what a double holds, and the exponent back again.
    const std::wstring zeros(400, L'0');
    const struct {
        std::wstring text;
        double number;
    } longRows[] = {{L"1" + zeros, infinity},
                    {zeros + L"1e999", infinity},
                    {L"0." + zeros + L"1e800", infinity},
                    {L"0." + zeros + L"1", 0.0},
                    {L"0." + zeros + L"1e070", 0.0},
                    {L"0." + std::wstring(4000, L'0') + L"1e3600", 0.0},
                    {L"1" + zeros + L"e-800", 0.0}};
    for (const auto& row : longRows)
        EXPECT_EQ(double(ZRealNumber(ZString(row.text.c_str()))), row.number) << &row - longRows;
    EXPECT_TRUE(std::signbit(double(ZRealNumber(ZString(L"-0")))));
}

TEST(ZHalfNumber, RoundsToTheNearestHalf) {
    const struct {
        double value, half;
    } rows[] = {
        {1.24, 1.0}, {1.25, 1.5}, {1.74, 1.5}, {1.75, 2.0},    {-0.8, -1.0},           {-1.3, -1.5},
        {3.0, 3.0},  {0.2, 0.0},  {0.5, 0.5},  {1e300, 1e300}, {-infinity, -infinity},
    };
    for (const auto& row : rows)
        EXPECT_EQ(double(ZHalfNumber(row.value)), row.half) << row.value;
    EXPECT_TRUE(std::isnan(double(ZHalfNumber(std::nan("")))));
    EXPECT_EQ(double(ZHalfNumber(ZString(L"2.3"))), 2.5);
    EXPECT_EQ(wide(ZHalfNumber(-0.0)), L" 0.0");
}

TEST(Numbers, Render) {
    checkText<ZNumber>(-2.9, L"-2", 2);
    checkText<ZRealNumber>(3.14159, L" 3.1", 2);
    checkText<ZHalfNumber>(2.3, L" 2.5", 2);
    checkText<ZPercent>(50.0, L"50.0 %", 2);
    checkText<ZDegree>(45.0, L"45.0 \u00B0", 2);
    EXPECT_EQ(wide(ZPercent(12.345).getString(8, 2)), L"   12.35 %");
    ZDegree::setUnitString(L"deg%");
    const std::wstring labelled = wide(ZDegree(1.0));
    ZDegree::setUnitString(L"\u00B0");
    EXPECT_EQ(labelled, L" 1.0 deg%");
}

TEST(Numbers, StartFromTheirDefaultsAndFromText) {
    EXPECT_EQ(double(ZNumber()) + double(ZRealNumber()) + double(ZHalfNumber()), 0.0);
    EXPECT_EQ(double(ZDegree()), 0.0);
    EXPECT_EQ(wide(ZPercent()), L"100.0 %");
    EXPECT_EQ(wide(ZPercent(ZString(L"abc"))), L"0.0 %");
    EXPECT_EQ(double(ZDegree(ZString(L"90\u00B0"))), 90.0);
    ZPercent percent(7.0);
    percent.setStringWithUnits(L" 12.5 %", 2);
    EXPECT_EQ(double(percent), 12.5);
    EXPECT_EQ(ZNumber().getUnitId(), 8);
    EXPECT_EQ(ZPercent().getUnitId(), 9);
    EXPECT_EQ(ZHalfNumber().getUnitId(), 11);
    EXPECT_EQ(ZRealNumber().getUnitId(), 13);
    EXPECT_EQ(ZDegree().getUnitId(), 15);
}

TEST(Numbers, Compare) {
    const double nan = std::nan("");
    checkCompared<ZNumber>(2.9, 2.1, true);
    checkCompared<ZNumber>(-2.0, 2.0, false);
    EXPECT_FALSE(ZNumber(2.0) == 2.9);
    checkCompared<ZRealNumber>(0.1 + 0.2, 0.3, false);
    checkCompared<ZRealNumber>(0.3, 0.3, true);
    checkCompared<ZRealNumber>(nan, nan, false);
    checkCompared<ZHalfNumber>(1.3, 1.5, true);
    checkCompared<ZHalfNumber>(1.0, 1.3, false);
    checkCompared<ZDegree>(1.0, 1.0, true);
    checkCompared<ZDegree>(1.0, 361.0, false);
    checkCompared<ZPercent>(1.0, 1.0, true);
    checkCompared<ZPercent>(1.0, 2.0, false);
    checkCompared<ZPercent>(nan, nan, false);
    EXPECT_TRUE(ZPercent(3.0) > ZPercent(2.0));
    EXPECT_FALSE(ZPercent(2.0) > ZPercent(2.0));
    EXPECT_TRUE(ZPercent(51.0) > 50);
    EXPECT_FALSE(ZPercent(51.0) < 50);
}

} // namespace
