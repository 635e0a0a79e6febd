#include "host/utf8.h"

#include <algorithm>
#include <cstddef>

namespace host {

namespace {

constexpr char32_t replacement = 0xFFFD;

constexpr int mostQuoted = 60; // characters

// The bytes of the character beyond ASCII that `lead` begins; 0 if it begins none.
std::size_t lengthFrom(unsigned char lead) {
    if (lead < 0xC2 || lead > 0xF4)
        return 0;
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

bool isControl(char32_t c) {
    return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

// The characters at the start that are shown and widened as they stand, most of what is typed.
template <class Text>
std::size_t plainLength(const Text& text) {
    const auto isPlain = [](auto unit) { return unit >= 0x20 && unit < 0x7F; };
    const auto end = std::find_if_not(text.begin(), text.end(), isPlain);
    return static_cast<std::size_t>(end - text.begin());
}

} // namespace

char32_t nextCharacter(std::string_view& text) {
    constexpr char32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80) { // most of what is typed
        text.remove_prefix(1);
        return lead;
    }
    const std::size_t length = lengthFrom(lead);
    char32_t c = lead & (0x7Fu >> length);
    bool wellFormed = length > 0 && length <= text.size();
    for (std::size_t i = 1; wellFormed && i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        wellFormed = (byte & 0xC0) == 0x80;
        c = c << 6 | (byte & 0x3Fu);
    }
    const bool surrogate = c >= 0xD800 && c <= 0xDFFF;
    if (!wellFormed || c < least[length] || c > 0x10FFFF || surrogate) {
        text.remove_prefix(1);
        return illFormed;
    }
    text.remove_prefix(length);
    return c;
}

void appendUtf8(std::string& out, char32_t character) {
    const auto byte = [&out](char32_t value) { out += static_cast<char>(value); };
    const auto tail = [&](int shift) { byte(0x80 | (character >> shift & 0x3F)); };
    if (character < 0x80) {
        byte(character);
    } else if (character < 0x800) {
        byte(0xC0 | character >> 6);
        tail(0);
    } else if (character < 0x10000) {
        byte(0xE0 | character >> 12);
        tail(6);
        tail(0);
    } else {
        byte(0xF0 | character >> 18);
        tail(12);
        tail(6);
        tail(0);
    }
}

std::string toUtf8(std::wstring_view text) {
    const std::size_t plain = plainLength(text);
    std::string out(plain, '\0');
    std::transform(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(plain), out.begin(),
                   [](wchar_t unit) { return static_cast<char>(unit); });
    for (const wchar_t unit : text.substr(plain))
        appendUtf8(out, static_cast<char32_t>(unit));
    return out;
}

bool toWide(std::string_view text, std::wstring& wide) {
    const std::size_t plain = plainLength(text);
    wide.assign(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(plain));
    text.remove_prefix(plain);
    while (!text.empty()) {
        const char32_t c = nextCharacter(text);
        if (c == illFormed)
            return false;
        wide += static_cast<wchar_t>(c > 0xFFFF ? replacement : c);
    }
    return true;
}

bool isText(std::string_view text) {
    while (!text.empty()) {
        const char32_t c = nextCharacter(text);
        if (c == illFormed || (isControl(c) && c != '\t' && c != '\f'))
            return false;
    }
    return true;
}

void appendShown(std::string& out, std::string_view text, int most) {
    for (auto room = static_cast<std::size_t>(most);; --room) {
        const std::size_t plain = (std::min)(plainLength(text), room);
        out.append(text, 0, plain);
        text.remove_prefix(plain);
        room -= plain;
        if (text.empty())
            return;
        if (room == 0) {
            out += "\xE2\x80\xA6"; // an ellipsis
            return;
        }
        const char32_t c = nextCharacter(text);
        appendUtf8(out, c == illFormed ? replacement : isControl(c) ? U' ' : c);
    }
}

std::string shown(std::string_view text, int most) {
    std::string out;
    appendShown(out, text, most);
    return out;
}

std::string quoted(std::string_view text) {
    return '"' + shown(text, mostQuoted) + '"';
}

} // namespace host
