#pragma once

#include <zarnex/config.h>

#include <algorithm>
#include <cstddef>
#include <new>
#include <utility>

/// A matrix of any shape, with a virtual interface to derive from; for double.
///
/// Rows and columns count from 0; the elements are kept row by row in storage of the
/// object's own. The operations with a status return 0 when done, 1 when the shapes do
/// not fit (nothing is written then), 2 for a singular matrix and 4 when there is no
/// memory for an intermediate result. Nothing throws: a matrix whose storage cannot be
/// had is 0 x 0. Every argument may be the object itself or one of its elements.
///
///     const double values[] = {1, 2, 3, 4, 5, 6};
///     const ZMatrix<double> a(2, 3, values);  // rows (1, 2, 3) and (4, 5, 6)
///     ZMatrix<double> b(3, 2, nullptr);
///     ZMatrix<double> product(2, 2, nullptr);
///     a.transpose(b);
///     a.multiply(b, product);                 // rows (14, 32) and (32, 77)
///
/// Kept as is: there is no determinant, inversion, solving or reduction for general
/// shapes. Only Z2DMatrix has the first three.
template <class T>
class ZMatrix {
public:
    /// Copies rows * cols numbers from `values`; null leaves the elements uninitialised.
    /// 0 x 0 for a negative size and for more than 2^31 - 1 elements.
    ZMatrix(int rows, int cols, const T* values);

    /// Shape and elements of `other`, in storage of its own.
    ZMatrix(const ZMatrix& other);

    /// Frees the elements. Virtual: a Z2DMatrix may be deleted as a ZMatrix.
    virtual ~ZMatrix();

    /// Writes the transpose to `out`, which must have the mirrored shape.
    ///
    /// Kept as is: into the matrix itself, the elements above the diagonal are copied
    /// onto those below and stay: (1, 2, 3, 4) becomes (1, 2, 2, 4).
    virtual int transpose(ZMatrix& out) const;

    /// The determinant, which only derived classes know.
    ///
    /// Kept as is: 0.0 for every shape; Z2DMatrix computes it.
    virtual T det() const;

    /// 1 on the diagonal and 0 elsewhere; status 1 for a matrix that is not square.
    virtual int identity();

    /// Sets every element to 0; the shape stays.
    virtual void clear();

    /// Returns 0 if `out` has the shape of this matrix, else 1.
    ///
    /// Kept as is: inverts nothing and writes nothing. Z2DMatrix::invert() inverts.
    virtual int invert(ZMatrix& out) const;

    /// Solves a system of equations in derived classes.
    ///
    /// Kept as is: does nothing and returns 0; Z2DMatrix solves.
    virtual int solve(ZMatrix& b);

    /// Has a place among the virtual members, and no more.
    ///
    /// Kept as is: does nothing and returns 0, in Z2DMatrix too.
    virtual int guassianReduction(ZMatrix&, int&);

    /// Writes this matrix times `b` to `out`, which must have its shape already. Each
    /// element is summed up from 0.0 in the order of the columns of this matrix.
    virtual int multiply(const ZMatrix& b, ZMatrix& out) const;

    /// Whether the matrix has `rows` rows and `cols` columns: 1 or 0.
    ///
    /// Kept as is: a test of the shape, in spite of its name.
    virtual int rangeCheck(int rows, int cols) const;

    /// Takes shape and elements over. New storage is only made for another number of
    /// elements.
    virtual ZMatrix& operator=(const ZMatrix& other);

    /// Multiplies every element by `factor`.
    virtual ZMatrix& operator*=(const T& factor);

    /// Adds or subtracts `b` element by element, in the order of the storage.
    ///
    /// Kept as is: only if `b` has the mirrored shape, else nothing. A 2 x 3 matrix adds
    /// a 3 x 2 one and ignores a 2 x 3 one; for square matrices the two are the same.
    /// @{
    virtual ZMatrix& operator+=(const ZMatrix& b);
    virtual ZMatrix& operator-=(const ZMatrix& b);
    /// @}

    /// The number of rows, of columns; 0 for a matrix without storage.
    /// @{
    int getRows() const;
    int getCols() const;
    /// @}

    /// The element in row `r` and column `c`. The indices are not checked.
    /// @{
    T& get(int r, int c);
    const T& get(int r, int c) const;
    T& operator()(int r, int c);
    const T& operator()(int r, int c) const;
    /// @}

    /// Sets the element in row `r` and column `c`. The indices are not checked.
    void set(int r, int c, const T& value);

protected:
    /// Exchange two rows or columns; nothing for an index outside of the matrix.
    /// @{
    void swapRow(int a, int b);
    void swapCol(int a, int b);
    /// @}

    /// Exchanges two elements.
    static void swap(T& a, T& b);

    int size() const; ///< rows * columns

    int cols_; ///< columns, at least 0
    int rows_; ///< rows, at least 0
    T* data_;  ///< row by row; null if there is no storage

private:
    /// Takes new storage, without freeing any before; 0 x 0 if there is none.
    void allocate(int rows, int cols);
};

template <class T>
void ZMatrix<T>::allocate(int rows, int cols) {
    const long long count = static_cast<long long>(rows) * cols;
    const bool fits = rows >= 0 && cols >= 0 && count <= 2147483647;
    data_ = fits ? new (std::nothrow) T[static_cast<std::size_t>(count)] : nullptr;
    rows_ = data_ != nullptr ? rows : 0;
    cols_ = data_ != nullptr ? cols : 0;
}

template <class T>
ZMatrix<T>::ZMatrix(int rows, int cols, const T* values) {
    allocate(rows, cols);
    if (values != nullptr)
        std::copy_n(values, size(), data_);
}

template <class T>
ZMatrix<T>::ZMatrix(const ZMatrix& other) : ZMatrix(other.rows_, other.cols_, other.data_) {}

template <class T>
ZMatrix<T>::~ZMatrix() {
    delete[] data_;
}

template <class T>
int ZMatrix<T>::transpose(ZMatrix& out) const {
    if (!rangeCheck(out.cols_, out.rows_))
        return 1;
    const bool inPlace = &out == this;
    for (int r = 0; r < rows_; ++r)
        for (int c = inPlace ? r + 1 : 0; c < cols_; ++c)
            out.get(c, r) = get(r, c);
    return 0;
}

template <class T>
T ZMatrix<T>::det() const {
    return T(0);
}

template <class T>
int ZMatrix<T>::identity() {
    if (rows_ != cols_)
        return 1;
    clear();
    for (int i = 0; i < rows_; ++i)
        get(i, i) = T(1);
    return 0;
}

template <class T>
void ZMatrix<T>::clear() {
    std::fill_n(data_, size(), T(0));
}

template <class T>
int ZMatrix<T>::invert(ZMatrix& out) const {
    return rangeCheck(out.rows_, out.cols_) ? 0 : 1;
}

template <class T>
int ZMatrix<T>::solve(ZMatrix&) {
    return 0;
}

template <class T>
int ZMatrix<T>::guassianReduction(ZMatrix&, int&) {
    return 0;
}

template <class T>
int ZMatrix<T>::multiply(const ZMatrix& b, ZMatrix& out) const {
    if (cols_ != b.rows_ || b.cols_ != out.cols_ || rows_ != out.rows_)
        return 1;
    if (&out == this || &out == &b) {
        ZMatrix product(out.rows_, out.cols_, nullptr);
        if (product.data_ == nullptr)
            return 4;
        ZMatrix::multiply(b, product);
        out = product;
        return 0;
    }

    // Four sums at a time, of neighbours in a row of b and of out. Each runs over k in order.
    constexpr int atOnce = 4;
    const std::ptrdiff_t width = b.cols_;
    for (int i = 0; i < rows_; ++i) {
        const T* const factors = data_ + static_cast<std::ptrdiff_t>(i) * cols_;
        T* const sums = out.data_ + i * width;
        int j = 0;
        for (; j <= out.cols_ - atOnce; j += atOnce) {
            T s0(0), s1(0), s2(0), s3(0);
            const T* from = b.data_ + j;
            for (int k = 0; k < cols_; ++k, from += width) {
                const T factor = factors[k];
                s0 += factor * from[0];
                s1 += factor * from[1];
                s2 += factor * from[2];
                s3 += factor * from[3];
            }
            sums[j] = s0;
            sums[j + 1] = s1;
            sums[j + 2] = s2;
            sums[j + 3] = s3;
        }
        for (; j < out.cols_; ++j) {
            T sum(0);
            for (int k = 0; k < cols_; ++k)
                sum += factors[k] * b.data_[k * width + j];
            sums[j] = sum;
        }
    }
    return 0;
}

template <class T>
int ZMatrix<T>::rangeCheck(int rows, int cols) const {
    return rows_ == rows && cols_ == cols;
}

template <class T>
ZMatrix<T>& ZMatrix<T>::operator=(const ZMatrix& other) {
    if (this == &other)
        return *this;
    if (size() != other.size() || data_ == nullptr) {
        delete[] data_;
        allocate(other.rows_, other.cols_);
    } else {
        rows_ = other.rows_;
        cols_ = other.cols_;
    }
    std::copy_n(other.data_, size(), data_);
    return *this;
}

template <class T>
ZMatrix<T>& ZMatrix<T>::operator*=(const T& factor) {
    const T f = factor;
    std::for_each(data_, data_ + size(), [f](T& element) { element *= f; });
    return *this;
}

template <class T>
ZMatrix<T>& ZMatrix<T>::operator+=(const ZMatrix& b) {
    if (rangeCheck(b.cols_, b.rows_))
        std::transform(data_, data_ + size(), b.data_, data_, [](T x, T y) { return x + y; });
    return *this;
}

template <class T>
ZMatrix<T>& ZMatrix<T>::operator-=(const ZMatrix& b) {
    if (rangeCheck(b.cols_, b.rows_))
        std::transform(data_, data_ + size(), b.data_, data_, [](T x, T y) { return x - y; });
    return *this;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZMatrix<T>::getRows() const {
    return rows_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZMatrix<T>::getCols() const {
    return cols_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE T& ZMatrix<T>::get(int r, int c) {
    return data_[static_cast<std::ptrdiff_t>(r) * cols_ + c];
}

template <class T>
ZARNEX_TEMPLATE_INLINE const T& ZMatrix<T>::get(int r, int c) const {
    return data_[static_cast<std::ptrdiff_t>(r) * cols_ + c];
}

template <class T>
ZARNEX_TEMPLATE_INLINE T& ZMatrix<T>::operator()(int r, int c) {
    return get(r, c);
}

template <class T>
ZARNEX_TEMPLATE_INLINE const T& ZMatrix<T>::operator()(int r, int c) const {
    return get(r, c);
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZMatrix<T>::set(int r, int c, const T& value) {
    get(r, c) = value;
}

template <class T>
void ZMatrix<T>::swapRow(int a, int b) {
    if ((std::min)(a, b) < 0 || (std::max)(a, b) >= rows_)
        return;
    for (int c = 0; c < cols_; ++c)
        swap(get(a, c), get(b, c));
}

template <class T>
void ZMatrix<T>::swapCol(int a, int b) {
    if ((std::min)(a, b) < 0 || (std::max)(a, b) >= cols_)
        return;
    for (int r = 0; r < rows_; ++r)
        swap(get(r, a), get(r, b));
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZMatrix<T>::swap(T& a, T& b) {
    std::swap(a, b);
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZMatrix<T>::size() const {
    return rows_ * cols_;
}

extern template class ZARNEX_API ZMatrix<double>;
