#pragma once

#include <cstdio>
#include <string>

namespace bench {

/// printf into a string.
template <class... Arguments>
std::string text(const char* format, Arguments... arguments) {
    char buffer[256];
    std::snprintf(buffer, sizeof buffer, format, arguments...);
    return buffer;
}

/// Nanoseconds with three digits in a unit that fits.
std::string time(double nanoseconds);

} // namespace bench
