#include <zarnex/units/ZCentimeterPerSec.h>

#include <zarnex/units/internal/factors.h>
#include <zarnex/units/unitIds.h>

using namespace zarnex;
using namespace zarnex::detail;

ZCentimeterPerSec::ZCentimeterPerSec(double centimetersPerSec)
    : ZCentimeter(centimetersPerSec, L"cm/s", unitCentimeterPerSec) {}

ZCentimeterPerSec::ZCentimeterPerSec(const ZString& text) : ZCentimeterPerSec() {
    ZCentimeterPerSec::setStringWithUnits(text, unitNumber);
}

ZCentimeterPerSec::~ZCentimeterPerSec() = default;

int ZCentimeterPerSec::setValue(double value, int unit) {
    return setConverted(Target::centimeterPerSec, value, unit, value_, valid_);
}

void ZCentimeterPerSec::setStringWithUnits(const ZString& text, int preferredUnit) {
    ZCentimeter::setStringWithUnits(text, preferredUnit);
}

ZString ZCentimeterPerSec::getStringWithUnits(int) {
    return operator ZString();
}

ZCentimeterPerSec::operator ZString() {
    return getString(4, 2);
}

ZCentimeterPerSec::operator ZString() const {
    return getString(4, 2);
}
