#pragma once

#include <zarnex/config.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/units/comparison.h>

/// An angle in degrees, stored as given: nothing is reduced to a full turn.
///
/// Text is read as for ZRealNumber. The label is process-wide and unguarded.
class ZARNEX_API ZDegree {
public:
    /// The class whose rule applies in a comparison with a plain number.
    using Quantity = ZDegree;

    ZDegree(double degrees = 0.0); ///< the number as it is
    ZDegree(const ZString& text);  ///< reads `text`

    /// The value.
    operator double() const;

    int isValid() const;   ///< always 1
    int getUnitId() const; ///< 15

    /// Reads `text` as the constructor does; the unit is ignored.
    void setStringWithUnits(const ZString& text, int unit);

    /// "%4.1lf" and the label: "90.0 " and the degree sign.
    /// @{
    operator ZString();
    operator ZString() const;
    /// @}

    /// The own text, whatever the unit.
    ZString getStringWithUnits(int unit) const;

    /// 1 if both hold the same double; never for NaN.
    int operator==(const ZDegree& other) const;
    int operator!=(const ZDegree& other) const; ///< 1 where == gives 0, else 0
    int operator<(const ZDegree& other) const;  ///< by the values; 0 with NaN

    /// Sets the label of all objects, the degree sign U+00B0 at first. It is text,
    /// never a format.
    static void setUnitString(ZString label);

private:
    double value_;
};
