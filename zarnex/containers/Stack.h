#pragma once

#include <zarnex/config.h>
#include <zarnex/containers/DLList.h>

/// A DLList that is used from its head: the node pushed last comes out first.
///
///     Stack open;
///     open.push(*new Stitch);
///     delete open.pop();
class ZARNEX_API Stack : public DLList {
public:
    Stack(); ///< an empty stack

    /// Deletes the nodes, from the head on.
    ~Stack() override;

    /// Makes `n` the head. Nothing if it is in a list already.
    void push(DLLNode& n);

    /// Takes the head out and returns it, for the host to keep or delete; null if the stack
    /// is empty.
    DLLNode* pop();

    /// The head, which stays in the stack; null if the stack is empty.
    DLLNode* inspect();
};

ZARNEX_INLINE Stack::Stack() {}

ZARNEX_INLINE void Stack::push(DLLNode& n) {
    insert(n, 0);
}

ZARNEX_INLINE DLLNode* Stack::pop() {
    return remove(0);
}

ZARNEX_INLINE DLLNode* Stack::inspect() {
    return (*this)[0];
}
