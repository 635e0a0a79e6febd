#pragma once

/// @file
/// Z2DTrans, and what it does to points and vectors.

#include <zarnex/config.h>
#include <zarnex/geometry/DPoint.h>
#include <zarnex/geometry/DVector.h>
#include <zarnex/geometry/IPoint.h>
#include <zarnex/geometry/IVector.h>
#include <zarnex/geometry/formulas.h>
#include <zarnex/geometry/rounding.h>
#include <zarnex/transforms/Z2DMatrix.h>

#include <type_traits>

/// A linear transform of the plane.
///
/// A 2 x 2 matrix with rotations, scalings, shears and reflections to put together.
/// Points and vectors are columns and go to the right of it. There is no translation:
/// the origin stays, and points and vectors are transformed alike.
///
///     Z2DTrans t;
///     t.rotate(std::acos(-1.0) / 2.0).xScale(2.0);    // turns, then stretches
///     t * DPoint(0.0, 1.0);                           // about (-2, 0)
///
///     a.compose(b);                                   // a, and then b
///     t.invert(back);                                 // the way back; 2 if there is none
///     centre + t * (p - centre)                       // about another point
///
/// Every operation acts after those before it, on the left of the matrix, and returns
/// the transform. Angles turn counter-clockwise with y growing upward. Overflow and NaN
/// follow IEEE arithmetic. A transform that was given another shape (see Z2DMatrix) is
/// left alone by all operations and maps everything to itself.
class ZARNEX_API Z2DTrans : public Z2DMatrix<double> {
public:
    /// The identity.
    Z2DTrans();

    /// Elements of `other`, in storage of its own.
    Z2DTrans(const Z2DTrans& other);

    /// The two vectors are the rows: (1, 0) is taken to (a.x, b.x).
    Z2DTrans(const DVector& a, const DVector& b);

    /// Frees the elements.
    ~Z2DTrans() override;

    /// Takes shape and elements over, as Z2DMatrix does.
    /// @{
    Z2DTrans& operator=(const Z2DTrans& other);
    Z2DTrans& operator=(const ZMatrix<double>& other) override;
    /// @}

    /// Turns by `angle` in radians, unlike DPoint::rotate().
    Z2DTrans& rotate(double angle);

    /// Turns by `degrees`.
    ///
    /// Kept as is: pi is 3.141592654 here, as in angle(); DPoint::rotate has 3.1415926.
    Z2DTrans& rotateInDegree(double degrees);

    /// Turns the x axis onto the direction of `v`; nothing if the length of `v` is at
    /// most 1e-9.
    ///
    /// Kept as is: each component of `v` takes part in cosine and sine, if only times
    /// 0.0, so that an infinite one makes every element NaN; Z2DRotate divides each by
    /// the length.
    Z2DTrans& rotate(const DVector& v);

    /// Turns the direction of `v` onto that of `u`; nothing if the product of their
    /// lengths is at most 1e-9.
    ///
    /// Kept as is: the angle is that of `u` less that of `v`, although rotate(v) turns
    /// onto its argument.
    Z2DTrans& rotate(const DVector& u, const DVector& v);

    /// Multiplies x coordinates by `sx` and y coordinates by `sy`; one of the two by `s`.
    /// @{
    Z2DTrans& scale(double sx, double sy);
    Z2DTrans& xScale(double s);
    Z2DTrans& yScale(double s);
    /// @}

    Z2DTrans& mirror(); ///< changes the sign of x
    Z2DTrans& flip();   ///< changes the sign of y

    Z2DTrans& xShear(double k); ///< adds `k` times y to x
    Z2DTrans& yShear(double k); ///< adds `k` times x to y

    /// Lets `b` act after this transform.
    ///
    /// Kept as is: multiplies by `b` on the left, although *= does so on the right.
    Z2DTrans& compose(const Z2DTrans& b);

    /// Factors the transform into a scaling by `sx` and `sy` and, after that, `rest`: the
    /// columns of `rest` are those of this transform over `sx` and over `sy`.
    ///
    /// On entry `nx` and `ny` are counts of at least 1. `sx` is i / nx, i being the square
    /// root of nx times the squared length of the first column, truncated, and i becomes
    /// `nx`; `sy` and `ny` are made of the second column in the same way. Returns 0, or 1
    /// for a determinant below or within 1e-9 of 0, for a count below 1, and if a product
    /// under a root or a factor is within 1e-9 of 0; `rest`, `nx` and `ny` are unchanged
    /// then. `rest` may be this transform.
    ///
    /// Kept as is: `sx` and `sy` are written before they are found to be zero, although the
    /// other outputs are not. The count stands under the root only once, so that it lowers
    /// the factor: a column of length 2 gives 2 for a count of 1, but 1 for a count of 4.
    int split(Z2DTrans& rest, double& sx, double& sy, int& nx, int& ny) const;
};

/// The image of a point or vector.
/// @{
ZARNEX_API DPoint operator*(const Z2DTrans& t, const DPoint& p);
ZARNEX_API DVector operator*(const Z2DTrans& t, const DVector& v);
/// @}

/// The same, computed in doubles and rounded, halves away from zero; the nearest int
/// where a coordinate does not fit and 0 for NaN.
///
/// Kept as is: exact, so that the largest double below 0.5 becomes 0, although
/// IPoint::roundScale() takes it to 1 (see zarnex::roundHalfAway).
/// @{
ZARNEX_API IPoint operator*(const Z2DTrans& t, const IPoint& p);
ZARNEX_API IVector operator*(const Z2DTrans& t, const IVector& v);
/// @}

/// Replaces the point or vector by its image and returns it.
/// @{
ZARNEX_API DPoint& operator*=(DPoint& p, const Z2DTrans& t);
ZARNEX_API DVector& operator*=(DVector& v, const Z2DTrans& t);
ZARNEX_API IPoint& operator*=(IPoint& p, const Z2DTrans& t);
ZARNEX_API IVector& operator*=(IVector& v, const Z2DTrans& t);
/// @}

ZARNEX_INLINE Z2DTrans& Z2DTrans::operator=(const Z2DTrans& other) {
    Z2DMatrix<double>::operator=(other);
    return *this;
}

ZARNEX_INLINE Z2DTrans& Z2DTrans::xScale(double s) {
    if (isWhole()) {
        data_[0] *= s;
        data_[1] *= s;
    }
    return *this;
}

ZARNEX_INLINE Z2DTrans& Z2DTrans::yScale(double s) {
    if (isWhole()) {
        data_[2] *= s;
        data_[3] *= s;
    }
    return *this;
}

ZARNEX_INLINE Z2DTrans& Z2DTrans::scale(double sx, double sy) {
    return xScale(sx).yScale(sy);
}

ZARNEX_INLINE Z2DTrans& Z2DTrans::mirror() {
    return xScale(-1.0);
}

ZARNEX_INLINE Z2DTrans& Z2DTrans::flip() {
    return yScale(-1.0);
}

ZARNEX_INLINE Z2DTrans& Z2DTrans::xShear(double k) {
    if (isWhole()) {
        data_[0] += k * data_[2];
        data_[1] += k * data_[3];
    }
    return *this;
}

ZARNEX_INLINE Z2DTrans& Z2DTrans::yShear(double k) {
    if (isWhole()) {
        data_[2] += k * data_[0];
        data_[3] += k * data_[1];
    }
    return *this;
}

ZARNEX_INLINE Z2DTrans& Z2DTrans::compose(const Z2DTrans& b) {
    if (isWhole() && b.isWhole())
        setElements(zarnex::detail::product(b.elements(), elements()));
    return *this;
}

namespace zarnex::detail {

/// The image of `v`, a point or vector of either kind.
template <class V>
V transformed(const Z2DMatrix<double>& m, const V& v) {
    const DPoint image = m * truncated<DPoint>(widened(v));
    if constexpr (std::is_same_v<decltype(V::x), double>)
        return V(image.x, image.y);
    else
        return V(roundToNearestInt(image.x), roundToNearestInt(image.y));
}

} // namespace zarnex::detail

ZARNEX_INLINE DPoint operator*(const Z2DTrans& t, const DPoint& p) {
    return zarnex::detail::transformed(t, p);
}

ZARNEX_INLINE DVector operator*(const Z2DTrans& t, const DVector& v) {
    return zarnex::detail::transformed(t, v);
}

ZARNEX_INLINE IPoint operator*(const Z2DTrans& t, const IPoint& p) {
    return zarnex::detail::transformed(t, p);
}

ZARNEX_INLINE IVector operator*(const Z2DTrans& t, const IVector& v) {
    return zarnex::detail::transformed(t, v);
}

ZARNEX_INLINE DPoint& operator*=(DPoint& p, const Z2DTrans& t) {
    return p = t * p;
}

ZARNEX_INLINE DVector& operator*=(DVector& v, const Z2DTrans& t) {
    return v = t * v;
}

ZARNEX_INLINE IPoint& operator*=(IPoint& p, const Z2DTrans& t) {
    return p = t * p;
}

ZARNEX_INLINE IVector& operator*=(IVector& v, const Z2DTrans& t) {
    return v = t * v;
}
