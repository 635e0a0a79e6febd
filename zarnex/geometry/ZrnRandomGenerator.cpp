#include <zarnex/geometry/ZrnRandomGenerator.h>

#include <atomic>

namespace {

constexpr int multiplier = 515;
constexpr int modulus = 524288;

// Kept as is: above the modulus. The first step brings x into range.
constexpr int firstX = 566387;

// x after `steps` steps, x * 515^steps. Unsigned products wrap at 2^32, which the modulus
// divides.
constexpr int stepped(int x, int steps) {
    if (steps <= 0)
        return x;
    unsigned result = static_cast<unsigned>(x);
    unsigned power = multiplier;
    for (int rest = steps; rest != 0; rest >>= 1) {
        if (rest & 1)
            result *= power;
        power *= power;
    }
    return static_cast<int>(result % modulus);
}

// The state of zrnrandom. Relaxed loads and stores are plain ones in machine code; threads
// may still overwrite each other's step.
constinit std::atomic<int> sharedX = firstX;

} // namespace

ZrnRandomGenerator::ZrnRandomGenerator(long n)
    : multiplier_(multiplier), x_(stepped(firstX, static_cast<int>(n))), modulus_(modulus) {}

float zrnrandom() {
    const int x = multiplier * sharedX.load(std::memory_order_relaxed) % modulus;
    sharedX.store(x, std::memory_order_relaxed);
    return static_cast<float>(x) / static_cast<float>(modulus);
}
