#pragma once

/// Typed quantities the way a careful engineer writes them in an afternoon, without the
/// library: what the library's readers and renderers are measured against.

#include <string>
#include <string_view>

namespace bench::byHand {

enum class Unit { millimeter, centimeter, inch, point, stitchesPerInch, perSquareCentimeter };

struct Quantity {
    double value = 0.0;
    bool valid = false;
};

/// Reads a number and an optional unit word into the unit `own`. A missing, unknown or
/// refused unit leaves the number as it is; text behind the unit makes it invalid.
Quantity read(std::wstring_view text, Unit own);

/// A length or a density in another unit; `value` itself where there is no way across.
double converted(double value, Unit from, Unit to);

/// "%*.*f", a blank and the label.
std::wstring render(double value, int width, int precision, std::wstring_view label);

/// Millimetres with the two decimals that they need, or else one.
std::wstring renderMillimeter(double value);

} // namespace bench::byHand
