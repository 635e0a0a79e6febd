#pragma once

#include <zarnex/config.h>
#include <zarnex/containers/ZListIterator.h>
#include <zarnex/containers/ZListNode.h>

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <type_traits>
#include <utility>

/// An ordered list of values, addressed by zero-based positions.
///
/// A circular, doubly linked list of one heap node an element. Adding at either
/// end and joining whole lists take constant time; access by position walks from
/// the nearer end. References stay valid until their own element is removed,
/// iterators also only as long as it stays in this list: not past join(), inject(),
/// += or a move. At most 2^31 - 1 elements. Not safe for concurrent modification.
///
/// Nodes come from the throwing operator new: without memory std::bad_alloc, and the list is
/// as it was. Only an assignment then holds what it copied so far, and move() has taken its
/// element out.
///
///     ZList<int> sizes{30, 10};
///     sizes.add(20);          // [30, 10, 20]
///     sizes.move(0, 2);       // [10, 20, 30]
///     for (int& size : sizes)
///         size *= 2;
///
/// Kept as is: a position at or past the length wraps, so list[list.length()] is the
/// first element, although arrays grow. A negative position i does not count from
/// the end, although it does in strings: it names the element 2^32 + i steps round
/// the ring from the head, wherever that is; the walk itself is cut short.
template <class T>
class ZList {
public:
    /// What algorithms of the standard library ask for.
    /// @{
    using value_type = T;
    using size_type = std::size_t;
    using difference_type = std::ptrdiff_t;
    using reference = T&;
    using const_reference = const T&;
    using iterator = zarnex::ZListIterator<T, false>;
    using const_iterator = zarnex::ZListIterator<const T, false>;
    using reverse_iterator = zarnex::ZListIterator<T, true>;
    using const_reverse_iterator = zarnex::ZListIterator<const T, true>;
    /// @}

    /// An empty list.
    ZList();

    /// Copies `elements`, in order.
    ZList(std::initializer_list<T> elements);

    /// Copies every element, in order.
    ZList(const ZList& source);

    /// Takes over the nodes of `source`, which is left empty, in constant time.
    ZList(ZList&& source) noexcept;

    /// Removes all elements, first to last.
    virtual ~ZList();

    /// Empties this list, then copies every element of `source`, in order.
    ///
    /// Kept as is: there is no guard, so assigning a list to itself empties it;
    /// the arrays and strings keep their content.
    ZList& operator=(const ZList& source);

    /// Empties this list, then takes over the nodes of `source`.
    ZList& operator=(ZList&& source) noexcept;

    /// Appends a copy of `element`, which may be one of this list, and returns
    /// the copy.
    T& add(const T& element);

    /// Puts a copy of `element` in front of the one at `index` and returns the
    /// copy. Index 0 makes it the first; every other index that wraps to the
    /// first element, such as length(), makes it the last.
    virtual T& insert(const T& element, int index);

    /// The same for every other integer type, as an int.
    template <class Index, std::enable_if_t<std::is_integral_v<Index>, int> = 0>
    T& insert(const T& element, Index index) {
        return insert(element, static_cast<int>(index));
    }

    /// The same as removeByIndex().
    void remove(int index);

    /// The same for every other integer type, as an int.
    template <class Index, std::enable_if_t<std::is_integral_v<Index>, int> = 0>
    void remove(Index index) {
        removeByIndex(static_cast<int>(index));
    }

    /// Removes the element at `index`, which wraps; nothing on an empty list.
    void removeByIndex(int index);

    /// Removes the element at `position` and leaves `position` at the next one,
    /// or at end(). Nothing at end() and for an iterator of another list.
    /// @{
    void remove(iterator& position);
    void remove(iterator&& position);
    /// @}

    /// Removes all elements, first to last.
    void empty();

    long length() const; ///< the number of elements

    /// The same, as standard containers have it. (Their empty() asks; this one removes.)
    std::size_t size() const;

    /// The element at `index`, which wraps; only its lower 32 bits count.
    ///
    /// Not for empty lists: all those of one type answer with one element that is
    /// in none of them, at first default-constructed. Where T has no default
    /// constructor, the process ends with status 1.
    /// @{
    T& operator[](long index);
    const T& operator[](long index) const;
    T& operator()(long index);
    /// @}

    /// The position of the first element equal to `element`; -1 if there is none.
    int find(const T& element) const;

    /// The first element, from the head on, for which `test` gives non-zero;
    /// null if there is none. `test` gets a copy of each element and `user`, and
    /// must not remove that element. A null `test` finds nothing.
    T* firstThat(int (*test)(T, void*), void* user) const;

    /// Calls `visit` with a copy of each element and `user`, from head to tail.
    /// `visit` must not remove that element. A null `visit` is not called.
    void forEach(void (*visit)(T, void*), void* user);

    /// Takes the element at `from` out and puts it back, through insert(), so
    /// that it ends at `to`; returns 1. Returns 0 and changes nothing when the
    /// two are equal or either is not in [0, length()).
    int move(int from, int to);

    /// Moves all nodes of `other` to the end of this list, in constant time;
    /// `other` is left empty. Joining a list to itself changes nothing.
    void join(ZList& other);

    /// The same in front of the element at `index`; see insert() for an index
    /// that wraps to the first element. The walk to `index` is all it costs.
    void inject(ZList& other, int index);

    /// join(other). Kept as is: empties its operand, unlike other +=, and so
    /// takes it by non-const reference.
    const ZList& operator+=(ZList& other);

    /// 1 if both hold equal elements in the same order; 0 for lists with NaN.
    int operator==(const ZList& other) const;
    int operator!=(const ZList& other) const; ///< 1 where == gives 0, else 0

    /// The first element and the end position, forwards and, for the r forms, from the last
    /// element back.
    /// @{
    iterator begin();
    const_iterator begin() const;
    const_iterator cbegin() const;
    iterator end();
    const_iterator end() const;
    const_iterator cend() const;
    reverse_iterator rbegin();
    const_reverse_iterator rbegin() const;
    const_reverse_iterator crbegin() const;
    reverse_iterator rend();
    const_reverse_iterator rend() const;
    const_reverse_iterator crend() const;
    /// @}

    /// The iterator at position `index`; end() unless `index` is in
    /// [0, length()): this one does not wrap.
    /// @{
    iterator it(int index);
    const_iterator it(int index) const;
    /// @}

    /// The same for the reverse iterators; rend() out of range.
    /// @{
    reverse_iterator rit(int index);
    const_reverse_iterator rit(int index) const;
    /// @}

private:
    template <class, bool>
    friend class zarnex::ZListIterator;

    /// The node at `index`, which wraps; null only if the list is empty.
    ZListNode<T>* getNode(int index) const;
    ZListNode<T>* getNodeInRange(int index) const; ///< null unless in [0, length())

    /// Links `node` in front of `target`, or as the only node for null.
    void link(ZListNode<T>* node, ZListNode<T>* target);

    /// Unlinks and frees `node` and sets it to null; nothing for null. A
    /// reference, so that remove(0L) can only mean an index.
    void remove(ZListNode<T>*& node);

    void append(const ZList& source);

    /// Links all nodes of `other`, not empty and not this list, in front of
    /// `target`, which is ignored if this list is empty.
    void splice(ZList& other, ZListNode<T>* target);

    static T& noElement(); ///< what operator[] refers to on an empty list

    ZListNode<T>* head_ = nullptr;
    std::uint32_t count_ = 0;
};

#include <zarnex/containers/ZListDefinitions.h>

extern template class ZARNEX_API ZList<unsigned char>;
extern template class ZARNEX_API ZList<short>;
extern template class ZARNEX_API ZList<int>;
extern template class ZARNEX_API ZList<double>;
extern template class ZARNEX_API ZList<std::pair<int, unsigned char>>;
extern template class ZARNEX_API ZList<std::pair<int, int>>;
