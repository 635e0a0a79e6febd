#pragma once

/// @file
/// The operators of ZString with plain text on either side. ZString.h includes it.

#include <zarnex/config.h>
#include <zarnex/strings/ZString.h>

#include <type_traits>

namespace zarnex::detail {

/// Pointers to and arrays of wide or narrow characters.
template <class Text, class Unit = std::remove_cv_t<std::remove_pointer_t<std::decay_t<Text>>>>
using IfText = std::enable_if_t<std::is_pointer_v<std::decay_t<Text>> &&
                                    (std::is_same_v<Unit, wchar_t> || std::is_same_v<Unit, char>),
                                int>;

} // namespace zarnex::detail

/// Comparison with plain text on either side, as with a ZString of it. Without these
/// the string would convert to a pointer, and addresses would be compared.
/// @{
template <class Text, zarnex::detail::IfText<Text> = 0>
int operator==(const ZString& a, const Text& b) {
    return a.compare(b) == 0;
}
template <class Text, zarnex::detail::IfText<Text> = 0>
int operator==(const Text& a, const ZString& b) {
    return b.compare(a) == 0;
}

template <class Text, zarnex::detail::IfText<Text> = 0>
int operator!=(const ZString& a, const Text& b) {
    return a.compare(b) != 0;
}
template <class Text, zarnex::detail::IfText<Text> = 0>
int operator!=(const Text& a, const ZString& b) {
    return b.compare(a) != 0;
}

template <class Text, zarnex::detail::IfText<Text> = 0>
int operator<(const ZString& a, const Text& b) {
    return a.compare(b) < 0;
}
template <class Text, zarnex::detail::IfText<Text> = 0>
int operator<(const Text& a, const ZString& b) {
    return b.compare(a) > 0;
}

template <class Text, zarnex::detail::IfText<Text> = 0>
int operator>(const ZString& a, const Text& b) {
    return a.compare(b) > 0;
}
template <class Text, zarnex::detail::IfText<Text> = 0>
int operator>(const Text& a, const ZString& b) {
    return b.compare(a) < 0;
}

template <class Text, zarnex::detail::IfText<Text> = 0>
int operator<=(const ZString& a, const Text& b) {
    return a.compare(b) <= 0;
}
template <class Text, zarnex::detail::IfText<Text> = 0>
int operator<=(const Text& a, const ZString& b) {
    return b.compare(a) >= 0;
}

template <class Text, zarnex::detail::IfText<Text> = 0>
int operator>=(const ZString& a, const Text& b) {
    return a.compare(b) >= 0;
}
template <class Text, zarnex::detail::IfText<Text> = 0>
int operator>=(const Text& a, const ZString& b) {
    return b.compare(a) <= 0;
}

// In C++20 the members with their operands exchanged would be taken before the above.
ZARNEX_API int operator==(const wchar_t* a, const ZString& b);
ZARNEX_API int operator!=(const wchar_t* a, const ZString& b);
/// @}

/// Text in front of a string.
ZARNEX_API ZString operator+(const wchar_t* a, const ZString& b);

/// Not for numbers in front, which would move a pointer into the string.
template <class Number, std::enable_if_t<std::is_arithmetic_v<Number>, int> = 0>
ZString operator+(Number, const ZString&) = delete;
