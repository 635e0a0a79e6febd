#pragma once

/// @file
/// Transforms of one step each, by their names: a rotation, scalings and shears.
///
/// They are Z2DTrans in everything but their constructors, so that what was made as one
/// of them can become any other transform.

#include <zarnex/config.h>
#include <zarnex/geometry/DVector.h>
#include <zarnex/transforms/Z2DTrans.h>

/// A rotation about the origin.
class ZARNEX_API Z2DRotate : public Z2DTrans {
public:
    /// The identity.
    Z2DRotate();

    /// Elements of `other`, in storage of its own.
    Z2DRotate(const Z2DRotate& other);

    /// By `angle`, in radians.
    Z2DRotate(double angle);

    /// Takes the x axis onto the direction of `v`; the identity if the length of `v` is
    /// at most 1e-9.
    Z2DRotate(const DVector& v);

    /// Takes the direction of `v` onto that of `u`; the identity if the product of their
    /// lengths is at most 1e-9.
    ///
    /// Kept as is: the angle is that of `u` less that of `v`, although Z2DRotate(v) turns
    /// onto its argument.
    Z2DRotate(const DVector& u, const DVector& v);

    /// Frees the elements.
    ~Z2DRotate() override;

    /// Takes any elements over, rotation or not.
    /// @{
    Z2DRotate& operator=(const Z2DRotate& other);
    Z2DRotate& operator=(const ZMatrix<double>& other) override;
    /// @}
};

/// x times a factor: (s, 0, 0, 1).
class ZARNEX_API Z2DXScale : public Z2DTrans {
public:
    /// The identity.
    Z2DXScale();

    /// Elements of `other`, in storage of its own.
    Z2DXScale(const Z2DXScale& other);

    /// Multiplies x by `s`.
    Z2DXScale(double s);

    /// Frees the elements.
    ~Z2DXScale() override;

    /// Takes any elements over, of this form or not.
    /// @{
    Z2DXScale& operator=(const Z2DXScale& other);
    Z2DXScale& operator=(const ZMatrix<double>& other) override;
    /// @}
};

/// y times a factor: (1, 0, 0, s).
class ZARNEX_API Z2DYScale : public Z2DTrans {
public:
    /// The identity.
    Z2DYScale();

    /// Elements of `other`, in storage of its own.
    Z2DYScale(const Z2DYScale& other);

    /// Multiplies y by `s`.
    Z2DYScale(double s);

    /// Frees the elements.
    ~Z2DYScale() override;

    /// Takes any elements over, of this form or not.
    /// @{
    Z2DYScale& operator=(const Z2DYScale& other);
    Z2DYScale& operator=(const ZMatrix<double>& other) override;
    /// @}
};

/// x and `k` times y: (1, k, 0, 1).
class ZARNEX_API Z2DXShear : public Z2DTrans {
public:
    /// The identity.
    Z2DXShear();

    /// Elements of `other`, in storage of its own.
    Z2DXShear(const Z2DXShear& other);

    /// Adds `k` times y to x.
    Z2DXShear(double k);

    /// Frees the elements.
    ~Z2DXShear() override;

    /// Takes any elements over, of this form or not.
    /// @{
    Z2DXShear& operator=(const Z2DXShear& other);
    Z2DXShear& operator=(const ZMatrix<double>& other) override;
    /// @}
};

/// y and `k` times x: (1, 0, k, 1).
class ZARNEX_API Z2DYShear : public Z2DTrans {
public:
    /// The identity.
    Z2DYShear();

    /// Elements of `other`, in storage of its own.
    Z2DYShear(const Z2DYShear& other);

    /// Adds `k` times x to y.
    Z2DYShear(double k);

    /// Frees the elements.
    ~Z2DYShear() override;

    /// Takes any elements over, of this form or not.
    /// @{
    Z2DYShear& operator=(const Z2DYShear& other);
    Z2DYShear& operator=(const ZMatrix<double>& other) override;
    /// @}
};
