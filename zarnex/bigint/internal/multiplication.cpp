#include <zarnex/bigint/internal/multiplication.h>

#include <zarnex/bigint/internal/Scratch.h>
#include <zarnex/bigint/internal/kernels.h>
#include <zarnex/bigint/internal/limbs.h>

#include <algorithm>
#include <utility>

namespace zarnex::detail {

namespace {

// From these counts on halving pays; measured on x86-64.
constexpr Size halvingMultiply = 28;
constexpr Size halvingSquare = 48;

// out = |a - b|, in aCount limbs, of which `b` has as many or one less. Returns whether a < b.
bool subtractAbsolute(Limb* out, const Limb* a, Size aCount, const Limb* b, Size bCount) {
    const bool longer = aCount > bCount && a[bCount] != 0;
    const bool negative = !longer && compare(a, b, bCount) < 0;
    const unsigned char borrow =
        negative ? subtract(out, b, a, bCount) : subtract(out, a, b, bCount);
    if (aCount > bCount)
        out[bCount] = a[bCount] - borrow;
    return negative;
}

// The scratch of multiplyHalves: twice the halves of every level.
Size scratchFor(Size count) {
    return 2 * (count + limbBits);
}

// out = a * b, both of `count` limbs; a == b means a square.
//
// Source: Karatsuba and Ofman 1962, in the form with differences (Knuth, The Art of
// Computer Programming, vol. 2, 4.3.3).
void multiplyHalves(Limb* out, const Limb* a, const Limb* b, Size count, Limb* scratch) {
    if (a == b && count < halvingSquare)
        return kernels().square(out, a, count);
    if (a != b && count < halvingMultiply)
        return kernels().multiply(out, a, count, b, count);

    const Size low = (count + 1) / 2;
    const Size high = count - low;
    Limb* const middle = scratch; // 2 * low limbs
    scratch += 2 * low;

    // The differences of the halves stand in `out` until their product is made.
    Limb* const aDifference = out;
    Limb* const bDifference = a == b ? out : out + low;
    bool negative = subtractAbsolute(aDifference, a, low, a + low, high);
    if (a == b)
        negative = false;
    else
        negative = subtractAbsolute(bDifference, b, low, b + low, high) != negative;
    multiplyHalves(middle, aDifference, bDifference, low, scratch);
    multiplyHalves(out, a, b, low, scratch);
    multiplyHalves(out + 2 * low, a + low, b + low, high, scratch);

    // middle = low product + high product -+ product of the differences
    unsigned char carry;
    if (negative)
        carry = add(middle, out, middle, 2 * low);
    else
        carry = static_cast<unsigned char>(-subtract(middle, out, middle, 2 * low));
    const unsigned char more = add(middle, middle, out + 2 * low, 2 * high);
    carry = static_cast<unsigned char>(
        carry + propagateCarry(middle + 2 * high, middle + 2 * high, 2 * (low - high), more));
    carry = static_cast<unsigned char>(carry + add(out + low, out + low, middle, 2 * low));
    Limb* top = out + 3 * low;
    unsigned char step = 0;
    addCarry(*top, *top, carry, step);
    propagateCarry(top + 1, top + 1, out + 2 * count - (top + 1), step);
}

} // namespace

Limb multiplyByLimb(Limb* out, const Limb* a, Size count, Limb factor) {
    Limb carry = 0;
    for (Size i = 0; i < count; ++i)
        out[i] = multiplyAdd(a[i], factor, 0, carry);
    return carry;
}

void multiply(Limb* out, const Limb* a, Size aCount, const Limb* b, Size bCount) {
    if (aCount < bCount) {
        std::swap(a, b);
        std::swap(aCount, bCount);
    }
    if (bCount < halvingMultiply)
        return kernels().multiply(out, a, aCount, b, bCount);

    Scratch scratch(2 * bCount + scratchFor(bCount));
    if (aCount == bCount)
        return multiplyHalves(out, a, b, bCount, scratch);

    // Slices of the longer factor, each as long as the shorter one.
    Limb* const slice = scratch + scratchFor(bCount);
    std::fill_n(out, bCount, Limb{0});
    for (; aCount > 0; aCount -= bCount, a += bCount, out += bCount) {
        const Size count = (std::min)(aCount, bCount);
        if (count == bCount)
            multiplyHalves(slice, a, b, bCount, scratch);
        else
            multiply(slice, b, bCount, a, count);
        // The first bCount limbs of `out` hold the upper half of the slice before.
        const unsigned char carry = add(out, out, slice, bCount);
        propagateCarry(out + bCount, slice + bCount, count, carry);
    }
}

void square(Limb* out, const Limb* a, Size count) {
    if (count < halvingSquare)
        return kernels().square(out, a, count);
    Scratch scratch(scratchFor(count));
    multiplyHalves(out, a, a, count, scratch);
}

} // namespace zarnex::detail
