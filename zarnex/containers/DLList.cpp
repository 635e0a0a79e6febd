#include <zarnex/containers/DLList.h>

#include <atomic>
#include <utility>

namespace {

// Whether a list is gone that nodes elsewhere may still name as their owner. A new list at its
// address must not take them for its own.
std::atomic<bool> someOwnersAreGone = false;

} // namespace

DLList::~DLList() {
    clear();
    if (hasLostNodes_)
        someOwnersAreGone.store(true, std::memory_order_relaxed);
}

void DLList::remove(DLLNode& n) {
    if (head_ == nullptr || n.owner_ != this)
        return;
    const bool mayBeElsewhere = hasLostNodes_ || someOwnersAreGone.load(std::memory_order_relaxed);
    if (!mayBeElsewhere || find(n) >= 0)
        unlink(n);
}

int DLList::find(DLLNode& n) {
    if (head_ == nullptr)
        return -1;
    int index = 0;
    DLLNode* node = head_;
    while (node != &n) {
        node = node->next_;
        ++index;
        if (node == head_)
            return -1;
    }
    return index;
}

DLLNode* DLList::operator()(int i) {
    cursor_ = (*this)[i];
    return cursor_;
}

DLLNode* DLList::apply(int (*visit)(DLLNode&, void*), void* data) {
    if (head_ == nullptr || visit == nullptr)
        return nullptr;
    // Counted as well, in case `visit` turns the ring.
    DLLNode* node = head_;
    for (int left = count_; left > 0; --left) {
        DLLNode* const next = node->next_;
        const bool isLast = next == head_;
        if (visit(*node, data) == 0)
            return node;
        if (isLast)
            break;
        node = next;
    }
    return nullptr;
}

int DLList::setHead(DLLNode* n) {
    if (n == nullptr || find(*n) < 0)
        return 0;
    head_ = n;
    return 1;
}

void DLList::join(DLList& other) {
    if (other.head_ == nullptr || this == &other)
        return;
    DLLNode* const first = std::exchange(other.head_, nullptr);
    if (head_ == nullptr) {
        head_ = first;
        cursor_ = first;
    } else {
        DLLNode* const last = first->prev_;
        first->prev_ = head_->prev_;
        head_->prev_->next_ = first;
        last->next_ = head_;
        head_->prev_ = last;
    }
    count_ += std::exchange(other.count_, 0);
    other.cursor_ = nullptr;
    other.hasLostNodes_ = true;
}

void DLList::clear() {
    while (head_ != nullptr)
        delete unlink(*head_);
    count_ = 0; // not yet so if nodes were deleted in the list
    cursor_ = nullptr;
}

DLLNode* DLList::nodeWithinRing(int i) const {
    // Nodes that were deleted in the list left fewer in the ring than are counted.
    DLLNode* node = head_;
    for (; i > 0; --i) {
        node = node->next_;
        if (node == head_)
            return nullptr;
    }
    return node;
}
