#include <zarnex/geometry/formulas.h>
#include <zarnex/geometry/rounding.h>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>

namespace {

constexpr double infinity = HUGE_VAL;

TEST(Rounding, EveryDoubleHasADefinedInteger) {
    const struct {
        double value;
        int truncated, rounded, nearest;
        short narrow;
    } rows[] = {
        {0.0, 0, 0, 0, 0},
        {-0.9, 0, -1, -1, 0},
        {2.5, 2, 3, 3, 2},
        {-2.5, -2, -3, -3, -2},
        {std::nextafter(0.5, 0.0), 0, 1, 0, 0}, // the sum with 0.5 is already 1
        {1073741824.5, 1073741824, 1073741825, 1073741825, SHRT_MAX},
        {std::nextafter(1073741824.5, 0.0), 1073741824, 1073741824, 1073741824, SHRT_MAX},
        {40000.7, 40000, 40001, 40001, SHRT_MAX},
        {-40000.7, -40000, -40001, -40001, SHRT_MIN},
        {2147483647.0, INT_MAX, INT_MAX, INT_MAX, SHRT_MAX},
        {2147483647.9, INT_MAX, INT_MAX, INT_MAX, SHRT_MAX},
        {2147483648.0, INT_MAX, INT_MAX, INT_MAX, SHRT_MAX},
        {-2147483648.0, INT_MIN, INT_MIN, INT_MIN, SHRT_MIN},
        {-2147483648.9, INT_MIN, INT_MIN, INT_MIN, SHRT_MIN},
        {1e300, INT_MAX, INT_MAX, INT_MAX, SHRT_MAX},
        {infinity, INT_MAX, INT_MAX, INT_MAX, SHRT_MAX},
        {-infinity, INT_MIN, INT_MIN, INT_MIN, SHRT_MIN},
        {std::nan(""), 0, 0, 0, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value);
        EXPECT_EQ(zarnex::truncateToInt(row.value), row.truncated);
        EXPECT_EQ(zarnex::roundHalfAwayToInt(row.value), row.rounded);
        EXPECT_EQ(zarnex::roundToNearestInt(row.value), row.nearest);
        EXPECT_EQ(zarnex::detail::truncateTo<short>(row.value), row.narrow);
    }
}

TEST(Rounding, ToDoubleKeepsSizeAndMakesNoNegativeZero) {
    const struct {
        double value, rounded;
    } rows[] = {
        {2.5, 3.0},
        {-2.5, -3.0},
        {1e10 + 0.5, 1e10 + 1.0},
        {-4503599627370495.5, -4503599627370496.0},
        {4503599627370497.0, 4503599627370498.0}, // trunc(value + 0.5), ties to even
        {-1e300, -1e300},
        {infinity, infinity},
    };
    for (const auto& row : rows)
        EXPECT_EQ(zarnex::roundHalfAway(row.value), row.rounded) << row.value;
    EXPECT_FALSE(std::signbit(zarnex::roundHalfAway(-0.0)));
    EXPECT_FALSE(std::signbit(zarnex::roundHalfAway(-0.2)));
    EXPECT_TRUE(std::isnan(zarnex::roundHalfAway(std::nan(""))));
}

} // namespace
