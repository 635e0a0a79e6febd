#include <zarnex/geometry/IPoint.h>

IPoint& IPoint::roundScale(double sx, double sy) {
    using namespace zarnex::detail;
    return *this = rounded<IPoint>(scaled(widened(*this), sx, sy));
}

IPoint& IPoint::rotate(double degrees, const IPoint& centre) {
    using namespace zarnex::detail;
    return *this = truncated<IPoint>(rotated(widened(*this), degrees, widened(centre)));
}

IPoint& IPoint::matrixRot(const double m[2][3], double z) {
    using namespace zarnex::detail;
    if (m == nullptr)
        return *this;
    return *this = rounded<IPoint>(mapped(widened(*this), m, z));
}

IPoint& IPoint::mirror(const IPoint& a, const IPoint& b) {
    using namespace zarnex::detail;
    return *this = truncated<IPoint>(mirrored(widened(*this), widened(a), widened(b)));
}

template class ZList<IPoint>;
template class ZList<ZList<IPoint>*>;
