#pragma once

#include <zarnex/config.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/units/comparison.h>

class ZCentimeter;
class ZEmbPoint;
class ZInch;
class ZMillimeter;
class ZMillimeterPerSec;

/// A stitch density in stitches per inch, with a validity flag.
///
/// Density and stitch length are reciprocal: 1 over the length in inches. Numbers
/// are stored unchanged and are valid, zero and negative ones too. Text is read as
/// for ZMillimeter; a bare number counts in stitches per inch. Nothing throws.
/// Reading text holds the scanner lock.
///
///     ZSpi density(ZString("2 mm"));  // 12.7, "12.7 spi"
///
/// Kept as is: the text "0 mm" gives positive infinity, valid, although assigning
/// a zero length gives 0.0; the text "-2 mm" gives -2.0, valid, since the negative
/// length is refused and the bare number is not.
class ZARNEX_API ZSpi {
public:
    /// The class whose rule applies in a comparison with a plain number.
    using Quantity = ZSpi;

    ZSpi(double stitchesPerInch = 0.0); ///< the number as it is, valid
    ZSpi(const ZString& text);          ///< reads `text`

    /// Value and validity.
    /// @{
    ZSpi(const ZSpi& other) = default;
    ZSpi& operator=(const ZSpi& other) = default;
    /// @}

    /// Virtual: an object of a derived class may be deleted as this one.
    virtual ~ZSpi();

    /// As the constructors from a number and from text.
    /// @{
    ZSpi& operator=(double value);
    ZSpi& operator=(const ZString& text);
    /// @}

    /// The density of a stitch length, with its validity flag; 0.0 for a length of
    /// zero (of points, for one that equals 0.0 by their own rule). A speed counts
    /// as its length.
    /// @{
    explicit ZSpi(const ZMillimeter& length);
    explicit ZSpi(const ZMillimeterPerSec& speed);
    explicit ZSpi(const ZCentimeter& length);
    explicit ZSpi(const ZInch& length);
    explicit ZSpi(const ZEmbPoint& length);
    ZSpi& operator=(const ZMillimeter& length);
    ZSpi& operator=(const ZMillimeterPerSec& speed);
    ZSpi& operator=(const ZCentimeter& length);
    ZSpi& operator=(const ZInch& length);
    ZSpi& operator=(const ZEmbPoint& length);
    /// @}

    /// The value, whether valid or not.
    operator double() const;

    /// 1, or 0 where the text was not a quantity, or what was converted was not valid.
    int isValid() const;
    int getUnitId() const; ///< 6

    /// Reads `text` as the constructor does; a number whose unit is missing or
    /// refused counts in `preferredUnit`, or in stitches per inch if that is refused.
    void setStringWithUnits(const ZString& text, int preferredUnit);

    /// "%3.1lf spi".
    /// @{
    operator ZString();
    operator ZString() const;
    /// @}

    /// "%*.*lf spi".
    ZString getString(int width, int precision) const;

    /// The stitch length in 2 mm, 4 inch or 5 point; any other unit gives the own
    /// text.
    ZString getStringWithUnits(int unit) const;

    /// For unit 2 the stitch length in millimetres as "%4.2lf" and the label, for
    /// others getStringWithUnits().
    ZString getDensityStringWithUnits(int unit) const;

    /// 1 if both hold the same double; never for NaN.
    int operator==(const ZSpi& other) const;
    int operator!=(const ZSpi& other) const; ///< 1 where == gives 0, else 0
    int operator<(const ZSpi& other) const;  ///< by the values; 0 with NaN

protected:
    /// As ZMillimeter::setValue(). Takes every density, refuses a negative length.
    int setValue(double value, int unit);

private:
    double value_;
    int valid_;
};

ZARNEX_INLINE ZSpi::operator double() const {
    return value_;
}

ZARNEX_INLINE int ZSpi::isValid() const {
    return valid_;
}
