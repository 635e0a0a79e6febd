#include <zarnex/strings/internal/numberReading.h>

#include <zarnex/strings/internal/TextBuffer.h>
#include <zarnex/strings/internal/letterCase.h>

#include <charconv>
#include <climits>
#include <limits>

namespace zarnex::detail {

namespace {

bool isDigit(wchar_t unit) {
    return unit >= L'0' && unit <= L'9';
}

bool isHexDigit(wchar_t unit) {
    return isDigit(unit) || (lowerAscii(unit) >= L'a' && lowerAscii(unit) <= L'f');
}

const wchar_t* skipSpace(const wchar_t* text) {
    while (*text == L' ' || (*text >= L'\t' && *text <= L'\r'))
        ++text;
    return text;
}

bool skipSign(const wchar_t*& text) {
    const bool negative = *text == L'-';
    if (negative || *text == L'+')
        ++text;
    return negative;
}

bool beginsWith(const wchar_t* text, const char* word) {
    while (*word != '\0' && lowerAscii(*text) == static_cast<wchar_t>(*word)) {
        ++text;
        ++word;
    }
    return *word == '\0';
}

// The text of a number as bytes, and the place of its first digit that is not
// zero: 1 for the last one before the point, 0 and below behind the point.
struct NumberText {
    TextBuffer<char> chars;
    bool hex = false;
    long long place = 0;
    long long exponent = 0;
};

bool readDigits(const wchar_t*& text, NumberText& number, bool decimals, bool& significant) {
    const wchar_t* const begin = text;
    for (; number.hex ? isHexDigit(*text) : isDigit(*text); ++text) {
        number.chars.append(static_cast<char>(*text));
        significant = significant || *text != L'0';
        if (significant != decimals)
            number.place += decimals ? -1 : 1;
    }
    return text != begin;
}

void readExponent(const wchar_t* text, NumberText& number) {
    const wchar_t mark = number.hex ? L'p' : L'e';
    if (lowerAscii(*text) != mark)
        return;
    ++text;
    const bool negative = skipSign(text);
    if (!isDigit(*text))
        return;
    number.chars.append(static_cast<char>(mark));
    if (negative)
        number.chars.append('-');
    for (; isDigit(*text); ++text) {
        number.chars.append(static_cast<char>(*text));
        number.exponent = (std::min)(10 * number.exponent + (*text - L'0'), LLONG_MAX / 20);
    }
    if (negative)
        number.exponent = -number.exponent;
}

// Reads a number without sign; false if there is none.
bool readMagnitude(const wchar_t* text, double& value) {
    if (beginsWith(text, "inf")) {
        value = std::numeric_limits<double>::infinity();
        return true;
    }
    if (beginsWith(text, "nan")) {
        value = std::numeric_limits<double>::quiet_NaN();
        return true;
    }
    NumberText number;
    number.hex =
        beginsWith(text, "0x") && (isHexDigit(text[2]) || (text[2] == L'.' && isHexDigit(text[3])));
    if (number.hex)
        text += 2;
    bool significant = false;
    bool found = readDigits(text, number, false, significant);
    if (*text == L'.') {
        number.chars.append('.');
        ++text;
        found = readDigits(text, number, true, significant) || found;
    }
    if (!found)
        return false;
    readExponent(text, number);

    const char* const begin = number.chars.data();
    const auto format = number.hex ? std::chars_format::hex : std::chars_format::general;
    const auto read = std::from_chars(begin, begin + number.chars.length(), value, format);
    if (read.ec == std::errc::result_out_of_range) {
        const bool isTooLarge = number.exponent > -number.place * (number.hex ? 4 : 1);
        value = isTooLarge ? std::numeric_limits<double>::infinity() : 0.0;
    }
    return true;
}

} // namespace

double readDouble(const wchar_t* text) {
    text = skipSpace(text);
    const bool negative = skipSign(text);
    double magnitude = 0.0;
    if (!readMagnitude(text, magnitude))
        return 0.0;
    return negative ? -magnitude : magnitude;
}

int readInt(const wchar_t* text) {
    text = skipSpace(text);
    const bool negative = skipSign(text);
    long long value = 0;
    for (; isDigit(*text) && value <= INT_MAX; ++text)
        value = 10 * value + (*text - L'0');
    if (negative)
        return static_cast<int>((std::max)(-value, 0LL + INT_MIN));
    return static_cast<int>((std::min)(value, 0LL + INT_MAX));
}

} // namespace zarnex::detail
