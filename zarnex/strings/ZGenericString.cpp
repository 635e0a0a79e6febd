#include <zarnex/strings/ZGenericString.h>

#include <zarnex/strings/ZString.h>
#include <zarnex/strings/internal/convert.h>
#include <zarnex/strings/internal/text.h>

#include <new>

using namespace zarnex::detail;

namespace {

// A copy of at most `room` - 1 units; null for null.
template <class Char>
Char* copyOf(const Char* text, std::size_t room) {
    Char* const copy = text == nullptr || room == 0 ? nullptr : new (std::nothrow) Char[room];
    if (copy != nullptr)
        copyUnits(copy, text, textLength(text, room), room);
    return copy;
}

template <class Char>
Char* copyOf(const Char* text) {
    return text == nullptr ? nullptr : copyOf(text, textLength(text) + 1);
}

template <class Out, class In>
Out* converted(const In* text) {
    constexpr unsigned codePage = zarnex::platform::ansiCodePage;
    const int size = convertUnits(codePage, text, -1, static_cast<Out*>(nullptr), 0);
    Out* const copy = new (std::nothrow) Out[static_cast<std::size_t>((std::max)(size, 1))];
    if (copy != nullptr && convertUnits(codePage, text, -1, copy, size) == 0)
        *copy = Out{};
    return copy;
}

std::size_t roomOf(int n) {
    return static_cast<std::size_t>((std::max)(n, 0));
}

} // namespace

ZGenericString::ZGenericString(const ZString& text)
    : wide_(copyOf(static_cast<const wchar_t*>(text))) {}

ZGenericString::ZGenericString(const char* text) : bytes_(copyOf(text)) {}

ZGenericString::ZGenericString(const char* text, int n) : bytes_(copyOf(text, roomOf(n))) {}

ZGenericString::ZGenericString(const wchar_t* text) : wide_(copyOf(text)) {}

ZGenericString::ZGenericString(const wchar_t* text, int n) : wide_(copyOf(text, roomOf(n))) {}

ZGenericString::ZGenericString(const ZGenericString& other) {
    copyForms(other);
}

ZGenericString::~ZGenericString() {
    freeBuffers();
}

ZGenericString& ZGenericString::operator=(ZGenericString& other) {
    if (this != &other) {
        freeBuffers();
        copyForms(other);
    }
    return *this;
}

ZGenericString::operator wchar_t*() {
    if (wide_ == nullptr && bytes_ != nullptr)
        wide_ = converted<wchar_t>(bytes_);
    return wide_;
}

ZGenericString::operator char*() {
    if (bytes_ == nullptr && wide_ != nullptr)
        bytes_ = converted<char>(wide_);
    return bytes_;
}

void ZGenericString::freeBuffers() {
    delete[] wide_;
    delete[] bytes_;
    wide_ = nullptr;
    bytes_ = nullptr;
}

void ZGenericString::copyForms(const ZGenericString& other) {
    wide_ = copyOf(other.wide_);
    bytes_ = copyOf(other.bytes_);
}
