#pragma once

/// Comparing text without regard to case: wide text by the current locale, 8-bit text by
/// A to Z alone.

#include <zarnex/strings/internal/text.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <cwchar>
#include <cwctype>
#include <type_traits>

namespace zarnex::detail {

/// More than any text has.
inline constexpr std::size_t allUnits = PTRDIFF_MAX / sizeof(wchar_t);

/// The bits of a wide unit.
using WideUnit = std::make_unsigned_t<std::conditional_t<sizeof(wchar_t) == 2, short, int>>;

inline bool isAscii(wchar_t unit) {
    return static_cast<WideUnit>(unit) < 0x80;
}

inline wchar_t lowerAscii(wchar_t unit) {
    return unit >= L'A' && unit <= L'Z' ? static_cast<wchar_t>(unit + (L'a' - L'A')) : unit;
}

inline wchar_t upperAscii(wchar_t unit) {
    return unit >= L'a' && unit <= L'z' ? static_cast<wchar_t>(unit - (L'a' - L'A')) : unit;
}

/// By the current locale. It is not asked about ASCII, where locales agree: only the
/// letters I and i are a pair in some languages and two letters in others (Turkish).
inline wchar_t lowerCase(wchar_t unit) {
    if (isAscii(unit) && unit != L'I')
        return lowerAscii(unit);
    return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(unit)));
}

inline wchar_t upperCase(wchar_t unit) {
    if (isAscii(unit) && unit != L'i')
        return upperAscii(unit);
    return static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(unit)));
}

/// Bytes order as numbers from 0 to 255.
inline unsigned char lowerCase(char unit) {
    const int lower = unit >= 'A' && unit <= 'Z' ? unit + ('a' - 'A') : unit;
    return static_cast<unsigned char>(lower);
}

/// Below, at or above 0 as the lower-cased units of `a` order before, with or
/// behind those of `b`; the first `most` of them at most.
template <class Char>
int caselessOrder(const Char* a, const Char* b, std::size_t most = allUnits) {
    for (; most > 0; --most, ++a, ++b) {
        if (*a != *b) {
            const auto left = lowerCase(*a);
            const auto right = lowerCase(*b);
            if (left != right)
                return left < right ? -1 : 1;
        }
        if (*a == Char{})
            return 0;
    }
    return 0;
}

/// The order of the units as they are, of the first `most` at most.
inline int exactOrder(const char* a, const char* b, std::size_t most = allUnits) {
    return std::strncmp(a, b, most);
}

inline int exactOrder(const wchar_t* a, const wchar_t* b, std::size_t most = allUnits) {
    return std::wcsncmp(a, b, most);
}

/// 1 if `text` begins with `prefix`, also an empty one; 0 for null.
template <class Char>
int startsWith(const Char* text, const Char* prefix, int ignoreCase) {
    if (prefix == nullptr)
        return 0;
    const std::size_t count = textLength(prefix);
    if (ignoreCase != 0)
        return caselessOrder(text, prefix, count) == 0;
    return exactOrder(text, prefix, count) == 0;
}

} // namespace zarnex::detail
