#!/usr/bin/env python3
"""Writes vectors.txt, the rows that vectors_test.cpp checks, with Python's integers.

    ./vectors.py > vectors.txt

A row is a kind, its operands and all results, in hexadecimal. The same rows come out every
time. They are the long numbers, for which the model of fuzz/bigint.cpp is too slow.
"""

import random

rng = random.Random(20240229)
LIMB = 1 << 64
EDGES = [0, 1, 2, LIMB - 1, LIMB - 2, LIMB >> 1, (LIMB >> 1) - 1, (LIMB >> 1) + 1]


def plain(bits):
    """A random number of exactly this many bits."""
    return rng.getrandbits(bits) | 1 << (bits - 1) if bits else 0


def edgy(bits):
    """The same, with limbs that make carries run and quotients be guessed wrong."""
    number = 0
    for _ in range((bits + 63) // 64):
        number = number * LIMB + (rng.choice(EDGES) if rng.random() < 0.8 else rng.getrandbits(64))
    return number & ((1 << bits) - 1) | 1 << (bits - 1) if bits else 0


def pattern(bits):
    kind = rng.randrange(6)
    if kind == 0 and bits:
        return (1 << bits) - 1
    if kind == 1 and bits:
        return 1 << (bits - 1)
    return plain(bits) if kind == 2 else edgy(bits)


def row(kind, *fields):
    print(kind, *(f"{field:x}" for field in fields))


def pair(a, b):
    a, b = max(a, b), min(a, b)
    row("pair", a, b, a + b, a - b, a * b, a % b if b else 0)


def power(a, b, c):
    row("power", a, b, c, pow(a, b, c))


for bits in [1791, 1792, 3072, 8192]:
    pair(pattern(bits), pattern(bits))
    pair(edgy(bits), edgy(rng.randrange(1, bits)))
    a = edgy(bits)
    pair(a, a)

# Dividends that are just below or at a multiple: the guessed quotient is too great.
for length in [65, 127, 128, 129, 192, 320, 512]:
    divisor = edgy(length)
    quotient = edgy(rng.choice([64, 65, 128, 200, 320]))
    number = divisor * quotient + rng.choice([0, -1, 1, divisor - 1])
    row("remainder", number, divisor, number % divisor)

# Unequal lengths that are multiplied in slices.
for a, b in [(8192, 1792), (8192, 2500), (4096, 1920), (5000, 3000)]:
    pair(edgy(a), edgy(b))

for bits in [3, 64, 129, 512]:
    power(plain(bits), plain(bits), pattern(bits) | 1)  # odd
    power(edgy(bits), plain(rng.randrange(bits) + 1), pattern(bits) & ~1 or 2)  # even
    zeros = rng.randrange(bits)
    power(plain(bits + 7), plain(bits), edgy(bits - zeros) << zeros)
    power(edgy(bits) | 1, plain(bits), 1 << bits)
    power(2 * edgy(bits), rng.randrange(2 * bits), 1 << bits)
    power(plain(2 * bits), rng.choice([1, 2, 3, 65537]), edgy(bits) | 1)
    power(0, plain(bits), edgy(bits) + 2)
for modulus in [plain(2048) | 1, edgy(2048) | 1, plain(2048) & ~1, plain(1000) << 1048]:
    power(plain(2048), plain(2048), modulus)
power(plain(8192), 65537, plain(8192) | 1)
power(plain(8192), 65537, plain(3333) << 4859)

# A factor that is a whole number of slices.
pair(edgy(8192), edgy(2048))

# Divisors of one limb for which the guessed quotient is too small.
for high, low, divisor in [
    (0x8000F69F84DE2A48, 0xFFFFFFFFE64E341F, 0x8000F69F84DE2A4F),
    (0x399035FA60D437AF, 0xFFFFFFFFFFFFFDCA, 0x8000000571C71941),
    (0x800001DA67AE14C6, 0xFFFFFFFFFFFFFFFF, 0x800001DA67AF5F0A),
]:
    row("remainder", high << 64 | low, divisor, (high << 64 | low) % divisor)
