#pragma once

#include <zarnex/config.h>

/// A point of two coordinates of type T, with a virtual destructor to derive from;
/// for double.
///
/// Points and displacements are one type here, and nothing is tolerant: use DPoint
/// and DVector where that is not wanted. Overflow, division by 0 and NaN follow
/// IEEE arithmetic.
template <class T>
class ZTPoint {
public:
    /// The origin.
    ZTPoint();

    /// Both coordinates `v`.
    ZTPoint(const T& v);
    ZTPoint(const T& x, const T& y); ///< the point (x, y)

    /// Both coordinates, as they are.
    /// @{
    ZTPoint(const ZTPoint&) = default;
    ZTPoint& operator=(const ZTPoint&) = default;
    /// @}

    /// Virtual: a point made as a derived class may be deleted as this one.
    virtual ~ZTPoint();

    /// A coordinate, to read or to write.
    /// @{
    T& xVal();
    T& yVal();
    const T& xVal() const;
    const T& yVal() const;
    /// @}

    /// Sets a coordinate.
    /// @{
    void setX(const T& x);
    void setY(const T& y);
    /// @}

    /// Coordinate by coordinate.
    /// @{
    ZTPoint operator+(const ZTPoint& p) const;
    ZTPoint operator-(const ZTPoint& p) const;
    ZTPoint operator-() const;
    /// @}

    /// Coordinate by coordinate: (x * p.x, y * p.y) and (x / p.x, y / p.y).
    /// @{
    ZTPoint operator*(const ZTPoint& p) const;
    ZTPoint operator/(const ZTPoint& p) const;
    /// @}

    /// Both coordinates times `s`, or over `d`.
    /// @{
    ZTPoint operator*(const T& s) const;
    ZTPoint operator/(const T& d) const;
    /// @}

    /// Adds or subtracts in place, coordinate by coordinate. Returns nothing, so that these
    /// cannot be chained.
    /// @{
    void operator+=(const ZTPoint& p);
    void operator-=(const ZTPoint& p);
    /// @}

    /// 1 if both coordinates are equal, else 0; never with NaN.
    ///
    /// Kept as is: exact, although DPoint allows 1e-11.
    int operator==(const ZTPoint& p) const;
    int operator!=(const ZTPoint& p) const; ///< 1 where == gives 0, else 0

    /// 1 if it holds in x and in y, else 0.
    ///
    /// Kept as is: dominance, not an order. Each holds when it holds for x and for
    /// y, so that two points can be neither less, equal nor greater. Do not sort by it.
    /// @{
    int operator<(const ZTPoint& p) const;
    int operator<=(const ZTPoint& p) const;
    int operator>(const ZTPoint& p) const;
    int operator>=(const ZTPoint& p) const;
    /// @}

    /// The coordinates, in a unit of the host's choice.
    /// @{
    T x;
    T y;
    /// @}
};

template <class T>
ZARNEX_TEMPLATE_INLINE ZTPoint<T>::ZTPoint() : x(), y() {}

template <class T>
ZARNEX_TEMPLATE_INLINE ZTPoint<T>::ZTPoint(const T& v) : x(v), y(v) {}

template <class T>
ZARNEX_TEMPLATE_INLINE ZTPoint<T>::ZTPoint(const T& xValue, const T& yValue)
    : x(xValue), y(yValue) {}

template <class T>
ZARNEX_TEMPLATE_INLINE ZTPoint<T>::~ZTPoint() {}

template <class T>
ZARNEX_TEMPLATE_INLINE T& ZTPoint<T>::xVal() {
    return x;
}

template <class T>
ZARNEX_TEMPLATE_INLINE T& ZTPoint<T>::yVal() {
    return y;
}

template <class T>
ZARNEX_TEMPLATE_INLINE const T& ZTPoint<T>::xVal() const {
    return x;
}

template <class T>
ZARNEX_TEMPLATE_INLINE const T& ZTPoint<T>::yVal() const {
    return y;
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZTPoint<T>::setX(const T& xValue) {
    x = xValue;
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZTPoint<T>::setY(const T& yValue) {
    y = yValue;
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZTPoint<T> ZTPoint<T>::operator+(const ZTPoint& p) const {
    return ZTPoint(x + p.x, y + p.y);
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZTPoint<T> ZTPoint<T>::operator-(const ZTPoint& p) const {
    return ZTPoint(x - p.x, y - p.y);
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZTPoint<T> ZTPoint<T>::operator-() const {
    return ZTPoint(-x, -y);
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZTPoint<T> ZTPoint<T>::operator*(const ZTPoint& p) const {
    return ZTPoint(x * p.x, y * p.y);
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZTPoint<T> ZTPoint<T>::operator/(const ZTPoint& p) const {
    return ZTPoint(x / p.x, y / p.y);
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZTPoint<T> ZTPoint<T>::operator*(const T& s) const {
    return ZTPoint(x * s, y * s);
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZTPoint<T> ZTPoint<T>::operator/(const T& d) const {
    return ZTPoint(x / d, y / d);
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZTPoint<T>::operator+=(const ZTPoint& p) {
    x += p.x;
    y += p.y;
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZTPoint<T>::operator-=(const ZTPoint& p) {
    x -= p.x;
    y -= p.y;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZTPoint<T>::operator==(const ZTPoint& p) const {
    return x == p.x && y == p.y;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZTPoint<T>::operator!=(const ZTPoint& p) const {
    return !(*this == p);
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZTPoint<T>::operator<(const ZTPoint& p) const {
    return x < p.x && y < p.y;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZTPoint<T>::operator<=(const ZTPoint& p) const {
    return x <= p.x && y <= p.y;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZTPoint<T>::operator>(const ZTPoint& p) const {
    return x > p.x && y > p.y;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZTPoint<T>::operator>=(const ZTPoint& p) const {
    return x >= p.x && y >= p.y;
}

extern template class ZARNEX_API ZTPoint<double>;
