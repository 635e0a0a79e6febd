#pragma once

#include <zarnex/transforms/ArbTrans.h>

/// Leaves every point where it is; for DPoint.
template <class P>
class IdTrans : public ArbTrans<P> {
public:
    /// The identity.
    IdTrans();

    /// Nothing to copy: there is no state.
    /// @{
    IdTrans(const IdTrans&) = default;
    IdTrans& operator=(const IdTrans&) = default;
    /// @}

    /// Releases nothing: there is no state.
    ~IdTrans() override;

    /// `p` itself.
    /// @{
    P transform(const P& p) override;
    P reverseTransform(const P& p) override;
    /// @}
};

template <class P>
ZARNEX_TEMPLATE_INLINE IdTrans<P>::IdTrans() {}

template <class P>
ZARNEX_TEMPLATE_INLINE IdTrans<P>::~IdTrans() {}

template <class P>
ZARNEX_TEMPLATE_INLINE P IdTrans<P>::transform(const P& p) {
    return p;
}

template <class P>
ZARNEX_TEMPLATE_INLINE P IdTrans<P>::reverseTransform(const P& p) {
    return p;
}

extern template class ZARNEX_API IdTrans<DPoint>;
