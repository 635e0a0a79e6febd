#pragma once

#include <new>

/// One heap node of a ZList: the element and its neighbours in the ring.
template <class T>
struct ZListNode {
    /// Copies `element`; not linked yet.
    explicit ZListNode(const T& element) : data(element), next(nullptr), prev(nullptr) {}

    T data; ///< the element

    /// The neighbours in the ring; the node itself where it is the only one, null while it is
    /// not linked.
    /// @{
    ZListNode* next;
    ZListNode* prev;
    /// @}
};

namespace zarnex::detail {

/// Frees `node`, without the size that a delete expression hands over: the runtime only drops
/// it, by one more call for each node.
template <class T>
void freeNode(ZListNode<T>* node) {
    if constexpr (alignof(ZListNode<T>) > __STDCPP_DEFAULT_NEW_ALIGNMENT__) {
        delete node;
    } else {
        node->~ZListNode<T>();
        ::operator delete(node);
    }
}

} // namespace zarnex::detail
