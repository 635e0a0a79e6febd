#pragma once

#include <zarnex/config.h>
#include <zarnex/geometry/ZVector.h>
#include <zarnex/geometry/formulas.h>

/// A place in the plane, in integers of type T; for short, 16 bits.
///
/// Sums, differences and negation wrap into T. Everything else is computed in doubles
/// from the exact coordinates; where the result is a point again its coordinates are
/// truncated toward zero unless said, the nearest T where they do not fit and 0 for NaN.
///
/// Members say what differs from DPoint, where each is described.
template <class T>
class ZCoord {
public:
    /// The coordinates, in a unit of the host's choice.
    /// @{
    T x;
    T y;
    /// @}

    /// The origin.
    ZCoord();
    ZCoord(const T& x, const T& y); ///< the place (x, y)

    /// Both coordinates, as they are.
    /// @{
    ZCoord(const ZCoord&) = default;
    ZCoord& operator=(const ZCoord&) = default;
    /// @}

    /// A coordinate, to read or to write.
    /// @{
    T& xval();
    T& yval();
    T xval() const;
    T yval() const;
    /// @}

    /// Coordinate by coordinate; each wraps. The difference of two points is the vector from
    /// `p` to this one.
    /// @{
    ZCoord operator+(const ZCoord& p) const;
    ZCoord operator+(const ZVector<T>& v) const;
    ZVector<T> operator-(const ZCoord& p) const;
    ZCoord operator-(const ZVector<T>& v) const;
    ZCoord operator-() const;
    /// @}

    /// The same in place; a reference to the point is returned.
    /// @{
    ZCoord& operator+=(const ZCoord& p);
    ZCoord& operator+=(const ZVector<T>& v);
    ZCoord& operator-=(const ZCoord& p);
    ZCoord& operator-=(const ZVector<T>& v);
    /// @}

    /// Both coordinates times `s`, or over `d`, truncated. Over 0 a coordinate other than 0
    /// becomes the least or the greatest, and 0 stays 0.
    /// @{
    ZCoord operator*(const double& s) const;
    ZCoord operator/(const double& d) const;
    /// @}

    /// 1 if both coordinates are exactly equal, else 0.
    int operator==(const ZCoord& p) const;
    int operator!=(const ZCoord& p) const; ///< 1 where == gives 0, else 0

    /// 1 if it holds in x and in y, else 0.
    ///
    /// Kept as is: dominance, not an order. Each holds when it holds for x and for
    /// y, so that two points can be neither less, equal nor greater. Do not sort by it.
    /// @{
    int operator<(const ZCoord& p) const;
    int operator<=(const ZCoord& p) const;
    int operator>(const ZCoord& p) const;
    int operator>=(const ZCoord& p) const;
    /// @}

    /// The length of the straight way to `p`, its square, and the sum of the sizes of the
    /// differences in x and in y. Nothing wraps or is truncated.
    /// @{
    double distance(const ZCoord& p) const;
    double squaredDistance(const ZCoord& p) const;
    double manhattanDistance(const ZCoord& p) const;
    /// @}

    /// Adds (dx, dy) in place and wraps, although an IPoint is moved by doubles.
    ZCoord& translate(T dx, T dy);

    /// Multiplies x by `sx` and y by `sy` in place and truncates the products.
    ZCoord& scale(double sx, double sy);

    /// scale() with the products rounded, halves away from zero.
    ZCoord& roundScale(double sx, double sy);

    /// Turns the point by `degrees` about `centre`.
    ///
    /// Kept as is: truncates the result toward zero, although roundScale() and
    /// matrixRot() round, and with the short pi of DPoint::rotate: (10, 0) turned by
    /// 90 about the origin is (0, 9).
    ZCoord& rotate(double degrees, const ZCoord& centre);

    /// Rounds the result, halves away from zero.
    ZCoord& matrixRot(const double m[2][3], double z);

    /// Reflects the point about the line through `a` and `b`; about the horizontal through
    /// `a` where they are equal. The result is truncated.
    ZCoord& mirror(const ZCoord& a, const ZCoord& b);
};

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T>::ZCoord() : x(0), y(0) {}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T>::ZCoord(const T& xValue, const T& yValue) : x(xValue), y(yValue) {}

template <class T>
ZARNEX_TEMPLATE_INLINE T& ZCoord<T>::xval() {
    return x;
}

template <class T>
ZARNEX_TEMPLATE_INLINE T& ZCoord<T>::yval() {
    return y;
}

template <class T>
ZARNEX_TEMPLATE_INLINE T ZCoord<T>::xval() const {
    return x;
}

template <class T>
ZARNEX_TEMPLATE_INLINE T ZCoord<T>::yval() const {
    return y;
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T> ZCoord<T>::operator+(const ZCoord& p) const {
    namespace detail = zarnex::detail;
    return ZCoord(detail::sum(x, p.x), detail::sum(y, p.y));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T> ZCoord<T>::operator+(const ZVector<T>& v) const {
    namespace detail = zarnex::detail;
    return ZCoord(detail::sum(x, v.x), detail::sum(y, v.y));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZVector<T> ZCoord<T>::operator-(const ZCoord& p) const {
    namespace detail = zarnex::detail;
    return ZVector<T>(detail::difference(x, p.x), detail::difference(y, p.y));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T> ZCoord<T>::operator-(const ZVector<T>& v) const {
    namespace detail = zarnex::detail;
    return ZCoord(detail::difference(x, v.x), detail::difference(y, v.y));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T> ZCoord<T>::operator-() const {
    namespace detail = zarnex::detail;
    return ZCoord(detail::negated(x), detail::negated(y));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T>& ZCoord<T>::operator+=(const ZCoord& p) {
    return *this = *this + p;
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T>& ZCoord<T>::operator+=(const ZVector<T>& v) {
    return *this = *this + v;
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T>& ZCoord<T>::operator-=(const ZCoord& p) {
    namespace detail = zarnex::detail;
    return *this = ZCoord(detail::difference(x, p.x), detail::difference(y, p.y));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T>& ZCoord<T>::operator-=(const ZVector<T>& v) {
    return *this = *this - v;
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T> ZCoord<T>::operator*(const double& s) const {
    namespace detail = zarnex::detail;
    return detail::truncated<ZCoord<T>>(detail::scaled(detail::widened(*this), s, s));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T> ZCoord<T>::operator/(const double& d) const {
    namespace detail = zarnex::detail;
    return detail::truncated<ZCoord<T>>(detail::divided(detail::widened(*this), d));
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZCoord<T>::operator==(const ZCoord& p) const {
    return x == p.x && y == p.y;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZCoord<T>::operator!=(const ZCoord& p) const {
    return !(*this == p);
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZCoord<T>::operator<(const ZCoord& p) const {
    return x < p.x && y < p.y;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZCoord<T>::operator<=(const ZCoord& p) const {
    return x <= p.x && y <= p.y;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZCoord<T>::operator>(const ZCoord& p) const {
    return x > p.x && y > p.y;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZCoord<T>::operator>=(const ZCoord& p) const {
    return x >= p.x && y >= p.y;
}

template <class T>
ZARNEX_TEMPLATE_INLINE double ZCoord<T>::distance(const ZCoord& p) const {
    namespace detail = zarnex::detail;
    return detail::length(detail::offset(detail::widened(*this), detail::widened(p)));
}

template <class T>
ZARNEX_TEMPLATE_INLINE double ZCoord<T>::squaredDistance(const ZCoord& p) const {
    namespace detail = zarnex::detail;
    const detail::Pair d = detail::offset(detail::widened(*this), detail::widened(p));
    return detail::dot(d, d);
}

template <class T>
ZARNEX_TEMPLATE_INLINE double ZCoord<T>::manhattanDistance(const ZCoord& p) const {
    namespace detail = zarnex::detail;
    return detail::manhattanLength(detail::offset(detail::widened(*this), detail::widened(p)));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T>& ZCoord<T>::translate(T dx, T dy) {
    namespace detail = zarnex::detail;
    return *this = ZCoord(detail::sum(x, dx), detail::sum(y, dy));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T>& ZCoord<T>::scale(double sx, double sy) {
    namespace detail = zarnex::detail;
    return *this = detail::truncated<ZCoord<T>>(detail::scaled(detail::widened(*this), sx, sy));
}

template <class T>
ZCoord<T>& ZCoord<T>::roundScale(double sx, double sy) {
    namespace detail = zarnex::detail;
    return *this = detail::rounded<ZCoord<T>>(detail::scaled(detail::widened(*this), sx, sy));
}

template <class T>
ZCoord<T>& ZCoord<T>::rotate(double degrees, const ZCoord& centre) {
    namespace detail = zarnex::detail;
    return *this = detail::truncated<ZCoord<T>>(
               detail::rotated(detail::widened(*this), degrees, detail::widened(centre)));
}

template <class T>
ZCoord<T>& ZCoord<T>::matrixRot(const double m[2][3], double z) {
    namespace detail = zarnex::detail;
    if (m == nullptr)
        return *this;
    return *this = detail::rounded<ZCoord<T>>(detail::mapped(detail::widened(*this), m, z));
}

template <class T>
ZCoord<T>& ZCoord<T>::mirror(const ZCoord& a, const ZCoord& b) {
    namespace detail = zarnex::detail;
    return *this = detail::truncated<ZCoord<T>>(
               detail::mirrored(detail::widened(*this), detail::widened(a), detail::widened(b)));
}

extern template class ZARNEX_API ZCoord<short>;
