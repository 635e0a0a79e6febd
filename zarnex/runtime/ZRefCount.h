#pragma once

/// @file
/// ZRefCount, and the lock that guards all counts.

#include <zarnex/config.h>

/// Counts the references to a shared object.
///
/// The count is not atomic: every change stands between lockRefCount() and
/// unlockRefCount().
///
///     lockRefCount();
///     const unsigned int left = count->decrement();
///     unlockRefCount();
///     if (left == 0) {
///         delete static_cast<Shared*>(count->pointer());
///         delete count;
///     }
class ZARNEX_API ZRefCount {
public:
    /// One reference to `shared`, which is not owned.
    ZRefCount(void* shared);

    /// Frees nothing.
    ~ZRefCount();

    ZRefCount& operator++(); ///< counts one up, without a check of the range

    /// Counts one down and returns the new count. Below 0 it wraps to 4294967295.
    unsigned int decrement();

    unsigned int value(); ///< the count

    /// The shared object.
    /// @{
    void* pointer();
    void* pointer() const;
    /// @}

private:
    void* pointer_;
    unsigned int count_;
};

/// Takes the one process-wide lock that guards all reference counts; blocks until it is free.
/// The thread that holds it may take it again.
ZARNEX_API void lockRefCount();

/// Releases what lockRefCount() took.
ZARNEX_API void unlockRefCount();
