#pragma once

#include <zarnex/config.h>
#include <zarnex/containers/ZList.h>
#include <zarnex/geometry/IVector.h>
#include <zarnex/geometry/formulas.h>

/// A place in the plane, in 32-bit integers.
///
/// Sums, differences and negation wrap. Everything else is computed in doubles from
/// the exact coordinates; where the result is a point again its coordinates are
/// truncated toward zero unless said, the nearest int where they do not fit and 0
/// for NaN.
///
/// Members say what differs from DPoint, where each is described.
class ZARNEX_API IPoint {
public:
    /// The coordinates, in a unit of the host's choice.
    /// @{
    int x;
    int y;
    /// @}

    /// The origin.
    IPoint();
    IPoint(int x, int y); ///< the place (x, y)

    /// Both coordinates, as they are.
    /// @{
    IPoint(const IPoint&) = default;
    IPoint& operator=(const IPoint&) = default;
    /// @}

    /// A coordinate, to read or to write.
    /// @{
    int& xval();
    int& yval();
    int xval() const;
    int yval() const;
    /// @}

    /// Coordinate by coordinate; each wraps. The difference of two points is the vector from
    /// `p` to this one.
    /// @{
    IPoint operator+(const IPoint& p) const;
    IPoint operator+(const IVector& v) const;
    IVector operator-(const IPoint& p) const;
    IPoint operator-(const IVector& v) const;
    IPoint operator-() const;
    /// @}

    /// The same in place; a reference to the point is returned.
    /// @{
    IPoint& operator+=(const IPoint& p);
    IPoint& operator+=(const IVector& v);
    IPoint& operator-=(const IPoint& p);
    IPoint& operator-=(const IVector& v);
    /// @}

    /// Both coordinates times `s`, or over `d`, truncated. Over 0 a coordinate other than 0
    /// becomes the least or the greatest, and 0 stays 0.
    /// @{
    IPoint operator*(const double& s) const;
    IPoint operator/(const double& d) const;
    /// @}

    /// 1 if both coordinates are exactly equal, else 0.
    int operator==(const IPoint& p) const;
    int operator!=(const IPoint& p) const; ///< 1 where == gives 0, else 0

    /// 1 if it holds in x and in y, else 0.
    ///
    /// Kept as is: dominance, not an order. Each holds when it holds for x and for
    /// y, so that two points can be neither less, equal nor greater. Do not sort by it.
    /// @{
    int operator<(const IPoint& p) const;
    int operator<=(const IPoint& p) const;
    int operator>(const IPoint& p) const;
    int operator>=(const IPoint& p) const;
    /// @}

    /// The length of the straight way to `p`, its square, and the sum of the sizes of the
    /// differences in x and in y. Nothing wraps or is truncated.
    /// @{
    double distance(const IPoint& p) const;
    double squaredDistance(const IPoint& p) const;
    double manhattanDistance(const IPoint& p) const;
    /// @}

    /// Adds (dx, dy) in place.
    ///
    /// Kept as is: the sums are truncated toward zero, although + wraps and a
    /// ZCoord is moved by integers.
    IPoint& translate(double dx, double dy);

    /// Multiplies x by `sx` and y by `sy` in place and truncates the products.
    IPoint& scale(double sx, double sy);

    /// scale() with the products rounded, halves away from zero.
    IPoint& roundScale(double sx, double sy);

    /// Turns the point by `degrees` about `centre`.
    ///
    /// Kept as is: truncates the result toward zero, although roundScale() and
    /// matrixRot() round, and with the short pi of DPoint::rotate: (10, 0) turned by
    /// 90 about the origin is (0, 9).
    IPoint& rotate(double degrees, const IPoint& centre);

    /// Rounds the result, halves away from zero.
    IPoint& matrixRot(const double m[2][3], double z);

    /// Reflects the point about the line through `a` and `b`; about the horizontal through
    /// `a` where they are equal. The result is truncated.
    IPoint& mirror(const IPoint& a, const IPoint& b);
};

ZARNEX_INLINE IPoint::IPoint() : x(0), y(0) {}

ZARNEX_INLINE IPoint::IPoint(int xValue, int yValue) : x(xValue), y(yValue) {}

ZARNEX_INLINE int& IPoint::xval() {
    return x;
}

ZARNEX_INLINE int& IPoint::yval() {
    return y;
}

ZARNEX_INLINE int IPoint::xval() const {
    return x;
}

ZARNEX_INLINE int IPoint::yval() const {
    return y;
}

ZARNEX_INLINE IPoint IPoint::operator+(const IPoint& p) const {
    namespace detail = zarnex::detail;
    return IPoint(detail::sum(x, p.x), detail::sum(y, p.y));
}

ZARNEX_INLINE IPoint IPoint::operator+(const IVector& v) const {
    namespace detail = zarnex::detail;
    return IPoint(detail::sum(x, v.x), detail::sum(y, v.y));
}

ZARNEX_INLINE IVector IPoint::operator-(const IPoint& p) const {
    namespace detail = zarnex::detail;
    return IVector(detail::difference(x, p.x), detail::difference(y, p.y));
}

ZARNEX_INLINE IPoint IPoint::operator-(const IVector& v) const {
    namespace detail = zarnex::detail;
    return IPoint(detail::difference(x, v.x), detail::difference(y, v.y));
}

ZARNEX_INLINE IPoint IPoint::operator-() const {
    namespace detail = zarnex::detail;
    return IPoint(detail::negated(x), detail::negated(y));
}

ZARNEX_INLINE IPoint& IPoint::operator+=(const IPoint& p) {
    return *this = *this + p;
}

ZARNEX_INLINE IPoint& IPoint::operator+=(const IVector& v) {
    return *this = *this + v;
}

ZARNEX_INLINE IPoint& IPoint::operator-=(const IPoint& p) {
    namespace detail = zarnex::detail;
    return *this = IPoint(detail::difference(x, p.x), detail::difference(y, p.y));
}

ZARNEX_INLINE IPoint& IPoint::operator-=(const IVector& v) {
    return *this = *this - v;
}

ZARNEX_INLINE IPoint IPoint::operator*(const double& s) const {
    namespace detail = zarnex::detail;
    return detail::truncated<IPoint>(detail::scaled(detail::widened(*this), s, s));
}

ZARNEX_INLINE IPoint IPoint::operator/(const double& d) const {
    namespace detail = zarnex::detail;
    return detail::truncated<IPoint>(detail::divided(detail::widened(*this), d));
}

ZARNEX_INLINE int IPoint::operator==(const IPoint& p) const {
    return x == p.x && y == p.y;
}

ZARNEX_INLINE int IPoint::operator!=(const IPoint& p) const {
    return !(*this == p);
}

ZARNEX_INLINE int IPoint::operator<(const IPoint& p) const {
    return x < p.x && y < p.y;
}

ZARNEX_INLINE int IPoint::operator<=(const IPoint& p) const {
    return x <= p.x && y <= p.y;
}

ZARNEX_INLINE int IPoint::operator>(const IPoint& p) const {
    return x > p.x && y > p.y;
}

ZARNEX_INLINE int IPoint::operator>=(const IPoint& p) const {
    return x >= p.x && y >= p.y;
}

ZARNEX_INLINE double IPoint::distance(const IPoint& p) const {
    namespace detail = zarnex::detail;
    return detail::length(detail::offset(detail::widened(*this), detail::widened(p)));
}

ZARNEX_INLINE double IPoint::squaredDistance(const IPoint& p) const {
    namespace detail = zarnex::detail;
    const detail::Pair d = detail::offset(detail::widened(*this), detail::widened(p));
    return detail::dot(d, d);
}

ZARNEX_INLINE double IPoint::manhattanDistance(const IPoint& p) const {
    namespace detail = zarnex::detail;
    return detail::manhattanLength(detail::offset(detail::widened(*this), detail::widened(p)));
}

ZARNEX_INLINE IPoint& IPoint::translate(double dx, double dy) {
    namespace detail = zarnex::detail;
    const detail::Pair here = detail::widened(*this);
    return *this = detail::truncated<IPoint>({here.x + dx, here.y + dy});
}

ZARNEX_INLINE IPoint& IPoint::scale(double sx, double sy) {
    namespace detail = zarnex::detail;
    return *this = detail::truncated<IPoint>(detail::scaled(detail::widened(*this), sx, sy));
}

extern template class ZARNEX_API ZList<IPoint>;
extern template class ZARNEX_API ZList<ZList<IPoint>*>;
