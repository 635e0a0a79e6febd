#pragma once

/// The platform's point, whole, for sources that pass it by value. Not installed,
/// and not to be included beside the system's own headers.
///
/// On Windows only its name is in records.h. windows/points.cpp asserts that the
/// system's definition is this one.

#include <zarnex/platform/records.h>

#if defined(_WIN32)
struct tagPOINT {
    long x;
    long y;
};
#endif
