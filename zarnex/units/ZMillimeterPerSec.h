#pragma once

#include <zarnex/config.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/units/comparison.h>

class ZCentimeter;
class ZEmbPoint;
class ZInch;
class ZSpi;

/// A speed in millimetres per second, with a validity flag.
///
/// Numbers are stored unchanged and are valid. Text is read as for ZMillimeter;
/// "mm" and "cm" stand for that length per second, a bare number counts in mm/s.
/// Nothing throws. Reading text holds the scanner lock; the label is process-wide
/// and unguarded.
///
/// Kept as is: inches and points are refused, so "3 in" is 3 mm/s, although
/// ZCentimeterPerSec converts them and so does assignment.
class ZARNEX_API ZMillimeterPerSec {
public:
    /// The class whose rule applies in a comparison with a plain number.
    using Quantity = ZMillimeterPerSec;

    ZMillimeterPerSec(double millimetersPerSec = 0.0); ///< the number as it is, valid
    ZMillimeterPerSec(const ZString& text);            ///< reads `text`

    /// Value and validity.
    /// @{
    ZMillimeterPerSec(const ZMillimeterPerSec& other) = default;
    ZMillimeterPerSec& operator=(const ZMillimeterPerSec& other) = default;
    /// @}

    /// As the constructors from a number and from text.
    /// @{
    ZMillimeterPerSec& operator=(double value);
    ZMillimeterPerSec& operator=(const ZString& text);
    /// @}

    /// The length per second, with its validity flag; a density counts as its
    /// stitch length, a density of exactly 0.0 as 0.0.
    /// @{
    explicit ZMillimeterPerSec(const ZCentimeter& length);
    explicit ZMillimeterPerSec(const ZEmbPoint& length);
    explicit ZMillimeterPerSec(const ZInch& length);
    explicit ZMillimeterPerSec(const ZSpi& density);
    ZMillimeterPerSec& operator=(const ZCentimeter& length);
    ZMillimeterPerSec& operator=(const ZEmbPoint& length);
    ZMillimeterPerSec& operator=(const ZInch& length);
    ZMillimeterPerSec& operator=(const ZSpi& density);
    /// @}

    /// The value, whether valid or not.
    operator double() const;

    /// 1, or 0 where the text was not a quantity, or what was converted was not valid.
    int isValid() const;
    int getUnitId() const; ///< 14

    /// Reads `text` as the constructor does; a number whose unit is missing or
    /// refused counts in `preferredUnit`, or in mm/s if that is refused.
    void setStringWithUnits(const ZString& text, int preferredUnit);

    /// The value with many decimals, and the label.
    ///
    /// Kept as is: "%4.*2f" with 2 where the hundredths, cut off, need them, else
    /// 1, which renders 22 or 12 decimals, although the conversion of a const object
    /// renders 2. ZMillimeter rounds the hundredths.
    operator ZString();

    /// "%4.2lf" and the label.
    operator ZString() const;

    /// As the conversion of an object that is not const.
    ZString getString() const;

    /// "%*.*lf" and the label.
    /// @{
    ZString getString(int width, int precision) const;
    ZString getDensityString(int width, int precision) const;
    /// @}

    /// As getString(), whatever the unit.
    ZString getStringWithUnits(int unit) const;

    /// For unit 2 getDensityString(4, 2), for others getString().
    ZString getDensityStringWithUnits(int unit) const;

    /// 1 if the values differ by 1e-9 at most. Not transitive.
    ///
    /// Kept as is: ZCentimeterPerSec compares exactly.
    int operator==(const ZMillimeterPerSec& other) const;
    int operator!=(const ZMillimeterPerSec& other) const; ///< 1 where == gives 0, else 0
    int operator<(const ZMillimeterPerSec& other) const;  ///< by the values; 0 with NaN

    /// Sets the label of all objects, "mm/s" at first. It is text, never a format.
    static void setUnitString(ZString label);

protected:
    /// As ZMillimeter::setValue().
    int setValue(double value, int unit);

private:
    double value_;
    int valid_;
};

ZARNEX_INLINE ZMillimeterPerSec::operator double() const {
    return value_;
}

ZARNEX_INLINE int ZMillimeterPerSec::isValid() const {
    return valid_;
}
