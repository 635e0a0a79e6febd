#pragma once

#include <zarnex/config.h>
#include <zarnex/geometry/DPoint.h>
#include <zarnex/geometry/ZTPoint.h>
#include <zarnex/platform/records.h>

/// A point for drawing: a ZTPoint<double> that converts to and from a DPoint.
///
/// Arithmetic and comparison are those of ZTPoint<double>, exact and without
/// tolerance. There are also private conversions to and from the platform's point.
class ZARNEX_API GPoint : public ZTPoint<double> {
public:
    /// The origin.
    GPoint();

    /// Both coordinates `v`.
    GPoint(double v);
    GPoint(double x, double y); ///< the point (x, y)

    /// The same place, as it is.
    /// @{
    GPoint(const ZTPoint<double>& p);
    GPoint(const DPoint& p);
    /// @}

    /// Both coordinates, as they are.
    /// @{
    GPoint(const GPoint&) = default;
    GPoint& operator=(const GPoint&) = default;
    /// @}

    /// Releases nothing: the coordinates are in the object.
    ~GPoint() override;

    /// The same place, as it is.
    operator DPoint() const;

    /// A coordinate.
    /// @{
    double getX() const;
    double getY() const;
    /// @}

    /// Sets both coordinates. An argument may be a coordinate of the point.
    void set(const double& x, const double& y);

    /// Sets both coordinates to 0.
    void init();

    /// Writes "( 1.5 , -2 )" and a line feed to the library's std::cout, the coordinates in
    /// the format that the stream is set to. On Linux that is the host's stream too; the DLL
    /// has one of its own, over the same standard output.
    void show() const;

private:
    GPoint(tagPOINT p);

    /// Each coordinate is truncated toward zero; the nearest 32-bit integer where it
    /// does not fit, 0 for NaN.
    operator tagPOINT() const;
};

ZARNEX_INLINE GPoint::GPoint() {}

ZARNEX_INLINE GPoint::GPoint(double v) : ZTPoint<double>(v) {}

ZARNEX_INLINE GPoint::GPoint(double xValue, double yValue) : ZTPoint<double>(xValue, yValue) {}

ZARNEX_INLINE GPoint::GPoint(const ZTPoint<double>& p) : ZTPoint<double>(p) {}

ZARNEX_INLINE GPoint::GPoint(const DPoint& p) : ZTPoint<double>(p.x, p.y) {}

ZARNEX_INLINE GPoint::operator DPoint() const {
    return DPoint(x, y);
}

ZARNEX_INLINE double GPoint::getX() const {
    return x;
}

ZARNEX_INLINE double GPoint::getY() const {
    return y;
}

ZARNEX_INLINE void GPoint::set(const double& xValue, const double& yValue) {
    const double newY = yValue; // may be a reference to x
    x = xValue;
    y = newY;
}

ZARNEX_INLINE void GPoint::init() {
    set(0.0, 0.0);
}
