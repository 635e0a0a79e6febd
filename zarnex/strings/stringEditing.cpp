#include <zarnex/strings/ZString.h>

#include <zarnex/strings/internal/textArray.h>

#include <cwctype>

using namespace zarnex::detail;

namespace {

bool isBlank(wchar_t unit) {
    return unit == L' ' || unit == L'\t' || unit == L'\n' || unit == L'\r';
}

} // namespace

void ZString::findAndReplace(const wchar_t* find, const wchar_t* replace) {
    find = textOrEmpty(find);
    replace = textOrEmpty(replace);
    const std::size_t skipped = textLength(find);
    const std::size_t added = textLength(replace);
    const wchar_t* done = text();
    const wchar_t* const end = done + measure();
    const wchar_t* found = skipped == 0 ? nullptr : findUnits(done, end, find, skipped);
    if (found == nullptr)
        return;
    TextBuffer<wchar_t> result;
    for (; found != nullptr; found = findUnits(done, end, find, skipped)) {
        result.append(done, found);
        result.append(replace, replace + added);
        done = found + skipped;
    }
    result.append(done, end);
    assignText(array_, result.data(), result.length());
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
    wchar_t* const buffer = array_;
    for (int i = 0; i < array_.length() && buffer[i] != L'\0'; ++i)
        buffer[i] = static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(buffer[i])));
}

void ZString::toUpper() {
    wchar_t* const buffer = array_;
    for (int i = 0; i < array_.length() && buffer[i] != L'\0'; ++i)
        buffer[i] = static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(buffer[i])));
}

void ZString::set(const wchar_t* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    setFormatted(array_, format, arguments);
    va_end(arguments);
}
