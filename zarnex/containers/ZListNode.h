#pragma once

/// One heap node of a ZList: the element and its neighbours in the ring.
template <class T>
struct ZListNode {
    /// Copies `element`; not linked yet.
    explicit ZListNode(const T& element) : data(element), next(nullptr), prev(nullptr) {}

    T data;
    ZListNode* next;
    ZListNode* prev;
};
