#include <zarnex/strings/ZMultiByteString.h>

#include <zarnex/strings/ZString.h>
#include <zarnex/strings/internal/textArray.h>
#include <zarnex/strings/internal/textOrder.h>

using namespace zarnex::detail;

namespace {

bool isSame(const char* a, const char* b) {
    return exactOrder(textOrEmpty(a), textOrEmpty(b)) == 0;
}

int order(const char* a, const char* b) {
    return caselessOrder(textOrEmpty(a), textOrEmpty(b));
}

} // namespace

// ---- Construction and assignment

ZMultiByteString::ZMultiByteString() : ZMultiByteString("", 0) {}

ZMultiByteString::ZMultiByteString(const char* text) {
    array_.setStep(growthStep);
    assignText(array_, text);
}

ZMultiByteString::ZMultiByteString(const char* text, int n) {
    array_.setStep(growthStep);
    assignPart(array_, text, n);
}

ZMultiByteString::ZMultiByteString(const ZString& text, int codePage) {
    array_.setStep(growthStep);
    assignConverted(array_, static_cast<const wchar_t*>(text), static_cast<unsigned>(codePage));
}

ZMultiByteString::ZMultiByteString(ZXArray<char>&& array) : array_(std::move(array)) {}

ZMultiByteString::ZMultiByteString(const ZMultiByteString& other) {
    copyArray(array_, other.array_);
}

ZMultiByteString::ZMultiByteString(ZMultiByteString&& other) noexcept {
    array_.setStep(growthStep);
    array_.swap(other.array_);
}

ZMultiByteString& ZMultiByteString::operator=(const ZMultiByteString& other) {
    assignArray(array_, other.array_);
    return *this;
}

ZMultiByteString& ZMultiByteString::operator=(ZMultiByteString&& other) noexcept {
    takeArray(array_, other.array_);
    return *this;
}

ZMultiByteString& ZMultiByteString::operator=(const char* text) {
    assignText(array_, text);
    return *this;
}

ZMultiByteString::~ZMultiByteString() = default;

// ---- Comparison

int ZMultiByteString::operator==(const ZMultiByteString& other) const {
    return isSame(*this, other);
}

int ZMultiByteString::operator==(const char* other) const {
    return isSame(*this, other);
}

int ZMultiByteString::operator!=(const ZMultiByteString& other) const {
    return !isSame(*this, other);
}

int ZMultiByteString::operator!=(const char* other) const {
    return !isSame(*this, other);
}

int ZMultiByteString::operator<(const ZMultiByteString& other) const {
    return order(*this, other) < 0;
}

int ZMultiByteString::operator<(const char* other) const {
    return order(*this, other) < 0;
}

int ZMultiByteString::operator>(const ZMultiByteString& other) const {
    return order(*this, other) > 0;
}

int ZMultiByteString::operator>(const char* other) const {
    return order(*this, other) > 0;
}

int ZMultiByteString::operator<=(const ZMultiByteString& other) const {
    return order(*this, other) <= 0;
}

int ZMultiByteString::operator<=(const char* other) const {
    return order(*this, other) <= 0;
}

int ZMultiByteString::operator>=(const ZMultiByteString& other) const {
    return order(*this, other) >= 0;
}

int ZMultiByteString::operator>=(const char* other) const {
    return order(*this, other) >= 0;
}

int operator==(const char* a, const ZMultiByteString& b) {
    return isSame(a, b);
}

int operator!=(const char* a, const ZMultiByteString& b) {
    return !isSame(a, b);
}

int operator<(const char* a, const ZMultiByteString& b) {
    return order(a, b) < 0;
}

int operator>(const char* a, const ZMultiByteString& b) {
    return order(a, b) > 0;
}

int operator<=(const char* a, const ZMultiByteString& b) {
    return order(a, b) <= 0;
}

int operator>=(const char* a, const ZMultiByteString& b) {
    return order(a, b) >= 0;
}

int ZMultiByteString::startsWith(const char* text, int ignoreCase) const {
    return zarnex::detail::startsWith(textOf(array_), text, ignoreCase);
}

// ---- Access

char& ZMultiByteString::operator[](int i) {
    return elementOf(array_, i);
}

int ZMultiByteString::length() const {
    return static_cast<int>(measure(array_));
}

ZMultiByteString ZMultiByteString::subString(int start, int count) {
    return subText<ZMultiByteString>(array_, start, count);
}

ZMultiByteString ZMultiByteString::subString(int start, int count) const {
    return subText<ZMultiByteString>(array_, start, count);
}

// ---- Editing

ZMultiByteString& ZMultiByteString::operator+=(const ZMultiByteString& text) {
    appendText(array_, textOf(text.array_));
    return *this;
}

ZMultiByteString& ZMultiByteString::operator+=(const char* text) {
    appendText(array_, text);
    return *this;
}

void ZMultiByteString::resize(int n) {
    resizeText(array_, n);
}

void ZMultiByteString::set(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    setFormatted(array_, format, arguments);
    va_end(arguments);
}
