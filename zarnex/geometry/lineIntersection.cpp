// What is short stands in the header; the library exports the copies that it makes here.
#include <zarnex/geometry/lineIntersection.h>

#include <zarnex/geometry/internal/withinEnds.h>

int isContainedIntersect(const DPoint& a, const DPoint& b, const DPoint& c, const DPoint& d) {
    DPoint p;
    return intersect(p, a, b, c, d) == 0 && zarnex::detail::withinEnds(p, a, b, c, d);
}
