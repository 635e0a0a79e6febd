#pragma once

/// The members of ZXArray, which ZXArray.h includes below the class.

#include <zarnex/config.h>
#include <zarnex/containers/ZXArray.h>
#include <zarnex/containers/arrayStorage.h>
#include <zarnex/runtime/exiting.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <type_traits>
#include <utility>

template <class T>
ZARNEX_TEMPLATE_INLINE ZXArray<T>::ZXArray()
    : data_(nullptr), empty_(), allocLength_(0), length_(0), step_(-1), emptySet_(0) {}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZXArray<T>::getGrowSize(int n) {
    if (n < 1)
        return 0;
    long long count;
    if (step_ >= 1) {
        // Most steps are powers of two: a division would take as long as all the rest.
        const long long step = step_;
        const long long last = n + step - 1;
        count = (step & (step - 1)) == 0 ? last & -step : last / step * step;
    } else if (n >= allocLength_) {
        for (count = allocLength_ <= 0 ? 32 : allocLength_; count < n;)
            count *= 2;
    } else {
        for (count = allocLength_; count / 2 >= n;)
            count /= 2;
    }
    return static_cast<int>((std::min)(count, 0LL + (std::numeric_limits<int>::max)()));
}

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
ZARNEX_TEMPLATE_INLINE ZXArray<T>::ZXArray(const T* values, long long n, int step) : ZXArray() {
    step_ = step;
    if (n < 1)
        return;
    constexpr long long most = (std::numeric_limits<int>::max)();
    if (n <= most) {
        allocLength_ = getGrowSize(static_cast<int>(n));
        data_ = zarnex::detail::resized<T>(nullptr, 0, allocLength_);
    }
    if (data_ == nullptr)
        zarnex::detail::exitWithoutMemory();
    length_ = static_cast<int>(n);
    std::copy_n(values, n, data_);
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
            data_ = zarnex::detail::resized<T>(nullptr, 0, other.allocLength_);
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
ZARNEX_TEMPLATE_INLINE ZXArray<T>::~ZXArray() {
    zarnex::detail::release(data_);
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
ZARNEX_TEMPLATE_INLINE T& ZXArray<T>::get(int i) {
    if (ZARNEX_UNLIKELY(static_cast<unsigned>(i) >= static_cast<unsigned>(length_)))
        return reach(i);
    return data_[i];
}

template <class T>
ZARNEX_TEMPLATE_INLINE T& ZXArray<T>::operator[](int i) {
    return get(i);
}

template <class T>
ZARNEX_TEMPLATE_INLINE T& ZXArray<T>::operator()(int i) {
    return get(i);
}

template <class T>
ZARNEX_TEMPLATE_INLINE const T& ZXArray<T>::get(int i) const {
    if (static_cast<unsigned>(i) < static_cast<unsigned>(allocLength_))
        return data_[i];
    return i < 0 && allocLength_ > 0 ? data_[0] : empty_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE const T& ZXArray<T>::operator[](int i) const {
    return get(i);
}

template <class T>
ZARNEX_TEMPLATE_INLINE const T& ZXArray<T>::operator()(int i) const {
    return get(i);
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZXArray<T>::operator T*() {
    return data_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZXArray<T>::operator const T*() const {
    return data_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZXArray<T>::set(int i, const T& value) {
    if ((std::max)(i, 0) < length_) {
        store(get(i), value);
    } else {
        const T copy(value); // growing may free the storage that holds `value`
        get(i) = copy;
    }
}

template <class T>
ZARNEX_TEMPLATE_INLINE T& ZXArray<T>::add(const T& value) {
    if (length_ == allocLength_) {
        const T copy(value); // growing frees the storage that may hold `value`
        extendTo(length_);
        return data_[length_ - 1] = copy;
    }
    return store(data_[length_++], value);
}

template <class T>
ZARNEX_TEMPLATE_INLINE T& ZXArray<T>::add() {
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
        const T* const first = data_;
        const T* const end = first + length_;
        const T* const found = std::find(first, end, value);
        return found != end ? static_cast<int>(found - first) : -1;
    }
    for (int i = length_ - 1; i >= 0; --i) {
        if (data_[i] == value)
            return i;
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
    zarnex::detail::release(data_);
    data_ = nullptr;
    allocLength_ = 0;
    length_ = 0;
}

template <class T>
void ZXArray<T>::compact() {
    growArray(length_, 0);
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZXArray<T>::setSize(int n) {
    n = (std::max)(n, 0);
    if (n < length_)
        std::fill(data_ + n, data_ + length_, empty_);
    else if (n > allocLength_)
        growArray(n, 1);
    if (n <= allocLength_)
        length_ = n;
}

template <class T>
void ZXArray<T>::resize(int n) {
    n = (std::max)(n, 0);
    const int count = getGrowSize(n);
    if (n < length_ && count > length_)
        std::fill(data_ + n, data_ + length_, empty_);
    growArray(count, 0);
    if (n <= allocLength_)
        length_ = n;
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZXArray<T>::reserve(long long n) {
    if (n <= allocLength_)
        return;
    if (n <= (std::numeric_limits<int>::max)())
        growArray(static_cast<int>(n), 1);
    if (n > allocLength_)
        zarnex::detail::exitWithoutMemory();
}

template <class T>
void ZXArray<T>::setAllocSize(int n) {
    n = (std::max)(n, 0);
    length_ = (std::min)(length_, n);
    growArray(n, 0);
}

template <class T>
void ZXArray<T>::setEmpty(const T& value) {
    store(empty_, value);
    emptySet_ = 1;
    std::fill(data_ + length_, data_ + allocLength_, empty_);
}

template <class T>
ZARNEX_TEMPLATE_INLINE const T& ZXArray<T>::getEmpty() const {
    return empty_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZXArray<T>::isEmptySet() const {
    return emptySet_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZXArray<T>::length() const {
    return length_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZXArray<T>::allocLength() const {
    return allocLength_;
}

template <class T>
int ZXArray<T>::allocBytes() const {
    return static_cast<int>(static_cast<unsigned>(allocLength_) * unsigned{sizeof(T)});
}

template <class T>
ZARNEX_TEMPLATE_INLINE T* ZXArray<T>::begin() {
    return data_;
}
template <class T>
ZARNEX_TEMPLATE_INLINE const T* ZXArray<T>::begin() const {
    return data_;
}
template <class T>
ZARNEX_TEMPLATE_INLINE const T* ZXArray<T>::cbegin() const {
    return data_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE T* ZXArray<T>::end() {
    return data_ + length_;
}
template <class T>
ZARNEX_TEMPLATE_INLINE const T* ZXArray<T>::end() const {
    return data_ + length_;
}
template <class T>
ZARNEX_TEMPLATE_INLINE const T* ZXArray<T>::cend() const {
    return data_ + length_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE typename ZXArray<T>::reverse_iterator ZXArray<T>::rbegin() {
    return reverse_iterator(end());
}
template <class T>
ZARNEX_TEMPLATE_INLINE typename ZXArray<T>::const_reverse_iterator ZXArray<T>::rbegin() const {
    return const_reverse_iterator(end());
}
template <class T>
ZARNEX_TEMPLATE_INLINE typename ZXArray<T>::const_reverse_iterator ZXArray<T>::crbegin() const {
    return const_reverse_iterator(end());
}

template <class T>
ZARNEX_TEMPLATE_INLINE typename ZXArray<T>::reverse_iterator ZXArray<T>::rend() {
    return reverse_iterator(begin());
}
template <class T>
ZARNEX_TEMPLATE_INLINE typename ZXArray<T>::const_reverse_iterator ZXArray<T>::rend() const {
    return const_reverse_iterator(begin());
}
template <class T>
ZARNEX_TEMPLATE_INLINE typename ZXArray<T>::const_reverse_iterator ZXArray<T>::crend() const {
    return const_reverse_iterator(begin());
}

template <class T>
ZARNEX_TEMPLATE_INLINE T* ZXArray<T>::data() {
    return data_;
}
template <class T>
ZARNEX_TEMPLATE_INLINE const T* ZXArray<T>::data() const {
    return data_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE std::size_t ZXArray<T>::size() const {
    return static_cast<std::size_t>(length_);
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZXArray<T>::getStep() const {
    return step_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZXArray<T>::setStep(int step) {
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
void ZXArray<T>::growArray(int n, int useRule) {
    const int count = useRule != 0 ? getGrowSize(n) : n;
    if (count <= 0) {
        zarnex::detail::release(data_);
        data_ = nullptr;
        allocLength_ = 0;
    } else if (count != allocLength_) {
        T* const storage = zarnex::detail::resized(data_, allocLength_, count);
        if (storage == nullptr)
            return;
        if (emptySet_ != 0 && count > allocLength_)
            std::fill(storage + allocLength_, storage + count, empty_);
        data_ = storage;
        allocLength_ = count;
    }
}

// Assigning an element to itself is left out: a list would be empty after it. For plain bytes
// the look at the addresses would take longer than the copy.
template <class T>
ZARNEX_TEMPLATE_INLINE T& ZXArray<T>::store(T& slot, const T& value) {
    if (std::is_trivially_copyable_v<T> || &slot != &value)
        slot = value;
    return slot;
}

// The slow half of get(): for negative indices, and for those at or past the length.
template <class T>
T& ZXArray<T>::reach(int i) {
    i = (std::max)(i, 0);
    if (i >= length_)
        extendTo(i);
    return data_[i];
}

// Makes slot `i`, at or past the length, the last one.
template <class T>
void ZXArray<T>::extendTo(int i) {
    reserve(i + 1LL);
    length_ = i + 1;
}
