#include "stitchplan/typedValues.h"

#include "stitchplan/pieces.h"

#include "host/Reading.h"
#include "host/trimming.h"
#include "host/utf8.h"

#include <zarnex/units/ZDegree.h>
#include <zarnex/units/ZEmbPoint.h>
#include <zarnex/units/ZPercent.h>
#include <zarnex/units/unitIds.h>

#include <charconv>
#include <cmath>
#include <initializer_list>
#include <string>
#include <system_error>
#include <type_traits>
#include <variant>

namespace stitchplan {

namespace {

// What the program does not take as said by accident: words that the library ignores.
host::Reading readingOf(std::string_view text, int bareUnit) {
    host::Reading reading(text, bareUnit);
    std::string problem = reading.problem;
    if (problem.empty() && !reading.ignored.empty())
        problem = host::quoted(reading.ignored) + " is no part of it";
    if (!problem.empty())
        throw ValueError("cannot read " + host::quoted(text) + ": " + problem);
    return reading;
}

double inPoints(std::string_view text, const host::Reading& reading) {
    const auto convert = [](const auto& own) {
        if constexpr (std::is_constructible_v<ZEmbPoint, decltype(own)>)
            return ZEmbPoint(own);
        else
            return ZEmbPoint();
    };
    const ZEmbPoint points = std::visit(convert, reading.quantity);
    if (!points.isValid())
        throw ValueError("no length: " + host::quoted(text));
    if (!(std::fabs(points) <= longestLength))
        throw ValueError("longer than 10 m: " + host::quoted(text));
    return points;
}

// A plain number in front of one of the `words`, or of none.
ZString numberIn(std::string_view text, std::initializer_list<std::string_view> words) {
    std::string_view number = host::trimmed(text, blanks);
    for (const std::string_view word : words) {
        const std::size_t end = number.size() - word.size();
        if (number.size() > word.size() && number.substr(end) == word) {
            number = host::trimmed(number.substr(0, end), blanks);
            break;
        }
    }
    std::string_view unsignedPart = number;
    if (!unsignedPart.empty() && (unsignedPart[0] == '-' || unsignedPart[0] == '+'))
        unsignedPart.remove_prefix(1);
    const bool plain = unsignedPart.find_first_of("0123456789") != std::string_view::npos &&
                       unsignedPart.find_first_not_of("0123456789.") == std::string_view::npos &&
                       unsignedPart.find('.') == unsignedPart.rfind('.');
    constexpr std::size_t longest = 30;
    if (!plain || number.size() > longest)
        throw ValueError("cannot read " + host::quoted(text) + ": not a number with " +
                         host::quoted(*words.begin()));
    return ZString(std::string(number).c_str());
}

} // namespace

bool isLengthUnit(int unit) {
    return unit == zarnex::unitMillimeter || unit == zarnex::unitCentimeter ||
           unit == zarnex::unitInch || unit == zarnex::unitEmbPoint;
}

double length(std::string_view text, int bareUnit) {
    text = host::trimmed(text, blanks);
    const host::Reading reading = readingOf(text, bareUnit);
    if (!isLengthUnit(reading.unit))
        throw ValueError("no length: " + host::quoted(text));
    return inPoints(text, reading);
}

double lengthOrDensity(std::string_view text, int bareUnit) {
    text = host::trimmed(text, blanks);
    const host::Reading reading = readingOf(text, bareUnit);
    if (!isLengthUnit(reading.unit) && reading.unit != zarnex::unitSpi)
        throw ValueError("neither a length nor stitches per inch: " + host::quoted(text));
    return inPoints(text, reading);
}

double angle(std::string_view text) {
    const ZDegree degrees(numberIn(text, {"degrees", "degree", "deg", "\xC2\xB0"}));
    if (!(std::fabs(degrees) <= 360.0))
        throw ValueError("more than 360 degrees: " + host::quoted(text));
    return degrees;
}

double percentage(std::string_view text) {
    return ZPercent(numberIn(text, {"%", "percent"}));
}

int count(std::string_view text, int most) {
    const std::string_view digits = host::trimmed(text, blanks);
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size() || number < 1 || number > most)
        throw ValueError("not a whole number from 1 to " + std::to_string(most) + ": " +
                         host::quoted(text));
    return number;
}

} // namespace stitchplan
