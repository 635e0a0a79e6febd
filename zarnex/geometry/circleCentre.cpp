#include <zarnex/geometry/circleCentre.h>

#include <zarnex/geometry/formulas.h>
#include <zarnex/geometry/tolerance.h>

#include <cmath>
#include <utility>

namespace {

using zarnex::detail::dot;
using zarnex::detail::widened;

// The centres (x, y) with kx * x + ky * y = rhs are as far from one point as from another.
struct Bisector {
    double kx;
    double ky;
    double rhs;
};

Bisector bisector(const DPoint& p, const DPoint& q) {
    return {2.0 * (p.x - q.x), 2.0 * (p.y - q.y),
            dot(widened(p), widened(p)) - dot(widened(q), widened(q))};
}

bool anyTwoCoincide(const DPoint& p1, const DPoint& p2, const DPoint& p3, double within) {
    return isEqual(p3, p2, within) || isEqual(p2, p1, within) || isEqual(p3, p1, within);
}

// Whether the sine between the steps, each after DVector::normalize(), is below the bound.
//
// For all but nearly straight steps the squares tell, 5 % from the bound, where the rounding
// on either way does not reach. Whatever is short, overflows or is a NaN fails that test.
bool isStraight(const DVector& u, const DVector& v) {
    constexpr double straightBelow = 0.01;
    constexpr double bentAbove = 1.1e-4; // its square and some more
    const double uu = u.squaredLength();
    const double vv = v.squaredLength();
    const double k = u.cross(v);
    if (uu > zarnex::detail::shortSquaredLength && vv > zarnex::detail::shortSquaredLength &&
        k * k > bentAbove * (uu * vv))
        return false;
    return std::fabs(u.normalize().cross(v.normalize())) < straightBelow;
}

int found(DPoint* centre, double x, double y) {
    if (centre != nullptr)
        *centre = DPoint(x, y);
    return 0;
}

constexpr int noCentre = -1;

} // namespace

int computeCentre(DPoint* centre, const DPoint& p1, const DPoint& p2, const DPoint& p3) {
    constexpr double coincidentWithin = 1e-7;
    if (anyTwoCoincide(p1, p2, p3, coincidentWithin))
        return noCentre;
    if (isStraight(p2 - p1, p3 - p1))
        return noCentre;

    const Bisector a = bisector(p1, p2);
    const Bisector b = bisector(p1, p3);
    const double det = a.kx * b.ky - b.kx * a.ky;
    if (IS_ZERO(det))
        return noCentre;
    return found(centre, (a.rhs * b.ky - b.rhs * a.ky) / det, (a.kx * b.rhs - b.kx * a.rhs) / det);
}

int LUcomputeCentre(DPoint* centre, const DPoint& p1, const DPoint& p2, const DPoint& p3) {
    constexpr double coincidentWithin = 1e-9;
    if (anyTwoCoincide(p1, p2, p3, coincidentWithin))
        return noCentre;

    Bisector a = bisector(p1, p2);
    Bisector b = bisector(p1, p3);
    if (std::fabs(b.kx) > std::fabs(a.kx))
        std::swap(a, b);
    if (IS_ZERO(a.kx))
        return noCentre;
    const double m = b.kx / a.kx;
    const double ky = b.ky - m * a.ky;
    const double rhs = b.rhs - m * a.rhs;
    if (IS_ZERO(ky))
        return noCentre;
    const double y = rhs / ky;
    return found(centre, (a.rhs - a.ky * y) / a.kx, y);
}
