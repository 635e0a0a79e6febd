#pragma once

#include <zarnex/config.h>
#include <zarnex/geometry/DPoint.h>

/// A map of points with a way back, to derive from; for DPoint.
///
/// Derived classes make both operations, which may change the object: pass transforms by
/// pointers and references that are not const. The bodies that stand here return the point
/// unchanged. The library has this family for DPoint alone.
template <class P>
class ArbTrans {
public:
    /// Nothing to set up: the state is that of derived classes.
    ArbTrans();

    /// Nothing to copy: the state is that of derived classes.
    /// @{
    ArbTrans(const ArbTrans&) = default;
    ArbTrans& operator=(const ArbTrans&) = default;
    /// @}

    /// Virtual: hosts delete transforms as this class.
    virtual ~ArbTrans();

    virtual P transform(const P& p) = 0;        ///< the image of `p`
    virtual P reverseTransform(const P& p) = 0; ///< the way back: what transform() takes to `p`
};

template <class P>
ZARNEX_TEMPLATE_INLINE ArbTrans<P>::ArbTrans() {}

template <class P>
ZARNEX_TEMPLATE_INLINE ArbTrans<P>::~ArbTrans() {}

template <class P>
P ArbTrans<P>::transform(const P& p) {
    return p;
}

template <class P>
P ArbTrans<P>::reverseTransform(const P& p) {
    return p;
}

extern template class ZARNEX_API ArbTrans<DPoint>;
