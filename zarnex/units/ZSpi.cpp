#include <zarnex/units/ZSpi.h>

#include <zarnex/units/ZCentimeter.h>
#include <zarnex/units/ZEmbPoint.h>
#include <zarnex/units/ZInch.h>
#include <zarnex/units/ZMillimeter.h>
#include <zarnex/units/ZMillimeterPerSec.h>
#include <zarnex/units/internal/display.h>
#include <zarnex/units/internal/factors.h>
#include <zarnex/units/internal/reading.h>

using namespace zarnex;
using namespace zarnex::detail;

ZSpi::ZSpi(double stitchesPerInch) : value_(stitchesPerInch), valid_(1) {}

ZSpi::ZSpi(const ZString& text) : value_(0.0), valid_(1) {
    setStringWithUnits(text, unitNumber);
}

ZSpi::~ZSpi() = default;

ZSpi::ZSpi(const ZMillimeter& length) : ZSpi() {
    *this = length;
}

ZSpi::ZSpi(const ZMillimeterPerSec& speed) : ZSpi() {
    *this = speed;
}

ZSpi::ZSpi(const ZCentimeter& length) : ZSpi() {
    *this = length;
}

ZSpi::ZSpi(const ZInch& length) : ZSpi() {
    *this = length;
}

ZSpi::ZSpi(const ZEmbPoint& length) : ZSpi() {
    *this = length;
}

ZSpi& ZSpi::operator=(double value) {
    value_ = value;
    valid_ = 1;
    return *this;
}

ZSpi& ZSpi::operator=(const ZString& text) {
    setStringWithUnits(text, unitNumber);
    return *this;
}

ZSpi& ZSpi::operator=(const ZMillimeter& length) {
    assignConverted(Target::spi, length, unitMillimeter, value_, valid_);
    return *this;
}

ZSpi& ZSpi::operator=(const ZMillimeterPerSec& speed) {
    assignConverted(Target::spi, speed, unitMillimeterPerSec, value_, valid_);
    return *this;
}

ZSpi& ZSpi::operator=(const ZCentimeter& length) {
    assignConverted(Target::spi, length, unitCentimeter, value_, valid_);
    return *this;
}

ZSpi& ZSpi::operator=(const ZInch& length) {
    assignConverted(Target::spi, length, unitInch, value_, valid_);
    return *this;
}

ZSpi& ZSpi::operator=(const ZEmbPoint& length) {
    value_ = length == ZEmbPoint(0.0) ? 0.0 : convertAssigned(Target::spi, length, unitEmbPoint);
    valid_ = length.isValid();
    return *this;
}

int ZSpi::getUnitId() const {
    return unitSpi;
}

void ZSpi::setStringWithUnits(const ZString& text, int preferredUnit) {
    readQuantity(text, preferredUnit, unitSpi, value_, valid_,
                 [this](double value, int unit) { return setValue(value, unit); });
}

int ZSpi::setValue(double value, int unit) {
    return setConverted(Target::spi, value, unit, value_, valid_);
}

ZSpi::operator ZString() {
    return getString(3, 1);
}

ZSpi::operator ZString() const {
    return getString(3, 1);
}

ZString ZSpi::getString(int width, int precision) const {
    return displayText(value_, width, precision, L" spi");
}

ZString ZSpi::getStringWithUnits(int unit) const {
    switch (unit) {
    case unitMillimeter:
        return textAs<ZMillimeter>(*this);
    case unitInch:
        return textAs<ZInch>(*this);
    case unitEmbPoint:
        return textAs<ZEmbPoint>(*this);
    default:
        return getString(3, 1);
    }
}

ZString ZSpi::getDensityStringWithUnits(int unit) const {
    return densityTextAs(*this, unit);
}

int ZSpi::operator==(const ZSpi& other) const {
    return value_ == other.value_;
}

int ZSpi::operator!=(const ZSpi& other) const {
    return !(*this == other);
}

int ZSpi::operator<(const ZSpi& other) const {
    return value_ < other.value_;
}
