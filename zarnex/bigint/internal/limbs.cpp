#include <zarnex/bigint/internal/limbs.h>

#include <bit>
#include <cstddef>
#include <cstring>

namespace zarnex::detail {

Size significant(const Limb* a, Size count) {
    while (count > 0 && a[count - 1] == 0)
        --count;
    return count;
}

int leadingZeros(Limb limb) {
    return std::countl_zero(limb);
}

long long bitLength(const Limb* a, Size count) {
    return count == 0 ? 0 : static_cast<long long>(count) * limbBits - leadingZeros(a[count - 1]);
}

int compare(const Limb* a, const Limb* b, Size count) {
    while (--count >= 0) {
        if (a[count] != b[count])
            return a[count] < b[count] ? -1 : 1;
    }
    return 0;
}

// Four limbs a step, so that the carry can stay in the processor's flag between them.

unsigned char add(Limb* out, const Limb* a, const Limb* b, Size count) {
    unsigned char carry = 0;
    for (; count >= 4; count -= 4, out += 4, a += 4, b += 4) {
        addCarry(out[0], a[0], b[0], carry);
        addCarry(out[1], a[1], b[1], carry);
        addCarry(out[2], a[2], b[2], carry);
        addCarry(out[3], a[3], b[3], carry);
    }
    for (; count > 0; --count)
        addCarry(*out++, *a++, *b++, carry);
    return carry;
}

unsigned char subtract(Limb* out, const Limb* a, const Limb* b, Size count) {
    unsigned char borrow = 0;
    for (; count >= 4; count -= 4, out += 4, a += 4, b += 4) {
        subtractBorrow(out[0], a[0], b[0], borrow);
        subtractBorrow(out[1], a[1], b[1], borrow);
        subtractBorrow(out[2], a[2], b[2], borrow);
        subtractBorrow(out[3], a[3], b[3], borrow);
    }
    for (; count > 0; --count)
        subtractBorrow(*out++, *a++, *b++, borrow);
    return borrow;
}

unsigned char propagateCarry(Limb* out, const Limb* a, Size count, unsigned char carry) {
    for (Size i = 0; i < count; ++i) {
        if (carry == 0 && out == a)
            break;
        addCarry(out[i], a[i], 0, carry);
    }
    return carry;
}

unsigned char propagateBorrow(Limb* out, const Limb* a, Size count, unsigned char borrow) {
    for (Size i = 0; i < count; ++i) {
        if (borrow == 0 && out == a)
            break;
        subtractBorrow(out[i], a[i], 0, borrow);
    }
    return borrow;
}

Limb shiftUp(Limb* out, const Limb* a, Size count, int bits) {
    if (count == 0)
        return 0;
    if (bits == 0) {
        std::memmove(out, a, static_cast<std::size_t>(count) * sizeof(Limb));
        return 0;
    }
    Limb above = a[count - 1];
    const Limb left = above >> (limbBits - bits);
    while (--count > 0) {
        const Limb below = a[count - 1];
        out[count] = above << bits | below >> (limbBits - bits);
        above = below;
    }
    out[0] = above << bits;
    return left;
}

void shiftDown(Limb* out, const Limb* a, Size count, int bits) {
    if (count == 0)
        return;
    if (bits == 0) {
        std::memmove(out, a, static_cast<std::size_t>(count) * sizeof(Limb));
        return;
    }
    Limb below = a[0];
    for (Size i = 1; i < count; ++i) {
        const Limb above = a[i];
        out[i - 1] = below >> bits | above << (limbBits - bits);
        below = above;
    }
    out[count - 1] = below >> bits;
}

} // namespace zarnex::detail
