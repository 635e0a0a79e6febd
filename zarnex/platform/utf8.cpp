#include <zarnex/platform/utf8.h>

#include <zarnex/platform/asciiBlock.h>
#include <zarnex/platform/conversionArguments.h>
#include <zarnex/platform/textUnits.h>

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace zarnex::platform {

namespace {

using Byte = unsigned char;

constexpr char32_t replacement = 0xFFFD;

// ---- One character

// Decodes the sequence at `text`, before `end`, and moves `text` past it. Looks at a
// further byte only where the sequence asks for one.
char32_t decodeAny(const Byte*& text, const Byte* end) {
    const unsigned lead = *text++;
    if (lead < 0x80)
        return lead;

    // The first byte bounds the second one more tightly than 80..BF where a
    // sequence would be overlong, a surrogate or beyond U+10FFFF.
    int more = 0;
    unsigned low = 0x80;
    unsigned high = 0xBF;
    char32_t value = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        more = 1;
        value = lead & 0x1Fu;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        more = 2;
        value = lead & 0x0Fu;
        if (lead == 0xE0)
            low = 0xA0;
        if (lead == 0xED)
            high = 0x9F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        more = 3;
        value = lead & 0x07u;
        if (lead == 0xF0)
            low = 0x90;
        if (lead == 0xF4)
            high = 0x8F;
    } else {
        return replacement;
    }
    for (; more > 0; --more) {
        if (text == end || *text < low || *text > high)
            return replacement;
        value = value << 6 | (*text++ & 0x3Fu);
        low = 0x80;
        high = 0xBF;
    }
    return value;
}

// The same, quick for well-formed sequences of two and three bytes, tested as one number: the
// first byte is its lowest.
inline char32_t decode(const Byte*& text, const Byte* end) {
    if (end - text < 4)
        return decodeAny(text, end);
    const std::uint32_t bytes =
        static_cast<std::uint32_t>(text[0]) | static_cast<std::uint32_t>(text[1]) << 8 |
        static_cast<std::uint32_t>(text[2]) << 16 | static_cast<std::uint32_t>(text[3]) << 24;
    if ((bytes & 0xC0C0F0) == 0x8080E0) {
        const char32_t value = (bytes & 0x0F) << 12 | (bytes >> 2 & 0xFC0) | (bytes >> 16 & 0x3F);
        if (value >= 0x800 && value - 0xD800 >= 0x800) {
            text += 3;
            return value;
        }
    } else if ((bytes & 0xC0E0) == 0x80C0 && (bytes & 0x1E) != 0) {
        text += 2;
        return (bytes & 0x1F) << 6 | (bytes >> 8 & 0x3F);
    }
    return decodeAny(text, end);
}

// The same for wide text: a pair of surrogates is one character.
inline char32_t decode(const wchar_t*& text, const wchar_t* end) {
    const char32_t unit = static_cast<WideUnit>(*text++);
    if (unit - 0xD800 >= 0x800)
        return unit > 0x10FFFF ? replacement : unit;
    if (sizeof(wchar_t) == 2 && unit < 0xDC00 && text != end) {
        const char32_t low = static_cast<WideUnit>(*text);
        if (low - 0xDC00 < 0x400) {
            ++text;
            return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
        }
    }
    return replacement;
}

inline std::ptrdiff_t sizeOf(char32_t character, const wchar_t*) {
    return sizeof(wchar_t) == 2 && character >= 0x10000 ? 2 : 1;
}

inline std::ptrdiff_t sizeOf(char32_t character, const char*) {
    return character < 0x80 ? 1 : character < 0x800 ? 2 : character < 0x10000 ? 3 : 4;
}

inline void encode(char32_t character, wchar_t* out) {
    if (sizeof(wchar_t) == 2 && character >= 0x10000) {
        out[0] = static_cast<wchar_t>(0xD7C0 + (character >> 10));
        out[1] = static_cast<wchar_t>(0xDC00 | (character & 0x3FF));
    } else {
        out[0] = static_cast<wchar_t>(character);
    }
}

inline void encode(char32_t character, char* out) {
    const auto put = [&out](char32_t byte) { *out++ = static_cast<char>(byte); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | character >> 6);
        put(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        put(0xE0 | character >> 12);
        put(0x80 | (character >> 6 & 0x3F));
        put(0x80 | (character & 0x3F));
    } else {
        put(0xF0 | character >> 18);
        put(0x80 | (character >> 12 & 0x3F));
        put(0x80 | (character >> 6 & 0x3F));
        put(0x80 | (character & 0x3F));
    }
}

// ---- Texts

// 0 if `room` does not do.
template <class In, class Out>
int convert(const In* text, const In* const end, Out* const out, int room) {
    Out* next = out;
    Out* const stop = out + room;
    while (text != end) {
        if (end - text >= asciiBlockSize && stop - next >= asciiBlockSize) {
            const std::ptrdiff_t count = Blocks::copyAscii(text, end - text, next);
            text += count;
            next += count;
            if (count == asciiBlockSize)
                continue;
        } else if (isAscii(*text) && next != stop) {
            *next++ = static_cast<Out>(*text++);
            continue;
        }
        do {
            const char32_t character = decode(text, end);
            const std::ptrdiff_t size = sizeOf(character, out);
            if (stop - next < size) {
                std::fill(next, stop, Out{}); // whole characters and nothing else
                return 0;
            }
            encode(character, next);
            next += size;
        } while (text != end && !isAscii(*text));
    }
    return static_cast<int>(next - out);
}

// ---- Sizes

std::size_t sizeOf(const Byte* text, const Byte* end) {
    std::size_t size = 0;
    wchar_t ascii[asciiBlockSize];
    while (text != end) {
        if (end - text >= asciiBlockSize) {
            const std::ptrdiff_t count =
                Blocks::copyAscii(text, mostUtf8Bytes * asciiBlockSize, ascii);
            text += count;
            size += static_cast<std::size_t>(count);
            if (count == asciiBlockSize)
                continue;
        }
        do {
            size += static_cast<std::size_t>(sizeOf(decode(text, end), ascii));
        } while (text != end && !isAscii(*text));
    }
    return size;
}

// The bytes that `unit` takes, two for each half of a pair of surrogates: where `next`
// completes one, two are taken off.
inline WideUnit bytesOf(wchar_t at, wchar_t next) {
    const auto unit = static_cast<WideUnit>(at); // NOLINT(bugprone-signed-char-misuse): it is none
    const int size = 1 + (unit >= 0x80) + (unit >= 0x800);
    if constexpr (sizeof(wchar_t) == 2) {
        const bool isPair = (unit & 0xFC00) == 0xD800 && (next & 0xFC00) == 0xDC00;
        return static_cast<WideUnit>(size - 2 * isPair);
    } else {
        const char32_t character = unit;
        return static_cast<WideUnit>(size + (character >= 0x10000) - (character > 0x10FFFF));
    }
}

std::size_t sizeOf(const wchar_t* text, const wchar_t* end) {
    std::size_t size = 0;
    for (; end - text > asciiBlockSize; text += asciiBlockSize) {
        WideUnit sum = 0;
        for (int i = 0; i < asciiBlockSize; ++i)
            sum = static_cast<WideUnit>(sum + bytesOf(text[i], text[i + 1]));
        size += sum;
    }
    while (text != end) {
        const char32_t character = decode(text, end);
        size += static_cast<std::size_t>(sizeOf(character, static_cast<char*>(nullptr)));
    }
    return size;
}

template <class In, class Out>
int convertOrMeasure(const In* text, std::size_t count, Out* out, int room) {
    if (room != 0)
        return convert(text, text + count, out, room);
    const std::size_t size = sizeOf(text, text + count);
    return size <= INT_MAX ? static_cast<int>(size) : 0;
}

} // namespace

int utf8ToWide(const char* text, int count, wchar_t* out, int room) {
    if (!canConvert(text, count, out, room))
        return 0;
    return convertOrMeasure(reinterpret_cast<const Byte*>(text), unitCount(text, count), out, room);
}

int wideToUtf8(const wchar_t* text, int count, char* out, int room) {
    if (!canConvert(text, count, out, room))
        return 0;
    return convertOrMeasure(text, unitCount(text, count), out, room);
}

std::size_t utf8WideUnits(const char* text, std::size_t count) {
    const auto unitsOf = [](char byte) {
        const bool isFirst = static_cast<signed char>(byte) >= static_cast<signed char>(0xC0);
        const bool isPair = sizeof(wchar_t) == 2 && static_cast<Byte>(byte) >= 0xF0;
        return static_cast<Byte>(isFirst + isPair);
    };
    constexpr std::size_t block = 64; // whose sum is a byte
    std::size_t units = 0;
    std::size_t i = 0;
    for (; count - i >= block; i += block) {
        Byte sum = 0;
        for (std::size_t j = 0; j < block; ++j)
            sum = static_cast<Byte>(sum + unitsOf(text[i + j]));
        units += sum;
    }
    for (; i < count; ++i)
        units += unitsOf(text[i]);
    return units;
}

int utf8CharacterBytes(const char* text) {
    // A terminator ends every sequence: no end is needed.
    const auto* next = reinterpret_cast<const Byte*>(text);
    decodeAny(next, next + 4);
    return static_cast<int>(next - reinterpret_cast<const Byte*>(text));
}

} // namespace zarnex::platform
