#include "tests/units/quantityChecks.h"

#include <zarnex/units/ZCentimeterPerSec.h>
#include <zarnex/units/ZEmbPoint.h>
#include <zarnex/units/ZInch.h>
#include <zarnex/units/ZMillimeter.h>
#include <zarnex/units/ZMillimeterPerSec.h>
#include <zarnex/units/ZSpi.h>
#include <zarnex/units/ZSquareCentimeter.h>

namespace {

TEST(Rates, Render) {
    checkText<ZSpi>(12.7, L"12.7 spi");
    checkText<ZSquareCentimeter>(5.0, L" 5.0 per sq cm", 2);
    checkText<ZCentimeterPerSec>(1.2, L"1.20 cm/s", 2);
    EXPECT_EQ(wide(ZSpi(12.7).getString(7, 2)), L"  12.70 spi");
    EXPECT_EQ(wide(ZSquareCentimeter(5.0).getString(1, 0)), L"5 per sq cm");
    ZCentimeterPerSec slow(ZString(L"12 mm"));
    EXPECT_EQ(wide(slow.getString(6, 1)), L"   1.2 cm/s");
    EXPECT_EQ(wide(slow.getDensityStringWithUnits(2)), L"12.00 mm");
    EXPECT_EQ(wide(slow.getDensityStringWithUnits(4)), L"1.20 cm/s");
    const ZCentimeter& constBase = slow;
    EXPECT_EQ(wide(constBase.getStringWithUnits(2)), L"1.20 cm/s");
    EXPECT_EQ(wide(constBase.getDensityStringWithUnits(2)), L"12.00 mm");
    ZCentimeter& base = slow;
    EXPECT_EQ(wide(base), L"1.20 cm/s") << "the conversion is virtual";
    base = ZCentimeter(1.5);
    EXPECT_EQ(wide(base), L"1.50 cm/s");
    EXPECT_EQ(base.getUnitId(), 12);
}

TEST(ZMillimeterPerSec, RendersTwelveOrTwentyTwoDecimalsUnlessConst) {
    const struct {
        double value;
        const wchar_t *text, *constText;
    } rows[] = {
        {2.5, L"2.500000000000 mm/s", L"2.50 mm/s"},
        {0.25, L"0.2500000000000000000000 mm/s", L"0.25 mm/s"},
        {0.125, L"0.1250000000000000000000 mm/s",
         L"0.12 mm/s"}, // 12 hundredths; a tie goes to the even digit
        {0.109375, L"0.109375000000 mm/s", L"0.11 mm/s"}, // 10.9 hundredths are cut to 10
        {-2.0, L"-2.000000000000 mm/s", L"-2.00 mm/s"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value);
        ZMillimeterPerSec speed(ZString(L"wide"));
        speed = row.value;
        EXPECT_EQ(speed.isValid(), 1);
        const ZMillimeterPerSec constSpeed(row.value);
        EXPECT_EQ(wide(speed), row.text);
        EXPECT_EQ(wide(speed.getStringWithUnits(3)), row.text);
        EXPECT_EQ(wide(speed.getDensityStringWithUnits(4)), row.text);
        EXPECT_EQ(wide(constSpeed), row.constText);
    }
    EXPECT_EQ(wide(ZMillimeterPerSec(2.5).getDensityStringWithUnits(2)), L"2.50 mm/s");
    EXPECT_EQ(wide(ZMillimeterPerSec(2.5).getString(7, 1)), L"    2.5 mm/s");
    ZMillimeterPerSec::setUnitString(L"%f");
    const std::wstring labelled = wide(ZMillimeterPerSec(2.5).getDensityString(4, 1));
    ZMillimeterPerSec::setUnitString(L"mm/s");
    EXPECT_EQ(labelled, L" 2.5 %f");
}

TEST(ZSpi, RendersItsStitchLengthInOtherUnits) {
    const ZSpi spi{ZInch(0.1)};
    EXPECT_EQ(double(spi), 10.0);
    EXPECT_EQ(wide(spi.getStringWithUnits(2)), L"2.54 mm");
    EXPECT_EQ(wide(spi.getStringWithUnits(4)), L"0.10 in");
    EXPECT_EQ(wide(spi.getStringWithUnits(5)), L"25.4 pt");
    EXPECT_EQ(wide(spi.getStringWithUnits(3)), L"10.0 spi");
    EXPECT_EQ(wide(spi.getDensityStringWithUnits(2)), L"2.54 mm");
    EXPECT_EQ(wide(ZSpi(25.4).getDensityStringWithUnits(2)), L"1.00 mm");
    EXPECT_EQ(wide(ZSpi(25.4).getStringWithUnits(2)), L" 1.0 mm");
    EXPECT_EQ(wide(ZSpi(0.0).getStringWithUnits(5)), L"0.0 pt");
}

TEST(Rates, ASpeedAssignedFromTextStaysOne) {
    ZCentimeterPerSec speed(7.0);
    speed = L"5 spi"; // densities are refused in text
    EXPECT_EQ(double(speed), 5.0);
    EXPECT_EQ(speed.getUnitId(), 12);
}

TEST(Rates, AssigningZeroGivesZeroWhereReadingGivesInfinity) {
    checkAssigned<ZSpi>(ZMillimeter(0.0), 0.0);
    checkAssigned<ZSpi>(ZMillimeterPerSec(-0.0), 0.0);
    checkAssigned<ZSpi>(ZCentimeter(0.0), 0.0);
    checkAssigned<ZSpi>(ZInch(0.0), 0.0);
    checkAssigned<ZSpi>(ZEmbPoint(0.0), 0.0);
    checkAssigned<ZSpi>(ZEmbPoint(2e-16), 0.0); // equal to zero by the points' own rule
    checkAssigned<ZSpi>(ZEmbPoint(3e-16), 254.0 / 3e-16);
    checkAssigned<ZSpi>(ZMillimeter(1e-12), 25.4 / 1e-12);
    checkAssigned<ZMillimeterPerSec>(ZSpi(0.0), 0.0);
}

TEST(Rates, CompareExactlyExceptMillimetersPerSecond) {
    for (const double apart : {0.0, 1e-10, 1.1e-9, 1.0}) {
        checkCompared<ZSpi>(1.0, 1.0 + apart, apart == 0.0);
        checkCompared<ZSquareCentimeter>(1.0, 1.0 + apart, apart == 0.0);
        checkCompared<ZCentimeterPerSec>(1.0, 1.0 + apart, apart == 0.0);
        checkCompared<ZMillimeterPerSec>(1.0, 1.0 + apart, apart < 1e-9);
    }
}

} // namespace
