#include <zarnex/units/ZMillimeter.h>

#include <zarnex/geometry/rounding.h>
#include <zarnex/geometry/tolerance.h>
#include <zarnex/units/ZCentimeter.h>
#include <zarnex/units/ZEmbPoint.h>
#include <zarnex/units/ZInch.h>
#include <zarnex/units/ZSpi.h>
#include <zarnex/units/internal/display.h>
#include <zarnex/units/internal/factors.h>
#include <zarnex/units/internal/labels.h>
#include <zarnex/units/internal/reading.h>

#include <cmath>
#include <utility>

using namespace zarnex;
using namespace zarnex::detail;

ZMillimeter::ZMillimeter(double millimeters) : value_(millimeters), valid_(1) {}

ZMillimeter::ZMillimeter(const ZString& text) : value_(0.0), valid_(1) {
    setStringWithUnits(text, unitNumber);
}

ZMillimeter::ZMillimeter(const ZCentimeter& length) : ZMillimeter() {
    *this = length;
}

ZMillimeter::ZMillimeter(const ZInch& length) : ZMillimeter() {
    *this = length;
}

ZMillimeter::ZMillimeter(const ZEmbPoint& length) : ZMillimeter() {
    *this = length;
}

ZMillimeter::ZMillimeter(const ZSpi& density) : ZMillimeter() {
    *this = density;
}

ZMillimeter& ZMillimeter::operator=(double value) {
    value_ = value;
    valid_ = 1;
    return *this;
}

ZMillimeter& ZMillimeter::operator=(const ZString& text) {
    setStringWithUnits(text, unitNumber);
    return *this;
}

ZMillimeter& ZMillimeter::operator=(const ZCentimeter& length) {
    assignConverted(Target::millimeter, length, unitCentimeter, value_, valid_);
    return *this;
}

ZMillimeter& ZMillimeter::operator=(const ZInch& length) {
    assignConverted(Target::millimeter, length, unitInch, value_, valid_);
    return *this;
}

ZMillimeter& ZMillimeter::operator=(const ZEmbPoint& length) {
    assignConverted(Target::millimeter, length, unitEmbPoint, value_, valid_);
    return *this;
}

ZMillimeter& ZMillimeter::operator=(const ZSpi& density) {
    assignConverted(Target::millimeter, density, unitSpi, value_, valid_);
    return *this;
}

int ZMillimeter::getUnitId() const {
    return unitMillimeter;
}

void ZMillimeter::setStringWithUnits(const ZString& text, int preferredUnit) {
    readQuantity(text, preferredUnit, unitMillimeter, value_, valid_,
                 [this](double value, int unit) { return setValue(value, unit); });
}

int ZMillimeter::setValue(double value, int unit) {
    return setConverted(Target::millimeter, value, unit, value_, valid_);
}

ZMillimeter::operator ZString() {
    return getString();
}

ZMillimeter::operator ZString() const {
    return getString(4, 1);
}

ZString ZMillimeter::getString() const {
    const int hundredths = truncateToInt(std::round(value_ * 100.0));
    return getString(4, decimalsFor(hundredths));
}

ZString ZMillimeter::getString(int width, int precision) const {
    return labelledText(value_, width, precision, millimeterLabel());
}

ZString ZMillimeter::getDensityString(int width, int precision) const {
    return getString(width, precision);
}

ZString ZMillimeter::getStringWithUnits(int unit) const {
    switch (unit) {
    case unitInch:
        return textAs<ZInch>(*this);
    case unitEmbPoint:
        return textAs<ZEmbPoint>(*this);
    case unitSpi:
        return textAs<ZSpi>(*this);
    default:
        return getString();
    }
}

ZString ZMillimeter::getDensityStringWithUnits(int unit) const {
    return unit == unitMillimeter ? getDensityString(4, 2) : getStringWithUnits(unit);
}

int ZMillimeter::operator==(const ZMillimeter& other) const {
    return IS_EQUAL(value_, other.value_, 1e-9);
}

int ZMillimeter::operator!=(const ZMillimeter& other) const {
    return !(*this == other);
}

int ZMillimeter::operator<(const ZMillimeter& other) const {
    return value_ < other.value_;
}

void ZMillimeter::setUnitString(ZString label) {
    millimeterLabel() = std::move(label);
}
