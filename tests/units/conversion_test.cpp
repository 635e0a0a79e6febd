#include "tests/support.h"

#include <zarnex/units/ZMillimeter.h>
#include <zarnex/units/conversion.h>

#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

TEST(RenderZUnitQuantity, RendersEachUnitByItsOwnRule) {
    const struct {
        int unit;
        double value;
        int densityFormat;
        const wchar_t* text; // null: no renderer
    } rows[] = {
        {1, -2.9, 0, L"-2"},
        {8, 2.9, 0, L"2"},
        {2, 1.5, 0, L" 1.5 mm"},
        {2, 1.5, 1, L"1.50 mm"},
        {2, 1.234, 0, L"1.23 mm"},
        {2, 0.105, 0, L"0.10 mm"},
        {3, 1.25, 1, L" 1.2 cm"},
        {4, 1.0, 0, L"1.00 in"},
        {5, 12.0, 0, L"12.0 pt"},
        {6, 5.0, 0, L"5.0 spi"},
        {9, 50.0, 0, L"50.0 %"},
        {12, 1.2, 0, L"1.20 cm/s"},
        {14, 2.5, 1, L"2.500000000000 mm/s"},
        {15, 90.0, 0, L"90.0 \u00B0"},
        {7, 1.0, 0, nullptr},
        {13, 1.0, 0, nullptr},
        {0, 1.0, 0, nullptr},
        {16, 1.0, 0, nullptr},
        {-1, 1.0, 0, nullptr},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.unit << " " << row.value);
        ZString text(L"untouched");
        EXPECT_EQ(renderZUnitQuantity(row.unit, row.value, text, row.densityFormat),
                  row.text == nullptr ? -1 : 0);
        EXPECT_EQ(wide(text), row.text == nullptr ? L"untouched" : row.text);
    }
}

TEST(EvaluateRenderedQuantity, ReadsInTheUnitOrAsInteger) {
    const struct {
        int unit;
        const wchar_t* text;
        double value;
    } rows[] = {
        {4, L"25.4 mm", 1.0},  {5, L"1 mm", 10.0},
        {3, L"1 in", 2.54},    {6, L"2 mm", 12.7},
        {2, L"abc", 0.0},      {12, L"3 mm", 0.3},
        {12, L"2 spi", 1.27},  {14, L"3 cm", 30.0},
        {14, L"2 in", 50.8},   {15, L"90.5\u00B0", 90.5},
        {9, L"50.7 %", 50.0},  {13, L"2.75", 2.0},
        {7, L"5.5", 5.0},      {0, L"3.5", 3.0},
        {-1, L"3.5", 3.0},     {16, L"3.5", 3.0},
        {1, L"12.7 mm", 12.0}, {6, L"0 mm", std::numeric_limits<double>::infinity()},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.unit << " " << shown(row.text));
        EXPECT_EQ(evaluateRenderedQuantity(row.unit, row.text), row.value);
    }
}

TEST(ConvertZUnits, CarriesTheDisplayedPrecision) {
    EXPECT_EQ(convertZUnits(2, 1.234, 4, 0), 1.23 / 25.4);
    EXPECT_EQ(convertZUnits(2, 2.5, 5, 1), 25.0);
    EXPECT_EQ(convertZUnits(4, 0.004, 2, 0), 0.0);
    EXPECT_EQ(convertZUnits(14, 0.25, 3, 0), 0.025);
    EXPECT_EQ(convertZUnits(7, 3.0, 2, 0), 0.0) << "no renderer: the empty text";
    EXPECT_EQ(convertZUnits(7, 3.0, 15, 0), 0.0);
    EXPECT_EQ(convertZUnits(2, 12.7, 8, 0), 12.0);
}

TEST(ConvertZUnitsDeathTest, TextOfAHundredCharactersEndsTheProcess) {
    EXPECT_EXIT(convertZUnits(2, 1e98, 4, 0), testing::ExitedWithCode(1),
                "1: Token buffer overflow");
}

// Quantities before main and after it returned: locks and labels must stand.
struct EarlyAndLate {
    double early = double(ZMillimeter(ZString(L"1 in")));
    std::wstring text = wide(ZMillimeter(2.5));
    ~EarlyAndLate() {
        if (wide(ZMillimeter(ZString(L"2 cm"))) != L"20.0 mm")
            std::abort();
    }
};
const EarlyAndLate earlyAndLate;

TEST(Quantities, WorkInStaticConstructorsAndExitHandlers) {
    EXPECT_EQ(earlyAndLate.early, 25.4);
    EXPECT_EQ(earlyAndLate.text, L" 2.5 mm");
    const auto leave = [] {
        std::atexit([] {
            if (wide(ZMillimeter(ZString(L"3 cm"))) != L"30.0 mm")
                std::_Exit(3);
        });
        std::exit(0);
    };
    EXPECT_EXIT(leave(), testing::ExitedWithCode(0), "");
}

} // namespace
