#pragma once

#include <zarnex/config.h>
#include <zarnex/geometry/DPoint.h>
#include <zarnex/geometry/formulas.h>
#include <zarnex/geometry/tolerance.h>
#include <zarnex/transforms/ZMatrix.h>

namespace zarnex::detail {

/// The elements of a 2 x 2 matrix on their way through a formula.
struct Elements {
    double m00;
    double m01;
    double m10;
    double m11;
};

constexpr Elements product(const Elements& a, const Elements& b) {
    return {a.m00 * b.m00 + a.m01 * b.m10, a.m00 * b.m01 + a.m01 * b.m11,
            a.m10 * b.m00 + a.m11 * b.m10, a.m10 * b.m01 + a.m11 * b.m11};
}

/// The inverse of `m`, whose determinant is `det`.
constexpr Elements inverse(const Elements& m, double det) {
    return {m.m11 / det, -m.m01 / det, -m.m10 / det, m.m00 / det};
}

/// The image of the column (x, y).
constexpr Pair mapped(const Elements& m, Pair p) {
    return {m.m00 * p.x + m.m01 * p.y, m.m10 * p.x + m.m11 * p.y};
}

} // namespace zarnex::detail

/// A matrix of 2 rows and 2 columns, the linear part of a map of the plane; for double.
///
/// The elements are m00, m01 in the first row and m10, m11 in the second. Points are
/// columns. Statuses are those of ZMatrix, and so is the safety of arguments that are
/// the object itself or part of it.
///
///     Z2DMatrix<double> m;                // the identity
///     m(0, 1) = 3.0;
///     m *= 2.0;
///     m * DPoint(1.0, 1.0);               // (8, 2)
///     if (m.invert() != 0)
///         return;                         // singular
///
/// Except for solve(), operations that take a ZMatrix are those of ZMatrix, and a call
/// through a ZMatrix& reaches them; those that take a Z2DMatrix are this class's own.
///
/// Kept as is: assigning a ZMatrix of another shape gives the object that shape, although
/// construction from one makes the identity.
///
/// An object of another shape, be it 0 x 0 because its storage could not be had, behaves as
/// a ZMatrix where ZMatrix has the operation. Otherwise, and inverted into a Z2DMatrix, it
/// does nothing until it has two rows and columns again: a status is 1, a determinant 0.0,
/// and points are not moved.
template <class T>
class Z2DMatrix : public ZMatrix<T> {
public:
    /// The identity.
    Z2DMatrix();

    /// Elements of `other`, in storage of its own; its shape too, if that was changed.
    Z2DMatrix(const Z2DMatrix& other);

    /// A copy of a 2 x 2 matrix; the identity for any other shape.
    Z2DMatrix(const ZMatrix<T>& other);

    /// Frees the elements.
    ~Z2DMatrix() override;

    /// Takes shape and elements over.
    /// @{
    Z2DMatrix& operator=(const Z2DMatrix& other);
    Z2DMatrix& operator=(const ZMatrix<T>& other) override;
    /// @}

    /// Makes the rows (1, 0) and (0, 1); returns 0.
    int identity() override;

    /// Sets all four elements to 0.
    void clear() override;

    /// m00 * m11 - m01 * m10.
    T det() const override;

    /// Inverts in place; status 2, with nothing changed, if |det()| <= 1e-9.
    int invert();

    /// Writes the inverse to `out`, which is left alone if this matrix is singular. Status 1
    /// if either has another shape than 2 x 2, in place or not.
    int invert(Z2DMatrix& out) const;

    /// Returns 0 if `out` has the shape of this matrix, else 1.
    ///
    /// Kept as is: ZMatrix::invert(), which writes nothing, although the other two
    /// forms invert.
    int invert(ZMatrix<T>& out) const override;

    /// Exchanges two elements in place.
    ///
    /// Kept as is: exchanges m10 and m11, not m01 and m10: (1, 2, 3, 4) becomes
    /// (1, 2, 4, 3). Returns 0.
    int transpose();

    /// Writes the transpose (m00, m10, m01, m11) to `out`. If either has another shape than
    /// 2 x 2 this is ZMatrix::transpose(), in place or not.
    ///
    /// Kept as is: a 2 x 2 matrix into itself is left as by transpose().
    int transpose(Z2DMatrix& out) const;

    /// Writes the transpose to `out`, which must have the mirrored shape.
    ///
    /// Kept as is: ZMatrix::transpose(), which turns (1, 2, 3, 4) in place into
    /// (1, 2, 2, 4).
    int transpose(ZMatrix<T>& out) const override;

    /// Replaces `b`, which must have two rows, by the inverse of this matrix times `b`.
    /// Status 2, with `b` unchanged, if this matrix is singular.
    int solve(ZMatrix<T>& b) override;

    /// Does nothing and returns 0, as in ZMatrix.
    int guassianReduction(ZMatrix<T>& b, int& rank) override;

    /// Writes this matrix times `b` to `out`, which must have the shape of the product.
    /// @{
    int multiply(const Z2DMatrix& b, Z2DMatrix& out) const;
    int multiply(const ZMatrix<T>& b, ZMatrix<T>& out) const override;
    int multiply(const ZMatrix<T>& b, Z2DMatrix& out) const; // else ambiguous
    /// @}

    /// This matrix times `b`: as a map, `b` acts first. A ZMatrix is taken as
    /// Z2DMatrix(const ZMatrix&) takes it: another shape is the identity.
    ///
    /// Kept as is: multiplies on the right, although the operations of Z2DTrans act on
    /// the left.
    Z2DMatrix& operator*=(const Z2DMatrix& b);

    /// Multiplies every element by `factor`.
    Z2DMatrix& operator*=(const T& factor) override;

    /// Adds or subtracts `b` element by element.
    /// @{
    Z2DMatrix& operator+=(const Z2DMatrix& b);
    Z2DMatrix& operator-=(const Z2DMatrix& b);
    /// @}

    /// As in ZMatrix: only where `b` has the mirrored shape.
    /// @{
    Z2DMatrix& operator+=(const ZMatrix<T>& b) override;
    Z2DMatrix& operator-=(const ZMatrix<T>& b) override;
    /// @}

    /// The image of `p`: (m00 * p.x + m01 * p.y, m10 * p.x + m11 * p.y).
    DPoint operator*(const DPoint& p) const;

protected:
    /// Whether the object has its four elements; without, nothing below may be called.
    bool isWhole() const;

    /// All four elements, to read and to write at once.
    /// @{
    zarnex::detail::Elements elements() const;
    void setElements(const zarnex::detail::Elements& m);
    /// @}
};

template <class T>
Z2DMatrix<T>::Z2DMatrix() : ZMatrix<T>(2, 2, nullptr) {
    Z2DMatrix::identity();
}

template <class T>
Z2DMatrix<T>::Z2DMatrix(const Z2DMatrix& other) : ZMatrix<T>(other) {}

template <class T>
Z2DMatrix<T>::Z2DMatrix(const ZMatrix<T>& other) : Z2DMatrix() {
    if (other.getRows() == 2 && other.getCols() == 2)
        Z2DMatrix::operator=(other);
}

template <class T>
Z2DMatrix<T>::~Z2DMatrix() {}

template <class T>
ZARNEX_TEMPLATE_INLINE bool Z2DMatrix<T>::isWhole() const {
    return this->rows_ == 2 && this->cols_ == 2;
}

template <class T>
ZARNEX_TEMPLATE_INLINE zarnex::detail::Elements Z2DMatrix<T>::elements() const {
    const T* const m = this->data_;
    return {m[0], m[1], m[2], m[3]};
}

template <class T>
ZARNEX_TEMPLATE_INLINE void Z2DMatrix<T>::setElements(const zarnex::detail::Elements& m) {
    T* const own = this->data_;
    own[0] = m.m00;
    own[1] = m.m01;
    own[2] = m.m10;
    own[3] = m.m11;
}

template <class T>
ZARNEX_TEMPLATE_INLINE Z2DMatrix<T>& Z2DMatrix<T>::operator=(const Z2DMatrix& other) {
    if (isWhole() && other.isWhole())
        setElements(other.elements());
    else
        ZMatrix<T>::operator=(other);
    return *this;
}

template <class T>
Z2DMatrix<T>& Z2DMatrix<T>::operator=(const ZMatrix<T>& other) {
    ZMatrix<T>::operator=(other);
    return *this;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int Z2DMatrix<T>::identity() {
    if (!isWhole())
        return ZMatrix<T>::identity();
    setElements({T(1), T(0), T(0), T(1)});
    return 0;
}

template <class T>
ZARNEX_TEMPLATE_INLINE void Z2DMatrix<T>::clear() {
    if (isWhole())
        setElements({T(0), T(0), T(0), T(0)});
    else
        ZMatrix<T>::clear();
}

template <class T>
ZARNEX_TEMPLATE_INLINE T Z2DMatrix<T>::det() const {
    if (!isWhole())
        return T(0);
    const auto m = elements();
    return m.m00 * m.m11 - m.m01 * m.m10;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int Z2DMatrix<T>::invert() {
    if (!isWhole())
        return 1;
    const T d = this->det();
    if (IS_ZERO(d))
        return 2;
    setElements(zarnex::detail::inverse(elements(), d));
    return 0;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int Z2DMatrix<T>::invert(Z2DMatrix& out) const {
    if (!isWhole() || !out.isWhole())
        return 1;
    if (&out == this)
        return out.invert();
    const T d = this->det();
    if (IS_ZERO(d))
        return 2;
    out.setElements(zarnex::detail::inverse(elements(), d));
    return 0;
}

template <class T>
int Z2DMatrix<T>::invert(ZMatrix<T>& out) const {
    return ZMatrix<T>::invert(out);
}

template <class T>
ZARNEX_TEMPLATE_INLINE int Z2DMatrix<T>::transpose() {
    if (!isWhole())
        return 1;
    const auto m = elements();
    setElements({m.m00, m.m01, m.m11, m.m10});
    return 0;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int Z2DMatrix<T>::transpose(Z2DMatrix& out) const {
    if (!isWhole() || !out.isWhole())
        return ZMatrix<T>::transpose(out);
    if (&out == this)
        return out.transpose();
    const auto m = elements();
    out.setElements({m.m00, m.m10, m.m01, m.m11});
    return 0;
}

template <class T>
int Z2DMatrix<T>::transpose(ZMatrix<T>& out) const {
    return ZMatrix<T>::transpose(out);
}

template <class T>
int Z2DMatrix<T>::solve(ZMatrix<T>& b) {
    if (!isWhole())
        return ZMatrix<T>::solve(b);
    if (b.getRows() != 2)
        return 1;
    Z2DMatrix inverse(*this);
    if (!inverse.isWhole())
        return 4;
    if (inverse.invert() != 0)
        return 2;
    ZMatrix<T> solution(2, b.getCols(), nullptr);
    if (solution.getRows() != 2)
        return 4;
    inverse.multiply(b, solution);
    b = solution;
    return 0;
}

template <class T>
int Z2DMatrix<T>::guassianReduction(ZMatrix<T>& b, int& rank) {
    return ZMatrix<T>::guassianReduction(b, rank);
}

template <class T>
ZARNEX_TEMPLATE_INLINE int Z2DMatrix<T>::multiply(const Z2DMatrix& b, Z2DMatrix& out) const {
    if (!isWhole() || !b.isWhole() || !out.isWhole())
        return ZMatrix<T>::multiply(b, out);
    out.setElements(zarnex::detail::product(elements(), b.elements()));
    return 0;
}

template <class T>
int Z2DMatrix<T>::multiply(const ZMatrix<T>& b, ZMatrix<T>& out) const {
    return ZMatrix<T>::multiply(b, out);
}

template <class T>
int Z2DMatrix<T>::multiply(const ZMatrix<T>& b, Z2DMatrix& out) const {
    return multiply(b, static_cast<ZMatrix<T>&>(out));
}

template <class T>
ZARNEX_TEMPLATE_INLINE Z2DMatrix<T>& Z2DMatrix<T>::operator*=(const Z2DMatrix& b) {
    multiply(b, *this);
    return *this;
}

template <class T>
ZARNEX_TEMPLATE_INLINE Z2DMatrix<T>& Z2DMatrix<T>::operator*=(const T& factor) {
    if (!isWhole()) {
        ZMatrix<T>::operator*=(factor);
        return *this;
    }
    const T f = factor;
    const auto m = elements();
    setElements({m.m00 * f, m.m01 * f, m.m10 * f, m.m11 * f});
    return *this;
}

template <class T>
ZARNEX_TEMPLATE_INLINE Z2DMatrix<T>& Z2DMatrix<T>::operator+=(const Z2DMatrix& b) {
    if (!isWhole() || !b.isWhole()) {
        ZMatrix<T>::operator+=(b);
        return *this;
    }
    const auto m = elements();
    const auto n = b.elements();
    setElements({m.m00 + n.m00, m.m01 + n.m01, m.m10 + n.m10, m.m11 + n.m11});
    return *this;
}

template <class T>
ZARNEX_TEMPLATE_INLINE Z2DMatrix<T>& Z2DMatrix<T>::operator-=(const Z2DMatrix& b) {
    if (!isWhole() || !b.isWhole()) {
        ZMatrix<T>::operator-=(b);
        return *this;
    }
    const auto m = elements();
    const auto n = b.elements();
    setElements({m.m00 - n.m00, m.m01 - n.m01, m.m10 - n.m10, m.m11 - n.m11});
    return *this;
}

template <class T>
Z2DMatrix<T>& Z2DMatrix<T>::operator+=(const ZMatrix<T>& b) {
    ZMatrix<T>::operator+=(b);
    return *this;
}

template <class T>
Z2DMatrix<T>& Z2DMatrix<T>::operator-=(const ZMatrix<T>& b) {
    ZMatrix<T>::operator-=(b);
    return *this;
}

template <class T>
ZARNEX_TEMPLATE_INLINE DPoint Z2DMatrix<T>::operator*(const DPoint& p) const {
    namespace detail = zarnex::detail;
    return isWhole() ? detail::truncated<DPoint>(detail::mapped(elements(), detail::widened(p)))
                     : p;
}

extern template class ZARNEX_API Z2DMatrix<double>;
