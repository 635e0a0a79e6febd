#pragma once

/// Measuring, copying and appending null-terminated text, for any character type.
///
/// Room is counted in units of the destination, its terminator included.

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <cwchar>

namespace zarnex::detail {

inline std::size_t textLength(const char* text) {
    return std::strlen(text);
}

inline std::size_t textLength(const wchar_t* text) {
    return std::wcslen(text);
}

/// The length of `text`, or `most` if no terminator stands before that.
inline std::size_t textLength(const char* text, std::size_t most) {
    return strnlen(text, most);
}

inline std::size_t textLength(const wchar_t* text, std::size_t most) {
    return wcsnlen(text, most);
}

/// A null pointer counts as the empty text.
template <class Char>
const Char* textOrEmpty(const Char* text) {
    static constexpr Char empty{};
    return text == nullptr ? &empty : text;
}

/// Copies `count` units and a terminator, cut to `room`. The two may overlap.
template <class Char>
void copyUnits(Char* out, const Char* text, std::size_t count, std::size_t room) {
    if (room == 0)
        return;
    count = (std::min)(count, room - 1);
    std::memmove(out, text, count * sizeof(Char));
    out[count] = Char{};
}

} // namespace zarnex::detail
