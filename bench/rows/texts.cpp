#include "texts.h"

#include <string_view>

namespace bench {

std::string words(std::size_t length, std::size_t seed) {
    static constexpr std::string_view list[] = {"stitch",  "needle",  "the",  "thread", "colour",
                                                "of",      "tension", "a",    "fabric", "and",
                                                "density", "satin",   "hoop", "column", "under"};
    std::string text;
    std::size_t state = 2 * seed + 1;
    while (text.size() < length) {
        state = state * 6364136223846793005u + 1442695040888963407u;
        text += list[(state >> 33) % std::size(list)];
        text += ' ';
    }
    text.resize(length);
    return text;
}

} // namespace bench
