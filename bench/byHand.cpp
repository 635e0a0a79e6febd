#include "byHand.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <optional>
#include <system_error>
#include <unordered_map>

namespace bench::byHand {

namespace {

using Words = std::unordered_map<std::string_view, Unit>;

const Words& words() {
    static const Words all = {
        {"mm", Unit::millimeter},
        {"milli", Unit::millimeter},
        {"millimeter", Unit::millimeter},
        {"millimeters", Unit::millimeter},
        {"cm", Unit::centimeter},
        {"centi", Unit::centimeter},
        {"centimeter", Unit::centimeter},
        {"centimeters", Unit::centimeter},
        {"\"", Unit::inch},
        {"in", Unit::inch},
        {"inch", Unit::inch},
        {"inches", Unit::inch},
        {"p", Unit::point},
        {"pt", Unit::point},
        {"point", Unit::point},
        {"points", Unit::point},
        {"spi", Unit::stitchesPerInch},
        {"stitch", Unit::stitchesPerInch},
        {"stitches", Unit::stitchesPerInch},
        {"stitches per inch", Unit::stitchesPerInch},
        {"/ sq", Unit::perSquareCentimeter},
        {"/ sq cm", Unit::perSquareCentimeter},
        {"/ sq centi", Unit::perSquareCentimeter},
        {"/ sq centimeter", Unit::perSquareCentimeter},
        {"/ sq centimeters", Unit::perSquareCentimeter},
        {"/ square", Unit::perSquareCentimeter},
        {"/ square cm", Unit::perSquareCentimeter},
        {"/ square centi", Unit::perSquareCentimeter},
        {"/ square centimeter", Unit::perSquareCentimeter},
        {"/ square centimeters", Unit::perSquareCentimeter},
        {"per sq", Unit::perSquareCentimeter},
        {"per sq cm", Unit::perSquareCentimeter},
        {"per sq centi", Unit::perSquareCentimeter},
        {"per sq centimeter", Unit::perSquareCentimeter},
        {"per sq centimeters", Unit::perSquareCentimeter},
        {"per square", Unit::perSquareCentimeter},
        {"per square cm", Unit::perSquareCentimeter},
        {"per square centi", Unit::perSquareCentimeter},
        {"per square centimeter", Unit::perSquareCentimeter},
        {"per square centimeters", Unit::perSquareCentimeter},
    };
    return all;
}

std::string narrowed(std::wstring_view text) {
    std::string narrow(text.size(), '\0');
    std::transform(text.begin(), text.end(), narrow.begin(), [](wchar_t c) {
        if (c >= L'A' && c <= L'Z')
            return static_cast<char>(c - L'A' + 'a');
        return c <= 0x7F ? static_cast<char>(c) : '?';
    });
    return narrow;
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view space = " \t\r\n\v\f";
    const std::size_t first = text.find_first_not_of(space);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(space) + 1 - first);
}

/// The unit of the longest run of words that is one, and whether more words follow.
std::optional<Unit> unitIn(std::string_view text, bool& more) {
    for (;;) {
        if (const auto found = words().find(text); found != words().end())
            return found->second;
        const std::size_t blank = text.find_last_of(' ');
        if (blank == std::string_view::npos)
            return std::nullopt;
        text = trimmed(text.substr(0, blank));
        more = true;
    }
}

std::optional<double> millimeters(double value, Unit unit) {
    switch (unit) {
    case Unit::millimeter:
        return value;
    case Unit::centimeter:
        return value * 10.0;
    case Unit::inch:
        return value * 25.4;
    case Unit::point:
        return value / 10.0;
    case Unit::stitchesPerInch:
        return value > 0.0 ? std::optional(25.4 / value) : std::nullopt;
    default:
        return std::nullopt;
    }
}

std::optional<double> convert(double value, Unit from, Unit to) {
    if (from == to)
        return value;
    const std::optional<double> length = millimeters(value, from);
    if (!length)
        return std::nullopt;
    switch (to) {
    case Unit::millimeter:
        return *length;
    case Unit::centimeter:
        return *length / 10.0;
    case Unit::inch:
        return *length / 25.4;
    case Unit::point:
        return *length * 10.0;
    case Unit::stitchesPerInch:
        return *length >= 0.0 ? std::optional(25.4 / *length) : std::nullopt;
    default:
        return std::nullopt;
    }
}

} // namespace

Quantity read(std::wstring_view text, Unit own) {
    const std::string narrow = narrowed(text);
    std::string_view rest = trimmed(narrow);
    if (!rest.empty() && rest.front() == '+')
        rest.remove_prefix(1);
    double number = 0.0;
    const char* const end = rest.data() + rest.size();
    const auto [stop, error] = std::from_chars(rest.data(), end, number, std::chars_format::fixed);
    if (error != std::errc())
        return {};
    rest.remove_prefix(static_cast<std::size_t>(stop - rest.data()));
    rest = trimmed(rest);
    if (rest.empty())
        return {number, true};

    bool more = false;
    const std::optional<Unit> unit = unitIn(rest, more);
    if (!unit)
        return {number, true};
    const std::optional<double> value = convert(number, *unit, own);
    return value ? Quantity{*value, !more} : Quantity{number, true};
}

double converted(double value, Unit from, Unit to) {
    return convert(value, from, to).value_or(value);
}

std::wstring render(double value, int width, int precision, std::wstring_view label) {
    std::array<char, 400> digits; // the largest double has 309 places
    const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                          std::chars_format::fixed, precision)
                                .ptr;
    const auto count = static_cast<std::size_t>(end - digits.data());
    const auto room = static_cast<std::size_t>(width);
    const std::size_t blanks = room > count ? room - count : 0;
    std::wstring text;
    text.reserve(blanks + count + 1 + label.size());
    text.append(blanks, L' ');
    text.append(static_cast<const char*>(digits.data()), end);
    text += L' ';
    text += label;
    return text;
}

std::wstring renderMillimeter(double value) {
    const long hundredths = std::lround(value * 100.0);
    return render(value, 4, hundredths % 10 == 0 ? 1 : 2, L"mm");
}

} // namespace bench::byHand
