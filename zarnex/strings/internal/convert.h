#pragma once

/// The platform's conversions behind one name for both directions.

#include <zarnex/platform/platform.h>

namespace zarnex::detail {

/// Converts `count` units at `text`, up to and with the terminator for -1, to the other
/// type. Returns the units written, or needed with `room` 0; 0 on failure.
inline int convertUnits(unsigned int codePage, const char* text, int count, wchar_t* out,
                        int room) {
    return platform::bytesToWide(codePage, text, count, out, room);
}

inline int convertUnits(unsigned int codePage, const wchar_t* text, int count, char* out,
                        int room) {
    return platform::wideToBytes(codePage, text, count, out, room);
}

} // namespace zarnex::detail
