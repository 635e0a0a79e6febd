#include <zarnex/units/ZSquareCentimeter.h>

#include <zarnex/units/internal/display.h>
#include <zarnex/units/internal/factors.h>
#include <zarnex/units/internal/reading.h>

using namespace zarnex;
using namespace zarnex::detail;

ZSquareCentimeter::ZSquareCentimeter(double squareCentimeters)
    : value_(squareCentimeters), valid_(1) {}

ZSquareCentimeter::ZSquareCentimeter(const ZString& text) : value_(0.0), valid_(1) {
    setStringWithUnits(text, unitNumber);
}

ZSquareCentimeter::~ZSquareCentimeter() = default;

int ZSquareCentimeter::getUnitId() const {
    return unitSquareCentimeter;
}

void ZSquareCentimeter::setStringWithUnits(const ZString& text, int preferredUnit) {
    readQuantity(text, preferredUnit, unitSquareCentimeter, value_, valid_,
                 [this](double value, int unit) { return setValue(value, unit); });
}

int ZSquareCentimeter::setValue(double value, int unit) {
    return setConverted(Target::squareCentimeter, value, unit, value_, valid_);
}

ZSquareCentimeter::operator ZString() {
    return getString(4, 1);
}

ZSquareCentimeter::operator ZString() const {
    return getString(4, 1);
}

ZString ZSquareCentimeter::getString(int width, int precision) const {
    return displayText(value_, width, precision, L" per sq cm");
}

ZString ZSquareCentimeter::getStringWithUnits(int) const {
    return getString(4, 1);
}

int ZSquareCentimeter::operator==(const ZSquareCentimeter& other) const {
    return value_ == other.value_;
}

int ZSquareCentimeter::operator!=(const ZSquareCentimeter& other) const {
    return !(*this == other);
}

int ZSquareCentimeter::operator<(const ZSquareCentimeter& other) const {
    return value_ < other.value_;
}
