#pragma once

#include <zarnex/config.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/units/comparison.h>

/// An integer.
///
/// A double is cut toward zero; out of range gives the nearest int, NaN gives 0.
/// Text gives the decimal integer that it begins with behind white space and a
/// sign, what follows is ignored: "12.7 mm" is 12, "abc" is 0.
class ZARNEX_API ZNumber {
public:
    /// The class whose rule applies in a comparison with a plain number.
    using Quantity = ZNumber;

    ZNumber(double number = 0.0); ///< the number, cut toward zero
    ZNumber(const ZString& text); ///< reads `text`

    /// The value.
    operator double() const;

    int isValid() const;   ///< always 1
    int getUnitId() const; ///< 8

    /// Reads `text` as the constructor does; the unit is ignored.
    void setStringWithUnits(const ZString& text, int unit);

    /// The decimal digits.
    /// @{
    operator ZString();
    operator ZString() const;
    /// @}

    /// The own text, whatever the unit.
    ZString getStringWithUnits(int unit) const;

    /// 1 for equal integers, else 0.
    int operator==(const ZNumber& other) const;
    int operator!=(const ZNumber& other) const; ///< 1 where == gives 0, else 0
    int operator<(const ZNumber& other) const;  ///< by the integers

private:
    int value_;
};
