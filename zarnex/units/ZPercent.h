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
    ZPercent(double percent = 100.0);
    ZPercent(const ZString& text);

    operator double() const;

    /// Always 1.
    int isValid() const;
    int getUnitId() const; ///< 9

    /// Reads `text` as the constructor does; the unit is ignored.
    void setStringWithUnits(const ZString& text, int unit);

    /// "%3.1f %%": "50.0 %".
    operator ZString();
    operator ZString() const;

    /// "%*.*f %%".
    ZString getString(int width, int precision) const;

    /// The own text, whatever the unit.
    ZString getStringWithUnits(int unit) const;

    /// 1 if both hold the same double; never for NaN.
    int operator==(const ZPercent& other) const;
    int operator!=(const ZPercent& other) const;
    int operator<(const ZPercent& other) const;
    int operator>(const ZPercent& other) const;

private:
    double value_;
};

extern template class ZARNEX_API ZList<ZPercent>;
