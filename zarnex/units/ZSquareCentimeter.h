#pragma once

#include <zarnex/config.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/units/comparison.h>

/// An area, or a number for each of it, in square centimetres, with a validity
/// flag.
///
/// Numbers are stored unchanged and are valid. Text is read as for ZMillimeter;
/// "per sq cm" is the one unit that is not refused, a bare number counts as it.
/// Nothing throws. Reading text holds the scanner lock.
///
///     ZSquareCentimeter beads(ZString("40 per sq cm")); // "40.0 per sq cm"
class ZARNEX_API ZSquareCentimeter {
public:
    /// The class whose rule applies in a comparison with a plain number.
    using Quantity = ZSquareCentimeter;

    ZSquareCentimeter(double squareCentimeters = 0.0); ///< the number as it is, valid
    ZSquareCentimeter(const ZString& text);            ///< reads `text`

    /// Value and validity.
    /// @{
    ZSquareCentimeter(const ZSquareCentimeter& other) = default;
    ZSquareCentimeter& operator=(const ZSquareCentimeter& other) = default;
    /// @}

    /// Virtual: an object of a derived class may be deleted as this one.
    virtual ~ZSquareCentimeter();

    /// The value, whether valid or not.
    operator double() const;

    /// 1, or 0 where the text was not a quantity.
    int isValid() const;
    int getUnitId() const; ///< 7

    /// Reads `text` as the constructor does; a number whose unit is missing or
    /// refused counts as it is.
    void setStringWithUnits(const ZString& text, int preferredUnit);

    /// "%4.1lf per sq cm".
    /// @{
    operator ZString();
    operator ZString() const;
    /// @}

    /// "%*.*lf per sq cm".
    ZString getString(int width, int precision) const;

    /// The own text for every unit.
    ZString getStringWithUnits(int unit) const;

    /// 1 if both hold the same double; never for NaN.
    int operator==(const ZSquareCentimeter& other) const;
    int operator!=(const ZSquareCentimeter& other) const; ///< 1 where == gives 0, else 0
    int operator<(const ZSquareCentimeter& other) const;  ///< by the values; 0 with NaN

protected:
    /// As ZMillimeter::setValue().
    int setValue(double value, int unit);

private:
    double value_;
    unsigned char valid_;
};

ZARNEX_INLINE ZSquareCentimeter::operator double() const {
    return value_;
}

ZARNEX_INLINE int ZSquareCentimeter::isValid() const {
    return valid_;
}
