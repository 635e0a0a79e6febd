#pragma once

#include <zarnex/config.h>

class DLList;

/// A link in a DLList, to derive the elements of such lists from.
///
/// A node is in at most one list, its owner. A node that is in no list has no owner and is
/// linked to itself.
class ZARNEX_API DLLNode {
public:
    /// A node in no list.
    DLLNode();

    /// Copies have a place of their own: the new node is in no list, and an assignment
    /// leaves both nodes where they are.
    /// @{
    DLLNode(const DLLNode& other);
    DLLNode& operator=(const DLLNode& other);
    /// @}

    /// Links the two neighbours to each other.
    ///
    /// Kept as is: that is all, no list learns of it, although one that is destroyed takes
    /// its nodes along. The list goes on counting the node, and a head or current node that
    /// was deleted dangles; take a node out with DLList::remove() before you delete it.
    virtual ~DLLNode();

private:
    friend class DLList;

    void unlink(); ///< closes the ring behind this node and leaves it in no list

    DLLNode* prev_;
    DLLNode* next_;
    DLList* owner_; // only to be compared: after DLList::join() it may be gone
};

ZARNEX_INLINE DLLNode::DLLNode() : prev_(this), next_(this), owner_(nullptr) {}

ZARNEX_INLINE DLLNode::DLLNode(const DLLNode&) : DLLNode() {}

ZARNEX_INLINE DLLNode& DLLNode::operator=(const DLLNode&) {
    return *this;
}

ZARNEX_INLINE void DLLNode::unlink() {
    prev_->next_ = next_;
    next_->prev_ = prev_;
    prev_ = this;
    next_ = this;
    owner_ = nullptr;
}
