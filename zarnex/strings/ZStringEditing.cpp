#include <zarnex/strings/ZString.h>

#include <zarnex/strings/internal/letterCase.h>
#include <zarnex/strings/internal/search.h>
#include <zarnex/strings/internal/textArray.h>

using namespace zarnex::detail;

namespace {

bool isBlank(wchar_t unit) {
    return unit == L' ' || unit == L'\t' || unit == L'\n' || unit == L'\r';
}

template <class Map>
void mapUnits(ZXArray<wchar_t>& array, Map map) {
    wchar_t* const buffer = array;
    const int slots = array.length();
    for (int i = 0; i < slots && buffer[i] != L'\0'; ++i)
        buffer[i] = map(buffer[i]);
}

} // namespace

void ZString::findAndReplace(const wchar_t* find, const wchar_t* replace) {
    find = textOrEmpty(find);
    replace = textOrEmpty(replace);
    const std::size_t skipped = textLength(find);
    const std::size_t added = textLength(replace);
    const wchar_t* const begin = text();
    const wchar_t* const end = begin + measure();
    if (skipped == 0)
        return;

    // Found first: the result gets its storage at once, beside the texts that it is made of.
    TextBuffer<const wchar_t*> places;
    for (const wchar_t* next = begin; (next = findUnits(next, end, find, skipped)) != nullptr;) {
        places.append(next);
        next += skipped;
    }
    const std::size_t count = places.length();
    if (count == 0)
        return;
    const std::size_t length =
        static_cast<std::size_t>(end - begin) - count * skipped + count * added;
    ZXArray<wchar_t> result = newLike(array_, length + 1);
    wchar_t* out = result;
    const wchar_t* done = begin;
    for (std::size_t i = 0; i < count; ++i) {
        const wchar_t* const found = places.data()[i];
        out = std::copy(replace, replace + added, std::copy(done, found, out));
        done = found + skipped;
    }
    *std::copy(done, end, out) = L'\0';
    result.setSize(result.allocLength());
    result.setSize(static_cast<int>(length + 1)); // clears the spare slots
    takeArray(array_, result);
}

ZString ZString::subString(int start, int count) {
    return static_cast<const ZString&>(*this).subString(start, count);
}

ZString ZString::subString(int start, int count) const {
    return subText<ZString>(array_, start, count);
}

void ZString::truncate(int n) {
    truncateText(array_, n);
}

void ZString::resize(int n) {
    truncate(n);
}

void ZString::resize() {
    resizeText(array_, length());
}

void ZString::empty() {
    truncate(0);
}

void ZString::reset() {
    truncate(0);
}

void ZString::trimLeft() {
    const wchar_t* first = text();
    while (isBlank(*first))
        ++first;
    assignText(array_, first, textLength(first));
}

void ZString::trimRight() {
    const wchar_t* const begin = text();
    const wchar_t* end = begin + measure();
    while (end != begin && isBlank(end[-1]))
        --end;
    truncate(static_cast<int>(end - begin));
}

void ZString::toLower() {
    mapUnits(array_, [](wchar_t unit) { return lowerCase(unit); });
}

void ZString::toUpper() {
    mapUnits(array_, [](wchar_t unit) { return upperCase(unit); });
}

void ZString::set(const wchar_t* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    setFormatted(array_, format, arguments);
    va_end(arguments);
}
