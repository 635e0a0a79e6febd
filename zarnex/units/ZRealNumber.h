#pragma once

#include <zarnex/config.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/units/comparison.h>

/// A real number.
///
/// Text gives the number that it begins with, as wcstod reads it in the "C" locale
/// (also "1e3", "0x10", "inf"), what follows is ignored; no number is 0.0.
class ZARNEX_API ZRealNumber {
public:
    /// The class whose rule applies in a comparison with a plain number.
    using Quantity = ZRealNumber;

    ZRealNumber(double number = 0.0); ///< the number as it is
    ZRealNumber(const ZString& text); ///< reads `text`

    /// The value.
    operator double() const;

    int isValid() const;   ///< always 1
    int getUnitId() const; ///< 13

    /// Reads `text` as the constructor does; the unit is ignored.
    void setStringWithUnits(const ZString& text, int unit);

    /// "%4.1lf".
    /// @{
    operator ZString();
    operator ZString() const;
    /// @}

    /// The own text, whatever the unit.
    ZString getStringWithUnits(int unit) const;

    /// 1 if both hold the same double; never for NaN.
    int operator==(const ZRealNumber& other) const;
    int operator!=(const ZRealNumber& other) const; ///< 1 where == gives 0, else 0
    int operator<(const ZRealNumber& other) const;  ///< by the values; 0 with NaN

private:
    double value_;
};
