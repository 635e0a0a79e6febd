#include <zarnex/runtime/MiniGuard.h>

MiniGuard::MiniGuard(MiniLock& lock) : lock_(&lock) {
    lock_->lock();
}

MiniGuard::~MiniGuard() {
    lock_->unlock();
}

MiniGuard::MiniGuard(const MiniGuard&) = default;

MiniLock& MiniGuard::getLock() {
    return *lock_;
}
