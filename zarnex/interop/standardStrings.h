#pragma once

/// @file
/// ZString from and to the strings of the standard library.
///
///     const std::string path = zarnex::toUtf8(name);
///     const ZString label = zarnex::fromUtf8("Stickgr\u00F6\u00DFe");
///     for (const wchar_t unit : zarnex::viewOf(label))
///         ...
///
/// Wide text keeps its units: UTF-16 on Windows, UTF-32 on Linux. UTF-8 follows the rules of
/// conversions.h on both: on Windows two surrogates that are a pair become one character of four
/// bytes and back; every other surrogate and each ill-formed sequence becomes U+FFFD. No byte order
/// mark is written, and none taken away.
///
/// A ZString ends at its terminator: of a standard string that holds zeros it takes the part before
/// the first, and none comes back. What would have more than 2^31 - 2 bytes or units gives the
/// empty text. The functions that return a standard string may throw std::bad_alloc; a ZString
/// without memory ends the process, as everywhere.

#include <zarnex/config.h>
#include <zarnex/strings/ZMultiByteString.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/strings/conversions.h>

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

namespace zarnex {

namespace detail {

/// A library string of standard text, which need not be terminated.
template <class String, class Char>
String stringOf(std::basic_string_view<Char> text) {
    text = text.substr(0, text.find(Char{}));
    constexpr std::size_t most = (std::numeric_limits<int>::max)() - 1;
    return text.empty() || text.size() > most ? String()
                                              : String(text.data(), static_cast<int>(text.size()));
}

} // namespace detail

/// The text where it lies, measured once; good until the string changes, and so not of one that is
/// about to go.
inline std::wstring_view viewOf(const ZString& text) {
    return static_cast<const wchar_t*>(text);
}
/// Not of a string that is about to go.
std::wstring_view viewOf(const ZString&&) = delete;

/// A copy of the text, unit by unit.
inline std::wstring toWstring(const ZString& text) {
    return std::wstring(viewOf(text));
}

/// The text in UTF-8.
inline std::string toUtf8(const ZString& text) {
    const ZMultiByteString bytes = strToUtf8(text);
    return std::string(static_cast<const char*>(bytes));
}

/// A copy of `text` up to its first zero, unit by unit.
inline ZString fromWstring(std::wstring_view text) {
    return detail::stringOf<ZString>(text);
}

/// The text that `text` is in UTF-8, up to its first zero.
inline ZString fromUtf8(std::string_view text) {
    return utf8ToStr(detail::stringOf<ZMultiByteString>(text));
}

#if defined(__cpp_lib_char8_t)
/// The same, where the language tells UTF-8 apart.
inline ZString fromUtf8(std::u8string_view text) {
    return fromUtf8(std::string_view(reinterpret_cast<const char*>(text.data()), text.size()));
}
#endif

} // namespace zarnex
