#pragma once

/// The members of ZList, which ZList.h includes below the class.

#include <zarnex/config.h>
#include <zarnex/containers/ZList.h>
#include <zarnex/runtime/exiting.h>

#include <type_traits>

template <class T>
ZARNEX_TEMPLATE_INLINE ZList<T>::ZList() {}

// Delegating: should copying an element throw, the destructor frees the others.
template <class T>
ZList<T>::ZList(std::initializer_list<T> elements) : ZList() {
    for (const T& element : elements)
        add(element);
}

template <class T>
ZList<T>::ZList(const ZList& source) : ZList() {
    append(source);
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZList<T>::ZList(ZList&& source) noexcept : ZList() {
    join(source);
}

template <class T>
ZList<T>::~ZList() {
    empty();
}

template <class T>
ZList<T>& ZList<T>::operator=(const ZList& source) {
    empty();
    append(source);
    return *this;
}

template <class T>
ZList<T>& ZList<T>::operator=(ZList&& source) noexcept {
    empty();
    join(source);
    return *this;
}

template <class T>
ZARNEX_TEMPLATE_INLINE T& ZList<T>::add(const T& element) {
    auto* const node = new ZListNode<T>(element);
    link(node, head_);
    return node->data;
}

template <class T>
T& ZList<T>::insert(const T& element, int index) {
    auto* const node = new ZListNode<T>(element);
    link(node, getNode(index));
    if (index == 0)
        head_ = node;
    return node->data;
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZList<T>::remove(int index) {
    removeByIndex(index);
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZList<T>::removeByIndex(int index) {
    ZListNode<T>* node = getNode(index);
    remove(node);
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZList<T>::remove(iterator& position) {
    ZListNode<T>* node = position.node_;
    if (node == nullptr || position.list_ != this)
        return;
    ++position;
    remove(node);
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZList<T>::remove(iterator&& position) {
    remove(position);
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZList<T>::remove(ZListNode<T>*& node) {
    if (node == nullptr)
        return;
    node->next->prev = node->prev;
    node->prev->next = node->next;
    if (head_ == node)
        head_ = node->next;
    if (head_ == node)
        head_ = nullptr;
    --count_;
    zarnex::detail::freeNode(node);
    node = nullptr;
}

template <class T>
void ZList<T>::empty() {
    if (head_ == nullptr)
        return;
    ZListNode<T>* node = head_;
    node->prev->next = nullptr; // opens the ring
    head_ = nullptr;
    count_ = 0;
    while (node != nullptr) {
        ZListNode<T>* const next = node->next;
        zarnex::detail::freeNode(node);
        node = next;
    }
}

template <class T>
ZARNEX_TEMPLATE_INLINE long ZList<T>::length() const {
    return static_cast<long>(count_);
}

template <class T>
ZARNEX_TEMPLATE_INLINE std::size_t ZList<T>::size() const {
    return count_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE T& ZList<T>::operator[](long index) {
    ZListNode<T>* const node = getNode(static_cast<int>(index));
    return node != nullptr ? node->data : noElement();
}

template <class T>
ZARNEX_TEMPLATE_INLINE const T& ZList<T>::operator[](long index) const {
    const ZListNode<T>* const node = getNode(static_cast<int>(index));
    return node != nullptr ? node->data : noElement();
}

template <class T>
ZARNEX_TEMPLATE_INLINE T& ZList<T>::operator()(long index) {
    return (*this)[index];
}

template <class T>
int ZList<T>::find(const T& element) const {
    int index = 0;
    for (const T& candidate : *this) {
        if (candidate == element)
            return index;
        ++index;
    }
    return -1;
}

template <class T>
T* ZList<T>::firstThat(int (*test)(T, void*), void* user) const {
    if (head_ == nullptr || test == nullptr)
        return nullptr;
    ZListNode<T>* node = head_;
    do {
        if (test(node->data, user) != 0)
            return &node->data;
        node = node->next;
    } while (node != head_);
    return nullptr;
}

template <class T>
void ZList<T>::forEach(void (*visit)(T, void*), void* user) {
    if (visit == nullptr)
        return;
    for (const T& element : *this)
        visit(element, user);
}

template <class T>
int ZList<T>::move(int from, int to) {
    const int count = static_cast<int>(count_);
    if (from < 0 || from >= count || to == from || to < 0 || to >= count)
        return 0;
    ZListNode<T>* node = getNode(from);
    const T element(node->data);
    remove(node);
    insert(element, to);
    return 1;
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZList<T>::join(ZList& other) {
    if (other.head_ != nullptr && this != &other)
        splice(other, head_);
}

template <class T>
void ZList<T>::inject(ZList& other, int index) {
    if (other.head_ == nullptr || this == &other)
        return;
    ZListNode<T>* const first = other.head_;
    splice(other, getNode(index));
    if (index == 0)
        head_ = first;
}

template <class T>
ZARNEX_TEMPLATE_INLINE const ZList<T>& ZList<T>::operator+=(ZList& other) {
    join(other);
    return *this;
}

template <class T>
int ZList<T>::operator==(const ZList& other) const {
    if (count_ != other.count_)
        return 0;
    const_iterator theirs = other.begin();
    for (const T& element : *this) {
        if (!(element == *theirs))
            return 0;
        ++theirs;
    }
    return 1;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZList<T>::operator!=(const ZList& other) const {
    return *this == other ? 0 : 1;
}

template <class T>
ZARNEX_TEMPLATE_INLINE typename ZList<T>::iterator ZList<T>::begin() {
    return {head_, this};
}

template <class T>
ZARNEX_TEMPLATE_INLINE typename ZList<T>::const_iterator ZList<T>::begin() const {
    return {head_, this};
}

template <class T>
ZARNEX_TEMPLATE_INLINE typename ZList<T>::const_iterator ZList<T>::cbegin() const {
    return begin();
}

template <class T>
ZARNEX_TEMPLATE_INLINE typename ZList<T>::iterator ZList<T>::end() {
    return {nullptr, this};
}

template <class T>
ZARNEX_TEMPLATE_INLINE typename ZList<T>::const_iterator ZList<T>::end() const {
    return {nullptr, this};
}

template <class T>
ZARNEX_TEMPLATE_INLINE typename ZList<T>::const_iterator ZList<T>::cend() const {
    return end();
}

template <class T>
ZARNEX_TEMPLATE_INLINE typename ZList<T>::reverse_iterator ZList<T>::rbegin() {
    return {head_ != nullptr ? head_->prev : nullptr, this};
}

template <class T>
ZARNEX_TEMPLATE_INLINE typename ZList<T>::const_reverse_iterator ZList<T>::rbegin() const {
    return {head_ != nullptr ? head_->prev : nullptr, this};
}

template <class T>
ZARNEX_TEMPLATE_INLINE typename ZList<T>::const_reverse_iterator ZList<T>::crbegin() const {
    return rbegin();
}

template <class T>
ZARNEX_TEMPLATE_INLINE typename ZList<T>::reverse_iterator ZList<T>::rend() {
    return {nullptr, this};
}

template <class T>
ZARNEX_TEMPLATE_INLINE typename ZList<T>::const_reverse_iterator ZList<T>::rend() const {
    return {nullptr, this};
}

template <class T>
ZARNEX_TEMPLATE_INLINE typename ZList<T>::const_reverse_iterator ZList<T>::crend() const {
    return rend();
}

template <class T>
typename ZList<T>::iterator ZList<T>::it(int index) {
    return {getNodeInRange(index), this};
}

template <class T>
typename ZList<T>::const_iterator ZList<T>::it(int index) const {
    return {getNodeInRange(index), this};
}

template <class T>
typename ZList<T>::reverse_iterator ZList<T>::rit(int index) {
    return {getNodeInRange(index), this};
}

template <class T>
typename ZList<T>::const_reverse_iterator ZList<T>::rit(int index) const {
    return {getNodeInRange(index), this};
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZListNode<T>* ZList<T>::getNode(int index) const {
    if (head_ == nullptr)
        return nullptr;

    // As an unsigned number, a negative index is its count of steps from the head.
    std::uint32_t position = static_cast<std::uint32_t>(index);
    if (position >= count_)
        position %= count_;

    ZListNode<T>* node = head_;
    if (position < count_ / 2) {
        for (; position != 0; --position)
            node = node->next;
    } else {
        for (position = count_ - position; position != 0; --position)
            node = node->prev;
    }
    return node;
}

template <class T>
ZListNode<T>* ZList<T>::getNodeInRange(int index) const {
    return static_cast<std::uint32_t>(index) < count_ ? getNode(index) : nullptr;
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZList<T>::link(ZListNode<T>* node, ZListNode<T>* target) {
    if (target == nullptr) {
        node->next = node;
        node->prev = node;
        head_ = node;
    } else {
        ZListNode<T>* const before = target->prev;
        node->next = target;
        node->prev = before;
        before->next = node;
        target->prev = node;
    }
    ++count_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZList<T>::append(const ZList& source) {
    for (const T& element : source)
        add(element);
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZList<T>::splice(ZList& other, ZListNode<T>* target) {
    ZListNode<T>* const first = other.head_;
    if (head_ == nullptr) {
        head_ = first;
    } else {
        ZListNode<T>* const last = first->prev;
        first->prev = target->prev;
        target->prev->next = first;
        last->next = target;
        target->prev = last;
    }
    count_ += other.count_;
    other.head_ = nullptr;
    other.count_ = 0;
}

template <class T>
T& ZList<T>::noElement() {
    if constexpr (std::is_default_constructible_v<T>) {
        static T& element = *new T();
        return element;
    } else {
        zarnex::exitFatally("Element of an empty list\n", 1);
    }
}
