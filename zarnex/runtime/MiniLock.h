#pragma once

#include <zarnex/config.h>
#include <zarnex/platform/PlatformLock.h>

/// A recursive mutual-exclusion lock.
///
/// The thread that holds it may take it again and releases it as many times.
class ZARNEX_API MiniLock {
public:
    /// A lock that no thread holds.
    MiniLock();

    /// The lock must not be held.
    virtual ~MiniLock();

    /// Not a lock of its own.
    ///
    /// Kept as is: copies the bytes of the platform's lock and makes no new one.
    /// The copy is not an independent lock, and only one of the two may be
    /// destroyed while the other is in use; do not copy locks.
    /// @{
    MiniLock(const MiniLock& other);
    MiniLock& operator=(const MiniLock& other);
    /// @}

    /// Blocks until the calling thread holds the lock.
    void lock();

    /// Gives up one lock() of the calling thread, which must hold the lock.
    void unlock();

private:
    zarnex::PlatformLock section_;
};
