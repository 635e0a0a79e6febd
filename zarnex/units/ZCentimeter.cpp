#include <zarnex/units/ZCentimeter.h>

#include <zarnex/units/ZEmbPoint.h>
#include <zarnex/units/ZInch.h>
#include <zarnex/units/ZMillimeter.h>
#include <zarnex/units/ZSpi.h>
#include <zarnex/units/internal/display.h>
#include <zarnex/units/internal/factors.h>
#include <zarnex/units/internal/reading.h>

#include <utility>

using namespace zarnex;
using namespace zarnex::detail;

ZCentimeter::ZCentimeter(double centimeters) : ZCentimeter(centimeters, L"cm", unitCentimeter) {}

ZCentimeter::ZCentimeter(const ZString& text) : ZCentimeter() {
    ZCentimeter::setStringWithUnits(text, unitNumber);
}

ZCentimeter::ZCentimeter(double value, const wchar_t* label, int unitId)
    : value_(value), valid_(1), unitId_(unitId), label_(label) {}

ZCentimeter& ZCentimeter::operator=(const ZCentimeter& other) {
    value_ = other.value_;
    valid_ = other.valid_;
    return *this;
}

ZCentimeter::~ZCentimeter() = default;

ZCentimeter::ZCentimeter(const ZMillimeter& length) : ZCentimeter() {
    *this = length;
}

ZCentimeter::ZCentimeter(const ZInch& length) : ZCentimeter() {
    *this = length;
}

ZCentimeter::ZCentimeter(const ZEmbPoint& length) : ZCentimeter() {
    *this = length;
}

ZCentimeter::ZCentimeter(const ZSpi& density) : ZCentimeter() {
    *this = density;
}

ZCentimeter& ZCentimeter::operator=(double value) {
    value_ = value;
    valid_ = 1;
    return *this;
}

ZCentimeter& ZCentimeter::operator=(const ZString& text) {
    setStringWithUnits(text, unitNumber);
    return *this;
}

ZCentimeter& ZCentimeter::operator=(const ZMillimeter& length) {
    assignConverted(Target::centimeter, length, unitMillimeter, value_, valid_);
    return *this;
}

ZCentimeter& ZCentimeter::operator=(const ZInch& length) {
    assignConverted(Target::centimeter, length, unitInch, value_, valid_);
    return *this;
}

ZCentimeter& ZCentimeter::operator=(const ZEmbPoint& length) {
    assignConverted(Target::centimeter, length, unitEmbPoint, value_, valid_);
    return *this;
}

ZCentimeter& ZCentimeter::operator=(const ZSpi& density) {
    assignConverted(Target::centimeter, density, unitSpi, value_, valid_);
    return *this;
}

int ZCentimeter::getUnitId() const {
    return unitId_;
}

void ZCentimeter::setStringWithUnits(const ZString& text, int preferredUnit) {
    readQuantity(text, preferredUnit, unitId_, value_, valid_,
                 [this](double value, int unit) { return setValue(value, unit); });
}

int ZCentimeter::setValue(double value, int unit) {
    return setConverted(Target::centimeter, value, unit, value_, valid_);
}

ZCentimeter::operator ZString() {
    return displayed(1);
}

ZCentimeter::operator ZString() const {
    return displayed(1);
}

ZString ZCentimeter::getString(int width, int precision) const {
    return labelledText(value_, width, precision, label_);
}

ZString ZCentimeter::displayed(int precision) const {
    return getString(4, precision);
}

ZString ZCentimeter::getStringWithUnits(int unit) {
    switch (unit) {
    case unitMillimeter:
        return textAs<ZMillimeter>(*this);
    case unitCentimeter:
        return textAs<ZCentimeter>(*this);
    case unitInch:
        return textAs<ZInch>(*this);
    case unitEmbPoint:
        return textAs<ZEmbPoint>(*this);
    case unitSpi:
        return textAs<ZSpi>(*this);
    default:
        return operator ZString();
    }
}

ZString ZCentimeter::getDensityStringWithUnits(int unit) {
    return densityTextAs(*this, unit);
}

// No virtual operation of the library changes the object; that of a host that does
// must not be handed const objects.
ZString ZCentimeter::getStringWithUnits(int unit) const {
    return const_cast<ZCentimeter*>(this)->getStringWithUnits(unit);
}

ZString ZCentimeter::getDensityStringWithUnits(int unit) const {
    return const_cast<ZCentimeter*>(this)->getDensityStringWithUnits(unit);
}

int ZCentimeter::operator==(const ZCentimeter& other) const {
    return value_ == other.value_;
}

int ZCentimeter::operator!=(const ZCentimeter& other) const {
    return !(*this == other);
}

int ZCentimeter::operator<(const ZCentimeter& other) const {
    return value_ < other.value_;
}

void ZCentimeter::setUnitString(ZString label) {
    label_ = std::move(label);
}
