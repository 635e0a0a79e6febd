/// Formats with the arguments that they ask for: alike in all strings, and as the C library's.

#include "fuzz/fuzz.h"

#include <zarnex/strings/ZMultiByteString.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/strings/ZWideString.h>
#include <zarnex/strings/conversions.h>

#include <cmath>
#include <cwchar>
#include <list>
#include <utility>
#include <variant>
#include <vector>

// The formats are made here, with the arguments that they ask for.
#pragma GCC diagnostic ignored "-Wformat-security"

namespace {

using Argument = std::variant<int, long long, double, const char*, const wchar_t*>;

// The C library of Windows has other exponents, lengths and letters for text.
#if defined(_WIN32)
constexpr bool hasStandardFormats = false;
#else
constexpr bool hasStandardFormats = true;
#endif

constexpr std::size_t mostArguments = 3;
constexpr std::size_t room = 1 << 15;

/// A format in the library's words, and in those of the C library for wide and narrow text.
struct Formats {
    std::string ours;
    std::string wide;
    std::string narrow;
    std::vector<Argument> arguments;
    bool isComparable = hasStandardFormats;
    std::list<std::string> texts; ///< that arguments point to
    std::list<std::wstring> wideTexts;

    void add(const std::string& text) {
        ours += text;
        wide += text;
        narrow += text;
    }
};

std::wstring widened(const std::string& text) {
    return std::wstring(text.begin(), text.end());
}

void addNumber(fuzz::Input& input, Formats& formats, const char* kinds, bool isReal) {
    const std::size_t count = std::char_traits<char>::length(kinds);
    const char kind = kinds[input.choice(static_cast<int>(count))];
    if (isReal) {
        const double value = input.real();
        formats.add(std::string(1, kind));
        formats.arguments.push_back(value);
        // The library writes "inf" and "nan" in all of them.
        formats.isComparable = formats.isComparable && std::isfinite(value);
        return;
    }
    static const struct {
        const char* ours;
        const char* standard;
        bool isLong;
    } lengths[] = {{"", "", false},  {"h", "h", false},  {"hh", "hh", false}, {"I32", "", false},
                   {"l", "l", true}, {"ll", "ll", true}, {"j", "j", true},    {"z", "z", true},
                   {"t", "t", true}, {"I64", "ll", true}};
    const auto& length = lengths[input.choice(10)];
    formats.ours += std::string(length.ours) + kind;
    formats.wide += std::string(length.standard) + kind;
    formats.narrow += std::string(length.standard) + kind;
    if (length.isLong)
        formats.arguments.push_back(input.integer<long long>());
    else
        formats.arguments.push_back(input.integer<int>());
}

void addText(fuzz::Input& input, Formats& formats) {
    const bool isWide = input.choice(2) != 0;
    if (input.choice(4) == 0) { // a character; not all there are, since zeros end the text
        const int unit = input.choice(255) + 1;
        formats.ours += isWide ? "lc" : "hc";
        formats.wide += isWide ? "lc" : "c";
        formats.narrow += isWide ? "lc" : "c";
        formats.arguments.push_back(unit);
        formats.isComparable = formats.isComparable && unit < 0x80;
        return;
    }
    formats.ours += isWide ? "ls" : "hs";
    formats.wide += isWide ? "ls" : "s";
    formats.narrow += isWide ? "ls" : "s";
    bool isAscii = true;
    if (isWide) {
        const std::wstring& text = formats.wideTexts.emplace_back(input.wide(300));
        for (const wchar_t unit : text)
            isAscii = isAscii && unit < 0x80;
        formats.arguments.push_back(text.c_str());
    } else {
        const std::string& text = formats.texts.emplace_back(input.text(300));
        for (const char unit : text)
            isAscii = isAscii && unit > 0;
        formats.arguments.push_back(text.c_str());
    }
    formats.isComparable = formats.isComparable && isAscii; // the C library has no UTF-8 here
}

// A width or a precision, also as an argument.
void addCount(fuzz::Input& input, Formats& formats, int least) {
    const int count = input.between(least, 120);
    if (formats.arguments.size() + 1 < mostArguments && input.choice(2) != 0) {
        formats.add("*");
        formats.arguments.push_back(count);
    } else {
        formats.add(std::to_string(std::abs(count)));
    }
}

void addConversion(fuzz::Input& input, Formats& formats) {
    static const char* const flags[] = {"", "-", "+", " ", "0", "#", "-+", "+0", " 0", "#0", "-#"};
    const int kind = input.choice(5);
    formats.add("%");
    if (kind == 4) { // what is no conversion is copied, unless it takes an argument
        static const char* const unknown[] = {"y", "5k", "-08.3q", "!", "%", "hhK", "_", "\n"};
        const std::string text = unknown[input.choice(8)];
        formats.ours += text;
        formats.wide += text == "%" ? text : "%" + text;
        formats.narrow += text == "%" ? text : "%" + text;
        return;
    }
    std::string flag = flags[input.choice(11)];
    if (kind == 3 && flag.find_first_not_of('-') != std::string::npos)
        flag.clear();
    if (kind == 0 && flag.find('#') != std::string::npos)
        flag.clear();
    formats.add(flag);
    if (input.choice(2) != 0)
        addCount(input, formats, -120);
    if (input.choice(2) != 0) {
        formats.add(".");
        addCount(input, formats, -1);
    }
    if (kind == 0)
        addNumber(input, formats, "di", false);
    else if (kind == 1)
        addNumber(input, formats, "uoxX", false);
    else if (kind == 2)
        addNumber(input, formats, "eEfFgG", true);
    else
        addText(input, formats);
}

template <class... Values>
void compare(const Formats& formats, Values... values) {
    ZString string(L"what was there");
    ZWideString wide;
    ZMultiByteString narrow;
    const std::wstring ours = widened(formats.ours);
    string.set(ours.c_str(), values...);
    wide.set(ours.c_str(), values...);
    narrow.set(formats.ours.c_str(), values...);
    FUZZ_REQUIRE(wide == static_cast<const wchar_t*>(std::as_const(string)));
    FUZZ_REQUIRE(string.length() < string.allocLength());
    FUZZ_REQUIRE(narrow.length() < narrow.allocLength());
    if (!formats.isComparable)
        return;
    static wchar_t wideOut[room];
    static char narrowOut[room];
    const int wideLength = std::swprintf(wideOut, room, widened(formats.wide).c_str(), values...);
    const int narrowLength = std::snprintf(narrowOut, room, formats.narrow.c_str(), values...);
    FUZZ_REQUIRE(wideLength < 0 || string.isEqual(wideOut));
    FUZZ_REQUIRE(narrowLength < 0 || narrow == narrowOut);
}

// Passes the arguments on, one by one, as what they are.
template <class... Values>
void pass(const Formats& formats, Values... values) {
    constexpr std::size_t done = sizeof...(Values);
    if (done == formats.arguments.size())
        return compare(formats, values...);
    if constexpr (done < mostArguments)
        std::visit([&](auto value) { pass(formats, values..., value); }, formats.arguments[done]);
}

} // namespace

void tryInput(fuzz::Input input) {
    Formats formats;
    while (!input.atEnd() && formats.arguments.size() < mostArguments &&
           formats.ours.size() < 600) {
        std::string literal = input.text(input.choice(8) == 0 ? 300 : 4);
        for (char& unit : literal)
            unit = unit == '%' || unit < 0 ? 'x' : unit;
        formats.add(literal);
        addConversion(input, formats);
    }
    pass(formats);
}
