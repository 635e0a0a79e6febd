#pragma once

/// Typed values of a motif, each read through the library's class for it. Blanks around
/// a text do not count. What cannot be read throws ValueError.

#include <stdexcept>
#include <string_view>

namespace stitchplan {

/// Its text says what is wrong.
class ValueError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Lengths beyond 10 m are refused; in points.
inline constexpr double longestLength = 100000.0;

/// Whether zarnex::UnitId `unit` is one of a length.
bool isLengthUnit(int unit);

/// A length in points; a bare number counts in `bareUnit`.
double length(std::string_view text, int bareUnit);

/// The same, or a density in stitches per inch as the length of one stitch.
double lengthOrDensity(std::string_view text, int bareUnit);

/// A number of degrees, a full turn at most, with or without "degrees", "deg" or the degree sign
/// behind it.
double angle(std::string_view text);

/// A number of percent, with or without "percent" or "%" behind it.
double percentage(std::string_view text);

/// A whole number from 1 to `most`.
int count(std::string_view text, int most);

} // namespace stitchplan
