// Text in wide and narrow streams.

#include <zarnex/foundation.h>

#include "../support.h"

#include <functional>
#include <iomanip>
#include <sstream>
#include <string>
#include <utility>

namespace {

using zarnex::asText;

TEST(Streams, WidthAndFillCountForAllTexts) {
    const ZString name(L"h\u00E9");
    const struct {
        const char* what;
        std::function<void(std::wostream&)> write;
    } rows[] = {
        {"ZString", [&](std::wostream& out) { out << name; }},
        {"ZWideString", [&](std::wostream& out) { out << ZWideString(name); }},
        {"asText of a ZString", [&](std::wostream& out) { out << asText(name); }},
        {"asText of a ZWideString", [&](std::wostream& out) { out << asText(ZWideString(name)); }},
        {"asText of plain text", [](std::wostream& out) { out << asText(L"h\u00E9"); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        std::wostringstream out;
        out << std::setfill(L'.') << std::setw(5);
        row.write(out);
        out << std::left << std::setw(4);
        row.write(out);
        row.write(out); // the width is used up
        EXPECT_EQ(out.str(), L"...h\u00E9h\u00E9..h\u00E9");
    }
}

TEST(Streams, NarrowStreamsGetUtf8) {
    std::ostringstream out;
    out << std::setfill('.') << std::setw(5) << asText(L"h\u00E9") << '|' << std::left
        << std::setw(3) << asText(ZMillimeter(25.0)) << '|' << asText(ZDegree(90.0)) << '|'
        << asText(static_cast<const wchar_t*>(nullptr));
    EXPECT_EQ(out.str(), "..h\xC3\xA9|25.0 mm|90.0 \xC2\xB0|");
}

TEST(Streams, QuantitiesShowWhatTheyDisplay) {
    const auto text = [](const auto& quantity) {
        std::wostringstream out;
        out << asText(quantity);
        return out.str();
    };
    const ZMillimeter fine(2.34);
    ZMillimeter writable(2.34);
    ZCentimeterPerSec speed(2.5);
    EXPECT_EQ(text(fine), wide(ZString(writable))); // two decimals, const or not
    EXPECT_EQ(text(fine), L"2.34 mm");
    EXPECT_EQ(text(ZInch(1.0)), L"1.00 in");
    EXPECT_EQ(text(ZEmbPoint(254.0)), L"254.0 pt");
    EXPECT_EQ(text(ZMillimeterPerSec(2.5)), L"2.50 mm/s");
    EXPECT_EQ(text(speed), wide(ZString(std::as_const(speed))));
    EXPECT_EQ(text(ZNumber(42)), wide(ZString(ZNumber(42))));
    EXPECT_EQ(text(ZPercent(50)), wide(ZString(ZPercent(50))));

    std::wostringstream padded;
    padded << std::setw(10) << asText(fine) << std::setw(10) << ZString(L"x");
    EXPECT_EQ(padded.str(), L"   2.34 mm         x");
}

TEST(Streams, ACommaLocaleOfTheStreamChangesNoText) {
    const CommaLocale comma;
    std::wostringstream out;
    out << asText(ZMillimeter(1234.5)) << L' ' << asText(ZInch(0.25));
    EXPECT_EQ(out.str(), L"1234.5 mm 0.25 in");
}

} // namespace
