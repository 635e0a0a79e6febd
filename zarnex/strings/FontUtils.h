#pragma once

#include <zarnex/config.h>
#include <zarnex/platform/records.h>

/// The fonts of the system's user interface.
class ZARNEX_API ZARNEX_WIDE FontUtils {
public:
    /// Sets metrics.cbSize to 504 and reads the system's non-client metrics into
    /// the rest.
    ///
    /// Returns 0, or the failure status 0x80004005 (as a signed 32-bit number)
    /// where the system has none to give, which is always so on Linux.
    static long getSystemFont(NONCLIENTMETRICSW& metrics);

    /// There is nothing to assign.
    FontUtils& operator=(const FontUtils&);
};
