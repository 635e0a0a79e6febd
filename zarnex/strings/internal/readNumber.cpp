#include <zarnex/strings/internal/readNumber.h>

#include <zarnex/strings/internal/TextBuffer.h>

#include <charconv>
#include <climits>
#include <limits>

namespace zarnex::detail {

namespace {

bool isDigit(wchar_t unit) {
    return unit >= L'0' && unit <= L'9';
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

// The characters that a number can be made of, as bytes.
void copyNumber(TextBuffer<char>& out, const wchar_t* text) {
    const auto belongs = [](wchar_t unit) {
        const wchar_t lower = unit | 0x20;
        return isDigit(unit) || (lower >= L'a' && lower <= L'z') || unit == L'.' || unit == L'+' ||
               unit == L'-' || unit == L'(' || unit == L')' || unit == L'_';
    };
    for (; belongs(*text); ++text)
        out.append(static_cast<char>(*text));
}

// Whether a number out of the range of double is too large rather than too
// small: the decimal (hexadecimal) place of its first digit that is not zero,
// moved by the exponent.
bool isTooLarge(const char* begin, const char* end, bool hex) {
    const char mark = hex ? 'p' : 'e';
    long long place = 0;
    bool significant = false;
    bool decimals = false;
    const char* next = begin;
    for (; next != end && (*next | 0x20) != mark; ++next) {
        if (*next == '.') {
            decimals = true;
            continue;
        }
        significant = significant || *next != '0';
        if (significant && !decimals)
            ++place;
        else if (!significant && decimals)
            --place;
    }
    if (hex)
        place *= 4;
    long long exponent = 0;
    if (next != end) {
        ++next;
        const bool negative = *next == '-';
        if (*next == '+')
            ++next;
        if (std::from_chars(next, end, exponent).ec != std::errc{})
            exponent = negative ? INT_MIN : INT_MAX;
    }
    return place + exponent > 0;
}

} // namespace

double readDouble(const wchar_t* text) {
    text = skipSpace(text);
    const bool negative = skipSign(text);
    if (*text == L'+' || *text == L'-')
        return 0.0;
    TextBuffer<char> number;
    copyNumber(number, text);
    const char* begin = number.data();
    const char* const end = begin + number.length();

    double value = 0.0;
    std::from_chars_result read{begin, std::errc::invalid_argument};
    const bool hex = number.length() > 2 && begin[0] == '0' && (begin[1] | 0x20) == 'x';
    if (hex) {
        begin += 2;
        read = *begin == '-' ? read : std::from_chars(begin, end, value, std::chars_format::hex);
    } else {
        read = std::from_chars(begin, end, value);
    }
    if (read.ec == std::errc::result_out_of_range)
        value = isTooLarge(begin, read.ptr, hex) ? std::numeric_limits<double>::infinity() : 0.0;
    else if (read.ec != std::errc{})
        value = 0.0;
    return negative ? -value : value;
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
