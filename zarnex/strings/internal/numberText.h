#pragma once

/// Digits of numbers, the same on every platform and in every locale.

#include <zarnex/strings/internal/TextBuffer.h>

#include <cstdint>

namespace zarnex::detail {

/// How a number is laid out in a field, as the printf family counts it.
struct NumberLayout {
    int width = 0;
    int precision = -1;     ///< below 0: not given
    bool left = false;      ///< '-': pad behind
    bool plus = false;      ///< '+': sign of positive numbers
    bool blank = false;     ///< ' ': blank in place of that sign
    bool zero = false;      ///< '0': pad with zeros behind the sign
    bool alternate = false; ///< '#': prefix of a base, dot without decimals
};

/// Appends `magnitude`, negated if asked, as d, u, o, x or X.
template <class Char>
void appendInteger(TextBuffer<Char>& out, std::uint64_t magnitude, bool negative, char conversion,
                   const NumberLayout& layout);

/// Appends `value` as e, f, g, a or their capitals. Infinities are "inf" with
/// their sign, anything that is no number is "nan" without.
template <class Char>
void appendDouble(TextBuffer<Char>& out, double value, char conversion, const NumberLayout& layout);

} // namespace zarnex::detail
