#include <zarnex/units/internal/scannedNumber.h>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <system_error>

namespace zarnex::detail {

namespace {

constexpr double powersOfTen[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6, 1e7,
                                  1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14};

/// What people type. Up to 15 digits make a whole number that a double holds, and its
/// division by a power of ten that a double holds rounds once, so the result is exact.
bool readShortNumber(const char* text, const char* end, double& number) {
    constexpr std::ptrdiff_t most = 15;
    if (end - text > most || text == end)
        return false;
    std::int64_t digits = 0;
    const char* point = end - 1;
    for (const char* at = text; at != end; ++at) {
        if (*at == '.')
            point = at;
        else
            digits = 10 * digits + (*at - '0');
    }
    number = static_cast<double>(digits) / powersOfTen[end - 1 - point];
    return true;
}

/// What a number beyond the range of double becomes: too large if a digit before the
/// point counts, else too small.
double limitOf(const char* text, const char* end) {
    const char* point = std::find(text, end, '.');
    const bool large = std::any_of(text, point, [](char c) { return c != '0'; });
    return large ? std::numeric_limits<double>::infinity() : 0.0;
}

double readLongNumber(const char* text, const char* end) {
    double number = 0.0;
    const auto read = std::from_chars(text, end, number, std::chars_format::fixed);
    return read.ec == std::errc::result_out_of_range ? limitOf(text, end) : number;
}

} // namespace

constinit double scannedNumber = 0.0;

void storeScannedNumber(const char* text, const char* end) {
    const bool negative = *text == '-';
    if (negative || *text == '+')
        ++text;
    if (text == end)
        return;
    double number = 0.0;
    if (!readShortNumber(text, end, number))
        number = readLongNumber(text, end);
    scannedNumber = negative ? -number : number;
}

} // namespace zarnex::detail
