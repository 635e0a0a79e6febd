#pragma once

/// Small and capital letters: of wide text by the current locale, of 8-bit text A to Z alone.

#include <zarnex/platform/textUnits.h>

#include <cwctype>

namespace zarnex::detail {

using platform::isAscii;

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

} // namespace zarnex::detail
