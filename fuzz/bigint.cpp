/// SigUInt against schoolbook arithmetic on 16-bit digits.

#include "fuzz/fuzz.h"

#include <zarnex/bigint/SigUInt.h>

#include <algorithm>
#include <vector>

namespace {

/// Digits to the base 65536, the least significant first, the last one not 0.
using Digits = std::vector<unsigned short>;

constexpr std::size_t longest = 260; // digits: beyond the shortest Karatsuba products

Digits trimmed(Digits digits) {
    while (!digits.empty() && digits.back() == 0)
        digits.pop_back();
    return digits;
}

unsigned digitOf(const Digits& digits, std::size_t i) {
    return i < digits.size() ? digits[i] : 0u;
}

int compare(const Digits& a, const Digits& b) {
    for (std::size_t i = std::max(a.size(), b.size()); i-- > 0;)
        if (digitOf(a, i) != digitOf(b, i))
            return digitOf(a, i) < digitOf(b, i) ? -1 : 1;
    return 0;
}

Digits sum(const Digits& a, const Digits& b) {
    Digits result;
    unsigned carry = 0;
    for (std::size_t i = 0; i <= std::max(a.size(), b.size()); ++i) {
        carry += digitOf(a, i) + digitOf(b, i);
        result.push_back(static_cast<unsigned short>(carry));
        carry >>= 16;
    }
    return trimmed(result);
}

Digits difference(const Digits& a, const Digits& b) {
    if (compare(a, b) <= 0)
        return {};
    Digits result;
    int borrow = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        borrow += static_cast<int>(a[i]) - static_cast<int>(digitOf(b, i));
        result.push_back(static_cast<unsigned short>(borrow));
        borrow = borrow < 0 ? -1 : 0;
    }
    return trimmed(result);
}

Digits product(const Digits& a, const Digits& b) {
    Digits result(a.size() + b.size());
    for (std::size_t i = 0; i < a.size(); ++i) {
        unsigned long long carry = 0;
        for (std::size_t j = 0; j < b.size() || carry != 0; ++j) {
            carry += result[i + j] + static_cast<unsigned long long>(a[i]) * digitOf(b, j);
            result[i + j] = static_cast<unsigned short>(carry);
            carry >>= 16;
        }
    }
    return trimmed(result);
}

Digits shifted(const Digits& a, int bits) {
    Digits result;
    if (bits >= 0) {
        result.assign(static_cast<std::size_t>(bits / 16), 0);
        unsigned carry = 0;
        for (std::size_t i = 0; i <= a.size(); ++i) {
            carry |= digitOf(a, i) << (bits % 16);
            result.push_back(static_cast<unsigned short>(carry));
            carry >>= 16;
        }
    } else {
        for (std::size_t i = static_cast<std::size_t>(-bits / 16); i < a.size(); ++i) {
            const unsigned both = digitOf(a, i) | digitOf(a, i + 1) << 16;
            result.push_back(static_cast<unsigned short>(both >> (-bits % 16)));
        }
    }
    return trimmed(result);
}

int bitLength(const Digits& a) {
    int bits = static_cast<int>(a.size()) * 16;
    if (!a.empty())
        for (unsigned top = a.back(); (top & 0x8000u) == 0; top <<= 1)
            --bits;
    return bits;
}

// Bit by bit.
Digits remainder(const Digits& a, const Digits& b) {
    if (b.empty())
        return {};
    Digits rest(b.size() + 1); // one more for the bit that a shift carries out
    for (std::size_t bit = a.size() * 16; bit-- > 0;) {
        unsigned carry = digitOf(a, bit / 16) >> (bit % 16) & 1u;
        for (unsigned short& digit : rest) {
            carry |= static_cast<unsigned>(digit) << 1;
            digit = static_cast<unsigned short>(carry);
            carry >>= 16;
        }
        if (compare(rest, b) < 0)
            continue;
        int borrow = 0;
        for (std::size_t i = 0; i < rest.size(); ++i) {
            borrow += static_cast<int>(rest[i]) - static_cast<int>(digitOf(b, i));
            rest[i] = static_cast<unsigned short>(borrow);
            borrow = borrow < 0 ? -1 : 0;
        }
    }
    return trimmed(rest);
}

Digits power(const Digits& a, const Digits& b, const Digits& c) {
    Digits result = remainder({1}, c);
    for (int bit = bitLength(b); bit-- > 0;) {
        result = remainder(product(result, result), c);
        if ((digitOf(b, static_cast<std::size_t>(bit / 16)) >> (bit % 16) & 1u) != 0)
            result = remainder(product(result, a), c);
    }
    return result;
}

SigUInt numberOf(const Digits& digits) {
    const Digits words(digits.rbegin(), digits.rend());
    return SigUInt(words.data(), static_cast<int>(words.size()));
}

void check(const SigUInt& number, const Digits& digits) {
    FUZZ_REQUIRE(number.bitLength() == bitLength(digits));
    FUZZ_REQUIRE(number.isZero() == int(digits.empty()));
    std::vector<unsigned char> bytes(static_cast<std::size_t>(number.bitLength() + 7) / 8);
    const int count = static_cast<int>(bytes.size());
    FUZZ_REQUIRE(number.getBytes(bytes.data(), count) == count);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const std::size_t place = bytes.size() - 1 - i;
        FUZZ_REQUIRE(bytes[i] == (digitOf(digits, place / 2) >> (place % 2 * 8) & 0xffu));
    }
    FUZZ_REQUIRE(SigUInt(bytes.data(), count) == number);
    std::wstring hex;
    for (int i = (bitLength(digits) + 3) / 4; i-- > 0;)
        hex += L"0123456789abcdef"[digitOf(digits, static_cast<std::size_t>(i / 4)) >> (i % 4 * 4) &
                                   15u];
    const ZString shown = number.getHex();
    FUZZ_REQUIRE((hex.empty() ? L"0" : hex) == static_cast<const wchar_t*>(shown));
}

// Mostly a few limbs of 64 bits at the edges of theirs, where carries and quotients go wrong.
Digits digitsFrom(fuzz::Input& input) {
    static const unsigned short edges[][4] = {
        {0, 0, 0, 0},
        {1, 0, 0, 0},
        {0xffff, 0xffff, 0xffff, 0xffff},
        {0, 0, 0, 0x8000},
        {1, 0, 0, 0x8000},
        {0xffff, 0xffff, 0xffff, 0x7fff},
        {0xfffe, 0xffff, 0xffff, 0xffff},
        {0, 0, 1, 0},
    };
    Digits digits;
    const int limbs = input.choice(8) == 0 ? input.choice(65) : input.choice(7);
    for (int i = 0; i < limbs; ++i) {
        const int kind = input.choice(10);
        for (std::size_t j = 0; j < 4; ++j)
            digits.push_back(kind < 8 ? edges[kind][j]
                                      : static_cast<unsigned short>(
                                            input.byte() * 257 + (kind == 8 ? 0 : input.byte())));
    }
    return trimmed(digits);
}

struct Pair {
    Digits digits;
    SigUInt number;

    void set(const Digits& to) {
        digits = to;
        number = numberOf(digits);
    }
};

void step(fuzz::Input& input, Pair& a, Pair& b, Pair& c) {
    const SigUInt& n = b.number;
    switch (input.choice(12)) {
    case 0:
        a.set(digitsFrom(input));
        break;
    case 1:
        a.number += n;
        a.digits = sum(a.digits, b.digits);
        break;
    case 2:
        a.number -= n;
        a.digits = difference(a.digits, b.digits);
        break;
    case 3:
        a.number *= n;
        a.digits = product(a.digits, b.digits);
        break;
    case 4:
        a.number %= n;
        a.digits = remainder(a.digits, b.digits);
        break;
    case 5: {
        const int bits = input.between(-1200, 1200);
        c.number = bits % 2 == 0 ? a.number << bits : a.number >> -bits;
        c.digits = shifted(a.digits, bits);
        break;
    }
    case 6: {
        const Digits before = a.digits;
        a.digits = sum(before, {1});
        c.number = a.number++;
        c.digits = before;
        break;
    }
    case 7:
        --a.number;
        a.digits = difference(a.digits, {1});
        break;
    case 8:
        FUZZ_REQUIRE((a.number < n) == (compare(a.digits, b.digits) < 0));
        FUZZ_REQUIRE((a.number == n) == (compare(a.digits, b.digits) == 0));
        FUZZ_REQUIRE((a.number >= n) == (compare(a.digits, b.digits) >= 0));
        break;
    case 9: {
        c.number = a.number * n + c.number;
        c.digits = sum(product(a.digits, b.digits), c.digits);
        break;
    }
    case 10: // the exponent must be short, and so the modulus, for the model's sake
        b.digits.resize(std::min<std::size_t>(b.digits.size(), 2));
        b.set(trimmed(b.digits));
        a.digits.resize(std::min<std::size_t>(a.digits.size(), 12));
        a.set(trimmed(a.digits));
        c.digits.resize(std::min<std::size_t>(c.digits.size(), 12));
        c.set(trimmed(c.digits));
        check(a_exp_b_mod_c(a.number, b.number, c.number), power(a.digits, b.digits, c.digits));
        break;
    default:
        a.number = c.number;
        a.digits = c.digits;
    }
}

} // namespace

void tryInput(fuzz::Input input) {
    Pair pairs[3];
    for (int steps = 0; !input.atEnd() && steps < 40; ++steps) {
        Pair& a = pairs[input.choice(3)];
        Pair& b = pairs[input.choice(3)];
        Pair& c = pairs[input.choice(3)];
        step(input, a, b, c);
        for (Pair& each : pairs) {
            check(each.number, each.digits);
            if (each.digits.size() > longest)
                each.set(remainder(each.digits, Digits(longest / 2, 0xfff1)));
        }
    }
}
