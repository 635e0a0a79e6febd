#include <zarnex/geometry/GPoint.h>

#include <zarnex/geometry/rounding.h>
#include <zarnex/platform/points.h>

#include <iostream>

GPoint::~GPoint() = default;

GPoint::GPoint(tagPOINT p) : ZTPoint<double>(p.x, p.y) {}

GPoint::operator tagPOINT() const {
    return {zarnex::truncateToInt(x), zarnex::truncateToInt(y)};
}

void GPoint::show() const {
    std::cout << "( " << x << " , " << y << " )\n";
}
