#pragma once

/// @file
/// The flag that tells that the process is going down.

#include <zarnex/config.h>

/// 1 once setExiting() has been called, 0 before.
///
/// For the cleanup code of hosts (destructors of long-lived objects, exit
/// handlers): 1 tells that the process is going down after a fatal condition.
/// The library sets the flag and never reads it. Safe on any thread.
ZARNEX_API int isExiting();

/// Sets the flag that isExiting() returns. Nothing clears it again.
ZARNEX_API void setExiting();

namespace zarnex {

/// The library's way out of a condition that it cannot continue from: writes
/// `message` (may be null) to the standard error stream, calls setExiting() and
/// ends the process through exit() with `status`.
[[noreturn]] ZARNEX_API void exitFatally(const char* message, int status);

namespace detail {

/// The way out where storage that the caller relies on cannot be had.
[[noreturn]] inline void exitWithoutMemory() {
    exitFatally("failed alloc\n", 1);
}

} // namespace detail

} // namespace zarnex
