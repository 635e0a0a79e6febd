#pragma once

/// Rows of a product: a number times one limb, added to another number. Everything whose
/// time grows faster than its length is made of them.
///
/// A class of rows has one function, addMultiple. There is one for every processor and one
/// for those with the carry chains of 2014 and later.

#include <zarnex/bigint/internal/limb.h>

#if defined(__x86_64__) && defined(__GNUC__) && !defined(ZARNEX_PORTABLE_LIMBS)
#define ZARNEX_CHAINED_ROWS
#endif

namespace zarnex::detail {

class PlainRows {
public:
    /// out += a * factor, in `count` limbs; returns what is to be added to the limb above.
    static Limb addMultiple(Limb* out, const Limb* a, Size count, Limb factor) {
        Limb carry = 0;
        for (; count >= 4; count -= 4, out += 4, a += 4) {
            out[0] = multiplyAdd(a[0], factor, out[0], carry);
            out[1] = multiplyAdd(a[1], factor, out[1], carry);
            out[2] = multiplyAdd(a[2], factor, out[2], carry);
            out[3] = multiplyAdd(a[3], factor, out[3], carry);
        }
        for (; count > 0; --count, ++out, ++a)
            *out = multiplyAdd(*a, factor, *out, carry);
        return carry;
    }
};

#if defined(ZARNEX_CHAINED_ROWS)

/// Whether the processor has the instructions of ChainedRows, BMI2 and ADX.
bool hasChainedRows();

/// With mulx, which leaves the flags alone, and adcx and adox, whose carries are two flags:
/// one chain adds the upper limb of each product to the next lower one, the other adds the
/// sums to `out`. Compilers do not find this.
///
/// Source: Ozturk, Guilford, Gopal and Feghali, "New instructions supporting large integer
/// arithmetic on Intel architecture processors", 2012.
class ChainedRows {
public:
    static Limb addMultiple(Limb* out, const Limb* a, Size count, Limb factor) {
        Limb carry = 0;
        for (; count >= 8; count -= 8, out += 8, a += 8)
            addEight(out, a, factor, carry);
        if ((count & 4) != 0) {
            addFour(out, a, factor, carry);
            out += 4;
            a += 4;
        }
        if ((count & 2) != 0) {
            addTwo(out, a, factor, carry);
            out += 2;
            a += 2;
        }
        if ((count & 1) != 0)
            *out = multiplyAdd(*a, factor, *out, carry);
        return carry;
    }

private:
// Two limbs, `at` and `next` bytes from the first: `carry` is in and out, `high` between.
#define ZARNEX_TWO_LIMBS(at, next)                                                                 \
    "mulx " at "(%[a]), %[low], %[high]\n\t"                                                       \
    "adcx %[carry], %[low]\n\t"                                                                    \
    "adox " at "(%[out]), %[low]\n\t"                                                              \
    "mov %[low], " at "(%[out])\n\t"                                                               \
    "mulx " next "(%[a]), %[low], %[carry]\n\t"                                                    \
    "adcx %[high], %[low]\n\t"                                                                     \
    "adox " next "(%[out]), %[low]\n\t"                                                            \
    "mov %[low], " next "(%[out])\n\t"

// Both chains begin without a carry, which xor sees to, and end in `carry`, which has room.
#define ZARNEX_ADD_LIMBS(limbs)                                                                    \
    Limb low, high, zero;                                                                          \
    __asm__ volatile(                                                                              \
        "xor %k[zero], %k[zero]\n\t" limbs "adcx %[zero], %[carry]\n\t"                            \
        "adox %[zero], %[carry]"                                                                   \
        : [carry] "+&r"(carry), [low] "=&r"(low), [high] "=&r"(high), [zero] "=&r"(zero)           \
        : [a] "r"(a), [out] "r"(out), "d"(factor)                                                  \
        : "cc", "memory")

    // NOLINTBEGIN(readability-non-const-parameter): the assembly writes through `out`
    static void addTwo(Limb* out, const Limb* a, Limb factor, Limb& carry) {
        ZARNEX_ADD_LIMBS(ZARNEX_TWO_LIMBS("0", "8"));
    }

    static void addFour(Limb* out, const Limb* a, Limb factor, Limb& carry) {
        ZARNEX_ADD_LIMBS(ZARNEX_TWO_LIMBS("0", "8") ZARNEX_TWO_LIMBS("16", "24"));
    }

    static void addEight(Limb* out, const Limb* a, Limb factor, Limb& carry) {
        ZARNEX_ADD_LIMBS(ZARNEX_TWO_LIMBS("0", "8") ZARNEX_TWO_LIMBS("16", "24")
                             ZARNEX_TWO_LIMBS("32", "40") ZARNEX_TWO_LIMBS("48", "56"));
    }
    // NOLINTEND(readability-non-const-parameter)

#undef ZARNEX_ADD_LIMBS
#undef ZARNEX_TWO_LIMBS
};

#endif

} // namespace zarnex::detail
