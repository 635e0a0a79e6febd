#include <zarnex/units/ZMillimeterPerSec.h>

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

#include <utility>

using namespace zarnex;
using namespace zarnex::detail;

ZMillimeterPerSec::ZMillimeterPerSec(double millimetersPerSec)
    : value_(millimetersPerSec), valid_(1) {}

ZMillimeterPerSec::ZMillimeterPerSec(const ZString& text) : value_(0.0), valid_(1) {
    setStringWithUnits(text, unitNumber);
}

ZMillimeterPerSec::ZMillimeterPerSec(const ZCentimeter& length) : ZMillimeterPerSec() {
    *this = length;
}

ZMillimeterPerSec::ZMillimeterPerSec(const ZEmbPoint& length) : ZMillimeterPerSec() {
    *this = length;
}

ZMillimeterPerSec::ZMillimeterPerSec(const ZInch& length) : ZMillimeterPerSec() {
    *this = length;
}

ZMillimeterPerSec::ZMillimeterPerSec(const ZSpi& density) : ZMillimeterPerSec() {
    *this = density;
}

ZMillimeterPerSec& ZMillimeterPerSec::operator=(double value) {
    value_ = value;
    valid_ = 1;
    return *this;
}

ZMillimeterPerSec& ZMillimeterPerSec::operator=(const ZString& text) {
    setStringWithUnits(text, unitNumber);
    return *this;
}

// By the row of millimetres: that of speeds refuses the units which are assigned here.

ZMillimeterPerSec& ZMillimeterPerSec::operator=(const ZCentimeter& length) {
    assignConverted(Target::millimeter, length, unitCentimeter, value_, valid_);
    return *this;
}

ZMillimeterPerSec& ZMillimeterPerSec::operator=(const ZEmbPoint& length) {
    assignConverted(Target::millimeter, length, unitEmbPoint, value_, valid_);
    return *this;
}

ZMillimeterPerSec& ZMillimeterPerSec::operator=(const ZInch& length) {
    assignConverted(Target::millimeter, length, unitInch, value_, valid_);
    return *this;
}

ZMillimeterPerSec& ZMillimeterPerSec::operator=(const ZSpi& density) {
    assignConverted(Target::millimeter, density, unitSpi, value_, valid_);
    return *this;
}

int ZMillimeterPerSec::getUnitId() const {
    return unitMillimeterPerSec;
}

void ZMillimeterPerSec::setStringWithUnits(const ZString& text, int preferredUnit) {
    readQuantity(text, preferredUnit, unitMillimeterPerSec, value_, valid_,
                 [this](double value, int unit) { return setValue(value, unit); });
}

int ZMillimeterPerSec::setValue(double value, int unit) {
    return setConverted(Target::millimeterPerSec, value, unit, value_, valid_);
}

ZMillimeterPerSec::operator ZString() {
    return getString();
}

ZMillimeterPerSec::operator ZString() const {
    return getString(4, 2);
}

ZString ZMillimeterPerSec::getString() const {
    // In "%4.*2f" the 2 is a further digit of the precision.
    const int precision = 10 * decimalsFor(truncateToInt(value_ * 100.0)) + 2;
    return getString(4, precision);
}

ZString ZMillimeterPerSec::getString(int width, int precision) const {
    return labelledText(value_, width, precision, millimeterPerSecLabel());
}

ZString ZMillimeterPerSec::getDensityString(int width, int precision) const {
    return getString(width, precision);
}

ZString ZMillimeterPerSec::getStringWithUnits(int) const {
    return getString();
}

ZString ZMillimeterPerSec::getDensityStringWithUnits(int unit) const {
    return unit == unitMillimeter ? getDensityString(4, 2) : getString();
}

int ZMillimeterPerSec::operator==(const ZMillimeterPerSec& other) const {
    return IS_EQUAL(value_, other.value_, 1e-9);
}

int ZMillimeterPerSec::operator!=(const ZMillimeterPerSec& other) const {
    return !(*this == other);
}

int ZMillimeterPerSec::operator<(const ZMillimeterPerSec& other) const {
    return value_ < other.value_;
}

void ZMillimeterPerSec::setUnitString(ZString label) {
    millimeterPerSecLabel() = std::move(label);
}
