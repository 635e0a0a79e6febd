#include <zarnex/bigint/internal/kernels.h>

#include <zarnex/bigint/internal/limbs.h>
#include <zarnex/bigint/internal/rows.h>

#include <algorithm>
#include <cstdlib>

#if defined(ZARNEX_CHAINED_ROWS)
#include <cpuid.h>
#endif

namespace zarnex::detail {

namespace {

template <class Rows>
void multiplyByRows(Limb* out, const Limb* a, Size aCount, const Limb* b, Size bCount) {
    std::fill_n(out, aCount, Limb{0});
    for (Size i = 0; i < bCount; ++i)
        out[aCount + i] = Rows::addMultiple(out + i, a, aCount, b[i]);
}

template <class Rows>
void multiplyLowByRows(Limb* out, const Limb* a, const Limb* b, Size count) {
    std::fill_n(out, count, Limb{0});
    for (Size i = 0; i < count; ++i)
        Rows::addMultiple(out + i, a, count - i, b[i]);
}

// The products of different limbs once, then all of them doubled and the squares added.
template <class Rows>
void squareByRows(Limb* out, const Limb* a, Size count) {
    std::fill_n(out, count + 1, Limb{0});
    for (Size i = 0; i + 1 < count; ++i)
        out[count + i] = Rows::addMultiple(out + 2 * i + 1, a + i + 1, count - i - 1, a[i]);
    out[2 * count - 1] = 0;

    Limb below = 0;
    unsigned char carry = 0;
    for (Size i = 0; i < count; ++i) {
        const LimbPair own = product(a[i], a[i]);
        const Limb low = out[2 * i];
        const Limb high = out[2 * i + 1];
        addCarry(out[2 * i], low << 1 | below >> (limbBits - 1), own.low, carry);
        addCarry(out[2 * i + 1], high << 1 | low >> (limbBits - 1), own.high, carry);
        below = high;
    }
}

// The limb that a row makes zero takes the carry of the row.
template <class Rows>
unsigned char reduceByRows(Limb* out, Limb* number, const Limb* modulus, Size count, Limb inverse) {
    for (Size i = 0; i < count; ++i)
        number[i] = Rows::addMultiple(number + i, modulus, count, number[i] * inverse);
    return add(out, number + count, number, count);
}

template <class Rows>
constexpr Kernels kernelsOf = {Rows::addMultiple, multiplyByRows<Rows>, multiplyLowByRows<Rows>,
                               squareByRows<Rows>, reduceByRows<Rows>};

const Kernels& fastest() {
#if defined(ZARNEX_CHAINED_ROWS)
    // NOLINTNEXTLINE(concurrency-mt-unsafe): only reads, and once
    if (hasChainedRows() && std::getenv("ZARNEX_PLAIN_KERNELS") == nullptr)
        return kernelsOf<ChainedRows>;
#endif
    return kernelsOf<PlainRows>;
}

} // namespace

#if defined(ZARNEX_CHAINED_ROWS)

bool hasChainedRows() {
    constexpr unsigned bmi2 = 1U << 8;
    constexpr unsigned adx = 1U << 19;
    unsigned a = 0;
    unsigned b = 0;
    unsigned c = 0;
    unsigned d = 0;
    return __get_cpuid_count(7, 0, &a, &b, &c, &d) != 0 && (b & bmi2) != 0 && (b & adx) != 0;
}

#endif

const Kernels& kernels() {
    static const Kernels& chosen = fastest();
    return chosen;
}

} // namespace zarnex::detail
