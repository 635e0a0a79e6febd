#include <zarnex/geometry/segmentOverlap.h>

#include <zarnex/geometry/projection.h>
#include <zarnex/geometry/tolerance.h>

#include <utility>

OverlapLineReturnCode findOverlapLine(DPoint& start, DPoint& end, const DPoint& a, const DPoint& b,
                                      const DPoint& c, const DPoint& d) {
    const DVector along = b - a;
    const double length = along.length();
    if (IS_ZERO(length))
        return OverlapLineDegenerate;
    DPoint first;
    DPoint last;
    if (projectPointOntoLine(first, c, a, b) != 0 || projectPointOntoLine(last, d, a, b) != 0)
        return OverlapLineNotProjected;
    if (!(last - first).isSameSense(along))
        std::swap(first, last);
    if (!(last - a).isSameSense(along))
        return OverlapLineBefore;
    if ((first - b).isSameSense(along))
        return OverlapLineBeyond;
    const DPoint from = first.distance(b) >= length ? a : first;
    const DPoint to = last.distance(a) >= length ? b : last;
    start = from;
    end = to;
    return OverlapLineFound;
}
