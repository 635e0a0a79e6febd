#pragma once

/// Typed quantities to read, the same for every side.

#include <zarnex/strings/ZString.h>

#include <string>
#include <vector>

namespace bench {

constexpr int textCount = 64;

/// Texts with different numbers from 1 to 200 in a printf format such as "%.1f mm".
std::vector<std::string> formed(const char* format);

/// The same texts for the library and for its peers.
struct QuantityTexts {
    explicit QuantityTexts(const std::vector<std::string>& texts);

    std::vector<ZString> ours;
    std::vector<std::wstring> wide;
    std::vector<std::string> narrow;
};

} // namespace bench
