#include <zarnex/geometry/orientation.h>

#include <zarnex/geometry/tolerance.h>

#include <cmath>
#include <iterator>

namespace {

// Whether the cross product `k` of two steps has the sign that it has after normalizing
// them, given the sizes of its products together and the product of the squared lengths.
//
// Each way rounds by less than 2e-15 of the sizes. In the range that is asked for, a
// squared length cannot overflow, nor a product on the way underflow by as much.
bool signIsCertain(double k, double sizes, double squares) {
    const double size = std::fabs(k);
    return size > 1e-14 * sizes && size > 1e-100 && squares < 1e200;
}

using Ring = std::list<DPoint>;
using Place = Ring::const_iterator;

Place before(const Ring& ring, Place place) {
    return std::prev(place == ring.begin() ? ring.end() : place);
}

Place after(const Ring& ring, Place place) {
    const Place next = std::next(place);
    return next == ring.end() ? ring.begin() : next;
}

// The first point with the greatest y.
Place topmost(const Ring& ring) {
    Place top = ring.begin();
    double greatest = top->y;
    for (Place place = std::next(top); place != ring.end(); ++place) {
        if (place->y > greatest) {
            top = place;
            greatest = place->y;
        }
    }
    return top;
}

// The nearest point before `top` that lies apart from it; the one after it if none does.
Place apartBefore(const Ring& ring, Place top) {
    constexpr double coincidentWithin = 1e-9; // of squared distances
    Place place = before(ring, top);
    while (IS_ZERO(place->squaredDistance(*top), coincidentWithin)) {
        const Place next = before(ring, place);
        if (next == top)
            break;
        place = next;
    }
    return place;
}

// The turn at `top`, coming from `from`, to the first point after it that makes one.
int turnAt(const Ring& ring, Place from, Place top) {
    for (Place to = after(ring, top); to != top; to = after(ring, to)) {
        if (const int turn = Are3PointsCCW(*from, *top, *to); turn != 0)
            return turn;
    }
    return 0;
}

} // namespace

int Are3PointsCCW(const DPoint& a, const DPoint& b, const DPoint& c) {
    const DVector u = b - a;
    const DVector v = c - b;
    const double left = u.x * v.y;
    const double right = u.y * v.x;
    double k = left - right;
    if (!signIsCertain(k, std::fabs(left) + std::fabs(right),
                       u.squaredLength() * v.squaredLength()))
        k = u.normalize().cross(v.normalize());
    return k > 0.0 ? 1 : k < 0.0 ? -1 : 0;
}

int isCCWSTDListDPoint(int& valid, const std::list<DPoint>& outline) {
    valid = 0;
    if (outline.size() < 3)
        return 0;
    const Place top = topmost(outline);
    const int turn = turnAt(outline, apartBefore(outline, top), top);
    valid = turn != 0;
    return turn > 0;
}
