#include <zarnex/strings/ZString.h>

#include <zarnex/strings/internal/format.h>
#include <zarnex/strings/internal/text.h>

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
    assign(result.data(), result.length());
}

ZString ZString::subString(int start, int count) {
    return static_cast<const ZString&>(*this).subString(start, count);
}

ZString ZString::subString(int start, int count) const {
    const int size = length();
    if (count == 0 || size == 0)
        return ZString();
    start = wrapped(start);
    const int available = size - start;
    const int taken = count > 0 && count < available ? count : available;
    return taken < 1 ? ZString() : ZString(text() + start, taken);
}

void ZString::truncate(int n) {
    n = (std::max)(n, 0);
    setUsed(static_cast<std::size_t>(n) + 1);
    array_[n] = L'\0';
}

void ZString::resize(int n) {
    truncate(n);
}

void ZString::resize() {
    const int size = bufferSize();
    array_.resize(size);
    array_[size - 1] = L'\0'; // for a string that had no storage
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
    assign(first, textLength(first));
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
    if (format == nullptr)
        return;
    if (*format == L'\0') {
        empty();
        return;
    }
    // The text is made beside the string, whose buffer the arguments may be in.
    TextBuffer<wchar_t> result;
    const std::size_t formatLength = textLength(format);
    std::va_list arguments;
    va_start(arguments, format);
    appendFormatted(result, format, arguments);
    va_end(arguments);

    // The slots in use end up as if the room, at least twice the format's length,
    // had been doubled until the text was strictly shorter.
    std::size_t room = static_cast<std::size_t>((std::max)(array_.length() - 1, 0));
    room = (std::max)(room, 2 * formatLength);
    while (result.length() >= room)
        room *= 2;
    assign(result.data(), result.length());
    setUsed(room + 1);
    array_[static_cast<int>(room)] = L'\0';
}
