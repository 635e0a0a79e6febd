#include <zarnex/transforms/Z2DTrans.h>

#include <zarnex/geometry/rounding.h>
#include <zarnex/geometry/tolerance.h>
#include <zarnex/transforms/internal/turns.h>

namespace {

using zarnex::detail::Elements;
using zarnex::detail::Turn;

/// 3.141592654 / 180, which is not the nearest double to the true value.
constexpr double radiansPerDegree = 0.017453292522222223;

/// `m` followed by `turn`.
Elements turned(const Elements& m, const Turn& turn) {
    return zarnex::detail::product({turn.x, -turn.y, turn.y, turn.x}, m);
}

} // namespace

Z2DTrans::Z2DTrans() {}

Z2DTrans::Z2DTrans(const Z2DTrans&) = default;

Z2DTrans::Z2DTrans(const DVector& a, const DVector& b) {
    if (isWhole())
        setElements({a.x, a.y, b.x, b.y});
}

Z2DTrans::~Z2DTrans() {}

Z2DTrans& Z2DTrans::operator=(const ZMatrix<double>& other) {
    Z2DMatrix<double>::operator=(other);
    return *this;
}

Z2DTrans& Z2DTrans::rotate(double angle) {
    if (isWhole())
        setElements(turned(elements(), {std::cos(angle), std::sin(angle)}));
    return *this;
}

Z2DTrans& Z2DTrans::rotateInDegree(double degrees) {
    return rotate(degrees * radiansPerDegree);
}

Z2DTrans& Z2DTrans::rotate(const DVector& v) {
    const double length = v.length();
    if (IS_ZERO(length) || !isWhole())
        return *this;
    const DVector xAxis(1.0, 0.0);
    setElements(turned(elements(), {v * xAxis / length, xAxis.cross(v) / length}));
    return *this;
}

Z2DTrans& Z2DTrans::rotate(const DVector& u, const DVector& v) {
    const auto turn = zarnex::detail::turnBetween(u, v);
    if (turn && isWhole())
        setElements(turned(elements(), *turn));
    return *this;
}

int Z2DTrans::split(Z2DTrans& rest, double& sx, double& sy, int& nx, int& ny) const {
    const double d = det();
    if (IS_ZERO(d) || d < 0.0 || nx < 1 || ny < 1 || !isWhole())
        return 1;
    const Elements m = elements();
    const double x1 = (m.m00 * m.m00 + m.m10 * m.m10) * nx;
    const double x2 = (m.m01 * m.m01 + m.m11 * m.m11) * ny;
    if (IS_ZERO(x1) || IS_ZERO(x2))
        return 1;
    const int ix = zarnex::truncateToInt(std::sqrt(x1));
    const int iy = zarnex::truncateToInt(std::sqrt(x2));
    const double fx = static_cast<double>(ix) / nx;
    const double fy = static_cast<double>(iy) / ny;
    sx = fx;
    sy = fy;
    if (IS_ZERO(fx) || IS_ZERO(fy))
        return 1;
    nx = ix;
    ny = iy;
    rest = *this; // also where rest has another shape
    if (rest.isWhole())
        rest.setElements({m.m00 / fx, m.m01 / fy, m.m10 / fx, m.m11 / fy});
    return 0;
}
