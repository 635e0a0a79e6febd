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
    ZRealNumber(double number = 0.0);
    ZRealNumber(const ZString& text);

    operator double() const;

    /// Always 1.
    int isValid() const;
    int getUnitId() const; ///< 13

    /// Reads `text` as the constructor does; the unit is ignored.
    void setStringWithUnits(const ZString& text, int unit);

    /// "%4.1lf".
    operator ZString();
    operator ZString() const;

    /// The own text, whatever the unit.
    ZString getStringWithUnits(int unit) const;

    /// 1 if both hold the same double; never for NaN.
    int operator==(const ZRealNumber& other) const;
    int operator!=(const ZRealNumber& other) const;
    int operator<(const ZRealNumber& other) const;

private:
    double value_;
};
