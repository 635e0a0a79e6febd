#pragma once

/// @file
/// Axis-parallel rectangles in double precision.
///
/// Comparisons have a tolerance: an edge v stands for all values from v - t to v + t with
/// t = 1e-10 + 1e-10 * |v|. A rectangle is normalised if left <= right and top <= bottom;
/// all functions but NormalizeDRect and those that only store or compare fields expect it.
/// Whether y grows downward or upward makes no difference.
///
///     DRECT hoop, design, both;
///     SetDRect(&hoop, 0.0, 0.0, 100.0, 80.0);
///     SetDRect(&design, 90.0, 70.0, 120.0, 95.0);
///     IntersectDRect(&both, &hoop, &design); // 1, (90, 70, 100, 80)
///     UnionDRect(&hoop, &hoop, &design);     // (0, 0, 120, 95); a result may be an operand
///
/// Nothing throws or allocates. Null pointers are harmless: a function that changes
/// a rectangle does nothing then and a test returns 0, but a null operand of IntersectDRect,
/// UnionDRect, DRectInDRect and IsDRectEmpty counts as an empty rectangle.
///
/// No comparison with a NaN holds. An infinite edge has an infinite tolerance: it equals
/// every finite edge, but not itself, if it is one of `b` in EqualDRect; PtInDRect finds
/// nothing before it on the right or at the bottom, and DRectInDRect nothing strictly inside.

#include <zarnex/config.h>

#include <cmath>

/// A rectangle. A plain record, uninitialised unless the host gives it values.
struct DRECT {
    double left;   ///< the edge of the least x
    double top;    ///< the edge of the least y
    double right;  ///< the edge of the greatest x
    double bottom; ///< the edge of the greatest y
};

/// A place for the point tests of rectangles; DPoint is the class to calculate with.
struct DBLPOINT {
    /// The coordinates, in the unit of the rectangle.
    /// @{
    double x;
    double y;
    /// @}
};

/// Sets all four fields.
ZARNEX_API void SetDRect(DRECT* r, double left, double top, double right, double bottom);

/// Sets all four fields to 0.
ZARNEX_API void SetDRectEmpty(DRECT* r);

/// Copies all four fields.
ZARNEX_API void CopyDRect(DRECT* dst, const DRECT* src);

/// Moves the left and right edges outward by `dx`, top and bottom by `dy`; inward if those
/// are negative, without a check that edges pass each other.
ZARNEX_API void InflateDRect(DRECT* r, double dx, double dy);

/// Exchanges left and right if left is greater, top and bottom if top is; no exchange
/// where the excess is within the tolerance of left or top.
ZARNEX_API void NormalizeDRect(DRECT* r);

/// 1 if all four fields are from -1e-10 to 1e-10, and for null; else 0.
///
/// Kept as is: empty means all zero, not without an area. (5, 5, 5, 5) is not empty.
ZARNEX_API int IsDRectEmpty(const DRECT* r);

/// 1 if each field of `a` is within the tolerance of the same field of `b`, else 0.
ZARNEX_API int EqualDRect(const DRECT* a, const DRECT* b);

/// 1 if `p` is in the rectangle or on any of its edges, else 0.
ZARNEX_API int PointInDRect(const DRECT* r, const DBLPOINT* p);

/// 1 if `p` is in the rectangle or on its left or top edge, but not on the right or bottom
/// one, else 0.
///
/// Kept as is: half-open, where PointInDRect is closed, and points closer to the right or
/// bottom edge than its tolerance are out. (9.9999999995, 5) is not in (0, 0, 10, 10).
ZARNEX_API int PtInDRect(const DRECT* r, const DBLPOINT* p);

/// 1 and the common part of both, or 0 and an empty `dst` if they are apart or one is empty.
/// Where two edges are equal within the tolerance, `dst` gets that of `a`.
///
/// Kept as is: rectangles that only touch intersect, in one without width or height. At the
/// origin alone that result is all zero and so empty, yet 1 is returned.
ZARNEX_API int IntersectDRect(DRECT* dst, const DRECT* a, const DRECT* b);

/// The smallest rectangle around both; if one is empty, a copy of the other. Where two
/// edges are equal within the tolerance, `dst` gets that of `a`.
ZARNEX_API void UnionDRect(DRECT* dst, const DRECT* a, const DRECT* b);

/// How two rectangles lie: 0 if IntersectDRect finds nothing, 2 if `a` is strictly inside
/// `b`, 3 if `b` is strictly inside `a`, else 1. With an edge in common, or equal, they give 1.
ZARNEX_API int DRectInDRect(const DRECT* a, const DRECT* b);

namespace zarnex::detail {

inline double edgeTolerance(double edge) {
    return 1e-10 + 1e-10 * std::fabs(edge);
}

/// The ends of the range of values that count as equal to an edge.
inline double lowEnd(double edge) {
    return edge - edgeTolerance(edge);
}

inline double highEnd(double edge) {
    return edge + edgeTolerance(edge);
}

/// The smaller and the greater of two edges; `a` where they count as equal.
inline double smallerEdge(double a, double b) {
    return highEnd(b) >= a ? a : b;
}

inline double greaterEdge(double a, double b) {
    return a >= lowEnd(b) ? a : b;
}

inline bool equalEdges(double a, double b) {
    return std::fabs(a - b) <= edgeTolerance(b);
}

inline bool zeroEdge(double edge) {
    return std::fabs(edge) <= 1e-10;
}

inline bool disjoint(const DRECT& a, const DRECT& b) {
    return b.left > highEnd(a.right) || a.left > highEnd(b.right) || b.top > highEnd(a.bottom) ||
           a.top > highEnd(b.bottom);
}

inline bool strictlyInside(const DRECT& inner, const DRECT& outer) {
    return inner.left > highEnd(outer.left) && inner.right < lowEnd(outer.right) &&
           inner.top > highEnd(outer.top) && inner.bottom < lowEnd(outer.bottom);
}

} // namespace zarnex::detail

ZARNEX_INLINE void SetDRect(DRECT* r, double left, double top, double right, double bottom) {
    if (r != nullptr)
        *r = DRECT{left, top, right, bottom};
}

ZARNEX_INLINE void SetDRectEmpty(DRECT* r) {
    SetDRect(r, 0.0, 0.0, 0.0, 0.0);
}

ZARNEX_INLINE void CopyDRect(DRECT* dst, const DRECT* src) {
    if (dst != nullptr && src != nullptr)
        *dst = *src;
}

ZARNEX_INLINE void InflateDRect(DRECT* r, double dx, double dy) {
    if (r != nullptr)
        *r = DRECT{r->left - dx, r->top - dy, r->right + dx, r->bottom + dy};
}

ZARNEX_INLINE void NormalizeDRect(DRECT* r) {
    using zarnex::detail::lowEnd;
    if (r == nullptr)
        return;
    if (lowEnd(r->left) > r->right)
        *r = DRECT{r->right, r->top, r->left, r->bottom};
    if (lowEnd(r->top) > r->bottom)
        *r = DRECT{r->left, r->bottom, r->right, r->top};
}

ZARNEX_INLINE int IsDRectEmpty(const DRECT* r) {
    using zarnex::detail::zeroEdge;
    return r == nullptr ||
           (zeroEdge(r->left) && zeroEdge(r->top) && zeroEdge(r->right) && zeroEdge(r->bottom));
}

ZARNEX_INLINE int EqualDRect(const DRECT* a, const DRECT* b) {
    using zarnex::detail::equalEdges;
    return a != nullptr && b != nullptr && equalEdges(a->left, b->left) &&
           equalEdges(a->top, b->top) && equalEdges(a->right, b->right) &&
           equalEdges(a->bottom, b->bottom);
}

ZARNEX_INLINE int PointInDRect(const DRECT* r, const DBLPOINT* p) {
    namespace detail = zarnex::detail;
    return r != nullptr && p != nullptr && p->x >= detail::lowEnd(r->left) &&
           p->x <= detail::highEnd(r->right) && p->y >= detail::lowEnd(r->top) &&
           p->y <= detail::highEnd(r->bottom);
}

ZARNEX_INLINE int PtInDRect(const DRECT* r, const DBLPOINT* p) {
    using zarnex::detail::lowEnd;
    return r != nullptr && p != nullptr && p->x >= lowEnd(r->left) && p->x < lowEnd(r->right) &&
           p->y >= lowEnd(r->top) && p->y < lowEnd(r->bottom);
}

ZARNEX_INLINE int IntersectDRect(DRECT* dst, const DRECT* a, const DRECT* b) {
    namespace detail = zarnex::detail;
    if (dst == nullptr)
        return 0;
    if (IsDRectEmpty(a) || IsDRectEmpty(b) || detail::disjoint(*a, *b)) {
        SetDRectEmpty(dst);
        return 0;
    }
    *dst =
        DRECT{detail::greaterEdge(a->left, b->left), detail::greaterEdge(a->top, b->top),
              detail::smallerEdge(a->right, b->right), detail::smallerEdge(a->bottom, b->bottom)};
    return 1;
}

ZARNEX_INLINE void UnionDRect(DRECT* dst, const DRECT* a, const DRECT* b) {
    namespace detail = zarnex::detail;
    if (dst == nullptr)
        return;
    if (!IsDRectEmpty(a) && !IsDRectEmpty(b))
        *dst = DRECT{detail::smallerEdge(a->left, b->left), detail::smallerEdge(a->top, b->top),
                     detail::greaterEdge(a->right, b->right),
                     detail::greaterEdge(a->bottom, b->bottom)};
    else if (const DRECT* rest = IsDRectEmpty(a) ? b : a; rest != nullptr)
        *dst = *rest;
    else
        SetDRectEmpty(dst);
}

ZARNEX_INLINE int DRectInDRect(const DRECT* a, const DRECT* b) {
    namespace detail = zarnex::detail;
    if (IsDRectEmpty(a) || IsDRectEmpty(b) || detail::disjoint(*a, *b))
        return 0;
    return detail::strictlyInside(*a, *b) ? 2 : detail::strictlyInside(*b, *a) ? 3 : 1;
}
