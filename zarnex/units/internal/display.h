#pragma once

/// How a quantity class renders its value.

#include <zarnex/strings/ZString.h>
#include <zarnex/units/ZMillimeter.h>
#include <zarnex/units/unitIds.h>

namespace zarnex::detail {

/// `value` as "%*.*lf", then `suffix` as it stands.
ZString displayText(double value, int width, int precision, const wchar_t* suffix);

/// The same with a blank and `label`, which is text and never a format.
ZString labelledText(double value, int width, int precision, const ZString& label);

/// 2 if `hundredths`, whole hundredths of a unit, need two decimals, else 1.
int decimalsFor(int hundredths);

/// Assigns `source` to a fresh Quantity and renders that, as a non-const object.
template <class Quantity, class Source>
ZString textAs(const Source& source) {
    Quantity quantity(0.0);
    quantity = source;
    return quantity.operator ZString();
}

/// For millimetres what ZMillimeter::getDensityString() makes of `source`, for other units its
/// own text.
template <class Source>
ZString densityTextAs(Source& source, int unit) {
    return unit == unitMillimeter ? ZMillimeter(source).getDensityString(4, 2)
                                  : source.getStringWithUnits(unit);
}

} // namespace zarnex::detail
