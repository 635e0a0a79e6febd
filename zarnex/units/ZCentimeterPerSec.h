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
    /// As ZMillimeter::setValue(). Refuses stitches per inch.
    int setValue(double value, int unit) override;

public:
    ZCentimeterPerSec(double centimetersPerSec = 0.0); ///< the number as it is, valid
    ZCentimeterPerSec(const ZString& text);            ///< reads `text`

    /// Takes label and unit identifier too.
    ZCentimeterPerSec(const ZCentimeterPerSec& other) = default;

    /// The length per second, by assignment: a density counts as its stitch length.
    /// @{
    explicit ZCentimeterPerSec(const ZCentimeter& length);
    explicit ZCentimeterPerSec(const ZMillimeter& length);
    explicit ZCentimeterPerSec(const ZInch& length);
    explicit ZCentimeterPerSec(const ZEmbPoint& length);
    explicit ZCentimeterPerSec(const ZSpi& density);
    /// @}

    /// Takes value and validity, as in ZCentimeter.
    ZCentimeterPerSec& operator=(const ZCentimeterPerSec& other) = default;
    using ZCentimeter::operator=;

    /// Frees the label.
    ~ZCentimeterPerSec() override;

    /// As in ZCentimeter; the own unit is centimetres per second.
    void setStringWithUnits(const ZString& text, int preferredUnit) override;

    /// The own text for every unit.
    ZString getStringWithUnits(int unit) override;
    using ZCentimeter::getStringWithUnits;

    /// "%4.2lf" and the label, "cm/s" at first.
    /// @{
    operator ZString() override;
    operator ZString() const override;
    /// @}
};
