#pragma once

#include <zarnex/config.h>
#include <zarnex/containers/ZList.h>
#include <zarnex/containers/ZXArray.h>
#include <zarnex/geometry/formulas.h>

/// A displacement in the plane, in double precision.
///
/// A plain value of two doubles. What moves a place to another is a vector, the
/// place itself a DPoint.
///
///     const DVector along(3.0, 4.0);
///     along.length();              // 5
///     along.ortho(1) * 0.5;        // (-2, 1.5), to the left of it
///
/// Angles turn counter-clockwise with y growing upward. Overflow and NaN follow
/// IEEE arithmetic in every member. Members that change the vector return it.
class ZARNEX_API DVector {
public:
    /// The components, in a unit of the host's choice.
    /// @{
    double x;
    double y;
    /// @}

    /// The zero vector.
    DVector();
    DVector(double x, double y); ///< the way from (0, 0) to (x, y)

    /// Both components, as they are.
    /// @{
    DVector(const DVector&) = default;
    DVector& operator=(const DVector&) = default;
    /// @}

    /// A component, to read or to write.
    /// @{
    double& xval();
    double& yval();
    double xval() const;
    double yval() const;
    /// @}

    /// Component by component.
    /// @{
    DVector operator+(const DVector& v) const;
    DVector operator-(const DVector& v) const;
    DVector operator-() const;
    /// @}

    DVector& operator+=(const DVector& v); ///< adds in place

    DVector operator*(const double& s) const; ///< both components times `s`

    /// Both components over `d`.
    ///
    /// Kept as is: the vector itself for a `d` from -1e-11 to 1e-11, although
    /// DPoint divides by anything.
    DVector operator/(const double& d) const;

    /// The dot product.
    double operator*(const DVector& v) const;

    /// 1 if both components differ by less than 1e-11, else 0; 0 with a NaN or an
    /// infinity on either side.
    ///
    /// Kept as is: a strict bound, although the tests in tolerance.h are inclusive. Not
    /// transitive: no order or hash for containers can agree with it.
    int operator==(const DVector& v) const;
    int operator!=(const DVector& v) const; ///< 1 where == gives 0, else 0

    /// 1 if it holds of the lengths, else 0.
    ///
    /// Kept as is: compares the lengths, so that two vectors can be neither less
    /// nor greater without being equal. Points compare by coordinate.
    /// @{
    int operator<(const DVector& v) const;
    int operator>(const DVector& v) const;
    /// @}

    double length() const;        ///< the root of squaredLength()
    double squaredLength() const; ///< x * x + y * y

    /// x * v.y - y * v.x: above 0 if `v` points to the left of this vector.
    double cross(const DVector& v) const;

    /// This vector at length 1; unchanged if its squared length is at most 1e-11.
    ///
    /// Kept as is: the tolerance bounds the square, so lengths up to 3.16e-6 count
    /// as zero here.
    DVector normalize() const;

    /// (-y * s, x * s): a quarter turn to the left for s = 1, to the right for -1.
    DVector ortho(int s) const;

    /// The part of this vector along `v`; `v` itself if the squares of its
    /// components sum to 0.
    DVector projectOn(const DVector& v) const;

    /// projectOn() for a `unit` of length 1, which is not checked.
    DVector projectOnUnit(const DVector& unit) const;

    /// This vector reflected about the direction `v`; its negative if `v` is zero.
    DVector mirror(const DVector& v) const;

    /// Negates both components in place.
    DVector& reverse();

    /// Multiplies x by `sx` and y by `sy` in place.
    DVector& scale(double sx, double sy);

    /// 1 if `v` points to the same side as this vector, else 0.
    ///
    /// Kept as is: where the dot product is smaller than 1e-9 in size, the sign of
    /// the cross product decides. A perpendicular `v` has the same sense if it lies
    /// to the left, and a zero vector has the sense of every other.
    int isSameSense(const DVector& v) const;
};

/// v * s.
ZARNEX_API DVector operator*(double s, const DVector& v);

ZARNEX_INLINE DVector::DVector() : x(0.0), y(0.0) {}

ZARNEX_INLINE DVector::DVector(double xValue, double yValue) : x(xValue), y(yValue) {}

ZARNEX_INLINE double& DVector::xval() {
    return x;
}

ZARNEX_INLINE double& DVector::yval() {
    return y;
}

ZARNEX_INLINE double DVector::xval() const {
    return x;
}

ZARNEX_INLINE double DVector::yval() const {
    return y;
}

ZARNEX_INLINE DVector DVector::operator+(const DVector& v) const {
    return DVector(x + v.x, y + v.y);
}

ZARNEX_INLINE DVector DVector::operator-(const DVector& v) const {
    return DVector(x - v.x, y - v.y);
}

ZARNEX_INLINE DVector DVector::operator-() const {
    return DVector(-x, -y);
}

ZARNEX_INLINE DVector& DVector::operator+=(const DVector& v) {
    return *this = *this + v;
}

ZARNEX_INLINE DVector DVector::operator*(const double& s) const {
    return DVector(x * s, y * s);
}

ZARNEX_INLINE DVector DVector::operator/(const double& d) const {
    if (d >= -zarnex::detail::noDivisorWithin && d <= zarnex::detail::noDivisorWithin)
        return *this;
    return DVector(x / d, y / d);
}

ZARNEX_INLINE double DVector::operator*(const DVector& v) const {
    return zarnex::detail::dot(zarnex::detail::widened(*this), zarnex::detail::widened(v));
}

ZARNEX_INLINE int DVector::operator==(const DVector& v) const {
    namespace detail = zarnex::detail;
    return detail::sameWithinTolerance(detail::widened(*this), detail::widened(v));
}

ZARNEX_INLINE int DVector::operator!=(const DVector& v) const {
    return !(*this == v);
}

ZARNEX_INLINE double DVector::length() const {
    return zarnex::detail::length(zarnex::detail::widened(*this));
}

ZARNEX_INLINE int DVector::operator<(const DVector& v) const {
    return length() < v.length();
}

ZARNEX_INLINE int DVector::operator>(const DVector& v) const {
    return length() > v.length();
}

ZARNEX_INLINE double DVector::squaredLength() const {
    return *this * *this;
}

ZARNEX_INLINE double DVector::cross(const DVector& v) const {
    return zarnex::detail::cross(zarnex::detail::widened(*this), zarnex::detail::widened(v));
}

ZARNEX_INLINE DVector DVector::normalize() const {
    namespace detail = zarnex::detail;
    return detail::truncated<DVector>(detail::normalized(detail::widened(*this)));
}

ZARNEX_INLINE DVector DVector::ortho(int s) const {
    return DVector(-y * s, x * s);
}

ZARNEX_INLINE DVector DVector::projectOn(const DVector& v) const {
    namespace detail = zarnex::detail;
    return detail::truncated<DVector>(
        detail::projected(detail::widened(*this), detail::widened(v)));
}

ZARNEX_INLINE DVector DVector::projectOnUnit(const DVector& unit) const {
    namespace detail = zarnex::detail;
    return detail::truncated<DVector>(
        detail::projectedOnUnit(detail::widened(*this), detail::widened(unit)));
}

ZARNEX_INLINE DVector DVector::mirror(const DVector& v) const {
    return projectOn(v) * 2.0 - *this;
}

ZARNEX_INLINE DVector& DVector::reverse() {
    return *this = -*this;
}

ZARNEX_INLINE DVector& DVector::scale(double sx, double sy) {
    return *this = DVector(x * sx, y * sy);
}

ZARNEX_INLINE int DVector::isSameSense(const DVector& v) const {
    namespace detail = zarnex::detail;
    return detail::sameSense(detail::widened(*this), detail::widened(v));
}

ZARNEX_INLINE DVector operator*(double s, const DVector& v) {
    return v * s;
}

extern template class ZARNEX_API ZList<DVector>;
extern template class ZARNEX_API ZXArray<DVector>;
