#include <zarnex/bigint/internal/division.h>

#include <zarnex/bigint/internal/Scratch.h>
#include <zarnex/bigint/internal/kernels.h>
#include <zarnex/bigint/internal/limbs.h>

#include <algorithm>

namespace zarnex::detail {

namespace {

// out = 2^(64 count) - a, for a number that is not 0.
void negate(Limb* out, const Limb* a, Size count) {
    unsigned char borrow = 0;
    for (Size i = 0; i < count; ++i)
        subtractBorrow(out[i], 0, a[i], borrow);
}

// One limb of the quotient, at most one too great. `first` and `second` are the top limbs
// of the divisor, `high`, `middle` and `low` the limbs of the dividend over them; `high` is
// at most `first`.
Limb estimate(const LimbDivisor& divisor, Limb first, Limb second, Limb high, Limb middle,
              Limb low) {
    Limb quotient = ~Limb{0};
    Limb rest = middle + first; // that of the greatest quotient
    if (high < first)
        quotient = divisor.divide({middle, high}, rest);
    else if (rest < first)
        return quotient;
    LimbPair check = product(quotient, second);
    while (check.high > rest || (check.high == rest && check.low > low)) {
        --quotient;
        rest += first;
        if (rest < first)
            break; // a rest of more than a limb: nothing left to correct
        check.high -= check.low < second ? 1 : 0;
        check.low -= second;
    }
    return quotient;
}

void remainderByLimb(Limb* out, const Limb* a, Size aCount, Limb divisor) {
    const int shift = leadingZeros(divisor);
    const LimbDivisor normal(divisor << shift);
    // Shifts the dividend on its way: no copy is needed.
    const auto fromBelow = [shift](Limb limb) {
        return shift == 0 ? 0 : limb >> (limbBits - shift);
    };
    Limb rest = fromBelow(a[aCount - 1]);
    for (Size i = aCount - 1; i > 0; --i)
        normal.divide({a[i] << shift | fromBelow(a[i - 1]), rest}, rest);
    normal.divide({a[0] << shift, rest}, rest);
    *out = rest >> shift;
}

} // namespace

// Source: Knuth, The Art of Computer Programming, vol. 2, 4.3.1, algorithm D.
void remainder(Limb* out, const Limb* a, Size aCount, const Limb* divisor, Size divisorCount) {
    if (aCount < divisorCount) {
        std::fill(std::copy_n(a, aCount, out), out + divisorCount, Limb{0});
        return;
    }
    if (divisorCount == 1)
        return remainderByLimb(out, a, aCount, *divisor);

    // Shifted so that the highest bit of the divisor is set.
    const Size n = divisorCount;
    const int shift = leadingZeros(divisor[n - 1]);
    Scratch normal(n);
    shiftUp(normal, divisor, n, shift);
    out[aCount] = shiftUp(out, a, aCount, shift);
    const Limb first = normal[n - 1];
    const Limb second = normal[n - 2];
    const LimbDivisor top(first);

    // A multiple of the divisor is taken away by adding that of 2^(64 n) - divisor.
    Scratch negative(n);
    negate(negative, normal, n);
    const auto addMultiple = kernels().addMultiple;
    for (Size i = aCount - n; i >= 0; --i) {
        Limb* const part = out + i; // n + 1 limbs
        const Limb quotient = estimate(top, first, second, part[n], part[n - 1], part[n - 2]);
        const Limb carry = addMultiple(part, negative, n, quotient);
        if (part[n] + carry != quotient)
            add(part, part, normal, n); // one too many, which is rare
    }
    shiftDown(out, out, n, shift);
}

} // namespace zarnex::detail
