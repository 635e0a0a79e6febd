#pragma once

#include <zarnex/config.h>
#include <zarnex/containers/ZList.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/units/comparison.h>

/// A percentage: 100.0 is one hundred percent, which is the default.
///
/// Text is read as for ZRealNumber; no number is 0.0.
class ZARNEX_API ZPercent {
public:
    /// The class whose rule applies in a comparison with a plain number.
    using Quantity = ZPercent;

    ZPercent(double percent = 100.0); ///< the number as it is
    ZPercent(const ZString& text);    ///< reads `text`

    /// The value.
    operator double() const;

    int isValid() const;   ///< always 1
    int getUnitId() const; ///< 9

    /// Reads `text` as the constructor does; the unit is ignored.
    void setStringWithUnits(const ZString& text, int unit);

    /// "%3.1f %%": "50.0 %".
    /// @{
    operator ZString();
    operator ZString() const;
    /// @}

    /// "%*.*f %%".
    ZString getString(int width, int precision) const;

    /// The own text, whatever the unit.
    ZString getStringWithUnits(int unit) const;

    /// 1 if both hold the same double; never for NaN.
    int operator==(const ZPercent& other) const;
    int operator!=(const ZPercent& other) const; ///< 1 where == gives 0, else 0
    int operator<(const ZPercent& other) const;  ///< by the values; 0 with NaN
    int operator>(const ZPercent& other) const;  ///< by the values; 0 with NaN

private:
    double value_;
};

extern template class ZARNEX_API ZList<ZPercent>;
