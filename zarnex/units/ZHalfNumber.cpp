#include <zarnex/units/ZHalfNumber.h>

#include <zarnex/strings/internal/numberReading.h>
#include <zarnex/units/internal/display.h>
#include <zarnex/units/unitIds.h>

#include <cmath>

using namespace zarnex;
using namespace zarnex::detail;

namespace {

double roundedToHalves(double number) {
    const double magnitude = std::fabs(number);
    const double whole = std::trunc(magnitude);
    if (std::isnan(number))
        return number;
    if (magnitude == whole)
        return number < 0 ? -whole : whole;
    const double fraction = magnitude - whole;
    const double rounded = fraction < 0.25 ? whole : fraction < 0.75 ? whole + 0.5 : whole + 1.0;
    return number < 0 ? -rounded : rounded;
}

} // namespace

ZHalfNumber::ZHalfNumber(double number) : value_(roundedToHalves(number)) {}

ZHalfNumber::ZHalfNumber(const ZString& text) : ZHalfNumber(0.0) {
    setStringWithUnits(text, unitNumber);
}

ZHalfNumber::operator double() const {
    return value_;
}

int ZHalfNumber::isValid() const {
    return 1;
}

int ZHalfNumber::getUnitId() const {
    return unitHalfNumber;
}

void ZHalfNumber::setStringWithUnits(const ZString& text, int) {
    value_ = roundedToHalves(readDouble(text));
}

ZHalfNumber::operator ZString() {
    return getStringWithUnits(unitHalfNumber);
}

ZHalfNumber::operator ZString() const {
    return getStringWithUnits(unitHalfNumber);
}

ZString ZHalfNumber::getStringWithUnits(int) const {
    return displayText(value_, 4, 1, L"");
}

int ZHalfNumber::operator==(const ZHalfNumber& other) const {
    return value_ == other.value_;
}

int ZHalfNumber::operator!=(const ZHalfNumber& other) const {
    return !(*this == other);
}

int ZHalfNumber::operator<(const ZHalfNumber& other) const {
    return value_ < other.value_;
}
