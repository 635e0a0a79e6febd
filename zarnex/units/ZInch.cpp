#include <zarnex/units/ZInch.h>

#include <zarnex/units/ZCentimeter.h>
#include <zarnex/units/ZEmbPoint.h>
#include <zarnex/units/ZMillimeter.h>
#include <zarnex/units/ZSpi.h>
#include <zarnex/units/internal/display.h>
#include <zarnex/units/internal/factors.h>
#include <zarnex/units/internal/labels.h>
#include <zarnex/units/internal/reading.h>

#include <utility>

using namespace zarnex;
using namespace zarnex::detail;

ZInch::ZInch(double inches) : value_(inches), valid_(1) {}

ZInch::ZInch(const ZString& text) : value_(0.0), valid_(1) {
    setStringWithUnits(text, unitNumber);
}

ZInch::~ZInch() = default;

ZInch::ZInch(const ZMillimeter& length) : ZInch() {
    *this = length;
}

ZInch::ZInch(const ZCentimeter& length) : ZInch() {
    *this = length;
}

ZInch::ZInch(const ZEmbPoint& length) : ZInch() {
    *this = length;
}

ZInch::ZInch(const ZSpi& density) : ZInch() {
    *this = density;
}

ZInch& ZInch::operator=(double value) {
    value_ = value;
    valid_ = 1;
    return *this;
}

ZInch& ZInch::operator=(const ZString& text) {
    setStringWithUnits(text, unitNumber);
    return *this;
}

ZInch& ZInch::operator=(const ZMillimeter& length) {
    assignConverted(Target::inch, length, unitMillimeter, value_, valid_);
    return *this;
}

ZInch& ZInch::operator=(const ZCentimeter& length) {
    assignConverted(Target::inch, length, unitCentimeter, value_, valid_);
    return *this;
}

ZInch& ZInch::operator=(const ZEmbPoint& length) {
    assignConverted(Target::inch, length, unitEmbPoint, value_, valid_);
    return *this;
}

ZInch& ZInch::operator=(const ZSpi& density) {
    assignConverted(Target::inch, density, unitSpi, value_, valid_);
    return *this;
}

int ZInch::getUnitId() const {
    return unitInch;
}

void ZInch::setStringWithUnits(const ZString& text, int preferredUnit) {
    readQuantity(text, preferredUnit, unitInch, value_, valid_,
                 [this](double value, int unit) { return setValue(value, unit); });
}

int ZInch::setValue(double value, int unit) {
    return setConverted(Target::inch, value, unit, value_, valid_);
}

ZInch::operator ZString() {
    return getString(4, 2);
}

ZInch::operator ZString() const {
    return getString(4, 2);
}

ZString ZInch::getString(int width, int precision) const {
    return labelledText(value_, width, precision, inchLabel());
}

ZString ZInch::getStringWithUnits(int unit) const {
    switch (unit) {
    case unitMillimeter:
        return textAs<ZMillimeter>(*this);
    case unitEmbPoint:
        return textAs<ZEmbPoint>(*this);
    case unitSpi:
        return textAs<ZSpi>(*this);
    default:
        return getString(4, 2);
    }
}

ZString ZInch::getDensityStringWithUnits(int unit) const {
    return densityTextAs(*this, unit);
}

int ZInch::operator==(const ZInch& other) const {
    return value_ == other.value_;
}

int ZInch::operator!=(const ZInch& other) const {
    return !(*this == other);
}

int ZInch::operator<(const ZInch& other) const {
    return value_ < other.value_;
}

void ZInch::setUnitString(ZString label) {
    inchLabel() = std::move(label);
}
