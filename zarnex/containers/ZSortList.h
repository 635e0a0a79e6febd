#pragma once

#include <zarnex/config.h>
#include <zarnex/containers/ZList.h>

/// A ZList whose add() keeps the elements in ascending or descending order.
///
/// Elements are ordered by their `>` and `==`; equal ones stand in the order in
/// which they were added. add() and find() halve the range at each step, but
/// walk the list to reach each probe.
///
///     ZSortList<int> widths;
///     widths.add(3);
///     widths.add(1);          // [1, 3]
///     widths.find(3);         // 1
///
/// The order is add()'s alone: writing through operator[] and joining lists do
/// not sort, and add() through a ZList& appends. On a list out of order find()
/// may miss elements.
///
/// Kept as is: insert() does not insert here, so move() takes the element out
/// and does not put it back, although it returns 1; in a ZList the element ends
/// at its new place.
template <class T>
class ZSortList : public ZList<T> {
public:
    /// An ascending list.
    ZSortList();

    /// Smallest first for a non-zero `ascending`, largest first for 0.
    explicit ZSortList(int ascending);

    /// Copies the elements and the direction.
    ZSortList(const ZSortList& source);

    /// Takes over the nodes and copies the direction; `source` is left empty.
    ZSortList(ZSortList&& source) noexcept;

    /// An ascending list of the elements of `source`.
    ///
    /// Kept as is: in the order of `source`, not sorted.
    ZSortList(const ZList<T>& source);

    /// Removes all elements, first to last.
    ~ZSortList() override;

    /// Copies the elements and the direction. As in ZList, assigning a list to
    /// itself empties it.
    ZSortList& operator=(const ZSortList& source);

    /// Empties this list, then takes over the nodes of `source` and copies the direction.
    ZSortList& operator=(ZSortList&& source) noexcept;

    /// Puts a copy of `element` at its place in the order, behind those equal to
    /// it, and returns the copy. NaN goes in front of the last element.
    T& add(const T& element);

    /// The position of an element equal to `element`, any one of several; -1 if
    /// there is none, and for NaN.
    int find(const T& element) const;

    /// Sets the direction of an empty list.
    ///
    /// Kept as is: silently ignored when the list has elements; nothing is
    /// sorted again.
    void setAscending(int ascending);

private:
    /// Kept as is: a sorted list has no positional insertion. ZList inserts;
    /// this one leaves the list alone and returns a copy on the heap that nobody
    /// frees.
    T& insert(const T& element, int index) override;

    /// Whether `a` stands behind `b` in the order of this list.
    bool isBehind(const T& a, const T& b) const;

    int ascending_;
};

template <class T>
ZSortList<T>::ZSortList() : ZSortList(1) {}

template <class T>
ZSortList<T>::ZSortList(int ascending) : ascending_(ascending) {}

template <class T>
ZSortList<T>::ZSortList(const ZSortList& source)
    : ZList<T>(source), ascending_(source.ascending_) {}

template <class T>
ZSortList<T>::ZSortList(ZSortList&& source) noexcept
    : ZList<T>(std::move(source)), ascending_(source.ascending_) {}

template <class T>
ZSortList<T>::ZSortList(const ZList<T>& source) : ZList<T>(source), ascending_(1) {}

template <class T>
ZSortList<T>::~ZSortList() {}

template <class T>
ZSortList<T>& ZSortList<T>::operator=(const ZSortList& source) {
    ZList<T>::operator=(source);
    ascending_ = source.ascending_;
    return *this;
}

template <class T>
ZSortList<T>& ZSortList<T>::operator=(ZSortList&& source) noexcept {
    ascending_ = source.ascending_;
    ZList<T>::operator=(std::move(source));
    return *this;
}

template <class T>
T& ZSortList<T>::add(const T& element) {
    if (this->length() == 0)
        return ZList<T>::add(element);

    const ZSortList& list = *this;
    const int last = static_cast<int>(this->length()) - 1;
    if (isBehind(list[0], element))
        return ZList<T>::insert(element, 0);
    if (isBehind(element, list[last]) || element == list[last])
        return ZList<T>::add(element);

    int low = 0;
    int high = last;
    for (int middle = high / 2; middle > low; middle = (low + high) / 2) {
        if (isBehind(list[middle], element))
            high = middle;
        else
            low = middle;
    }
    return ZList<T>::insert(element, high);
}

template <class T>
int ZSortList<T>::find(const T& element) const {
    if (this->length() == 0)
        return -1;

    const ZSortList& list = *this;
    int low = 0;
    int high = static_cast<int>(this->length()) - 1;
    if (isBehind(list[low], element) || isBehind(element, list[high]))
        return -1;

    for (;;) {
        if (element == list[low])
            return low;
        const int middle = (low + high) / 2;
        if (middle <= low)
            return element == list[high] ? high : -1;
        if (isBehind(element, list[middle]))
            low = middle;
        else
            high = middle;
    }
}

template <class T>
void ZSortList<T>::setAscending(int ascending) {
    if (this->length() == 0)
        ascending_ = ascending;
}

template <class T>
T& ZSortList<T>::insert(const T& element, int) {
    return *new T(element);
}

template <class T>
bool ZSortList<T>::isBehind(const T& a, const T& b) const {
    return ascending_ != 0 ? a > b : b > a;
}

extern template class ZARNEX_API ZSortList<int>;
extern template class ZARNEX_API ZSortList<double>;
