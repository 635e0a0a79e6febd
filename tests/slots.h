#pragma once

#include <cstddef>
#include <cstring>

/// The place of a virtual function in its class's table, from a pointer to it. A
/// virtual destructor takes two places.
template <class Function>
std::ptrdiff_t slotOf(Function function) {
    std::ptrdiff_t words[2];
    static_assert(sizeof words == sizeof function);
    std::memcpy(words, &function, sizeof words);
    return (words[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}
