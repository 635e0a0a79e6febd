#include <zarnex/platform/utf8.h>

#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <cwchar>
#include <type_traits>

namespace zarnex::platform {

namespace {

using Byte = unsigned char;
using Unit = std::make_unsigned_t<std::conditional_t<sizeof(wchar_t) == 2, short, int>>;

constexpr char32_t replacement = 0xFFFD;

// Text is taken in blocks: one without any character from U+0080 on is copied at once,
// by loops of a fixed length over a block of its own, which compilers turn into vectors.
constexpr std::ptrdiff_t blockSize = 16;

bool widenAsciiBlock(const Byte* text, wchar_t* out) {
    std::uint64_t halves[2];
    std::memcpy(halves, text, blockSize);
    if (((halves[0] | halves[1]) & 0x8080808080808080u) != 0)
        return false;
    if (out != nullptr) {
        Byte bytes[blockSize];
        wchar_t units[blockSize];
        std::memcpy(bytes, text, blockSize);
        for (int i = 0; i < blockSize; ++i)
            units[i] = static_cast<wchar_t>(bytes[i]);
        std::memcpy(out, units, sizeof units);
    }
    return true;
}

bool narrowAsciiBlock(const wchar_t* text, char* out) {
    Unit units[blockSize];
    std::memcpy(units, text, sizeof units);
    Unit all = 0;
    for (int i = 0; i < blockSize; ++i)
        all = static_cast<Unit>(all | units[i]);
    if (all >= 0x80)
        return false;
    if (out != nullptr) {
        char bytes[blockSize];
        for (int i = 0; i < blockSize; ++i)
            bytes[i] = static_cast<char>(units[i]);
        std::memcpy(out, bytes, sizeof bytes);
    }
    return true;
}

// ---- One character

// Decodes the sequence at `text`, before `end`, and moves `text` past it.
inline char32_t decode(const Byte*& text, const Byte* end) {
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

// The same for wide text: a pair of surrogates is one character.
inline char32_t decode(const wchar_t*& text, const wchar_t* end) {
    const char32_t unit = static_cast<Unit>(*text++);
    if (unit - 0xD800 >= 0x800)
        return unit > 0x10FFFF ? replacement : unit;
    if (sizeof(wchar_t) == 2 && unit < 0xDC00 && text != end) {
        const char32_t low = static_cast<Unit>(*text);
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

inline bool copyAsciiBlock(const Byte* text, wchar_t* out) {
    return widenAsciiBlock(text, out);
}

inline bool copyAsciiBlock(const wchar_t* text, char* out) {
    return narrowAsciiBlock(text, out);
}

// Writes to `out`, or counts alone when that is null. 0 if `room` does not do.
template <bool writes, class In, class Out>
int convert(const In* text, const In* end, Out* out, int room) {
    std::ptrdiff_t written = 0;
    const auto place = [&] { return writes ? out + written : nullptr; };
    while (text != end) {
        const In* scalarEnd = end;
        if (end - text >= blockSize) {
            if (room - written >= blockSize && copyAsciiBlock(text, place())) {
                text += blockSize;
                written += blockSize;
                continue;
            }
            scalarEnd = text + blockSize;
        }
        while (text < scalarEnd) {
            const char32_t character = decode(text, end);
            const std::ptrdiff_t size = sizeOf(character, out);
            if (room - written < size)
                return 0;
            if constexpr (writes)
                encode(character, out + written);
            written += size;
        }
    }
    return static_cast<int>(written);
}

template <class In, class Out>
int convert(const In* text, std::size_t count, Out* out, int room) {
    return room == 0 ? convert<false>(text, text + count, out, INT_MAX)
                     : convert<true>(text, text + count, out, room);
}

bool isCall(const void* text, int count, const void* out, int room) {
    return text != nullptr && count != 0 && room >= 0 && (room == 0 || out != nullptr);
}

} // namespace

int utf8ToWide(const char* text, int count, wchar_t* out, int room) {
    if (!isCall(text, count, out, room))
        return 0;
    const std::size_t length = count < 0 ? std::strlen(text) + 1 : static_cast<std::size_t>(count);
    return convert(reinterpret_cast<const Byte*>(text), length, out, room);
}

int wideToUtf8(const wchar_t* text, int count, char* out, int room) {
    if (!isCall(text, count, out, room))
        return 0;
    const std::size_t length = count < 0 ? std::wcslen(text) + 1 : static_cast<std::size_t>(count);
    return convert(text, length, out, room);
}

int utf8CharacterBytes(const char* text) {
    // The decoder looks at a further byte only where the sequence asks for one, and
    // a terminator ends every sequence: no end is needed.
    const auto* next = reinterpret_cast<const Byte*>(text);
    decode(next, next + 4);
    return static_cast<int>(next - reinterpret_cast<const Byte*>(text));
}

} // namespace zarnex::platform
