#include <zarnex/platform/platform.h>
#include <zarnex/platform/posix/randomness.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <cwchar>

namespace zarnex::platform {

namespace {

/// The bytes in the order of the text: of each number the most significant first.
using Bytes = std::array<std::uint8_t, 16>;

/// Where in the text the two digits of each byte start.
constexpr std::array<std::uint8_t, 16> places = {0,  2,  4,  6,  9,  11, 14, 16,
                                                 19, 21, 24, 26, 28, 30, 32, 34};
constexpr std::array<std::uint8_t, 4> hyphens = {8, 13, 18, 23};

constexpr wchar_t digits[] = L"0123456789abcdef";
constexpr int noDigit = -1;

/// The two digits of each byte.
constexpr auto byteDigits = [] {
    std::array<std::array<wchar_t, 2>, 256> all;
    for (std::size_t byte = 0; byte < all.size(); ++byte)
        all[byte] = {digits[byte >> 4], digits[byte & 15]};
    return all;
}();

/// The values of the digits from '0' to 'f', and noDigit between them.
constexpr auto digitValues = [] {
    std::array<std::int8_t, 'f' - '0' + 1> values;
    values.fill(noDigit);
    for (std::size_t value = 0; value < 16; ++value) {
        const auto lower = static_cast<char>(digits[value]);
        values[static_cast<std::size_t>(lower - '0')] = static_cast<std::int8_t>(value);
        if (value >= 10)
            values[static_cast<std::size_t>(lower - 'a' + 'A' - '0')] =
                static_cast<std::int8_t>(value);
    }
    return values;
}();

int digitValue(wchar_t unit) {
    const auto index = static_cast<std::uint32_t>(unit) - U'0';
    return index < digitValues.size() ? digitValues[index] : noDigit;
}

std::uint8_t byteOf(std::uint32_t number, int shift) {
    return static_cast<std::uint8_t>(number >> shift);
}

Bytes bytesOf(const GUID& guid) {
    Bytes bytes = {byteOf(guid.Data1, 24), byteOf(guid.Data1, 16), byteOf(guid.Data1, 8),
                   byteOf(guid.Data1, 0),  byteOf(guid.Data2, 8),  byteOf(guid.Data2, 0),
                   byteOf(guid.Data3, 8),  byteOf(guid.Data3, 0)};
    for (std::size_t i = 0; i < 8; ++i)
        bytes[8 + i] = guid.Data4[i];
    return bytes;
}

GUID guidOf(const Bytes& bytes) {
    const auto pair = [&bytes](std::size_t i) {
        return static_cast<std::uint16_t>(bytes[i] << 8 | bytes[i + 1]);
    };
    GUID guid;
    guid.Data1 = static_cast<std::uint32_t>(pair(0)) << 16 | pair(2);
    guid.Data2 = pair(4);
    guid.Data3 = pair(6);
    for (std::size_t i = 0; i < 8; ++i)
        guid.Data4[i] = bytes[8 + i];
    return guid;
}

} // namespace

// Source: RFC 9562, section 5.4, "UUID Version 4".
bool createGuid(GUID& guid) {
    Bytes bytes = {};
    const bool isMade = randomBytes(bytes.data());
    if (isMade) {
        bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0f) | 0x40); // the version
        bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3f) | 0x80); // the variant
    }
    guid = guidOf(bytes);
    return isMade;
}

bool guidToText(const GUID& guid, wchar_t (&text)[guidTextSize]) {
    const Bytes bytes = bytesOf(guid);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        std::memcpy(text + places[i], &byteDigits[bytes[i]], sizeof byteDigits[0]);
    for (const std::size_t place : hyphens)
        text[place] = L'-';
    text[guidTextSize - 1] = L'\0';
    return true;
}

bool guidFromText(const wchar_t* text, GUID& guid) {
    if (wcsnlen(text, guidTextSize) != guidTextSize - 1)
        return false;
    for (const std::size_t place : hyphens) {
        if (text[place] != L'-')
            return false;
    }
    Bytes bytes;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const int high = digitValue(text[places[i]]);
        const int low = digitValue(text[places[i] + 1]);
        if (high == noDigit || low == noDigit)
            return false;
        bytes[i] = static_cast<std::uint8_t>(high * 16 + low);
    }
    guid = guidOf(bytes);
    return true;
}

} // namespace zarnex::platform
