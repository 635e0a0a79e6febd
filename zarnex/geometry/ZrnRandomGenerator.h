#pragma once

#include <zarnex/config.h>

/// A small generator of random numbers: x becomes 515 * x mod 524288.
///
/// The same sequence on every machine and in every run. It repeats after 131072 numbers, the
/// multiples of 1 / 524288 by 1 or 3 modulo 8: for jitter, not for statistics.
///
/// One object belongs to one thread at a time, even a const one.
class ZARNEX_API ZrnRandomGenerator {
public:
    /// Starts the sequence behind its first `n` numbers; at its start for an `n` up to 0.
    ///
    /// Only the low 32 bits of `n` count, as a signed number. Takes no longer for a great `n`.
    ZrnRandomGenerator(long n);

    /// A copy goes on with the same numbers, apart from the original.
    /// @{
    ZrnRandomGenerator(const ZrnRandomGenerator&) = default;
    ZrnRandomGenerator& operator=(const ZrnRandomGenerator&) = default;
    /// @}

    /// Releases nothing: the state is in the object.
    ~ZrnRandomGenerator();

    /// The next number, from 1 / 524288 to 524283 / 524288.
    ///
    /// Kept as is: const, but steps the generator; a const generator still gives another
    /// number at each call.
    float random() const;

private:
    int multiplier_;
    mutable int x_;
    int modulus_; // a power of two
};

/// The next number of a sequence that the whole process shares: that of
/// ZrnRandomGenerator(0), from its start.
///
/// May be called from several threads at a time. There is no lock: they take their numbers
/// interleaved, and some numbers may be taken twice.
/// @relates ZrnRandomGenerator
ZARNEX_API float zrnrandom();

ZARNEX_INLINE ZrnRandomGenerator::~ZrnRandomGenerator() {}

ZARNEX_INLINE float ZrnRandomGenerator::random() const {
    x_ = multiplier_ * x_ & (modulus_ - 1); // the remainder, as x is never negative
    return static_cast<float>(x_) / static_cast<float>(modulus_);
}
