#pragma once

/// Random bytes from the kernel's generator.

#include <cstdint>

namespace zarnex::platform {

/// Writes 16 bytes that no other thread or process gets, neither the parent nor a
/// child of a fork. False if the kernel gives none; then `out` is unspecified.
bool randomBytes(std::uint8_t* out);

} // namespace zarnex::platform
