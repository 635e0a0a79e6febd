#include <zarnex/strings/ZString.h>

#include <zarnex/strings/internal/search.h>
#include <zarnex/strings/internal/textArray.h>

using namespace zarnex::detail;

int ZString::find(const wchar_t& unit, int fromEnd) const {
    return array_.find(unit, fromEnd);
}

int ZString::findString(const wchar_t* wanted, int start, int ignoreCase) const {
    const int size = length();
    const std::size_t count = textLength(textOrEmpty(wanted));
    if (count == 0)
        return size;
    if (size == 0)
        return -1;
    start = wrappedIndex(start, size);
    if (start > size)
        return -1;
    const wchar_t* const begin = text();
    const auto searchAs = ignoreCase != 0 ? findCaseless : findUnits;
    const wchar_t* const found = searchAs(begin + start, begin + size, wanted, count);
    return found == nullptr ? -1 : static_cast<int>(found - begin);
}

long long ZString::findOneOf(const wchar_t* set, long long start, int invert) const {
    const long long size = length();
    if (start < 0 && size > 0) {
        start %= size;
        start = start < 0 ? start + size : start;
    }
    if (start < 0 || start > size || set == nullptr)
        return -1;
    if (*set == L'\0')
        return invert != 0 ? start : size;
    const wchar_t* const begin = text();
    for (const wchar_t* unit = begin + start; *unit != L'\0'; ++unit) {
        if ((std::wcschr(set, *unit) == nullptr) == (invert != 0))
            return unit - begin;
    }
    return -1;
}

int ZString::findOneOfByUnicode(const wchar_t* set, int start, int invert) const {
    if (invert != 0 && set != nullptr && *set != L'\0')
        return -1;
    return static_cast<int>(findOneOf(set, start, invert));
}

int ZString::startsWith(const wchar_t* prefix, int ignoreCase) const {
    return zarnex::detail::startsWith(text(), prefix, ignoreCase);
}
