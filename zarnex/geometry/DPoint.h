#pragma once

#include <zarnex/config.h>
#include <zarnex/containers/ZList.h>
#include <zarnex/containers/ZXArray.h>
#include <zarnex/geometry/DVector.h>
#include <zarnex/geometry/formulas.h>

/// A place in the plane, in double precision.
///
/// A plain value of two doubles. A point minus a point is a vector, a point plus a
/// vector is a point.
///
///     DPoint needle(10.0, 0.0);
///     needle += DVector(0.0, 2.5);
///     needle.rotate(90.0, DPoint(0.0, 0.0)); // about (-2.5, 10)
///
/// Angles turn counter-clockwise with y growing upward. Overflow and NaN follow
/// IEEE arithmetic in every member. Members that change the point return it.
class ZARNEX_API DPoint {
public:
    /// The coordinates, in a unit of the host's choice.
    /// @{
    double x;
    double y;
    /// @}

    /// The origin.
    DPoint();
    DPoint(double x, double y); ///< the place (x, y)

    /// Both coordinates, as they are.
    /// @{
    DPoint(const DPoint&) = default;
    DPoint& operator=(const DPoint&) = default;
    /// @}

    /// A coordinate, to read or to write.
    /// @{
    double& xval();
    double& yval();
    double xval() const;
    double yval() const;
    /// @}

    /// Coordinate by coordinate. The difference of two points is the vector from `p` to this
    /// one.
    /// @{
    DPoint operator+(const DPoint& p) const;
    DPoint operator+(const DVector& v) const;
    DVector operator-(const DPoint& p) const;
    DPoint operator-(const DVector& v) const;
    DPoint operator-() const;
    /// @}

    /// The same in place; a reference to the point is returned.
    /// @{
    DPoint& operator+=(const DPoint& p);
    DPoint& operator+=(const DVector& v);
    DPoint& operator-=(const DPoint& p);
    DPoint& operator-=(const DVector& v);
    /// @}

    DPoint operator*(const double& s) const; ///< both coordinates times `s`

    /// Both coordinates over `d`, with infinities or NaN for a `d` of 0.
    DPoint operator/(const double& d) const;

    /// 1 if both coordinates differ by less than 1e-11, else 0; 0 with a NaN or an
    /// infinity on either side.
    ///
    /// Kept as is: a strict bound, although the tests in tolerance.h are inclusive. Not
    /// transitive: no order or hash for containers can agree with it.
    int operator==(const DPoint& p) const;
    int operator!=(const DPoint& p) const; ///< 1 where == gives 0, else 0

    /// 1 if it holds in x and in y, else 0.
    ///
    /// Kept as is: dominance, not an order. Each holds when it holds for x and for
    /// y, exactly, so that two points can be neither less, equal nor greater. Do not
    /// sort by it.
    /// @{
    int operator<(const DPoint& p) const;
    int operator<=(const DPoint& p) const;
    int operator>(const DPoint& p) const;
    int operator>=(const DPoint& p) const;
    /// @}

    /// The length of the straight way to `p`: the root of squaredDistance().
    double distance(const DPoint& p) const;

    /// The squares of the differences in x and in y, summed.
    double squaredDistance(const DPoint& p) const;

    /// The sum of the sizes of the differences in x and in y.
    double manhattanDistance(const DPoint& p) const;

    /// Adds (dx, dy) in place.
    DPoint& translate(double dx, double dy);

    /// Multiplies x by `sx` and y by `sy` in place.
    DPoint& scale(double sx, double sy);

    /// Multiplies x by `sx` and y by `sy` in place and rounds the products.
    ///
    /// Kept as is: scale() that leaves the point on the integer grid, each product
    /// rounded with halves away from zero (see zarnex::roundHalfAway).
    DPoint& roundScale(double sx, double sy);

    /// Turns the point by `degrees` about `centre`. Z2DTrans::rotate() takes radians.
    ///
    /// Kept as is: pi is 3.1415926 here, so that a quarter turn of (1, 0) about the
    /// origin ends at x = 2.7e-8; angle() has 3.141592654.
    DPoint& rotate(double degrees, const DPoint& centre);

    /// Maps the point by the rows of `m`: x becomes x * m[0][0] + y * m[0][1] +
    /// m[0][2] * z, and y the same with m[1]. Nothing for a null `m`.
    ///
    /// Kept as is: the result is rounded to the integer grid as in roundScale().
    DPoint& matrixRot(const double m[2][3], double z);

    /// Reflects the point about the line through `a` and `b`; about the horizontal
    /// through `a` where they are equal.
    ///
    /// Kept as is: about a line that is neither horizontal nor vertical, the foot of
    /// the perpendicular is rounded to the integer grid, halves away from zero.
    DPoint& mirror(const DPoint& a, const DPoint& b);
};

ZARNEX_INLINE DPoint::DPoint() : x(0.0), y(0.0) {}

ZARNEX_INLINE DPoint::DPoint(double xValue, double yValue) : x(xValue), y(yValue) {}

ZARNEX_INLINE double& DPoint::xval() {
    return x;
}

ZARNEX_INLINE double& DPoint::yval() {
    return y;
}

ZARNEX_INLINE double DPoint::xval() const {
    return x;
}

ZARNEX_INLINE double DPoint::yval() const {
    return y;
}

ZARNEX_INLINE DPoint DPoint::operator+(const DPoint& p) const {
    return DPoint(x + p.x, y + p.y);
}

ZARNEX_INLINE DPoint DPoint::operator+(const DVector& v) const {
    return DPoint(x + v.x, y + v.y);
}

ZARNEX_INLINE DVector DPoint::operator-(const DPoint& p) const {
    return DVector(x - p.x, y - p.y);
}

ZARNEX_INLINE DPoint DPoint::operator-(const DVector& v) const {
    return DPoint(x - v.x, y - v.y);
}

ZARNEX_INLINE DPoint DPoint::operator-() const {
    return DPoint(-x, -y);
}

ZARNEX_INLINE DPoint& DPoint::operator+=(const DPoint& p) {
    return *this = *this + p;
}

ZARNEX_INLINE DPoint& DPoint::operator+=(const DVector& v) {
    return *this = *this + v;
}

ZARNEX_INLINE DPoint& DPoint::operator-=(const DPoint& p) {
    return *this = DPoint(x - p.x, y - p.y);
}

ZARNEX_INLINE DPoint& DPoint::operator-=(const DVector& v) {
    return *this = *this - v;
}

ZARNEX_INLINE DPoint DPoint::operator*(const double& s) const {
    return DPoint(x * s, y * s);
}

ZARNEX_INLINE DPoint DPoint::operator/(const double& d) const {
    return DPoint(x / d, y / d);
}

ZARNEX_INLINE int DPoint::operator==(const DPoint& p) const {
    namespace detail = zarnex::detail;
    return detail::sameWithinTolerance(detail::widened(*this), detail::widened(p));
}

ZARNEX_INLINE int DPoint::operator!=(const DPoint& p) const {
    return !(*this == p);
}

ZARNEX_INLINE int DPoint::operator<(const DPoint& p) const {
    return x < p.x && y < p.y;
}

ZARNEX_INLINE int DPoint::operator<=(const DPoint& p) const {
    return x <= p.x && y <= p.y;
}

ZARNEX_INLINE int DPoint::operator>(const DPoint& p) const {
    return x > p.x && y > p.y;
}

ZARNEX_INLINE int DPoint::operator>=(const DPoint& p) const {
    return x >= p.x && y >= p.y;
}

ZARNEX_INLINE double DPoint::distance(const DPoint& p) const {
    namespace detail = zarnex::detail;
    return detail::length(detail::offset(detail::widened(*this), detail::widened(p)));
}

ZARNEX_INLINE double DPoint::squaredDistance(const DPoint& p) const {
    namespace detail = zarnex::detail;
    const detail::Pair d = detail::offset(detail::widened(*this), detail::widened(p));
    return detail::dot(d, d);
}

ZARNEX_INLINE double DPoint::manhattanDistance(const DPoint& p) const {
    namespace detail = zarnex::detail;
    return detail::manhattanLength(detail::offset(detail::widened(*this), detail::widened(p)));
}

ZARNEX_INLINE DPoint& DPoint::translate(double dx, double dy) {
    return *this = DPoint(x + dx, y + dy);
}

ZARNEX_INLINE DPoint& DPoint::scale(double sx, double sy) {
    return *this = DPoint(x * sx, y * sy);
}

extern template class ZARNEX_API ZList<DPoint>;
extern template class ZARNEX_API ZXArray<DPoint>;
