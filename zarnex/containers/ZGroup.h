#pragma once

#include <zarnex/config.h>
#include <zarnex/containers/ZGroupable.h>
#include <zarnex/containers/ZList.h>

#include <type_traits>

/// An ordered set of items, which may be groups themselves, so that groups form trees.
///
/// An item is in at most one group. A group never deletes its members: it knows where they
/// are, and the host keeps them. Either may be destroyed first; a member that is destroyed
/// leaves its group as by removeItem(). Not safe for concurrent use.
///
///     ZGroup flower(2), petals(5);
///     flower.addItem(&petals);
///     petals.addItem(&petal);             // petal.getPatriarch() == &flower
class ZARNEX_API ZGroup : public ZGroupable {
public:
    /// An empty group with room for `n` items; 0 counts as 1. Without room for a negative
    /// `n` and where there is no memory for as many; the room grows as needed anyway.
    ZGroup(int n);

    /// Not to be copied: an item is in one group.
    /// @{
    ZGroup(const ZGroup&) = delete;
    ZGroup& operator=(const ZGroup&) = delete;
    /// @}

    /// Leaves the members without a parent.
    ~ZGroup() override;

    int isGroup() override; ///< 1

    /// Appends `item`; returns 0. Returns -1 and changes nothing for null, for an item that
    /// is in a group, for this group itself and if there is no memory. The room grows by 32
    /// items at a time.
    ///
    /// Kept as is: takes in an outermost group that this one is inside of, although not
    /// itself. Such a circle has no patriarch and no end; getPatriarch() and traverse() stop
    /// where they come round.
    int addItem(ZGroupable* item);

    /// Takes `item` out; returns 0. Returns -1 and changes nothing if it is not in this group
    /// or null. Takes linear time.
    ///
    /// Kept as is: the last member moves to the place that became vacant, although lists and
    /// arrays keep their order.
    int removeItem(ZGroupable* item);

    /// The position of `item`; -1 if it is not in this group or null.
    int itemToIndex(ZGroupable* item);

    /// The member at `i`; null unless `i` is in [0, size()).
    ZGroupable* indexToItem(int i);

    /// The number of members, not counting theirs.
    int size() const;

    /// Takes all members out.
    void emptyGroup();

    /// Calls `visit` with each member, in order. A null `visit` is not called.
    ///
    /// `visit` must not delete this group. A member that it takes out hands its place to the last
    /// one, which is left out.
    void apply(void (*visit)(ZGroupable*));

    /// Calls `visit` with each item in this group and in the groups inside it, depth first
    /// and in order: a group is not passed, its members stand in its place. A null `visit` is
    /// not called.
    ///
    /// `visit` must not delete groups or put groups into others; for a member that it takes out see
    /// apply(). Without memory for the way back up std::bad_alloc.
    void traverse(void (*visit)(ZGroupable*));

    /// The members, in order; std::bad_alloc as with every list.
    ZList<ZGroupable*> getItemList();

    /// 1 if both have the same members in the same order, else 0; 0 for null.
    ///
    /// Kept as is: compares the members, although == of ZGroupable asks for a sibling. As no
    /// item is in two groups, only the group itself is equal, and empty groups are.
    int operator==(ZGroup* other) const;

    /// 1 where == gives 0, else 0.
    int operator!=(const ZGroup* other) const;

    /// The exact matches that C++20 asks for; see ZGroupable.
    /// @{
    int operator!=(ZGroup* other) const;
    template <class Null,
              std::enable_if_t<std::is_null_pointer_v<Null> || std::is_integral_v<Null>, int> = 0>
    int operator!=(Null) const {
        return 1;
    }
    /// @}

private:
    int grow(); ///< makes room for more; 0 if there is no memory

    ZGroupable** items_; // on the runtime heap; null while there is no room
    int capacity_;
    int count_ = 0;
};

ZARNEX_INLINE int ZGroup::addItem(ZGroupable* item) {
    if (item == nullptr || item->parent_ != nullptr || item == this)
        return -1;
    if (count_ >= capacity_ && grow() == 0)
        return -1;
    items_[count_] = item;
    ++count_;
    item->gainedParent(this);
    return 0;
}

ZARNEX_INLINE ZGroupable* ZGroup::indexToItem(int i) {
    return i >= 0 && i < count_ ? items_[i] : nullptr;
}

ZARNEX_INLINE int ZGroup::size() const {
    return count_;
}

ZARNEX_INLINE int ZGroup::operator!=(ZGroup* other) const {
    return *this != static_cast<const ZGroup*>(other);
}

ZARNEX_INLINE int ZGroup::operator==(ZGroup* other) const {
    return (*this != other) == 0;
}
