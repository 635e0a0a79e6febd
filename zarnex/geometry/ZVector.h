#pragma once

#include <zarnex/config.h>
#include <zarnex/geometry/formulas.h>

/// A displacement in the plane, in integers of type T; for short, 16 bits.
///
/// Sums, differences and negation wrap into T. Everything else is computed in doubles
/// from the exact components; where the result is a vector again its components are
/// truncated toward zero, the nearest T where they do not fit and 0 for NaN.
///
/// Members say what differs from DVector, where each is described.
template <class T>
class ZVector {
public:
    /// The components, in a unit of the host's choice.
    /// @{
    T x;
    T y;
    /// @}

    /// The zero vector.
    ZVector();
    ZVector(const T& x, const T& y); ///< the way from (0, 0) to (x, y)

    /// Both components, as they are.
    /// @{
    ZVector(const ZVector&) = default;
    ZVector& operator=(const ZVector&) = default;
    /// @}

    /// A component, to read or to write.
    /// @{
    T& xval();
    T& yval();
    T xval() const;
    T yval() const;
    /// @}

    /// Component by component; each wraps.
    /// @{
    ZVector operator+(const ZVector& v) const;
    ZVector operator-(const ZVector& v) const;
    ZVector operator-() const;
    /// @}

    ZVector& operator+=(const ZVector& v); ///< adds in place and wraps

    ZVector operator*(const double& s) const; ///< both components times `s`, truncated

    /// x * v.x + y * v.y.
    ///
    /// Kept as is: the dot product, wrapped into T: (200, 200) by itself gives 14464.
    /// projectOn(), projectOnUnit() and isSameSense() use the exact one.
    T operator*(const ZVector& v) const;

    /// 1 if both components are exactly equal, else 0.
    int operator==(const ZVector& v) const;
    int operator!=(const ZVector& v) const; ///< 1 where == gives 0, else 0

    /// 1 if it holds of the lengths, else 0.
    ///
    /// Kept as is: compares the lengths, so that two vectors can be neither less
    /// nor greater without being equal. Points compare by coordinate.
    /// @{
    int operator<(const ZVector& v) const;
    int operator>(const ZVector& v) const;
    /// @}

    double length() const;        ///< the root of squaredLength()
    double squaredLength() const; ///< x * x + y * y, which does not wrap

    /// x * v.y - y * v.x, which does not wrap: above 0 if `v` points to the left.
    double cross(const ZVector& v) const;

    /// The zero vector unchanged; otherwise components of -1, 0 and 1.
    ///
    /// Kept as is: each component is multiplied by 1 / length and truncated, so that
    /// (3, 4) gives (0, 0), and so does (49, 0), as 49 * (1.0 / 49) is below 1.
    ZVector normalize() const;

    /// (-y * s, x * s), wrapped: a quarter turn to the left for s = 1, to the right for -1.
    ZVector ortho(int s) const;

    /// The part of this vector along `v`, truncated; `v` itself if it is zero.
    ZVector projectOn(const ZVector& v) const;

    /// projectOn() for a `unit` of length 1, which is not checked. Only the four axes have
    /// one.
    ZVector projectOnUnit(const ZVector& unit) const;

    /// This vector reflected about the direction `v`; its negative if `v` is zero.
    ///
    /// Kept as is: the projection is truncated before it is doubled.
    ZVector mirror(const ZVector& v) const;

    ZVector& reverse(); ///< negates both components in place; the least value stays

    /// Multiplies x by `sx` and y by `sy` in place and truncates the products.
    ZVector& scale(double sx, double sy);

    /// 1 if `v` points to the same side as this vector, else 0, by the rule of
    /// DVector::isSameSense(), from the exact products.
    int isSameSense(const ZVector& v) const;
};

template <class T>
ZARNEX_TEMPLATE_INLINE ZVector<T>::ZVector() : x(0), y(0) {}

template <class T>
ZARNEX_TEMPLATE_INLINE ZVector<T>::ZVector(const T& xValue, const T& yValue)
    : x(xValue), y(yValue) {}

template <class T>
ZARNEX_TEMPLATE_INLINE T& ZVector<T>::xval() {
    return x;
}

template <class T>
ZARNEX_TEMPLATE_INLINE T& ZVector<T>::yval() {
    return y;
}

template <class T>
ZARNEX_TEMPLATE_INLINE T ZVector<T>::xval() const {
    return x;
}

template <class T>
ZARNEX_TEMPLATE_INLINE T ZVector<T>::yval() const {
    return y;
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZVector<T> ZVector<T>::operator+(const ZVector& v) const {
    namespace detail = zarnex::detail;
    return ZVector(detail::sum(x, v.x), detail::sum(y, v.y));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZVector<T> ZVector<T>::operator-(const ZVector& v) const {
    namespace detail = zarnex::detail;
    return ZVector(detail::difference(x, v.x), detail::difference(y, v.y));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZVector<T> ZVector<T>::operator-() const {
    namespace detail = zarnex::detail;
    return ZVector(detail::negated(x), detail::negated(y));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZVector<T>& ZVector<T>::operator+=(const ZVector& v) {
    return *this = *this + v;
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZVector<T> ZVector<T>::operator*(const double& s) const {
    namespace detail = zarnex::detail;
    return detail::truncated<ZVector<T>>(detail::scaled(detail::widened(*this), s, s));
}

template <class T>
ZARNEX_TEMPLATE_INLINE T ZVector<T>::operator*(const ZVector& v) const {
    namespace detail = zarnex::detail;
    return detail::sum(detail::product(x, v.x), detail::product(y, v.y));
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZVector<T>::operator==(const ZVector& v) const {
    return x == v.x && y == v.y;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZVector<T>::operator!=(const ZVector& v) const {
    return !(*this == v);
}

template <class T>
ZARNEX_TEMPLATE_INLINE double ZVector<T>::length() const {
    return zarnex::detail::length(zarnex::detail::widened(*this));
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZVector<T>::operator<(const ZVector& v) const {
    return length() < v.length();
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZVector<T>::operator>(const ZVector& v) const {
    return length() > v.length();
}

template <class T>
ZARNEX_TEMPLATE_INLINE double ZVector<T>::squaredLength() const {
    namespace detail = zarnex::detail;
    return detail::dot(detail::widened(*this), detail::widened(*this));
}

template <class T>
ZARNEX_TEMPLATE_INLINE double ZVector<T>::cross(const ZVector& v) const {
    return zarnex::detail::cross(zarnex::detail::widened(*this), zarnex::detail::widened(v));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZVector<T> ZVector<T>::normalize() const {
    namespace detail = zarnex::detail;
    return detail::truncated<ZVector<T>>(detail::normalized(detail::widened(*this)));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZVector<T> ZVector<T>::ortho(int s) const {
    namespace detail = zarnex::detail;
    return ZVector(detail::product(detail::negated(y), s), detail::product(x, s));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZVector<T> ZVector<T>::projectOn(const ZVector& v) const {
    namespace detail = zarnex::detail;
    return detail::truncated<ZVector<T>>(
        detail::projected(detail::widened(*this), detail::widened(v)));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZVector<T> ZVector<T>::projectOnUnit(const ZVector& unit) const {
    namespace detail = zarnex::detail;
    return detail::truncated<ZVector<T>>(
        detail::projectedOnUnit(detail::widened(*this), detail::widened(unit)));
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZVector<T> ZVector<T>::mirror(const ZVector& v) const {
    return projectOn(v) * 2.0 - *this;
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZVector<T>& ZVector<T>::reverse() {
    return *this = -*this;
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZVector<T>& ZVector<T>::scale(double sx, double sy) {
    namespace detail = zarnex::detail;
    return *this = detail::truncated<ZVector<T>>(detail::scaled(detail::widened(*this), sx, sy));
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZVector<T>::isSameSense(const ZVector& v) const {
    namespace detail = zarnex::detail;
    return detail::sameSense(detail::widened(*this), detail::widened(v));
}

extern template class ZARNEX_API ZVector<short>;
