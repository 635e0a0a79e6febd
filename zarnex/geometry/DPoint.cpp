#include <zarnex/geometry/DPoint.h>

DPoint& DPoint::roundScale(double sx, double sy) {
    using namespace zarnex::detail;
    return *this = rounded<DPoint>(scaled(widened(*this), sx, sy));
}

DPoint& DPoint::rotate(double degrees, const DPoint& centre) {
    using namespace zarnex::detail;
    return *this = truncated<DPoint>(rotated(widened(*this), degrees, widened(centre)));
}

DPoint& DPoint::matrixRot(const double m[2][3], double z) {
    using namespace zarnex::detail;
    if (m == nullptr)
        return *this;
    return *this = rounded<DPoint>(mapped(widened(*this), m, z));
}

DPoint& DPoint::mirror(const DPoint& a, const DPoint& b) {
    using namespace zarnex::detail;
    return *this = truncated<DPoint>(mirrored(widened(*this), widened(a), widened(b)));
}

template class ZList<DPoint>;
template class ZXArray<DPoint>;
