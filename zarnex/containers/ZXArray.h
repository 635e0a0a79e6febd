#pragma once

#include <zarnex/config.h>
#include <zarnex/runtime/exiting.h>

#include <algorithm>
#include <limits>
#include <new>
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
///     lengths[3] = 4.0; // length 4
///
/// Nothing throws. Where storage cannot be had, operations that must return a
/// slot end the process with "failed alloc" and status 1; the others leave the
/// array as it was, copies come out empty. Adding is amortised constant, every
/// other change linear in the elements moved.
template <class T>
class ZXArray {
public:
    /// No storage, length 0, step -1.
    ZXArray();

    /// Length `n` in an allocation of exactly `n` slots. Scalar elements are
    /// uninitialised.
    ZXArray(int n, int step);

    /// Copies `n` values; step -1. Null counts as no values.
    ZXArray(const T* values, int n);

    /// Copies every allocated slot, the used ones and the spare ones.
    ZXArray(const ZXArray& other);
    ZXArray(ZXArray&& other) noexcept;
    ZXArray& operator=(const ZXArray& other);
    ZXArray& operator=(ZXArray&& other) noexcept;

    virtual ~ZXArray();

    /// 1 for the same object or for equal lengths and pairwise equal elements.
    virtual int operator==(const ZXArray& other) const;
    virtual int operator!=(const ZXArray& other) const;

    /// Slot `i`; extends the array when `i` is at or past the length.
    T& get(int i);
    T& operator[](int i);
    T& operator()(int i);

    /// Slot `i`, or the empty value when `i` is at or past the allocation.
    ///
    /// Kept as is: bounded by the allocation, although all else is bounded by
    /// the length, so spare slots can be read.
    const T& get(int i) const;
    const T& operator[](int i) const;
    const T& operator()(int i) const;

    /// The same for every other integer type.
    template <class Index, std::enable_if_t<std::is_integral_v<Index>, int> = 0>
    T& operator[](Index i) {
        return get(toInt(i));
    }
    template <class Index, std::enable_if_t<std::is_integral_v<Index>, int> = 0>
    const T& operator[](Index i) const {
        return get(toInt(i));
    }

    /// The first slot; null without storage.
    operator T*();
    operator const T*() const;

    /// Stores `value` in slot `i`, extending the array as get() does.
    void set(int i, const T& value);

    /// Appends `value`, which may be an element of this array.
    T& add(const T& value);

    /// Appends the empty value.
    T& add();

    /// Inserts `value` in front of slot `i`; past the end, extends the array to
    /// length `i` + 1.
    T& ins(int i, const T& value);
    T& ins(int i);
    T& insert(const T& value, int i);

    /// Removes slot `i`; nothing at or past the length. The vacated last slot
    /// becomes the empty value.
    void del(int i);
    void remove(int i);

    /// The index of the first element equal to `value`, or of the last one when
    /// `fromEnd` is not 0; -1 if there is none.
    int find(const T& value, int fromEnd) const;

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
    const T& getEmpty() const;
    int isEmptySet() const;

    /// Elements in use, slots allocated, and the bytes of the latter.
    int length() const;
    int allocLength() const;
    int allocBytes() const;

    int getStep() const;
    int setStep(int step);

    /// Exchanges the whole state of two arrays.
    void swap(ZXArray& other) noexcept;

protected:
    /// The allocation that the growth rule gives for `n` slots; 0 for `n` < 1.
    int getGrowSize(int n);

    /// Sets the storage to getGrowSize(n) slots, or to exactly `n` when `useRule`
    /// is 0. The length is not changed; without memory nothing is.
    void growArray(int n, int useRule);

private:
    template <class Index>
    static int toInt(Index i) {
        if constexpr (std::is_signed_v<Index>) {
            if (i < 0)
                return 0;
        }
        constexpr auto most = static_cast<unsigned long long>((std::numeric_limits<int>::max)());
        return static_cast<unsigned long long>(i) > most ? (std::numeric_limits<int>::max)()
                                                         : static_cast<int>(i);
    }

    void extendTo(int i);

    T* data_;
    T empty_;
    int allocLength_;
    int length_;
    int step_;
    int emptySet_;
};

template <class T>
ZXArray<T>::ZXArray()
    : data_(nullptr), empty_(), allocLength_(0), length_(0), step_(-1), emptySet_(0) {}

template <class T>
ZXArray<T>::ZXArray(int n, int step) : ZXArray() {
    step_ = step;
    growArray(n, 0);
    length_ = allocLength_;
}

template <class T>
ZXArray<T>::ZXArray(const T* values, int n) : ZXArray() {
    if (values == nullptr)
        return;
    growArray(n, 1);
    length_ = (std::min)((std::max)(n, 0), allocLength_);
    std::copy_n(values, length_, data_);
}

template <class T>
ZXArray<T>::ZXArray(const ZXArray& other) : ZXArray() {
    *this = other;
}

template <class T>
ZXArray<T>::ZXArray(ZXArray&& other) noexcept : ZXArray() {
    swap(other);
}

template <class T>
ZXArray<T>& ZXArray<T>::operator=(const ZXArray& other) {
    if (this == &other)
        return *this;
    if (allocLength_ != other.allocLength_) {
        reset();
        if (other.allocLength_ > 0)
            data_ = new (std::nothrow) T[static_cast<std::size_t>(other.allocLength_)];
        allocLength_ = data_ == nullptr ? 0 : other.allocLength_;
    }
    length_ = data_ == nullptr ? 0 : other.length_;
    step_ = other.step_;
    empty_ = other.empty_;
    emptySet_ = other.emptySet_;
    std::copy_n(other.data_, allocLength_, data_);
    return *this;
}

template <class T>
ZXArray<T>& ZXArray<T>::operator=(ZXArray&& other) noexcept {
    swap(other);
    return *this;
}

template <class T>
ZXArray<T>::~ZXArray() {
    delete[] data_;
}

template <class T>
int ZXArray<T>::operator==(const ZXArray& other) const {
    if (this == &other)
        return 1;
    if (length_ != other.length_)
        return 0;
    for (int i = 0; i < length_; ++i) {
        if (!(data_[i] == other.data_[i]))
            return 0;
    }
    return 1;
}

template <class T>
int ZXArray<T>::operator!=(const ZXArray& other) const {
    return !(*this == other);
}

template <class T>
T& ZXArray<T>::get(int i) {
    if (i < 0)
        i = 0;
    if (i >= length_)
        extendTo(i);
    return data_[i];
}

template <class T>
T& ZXArray<T>::operator[](int i) {
    return get(i);
}

template <class T>
T& ZXArray<T>::operator()(int i) {
    return get(i);
}

template <class T>
const T& ZXArray<T>::get(int i) const {
    if (i < 0)
        i = 0;
    return i < allocLength_ ? data_[i] : empty_;
}

template <class T>
const T& ZXArray<T>::operator[](int i) const {
    return get(i);
}

template <class T>
const T& ZXArray<T>::operator()(int i) const {
    return get(i);
}

template <class T>
ZXArray<T>::operator T*() {
    return data_;
}

template <class T>
ZXArray<T>::operator const T*() const {
    return data_;
}

template <class T>
void ZXArray<T>::set(int i, const T& value) {
    if ((std::max)(i, 0) < length_) {
        get(i) = value;
    } else {
        const T copy(value); // growing may free the storage that holds `value`
        get(i) = copy;
    }
}

template <class T>
T& ZXArray<T>::add(const T& value) {
    if (length_ == allocLength_) {
        const T copy(value); // growing frees the storage that may hold `value`
        extendTo(length_);
        return data_[length_ - 1] = copy;
    }
    return data_[length_++] = value;
}

template <class T>
T& ZXArray<T>::add() {
    return add(empty_);
}

template <class T>
T& ZXArray<T>::ins(int i, const T& value) {
    i = (std::max)(i, 0);
    if (i >= length_) {
        set(i, value);
        return data_[i];
    }
    T copy(value); // `value` may be one of the elements that move
    reserve(length_ + 1LL);
    std::move_backward(data_ + i, data_ + length_, data_ + length_ + 1);
    ++length_;
    return data_[i] = std::move(copy);
}

template <class T>
T& ZXArray<T>::ins(int i) {
    return ins(i, empty_);
}

template <class T>
T& ZXArray<T>::insert(const T& value, int i) {
    return ins(i, value);
}

template <class T>
void ZXArray<T>::del(int i) {
    i = (std::max)(i, 0);
    if (i >= length_)
        return;
    std::move(data_ + i + 1, data_ + length_, data_ + i);
    --length_;
    data_[length_] = empty_;
}

template <class T>
void ZXArray<T>::remove(int i) {
    del(i);
}

template <class T>
int ZXArray<T>::find(const T& value, int fromEnd) const {
    if (fromEnd == 0) {
        for (int i = 0; i < length_; ++i) {
            if (data_[i] == value)
                return i;
        }
    } else {
        for (int i = length_ - 1; i >= 0; --i) {
            if (data_[i] == value)
                return i;
        }
    }
    return -1;
}

template <class T>
void ZXArray<T>::clear() {
    std::fill_n(data_, length_, empty_);
}

template <class T>
void ZXArray<T>::setAll(const T& value) {
    const T copy(value); // `value` may be one of the elements
    std::fill_n(data_, length_, copy);
}

template <class T>
void ZXArray<T>::reset() {
    delete[] data_;
    data_ = nullptr;
    allocLength_ = 0;
    length_ = 0;
}

template <class T>
void ZXArray<T>::compact() {
    growArray(length_, 0);
}

template <class T>
void ZXArray<T>::setSize(int n) {
    n = (std::max)(n, 0);
    if (n < length_)
        std::fill(data_ + n, data_ + length_, empty_);
    else if (n > allocLength_)
        growArray(n, 1);
    length_ = (std::min)(n, allocLength_);
}

template <class T>
void ZXArray<T>::resize(int n) {
    n = (std::max)(n, 0);
    const int slots = getGrowSize(n);
    if (n < length_ && slots > length_)
        std::fill(data_ + n, data_ + length_, empty_);
    length_ = n;
    growArray(slots, 0);
    length_ = (std::min)(length_, allocLength_);
}

template <class T>
void ZXArray<T>::reserve(long long n) {
    if (n <= allocLength_)
        return;
    growArray(static_cast<int>((std::min)(n, 0LL + (std::numeric_limits<int>::max)())), 1);
    if (n > allocLength_)
        zarnex::exitFatally("failed alloc\n", 1);
}

template <class T>
void ZXArray<T>::setAllocSize(int n) {
    n = (std::max)(n, 0);
    length_ = (std::min)(length_, n);
    growArray(n, 0);
}

template <class T>
void ZXArray<T>::setEmpty(const T& value) {
    empty_ = value;
    emptySet_ = 1;
    std::fill(data_ + length_, data_ + allocLength_, empty_);
}

template <class T>
const T& ZXArray<T>::getEmpty() const {
    return empty_;
}

template <class T>
int ZXArray<T>::isEmptySet() const {
    return emptySet_;
}

template <class T>
int ZXArray<T>::length() const {
    return length_;
}

template <class T>
int ZXArray<T>::allocLength() const {
    return allocLength_;
}

template <class T>
int ZXArray<T>::allocBytes() const {
    return static_cast<int>(static_cast<unsigned>(allocLength_) * unsigned{sizeof(T)});
}

template <class T>
int ZXArray<T>::getStep() const {
    return step_;
}

template <class T>
int ZXArray<T>::setStep(int step) {
    return step_ = step;
}

template <class T>
void ZXArray<T>::swap(ZXArray& other) noexcept {
    using std::swap;
    swap(data_, other.data_);
    swap(empty_, other.empty_);
    swap(allocLength_, other.allocLength_);
    swap(length_, other.length_);
    swap(step_, other.step_);
    swap(emptySet_, other.emptySet_);
}

template <class T>
int ZXArray<T>::getGrowSize(int n) {
    if (n < 1)
        return 0;
    long long slots;
    if (step_ >= 1) {
        slots = (static_cast<long long>(n) + step_ - 1) / step_ * step_;
    } else if (n >= allocLength_) {
        for (slots = allocLength_ <= 0 ? 32 : allocLength_; slots < n;)
            slots *= 2;
    } else {
        for (slots = allocLength_; slots / 2 >= n;)
            slots /= 2;
    }
    return static_cast<int>((std::min)(slots, 0LL + (std::numeric_limits<int>::max)()));
}

template <class T>
void ZXArray<T>::growArray(int n, int useRule) {
    const int slots = useRule != 0 ? getGrowSize(n) : n;
    if (slots <= 0) {
        delete[] data_;
        data_ = nullptr;
        allocLength_ = 0;
    } else if (slots != allocLength_) {
        T* const storage = new (std::nothrow) T[static_cast<std::size_t>(slots)];
        if (storage == nullptr)
            return;
        T* const end = std::move(data_, data_ + (std::min)(slots, allocLength_), storage);
        if (emptySet_ != 0)
            std::fill(end, storage + slots, empty_);
        delete[] data_;
        data_ = storage;
        allocLength_ = slots;
    }
}

// The slow half of get(): makes slot `i`, at or past the length, the last one.
template <class T>
void ZXArray<T>::extendTo(int i) {
    reserve(i + 1LL);
    length_ = i + 1;
}

extern template class ZARNEX_API ZXArray<char>;
extern template class ZARNEX_API ZXArray<unsigned char>;
extern template class ZARNEX_API ZXArray<int>;
extern template class ZARNEX_API ZXArray<double>;
extern template class ZARNEX_API ZXArray<wchar_t>;
extern template class ZARNEX_API ZXArray<std::pair<int, double>>;
extern template class ZARNEX_API ZXArray<ZXArray<std::pair<int, double>>>;
