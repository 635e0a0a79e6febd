#pragma once

#include <zarnex/config.h>
#include <zarnex/containers/ZListNode.h>

#include <cstddef>
#include <iterator>
#include <type_traits>

template <class T>
class ZList;

namespace zarnex {

/// A bidirectional iterator over a ZList: a node and the list that owns it.
///
/// `Element` is T, or const T for the iterators that only read; a `Backwards`
/// one runs from the tail to the head. The end position of either direction is
/// {null, list}: stepping off the last element leads there, and stepping back
/// from there leads to the last element. Stepping back from the first element
/// leads there too, and ++ at the end position stays.
///
/// An iterator is valid until its element is removed or joined to another list.
/// Use it through ZList<T>::iterator and its relatives.
template <class Element, bool Backwards>
class ZListIterator {
    using T = std::remove_const_t<Element>;

public:
    /// What algorithms of the standard library ask for.
    /// @{
    using iterator_category = std::bidirectional_iterator_tag;
    using value_type = T;
    using difference_type = std::ptrdiff_t;
    using pointer = Element*;
    using reference = Element&;
    /// @}

    /// Belongs to no list; only good for being assigned to.
    ZListIterator() = default;

    /// A reading iterator at the place of a writing one.
    template <class Writable,
              std::enable_if_t<!std::is_same_v<Writable, Element> && std::is_same_v<Writable, T>,
                               int> = 0>
    ZListIterator(const ZListIterator<Writable, Backwards>& other)
        : node_(other.node_), list_(other.list_) {}

    /// The element. Not at the end position.
    /// @{
    Element& operator*() const {
        return node_->data;
    }
    Element* operator->() const {
        return &node_->data;
    }
    /// @}

    /// One element on, in the direction of the iterator, or to the end position.
    /// @{
    ZListIterator& operator++() {
        step(Backwards);
        return *this;
    }
    ZListIterator operator++(int) {
        const ZListIterator before = *this;
        ++*this;
        return before;
    }
    /// @}

    /// One element back; from the end position to the last element, from the first to the end.
    /// @{
    ZListIterator& operator--() {
        if (node_ == nullptr)
            node_ = last();
        else
            step(!Backwards);
        return *this;
    }
    ZListIterator operator--(int) {
        const ZListIterator before = *this;
        --*this;
        return before;
    }
    /// @}

    /// Equal at the same element of the same list, and at the end position of the same list.
    /// @{
    friend bool operator==(const ZListIterator& a, const ZListIterator& b) {
        return a.node_ == b.node_ && a.list_ == b.list_;
    }
    friend bool operator!=(const ZListIterator& a, const ZListIterator& b) {
        return !(a == b);
    }
    /// @}

private:
    friend class ZList<T>;
    template <class, bool>
    friend class ZListIterator;

    ZListIterator(ZListNode<T>* node, const ZList<T>* list) : node_(node), list_(list) {}

    // One node on, or to the end position where the ring closes.
    void step(bool towardsHead) {
        if (node_ == nullptr)
            return;
        ZListNode<T>* const from = node_;
        node_ = towardsHead ? from->prev : from->next;
        if (ZARNEX_UNLIKELY((towardsHead ? from : node_) == list_->head_))
            node_ = nullptr;
    }

    ZListNode<T>* last() const {
        if (list_ == nullptr || list_->head_ == nullptr)
            return nullptr;
        return Backwards ? list_->head_ : list_->head_->prev;
    }

    ZListNode<T>* node_ = nullptr;
    const ZList<T>* list_ = nullptr;
};

} // namespace zarnex
