#pragma once

#include <zarnex/bigint/internal/Scratch.h>

#include <algorithm>

namespace zarnex::detail {

/// The width of the window that needs the fewest products for an exponent of `bits` bits:
/// the odd powers to prepare, and one product for about every width + 1 bits.
inline int windowWidth(long long bits) {
    int width = 1;
    while (width < 12 &&
           (1LL << width) + bits / (width + 2) < (1LL << (width - 1)) + bits / (width + 1))
        ++width;
    return width;
}

/// out = base to the power of `exponent`, which has `bits` > 0 bits, the top one 1.
///
/// The ring says how many limbs a number has (size()) and how two of them are multiplied
/// (multiply(out, a, b) and square(out, a), where `out` may be an operand).
///
/// Source: Menezes, van Oorschot and Vanstone, Handbook of Applied Cryptography, 14.85
/// (sliding windows).
template <class Ring>
void power(Ring& ring, Limb* out, const Limb* base, const Limb* exponent, long long bits) {
    const auto bit = [exponent](long long i) {
        return static_cast<int>(exponent[i / limbBits] >> (i % limbBits) & 1);
    };
    const Size size = ring.size();
    const int width = windowWidth(bits);

    // Entry i is base to the power of 2 i + 1; `out` holds the square meanwhile.
    const Size odds = Size{1} << (width - 1);
    Scratch powers(odds * size);
    std::copy_n(base, size, static_cast<Limb*>(powers));
    if (odds > 1)
        ring.square(out, powers);
    for (Size i = 1; i < odds; ++i)
        ring.multiply(powers + i * size, powers + (i - 1) * size, out);

    bool started = false;
    for (long long i = bits - 1; i >= 0;) {
        if (bit(i) == 0) {
            ring.square(out, out);
            --i;
            continue;
        }
        // A window goes from a one down to a one.
        long long end = (std::max)(i - width + 1, 0LL);
        while (bit(end) == 0)
            ++end;
        Size window = 0;
        for (; i >= end; --i) {
            window = 2 * window + bit(i);
            if (started)
                ring.square(out, out);
        }
        const Limb* const factor = powers + window / 2 * size;
        if (started)
            ring.multiply(out, out, factor);
        else
            std::copy_n(factor, size, out);
        started = true;
    }
}

} // namespace zarnex::detail
