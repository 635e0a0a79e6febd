#include <zarnex/units/ZPercent.h>

#include <zarnex/strings/internal/numberReading.h>
#include <zarnex/units/internal/display.h>
#include <zarnex/units/unitIds.h>

using namespace zarnex;
using namespace zarnex::detail;

ZPercent::ZPercent(double percent) : value_(percent) {}

ZPercent::ZPercent(const ZString& text) : ZPercent(0.0) {
    setStringWithUnits(text, unitNumber);
}

ZPercent::operator double() const {
    return value_;
}

int ZPercent::isValid() const {
    return 1;
}

int ZPercent::getUnitId() const {
    return unitPercent;
}

void ZPercent::setStringWithUnits(const ZString& text, int) {
    value_ = readDouble(text);
}

ZPercent::operator ZString() {
    return getStringWithUnits(unitPercent);
}

ZPercent::operator ZString() const {
    return getStringWithUnits(unitPercent);
}

ZString ZPercent::getString(int width, int precision) const {
    return displayText(value_, width, precision, L" %");
}

ZString ZPercent::getStringWithUnits(int) const {
    return getString(3, 1);
}

int ZPercent::operator==(const ZPercent& other) const {
    return value_ == other.value_;
}

int ZPercent::operator!=(const ZPercent& other) const {
    return !(*this == other);
}

int ZPercent::operator<(const ZPercent& other) const {
    return value_ < other.value_;
}

int ZPercent::operator>(const ZPercent& other) const {
    return value_ > other.value_;
}

template class ZList<ZPercent>;
