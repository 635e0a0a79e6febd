#pragma once

#include <type_traits>

namespace zarnex::platform {

/// The bits of a wide unit.
using WideUnit = std::make_unsigned_t<std::conditional_t<sizeof(wchar_t) == 2, short, int>>;

inline bool isAscii(unsigned char byte) {
    return byte < 0x80;
}

inline bool isAscii(wchar_t unit) {
    return static_cast<WideUnit>(unit) < 0x80;
}

} // namespace zarnex::platform
