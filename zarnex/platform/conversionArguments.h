#pragma once

/// What bytesToWide() and wideToBytes() of every code page make of their arguments.

#include <cstddef>
#include <cstring>
#include <cwchar>

namespace zarnex::platform {

/// Whether there are a text and a room for the result, or else the conversion gives 0.
inline bool canConvert(const void* text, int count, const void* out, int room) {
    return text != nullptr && count != 0 && room >= 0 && (room == 0 || out != nullptr);
}

/// `count`, or where that is negative all of the text, with its terminator.
/// @{
inline std::size_t unitCount(const char* text, int count) {
    return count < 0 ? std::strlen(text) + 1 : static_cast<std::size_t>(count);
}
inline std::size_t unitCount(const wchar_t* text, int count) {
    return count < 0 ? std::wcslen(text) + 1 : static_cast<std::size_t>(count);
}
/// @}

} // namespace zarnex::platform
