#include <zarnex/strings/ZWideString.h>

#include <zarnex/strings/ZString.h>
#include <zarnex/strings/internal/textArray.h>
#include <zarnex/strings/internal/textOrder.h>

using namespace zarnex::detail;

namespace {

int order(const wchar_t* a, const wchar_t* b) {
    return exactOrder(textOrEmpty(a), textOrEmpty(b));
}

} // namespace

// ---- Construction and assignment

ZWideString::ZWideString() : ZWideString(L"", 0) {}

ZWideString::ZWideString(const wchar_t* text) {
    array_.setStep(growthStep);
    assignText(array_, text);
}

ZWideString::ZWideString(const wchar_t* text, int n) {
    array_.setStep(growthStep);
    assignPart(array_, text, n);
}

ZWideString::ZWideString(const char* text) {
    array_.setStep(growthStep);
    assignConverted(array_, text, zarnex::platform::ansiCodePage);
}

ZWideString::ZWideString(const char* text, int n) {
    array_.setStep(growthStep);
    assignConvertedPart(array_, text, notNegative(n) + 1);
}

ZWideString::ZWideString(const ZString& text) : ZWideString(static_cast<const wchar_t*>(text)) {}

ZWideString::ZWideString(ZXArray<wchar_t>&& array) : array_(std::move(array)) {}

ZWideString::ZWideString(const ZWideString& other) {
    copyArray(array_, other.array_);
}

ZWideString::ZWideString(ZWideString&& other) noexcept {
    array_.setStep(growthStep);
    array_.swap(other.array_);
}

ZWideString& ZWideString::operator=(const ZWideString& other) {
    assignArray(array_, other.array_);
    return *this;
}

ZWideString& ZWideString::operator=(ZWideString&& other) noexcept {
    takeArray(array_, other.array_);
    return *this;
}

ZWideString& ZWideString::operator=(const wchar_t* text) {
    assignText(array_, text);
    return *this;
}

ZWideString& ZWideString::operator=(const char* text) {
    assignConverted(array_, text, zarnex::platform::ansiCodePage);
    return *this;
}

ZWideString& ZWideString::operator=(const ZString& text) {
    return *this = static_cast<const wchar_t*>(text);
}

ZWideString::~ZWideString() = default;

// ---- Comparison

int ZWideString::operator==(const ZWideString& other) const {
    return order(*this, other) == 0;
}

int ZWideString::operator==(const wchar_t* other) const {
    return order(*this, other) == 0;
}

int ZWideString::operator!=(const ZWideString& other) const {
    return order(*this, other) != 0;
}

int ZWideString::operator!=(const wchar_t* other) const {
    return order(*this, other) != 0;
}

int ZWideString::operator<(const ZWideString& other) const {
    return order(*this, other) < 0;
}

int ZWideString::operator<(const wchar_t* other) const {
    return order(*this, other) < 0;
}

int ZWideString::operator>(const ZWideString& other) const {
    return order(*this, other) > 0;
}

int ZWideString::operator>(const wchar_t* other) const {
    return order(*this, other) > 0;
}

int ZWideString::operator<=(const ZWideString& other) const {
    return order(*this, other) <= 0;
}

int ZWideString::operator<=(const wchar_t* other) const {
    return order(*this, other) <= 0;
}

int ZWideString::operator>=(const ZWideString& other) const {
    return order(*this, other) >= 0;
}

int ZWideString::operator>=(const wchar_t* other) const {
    return order(*this, other) >= 0;
}

int operator==(const wchar_t* a, const ZWideString& b) {
    return order(a, b) == 0;
}

int operator!=(const wchar_t* a, const ZWideString& b) {
    return order(a, b) != 0;
}

int operator<(const wchar_t* a, const ZWideString& b) {
    return order(a, b) < 0;
}

int operator>(const wchar_t* a, const ZWideString& b) {
    return order(a, b) > 0;
}

int operator<=(const wchar_t* a, const ZWideString& b) {
    return order(a, b) <= 0;
}

int operator>=(const wchar_t* a, const ZWideString& b) {
    return order(a, b) >= 0;
}

int ZWideString::startsWith(const wchar_t* text, int ignoreCase) const {
    return zarnex::detail::startsWith(textOf(array_), text, ignoreCase);
}

// ---- Access

wchar_t& ZWideString::operator[](int i) {
    return elementOf(array_, i);
}

int ZWideString::length() const {
    return static_cast<int>(measure(array_));
}

ZWideString ZWideString::subString(int start, int count) {
    return subText<ZWideString>(array_, start, count);
}

ZWideString ZWideString::subString(int start, int count) const {
    return subText<ZWideString>(array_, start, count);
}

// ---- Editing

ZWideString& ZWideString::operator+=(const ZWideString& text) {
    appendText(array_, textOf(text.array_));
    return *this;
}

ZWideString& ZWideString::operator+=(const wchar_t* text) {
    appendText(array_, text);
    return *this;
}

ZWideString& ZWideString::operator+=(const char* text) {
    return *this += ZWideString(text);
}

ZWideString& ZWideString::operator+=(const ZString& text) {
    return *this += static_cast<const wchar_t*>(text);
}

void ZWideString::resize(int n) {
    resizeText(array_, n);
}

void ZWideString::set(const wchar_t* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    setFormatted(array_, format, arguments);
    va_end(arguments);
}
