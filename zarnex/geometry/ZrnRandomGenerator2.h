#pragma once

#include <zarnex/config.h>

/// The Mersenne Twister MT19937, with the seeding of 1998.
///
/// The same sequence on every machine and in every run. Its period is 2^19937 - 1; not for
/// cryptography. One object belongs to one thread at a time.
///
///     ZrnRandomGenerator2 generator(4357);
///     generator.random(); // 0.8173300...
///
/// Kept as is: the seeding is a plain chain of products by 69069, so that std::mt19937 gives
/// other numbers for the same seed, and a seed of 0 gives 0 for ever.
///
/// Source: M. Matsumoto, T. Nishimura, "Mersenne Twister: a 623-dimensionally
/// equidistributed uniform pseudo-random number generator", ACM TOMACS 8 (1998).
class ZARNEX_API ZrnRandomGenerator2 {
public:
    /// The state, and which word is handed out next. An index of 624 has all words
    /// regenerated before; 625, set by a host, has the object seeded with 4357 before
    /// that. Any other index out of range counts as 624.
    /// @{
    unsigned int word[624];
    int index;
    /// @}

    /// Starts the sequence of `seed`, as randseed() does.
    ZrnRandomGenerator2(long seed);

    /// Starts the sequence of `seed`, of which the low 32 bits count.
    void randseed(long seed);

    /// The next number from 0 to 1, without 1: an integer of 32 bits over 2^32.
    double randomOpenEnd();

    /// The next number from 0 to 1, both included: an integer of 32 bits times the double
    /// nearest to 1 / (2^32 - 1).
    double randomClosedEnd();

    /// randomOpenEnd().
    double random();

private:
    unsigned int next();
    void refill();
};

ZARNEX_INLINE unsigned int ZrnRandomGenerator2::next() {
    if (ZARNEX_UNLIKELY(static_cast<unsigned int>(index) >= 624u))
        refill();
    unsigned int y = word[index++];
    y ^= y >> 11;
    y ^= (y << 7) & 0x9d2c5680u;
    y ^= (y << 15) & 0xefc60000u;
    return y ^ (y >> 18);
}

ZARNEX_INLINE double ZrnRandomGenerator2::randomOpenEnd() {
    return next() * 2.3283064365386963e-10;
}

ZARNEX_INLINE double ZrnRandomGenerator2::randomClosedEnd() {
    return next() * 2.3283064370807974e-10;
}

ZARNEX_INLINE double ZrnRandomGenerator2::random() {
    return randomOpenEnd();
}
