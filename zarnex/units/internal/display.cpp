#include <zarnex/units/internal/display.h>

#include <zarnex/strings/internal/TextBuffer.h>
#include <zarnex/strings/internal/numberText.h>
#include <zarnex/strings/internal/text.h>

#include <climits>

namespace zarnex::detail {

namespace {

void appendNumber(TextBuffer<wchar_t>& out, double value, int width, int precision) {
    NumberLayout layout;
    layout.left = width < 0;
    layout.width = width >= 0 ? width : width == INT_MIN ? INT_MAX : -width;
    layout.precision = precision;
    appendDouble(out, value, 'f', layout);
}

ZString made(const TextBuffer<wchar_t>& text) {
    return ZString(text.data(), static_cast<int>(text.length()));
}

} // namespace

ZString displayText(double value, int width, int precision, const wchar_t* suffix) {
    TextBuffer<wchar_t> text;
    appendNumber(text, value, width, precision);
    text.append(suffix, suffix + textLength(suffix));
    return made(text);
}

ZString labelledText(double value, int width, int precision, const ZString& label) {
    TextBuffer<wchar_t> text;
    appendNumber(text, value, width, precision);
    text.append(L' ');
    const wchar_t* const units = label;
    text.append(units, units + textLength(units));
    return made(text);
}

int decimalsFor(int hundredths) {
    return hundredths % 10 == 0 ? 1 : 2;
}

} // namespace zarnex::detail
