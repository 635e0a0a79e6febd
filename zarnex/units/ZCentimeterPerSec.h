#pragma once

#include <zarnex/units/ZCentimeter.h>

/// A speed in centimetres per second, with a validity flag.
///
/// Text is read as for ZMillimeter; a unit of length stands for that length per
/// second, stitches per inch are refused, a bare number counts in cm/s.
///
///     ZCentimeterPerSec speed(ZString("12 mm")); // 1.2, "1.20 cm/s"
class ZARNEX_API ZCentimeterPerSec : public ZCentimeter {
protected:
    int setValue(double value, int unit) override;

public:
    ZCentimeterPerSec(double centimetersPerSec = 0.0);
    ZCentimeterPerSec(const ZString& text);
    ZCentimeterPerSec(const ZCentimeterPerSec& other) = default;
    ZCentimeterPerSec& operator=(const ZCentimeterPerSec& other) = default;
    using ZCentimeter::operator=;

    ~ZCentimeterPerSec() override;

    void setStringWithUnits(const ZString& text, int preferredUnit) override;

    /// The own text for every unit.
    ZString getStringWithUnits(int unit) override;

    /// "%4.2lf" and the label, "cm/s" at first.
    operator ZString() override;
    operator ZString() const override;
};
