#include "pictures.h"

#include <zarnex/foundation.h>

#include <cwchar>

namespace {

std::string narrow(const ZString& text) {
    const ZMultiByteString bytes = strToUtf8(text);
    return static_cast<const char*>(bytes);
}

} // namespace

Svg drawUnits() {
    Svg picture(420, 276, "One inch beside its millimetres, centimetres, points and stitches");
    const ZInch inch(1.0);
    const double left = 20;
    const double width = 292; // of the inch
    const struct {
        ZString text;
        double count; // of ticks in an inch
        int longer;   // every how many ticks
    } rows[] = {
        {ZString(inch), 10.0, 10},
        {ZString(ZCentimeter(inch)), double(ZMillimeter(inch)), 10},
        {ZString(ZMillimeter(inch)), double(ZMillimeter(inch)), 5},
        {ZString(ZEmbPoint(inch)), double(ZEmbPoint(inch)) / 10.0, 10},
    };
    double y = 44;
    for (const auto& row : rows) {
        picture.line(left, y, left + width, y, "ink");
        for (int tick = 0; tick <= row.count + 1e-9; ++tick) {
            const double x = left + width * tick / row.count;
            picture.line(x, y, x, y - (tick % row.longer == 0 ? 16 : 8), "ink");
        }
        picture.text(left + width + 14, y, narrow(row.text), "");
        y += 44;
    }

    // Stitches of a density, and their length.
    const ZSpi density(10.0);
    const ZMillimeter stitch(density);
    const double step = width * double(stitch) / double(ZMillimeter(inch));
    picture.line(left, y, left + width, y, "blue dashed");
    int stitches = 0;
    for (double x = left; x <= left + width + 1e-9; x += step, ++stitches)
        picture.circle(x, y, 4, "bluish");
    picture.text(left + width + 14, y + 5, narrow(ZString(density)), "");
    picture.text(left, y + 34,
                 std::to_string(stitches - 1) + " stitches of " + narrow(stitch.getString(4, 2)) +
                     ": density and length are reciprocal",
                 "quiet small");
    return picture;
}

Svg drawTypedText() {
    const wchar_t* const texts[] = {L"2.5 mm", L"1 in extra", L"3 int", L"1 1/2 in", L"wide"};
    Svg picture(420, 346, "Five typed texts, cut into tokens, and the millimetres read from them");
    double y = 42;
    for (const wchar_t* const text : texts) {
        const auto length = static_cast<int>(std::wcslen(text));
        const double left = 20;
        const double advance = 19;
        for (int i = 0; i < length; ++i)
            picture.text(left + advance * (i + 0.5), y, std::string(1, static_cast<char>(text[i])),
                         "code bold", "middle");
        {
            ZUnitScanner scanner(text);
            while (const int token = scanner.yylex()) {
                const double from = left + advance * scanner.tokenBegin();
                const double to = left + advance * scanner.tokenEnd();
                picture.line(from + 2, y + 8, to - 2, y + 8,
                             token == zarnex::unitNumber ? "blue" : "orange");
                picture.text((from + to) / 2, y + 24, std::to_string(token), "quiet small",
                             "middle");
            }
        }
        const ZMillimeter read{ZString(text)};
        picture.text(300, y, narrow(read.getString(1, 1)), "", "end");
        picture.text(316, y, read.isValid() ? "valid" : "invalid", read.isValid() ? "" : "quiet");
        y += 56;
    }
    picture.line(20, y, 44, y, "blue");
    picture.text(52, y + 5, "a number", "small");
    picture.line(136, y, 160, y, "orange");
    picture.text(168, y + 5, "a unit word, with its identifier", "small");
    return picture;
}
