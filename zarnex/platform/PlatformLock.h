#pragma once

namespace zarnex {

/// Room for the platform's recursive lock: a critical section on Windows, a
/// recursive mutex on Linux. The platform sources assert that it fits.
struct PlatformLock {
    alignas(8) unsigned char bytes[40]; ///< only for the sources of the platform
};

} // namespace zarnex
