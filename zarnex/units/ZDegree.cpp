#include <zarnex/units/ZDegree.h>

#include <zarnex/strings/internal/numberReading.h>
#include <zarnex/units/internal/display.h>
#include <zarnex/units/internal/labels.h>
#include <zarnex/units/unitIds.h>

#include <utility>

using namespace zarnex;
using namespace zarnex::detail;

ZDegree::ZDegree(double degrees) : value_(degrees) {}

ZDegree::ZDegree(const ZString& text) : ZDegree(0.0) {
    setStringWithUnits(text, unitNumber);
}

ZDegree::operator double() const {
    return value_;
}

int ZDegree::isValid() const {
    return 1;
}

int ZDegree::getUnitId() const {
    return unitDegree;
}

void ZDegree::setStringWithUnits(const ZString& text, int) {
    value_ = readDouble(text);
}

ZDegree::operator ZString() {
    return getStringWithUnits(unitDegree);
}

ZDegree::operator ZString() const {
    return getStringWithUnits(unitDegree);
}

ZString ZDegree::getStringWithUnits(int) const {
    return labelledText(value_, 4, 1, degreeLabel());
}

int ZDegree::operator==(const ZDegree& other) const {
    return value_ == other.value_;
}

int ZDegree::operator!=(const ZDegree& other) const {
    return !(*this == other);
}

int ZDegree::operator<(const ZDegree& other) const {
    return value_ < other.value_;
}

void ZDegree::setUnitString(ZString label) {
    degreeLabel() = std::move(label);
}
