#pragma once

/// @file
/// The storage of ZXArray: made, moved and freed.

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>
#include <type_traits>
#include <utility>

namespace zarnex::detail {

/// Whether arrays move elements as plain bytes, without constructing those that are copied over.
template <class T>
inline constexpr bool
    movesAsBytes = std::is_trivially_copyable_v<T>&& std::is_nothrow_default_constructible_v<T> &&
                   alignof(T) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__;

template <class T>
void release(T* storage) {
    if constexpr (movesAsBytes<T>)
        ::operator delete(storage);
    else
        delete[] storage;
}

/// Storage of `count` slots in place of `storage`: with as many of its `kept` elements as fit,
/// and default-constructed ones. Null, with `storage` as it was, if there is no memory.
template <class T>
T* resized(T* storage, int kept, int count) {
    const auto room = static_cast<std::size_t>(count);
    kept = (std::min)(kept, count);
    if constexpr (movesAsBytes<T>) {
        T* const fresh = static_cast<T*>(::operator new(room * sizeof(T), std::nothrow));
        if (fresh == nullptr)
            return nullptr;
        if (storage != nullptr)
            std::memcpy(static_cast<void*>(fresh), storage,
                        static_cast<std::size_t>(kept) * sizeof(T));
        for (int i = kept; i < count; ++i)
            ::new (static_cast<void*>(fresh + i)) T;
        release(storage);
        return fresh;
    } else {
        T* const fresh = new (std::nothrow) T[room];
        if (fresh != nullptr && storage != nullptr) { // or compilers warn of moving from null
            std::move(storage, storage + kept, fresh);
            release(storage);
        }
        return fresh;
    }
}

} // namespace zarnex::detail
