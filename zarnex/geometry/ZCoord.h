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
    T x;
    T y;

    /// The origin.
    ZCoord();
    ZCoord(const T& x, const T& y);
    ZCoord(const ZCoord&) = default;
    ZCoord& operator=(const ZCoord&) = default;

    T& xval();
    T& yval();
    T xval() const;
    T yval() const;

    ZCoord operator+(const ZCoord& p) const;
    ZCoord operator+(const ZVector<T>& v) const;
    ZVector<T> operator-(const ZCoord& p) const;
    ZCoord operator-(const ZVector<T>& v) const;
    ZCoord operator-() const;

    ZCoord& operator+=(const ZCoord& p);
    ZCoord& operator+=(const ZVector<T>& v);
    ZCoord& operator-=(const ZCoord& p);
    ZCoord& operator-=(const ZVector<T>& v);

    ZCoord operator*(const double& s) const;
    ZCoord operator/(const double& d) const;

    /// 1 if both coordinates are exactly equal, else 0.
    int operator==(const ZCoord& p) const;
    int operator!=(const ZCoord& p) const;

    /// Kept as is: dominance, not an order. Each holds when it holds for x and for
    /// y, so that two points can be neither less, equal nor greater. Do not sort by it.
    int operator<(const ZCoord& p) const;
    int operator<=(const ZCoord& p) const;
    int operator>(const ZCoord& p) const;
    int operator>=(const ZCoord& p) const;

    double distance(const ZCoord& p) const;
    double squaredDistance(const ZCoord& p) const;
    double manhattanDistance(const ZCoord& p) const;

    /// Adds (dx, dy) in place and wraps, although an IPoint is moved by doubles.
    ZCoord& translate(T dx, T dy);

    ZCoord& scale(double sx, double sy);

    /// scale() with the products rounded, halves away from zero.
    ZCoord& roundScale(double sx, double sy);

    /// Kept as is: truncates the result toward zero, although roundScale() and
    /// matrixRot() round, and with the short pi of DPoint::rotate: (10, 0) turned by
    /// 90 about the origin is (0, 9).
    ZCoord& rotate(double degrees, const ZCoord& centre);

    /// Rounds the result, halves away from zero.
    ZCoord& matrixRot(const double m[2][3], double z);

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
    using namespace zarnex::detail;
    return ZCoord(sum(x, p.x), sum(y, p.y));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T> ZCoord<T>::operator+(const ZVector<T>& v) const {
    using namespace zarnex::detail;
    return ZCoord(sum(x, v.x), sum(y, v.y));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZVector<T> ZCoord<T>::operator-(const ZCoord& p) const {
    using namespace zarnex::detail;
    return ZVector<T>(difference(x, p.x), difference(y, p.y));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T> ZCoord<T>::operator-(const ZVector<T>& v) const {
    using namespace zarnex::detail;
    return ZCoord(difference(x, v.x), difference(y, v.y));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T> ZCoord<T>::operator-() const {
    using namespace zarnex::detail;
    return ZCoord(negated(x), negated(y));
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
    using namespace zarnex::detail;
    return *this = ZCoord(difference(x, p.x), difference(y, p.y));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T>& ZCoord<T>::operator-=(const ZVector<T>& v) {
    return *this = *this - v;
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T> ZCoord<T>::operator*(const double& s) const {
    using namespace zarnex::detail;
    return truncated<ZCoord<T>>(scaled(widened(*this), s, s));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T> ZCoord<T>::operator/(const double& d) const {
    using namespace zarnex::detail;
    return truncated<ZCoord<T>>(divided(widened(*this), d));
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
    using namespace zarnex::detail;
    return length(offset(widened(*this), widened(p)));
}

template <class T>
ZARNEX_TEMPLATE_INLINE double ZCoord<T>::squaredDistance(const ZCoord& p) const {
    using namespace zarnex::detail;
    const Pair d = offset(widened(*this), widened(p));
    return dot(d, d);
}

template <class T>
ZARNEX_TEMPLATE_INLINE double ZCoord<T>::manhattanDistance(const ZCoord& p) const {
    using namespace zarnex::detail;
    return manhattanLength(offset(widened(*this), widened(p)));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T>& ZCoord<T>::translate(T dx, T dy) {
    using namespace zarnex::detail;
    return *this = ZCoord(sum(x, dx), sum(y, dy));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZCoord<T>& ZCoord<T>::scale(double sx, double sy) {
    using namespace zarnex::detail;
    return *this = truncated<ZCoord<T>>(scaled(widened(*this), sx, sy));
}

template <class T>
ZCoord<T>& ZCoord<T>::roundScale(double sx, double sy) {
    using namespace zarnex::detail;
    return *this = rounded<ZCoord<T>>(scaled(widened(*this), sx, sy));
}

template <class T>
ZCoord<T>& ZCoord<T>::rotate(double degrees, const ZCoord& centre) {
    using namespace zarnex::detail;
    return *this = truncated<ZCoord<T>>(rotated(widened(*this), degrees, widened(centre)));
}

template <class T>
ZCoord<T>& ZCoord<T>::matrixRot(const double m[2][3], double z) {
    using namespace zarnex::detail;
    if (m == nullptr)
        return *this;
    return *this = rounded<ZCoord<T>>(mapped(widened(*this), m, z));
}

template <class T>
ZCoord<T>& ZCoord<T>::mirror(const ZCoord& a, const ZCoord& b) {
    using namespace zarnex::detail;
    return *this = truncated<ZCoord<T>>(mirrored(widened(*this), widened(a), widened(b)));
}

extern template class ZARNEX_API ZCoord<short>;
