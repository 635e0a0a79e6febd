#pragma once

#include <algorithm>
#include <cstdint>

namespace zarnex::detail {

/// The most characters that fewDecimals() writes.
inline constexpr int fewDecimalsRoom = 26;

/// Writes `magnitude`, not negative, with `precision` decimals to `out` and returns the
/// end, as std::to_chars does for the fixed format: the exact value counts, and halves go
/// to the even digit. Null for what people hardly look at: more than 9 decimals, 2^53 and
/// above, less than 2^-11 other than 0.
inline char* fewDecimals(char* out, double magnitude, int precision) {
    constexpr int most = 9;
    constexpr std::uint64_t powers[most + 1] = {1,      10,      100,      1000,      10000,
                                                100000, 1000000, 10000000, 100000000, 1000000000};
    const bool isInReach = magnitude < 0x1p53 && (magnitude >= 0x1p-11 || magnitude == 0.0);
    if (!isInReach || precision < 0 || precision > most)
        return nullptr;

    // The fraction is a whole number of 2^-63 then, so that its decimals and what they
    // leave are exact: fraction * power = decimals * 2^63 + remainder, in steps of 64 bits.
    auto whole = static_cast<std::uint64_t>(magnitude);
    const auto fraction =
        static_cast<std::uint64_t>((magnitude - static_cast<double>(whole)) * 0x1p63);
    constexpr std::uint64_t low31 = (1u << 31) - 1;
    constexpr std::uint64_t low32 = (std::uint64_t{1} << 32) - 1;
    const std::uint64_t power = powers[precision];
    const std::uint64_t low = (fraction & low31) * power;
    const std::uint64_t high = (fraction >> 31) * power + (low >> 31);
    std::uint64_t decimals = high >> 32;
    const std::uint64_t remainder = (high & low32) << 31 | (low & low31);

    constexpr std::uint64_t half = std::uint64_t{1} << 62;
    const std::uint64_t last = precision == 0 ? whole : decimals;
    if (remainder > half || (remainder == half && last % 2 != 0))
        ++decimals;
    if (decimals == power) {
        decimals = 0;
        ++whole;
    }

    char digits[fewDecimalsRoom];
    char* const end = digits + sizeof digits;
    char* at = end;
    const auto addDigit = [&at](std::uint64_t& number) {
        *--at = static_cast<char>('0' + number % 10);
        number /= 10;
    };
    for (int i = 0; i < precision; ++i)
        addDigit(decimals);
    if (precision > 0)
        *--at = '.';
    do
        addDigit(whole);
    while (whole != 0);
    return std::copy(at, end, out);
}

} // namespace zarnex::detail
