#include <zarnex/strings/ZString.h>

#include <zarnex/runtime/exiting.h>
#include <zarnex/strings/StringUtils.h>
#include <zarnex/strings/internal/caseless.h>
#include <zarnex/strings/internal/text.h>

#include <charconv>
#include <functional>
#include <new>
#include <ostream>

using namespace zarnex::detail;

namespace {

constexpr int growthStep = 32;

int toInt(std::size_t size) {
    return static_cast<int>(size); // the error size becomes -1
}

std::size_t notNegative(int n) {
    return static_cast<std::size_t>((std::max)(n, 0));
}

} // namespace

// ---- The buffer

// Without storage (a string that was moved from) the text is empty.
const wchar_t* ZString::text() const {
    return textOrEmpty(static_cast<const wchar_t*>(array_));
}

std::size_t ZString::measure() const {
    return textLength(text());
}

void ZString::setUsed(std::size_t slots) {
    array_.reserve(static_cast<long long>(slots));
    array_.setSize(static_cast<int>(slots));
}

// Both of these move the text before the slots in use shrink: it may lie inside
// the buffer, and slots that are given up are cleared.
void ZString::assign(const wchar_t* text, std::size_t count) {
    array_.reserve(static_cast<long long>(count + 1));
    copyUnits(static_cast<wchar_t*>(array_), text, count, count + 1);
    setUsed(count + 1);
}

ZString& ZString::append(const wchar_t* text, std::size_t count) {
    const std::size_t length = measure();
    const wchar_t* const before = array_;
    const std::less<const wchar_t*> isBefore;
    const bool inside = !isBefore(text, before) && isBefore(text, before + array_.allocLength());
    const std::ptrdiff_t offset = inside ? text - before : 0;
    array_.reserve(static_cast<long long>(length + count + 1));
    wchar_t* const buffer = array_;
    copyUnits(buffer + length, inside ? buffer + offset : text, count, count + 1);
    setUsed(length + count + 1);
    return *this;
}

// ---- Construction and assignment

ZString::ZString() {
    array_.setStep(growthStep);
    assign(L"", 0);
}

ZString::ZString(int n, int step) : array_(toInt(notNegative(n) + 1), step) {
    setUsed(notNegative(n) + 1); // done unless the allocation failed
    array_[0] = L'\0';
}

ZString::ZString(const wchar_t* text) {
    array_.setStep(growthStep);
    text = textOrEmpty(text);
    assign(text, textLength(text));
}

ZString::ZString(const wchar_t* text, int n) {
    array_.setStep(growthStep);
    const std::size_t most = notNegative(n);
    text = textOrEmpty(text);
    assign(text, textLength(text, most));
    setUsed(most + 1);
    array_[toInt(most)] = L'\0';
}

ZString::ZString(const char* text) {
    array_.setStep(growthStep);
    *this = text;
}

ZString::ZString(const char* text, int n) {
    array_.setStep(growthStep);
    const std::size_t slots = notNegative(n) + 1;
    setUsed(slots);
    StringUtils::copyString(static_cast<wchar_t*>(array_), textOrEmpty(text), slots);
}

ZString::ZString(const ZString& other) : array_(other.array_) {
    if (array_.allocLength() < other.array_.allocLength())
        zarnex::exitFatally("failed alloc\n", 1);
}

ZString::ZString(ZString&& other) noexcept {
    array_.setStep(growthStep);
    array_.swap(other.array_);
}

ZString& ZString::operator=(const ZString& other) {
    if (this != &other) {
        const std::size_t slots = notNegative(other.array_.length());
        const std::size_t length = other.measure();
        setUsed((std::max)(slots, std::size_t{1}));
        copyUnits(static_cast<wchar_t*>(array_), other.text(), length,
                  static_cast<std::size_t>(array_.length()));
    }
    return *this;
}

ZString& ZString::operator=(ZString&& other) noexcept {
    const int step = array_.getStep();
    const int otherStep = other.array_.getStep();
    array_.swap(other.array_);
    array_.setStep(step);
    other.array_.setStep(otherStep);
    return *this;
}

ZString& ZString::operator=(const wchar_t* text) {
    text = textOrEmpty(text);
    assign(text, textLength(text));
    return *this;
}

ZString& ZString::operator=(const char* text) {
    text = textOrEmpty(text);
    const std::size_t slots = textLength(text) + 1;
    setUsed(slots);
    StringUtils::copyString(static_cast<wchar_t*>(array_), text, slots);
    return *this;
}

ZString::~ZString() = default;

// ---- Raw access

ZString::operator const wchar_t*() const {
    return text();
}

ZString::operator wchar_t*() {
    constexpr int rawRoom = 512;
    if (array_.allocLength() < rawRoom) {
        if (array_.allocLength() == 0)
            empty();
        array_.setAllocSize(rawRoom);
        if (array_.allocLength() < rawRoom)
            zarnex::exitFatally("failed alloc\n", 1);
    }
    return array_;
}

// A negative index wrapped by the length, which may leave it negative.
int ZString::wrapped(int i) const {
    if (i >= 0)
        return i;
    const int size = length();
    if (size == 0)
        return i;
    const int rest = i % size;
    return rest < 0 ? rest + size : rest;
}

wchar_t& ZString::operator[](int i) {
    if (array_.allocLength() == 0)
        empty();
    return array_.get(wrapped(i));
}

const wchar_t& ZString::operator[](int i) const {
    return array_.get(wrapped(i));
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

int ZString::allocLength() const {
    return array_.length();
}

int ZString::isEmpty() const {
    return *text() == L'\0';
}

// ---- Concatenation

ZString& ZString::operator+=(const ZString& text) {
    return append(text.text(), text.measure());
}

ZString& ZString::operator+=(const wchar_t* text) {
    return text == nullptr ? *this : append(text, textLength(text));
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
    return append(digits.units, digits.count);
}

ZString& ZString::appendNumber(unsigned long long number) {
    const Digits digits(number);
    return append(digits.units, digits.count);
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
