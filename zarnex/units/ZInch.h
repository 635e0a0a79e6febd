#pragma once

#include <zarnex/config.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/units/comparison.h>

class ZCentimeter;
class ZEmbPoint;
class ZMillimeter;
class ZSpi;

/// A length in inches, with a validity flag.
///
/// Numbers are stored unchanged and are valid. Text is read as for ZMillimeter;
/// a bare number counts in inches. Nothing throws. Reading text holds the scanner
/// lock; the label is process-wide and unguarded.
///
///     ZInch width(ZString("2.54 cm"));    // 1.0, valid
///     ZInch wrong(ZString("1 in extra")); // 1.0, invalid
class ZARNEX_API ZInch {
public:
    /// The class whose rule applies in a comparison with a plain number.
    using Quantity = ZInch;

    ZInch(double inches = 0.0); ///< the number as it is, valid
    ZInch(const ZString& text); ///< reads `text`

    /// Value and validity.
    /// @{
    ZInch(const ZInch& other) = default;
    ZInch& operator=(const ZInch& other) = default;
    /// @}

    /// Virtual: an object of a derived class may be deleted as this one.
    virtual ~ZInch();

    /// As the constructors from a number and from text.
    /// @{
    ZInch& operator=(double value);
    ZInch& operator=(const ZString& text);
    /// @}

    /// Convert and take the validity flag over. A density becomes its stitch
    /// length, a density of exactly 0.0 the length 0.0.
    /// @{
    explicit ZInch(const ZMillimeter& length);
    explicit ZInch(const ZCentimeter& length);
    explicit ZInch(const ZEmbPoint& length);
    explicit ZInch(const ZSpi& density);
    ZInch& operator=(const ZMillimeter& length);
    ZInch& operator=(const ZCentimeter& length);
    ZInch& operator=(const ZEmbPoint& length);
    ZInch& operator=(const ZSpi& density);
    /// @}

    /// The value, whether valid or not.
    operator double() const;

    /// 1, or 0 where the text was not a quantity, or what was converted was not valid.
    int isValid() const;
    int getUnitId() const; ///< 4

    /// Reads `text` as the constructor does; a number whose unit is missing or
    /// refused counts in `preferredUnit`, or in inches if that is refused.
    void setStringWithUnits(const ZString& text, int preferredUnit);

    /// "%4.2lf" and the label.
    /// @{
    operator ZString();
    operator ZString() const;
    /// @}

    /// "%*.*lf" and the label.
    ZString getString(int width, int precision) const;

    /// The length in another unit: 2 mm, 5 point, 6 stitches per inch; any other
    /// gives the own text.
    ///
    /// Kept as is: 3 gives no centimetres but the own text.
    ZString getStringWithUnits(int unit) const;

    /// For unit 2 in millimetres as "%4.2lf" and the label, for others
    /// getStringWithUnits().
    ZString getDensityStringWithUnits(int unit) const;

    /// 1 if both hold the same double; never for NaN.
    ///
    /// Kept as is: exact, although ZMillimeter allows 1e-9.
    int operator==(const ZInch& other) const;
    int operator!=(const ZInch& other) const; ///< 1 where == gives 0, else 0
    int operator<(const ZInch& other) const;  ///< by the values; 0 with NaN

    /// Sets the label of all objects, "in" at first. It is text, never a format.
    static void setUnitString(ZString label);

protected:
    /// As ZMillimeter::setValue().
    int setValue(double value, int unit);

private:
    double value_;
    int valid_;
};

ZARNEX_INLINE ZInch::operator double() const {
    return value_;
}

ZARNEX_INLINE int ZInch::isValid() const {
    return valid_;
}
