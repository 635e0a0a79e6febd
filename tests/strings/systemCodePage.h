#pragma once

/// What the tests know of the system code page: 1252 under Wine or, under a Japanese locale,
/// 932; UTF-8 on Linux.

#include <zarnex/strings/conversions.h>

#include <string>

inline bool isSystemCodePage(unsigned codePage) {
    const ZWideString text(L"\u20AC\u30C6"); // two characters that tell the code pages apart
    return wideToMbs(text, 0) == wideToMbs(text, codePage);
}

/// A letter beyond ASCII that the system code page has.
struct SystemLetter {
    std::string bytes;
    std::wstring unit;
};

inline SystemLetter systemLetter() {
    if (isSystemCodePage(932))
        return {"\xC3", L"\uFF83"};
    return {isSystemCodePage(65001) ? "\xC3\xA9" : "\xE9", L"\u00E9"};
}
