#pragma once

/// How a quantity class renders its value.

#include <zarnex/strings/ZString.h>

namespace zarnex::detail {

/// `value` as "%*.*lf", then `suffix` as it stands.
ZString displayText(double value, int width, int precision, const wchar_t* suffix);

/// The same with a blank and `label`, which is text and never a format.
ZString labelledText(double value, int width, int precision, const ZString& label);

/// 2 if `hundredths`, whole hundredths of a unit, need two decimals, else 1.
int decimalsFor(int hundredths);

} // namespace zarnex::detail
