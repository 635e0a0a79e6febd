#pragma once

#include <zarnex/config.h>
#include <zarnex/geometry/formulas.h>

/// A displacement in the plane, in 32-bit integers.
///
/// Sums, differences and negation wrap. Everything else is computed in doubles from
/// the exact components; where the result is a vector again its components are
/// truncated toward zero, the nearest int where they do not fit and 0 for NaN.
///
/// Members say what differs from DVector, where each is described.
class ZARNEX_API IVector {
public:
    /// The components, in a unit of the host's choice.
    /// @{
    int x;
    int y;
    /// @}

    /// The zero vector.
    IVector();
    IVector(int x, int y); ///< the way from (0, 0) to (x, y)

    /// Both components, as they are.
    /// @{
    IVector(const IVector&) = default;
    IVector& operator=(const IVector&) = default;
    /// @}

    /// A component, to read or to write.
    /// @{
    int& xval();
    int& yval();
    int xval() const;
    int yval() const;
    /// @}

    /// Component by component; each wraps.
    /// @{
    IVector operator+(const IVector& v) const;
    IVector operator-(const IVector& v) const;
    IVector operator-() const;
    /// @}

    IVector& operator+=(const IVector& v); ///< adds in place and wraps

    IVector operator*(const double& s) const; ///< both components times `s`, truncated

    /// x * v.x + y * v.y.
    ///
    /// Kept as is: the dot product, wrapped into 32 bits, although length() and cross()
    /// are doubles. projectOn(), projectOnUnit() and isSameSense() use a double as well.
    int operator*(const IVector& v) const;

    /// 1 if both components are exactly equal, else 0.
    int operator==(const IVector& v) const;
    int operator!=(const IVector& v) const; ///< 1 where == gives 0, else 0

    /// 1 if it holds of the lengths, else 0.
    ///
    /// Kept as is: compares the lengths, so that two vectors can be neither less
    /// nor greater without being equal. Points compare by coordinate.
    /// @{
    int operator<(const IVector& v) const;
    int operator>(const IVector& v) const;
    /// @}

    double length() const;        ///< the root of squaredLength()
    double squaredLength() const; ///< x * x + y * y, which does not wrap

    /// x * v.y - y * v.x, which does not wrap: above 0 if `v` points to the left.
    double cross(const IVector& v) const;

    /// The zero vector unchanged; otherwise components of -1, 0 and 1.
    ///
    /// Kept as is: each component is multiplied by 1 / length and truncated, so that
    /// (3, 4) gives (0, 0), and so does (49, 0), as 49 * (1.0 / 49) is below 1.
    IVector normalize() const;

    /// (-y * s, x * s), wrapped: a quarter turn to the left for s = 1, to the right for -1.
    IVector ortho(int s) const;

    /// The part of this vector along `v`, truncated; `v` itself if it is zero.
    IVector projectOn(const IVector& v) const;

    /// projectOn() for a `unit` of length 1, which is not checked. Only the four axes have
    /// one.
    IVector projectOnUnit(const IVector& unit) const;

    /// This vector reflected about the direction `v`; its negative if `v` is zero.
    ///
    /// Kept as is: the projection is truncated before it is doubled.
    IVector mirror(const IVector& v) const;

    IVector& reverse(); ///< negates both components in place; the least value stays

    /// Multiplies x by `sx` and y by `sy` in place and truncates the products.
    IVector& scale(double sx, double sy);

    /// 1 if `v` points to the same side as this vector, else 0, by the rule of
    /// DVector::isSameSense(), from the exact products.
    int isSameSense(const IVector& v) const;
};

ZARNEX_INLINE IVector::IVector() : x(0), y(0) {}

ZARNEX_INLINE IVector::IVector(int xValue, int yValue) : x(xValue), y(yValue) {}

ZARNEX_INLINE int& IVector::xval() {
    return x;
}

ZARNEX_INLINE int& IVector::yval() {
    return y;
}

ZARNEX_INLINE int IVector::xval() const {
    return x;
}

ZARNEX_INLINE int IVector::yval() const {
    return y;
}

ZARNEX_INLINE IVector IVector::operator+(const IVector& v) const {
    namespace detail = zarnex::detail;
    return IVector(detail::sum(x, v.x), detail::sum(y, v.y));
}

ZARNEX_INLINE IVector IVector::operator-(const IVector& v) const {
    namespace detail = zarnex::detail;
    return IVector(detail::difference(x, v.x), detail::difference(y, v.y));
}

ZARNEX_INLINE IVector IVector::operator-() const {
    namespace detail = zarnex::detail;
    return IVector(detail::negated(x), detail::negated(y));
}

ZARNEX_INLINE IVector& IVector::operator+=(const IVector& v) {
    return *this = *this + v;
}

ZARNEX_INLINE IVector IVector::operator*(const double& s) const {
    namespace detail = zarnex::detail;
    return detail::truncated<IVector>(detail::scaled(detail::widened(*this), s, s));
}

ZARNEX_INLINE int IVector::operator*(const IVector& v) const {
    namespace detail = zarnex::detail;
    return detail::sum(detail::product(x, v.x), detail::product(y, v.y));
}

ZARNEX_INLINE int IVector::operator==(const IVector& v) const {
    return x == v.x && y == v.y;
}

ZARNEX_INLINE int IVector::operator!=(const IVector& v) const {
    return !(*this == v);
}

ZARNEX_INLINE double IVector::length() const {
    return zarnex::detail::length(zarnex::detail::widened(*this));
}

ZARNEX_INLINE int IVector::operator<(const IVector& v) const {
    return length() < v.length();
}

ZARNEX_INLINE int IVector::operator>(const IVector& v) const {
    return length() > v.length();
}

ZARNEX_INLINE double IVector::squaredLength() const {
    namespace detail = zarnex::detail;
    return detail::dot(detail::widened(*this), detail::widened(*this));
}

ZARNEX_INLINE double IVector::cross(const IVector& v) const {
    return zarnex::detail::cross(zarnex::detail::widened(*this), zarnex::detail::widened(v));
}

ZARNEX_INLINE IVector IVector::normalize() const {
    namespace detail = zarnex::detail;
    return detail::truncated<IVector>(detail::normalized(detail::widened(*this)));
}

ZARNEX_INLINE IVector IVector::ortho(int s) const {
    namespace detail = zarnex::detail;
    return IVector(detail::product(detail::negated(y), s), detail::product(x, s));
}

ZARNEX_INLINE IVector IVector::projectOn(const IVector& v) const {
    namespace detail = zarnex::detail;
    return detail::truncated<IVector>(
        detail::projected(detail::widened(*this), detail::widened(v)));
}

ZARNEX_INLINE IVector IVector::projectOnUnit(const IVector& unit) const {
    namespace detail = zarnex::detail;
    return detail::truncated<IVector>(
        detail::projectedOnUnit(detail::widened(*this), detail::widened(unit)));
}

ZARNEX_INLINE IVector IVector::mirror(const IVector& v) const {
    return projectOn(v) * 2.0 - *this;
}

ZARNEX_INLINE IVector& IVector::reverse() {
    return *this = -*this;
}

ZARNEX_INLINE IVector& IVector::scale(double sx, double sy) {
    namespace detail = zarnex::detail;
    return *this = detail::truncated<IVector>(detail::scaled(detail::widened(*this), sx, sy));
}

ZARNEX_INLINE int IVector::isSameSense(const IVector& v) const {
    namespace detail = zarnex::detail;
    return detail::sameSense(detail::widened(*this), detail::widened(v));
}
