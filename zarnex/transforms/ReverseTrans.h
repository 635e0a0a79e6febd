#pragma once

#include <zarnex/transforms/ArbTrans.h>

/// Another transform with its two directions exchanged; for DPoint.
///
///     ReverseTrans<DPoint> back(&there, 0);
///     back.transform(p);          // there.reverseTransform(p)
///
/// Without another transform, the identity.
template <class P>
class ReverseTrans : public ArbTrans<P> {
public:
    /// `inner` may be null. It must outlive this object unless `owns` is not 0: then it
    /// is deleted with it.
    ReverseTrans(ArbTrans<P>* inner, int owns);

    /// Refers to the same transform.
    ///
    /// Kept as is: shallow, also as to ownership. Two objects that own one transform both
    /// delete it, and what an object owned before an assignment is not deleted; copy only
    /// objects that own nothing.
    /// @{
    ReverseTrans(const ReverseTrans&) = default;
    ReverseTrans& operator=(const ReverseTrans&) = default;
    /// @}

    /// Deletes the other transform if it owns that.
    ~ReverseTrans() override;

    P transform(const P& p) override;        ///< reverseTransform() of the other transform
    P reverseTransform(const P& p) override; ///< transform() of the other transform

private:
    ArbTrans<P>* inner_;
    int owns_;
};

template <class P>
ZARNEX_TEMPLATE_INLINE ReverseTrans<P>::ReverseTrans(ArbTrans<P>* inner, int owns)
    : inner_(inner), owns_(owns) {}

template <class P>
ReverseTrans<P>::~ReverseTrans() {
    if (owns_ != 0) {
        delete inner_;
        inner_ = nullptr;
    }
}

template <class P>
ZARNEX_TEMPLATE_INLINE P ReverseTrans<P>::transform(const P& p) {
    return inner_ != nullptr ? inner_->reverseTransform(p) : p;
}

template <class P>
ZARNEX_TEMPLATE_INLINE P ReverseTrans<P>::reverseTransform(const P& p) {
    return inner_ != nullptr ? inner_->transform(p) : p;
}

extern template class ZARNEX_API ReverseTrans<DPoint>;
