#pragma once

#include <zarnex/config.h>
#include <zarnex/containers/ZList.h>

#include <cstddef>
#include <iterator>
#include <type_traits>
#include <utility>

/// A growable contiguous array.
///
/// Writing through an index at or past the length extends the array; reading a
/// const array past its allocation gives the empty value. Negative indices count
/// as 0. Slots that growth adds are uninitialised for scalar elements until
/// setEmpty() is called; from then on they hold the empty value.
///
/// With a growth step of 1 or more, growing rounds the allocation up to a whole
/// number of steps; with a smaller step it doubles, starting at 32.
///
///     ZXArray<double> lengths;
///     lengths.add(2.5);
///     lengths[1] = 1.0; // length 2
///     std::sort(lengths.begin(), lengths.end());
///
/// Nothing throws but the copying of elements that throws, such as that of lists. Where
/// storage cannot be had, operations that must return a slot end the process with "failed
/// alloc" and status 1; the others leave the array as it was, copies come out empty. Adding
/// is amortised constant, every other change linear in the elements moved.
template <class T>
class ZARNEX_WIDE ZXArray {
public:
    /// What algorithms of the standard library ask for.
    /// @{
    using value_type = T;
    using size_type = std::size_t;
    using difference_type = std::ptrdiff_t;
    using reference = T&;
    using const_reference = const T&;
    using pointer = T*;
    using const_pointer = const T*;
    using iterator = T*;
    using const_iterator = const T*;
    using reverse_iterator = std::reverse_iterator<T*>;
    using const_reverse_iterator = std::reverse_iterator<const T*>;
    /// @}

    /// No storage, length 0, step -1.
    ZXArray();

    /// Length `n` in an allocation of exactly `n` slots. Scalar elements are
    /// uninitialised.
    ZXArray(int n, int step);

    /// Copies `n` values; step -1. Null counts as no values.
    ZXArray(const T* values, int n);

    /// Copies `n` values into the allocation that growth by `step` gives; below 1 none.
    /// Without memory the process ends.
    ZXArray(const T* values, long long n, int step);

    /// Copies every allocated slot, the used ones and the spare ones.
    ZXArray(const ZXArray& other);

    /// Takes over the storage of `other`, which is left as a new array.
    ZXArray(ZXArray&& other) noexcept;

    /// Copies every allocated slot, the step and the empty value.
    ZXArray& operator=(const ZXArray& other);

    /// Exchanges the whole state with `other`.
    ZXArray& operator=(ZXArray&& other) noexcept;

    /// Frees the storage.
    virtual ~ZXArray();

    /// 1 for the same object or for equal lengths and pairwise equal elements.
    virtual int operator==(const ZXArray& other) const;
    virtual int operator!=(const ZXArray& other) const; ///< 1 where == gives 0, else 0

    /// Slot `i`; extends the array when `i` is at or past the length.
    /// @{
    T& get(int i);
    T& operator[](int i);
    T& operator()(int i);
    /// @}

    /// Slot `i`, or the empty value when `i` is at or past the allocation.
    ///
    /// Kept as is: bounded by the allocation, although all else is bounded by
    /// the length, so spare slots can be read.
    /// @{
    const T& get(int i) const;
    const T& operator[](int i) const;
    const T& operator()(int i) const;
    /// @}

    /// The same for every other integer type, as an int.
    /// @{
    template <class Index, std::enable_if_t<std::is_integral_v<Index>, int> = 0>
    T& operator[](Index i) {
        return get(static_cast<int>(i));
    }
    template <class Index, std::enable_if_t<std::is_integral_v<Index>, int> = 0>
    const T& operator[](Index i) const {
        return get(static_cast<int>(i));
    }
    /// @}

    /// The first slot; null without storage.
    /// @{
    operator T*();
    operator const T*() const;
    /// @}

    /// Stores `value` in slot `i`, extending the array as get() does.
    void set(int i, const T& value);

    /// Appends `value`, which may be an element of this array.
    T& add(const T& value);

    /// Appends the empty value.
    T& add();

    /// Inserts `value`, or the empty value, in front of slot `i`; past the end, extends
    /// the array to length `i` + 1. Returns the slot.
    /// @{
    T& ins(int i, const T& value);
    T& ins(int i);
    T& insert(const T& value, int i);
    /// @}

    /// Removes slot `i`; nothing at or past the length. The vacated last slot
    /// becomes the empty value.
    /// @{
    void del(int i);
    void remove(int i);
    /// @}

    /// The index of the first element equal to `value`, or of the last one when
    /// `fromEnd` is not 0; -1 if there is none.
    int find(const T& value, int fromEnd = 0) const;

    /// Sets every used element to the empty value; the length stays.
    void clear();

    /// Sets every used element to `value`.
    void setAll(const T& value);

    /// Length 0 and no storage.
    void reset();

    /// Cuts the allocation to the length.
    void compact();

    /// Sets the length to `n`, growing as needed and never shrinking the
    /// allocation. Slots cut off become the empty value.
    void setSize(int n);

    /// Sets the length to `n` and the allocation to what the growth rule gives
    /// for `n`, also when that is less than before.
    ///
    /// Kept as is: slots cut off become the empty value only when the new
    /// allocation exceeds the old length; otherwise those that the allocation
    /// keeps hold what they held, although setSize() clears them all.
    void resize(int n);

    /// Grows the allocation by the growth rule to at least `n` slots; the length
    /// stays. Without memory the process ends.
    void reserve(long long n);

    /// Sets the allocation to exactly `n` slots, cutting the length to fit.
    void setAllocSize(int n);

    /// From now on spare slots and slots that growth adds hold `value`.
    void setEmpty(const T& value);

    const T& getEmpty() const; ///< the empty value, at first a default one
    int isEmptySet() const;    ///< 1 once setEmpty() was called, here or on what was copied

    int length() const;      ///< elements in use
    int allocLength() const; ///< slots allocated
    int allocBytes() const;  ///< their bytes, wrapped into 32 bits

    int getStep() const;   ///< below 1 the allocation doubles as it grows
    int setStep(int step); ///< for what grows from now on; returns `step`

    /// Exchanges the whole state of two arrays.
    void swap(ZXArray& other) noexcept;

    /// @name As standard containers have it
    /// @{

    /// The elements in use, from the first to behind the last; both null without storage. Good
    /// until the length or the allocation changes, which these do not.
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

    T* data();             ///< the first slot; null without storage
    const T* data() const; ///< the same

    std::size_t size() const; ///< length()
    /// @}

protected:
    /// The allocation that the growth rule gives for `n` slots; 0 for `n` < 1.
    int getGrowSize(int n);

    /// Sets the storage to getGrowSize(n) slots, or to exactly `n` when `useRule`
    /// is 0. The length is not changed; without memory nothing is.
    void growArray(int n, int useRule);

private:
    static T& store(T& slot, const T& value);
    T& reach(int i);
    void extendTo(int i);

    T* data_;
    T empty_;
    int allocLength_;
    int length_;
    int step_;
    int emptySet_;
};

#include <zarnex/containers/ZXArrayDefinitions.h>

extern template class ZARNEX_API ZXArray<char>;
extern template class ZARNEX_API ZXArray<unsigned char>;
extern template class ZARNEX_API ZXArray<int>;
extern template class ZARNEX_API ZXArray<double>;
extern template class ZARNEX_API ZXArray<wchar_t>;
extern template class ZARNEX_API ZXArray<std::pair<int, double>>;
extern template class ZARNEX_API ZXArray<ZXArray<std::pair<int, double>>>;
extern template class ZARNEX_API ZXArray<ZList<double>>;
extern template class ZARNEX_API ZXArray<ZList<std::pair<int, int>>>;
