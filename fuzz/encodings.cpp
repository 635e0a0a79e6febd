/// Conversions between encodings, against a plain reader and writer of UTF-8 and, where the C
/// library has one, iconv.

#include "fuzz/fuzz.h"

#include <zarnex/strings/StringUtils.h>
#include <zarnex/strings/ZGenericString.h>
#include <zarnex/strings/conversions.h>

#include <algorithm>
#include <cwchar>
#include <optional>
#include <string>
#include <vector>

#if !defined(_WIN32)
#include <iconv.h>
#endif

namespace {

constexpr wchar_t replacement = 0xFFFD;
constexpr unsigned utf8 = 65001;
constexpr bool hasPairs = sizeof(wchar_t) == 2;

bool isTrail(const std::string& text, std::size_t i, int least = 0x80, int most = 0xBF) {
    const int byte = i < text.size() ? static_cast<unsigned char>(text[i]) : 0;
    return byte >= least && byte <= most;
}

void appendWide(std::wstring& wide, unsigned value) {
    if (hasPairs && value > 0xFFFF) {
        wide += static_cast<wchar_t>(0xD7C0 + (value >> 10));
        value = 0xDC00 | (value & 0x3FF);
    }
    wide += static_cast<wchar_t>(value);
}

/// By the table of well-formed sequences; an ill-formed one is replaced up to where it went
/// wrong.
std::wstring fromUtf8(const std::string& text) {
    std::wstring wide;
    for (std::size_t i = 0; i < text.size();) {
        const int lead = static_cast<unsigned char>(text[i++]);
        int trails = 0;
        int value = lead;
        int least = 0x80;
        int most = 0xBF;
        if (lead >= 0xC2 && lead <= 0xDF) {
            trails = 1;
            value = lead & 0x1F;
        } else if (lead >= 0xE0 && lead <= 0xEF) {
            trails = 2;
            value = lead & 0x0F;
            least = lead == 0xE0 ? 0xA0 : 0x80;
            most = lead == 0xED ? 0x9F : 0xBF;
        } else if (lead >= 0xF0 && lead <= 0xF4) {
            trails = 3;
            value = lead & 0x07;
            least = lead == 0xF0 ? 0x90 : 0x80;
            most = lead == 0xF4 ? 0x8F : 0xBF;
        } else if (lead >= 0x80) {
            value = replacement;
        }
        for (; trails > 0 && isTrail(text, i, least, most); --trails) {
            value = value << 6 | (text[i++] & 0x3F);
            least = 0x80;
            most = 0xBF;
        }
        appendWide(wide, static_cast<unsigned>(trails > 0 ? replacement : value));
    }
    return wide;
}

unsigned unitAt(const std::wstring& wide, std::size_t i) {
    return i < wide.size() ? static_cast<unsigned>(wide[i]) : 0u;
}

/// One unit or pair, one character; what is none is replaced.
std::string toUtf8(const std::wstring& wide) {
    std::string text;
    for (std::size_t i = 0; i < wide.size(); ++i) {
        unsigned value = unitAt(wide, i);
        if (hasPairs && value >> 10 == 0x36 && unitAt(wide, i + 1) >> 10 == 0x37)
            value = ((value & 0x3FF) << 10 | (unitAt(wide, ++i) & 0x3FF)) + 0x10000;
        if (value > 0x10FFFF || (value >= 0xD800 && value < 0xE000))
            value = replacement;
        const auto put = [&](unsigned byte) { text += static_cast<char>(byte); };
        if (value < 0x80) {
            put(value);
            continue;
        }
        const int trails = value < 0x800 ? 1 : value < 0x10000 ? 2 : 3;
        static const unsigned leads[] = {0, 0xC0, 0xE0, 0xF0};
        put(leads[trails] | value >> (6 * trails));
        for (int left = trails; left-- > 0;)
            put(0x80 | (value >> (6 * left) & 0x3F));
    }
    return text;
}

#if defined(_WIN32)
bool isSystemUtf8() {
    return mbsToWide("\xC3\xA9").length() == 1 && strToMbs(L"\u0416").length() == 2;
}

/// There is none.
template <class Out, class In>
std::optional<std::basic_string<Out>> byIconv(const char*, const char*, const In&) {
    return std::nullopt;
}
#else
constexpr bool isSystemUtf8() {
    return true;
}

/// What iconv makes of it; nothing if any of it is refused.
template <class Out, class In>
std::optional<std::basic_string<Out>> byIconv(const char* to, const char* from,
                                              const std::basic_string<In>& text) {
    std::basic_string<Out> out(8 * text.size() + 8, Out{});
    char* next = reinterpret_cast<char*>(out.data());
    std::size_t left = out.size() * sizeof(Out);
    char* in = const_cast<char*>(reinterpret_cast<const char*>(text.data()));
    std::size_t size = text.size() * sizeof(In);
    const iconv_t handle = iconv_open(to, from);
    FUZZ_REQUIRE(handle != reinterpret_cast<iconv_t>(-1));
    const bool isDone =
        iconv(handle, &in, &size, &next, &left) != static_cast<std::size_t>(-1) &&
        iconv(handle, nullptr, nullptr, &next, &left) != static_cast<std::size_t>(-1);
    iconv_close(handle);
    if (!isDone)
        return std::nullopt;
    out.resize(out.size() - left / sizeof(Out));
    return out;
}
#endif

// The C library knows sequences of five bytes and more.
bool isUnicode(const std::wstring& wide) {
    return std::all_of(wide.begin(), wide.end(), [](auto unit) { return unit <= 0x10FFFF; });
}

// Into `room` units: all, or what fits of it, and always terminated.
template <class Out, class In>
void copyInto(const std::basic_string<In>& text, const std::basic_string<Out>& whole, int room) {
    std::vector<Out> out(static_cast<std::size_t>(room), Out{'x'});
    const std::size_t needed = whole.size() + 1;
    const std::size_t written = StringUtils::copyString(out.data(), text.c_str(), out.size());
    FUZZ_REQUIRE(out.back() == Out{});
    const std::basic_string<Out> copied(out.data());
    FUZZ_REQUIRE(whole.compare(0, copied.size(), copied) == 0);
    FUZZ_REQUIRE(written == (needed <= out.size() ? needed : zarnex::errorSize));
    FUZZ_REQUIRE(needed > out.size() || copied == whole);
    FUZZ_REQUIRE(copied.size() + 4 >= std::min(needed, out.size())); // but for a character
    if constexpr (std::is_same_v<Out, char>)
        FUZZ_REQUIRE(toUtf8(fromUtf8(copied)) == copied); // the last one is whole
    for (std::size_t i = copied.size() + 1; i + 1 < out.size(); ++i)
        FUZZ_REQUIRE(out[i] == (needed <= out.size() ? Out{'x'} : Out{}));
}

void tryUtf8(const std::string& text, int room) {
    const std::wstring expected = fromUtf8(text);
    const ZMultiByteString bytes(text.c_str());
    const ZWideString wide = utf8ToWide(bytes);
    FUZZ_REQUIRE(wide == expected.c_str());
    FUZZ_REQUIRE(mbsToWide(bytes, utf8) == wide);
    ZString string(L"a text that is longer than some");
    utf8ToStr(bytes, string);
    FUZZ_REQUIRE(string.isEqual(expected.c_str()));
    FUZZ_REQUIRE(string.allocLength() == wide.allocLength());
    FUZZ_REQUIRE(wide.allocLength() == static_cast<int>(expected.size()) + 1);
    const ZMultiByteString back = wideToUtf8(wide);
    FUZZ_REQUIRE(back == toUtf8(expected).c_str());
    FUZZ_REQUIRE(back.allocLength() == static_cast<int>(toUtf8(expected).size()) + 1);
    const auto accepted = byIconv<wchar_t>("WCHAR_T", "UTF-8", text);
    FUZZ_REQUIRE(!accepted || !isUnicode(*accepted) || *accepted == expected);
    if (!isSystemUtf8())
        return;
    FUZZ_REQUIRE(mbsToWide(bytes) == wide);
    FUZZ_REQUIRE(ZString(text.c_str()).isEqual(expected.c_str()));
    FUZZ_REQUIRE(StringUtils::unicodeSize(text.c_str()) == expected.size() + 1);
    copyInto(text, expected, room);
    ZGenericString generic(text.c_str());
    if (!text.empty())
        FUZZ_REQUIRE(expected == generic.operator wchar_t*());
}

void tryWide(const std::wstring& wide, int room) {
    const std::string expected = toUtf8(wide);
    const ZString string(wide.c_str());
    FUZZ_REQUIRE(strToUtf8(string) == expected.c_str());
    ZMultiByteString bytes("what was there");
    strToMbs(wide.c_str(), bytes, utf8);
    FUZZ_REQUIRE(bytes == expected.c_str());
    FUZZ_REQUIRE(bytes.allocLength() == static_cast<int>(expected.size()) + 1);
    const auto accepted = byIconv<char>("UTF-8", "WCHAR_T", wide);
    FUZZ_REQUIRE(!accepted || !isUnicode(wide) || *accepted == expected);
    if (!isSystemUtf8())
        return;
    strToMbs(wide.c_str(), bytes);
    FUZZ_REQUIRE(bytes == expected.c_str());
    FUZZ_REQUIRE(string.multiByteSize() == static_cast<int>(expected.size()) + 1);
    copyInto(wide, expected, room);
}

void tryCodePage(fuzz::Input& input, const std::string& text, const std::wstring& wide) {
    static const unsigned codePages[] = {1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258,
                                         437,  850,  866,  874,  932,  936,  949,  950,  1361};
    const unsigned codePage = codePages[input.choice(18)];
    const std::string name = "CP" + std::to_string(codePage);
    const ZMultiByteString bytes(text.c_str());
    const ZWideString converted = mbsToWide(bytes, codePage);
    if (const auto accepted = byIconv<wchar_t>("WCHAR_T", name.c_str(), text)) {
        FUZZ_REQUIRE(converted == accepted->c_str());
        // In the others, several sequences of bytes mean one text.
        if (codePage < 1255 && codePage != 932 && codePage != 950)
            FUZZ_REQUIRE(wideToMbs(converted, codePage) == bytes);
    }
    ZMultiByteString back;
    strToMbs(wide.c_str(), back, codePage);
    if (const auto accepted = byIconv<char>(name.c_str(), "WCHAR_T", wide))
        FUZZ_REQUIRE(back == accepted->c_str());
    // Whatever was refused, the sizes agree with what is there.
    FUZZ_REQUIRE(converted.length() + 1 == converted.allocLength());
    FUZZ_REQUIRE(back.length() + 1 == back.allocLength());
    // What came out has a character for each again.
    const ZWideString again = mbsToWide(wideToMbs(converted, codePage), codePage);
    FUZZ_REQUIRE(again.length() == converted.length());
}

// Bytes as they come, or the edges of the table of well-formed sequences, whole and cut off.
std::string piece(fuzz::Input& input) {
    static const std::string edges[] = {
        "a",
        "\x7F",
        "\xC2\x80",
        "\xDF\xBF",
        "\xC1\xBF",
        "\xE0\xA0\x80",
        "\xE0\x9F\xBF",
        "\xED\x9F\xBF",
        "\xED\xA0\x80",
        "\xEE\x80\x80",
        "\xEF\xBF\xBF",
        "\xF0\x90\x80\x80",
        "\xF0\x8F\xBF\xBF",
        "\xF4\x8F\xBF\xBF",
        "\xF4\x90\x80\x80",
        "\xF5\x80\x80\x80",
        "\x80",
        "\x81\x40",
        "\xFC\xFE",
    };
    const int kind = input.choice(32);
    if (kind >= 19)
        return input.text(12);
    const int length = input.choice(8); // mostly all of it
    return edges[kind].substr(0,
                              length == 0 ? std::string::npos : static_cast<std::size_t>(length));
}

std::string textFrom(fuzz::Input& input) {
    std::string text;
    for (int pieces = input.choice(12); pieces > 0; --pieces) {
        const std::string each = piece(input);
        for (int count = input.choice(8) == 0 ? input.choice(100) : 1; count > 0; --count)
            text += each; // a run, for the quick paths
    }
    return text;
}

} // namespace

void tryInput(fuzz::Input input) {
    const int room = input.between(1, 600);
    const std::string text = textFrom(input);
    std::wstring wide = fromUtf8(textFrom(input));
    for (wchar_t& unit : wide)
        if (unit == replacement && input.choice(2) != 0)
            unit = input.choice(2) != 0 ? static_cast<wchar_t>(0xD800 + input.between(0, 0x7FF))
                                        : std::max(input.integer<wchar_t>(), L'\1');
    tryUtf8(text, room);
    tryWide(wide, room);
    tryCodePage(input, text, wide);
}
