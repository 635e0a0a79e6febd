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
    ZNumber(double number = 0.0);
    ZNumber(const ZString& text);

    operator double() const;

    /// Always 1.
    int isValid() const;
    int getUnitId() const; ///< 8

    /// Reads `text` as the constructor does; the unit is ignored.
    void setStringWithUnits(const ZString& text, int unit);

    /// The decimal digits.
    operator ZString();
    operator ZString() const;

    /// The own text, whatever the unit.
    ZString getStringWithUnits(int unit) const;

    /// Compare the integers.
    int operator==(const ZNumber& other) const;
    int operator!=(const ZNumber& other) const;
    int operator<(const ZNumber& other) const;

private:
    int value_;
};
