#pragma once

#include <zarnex/config.h>
#include <zarnex/containers/ZList.h>

#include <type_traits>

class ZGroup;

/// What can be placed in a ZGroup, to derive from: it knows the group that holds it.
class ZARNEX_API ZGroupable {
public:
    /// Leaves its group, if it is in one.
    virtual ~ZGroupable();

    /// 1 for a ZGroup, 0 for everything else.
    virtual int isGroup();

    /// The group that holds this item; null if none does.
    ZGroup* getParent() const;

    /// The outermost of the groups round this item, reached from parent to parent; null if
    /// it is in no group. Where groups hold each other in a circle, which has no outermost
    /// group, any one of them.
    ZGroup* getPatriarch() const;

    /// 1 if `other` has the same parent and the same isGroup() as this item, else 0; 0 for
    /// null.
    ///
    /// Kept as is: asks for a sibling of the same kind, although == of pointers and of
    /// ZGroup asks for identity and content. Any two items that are in no group compare
    /// equal.
    int operator==(ZGroupable* other);

    /// 1 where == gives 0, else 0.
    int operator!=(const ZGroupable* other);

    /// Exact matches: without them C++20 would make != from ==, whose result is no bool.
    /// @{
    int operator!=(ZGroupable* other);
    template <class Null,
              std::enable_if_t<std::is_null_pointer_v<Null> || std::is_integral_v<Null>, int> = 0>
    int operator!=(Null) {
        return 1;
    }
    /// @}

protected:
    /// An item in no group.
    ZGroupable();

    /// Copies have a place of their own: the new item is in no group, and an assignment
    /// leaves both items in theirs.
    /// @{
    ZGroupable(const ZGroupable& other);
    ZGroupable& operator=(const ZGroupable& other);
    /// @}

private:
    friend class ZGroup;

    void gainedParent(ZGroup* parent);
    void lostParent();

    ZGroup* parent_;
};

ZARNEX_INLINE ZGroupable::ZGroupable() : parent_(nullptr) {}

ZARNEX_INLINE ZGroupable::ZGroupable(const ZGroupable&) : ZGroupable() {}

ZARNEX_INLINE ZGroupable& ZGroupable::operator=(const ZGroupable&) {
    return *this;
}

ZARNEX_INLINE ZGroup* ZGroupable::getParent() const {
    return parent_;
}

ZARNEX_INLINE int ZGroupable::operator!=(ZGroupable* other) {
    return (*this == other) == 0;
}

ZARNEX_INLINE void ZGroupable::gainedParent(ZGroup* parent) {
    parent_ = parent;
}

ZARNEX_INLINE void ZGroupable::lostParent() {
    parent_ = nullptr;
}

extern template class ZARNEX_API ZList<ZGroup*>;
extern template class ZARNEX_API ZList<ZGroupable*>;
