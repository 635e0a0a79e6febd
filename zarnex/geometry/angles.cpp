#include <zarnex/geometry/angles.h>

#include <zarnex/geometry/formulas.h>
#include <zarnex/geometry/tolerance.h>

#include <cmath>

namespace {

// Kept as is: the short pi of angles. The rotation of points has 3.1415926.
constexpr double straightAngle = 3.141592654;
constexpr double rightAngle = 1.570796327;
constexpr double fullTurn = 6.283185308;
constexpr double angleRadiansPerDegree = 0.017453292522222223; // 3.141592654 / 180

constexpr double onAxisWithin = 1e-6;

using zarnex::detail::Pair;
using zarnex::detail::widened;

// Kept as is: x before y, so that directions are measured clockwise from +y.
double clockwiseFromUp(Pair direction) {
    return std::atan2(direction.x, direction.y);
}

// From the directions in which `a` and `c` see the corner.
double cornerAngle(Pair fromA, Pair fromC) {
    double r = clockwiseFromUp(fromA) - clockwiseFromUp(fromC);
    if (r <= -straightAngle)
        r += fullTurn;
    if (r > straightAngle)
        r -= fullTurn;
    return r;
}

} // namespace

double atan3(double y, double x) {
    if (IS_ZERO(y, onAxisWithin))
        return x > 0.0 ? 0.0 : straightAngle;
    if (IS_ZERO(x, onAxisWithin))
        return y > 0.0 ? rightAngle : -rightAngle;
    return std::atan2(y, x);
}

double angleRad(const DPoint& a, const DPoint& b, const DPoint& c) {
    return cornerAngle(widened(b - a), widened(b - c));
}

double angleRad(const IPoint& a, const IPoint& b, const IPoint& c) {
    return cornerAngle(widened(b - a), widened(b - c));
}

double angleRad(const ZCoord<short>& a, const ZCoord<short>& b, const ZCoord<short>& c) {
    using zarnex::detail::offset;
    return cornerAngle(offset(widened(a), widened(b)), offset(widened(c), widened(b)));
}

double angle(const DPoint& a, const DPoint& b, const DPoint& c) {
    return angleRad(a, b, c) / angleRadiansPerDegree;
}

double angle(const IPoint& a, const IPoint& b, const IPoint& c) {
    return angleRad(a, b, c) / angleRadiansPerDegree;
}

double angle(const ZCoord<short>& a, const ZCoord<short>& b, const ZCoord<short>& c) {
    return angleRad(a, b, c) / angleRadiansPerDegree;
}
