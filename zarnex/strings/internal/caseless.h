#pragma once

/// Comparing wide text without regard to case, by the current locale.

#include <cstddef>
#include <cwchar>
#include <cwctype>

namespace zarnex::detail {

inline wchar_t lowerCase(wchar_t unit) {
    return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(unit)));
}

/// Below, at or above 0 as the lower-cased units of `a` order before, with or
/// behind those of `b`; the first `most` of them at most.
inline int caselessOrder(const wchar_t* a, const wchar_t* b, std::size_t most = ~std::size_t{0}) {
    for (; most > 0; --most, ++a, ++b) {
        if (*a != *b) {
            const wchar_t left = lowerCase(*a);
            const wchar_t right = lowerCase(*b);
            if (left != right)
                return left < right ? -1 : 1;
        }
        if (*a == L'\0')
            return 0;
    }
    return 0;
}

} // namespace zarnex::detail
