#include <zarnex/units/ZRealNumber.h>

#include <zarnex/strings/internal/numberReading.h>
#include <zarnex/units/internal/display.h>
#include <zarnex/units/unitIds.h>

using namespace zarnex;
using namespace zarnex::detail;

ZRealNumber::ZRealNumber(double number) : value_(number) {}

ZRealNumber::ZRealNumber(const ZString& text) : ZRealNumber(0.0) {
    setStringWithUnits(text, unitNumber);
}

ZRealNumber::operator double() const {
    return value_;
}

int ZRealNumber::isValid() const {
    return 1;
}

int ZRealNumber::getUnitId() const {
    return unitRealNumber;
}

void ZRealNumber::setStringWithUnits(const ZString& text, int) {
    value_ = readDouble(text);
}

ZRealNumber::operator ZString() {
    return getStringWithUnits(unitRealNumber);
}

ZRealNumber::operator ZString() const {
    return getStringWithUnits(unitRealNumber);
}

ZString ZRealNumber::getStringWithUnits(int) const {
    return displayText(value_, 4, 1, L"");
}

int ZRealNumber::operator==(const ZRealNumber& other) const {
    return value_ == other.value_;
}

int ZRealNumber::operator!=(const ZRealNumber& other) const {
    return !(*this == other);
}

int ZRealNumber::operator<(const ZRealNumber& other) const {
    return value_ < other.value_;
}
