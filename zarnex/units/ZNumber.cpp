#include <zarnex/units/ZNumber.h>

#include <zarnex/geometry/rounding.h>
#include <zarnex/strings/internal/numberReading.h>
#include <zarnex/units/unitIds.h>

using namespace zarnex;
using namespace zarnex::detail;

ZNumber::ZNumber(double number) : value_(truncateToInt(number)) {}

ZNumber::ZNumber(const ZString& text) : ZNumber(0.0) {
    setStringWithUnits(text, unitNumber);
}

ZNumber::operator double() const {
    return value_;
}

int ZNumber::isValid() const {
    return 1;
}

int ZNumber::getUnitId() const {
    return unitInteger;
}

void ZNumber::setStringWithUnits(const ZString& text, int) {
    value_ = readInt(text);
}

ZNumber::operator ZString() {
    return getStringWithUnits(unitInteger);
}

ZNumber::operator ZString() const {
    return getStringWithUnits(unitInteger);
}

ZString ZNumber::getStringWithUnits(int) const {
    ZString digits;
    digits += value_;
    return digits;
}

int ZNumber::operator==(const ZNumber& other) const {
    return value_ == other.value_;
}

int ZNumber::operator!=(const ZNumber& other) const {
    return !(*this == other);
}

int ZNumber::operator<(const ZNumber& other) const {
    return value_ < other.value_;
}
