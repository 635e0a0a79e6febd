#pragma once

#include <zarnex/config.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/units/comparison.h>

class ZCentimeter;
class ZEmbPoint;
class ZInch;
class ZSpi;

/// A length in millimetres, with a validity flag.
///
/// Numbers of any sign, infinities and NaN are stored unchanged and are valid.
/// Text is a number and an optional unit word (ZUnitScanner lists them); a bare
/// number, or one whose unit is refused, counts in millimetres. Characters that
/// belong to no token are dropped. Text whose first token is no number gives 0.0 and
/// isValid() == 0. Nothing throws. Reading text holds the scanner lock; the label is
/// process-wide and unguarded.
///
/// Kept as is: only a unit that follows the number at once counts. Behind anything else the
/// number is bare and valid, and the rest is not looked at: "1 1/2 in" and "1 2 in" are
/// 1 mm. ZUnitScanner tells what follows.
///
/// Kept as is: a word behind the unit and white space keeps the value and makes it
/// invalid ("1 in extra"), although what stands directly at the unit is dropped
/// without harm ("3 int", "5 cm/s"). A lone sign counts as a number and has the value of the latest
/// number that the process read, and text with a token of 100 characters ends the process, although
/// everything else that cannot be read is merely invalid.
///
///     ZMillimeter length("1 inch");
///     double(length)            // 25.4
///     ZString(length)           // "25.4 mm"
///     length.getStringWithUnits(5)  // "254.0 pt"
class ZARNEX_API ZMillimeter {
public:
    /// The class whose rule applies in a comparison with a plain number.
    using Quantity = ZMillimeter;

    ZMillimeter(double millimeters = 0.0); ///< the number as it is, valid
    ZMillimeter(const ZString& text);      ///< reads `text`

    /// Value and validity.
    /// @{
    ZMillimeter(const ZMillimeter& other) = default;
    ZMillimeter& operator=(const ZMillimeter& other) = default;
    /// @}

    /// As the constructors from a number and from text.
    /// @{
    ZMillimeter& operator=(double value);
    ZMillimeter& operator=(const ZString& text);
    /// @}

    /// Convert and take the validity flag over. A density becomes its stitch
    /// length, a density of exactly 0.0 the length 0.0.
    /// @{
    explicit ZMillimeter(const ZCentimeter& length);
    explicit ZMillimeter(const ZInch& length);
    explicit ZMillimeter(const ZEmbPoint& length);
    explicit ZMillimeter(const ZSpi& density);
    ZMillimeter& operator=(const ZCentimeter& length);
    ZMillimeter& operator=(const ZInch& length);
    ZMillimeter& operator=(const ZEmbPoint& length);
    ZMillimeter& operator=(const ZSpi& density);
    /// @}

    /// The value, whether valid or not.
    operator double() const;

    /// 1, or 0 where the text was not a quantity, or what was converted was not valid.
    int isValid() const;
    int getUnitId() const; ///< 2

    /// Reads `text` as the constructor does; a number whose unit is missing or
    /// refused counts in `preferredUnit`, or in millimetres if that is refused.
    void setStringWithUnits(const ZString& text, int preferredUnit);

    /// Four places wide with the label: two decimals where the hundredths, rounded,
    /// need them, else one. " 2.5 mm", "2.34 mm".
    operator ZString();

    /// Four places wide, with one decimal and the label.
    ///
    /// Kept as is: always one decimal, although the conversion of an object that is
    /// not const chooses.
    operator ZString() const;

    /// As the conversion that chooses its decimals.
    ZString getString() const;

    /// "%*.*lf" and the label.
    /// @{
    ZString getString(int width, int precision) const;
    ZString getDensityString(int width, int precision) const;
    /// @}

    /// The length in another unit: 4 inch, 5 point, 6 stitches per inch; any other
    /// gives the own text.
    ///
    /// Kept as is: 3 gives no centimetres but the own text, although ZCentimeter
    /// renders millimetres.
    ZString getStringWithUnits(int unit) const;

    /// For unit 2 getDensityString(4, 2), for others getStringWithUnits().
    ZString getDensityStringWithUnits(int unit) const;

    /// 1 if the values differ by 1e-9 at most.
    ///
    /// Kept as is: ZInch and ZCentimeter compare exactly. Not transitive.
    int operator==(const ZMillimeter& other) const;
    int operator!=(const ZMillimeter& other) const; ///< 1 where == gives 0, else 0
    int operator<(const ZMillimeter& other) const;  ///< by the values; 0 with NaN

    /// Sets the label of all objects, "mm" at first. It is text, never a format.
    static void setUnitString(ZString label);

protected:
    /// Stores `value` converted from `unit` and returns 1; a refused unit or
    /// density leaves 0.0, invalid, and returns 0.
    int setValue(double value, int unit);

private:
    double value_;
    int valid_;
};

ZARNEX_INLINE ZMillimeter::operator double() const {
    return value_;
}

ZARNEX_INLINE int ZMillimeter::isValid() const {
    return valid_;
}
