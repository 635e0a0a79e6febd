#include <zarnex/strings/hashFunctions.h>

#include <zarnex/strings/ZString.h>

#include <bit>

namespace {

constexpr float hashScale = 0.61254233f;
static_assert(std::bit_cast<std::uint32_t>(hashScale) == 0x3F1CCF93);

std::int32_t lowBits(long size) {
    return static_cast<std::int32_t>(size);
}

std::uint32_t codeUnit(wchar_t unit) {
    return static_cast<std::uint16_t>(unit);
}

// The magnitude of `hash` as a signed integer, in which that of -2^31 is itself.
std::int32_t magnitude(std::uint32_t hash) {
    return static_cast<std::int32_t>(static_cast<std::int32_t>(hash) < 0 ? 0 - hash : hash);
}

long reduced(std::uint32_t hash, std::int32_t size) {
    // In 64 bits, where -2^31 over -1 does not overflow.
    return size == 0 ? 0 : static_cast<long>(std::int64_t{magnitude(hash)} % size);
}

} // namespace

HashFunction1::HashFunction1(long size) : size_(lowBits(size)) {}

HashFunction2::HashFunction2(long size) : size_(lowBits(size)) {}

HashFunction3::HashFunction3(long size) : size_(lowBits(size)) {}

long HashFunction1::operator()(const ZString& text) const {
    std::uint32_t hash = 0;
    for (const wchar_t* unit = text; *unit != L'\0'; ++unit)
        hash = codeUnit(*unit) + 4 * hash;
    return reduced(hash, size_);
}

long HashFunction2::operator()(const ZString& text) const {
    auto hash = static_cast<std::uint32_t>(text.length());
    for (const wchar_t* unit = text; *unit != L'\0'; ++unit)
        hash = 613 * hash + codeUnit(*unit);
    return reduced(hash, size_);
}

long HashFunction3::operator()(const ZString& text) const {
    auto hash = static_cast<std::uint32_t>(text.length());
    std::uint32_t shift = 8;
    for (const wchar_t* unit = text; *unit != L'\0'; ++unit, ++shift)
        hash ^= codeUnit(*unit) << shift % 32;
    return static_cast<long>(static_cast<float>(magnitude(hash)) * hashScale);
}

ZHashInt::ZHashInt(int value) : value_(value) {}

ZHashInt::ZHashInt(const ZHashInt& other) = default;

ZHashInt& ZHashInt::operator=(const ZHashInt& other) = default;

ZHashInt::~ZHashInt() = default;
