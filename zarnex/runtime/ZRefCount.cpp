#include <zarnex/runtime/ZRefCount.h>

#include <zarnex/runtime/MiniLock.h>
#include <zarnex/runtime/internal/locks.h>

ZRefCount::ZRefCount(void* shared) : pointer_(shared), count_(1) {}

ZRefCount::~ZRefCount() = default;

ZRefCount& ZRefCount::operator++() {
    ++count_;
    return *this;
}

unsigned int ZRefCount::decrement() {
    return --count_;
}

unsigned int ZRefCount::value() {
    return count_;
}

void* ZRefCount::pointer() {
    return pointer_;
}

void* ZRefCount::pointer() const {
    return pointer_;
}

void lockRefCount() {
    zarnex::detail::refCountLock().lock();
}

void unlockRefCount() {
    zarnex::detail::refCountLock().unlock();
}
