#pragma once

/// The order of texts, with and without regard to case.

#include <zarnex/strings/internal/letterCase.h>
#include <zarnex/strings/internal/text.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <cwchar>

namespace zarnex::detail {

/// More than any text has.
inline constexpr std::size_t allUnits = PTRDIFF_MAX / sizeof(wchar_t);

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
