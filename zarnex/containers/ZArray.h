#pragma once

#include <zarnex/config.h>
#include <zarnex/containers/VMAccess.h>
#include <zarnex/runtime/exiting.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <type_traits>

/// A growing array of plain numbers in the block of a VMAccess, with a cache.
///
/// The array has no length: operator[] makes the block large enough for any
/// index, and elements are undefined until they are written. The block starts at
/// two growth steps of the cache's size and always keeps one step in reserve.
///
/// The cache holds as many elements as the constructor was told. freeze() writes
/// it over the start of the block and frees it; restore() and copy() load it from
/// there. It is all zero before that.
///
///     ZArray<float> heights(256, 0);
///     heights[1000] = 2.5f;
///     heights.insert(0.5f, 1000); // the 2.5 is now at 1001
///
/// Indices count elements and are 32-bit values. A block of more than 2^31 - 1
/// bytes cannot be had; asking for one ends the process through abort(), and so
/// does storage that the heap refuses.
// Functions are virtual, the destructor is not: hosts rely on the layout.
#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#endif
template <class T>
class ZArray : public VMAccess {
    static_assert(std::is_trivially_copyable_v<T>);

public:
    /// A cache of `n` elements, zero counting as one, and a block of twice that
    /// size. `extra` only enters size().
    ZArray(unsigned int n, unsigned long extra);

    /// Shares the block and the cache of `other`.
    ///
    /// Kept as is: copies share the block and the cache, although the other
    /// arrays copy theirs. Each destructor frees both: let only one run.
    /// @{
    ZArray(const ZArray& other);
    ZArray& operator=(const ZArray& other);
    /// @}

    /// Frees the cache and the block.
    ~ZArray();

    /// The element at `index`, after growing the block as needed; a negative
    /// index becomes 0. References last until the next call that may grow.
    T& operator[](long index);

    /// The element at `index`, which must lie within the block: not checked.
    const T& operator[](long index) const;

    /// The address of (*this)[index].
    T* operator+(long index);

    /// Moves the elements from index `i` on up by one, puts `value` at `i` and
    /// returns it. A negative `i` becomes 0.
    ///
    /// Kept as is: moves the whole block, for the array knows no length, so each
    /// call grows it.
    virtual T& insert(const T& value, int i);

    /// Moves the elements from index `i` on down by one and returns element `i`.
    ///
    /// Kept as is: that drops the element at i - 1, not the one at `i` (for 0
    /// and below, the first one), and returns the one that stood at i + 1.
    virtual T& remove(int i);

    /// Moves the elements [from, end) to where they start at `to`; the ranges may
    /// overlap. Works in chunks of `kb` * 1024 bytes and first grows the block so
    /// that both ends lie inside it. There is nothing before index 0: no element
    /// comes from there, and those that would go there are dropped.
    ///
    /// Returns 0, at once for an empty range; -1, moving nothing, if there is no
    /// room for a chunk or `kb` is 0.
    int move(long to, long from, long end, unsigned int kb);

    /// Copies `count` elements from `from` to `to` as move() does, then loads the
    /// cache. Returns 0, at once for a `count` below 1; -1, copying nothing, if
    /// there is no room for a chunk or `kb` is below 1.
    int copy(long to, long from, long count, int kb);

    /// Saves the cache to the block and frees it. Returns 0.
    ///
    /// Kept as is: the cache is not what operator[] writes to, so elements
    /// written since it was loaded are lost where the cache covers them.
    int freeze();

    /// Makes the cache again after freeze() and loads it. Returns 0. Without
    /// room, writes "failed alloc" to the standard error stream and ends the
    /// process with status 1.
    int restore();

    /// Brings the block back to its first size. Returns 0. Without room for it the
    /// process ends through abort(), as wherever the block changes its size.
    int reset();

    /// The constructor's two arguments together, in 32 bits; bounds nothing.
    unsigned long size();

protected:
    /// Grows the block, a growth step at a time, until `index` + 1 elements are
    /// less than the block without its last step. Returns 0.
    int checkSize(unsigned long index);

private:
    static constexpr std::uint32_t largestBlock = 0x7fffffff;

    T* elements() const;

    // What checkSize() and reset() do.
    void growFor(std::uint64_t index);
    void grow(std::uint64_t needed);
    void resizeTo(std::uint32_t bytes);

    // What insert(), remove(), move() and copy() do, in indices with room for sums.
    void shiftFrom(std::int64_t i, int offset);
    int transfer(std::int64_t to, std::int64_t from, std::int64_t count, std::int64_t kb);
    void relay(T* staging, std::int64_t to, std::int64_t from, std::int64_t count);

    void getBlock();        ///< loads the cache
    void saveBlock();       ///< saves the cache
    void check(int status); ///< ends the process unless a block copy gave 0

    T* cache_; // null while frozen
    std::uint32_t blockBytes_;
    std::uint32_t cacheLength_;
    std::uint32_t limit_;
    std::uint32_t cacheStart_; // always 0: hosts rely on the layout
    std::uint32_t growBytes_;
};
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif

template <class T>
ZArray<T>::ZArray(unsigned int n, unsigned long extra)
    : cache_(nullptr), blockBytes_(0), cacheLength_(n == 0 ? 1 : n),
      limit_(static_cast<std::uint32_t>(n + extra)), cacheStart_(0), growBytes_(0) {
    const std::uint64_t stepBytes = std::uint64_t{cacheLength_} * sizeof(T);
    if (2 * stepBytes <= largestBlock)
        cache_ = new (std::nothrow) T[cacheLength_]();
    if (cache_ == nullptr)
        VMAccess::abort(1);
    growBytes_ = static_cast<std::uint32_t>(stepBytes);
    blockBytes_ = 2 * growBytes_;
    VMAccess::allocate(blockBytes_);
}

template <class T>
ZArray<T>::ZArray(const ZArray&) = default;

template <class T>
ZArray<T>& ZArray<T>::operator=(const ZArray&) = default;

template <class T>
ZArray<T>::~ZArray() {
    delete[] cache_;
    VMAccess::unallocate();
}

template <class T>
ZARNEX_TEMPLATE_INLINE T& ZArray<T>::operator[](long index) {
    const auto i = (std::max)(static_cast<std::int32_t>(index), 0);
    growFor(static_cast<std::uint32_t>(i));
    return elements()[i];
}

template <class T>
ZARNEX_TEMPLATE_INLINE const T& ZArray<T>::operator[](long index) const {
    return elements()[static_cast<std::int32_t>(index)];
}

template <class T>
ZARNEX_TEMPLATE_INLINE T* ZArray<T>::operator+(long index) {
    return &(*this)[index];
}

template <class T>
T& ZArray<T>::insert(const T& value, int i) {
    const T copied = value; // it may be an element of this array
    shiftFrom(i, 1);
    return (*this)[i] = copied;
}

template <class T>
T& ZArray<T>::remove(int i) {
    shiftFrom(i, -1);
    return (*this)[i];
}

template <class T>
int ZArray<T>::move(long to, long from, long end, unsigned int kb) {
    const auto first = static_cast<std::int32_t>(from);
    const std::int64_t count = std::int64_t{static_cast<std::int32_t>(end)} - first;
    return transfer(static_cast<std::int32_t>(to), first, count, kb);
}

template <class T>
int ZArray<T>::copy(long to, long from, long count, int kb) {
    const auto elementCount = static_cast<std::int32_t>(count);
    if (elementCount < 1)
        return 0;
    const int status =
        transfer(static_cast<std::int32_t>(to), static_cast<std::int32_t>(from), elementCount, kb);
    if (status == 0)
        getBlock();
    return status;
}

template <class T>
int ZArray<T>::freeze() {
    saveBlock();
    delete[] cache_;
    cache_ = nullptr;
    return 0;
}

template <class T>
int ZArray<T>::restore() {
    if (cache_ == nullptr)
        cache_ = new (std::nothrow) T[cacheLength_]();
    if (cache_ == nullptr)
        zarnex::detail::exitWithoutMemory();
    getBlock();
    return 0;
}

template <class T>
int ZArray<T>::reset() {
    cacheStart_ = 0;
    resizeTo(2 * growBytes_);
    return 0;
}

template <class T>
unsigned long ZArray<T>::size() {
    return limit_;
}

template <class T>
int ZArray<T>::checkSize(unsigned long index) {
    growFor(static_cast<std::uint32_t>(index));
    return 0;
}

template <class T>
ZARNEX_TEMPLATE_INLINE T* ZArray<T>::elements() const {
    return static_cast<T*>(static_cast<void*>(block_));
}

template <class T>
ZARNEX_TEMPLATE_INLINE void ZArray<T>::growFor(std::uint64_t index) {
    const std::uint64_t needed = (index + 1) * sizeof(T);
    if (ZARNEX_UNLIKELY(needed >= blockBytes_ - growBytes_))
        grow(needed);
}

template <class T>
void ZArray<T>::grow(std::uint64_t needed) {
    const std::uint64_t steps = (needed - (blockBytes_ - growBytes_)) / growBytes_ + 1;
    const std::uint64_t bytes = blockBytes_ + steps * growBytes_;
    if (bytes > largestBlock)
        VMAccess::abort(1);
    resizeTo(static_cast<std::uint32_t>(bytes));
}

template <class T>
void ZArray<T>::resizeTo(std::uint32_t bytes) {
    blockBytes_ = bytes;
    VMAccess::reallocate(bytes);
    if (block_ == nullptr)
        VMAccess::abort(static_cast<int>(bytes));
}

template <class T>
void ZArray<T>::shiftFrom(std::int64_t i, int offset) {
    const std::int64_t end = blockBytes_ / sizeof(T);
    check(transfer(i + offset, i, end - i, 4));
}

template <class T>
int ZArray<T>::transfer(std::int64_t to, std::int64_t from, std::int64_t count, std::int64_t kb) {
    const std::int64_t outside = (std::max)(std::int64_t{0}, -(std::min)(to, from));
    to += outside;
    from += outside;
    count -= outside;
    if (count <= 0)
        return 0;

    growFor(static_cast<std::uint64_t>(from + count));
    growFor(static_cast<std::uint64_t>(to + count));
    if (kb <= 0)
        return -1;
    T* const staging = static_cast<T*>(std::malloc(static_cast<std::size_t>(kb) * 1024));
    if (staging == nullptr)
        return -1;

    // Top down when moving up, bottom up when moving down: no chunk is
    // overwritten before it is read.
    const std::int64_t room = kb * 1024 / static_cast<std::int64_t>(sizeof(T));
    while (count > 0) {
        const std::int64_t chunk = (std::min)(count, room);
        count -= chunk;
        if (to > from) {
            relay(staging, to + count, from + count, chunk);
        } else {
            relay(staging, to, from, chunk);
            to += chunk;
            from += chunk;
        }
    }
    std::free(staging);
    return 0;
}

template <class T>
void ZArray<T>::relay(T* staging, std::int64_t to, std::int64_t from, std::int64_t count) {
    const auto bytes = [](std::int64_t elements) {
        return static_cast<long>(static_cast<std::size_t>(elements) * sizeof(T));
    };
    check(VMAccess::getBlock(staging, bytes(from), bytes(count)));
    check(VMAccess::saveBlock(staging, bytes(to), bytes(count)));
}

template <class T>
void ZArray<T>::getBlock() {
    check(VMAccess::getBlock(cache_, static_cast<long>(cacheStart_ * sizeof(T)),
                             static_cast<long>(growBytes_)));
}

template <class T>
void ZArray<T>::saveBlock() {
    check(VMAccess::saveBlock(cache_, static_cast<long>(cacheStart_ * sizeof(T)),
                              static_cast<long>(growBytes_)));
}

template <class T>
void ZArray<T>::check(int status) {
    if (status != 0)
        VMAccess::abort(status);
}

extern template class ZARNEX_API ZArray<float>;
