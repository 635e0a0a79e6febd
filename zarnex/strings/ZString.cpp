#include <zarnex/strings/ZString.h>

#include <zarnex/runtime/exiting.h>
#include <zarnex/strings/StringUtils.h>
#include <zarnex/strings/ZGenericString.h>
#include <zarnex/strings/internal/textArray.h>
#include <zarnex/strings/internal/textOrder.h>

#include <charconv>
#include <new>
#include <ostream>

using namespace zarnex::detail;

namespace {

int toInt(std::size_t size) {
    return static_cast<int>(size); // the error size becomes -1
}

} // namespace

// ---- The buffer

std::size_t ZString::measure() const {
    return textLength(text());
}

// ---- Construction and assignment

ZString::ZString(int n, int step) : array_(toInt(notNegative(n) + 1), step) {
    setUsed(array_, notNegative(n) + 1); // done unless the allocation failed
    array_[0] = L'\0';
}

ZString::ZString(const wchar_t* text, int n) {
    array_.setStep(growthStep);
    assignPart(array_, text, n);
}

ZString::ZString(const char* text) {
    array_.setStep(growthStep);
    *this = text;
}

ZString::ZString(const char* text, int n) {
    array_.setStep(growthStep);
    assignConvertedPart(array_, text, notNegative(n) + 1);
}

ZString::ZString(ZGenericString& text) {
    array_.setStep(growthStep);
    *this = text;
}

ZString::ZString(ZXArray<wchar_t>&& array) : array_(std::move(array)) {}

ZString::ZString(const ZString& other) {
    copyArray(array_, other.array_);
}

ZString::ZString(ZString&& other) noexcept {
    array_.setStep(growthStep);
    array_.swap(other.array_);
}

ZString& ZString::operator=(const ZString& other) {
    assignArray(array_, other.array_);
    return *this;
}

ZString& ZString::operator=(ZString&& other) noexcept {
    takeArray(array_, other.array_);
    return *this;
}

ZString& ZString::operator=(const wchar_t* text) {
    assignText(array_, text);
    return *this;
}

ZString& ZString::operator=(const char* text) {
    assignConvertedPart(array_, text, textLength(textOrEmpty(text)) + 1);
    return *this;
}

ZString& ZString::operator=(ZGenericString& text) {
    return *this = static_cast<const wchar_t*>(text);
}

// ---- Raw access

ZString::operator wchar_t*() {
    constexpr int rawRoom = 512;
    if (array_.allocLength() < rawRoom) {
        if (array_.allocLength() == 0)
            empty();
        array_.setAllocSize(rawRoom);
        if (array_.allocLength() < rawRoom)
            zarnex::detail::exitWithoutMemory();
    }
    return array_;
}

wchar_t& ZString::operator[](int i) {
    return elementOf(array_, i < 0 ? fromEnd(i) : i);
}

int ZString::fromEnd(int i) const {
    return wrappedIndex(i, length());
}

// ---- Sizes

int ZString::length() const {
    return toInt(measure());
}

int ZString::bufferSize() const {
    return length() + 1;
}

unsigned long long ZString::characterLength() const {
    return measure();
}

int ZString::unicodeSize() const {
    return length() + 1;
}

int ZString::multiByteSize() const {
    return toInt(StringUtils::multiByteSize(text()));
}

// ---- Concatenation

ZString& ZString::operator+=(const ZString& text) {
    appendText(array_, text.text(), text.measure());
    return *this;
}

ZString& ZString::operator+=(const wchar_t* text) {
    appendText(array_, text);
    return *this;
}

ZString& ZString::operator+=(wchar_t unit) {
    const int end = length();
    array_[end + 1] = L'\0';
    array_[end] = unit;
    return *this;
}

ZString& ZString::operator+=(int number) {
    return appendNumber(static_cast<long long>(number));
}

namespace {

template <class Number>
struct Digits {
    wchar_t units[24];
    std::size_t count;

    explicit Digits(Number number) {
        char digits[24];
        const char* const end = std::to_chars(digits, digits + sizeof digits, number).ptr;
        std::copy(static_cast<const char*>(digits), end, units);
        count = static_cast<std::size_t>(end - digits);
    }
};

} // namespace

ZString& ZString::appendNumber(long long number) {
    const Digits digits(number);
    appendText(array_, digits.units, digits.count);
    return *this;
}

ZString& ZString::appendNumber(unsigned long long number) {
    const Digits digits(number);
    appendText(array_, digits.units, digits.count);
    return *this;
}

ZString ZString::operator+(const ZString& text) const {
    ZString sum(*this);
    sum += text;
    return sum;
}

ZString ZString::operator+(const wchar_t* text) const {
    ZString sum(*this);
    sum += text;
    return sum;
}

ZString ZString::operator+(int number) const {
    ZString sum(*this);
    sum += number;
    return sum;
}

// ---- Comparison

int ZString::compare(const ZString& other) const {
    return caselessOrder(text(), other.text());
}

int ZString::compare(const wchar_t* other) const {
    return caselessOrder(text(), textOrEmpty(other));
}

int ZString::operator==(const ZString& other) const {
    return compare(other) == 0;
}

int ZString::operator==(const wchar_t* other) const {
    return compare(other) == 0;
}

int ZString::operator!=(const ZString& other) const {
    return compare(other) != 0;
}

int ZString::operator!=(const wchar_t* other) const {
    return compare(other) != 0;
}

int ZString::operator<(const ZString& other) const {
    return compare(other) < 0;
}

int ZString::operator>(const ZString& other) const {
    return compare(other) > 0;
}

int ZString::operator<=(const ZString& other) const {
    return compare(other) <= 0;
}

int ZString::operator>=(const ZString& other) const {
    return compare(other) >= 0;
}

int ZString::isEqual(const ZString& other) const {
    return isEqual(other.text());
}

int ZString::isEqual(const wchar_t* other) const {
    return other != nullptr && std::wcscmp(text(), other) == 0;
}

int ZString::hash() const {
    unsigned hash = 0;
    for (const wchar_t* unit = text(); *unit != L'\0'; ++unit) {
        hash = (hash << 4) + static_cast<unsigned>(lowerCase(*unit));
        const unsigned overflow = hash & 0xF0000000u;
        hash ^= overflow >> 24;
        hash ^= overflow;
    }
    return static_cast<int>(hash);
}

// ---- Export

char* ZString::getAscii() const {
    const std::size_t size = StringUtils::multiByteSize(text());
    char* const copy = size == zarnex::errorSize ? nullptr : new (std::nothrow) char[size];
    if (copy != nullptr)
        StringUtils::copyString(copy, text(), size);
    return copy;
}

char* ZString::getAnsi() const {
    return getAscii();
}

wchar_t* ZString::getWide() const {
    const std::size_t size = measure() + 1;
    wchar_t* const copy = new (std::nothrow) wchar_t[size];
    if (copy != nullptr)
        copyUnits(copy, text(), size - 1, size);
    return copy;
}

int ZString::copyString(char* out, int n) const {
    if (n < 1 || out == nullptr)
        return multiByteSize();
    return toInt(StringUtils::copyString(out, text(), static_cast<std::size_t>(n)));
}

int ZString::copyString(wchar_t* out, int n) const {
    if (n >= 1 && out != nullptr)
        StringUtils::copyString(out, text(), static_cast<std::size_t>(n));
    return unicodeSize();
}

void ZString::dump(std::ostream& out) const {
    for (const wchar_t* unit = text(); *unit != L'\0'; ++unit) {
        char digits[16];
        const auto end =
            std::to_chars(digits, digits + sizeof digits, static_cast<long>(*unit)).ptr;
        out.write(digits, end - digits);
    }
}

int operator==(const wchar_t* a, const ZString& b) {
    return b == a;
}

int operator!=(const wchar_t* a, const ZString& b) {
    return b != a;
}

ZString operator+(const wchar_t* a, const ZString& b) {
    ZString sum(a);
    sum += b;
    return sum;
}

std::ostream& operator<<(std::ostream& out, const ZString& text) {
    text.dump(out);
    return out;
}

template class ZXArray<ZString>;
template class ZList<ZString>;
template class ZList<std::pair<ZString, ZString>>;
