#include <zarnex/geometry/lineTests.h>

#include <zarnex/geometry/formulas.h>
#include <zarnex/geometry/projection.h>

namespace {

// Strict and by coordinate, unlike isEqual().
bool isNear(const DPoint& p, const DPoint& q, double tol) {
    return std::fabs(p.x - q.x) < tol && std::fabs(p.y - q.y) < tol;
}

// Whether one coordinate puts `p` beyond the near end of a segment. The tolerance is added to
// that end in both cases, never to `p`.
bool isBeyond(double p, double nearEnd, double farEnd, double tol) {
    return (nearEnd > farEnd && p > nearEnd + tol) || (nearEnd > p && farEnd > nearEnd + tol);
}

bool isBeyond(int p, int nearEnd, int farEnd) {
    return (farEnd < nearEnd && nearEnd < p) || (p < nearEnd && nearEnd < farEnd);
}

// |a - b| in 32 bits; the least int for itself.
int wrappedDistance(int a, int b) {
    using namespace zarnex::detail;
    const int d = difference(a, b);
    return d < 0 ? negated(d) : d;
}

} // namespace

int collinear(const DPoint& a, const DPoint& b, const DPoint& c, const DPoint& d, double distTol,
              double angleTol) {
    const double squaredAb = a.squaredDistance(b);
    const double squaredCd = c.squaredDistance(d);
    const bool abIsLong = squaredAb > distTol * distTol;
    const bool cdIsLong = squaredCd > distTol * distTol;
    const double ab = std::sqrt(squaredAb);
    const double cd = std::sqrt(squaredCd);
    if (abIsLong && cdIsLong) {
        if (std::fabs(crossProd(a, b, c, d)) / ab / cd > angleTol)
            return 0;
        return std::fabs(crossProd(a, b, a, d)) / ab <= distTol;
    }
    if (abIsLong)
        return std::fabs(crossProd(a, b, a, c)) / ab <= distTol;
    if (cdIsLong)
        return std::fabs(crossProd(c, d, c, a)) / cd <= distTol;
    return 1;
}

int collinear(DPoint* a, DPoint* b, DPoint* c, DPoint* d) {
    constexpr double distTol = 0.1;
    constexpr double angleTol = 0.017453292522222223; // 3.141592654 / 180
    if (a == nullptr || b == nullptr || c == nullptr || d == nullptr)
        return 0;
    return collinear(*a, *b, *c, *d, distTol, angleTol);
}

int pointOnLineSegment(const DPoint& p, const DPoint& a, const DPoint& b, double tol) {
    if (isNear(p, a, tol) || isNear(p, b, tol))
        return 2;
    if (isNear(a, b, tol))
        return 0;
    const double slopes =
        std::fabs(a.x - b.x) * std::fabs(b.y - p.y) - std::fabs(b.x - p.x) * std::fabs(b.y - a.y);
    if (std::fabs(slopes) > tol)
        return 0;
    if (isBeyond(p.x, a.x, b.x, tol) || isBeyond(p.y, a.y, b.y, tol))
        return 1;
    if (isBeyond(p.x, b.x, a.x, tol) || isBeyond(p.y, b.y, a.y, tol))
        return 3;
    return 2;
}

int pointOnLineSegment(const IPoint& p, const IPoint& a, const IPoint& b) {
    using zarnex::detail::product;
    if (p == a || p == b)
        return 2;
    if (product(wrappedDistance(a.x, b.x), wrappedDistance(b.y, p.y)) !=
        product(wrappedDistance(b.x, p.x), wrappedDistance(b.y, a.y)))
        return 0;
    if (isBeyond(p.x, a.x, b.x) || isBeyond(p.y, a.y, b.y))
        return 1;
    if (isBeyond(p.x, b.x, a.x) || isBeyond(p.y, b.y, a.y))
        return 3;
    return 2;
}

int quickCheckPointOnLine(const DPoint& p, const DPoint& a, const DPoint& b, double tol,
                          double relTol) {
    if (quickCheckPointOnLine(p, a, b, tol))
        return 1;
    if (IS_ZERO(relTol))
        return 0;
    const double squared = a.squaredDistance(b);
    if (IS_ZERO(squared))
        return isEqual(p, a, tol) || isEqual(p, b, tol);
    const double sum = p.distance(a) + p.distance(b);
    return IS_EQUAL(sum * sum / squared, 1.0, relTol) ||
           squaredDistanceToVector(a, b, p) < tol * tol;
}
