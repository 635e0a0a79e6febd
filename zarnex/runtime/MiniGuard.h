#pragma once

#include <zarnex/runtime/MiniLock.h>

/// Holds a MiniLock from construction to destruction.
///
///     MiniGuard guard(lock);
class ZARNEX_API MiniGuard {
public:
    /// Takes `lock`, which must outlive the guard.
    MiniGuard(MiniLock& lock);

    /// Releases the lock.
    virtual ~MiniGuard();

    /// A second guard of the same lock.
    ///
    /// Kept as is: takes no lock, although the copy releases one when it is
    /// destroyed. Guards live in one scope; do not copy them.
    MiniGuard(const MiniGuard& other);

    /// Not to be assigned: a guard holds one lock.
    MiniGuard& operator=(const MiniGuard&) = delete;

    MiniLock& getLock(); ///< the lock that it holds

private:
    MiniLock* lock_;
};
