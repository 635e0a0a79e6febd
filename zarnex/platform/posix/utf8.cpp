#include <zarnex/platform/posix/utf8.h>

namespace zarnex::platform {

namespace {

constexpr char32_t replacement = 0xFFFD;

} // namespace

char32_t decodeUtf8(const unsigned char*& text, const unsigned char* end) {
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

int encodeUtf8(char32_t character, char* out) {
    const auto put = [&out](unsigned byte) { *out++ = static_cast<char>(byte); };
    if (character < 0x80) {
        put(character);
        return 1;
    }
    if (character < 0x800) {
        put(0xC0 | character >> 6);
        put(0x80 | (character & 0x3F));
        return 2;
    }
    if (character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF))
        character = replacement;
    if (character < 0x10000) {
        put(0xE0 | character >> 12);
        put(0x80 | (character >> 6 & 0x3F));
        put(0x80 | (character & 0x3F));
        return 3;
    }
    put(0xF0 | character >> 18);
    put(0x80 | (character >> 12 & 0x3F));
    put(0x80 | (character >> 6 & 0x3F));
    put(0x80 | (character & 0x3F));
    return 4;
}

} // namespace zarnex::platform
