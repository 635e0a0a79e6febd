#pragma once

#include <zarnex/config.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/units/comparison.h>

class ZCentimeter;
class ZInch;
class ZMillimeter;
class ZSpi;

/// A length in embroidery points, tenths of a millimetre, with a validity flag:
/// the unit that designs are made in.
///
/// Numbers are stored unchanged and are valid. Text is read as for ZMillimeter;
/// a bare number counts in points. Nothing throws. Reading text holds the scanner
/// lock.
///
///     ZEmbPoint length(ZString("1 inch")); // 254.0, "254.0 pt"
class ZARNEX_API ZEmbPoint {
public:
    /// The class whose rule applies in a comparison with a plain number.
    using Quantity = ZEmbPoint;

    ZEmbPoint(double points = 0.0); ///< the number as it is, valid
    ZEmbPoint(const ZString& text); ///< reads `text`

    /// Value and validity.
    /// @{
    ZEmbPoint(const ZEmbPoint& other) = default;
    ZEmbPoint& operator=(const ZEmbPoint& other) = default;
    /// @}

    /// Virtual: an object of a derived class may be deleted as this one.
    virtual ~ZEmbPoint();

    /// As the constructors from a number and from text.
    /// @{
    ZEmbPoint& operator=(double value);
    ZEmbPoint& operator=(const ZString& text);
    /// @}

    /// Convert and take the validity flag over.
    /// @{
    explicit ZEmbPoint(const ZMillimeter& length);
    explicit ZEmbPoint(const ZCentimeter& length);
    explicit ZEmbPoint(const ZInch& length);
    explicit ZEmbPoint(const ZSpi& density);
    ZEmbPoint& operator=(const ZMillimeter& length);
    ZEmbPoint& operator=(const ZCentimeter& length);
    ZEmbPoint& operator=(const ZInch& length);
    /// @}

    /// The stitch length of a density.
    ///
    /// Kept as is: a density within 1e-9 of zero marks the object invalid and
    /// leaves its value, although the other lengths become 0.0 and take the flag
    /// over.
    ZEmbPoint& operator=(const ZSpi& density);

    /// The value, whether valid or not.
    operator double() const;

    /// 1, or 0 where the text was not a quantity, or what was converted was not valid.
    int isValid() const;
    int getUnitId() const; ///< 5

    /// Reads `text` as the constructor does; a number whose unit is missing or
    /// refused counts in `preferredUnit`, or in points if that is refused.
    void setStringWithUnits(const ZString& text, int preferredUnit);

    /// "%3.1lf pt".
    /// @{
    operator ZString();
    operator ZString() const;
    /// @}

    /// "%*.*lf pt".
    ZString getString(int width, int precision) const;

    /// The length in another unit: 2 mm, 4 inch, 6 stitches per inch; any other
    /// gives the own text.
    ///
    /// Kept as is: 3 gives no centimetres but the own text.
    ZString getStringWithUnits(int unit) const;

    /// For unit 2 in millimetres as "%4.2lf" and the label, for others
    /// getStringWithUnits().
    ZString getDensityStringWithUnits(int unit) const;

    /// 1 if the values differ by less than 2.220446049250313e-16.
    ///
    /// Kept as is: not quite exact, although ZInch is and ZMillimeter allows 1e-9.
    int operator==(const ZEmbPoint& other) const;
    int operator!=(const ZEmbPoint& other) const; ///< 1 where == gives 0, else 0
    int operator<(const ZEmbPoint& other) const;  ///< by the values; 0 with NaN

protected:
    /// As ZMillimeter::setValue().
    int setValue(double value, int unit);

private:
    double value_;
    int valid_;
};

ZARNEX_INLINE ZEmbPoint::operator double() const {
    return value_;
}

ZARNEX_INLINE int ZEmbPoint::isValid() const {
    return valid_;
}
