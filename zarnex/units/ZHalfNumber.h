#pragma once

#include <zarnex/config.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/units/comparison.h>

/// A real number rounded to the nearest half: 1.24 is 1.0, 1.25 is 1.5, -1.3 is
/// -1.5. Quarters round away from zero. Infinities and NaN stay what they are.
///
/// Text is read as for ZRealNumber and then rounded.
class ZARNEX_API ZHalfNumber {
public:
    /// The class whose rule applies in a comparison with a plain number.
    using Quantity = ZHalfNumber;

    ZHalfNumber(double number = 0.0); ///< the number, rounded
    ZHalfNumber(const ZString& text); ///< reads `text`

    /// The value.
    operator double() const;

    int isValid() const;   ///< always 1
    int getUnitId() const; ///< 11

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
    int operator==(const ZHalfNumber& other) const;
    int operator!=(const ZHalfNumber& other) const; ///< 1 where == gives 0, else 0
    int operator<(const ZHalfNumber& other) const;  ///< by the values; 0 with NaN

private:
    double value_;
};
