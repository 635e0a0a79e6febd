#pragma once

/// Positions in vectors as ints, as the containers count them.

#include <algorithm>
#include <vector>

namespace fuzz {

using Values = std::vector<int>;

int sizeOf(const auto& values) {
    return static_cast<int>(values.size());
}

auto at(auto& values, int i) {
    return values.begin() + i;
}

int positionOf(const auto& values, const auto& value) {
    const auto found = std::find(values.begin(), values.end(), value);
    return found == values.end() ? -1 : static_cast<int>(found - values.begin());
}

} // namespace fuzz
