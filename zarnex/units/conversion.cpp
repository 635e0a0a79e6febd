#include <zarnex/units/conversion.h>

#include <zarnex/units/ZCentimeter.h>
#include <zarnex/units/ZCentimeterPerSec.h>
#include <zarnex/units/ZDegree.h>
#include <zarnex/units/ZEmbPoint.h>
#include <zarnex/units/ZInch.h>
#include <zarnex/units/ZMillimeter.h>
#include <zarnex/units/ZMillimeterPerSec.h>
#include <zarnex/units/ZNumber.h>
#include <zarnex/units/ZPercent.h>
#include <zarnex/units/ZSpi.h>
#include <zarnex/units/unitIds.h>

using namespace zarnex;

namespace {

template <class Quantity>
int render(double value, ZString& out) {
    Quantity quantity(value);
    out = quantity.operator ZString();
    return 0;
}

template <class Quantity>
double evaluate(const ZString& text) {
    return Quantity(text);
}

} // namespace

int renderZUnitQuantity(int unit, double value, ZString& out, int densityFormat) {
    switch (unit) {
    case unitNumber:
    case unitInteger:
        return render<ZNumber>(value, out);
    case unitMillimeter:
        if (densityFormat == 0)
            return render<ZMillimeter>(value, out);
        out = ZMillimeter(value).getDensityString(4, 2);
        return 0;
    case unitCentimeter:
        return render<ZCentimeter>(value, out);
    case unitInch:
        return render<ZInch>(value, out);
    case unitEmbPoint:
        return render<ZEmbPoint>(value, out);
    case unitSpi:
        return render<ZSpi>(value, out);
    case unitPercent:
        return render<ZPercent>(value, out);
    case unitCentimeterPerSec:
        return render<ZCentimeterPerSec>(value, out);
    case unitMillimeterPerSec:
        return render<ZMillimeterPerSec>(value, out);
    case unitDegree:
        return render<ZDegree>(value, out);
    default:
        return -1;
    }
}

double evaluateRenderedQuantity(int unit, const ZString& text) {
    switch (unit) {
    case unitMillimeter:
    case unitMillimeterPerSec:
        return evaluate<ZMillimeter>(text);
    case unitCentimeter:
    case unitCentimeterPerSec:
        return evaluate<ZCentimeter>(text);
    case unitInch:
        return evaluate<ZInch>(text);
    case unitEmbPoint:
        return evaluate<ZEmbPoint>(text);
    case unitSpi:
        return evaluate<ZSpi>(text);
    case unitDegree:
        return evaluate<ZDegree>(text);
    default:
        return evaluate<ZNumber>(text);
    }
}

double convertZUnits(int fromUnit, double value, int toUnit, int densityFormat) {
    ZString text;
    renderZUnitQuantity(fromUnit, value, text, densityFormat);
    return evaluateRenderedQuantity(toUnit, text);
}
