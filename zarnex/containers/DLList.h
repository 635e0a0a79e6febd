#pragma once

#include <zarnex/config.h>
#include <zarnex/containers/DLLNode.h>

/// A ring of nodes that carry their own links.
///
/// The list makes no nodes and copies none; it takes those that a host made with `new`, and
/// deletes the ones that it still holds when it is destroyed. Adding at either end, removing
/// a node and joining lists take constant time (from a list that was joined to another, and once
/// such a list is destroyed, removing a node searches for it); everything that names a position or
/// searches walks from the head. Not safe for concurrent use.
///
///     class Stitch : public DLLNode { ... };
///
///     DLList path;
///     path.insert(*new Stitch);
///     path.insert(*new Stitch, 0);        // in front
///     delete path.remove();               // the last one
///
/// Positions count from 0; a negative one means 0, as in the arrays.
///
/// The current node is for hosts that step along a list. It is the first node that entered
/// the empty list, until one of the members below moves it.
class ZARNEX_API DLList {
public:
    /// An empty list.
    DLList();

    /// Not to be copied: a node is in one list.
    /// @{
    DLList(const DLList&) = delete;
    DLList& operator=(const DLList&) = delete;
    /// @}

    /// Deletes the nodes, from the head on.
    virtual ~DLList();

    /// Puts `n` at the end. Nothing if it is in a list already, this one or another.
    void insert(DLLNode& n);

    /// The same in front of the node at `i`: as the head for 0, at the end from length() on.
    void insert(DLLNode& n, int i);

    /// Takes the node at `i` out and returns it, for the host to keep or delete; null from
    /// length() on. The next node becomes the head if it was the head, and the current node
    /// if it was that one.
    DLLNode* remove(int i);

    /// The same with the last node; null if the list is empty.
    DLLNode* remove();

    /// The same with `n`; nothing if it is not in this list, or came to it through join().
    /// Once join() has moved nodes out of this list, it searches for `n` first.
    void remove(DLLNode& n);

    /// The position of `n`; -1 if it is not in this list.
    int find(DLLNode& n);

    /// The node at `i`; null from length() on.
    DLLNode* operator[](int i) const;

    /// The same, and makes it the current node. There is none after a null.
    DLLNode* operator()(int i);

    /// The current node; null if there is none.
    DLLNode* current() const;

    /// Moves the current node one on or back round the ring; nothing if there is none.
    /// @{
    void forward();
    void backward();
    /// @}

    /// Calls `visit` with each node and `data`, from the head on, as long as it returns
    /// non-zero. Returns the node for which it returned 0; null if there was none, and for a
    /// null `visit`.
    ///
    /// `visit` may remove the node that it is given, and no other. Nodes that it inserts
    /// may be left out.
    DLLNode* apply(int (*visit)(DLLNode&, void*), void* data);

    int isEmpty() const; ///< 1 if there are no nodes, else 0
    int length() const;  ///< the number of nodes

    /// 1 if `n` is the first, or last, node of this list, else 0. An empty list has null for both.
    /// @{
    int isHead(DLLNode* n) const;
    int isTail(DLLNode* n) const;
    /// @}

    /// The neighbours of `n` round the ring, so that the first node follows the last. A node
    /// in no list is its own neighbour.
    /// @{
    DLLNode& pred(DLLNode& n);
    DLLNode& succ(DLLNode& n);
    /// @}

    /// Turns the ring until `n` is the head; returns 1. Returns 0 and changes nothing if it is
    /// not in this list or null.
    int setHead(DLLNode* n);

    /// Moves all nodes of `other` to the end of this list; `other` is left empty and without
    /// a current node. An empty list has the first of them for its current node. Joining a
    /// list to itself changes nothing.
    ///
    /// Kept as is: the moved nodes keep their old owner, although insert() makes this list
    /// the owner. remove(n) takes them for nodes of another list and does nothing; take them
    /// out by their position, remove(find(n)), whereupon they are free.
    void join(DLList& other);

protected:
    /// Deletes the nodes, from the head on, and leaves the list empty, without a current
    /// node. Each is out of the list when its destructor runs.
    void clear();

private:
    DLLNode* nodeAt(int i) const;         ///< `i` steps from the head; not for empty lists
    DLLNode* nodeWithinRing(int i) const; ///< the same; null if that leads past the tail
    DLLNode* tail() const;

    /// Puts `n` in front of `target`, or as the only node for null.
    void link(DLLNode& n, DLLNode* target);
    DLLNode* unlink(DLLNode& n); ///< returns `n`

    DLLNode* head_ = nullptr;
    int count_ = 0;
    bool hasLostNodes_ = false; // some nodes that name this list may be in another
    DLLNode* cursor_ = nullptr;
};

ZARNEX_INLINE DLList::DLList() {}

// First the members that others below call: mingw-w64 refuses to see them after their use.

ZARNEX_INLINE DLLNode* DLList::nodeAt(int i) const {
    DLLNode* node = head_;
    for (; i > 0; --i)
        node = node->next_;
    return node;
}

ZARNEX_INLINE DLLNode* DLList::tail() const {
    return head_ != nullptr ? head_->prev_ : nullptr;
}

ZARNEX_INLINE void DLList::link(DLLNode& n, DLLNode* target) {
    n.owner_ = this;
    if (target == nullptr) {
        head_ = &n;
    } else {
        DLLNode* const before = target->prev_;
        n.prev_ = before;
        n.next_ = target;
        before->next_ = &n;
        target->prev_ = &n;
    }
    if (++count_ == 1)
        cursor_ = &n;
}

ZARNEX_INLINE DLLNode* DLList::unlink(DLLNode& n) {
    DLLNode* const next = n.next_ != &n ? n.next_ : nullptr;
    if (head_ == &n)
        head_ = next;
    if (cursor_ == &n)
        cursor_ = next;
    n.unlink();
    --count_;
    return &n;
}

ZARNEX_INLINE void DLList::insert(DLLNode& n) {
    if (n.owner_ == nullptr)
        link(n, head_);
}

ZARNEX_INLINE void DLList::insert(DLLNode& n, int i) {
    if (n.owner_ != nullptr)
        return;
    const bool isInside = i > 0 && i < count_ && head_ != nullptr;
    link(n, isInside ? nodeAt(i) : head_);
    if (i <= 0)
        head_ = &n;
}

ZARNEX_INLINE DLLNode* DLList::remove(int i) {
    if (head_ == nullptr || i >= count_)
        return nullptr;
    DLLNode* const node = i <= 0 ? head_ : nodeWithinRing(i);
    return node != nullptr ? unlink(*node) : nullptr;
}

ZARNEX_INLINE DLLNode* DLList::remove() {
    return head_ != nullptr ? unlink(*head_->prev_) : nullptr;
}

ZARNEX_INLINE DLLNode* DLList::operator[](int i) const {
    return head_ != nullptr && i < count_ ? nodeAt(i) : nullptr;
}

ZARNEX_INLINE DLLNode* DLList::current() const {
    return cursor_;
}

ZARNEX_INLINE void DLList::forward() {
    if (cursor_ != nullptr)
        cursor_ = cursor_->next_;
}

ZARNEX_INLINE void DLList::backward() {
    if (cursor_ != nullptr)
        cursor_ = cursor_->prev_;
}

ZARNEX_INLINE int DLList::isEmpty() const {
    return count_ == 0;
}

ZARNEX_INLINE int DLList::length() const {
    return count_;
}

ZARNEX_INLINE int DLList::isHead(DLLNode* n) const {
    return n == head_;
}

ZARNEX_INLINE int DLList::isTail(DLLNode* n) const {
    return n == tail();
}

ZARNEX_INLINE DLLNode& DLList::pred(DLLNode& n) {
    return *n.prev_;
}

ZARNEX_INLINE DLLNode& DLList::succ(DLLNode& n) {
    return *n.next_;
}
