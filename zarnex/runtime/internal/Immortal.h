#pragma once

#include <new>
#include <utility>

namespace zarnex::detail {

/// An object that is made where it stands and never destroyed: as a function's static one
/// it lives from its first use to the end of the process, and asks nothing of the heap.
template <class T>
class Immortal {
public:
    template <class... Arguments>
    explicit Immortal(Arguments&&... arguments)
        : object_(new (place_) T(std::forward<Arguments>(arguments)...)) {}
    Immortal(const Immortal&) = delete;
    Immortal& operator=(const Immortal&) = delete;

    T& operator*() const {
        return *object_;
    }

private:
    alignas(T) unsigned char place_[sizeof(T)];
    T* object_;
};

} // namespace zarnex::detail
