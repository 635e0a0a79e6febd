#include <zarnex/transforms/elementaryTransforms.h>

#include <zarnex/geometry/tolerance.h>
#include <zarnex/transforms/internal/turns.h>

#include <cmath>
#include <optional>

namespace {

/// The direction of `v` as seen from the x axis.
std::optional<zarnex::detail::Turn> turnTo(const DVector& v) {
    const double length = v.length();
    if (IS_ZERO(length))
        return std::nullopt;
    return zarnex::detail::Turn{v.x / length, v.y / length};
}

Z2DTrans rotation(const std::optional<zarnex::detail::Turn>& turn) {
    if (!turn)
        return Z2DTrans();
    return Z2DTrans(DVector(turn->x, -turn->y), DVector(turn->y, turn->x));
}

} // namespace

Z2DRotate::Z2DRotate() {}

Z2DRotate::Z2DRotate(const Z2DRotate&) = default;

Z2DRotate::Z2DRotate(double angle)
    : Z2DTrans(rotation(zarnex::detail::Turn{std::cos(angle), std::sin(angle)})) {}

Z2DRotate::Z2DRotate(const DVector& v) : Z2DTrans(rotation(turnTo(v))) {}

Z2DRotate::Z2DRotate(const DVector& u, const DVector& v)
    : Z2DTrans(rotation(zarnex::detail::turnBetween(u, v))) {}

Z2DRotate::~Z2DRotate() {}

Z2DRotate& Z2DRotate::operator=(const Z2DRotate&) = default;

Z2DRotate& Z2DRotate::operator=(const ZMatrix<double>& other) {
    Z2DTrans::operator=(other);
    return *this;
}

Z2DXScale::Z2DXScale() {}

Z2DXScale::Z2DXScale(const Z2DXScale&) = default;

Z2DXScale::Z2DXScale(double s) : Z2DTrans(DVector(s, 0.0), DVector(0.0, 1.0)) {}

Z2DXScale::~Z2DXScale() {}

Z2DXScale& Z2DXScale::operator=(const Z2DXScale&) = default;

Z2DXScale& Z2DXScale::operator=(const ZMatrix<double>& other) {
    Z2DTrans::operator=(other);
    return *this;
}

Z2DYScale::Z2DYScale() {}

Z2DYScale::Z2DYScale(const Z2DYScale&) = default;

Z2DYScale::Z2DYScale(double s) : Z2DTrans(DVector(1.0, 0.0), DVector(0.0, s)) {}

Z2DYScale::~Z2DYScale() {}

Z2DYScale& Z2DYScale::operator=(const Z2DYScale&) = default;

Z2DYScale& Z2DYScale::operator=(const ZMatrix<double>& other) {
    Z2DTrans::operator=(other);
    return *this;
}

Z2DXShear::Z2DXShear() {}

Z2DXShear::Z2DXShear(const Z2DXShear&) = default;

Z2DXShear::Z2DXShear(double k) : Z2DTrans(DVector(1.0, k), DVector(0.0, 1.0)) {}

Z2DXShear::~Z2DXShear() {}

Z2DXShear& Z2DXShear::operator=(const Z2DXShear&) = default;

Z2DXShear& Z2DXShear::operator=(const ZMatrix<double>& other) {
    Z2DTrans::operator=(other);
    return *this;
}

Z2DYShear::Z2DYShear() {}

Z2DYShear::Z2DYShear(const Z2DYShear&) = default;

Z2DYShear::Z2DYShear(double k) : Z2DTrans(DVector(1.0, 0.0), DVector(k, 1.0)) {}

Z2DYShear::~Z2DYShear() {}

Z2DYShear& Z2DYShear::operator=(const Z2DYShear&) = default;

Z2DYShear& Z2DYShear::operator=(const ZMatrix<double>& other) {
    Z2DTrans::operator=(other);
    return *this;
}
