#include <zarnex/units/internal/display.h>

#include <zarnex/strings/internal/TextBuffer.h>
#include <zarnex/strings/internal/fewDecimals.h>
#include <zarnex/strings/internal/numberText.h>
#include <zarnex/strings/internal/text.h>
#include <zarnex/strings/internal/textArray.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstddef>
#include <utility>

namespace zarnex::detail {

namespace {

void appendNumber(TextBuffer<wchar_t>& out, double value, int width, int precision) {
    char digits[1 + fewDecimalsRoom] = {'-'};
    const char* const begin = digits + (std::signbit(value) ? 0 : 1);
    const char* const end = fewDecimals(digits + 1, std::fabs(value), precision);
    if (end != nullptr && width >= 0) {
        const std::ptrdiff_t padding = (std::max)(width - (end - begin), std::ptrdiff_t{0});
        out.append(L' ', static_cast<std::size_t>(padding));
        out.append(begin, end);
        return;
    }
    NumberLayout layout;
    layout.left = width < 0;
    layout.width = width >= 0 ? width : width == INT_MIN ? INT_MAX : -width;
    layout.precision = precision;
    appendDouble(out, value, 'f', layout);
}

ZString made(const TextBuffer<wchar_t>& text) {
    ZXArray<wchar_t> array;
    array.setStep(growthStep);
    assignText(array, text.data(), text.length());
    return TextAccess::make<ZString>(std::move(array));
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
