#pragma once

/// @file
/// SigUInt, its operators and the modular power.

#include <zarnex/config.h>
#include <zarnex/strings/ZString.h>

#include <cstddef>
#include <limits>
#include <type_traits>

namespace zarnex::detail {

/// Every integer type but those that SigUInt takes as they are.
template <class Number, class Other>
using IfInteger =
    std::enable_if_t<std::is_integral_v<Number> && !std::is_same_v<Number, Other>, int>;

/// `number` as an int, the nearest one if it is out of range.
template <class Number>
constexpr int nearestInt(Number number) {
    constexpr int least = (std::numeric_limits<int>::min)();
    constexpr int most = (std::numeric_limits<int>::max)();
    if (number > 0) {
        const auto positive = static_cast<unsigned long long>(number);
        return positive > static_cast<unsigned long long>(most) ? most : static_cast<int>(number);
    }
    return static_cast<long long>(number) < least ? least : static_cast<int>(number);
}

} // namespace zarnex::detail

/// An unsigned integer of any length, with value semantics.
///
/// - Integers of every type stand where a SigUInt does; a negative one counts as 0. Real
///   numbers do not.
/// - A difference below zero is zero, and so is a remainder of a division by zero.
/// - The longest number has 2147483647 bits. A result that is longer is zero.
/// - Booleans are ints, 1 or 0.
///
/// A number that was moved from is zero. Operands may be the number itself (`n *= n`).
/// Nothing throws; without memory the process ends with "failed alloc" and status 1. The
/// time that an operation takes depends on the values: not for secret keys that others
/// could time.
///
///     SigUInt n = 1;
///     n <<= 127;
///     --n;                              // 2^127 - 1, a prime
///     a_exp_b_mod_c(3, n - 1, n) == 1   // 1
///     n.getHex();                       // "7fffffffffffffffffffffffffffffff"
///
/// A number of up to 256 bits needs no allocation.
class ZARNEX_API SigUInt {
public:
    /// Zero.
    SigUInt() noexcept;

    /// The number `value`; 0 for a negative one.
    /// @{
    SigUInt(unsigned long long value) noexcept;
    template <class Number, zarnex::detail::IfInteger<Number, unsigned long long> = 0>
    SigUInt(Number value) noexcept
        : SigUInt(value > 0 ? static_cast<unsigned long long>(value) : 0ULL) {}
    /// @}

    /// Not for real numbers: round them first.
    template <class Real, std::enable_if_t<std::is_floating_point_v<Real>, int> = 0>
    SigUInt(Real) = delete;

    /// The number whose digits to the base 256 or 65536 are given, most significant first.
    /// Leading zeros are dropped. Null or a count below 1 is zero.
    /// @{
    SigUInt(const unsigned char* bytes, int count);
    SigUInt(const unsigned short* words, int count);
    SigUInt(std::nullptr_t, int) noexcept;
    /// @}

    /// The same number. One that was moved from is zero.
    /// @{
    SigUInt(const SigUInt& other);
    SigUInt(SigUInt&& other) noexcept;
    SigUInt& operator=(const SigUInt& other);
    SigUInt& operator=(SigUInt&& other) noexcept;
    /// @}

    /// Frees the storage that a number of more than 256 bits took.
    ~SigUInt();

    /// Adds `other`, in as many steps as the longer operand has limbs of 64 bits.
    SigUInt& operator+=(const SigUInt& other);

    /// Takes `other` away, down to zero.
    ///
    /// Kept as is: a difference below zero is zero, although the unsigned integers of the
    /// language wrap round.
    SigUInt& operator-=(const SigUInt& other);

    /// Multiplies by `other`. Takes m * n steps for short operands of m and n limbs of 64
    /// bits, and about n * m^0.585 for long ones, n being the longer.
    SigUInt& operator*=(const SigUInt& other);

    /// The remainder of the division by `other`. Takes (m - n + 1) * n steps for m limbs over
    /// n.
    ///
    /// Kept as is: zero if `other` is zero, although mathematics leaves the number as it is
    /// and the language has no answer.
    SigUInt& operator%=(const SigUInt& other);

    /// Times 2^bits, and divided by it.
    ///
    /// Kept as is: a shift by a negative count goes the other way, although the language
    /// leaves it undefined. What is shifted up past the longest number is zero.
    /// @{
    SigUInt& operator<<=(int bits);
    SigUInt& operator>>=(int bits);
    SigUInt operator<<(int bits) const;
    SigUInt operator>>(int bits) const;
    /// @}

    /// The same for counts of every other integer type.
    /// @{
    template <class Count, zarnex::detail::IfInteger<Count, int> = 0>
    SigUInt& operator<<=(Count bits) {
        return *this <<= zarnex::detail::nearestInt(bits);
    }
    template <class Count, zarnex::detail::IfInteger<Count, int> = 0>
    SigUInt& operator>>=(Count bits) {
        return *this >>= zarnex::detail::nearestInt(bits);
    }
    template <class Count, zarnex::detail::IfInteger<Count, int> = 0>
    SigUInt operator<<(Count bits) const {
        return *this << zarnex::detail::nearestInt(bits);
    }
    template <class Count, zarnex::detail::IfInteger<Count, int> = 0>
    SigUInt operator>>(Count bits) const {
        return *this >> zarnex::detail::nearestInt(bits);
    }
    /// @}

    /// Adds 1; the postfix form returns the number from before.
    /// @{
    SigUInt& operator++();
    SigUInt operator++(int);
    /// @}

    /// Takes 1 away; the postfix form returns the number from before.
    ///
    /// Kept as is: zero stays zero, as below zero in every difference.
    /// @{
    SigUInt& operator--();
    SigUInt operator--(int);
    /// @}

    int isZero() const; ///< 1 for zero, else 0

    /// The position of the highest bit plus 1: 0 for zero, 1 for one, 8 for 255.
    int bitLength() const;

    /// Writes the number as bytes, most significant first and without leading zeros, if
    /// `out` is not null and has `room` for them; else writes nothing.
    ///
    /// Returns the number of bytes needed, which is 0 for zero.
    int getBytes(unsigned char* out, int room) const;

    /// The hexadecimal digits, in lower case, without prefix and leading zeros; "0" for
    /// zero.
    ZString getHex() const;

private:
    friend ZARNEX_API SigUInt operator+(const SigUInt& a, const SigUInt& b);
    friend ZARNEX_API SigUInt operator-(const SigUInt& a, const SigUInt& b);
    friend ZARNEX_API SigUInt operator*(const SigUInt& a, const SigUInt& b);
    friend ZARNEX_API SigUInt operator%(const SigUInt& a, const SigUInt& b);
    friend ZARNEX_API int operator==(const SigUInt& a, const SigUInt& b);
    friend ZARNEX_API int operator<(const SigUInt& a, const SigUInt& b);
    friend ZARNEX_API SigUInt a_exp_b_mod_c(const SigUInt& a, const SigUInt& b, const SigUInt& c);

    void takeFrom(SigUInt& other);
    void release();
    void reserve(long long count);
    void setSize(long long count);
    void setSum(const SigUInt& a, const SigUInt& b);
    void setDifference(const SigUInt& a, const SigUInt& b);
    void setProduct(const SigUInt& a, const SigUInt& b);
    void setRemainder(const SigUInt& a, const SigUInt& b);
    void setShifted(const SigUInt& number, long long bits);
    int compare(const SigUInt& other) const;
    int compareLimbs(const SigUInt& other) const;
    SigUInt lowBits(int bits) const;
    SigUInt powerModOdd(const SigUInt& exponent, const SigUInt& modulus) const;
    SigUInt powerModTwos(const SigUInt& exponent, int bits) const;
    SigUInt inverseModTwos(int bits) const;

    static constexpr int insideCount_ = 4;

    unsigned long long* limbs_; // inside_ or on the heap; the least significant first
    int size_;                  // limbs in use, the top one not 0
    int room_;                  // limbs at limbs_
    unsigned long long inside_[insideCount_];
};

/// A new number, computed as by the compound forms.
/// @{
ZARNEX_API SigUInt operator+(const SigUInt& a, const SigUInt& b);
ZARNEX_API SigUInt operator-(const SigUInt& a, const SigUInt& b);
ZARNEX_API SigUInt operator*(const SigUInt& a, const SigUInt& b);
ZARNEX_API SigUInt operator%(const SigUInt& a, const SigUInt& b);
/// @}

/// Compares the values: 1 if it holds, else 0.
/// @{
ZARNEX_API int operator==(const SigUInt& a, const SigUInt& b);
ZARNEX_API int operator!=(const SigUInt& a, const SigUInt& b);
ZARNEX_API int operator<(const SigUInt& a, const SigUInt& b);
ZARNEX_API int operator>(const SigUInt& a, const SigUInt& b);
ZARNEX_API int operator<=(const SigUInt& a, const SigUInt& b);
ZARNEX_API int operator>=(const SigUInt& a, const SigUInt& b);
/// @}

/// `a` to the power of `b`, modulo `c`.
///
/// 0 if `c` is 0 or 1 or has more than 1073741823 bits; else 1 if `b` is 0, also for a zero
/// `a`. With n limbs of 64 bits in `c`, takes about 1.5 * n * n steps for each bit of `b`,
/// for an even `c` no more.
ZARNEX_API SigUInt a_exp_b_mod_c(const SigUInt& a, const SigUInt& b, const SigUInt& c);

// First, since constructors that call others refer to it.
ZARNEX_INLINE SigUInt::~SigUInt() {
    if (limbs_ != inside_)
        release();
}

ZARNEX_INLINE SigUInt::SigUInt() noexcept : limbs_(inside_), size_(0), room_(insideCount_) {}

ZARNEX_INLINE SigUInt::SigUInt(unsigned long long value) noexcept
    : limbs_(inside_), size_(value != 0 ? 1 : 0), room_(insideCount_) {
    inside_[0] = value;
}

ZARNEX_INLINE SigUInt::SigUInt(std::nullptr_t, int) noexcept : SigUInt() {}

ZARNEX_INLINE SigUInt::SigUInt(SigUInt&& other) noexcept : SigUInt() {
    takeFrom(other);
}

ZARNEX_INLINE int SigUInt::isZero() const {
    return size_ == 0;
}

// Below, at or above 0 as this number is below, at or above `other`.
ZARNEX_INLINE int SigUInt::compare(const SigUInt& other) const {
    if (size_ != other.size_)
        return size_ < other.size_ ? -1 : 1;
    return compareLimbs(other);
}

ZARNEX_INLINE int operator==(const SigUInt& a, const SigUInt& b) {
    return a.size_ == b.size_ && a.compareLimbs(b) == 0;
}
ZARNEX_INLINE int operator!=(const SigUInt& a, const SigUInt& b) {
    return !(a == b);
}
ZARNEX_INLINE int operator<(const SigUInt& a, const SigUInt& b) {
    return a.compare(b) < 0;
}
ZARNEX_INLINE int operator>(const SigUInt& a, const SigUInt& b) {
    return b < a;
}
ZARNEX_INLINE int operator<=(const SigUInt& a, const SigUInt& b) {
    return !(b < a);
}
ZARNEX_INLINE int operator>=(const SigUInt& a, const SigUInt& b) {
    return !(a < b);
}
