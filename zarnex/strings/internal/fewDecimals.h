#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>

namespace zarnex::detail {

/// The fraction that `product`, the rounded product of `a` and a whole `b` below 2^26,
/// lacks to the exact one.
///
/// Source: Dekker, "A floating-point technique for extending the available precision",
/// Numerische Mathematik 18 (1971).
inline double lackOf(double product, double a, double b) {
    const auto high = std::bit_cast<double>(std::bit_cast<std::uint64_t>(a) & ~0x7FFFFFFull);
    return (high * b - product) + (a - high) * b;
}

/// The most characters that fewDecimals() writes.
inline constexpr int fewDecimalsRoom = 17;

/// Writes `magnitude`, not negative, with `precision` decimals to `out` and returns the
/// end, as std::to_chars does for the fixed format: the exact value counts, and halves go
/// to the even digit. For what people look at, up to 6 decimals and 15 digits in all;
/// otherwise it returns null.
inline char* fewDecimals(char* out, double magnitude, int precision) {
    constexpr double powers[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};
    if (precision < 0 || precision > 6)
        return nullptr;
    const double scaled = magnitude * powers[precision];
    if (!(scaled < 1e15))
        return nullptr;

    // `part` is exact, and what `scaled` lacks is less than the distance of any other
    // `part` from one half.
    auto number = static_cast<std::uint64_t>(scaled);
    const double part = scaled - static_cast<double>(number);
    bool up = part > 0.5;
    if (part == 0.5) {
        const double lack = lackOf(scaled, magnitude, powers[precision]);
        up = lack > 0.0 || (lack == 0.0 && number % 2 != 0);
    }
    number += up ? 1 : 0;

    char digits[fewDecimalsRoom];
    char* const end = digits + sizeof digits;
    char* at = end;
    const auto addDigit = [&at, &number] {
        *--at = static_cast<char>('0' + number % 10);
        number /= 10;
    };
    for (int i = 0; i < precision; ++i)
        addDigit();
    if (precision > 0)
        *--at = '.';
    do
        addDigit();
    while (number != 0);
    return std::copy(at, end, out);
}

} // namespace zarnex::detail
