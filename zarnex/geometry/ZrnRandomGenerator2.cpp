#include <zarnex/geometry/ZrnRandomGenerator2.h>

namespace {

constexpr int words = 624;
constexpr int distance = 397;
constexpr int notSeeded = 625;
constexpr long defaultSeed = 4357;

constexpr unsigned twisted(unsigned high, unsigned low, unsigned partner) {
    const unsigned y = (high & 0x80000000u) | (low & 0x7fffffffu);
    return partner ^ (y >> 1) ^ ((0u - (y & 1u)) & 0x9908b0dfu);
}

// Regenerates word[from] up to word[to] - 1.
inline void twist(unsigned* word, int from, int to, int toPartner) {
    for (int i = from; i < to; ++i)
        word[i] = twisted(word[i], word[i + 1], word[i + toPartner]);
}

} // namespace

ZrnRandomGenerator2::ZrnRandomGenerator2(long seed) : index(notSeeded) {
    randseed(seed);
}

void ZrnRandomGenerator2::randseed(long seed) {
    unsigned value = static_cast<unsigned>(seed);
    for (unsigned& each : word) {
        each = value;
        value *= 69069u;
    }
    index = words;
}

void ZrnRandomGenerator2::refill() {
    if (index == notSeeded)
        randseed(defaultSeed);
    // The loop is split where the partner wraps round, and before at a multiple of 16, as
    // g++ -O2 vectorises only loops that leave no rest.
    constexpr int wholeBlocks = 224;
    twist(word, 0, wholeBlocks, distance);
    twist(word, wholeBlocks, words - distance, distance);
    twist(word, words - distance, words - 1, distance - words);
    word[words - 1] = twisted(word[words - 1], word[0], word[distance - 1]);
    index = 0;
}
