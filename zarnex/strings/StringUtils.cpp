#include <zarnex/strings/StringUtils.h>

#include <zarnex/strings/internal/convert.h>
#include <zarnex/strings/internal/text.h>

#include <climits>

using zarnex::errorSize;
using zarnex::detail::copyUnits;
using zarnex::detail::textLength;

namespace {

// In the system code page, 0 on failure.
template <class Out, class Char>
int convert(const Char* text, Out* out, int room) {
    return zarnex::detail::convertUnits(zarnex::platform::ansiCodePage, text, -1, out, room);
}

template <class Char>
std::size_t sizeInOwnUnit(const Char* text) {
    return text == nullptr ? errorSize : textLength(text) + 1;
}

template <class Other, class Char>
std::size_t sizeConverted(const Char* text) {
    if (text == nullptr)
        return errorSize;
    const int size = convert(text, static_cast<Other*>(nullptr), 0);
    if (size > 0)
        return static_cast<std::size_t>(size);
    return *text == Char{} ? 0 : errorSize;
}

template <class Char>
std::size_t copyText(Char* out, const Char* text, std::size_t room) {
    if (text == nullptr)
        return errorSize;
    const std::size_t length = textLength(text);
    if (room != 0 && out != nullptr) {
        copyUnits(out, text, length, room);
        out[room - 1] = Char{};
    }
    return length + 1;
}

template <class Out, class Char>
std::size_t copyText(Out* out, const Char* text, std::size_t room) {
    if (text == nullptr)
        return errorSize;
    if (room == 0 || out == nullptr)
        return sizeInOwnUnit(text);
    const int bounded = static_cast<int>((std::min)(room, std::size_t{INT_MAX}));
    int size = convert(text, out, bounded);
    if (size == 0) {
        // Too little room: once more for the text alone, over a clean ground, so
        // that whole characters stand in front of the terminator.
        std::fill_n(out, room, Out{});
        if (bounded > 1)
            convert(text, out, bounded - 1);
    }
    out[room - 1] = Out{};
    return size == 0 ? errorSize : static_cast<std::size_t>(size);
}

template <class Out, class Char>
std::size_t appendText(Out* out, const Char* text, std::size_t room) {
    if (out == nullptr || text == nullptr)
        return errorSize;
    const std::size_t length = textLength(out);
    const std::size_t total = length + sizeInOwnUnit(text);
    if (length < room)
        copyText(out + length, text, room - length);
    return total;
}

} // namespace

std::size_t StringUtils::bufferSize(const char* text) {
    return sizeInOwnUnit(text);
}

std::size_t StringUtils::bufferSize(const wchar_t* text) {
    return sizeInOwnUnit(text);
}

std::size_t StringUtils::multiByteSize(const char* text) {
    return sizeInOwnUnit(text);
}

std::size_t StringUtils::multiByteSize(const wchar_t* text) {
    return sizeConverted<char>(text);
}

std::size_t StringUtils::unicodeSize(const char* text) {
    return sizeConverted<wchar_t>(text);
}

std::size_t StringUtils::unicodeSize(const wchar_t* text) {
    return sizeInOwnUnit(text);
}

std::size_t StringUtils::stringLength(const char* text) {
    if (text == nullptr)
        return errorSize;
    std::size_t characters = 0;
    for (; *text != '\0'; text += zarnex::platform::characterBytes(text))
        ++characters;
    return characters;
}

std::size_t StringUtils::stringLength(const wchar_t* text) {
    return text == nullptr ? errorSize : textLength(text);
}

std::size_t StringUtils::copyString(char* out, const char* text, std::size_t room) {
    return copyText(out, text, room);
}

std::size_t StringUtils::copyString(char* out, const wchar_t* text, std::size_t room) {
    return copyText(out, text, room);
}

std::size_t StringUtils::copyString(wchar_t* out, const char* text, std::size_t room) {
    return copyText(out, text, room);
}

std::size_t StringUtils::copyString(wchar_t* out, const wchar_t* text, std::size_t room) {
    return copyText(out, text, room);
}

std::size_t StringUtils::appendString(char* out, const char* text, std::size_t room) {
    return appendText(out, text, room);
}

std::size_t StringUtils::appendString(char* out, const wchar_t* text, std::size_t room) {
    return appendText(out, text, room);
}

std::size_t StringUtils::appendString(wchar_t* out, const char* text, std::size_t room) {
    return appendText(out, text, room);
}

std::size_t StringUtils::appendString(wchar_t* out, const wchar_t* text, std::size_t room) {
    return appendText(out, text, room);
}
