#pragma once

#include <zarnex/transforms/ArbTrans.h>

#include <list>

/// Transforms that act one after the other; for DPoint.
///
///     CompositeTrans<DPoint> chain;
///     chain.addTrans(&a);
///     chain.addTrans(&b);
///     chain.transform(p);             // b.transform(a.transform(p))
///     chain.reverseTransform(q);      // the way back, from b to a
///
///     CompositeTrans<DPoint> owner(1);
///     owner.addTrans(new Shift(3, 4)); // the host's own transform; deleted with the chain
///
/// An empty chain is the identity. Mapping is linear in the number of members. Adding and
/// copying throw std::bad_alloc without memory; the chain is then without the member, which
/// stays the host's, and without those not copied yet.
template <class P>
class CompositeTrans : public ArbTrans<P> {
public:
    /// An empty chain that owns nothing.
    CompositeTrans();

    /// An empty chain. Its members must outlive it unless `owns` is not 0: then they are
    /// deleted with it, and each may be added only once.
    CompositeTrans(int owns);

    /// A chain of the same members.
    ///
    /// Kept as is: shallow, also as to ownership. Two chains that own the same members
    /// both delete them, and what a chain owned before an assignment is not deleted; copy
    /// only chains that own nothing.
    /// @{
    CompositeTrans(const CompositeTrans& other);
    CompositeTrans& operator=(const CompositeTrans& other);
    /// @}

    /// Deletes the members of an owning chain, first to last.
    ~CompositeTrans() override;

    /// Appends `member`, which an owning chain owns from here on. Null is kept and skipped.
    /// Nothing for the chain itself; a member must not contain this chain either: mapping
    /// would not end.
    void addTrans(ArbTrans<P>* member);

    P transform(const P& p) override;        ///< through the members, first to last
    P reverseTransform(const P& p) override; ///< through their ways back, last to first

private:
    std::list<ArbTrans<P>*> members_;
    int owns_;
};

template <class P>
CompositeTrans<P>::CompositeTrans() : CompositeTrans(0) {}

template <class P>
CompositeTrans<P>::CompositeTrans(int owns) : owns_(owns) {}

template <class P>
CompositeTrans<P>::CompositeTrans(const CompositeTrans& other)
    : ArbTrans<P>(other), members_(other.members_), owns_(other.owns_) {}

template <class P>
CompositeTrans<P>& CompositeTrans<P>::operator=(const CompositeTrans& other) {
    members_ = other.members_;
    owns_ = other.owns_;
    return *this;
}

template <class P>
CompositeTrans<P>::~CompositeTrans() {
    if (owns_ == 0)
        return;
    for (ArbTrans<P>*& member : members_) {
        delete member;
        member = nullptr;
    }
}

template <class P>
void CompositeTrans<P>::addTrans(ArbTrans<P>* member) {
    if (member != this)
        members_.push_back(member);
}

template <class P>
P CompositeTrans<P>::transform(const P& p) {
    P image = p;
    for (ArbTrans<P>* member : members_) {
        if (member != nullptr)
            image = member->transform(image);
    }
    return image;
}

template <class P>
P CompositeTrans<P>::reverseTransform(const P& p) {
    P image = p;
    for (auto member = members_.rbegin(); member != members_.rend(); ++member) {
        if (*member != nullptr)
            image = (*member)->reverseTransform(image);
    }
    return image;
}

extern template class ZARNEX_API CompositeTrans<DPoint>;
