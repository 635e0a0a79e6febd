#include <zarnex/units/ZEmbPoint.h>

#include <zarnex/geometry/tolerance.h>
#include <zarnex/units/ZCentimeter.h>
#include <zarnex/units/ZInch.h>
#include <zarnex/units/ZMillimeter.h>
#include <zarnex/units/ZSpi.h>
#include <zarnex/units/internal/display.h>
#include <zarnex/units/internal/factors.h>
#include <zarnex/units/internal/reading.h>

#include <cmath>

using namespace zarnex;
using namespace zarnex::detail;

namespace {

// Kept as is: the largest difference, exclusive, that counts as none.
constexpr double pointTolerance = 2.220446049250313e-16;

} // namespace

ZEmbPoint::ZEmbPoint(double points) : value_(points), valid_(1) {}

ZEmbPoint::ZEmbPoint(const ZString& text) : value_(0.0), valid_(1) {
    setStringWithUnits(text, unitNumber);
}

ZEmbPoint::~ZEmbPoint() = default;

ZEmbPoint::ZEmbPoint(const ZMillimeter& length) : ZEmbPoint() {
    *this = length;
}

ZEmbPoint::ZEmbPoint(const ZCentimeter& length) : ZEmbPoint() {
    *this = length;
}

ZEmbPoint::ZEmbPoint(const ZInch& length) : ZEmbPoint() {
    *this = length;
}

ZEmbPoint::ZEmbPoint(const ZSpi& density) : ZEmbPoint() {
    *this = density;
}

ZEmbPoint& ZEmbPoint::operator=(double value) {
    value_ = value;
    valid_ = 1;
    return *this;
}

ZEmbPoint& ZEmbPoint::operator=(const ZString& text) {
    setStringWithUnits(text, unitNumber);
    return *this;
}

ZEmbPoint& ZEmbPoint::operator=(const ZMillimeter& length) {
    assignConverted(Target::embPoint, length, unitMillimeter, value_, valid_);
    return *this;
}

ZEmbPoint& ZEmbPoint::operator=(const ZCentimeter& length) {
    assignConverted(Target::embPoint, length, unitCentimeter, value_, valid_);
    return *this;
}

ZEmbPoint& ZEmbPoint::operator=(const ZInch& length) {
    assignConverted(Target::embPoint, length, unitInch, value_, valid_);
    return *this;
}

ZEmbPoint& ZEmbPoint::operator=(const ZSpi& density) {
    if (IS_ZERO(double(density), 1e-9)) {
        valid_ = 0;
        return *this;
    }
    assignConverted(Target::embPoint, density, unitSpi, value_, valid_);
    return *this;
}

int ZEmbPoint::getUnitId() const {
    return unitEmbPoint;
}

void ZEmbPoint::setStringWithUnits(const ZString& text, int preferredUnit) {
    readQuantity(text, preferredUnit, unitEmbPoint, value_, valid_,
                 [this](double value, int unit) { return setValue(value, unit); });
}

int ZEmbPoint::setValue(double value, int unit) {
    return setConverted(Target::embPoint, value, unit, value_, valid_);
}

ZEmbPoint::operator ZString() {
    return getString(3, 1);
}

ZEmbPoint::operator ZString() const {
    return getString(3, 1);
}

ZString ZEmbPoint::getString(int width, int precision) const {
    return displayText(value_, width, precision, L" pt");
}

ZString ZEmbPoint::getStringWithUnits(int unit) const {
    switch (unit) {
    case unitMillimeter:
        return textAs<ZMillimeter>(*this);
    case unitInch:
        return textAs<ZInch>(*this);
    case unitSpi:
        return textAs<ZSpi>(*this);
    default:
        return getString(3, 1);
    }
}

ZString ZEmbPoint::getDensityStringWithUnits(int unit) const {
    return densityTextAs(*this, unit);
}

int ZEmbPoint::operator==(const ZEmbPoint& other) const {
    return std::fabs(value_ - other.value_) < pointTolerance;
}

int ZEmbPoint::operator!=(const ZEmbPoint& other) const {
    return !(*this == other);
}

int ZEmbPoint::operator<(const ZEmbPoint& other) const {
    return value_ < other.value_;
}
