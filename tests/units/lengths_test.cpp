#include "tests/units/quantityChecks.h"

#include <zarnex/units/ZCentimeter.h>
#include <zarnex/units/ZCentimeterPerSec.h>
#include <zarnex/units/ZEmbPoint.h>
#include <zarnex/units/ZInch.h>
#include <zarnex/units/ZMillimeter.h>
#include <zarnex/units/ZMillimeterPerSec.h>
#include <zarnex/units/ZSpi.h>
#include <zarnex/units/ZSquareCentimeter.h>

#include <cmath>
#include <limits>
#include <string>
#include <type_traits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
const double nan = std::nan("");

TEST(Lengths, RenderWithTheirLabels) {
    const struct {
        double value;
        const wchar_t *millimeter, *constMillimeter, *centimeter, *inch, *point;
    } rows[] = {
        {2.5, L" 2.5 mm", L" 2.5 mm", L" 2.5 cm", L"2.50 in", L"2.5 pt"},
        {2.34, L"2.34 mm", L" 2.3 mm", L" 2.3 cm", L"2.34 in", L"2.3 pt"},
        {1.999, L" 2.0 mm", L" 2.0 mm", L" 2.0 cm", L"2.00 in", L"2.0 pt"},
        {-0.05, L"-0.05 mm", L"-0.1 mm", L"-0.1 cm", L"-0.05 in", L"-0.1 pt"},
        {254.0, L"254.0 mm", L"254.0 mm", L"254.0 cm", L"254.00 in", L"254.0 pt"},
        {infinity, L" inf mm", L" inf mm", L" inf cm", L" inf in", L"inf pt"},
        {nan, L" nan mm", L" nan mm", L" nan cm", L" nan in", L"nan pt"},
        {1e10, L"10000000000.00 mm", L"10000000000.0 mm", L"10000000000.0 cm", L"10000000000.00 in",
         L"10000000000.0 pt"}, // the hundredths end at the largest int
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value);
        ZMillimeter millimeter(row.value);
        const ZMillimeter constMillimeter(row.value);
        EXPECT_EQ(wide(millimeter), row.millimeter);
        EXPECT_EQ(wide(constMillimeter.getString()), row.millimeter);
        EXPECT_EQ(wide(constMillimeter), row.constMillimeter);
        checkText<ZCentimeter>(row.value, row.centimeter);
        checkText<ZInch>(row.value, row.inch);
        checkText<ZEmbPoint>(row.value, row.point);
    }
    EXPECT_EQ(wide(ZMillimeter(2.5).getString(7, 3)), L"  2.500 mm");
    EXPECT_EQ(wide(ZMillimeter(2.5).getDensityString(-6, 1)), L"2.5    mm");
    EXPECT_EQ(wide(ZMillimeter(2.5).getDensityStringWithUnits(2)), L"2.50 mm");
    EXPECT_EQ(wide(ZCentimeter(0.25).getDensityStringWithUnits(2)), L"2.50 mm");
    EXPECT_EQ(wide(ZInch(0.1).getDensityStringWithUnits(2)), L"2.54 mm");
    EXPECT_EQ(wide(ZEmbPoint(25.0).getDensityStringWithUnits(2)), L"2.50 mm");
    EXPECT_EQ(wide(ZCentimeter(2.5).getString(1, 0)), L"2 cm");
    EXPECT_EQ(wide(ZInch(2.5).getString(6, 1)), L"   2.5 in");
    EXPECT_EQ(wide(ZEmbPoint(2.5).getString(6, 2)), L"  2.50 pt");
}

TEST(Lengths, LabelsAreTextAndNeverFormats) {
    ZMillimeter::setUnitString(L"%s%n");
    ZInch::setUnitString(L"\u2033");
    ZCentimeter labelled(1.0);
    labelled.setUnitString(L"%d");
    const std::wstring millimeters = wide(ZMillimeter(1.0));
    const std::wstring inches = wide(ZInch(1.0));
    ZMillimeter::setUnitString(L"mm");
    ZInch::setUnitString(L"in");
    EXPECT_EQ(millimeters, L" 1.0 %s%n");
    EXPECT_EQ(inches, L"1.00 \u2033");
    EXPECT_EQ(wide(labelled), L" 1.0 %d");
    EXPECT_EQ(wide(labelled.getStringWithUnits(0)), L" 1.0 %d");
    EXPECT_EQ(wide(labelled.getStringWithUnits(3)), L" 1.0 cm") << "a fresh object";
    const ZCentimeter copied(labelled);
    ZCentimeter assigned(2.0);
    assigned = labelled;
    EXPECT_EQ(wide(copied), L" 1.0 %d");
    EXPECT_EQ(wide(assigned), L" 1.0 cm") << "assignment leaves the label";
}

TEST(Lengths, RenderInOtherUnits) {
    const struct {
        int unit;
        const wchar_t *millimeter, *centimeter, *inch, *point;
    } rows[] = {
        // of 25.4 mm, 2.54 cm, 1 inch and 254 points
        {2, L"25.4 mm", L"25.4 mm", L"25.4 mm", L"25.4 mm"},
        {3, L"25.4 mm", L" 2.5 cm", L"1.00 in", L"254.0 pt"},
        {4, L"1.00 in", L"1.00 in", L"1.00 in", L"1.00 in"},
        {5, L"254.0 pt", L"254.0 pt", L"254.0 pt", L"254.0 pt"},
        {6, L"1.0 spi", L"1.0 spi", L"1.0 spi", L"1.0 spi"},
        {7, L"25.4 mm", L" 2.5 cm", L"1.00 in", L"254.0 pt"},
        {-1, L"25.4 mm", L" 2.5 cm", L"1.00 in", L"254.0 pt"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.unit);
        ZMillimeter millimeter(25.4);
        ZCentimeter centimeter(2.54);
        ZInch inch(1.0);
        ZEmbPoint point(254.0);
        const auto expectText = [unit = row.unit](auto& length, const wchar_t* text) {
            EXPECT_EQ(wide(length.getStringWithUnits(unit)), text);
            EXPECT_EQ(wide(length.getDensityStringWithUnits(unit)), unit == 2 ? L"25.40 mm" : text);
        };
        expectText(millimeter, row.millimeter);
        expectText(centimeter, row.centimeter);
        expectText(inch, row.inch);
        expectText(point, row.point);
    }
}

// What 3 of each become, valid or not.
template <class Target>
void checkAssignedFromEach(double fromMillimeter, double fromCentimeter, double fromInch,
                           double fromPoint, double fromSpi) {
    const auto check = [](const auto& valid, const wchar_t* text, double value) {
        const std::decay_t<decltype(valid)> invalid{ZString(text)};
        EXPECT_FALSE(invalid.isValid());
        checkAssigned<Target>(valid, value);
        checkAssigned<Target>(invalid, value);
    };
    if constexpr (!std::is_same_v<Target, ZMillimeterPerSec>) // takes it as text and as number
        check(ZMillimeter(3.0), L"3 mm x", fromMillimeter);
    check(ZCentimeter(3.0), L"3 cm x", fromCentimeter);
    check(ZInch(3.0), L"3 in x", fromInch);
    check(ZEmbPoint(3.0), L"3 pt x", fromPoint);
    check(ZSpi(3.0), L"3 spi x", fromSpi);
}

// What derived classes reach: a quantity takes its own unit and refuses another.
template <class Quantity>
void checkRefused(int unit) {
    struct Opened : Quantity {
        using Quantity::setValue;
    } quantity;
    SCOPED_TRACE(testing::Message() << "unit " << unit << " by " << quantity.getUnitId());
    for (int i = 0; i < 2; ++i) { // from either state
        EXPECT_EQ(quantity.setValue(3.0, quantity.getUnitId()), 1);
        EXPECT_TRUE(double(quantity) == 3.0 && quantity.isValid() == 1);
        EXPECT_EQ(quantity.setValue(5.0, unit), 0);
        EXPECT_TRUE(double(quantity) == 0.0 && quantity.isValid() == 0);
    }
}

TEST(Quantities, BecomeZeroByAUnitThatTheyRefuse) {
    checkRefused<ZMillimeter>(7);
    checkRefused<ZCentimeter>(1);
    checkRefused<ZInch>(15);
    checkRefused<ZEmbPoint>(-2);
    checkRefused<ZSpi>(7);
    checkRefused<ZMillimeterPerSec>(4);
    checkRefused<ZCentimeterPerSec>(6);
    checkRefused<ZSquareCentimeter>(3);
}

TEST(Quantities, ConvertAmongEachOtherByAssignment) {
    checkAssignedFromEach<ZMillimeter>(3, 30, 3 * 25.4, 3 / 10.0, 25.4 / 3);
    checkAssignedFromEach<ZCentimeter>(3 / 10.0, 3, 3 * 2.54, 3 / 100.0, 2.54 / 3);
    checkAssignedFromEach<ZInch>(3 / 25.4, 3 / 2.54, 3, 3 / 254.0, 1.0 / 3);
    checkAssignedFromEach<ZEmbPoint>(30, 300, 3 * 254.0, 3, 254.0 / 3);
    checkAssignedFromEach<ZSpi>(25.4 / 3, 2.54 / 3, 1.0 / 3, 254.0 / 3, 3);
    checkAssignedFromEach<ZMillimeterPerSec>(3, 30, 3 * 25.4, 3 / 10.0, 25.4 / 3);
    checkAssignedFromEach<ZCentimeterPerSec>(3 / 10.0, 3, 3 * 2.54, 3 / 100.0, 2.54 / 3);
    checkAssigned<ZMillimeter>(ZSpi(-2.0), -12.7);
    checkAssigned<ZSpi>(ZMillimeterPerSec(-2.0), -12.7);
    checkAssigned<ZSpi>(ZCentimeterPerSec(2.0), 1.27);
    checkAssigned<ZMillimeterPerSec>(ZCentimeterPerSec(2.0), 20.0);
}

TEST(Lengths, ADensityOfZeroIsTheLengthZeroExceptInPoints) {
    for (const ZSpi& zero : {ZSpi(0.0), ZSpi(-0.0)}) {
        checkAssigned<ZMillimeter>(zero, 0.0);
        checkAssigned<ZCentimeter>(zero, 0.0);
        checkAssigned<ZInch>(zero, 0.0);
    }
    checkAssigned<ZMillimeter>(ZSpi(1e-10), 25.4 / 1e-10);
    for (double nearZero : {0.0, 1e-9, -1e-9}) {
        ZEmbPoint point(7.0);
        point = ZSpi(nearZero);
        EXPECT_EQ(double(point), 7.0);
        EXPECT_FALSE(point.isValid());
    }
    checkAssigned<ZEmbPoint>(ZSpi(2e-9), 254.0 / 2e-9);
}

TEST(Lengths, CompareEachByTheirOwnRule) {
    const struct {
        double a, b;
        bool millimeter, centimeter, inch, point;
    } rows[] = {
        {1.0, 1.0, true, true, true, true},
        {1.0, 1.0 + 1e-10, true, false, false, false},
        {0.0, 1e-9, true, false, false, false},
        {0.0, 1.1e-9, false, false, false, false},
        {0.1 + 0.2, 0.3, true, false, false, true}, // 5.6e-17 apart
        {1.0, 1.0 + 2.220446049250313e-16, true, false, false, false},
        {nan, nan, false, false, false, false},
        {infinity, infinity, false, true, true, false}, // their difference is no number
    };
    for (const auto& row : rows) {
        checkCompared<ZMillimeter>(row.a, row.b, row.millimeter);
        checkCompared<ZCentimeter>(row.a, row.b, row.centimeter);
        checkCompared<ZInch>(row.a, row.b, row.inch);
        checkCompared<ZEmbPoint>(row.a, row.b, row.point);
    }
}

// A host's own kind of centimetre, which refuses inches.
class Metric : public ZCentimeter {
public:
    int calls = 0;

protected:
    int setValue(double value, int unit) override {
        ++calls;
        return unit == 4 ? 0 : ZCentimeter::setValue(value, unit);
    }
};

// Different units are not compared by their bare numbers.
template <class A, class B>
constexpr bool isComparable = requires(A a, B b) {
    a == b;
}
|| requires(A a, B b) {
    a != b;
}
|| requires(A a, B b) {
    a < b;
}
|| requires(A a, B b) {
    a >= b;
};
static_assert(!isComparable<ZMillimeter, ZInch> && !isComparable<ZSpi, ZMillimeter>);
static_assert(isComparable<ZMillimeter, ZMillimeter> && isComparable<ZInch, int>);

TEST(Lengths, CompareAndAppendNaturally) {
    ZMillimeter millimeter(2.5);
    EXPECT_TRUE(millimeter == 2.5 && 2.5 == millimeter && millimeter == 2.5 + 1e-10);
    EXPECT_TRUE(millimeter != 3 && 3 != millimeter && millimeter < 3 && 2 < millimeter);
    EXPECT_EQ(millimeter + 1, 3.5);
    EXPECT_TRUE(Metric() == 0) << "a host's derived class";
    EXPECT_TRUE(0 != Metric() + 1);
    millimeter = L"3 cm x";
    EXPECT_EQ(double(millimeter), 30.0);
    EXPECT_FALSE(millimeter.isValid());
    millimeter = 2.5;
    EXPECT_TRUE(millimeter.isValid());
    ZString label(L"length: ");
    label += millimeter;
    EXPECT_EQ(wide(label + L", " + ZInch(1.0)), L"length:  2.5 mm, 1.00 in");
}

TEST(ZCentimeter, ReadsThroughItsVirtualSetValue) {
    Metric metric;
    metric.setStringWithUnits(L"2 in", 1);
    EXPECT_EQ(double(metric), 2.0);
    EXPECT_EQ(metric.calls, 3) << "the unit, the preferred unit, the own unit";
}

TEST(Lengths, ReadAndRenderUnderALocaleWithAComma) {
    const CommaLocale comma;
    if (!comma.isSet())
        GTEST_SKIP() << "no locale with a decimal comma here";
    EXPECT_EQ(wide(ZMillimeter(ZString(L"2.25 mm"))), L"2.25 mm");
}

} // namespace
