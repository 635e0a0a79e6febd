#pragma once

#include <zarnex/config.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/units/comparison.h>

class ZEmbPoint;
class ZInch;
class ZMillimeter;
class ZSpi;

/// A length in centimetres, with a validity flag and a label of its own.
///
/// Numbers are stored unchanged and are valid. Text is read as for ZMillimeter;
/// a bare number counts in centimetres. Nothing throws. Reading text holds the
/// scanner lock.
///
/// Kept as is: label and unit identifier belong to the object, so that
/// ZCentimeterPerSec shares the rest, although the other lengths have static
/// labels and fixed identifiers.
class ZARNEX_API ZCentimeter {
protected:
    /// As ZMillimeter::setValue(). Called for each unit that is tried when a number
    /// was read.
    virtual int setValue(double value, int unit);

public:
    /// The class whose rule applies in a comparison with a plain number.
    using Quantity = ZCentimeter;

    ZCentimeter(double centimeters = 0.0); ///< the number as it is, valid
    ZCentimeter(const ZString& text);      ///< reads `text`

    /// Takes label and unit identifier too.
    ZCentimeter(const ZCentimeter& other) = default;

    /// Takes value and validity.
    ///
    /// Kept as is: takes value and validity alone, although copying construction
    /// takes everything.
    ZCentimeter& operator=(const ZCentimeter& other);

    /// Virtual: an object of a derived class may be deleted as this one.
    virtual ~ZCentimeter();

    /// As the constructors from a number and from text.
    /// @{
    ZCentimeter& operator=(double value);
    ZCentimeter& operator=(const ZString& text);
    /// @}

    /// Convert and take the validity flag over. A density becomes its stitch
    /// length, a density of exactly 0.0 the length 0.0.
    /// @{
    explicit ZCentimeter(const ZMillimeter& length);
    explicit ZCentimeter(const ZInch& length);
    explicit ZCentimeter(const ZEmbPoint& length);
    explicit ZCentimeter(const ZSpi& density);
    ZCentimeter& operator=(const ZMillimeter& length);
    ZCentimeter& operator=(const ZInch& length);
    ZCentimeter& operator=(const ZEmbPoint& length);
    ZCentimeter& operator=(const ZSpi& density);
    /// @}

    /// The value, whether valid or not.
    operator double() const;

    /// 1, or 0 where the text was not a quantity, or what was converted was not valid.
    int isValid() const;
    int getUnitId() const; ///< 3; 12 in a ZCentimeterPerSec

    /// Reads `text` as the constructor does; a number whose unit is missing or
    /// refused counts in `preferredUnit`, or in the own unit if that is refused.
    virtual void setStringWithUnits(const ZString& text, int preferredUnit);

    /// The length in another unit: 2 mm, 3 centimetres with the label "cm", 4 inch,
    /// 5 point, 6 stitches per inch; any other gives the own text.
    virtual ZString getStringWithUnits(int unit);

    /// For unit 2 in millimetres as "%4.2lf" and the label, for others
    /// getStringWithUnits().
    virtual ZString getDensityStringWithUnits(int unit);

    /// The two texts of a const object, through the virtual operations.
    /// @{
    ZString getStringWithUnits(int unit) const;
    ZString getDensityStringWithUnits(int unit) const;
    /// @}

    /// "%4.1lf" and the label.
    /// @{
    virtual operator ZString();
    virtual operator ZString() const;
    /// @}

    /// "%*.*lf" and the label.
    ZString getString(int width, int precision) const;

    /// 1 if both hold the same double; never for NaN.
    ///
    /// Kept as is: exact, although ZMillimeter allows 1e-9.
    int operator==(const ZCentimeter& other) const;
    int operator!=(const ZCentimeter& other) const; ///< 1 where == gives 0, else 0
    int operator<(const ZCentimeter& other) const;  ///< by the values; 0 with NaN

    /// Sets the label of this object, "cm" at first. It is text, never a format.
    void setUnitString(ZString label);

protected:
    /// For derived classes: a value with a label and a unit identifier.
    ZARNEX_WIDE ZCentimeter(double value, const wchar_t* label, int unitId);

    /// "%4.*lf" with `precision`, and the label.
    ZString displayed(int precision) const;

    double value_; ///< in centimetres, or by the unit of the derived class
    int valid_;    ///< what isValid() returns

private:
    int unitId_;
    ZString label_;
};

ZARNEX_INLINE ZCentimeter::operator double() const {
    return value_;
}

ZARNEX_INLINE int ZCentimeter::isValid() const {
    return valid_;
}
