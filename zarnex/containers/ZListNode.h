#pragma once

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
