#pragma once

/// @file
/// Hashing policies for tables of strings and of integers.
///
/// The three string functors are made alike; HashFunction1 and HashFunction2 reduce to the
/// size of a table, HashFunction3 takes it and ignores it. A code unit is the low 16 bits of a
/// character; unlike ZString::hash() and `==` of strings, all of them tell upper from lower case.
/// Arithmetic is on 32-bit integers that wrap, and results are 32-bit values on every platform.
///
///     const HashFunction2 slotOf(101);
///     table[slotOf(L"blank")];           // 0 ... 100

#include <zarnex/config.h>

#include <cstdint>
#include <type_traits>

/// Shift and add: each code unit u takes h to 4h + u, from 0.
class ZARNEX_API HashFunction1 {
public:
    /// Of a size, a prime at best, the low 32 bits count; size 0 gives hash 0.
    HashFunction1(long size = 1073741827);

    /// |h| modulo the size.
    ///
    /// Kept as is: h = -2^31 has no |h| in 32 bits and leaves a remainder below or
    /// equal to 0.
    long operator()(const ZString& text) const;

private:
    std::int32_t size_;
};

/// Multiply and add: each code unit u takes h to 613h + u, from the length.
class ZARNEX_API HashFunction2 {
public:
    HashFunction2(long size = 1073741827); ///< as in HashFunction1

    /// Reduced as in HashFunction1.
    long operator()(const ZString& text) const;

private:
    std::int32_t size_;
};

/// Shift and xor: the code unit u at index i takes h to h ^ (u << (i + 8) % 32), from the
/// length.
class ZARNEX_API HashFunction3 {
public:
    HashFunction3(long size = 1073741827); ///< `size` is ignored

    /// |h| times 0.61254233 in single precision, truncated.
    ///
    /// Kept as is: the size is ignored, although HashFunction1 and 2 reduce by it. Results
    /// go up to 1315424640; h = -2^31 alone gives a negative one, -1315424640.
    long operator()(const ZString& text) const;

private:
    std::int32_t size_;
};

/// An integer as a key.
class ZARNEX_API ZHashInt {
public:
    ZHashInt(int value); ///< the key `value`

    /// The same value.
    /// @{
    ZHashInt(const ZHashInt& other);
    ZHashInt& operator=(const ZHashInt& other);
    /// @}

    /// Virtual: a derived key may be deleted as this one.
    virtual ~ZHashInt();

    /// Whether the values are equal: 1 or 0.
    /// @{
    int operator==(const ZHashInt& other) const;
    int operator!=(const ZHashInt& other) const;
    /// @}

    /// The value.
    /// @{
    operator int() const;
    int getInt() const;
    /// @}

    /// 1741 times the value, wrapped to 32 bits.
    int hash() const;

private:
    std::int32_t value_;
};

/// The hash of a ZHashInt.
///
/// Kept as is: of any size and sign, although HashFunction1 and 2 reduce.
class ZARNEX_API IntHashFunction {
public:
    /// ZHashInt::hash() of `key`.
    long operator()(const ZHashInt& key) const;
};

ZARNEX_INLINE int ZHashInt::operator==(const ZHashInt& other) const {
    return value_ == other.value_;
}

ZARNEX_INLINE int ZHashInt::operator!=(const ZHashInt& other) const {
    return value_ != other.value_;
}

ZARNEX_INLINE ZHashInt::operator int() const {
    return value_;
}

ZARNEX_INLINE int ZHashInt::getInt() const {
    return value_;
}

ZARNEX_INLINE int ZHashInt::hash() const {
    return static_cast<int>(static_cast<std::uint32_t>(value_) * 1741u);
}

ZARNEX_INLINE long IntHashFunction::operator()(const ZHashInt& key) const {
    return key.hash();
}

/// Comparison with plain integers, by value: without these it would be ambiguous.
/// @{
template <class Integer, std::enable_if_t<std::is_integral_v<Integer>, int> = 0>
int operator==(const ZHashInt& a, Integer b) {
    if constexpr (std::is_unsigned_v<Integer>)
        return a.getInt() >= 0 && static_cast<unsigned long long>(a.getInt()) == b;
    else
        return a.getInt() == static_cast<long long>(b);
}
template <class Integer, std::enable_if_t<std::is_integral_v<Integer>, int> = 0>
int operator==(Integer a, const ZHashInt& b) {
    return b == a;
}

template <class Integer, std::enable_if_t<std::is_integral_v<Integer>, int> = 0>
int operator!=(const ZHashInt& a, Integer b) {
    return !(a == b);
}
template <class Integer, std::enable_if_t<std::is_integral_v<Integer>, int> = 0>
int operator!=(Integer a, const ZHashInt& b) {
    return !(b == a);
}
/// @}
