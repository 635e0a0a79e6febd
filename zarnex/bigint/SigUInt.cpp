#include <zarnex/bigint/SigUInt.h>

#include <zarnex/bigint/internal/Scratch.h>
#include <zarnex/bigint/internal/division.h>
#include <zarnex/bigint/internal/limbs.h>
#include <zarnex/bigint/internal/multiplication.h>

#include <algorithm>
#include <limits>
#include <utility>

using namespace zarnex::detail;

namespace {

constexpr long long mostBits = (std::numeric_limits<int>::max)();
constexpr long long mostLimbs = mostBits / limbBits + 1;

template <class Digit>
constexpr int digitsPerLimb = limbBits / std::numeric_limits<Digit>::digits;

// Drops the leading zeros of `digits`, and says how many limbs the others fill: none if
// there are none or too many.
template <class Digit>
int limbsOf(const Digit*& digits, int& count) {
    if (digits == nullptr)
        count = 0;
    for (; count > 0 && *digits == 0; --count)
        ++digits;
    if (count <= 0 || count > mostLimbs * digitsPerLimb<Digit>)
        return 0;
    return (count - 1) / digitsPerLimb<Digit> + 1;
}

// Writes digits, most significant first, into `size` limbs.
template <class Digit>
void packDigits(Limb* limbs, int size, const Digit* digits, int count) {
    for (int i = 0; i < size; ++i, count -= digitsPerLimb<Digit>) {
        Limb limb = 0;
        for (int k = (std::max)(count - digitsPerLimb<Digit>, 0); k < count; ++k)
            limb = limb << std::numeric_limits<Digit>::digits | digits[k];
        limbs[i] = limb;
    }
}

} // namespace

// ---- Storage

SigUInt::SigUInt(const unsigned char* bytes, int count) : SigUInt() {
    const int size = limbsOf(bytes, count);
    reserve(size);
    packDigits(limbs_, size, bytes, count);
    setSize(size);
}

SigUInt::SigUInt(const unsigned short* words, int count) : SigUInt() {
    const int size = limbsOf(words, count);
    reserve(size);
    packDigits(limbs_, size, words, count);
    setSize(size);
}

SigUInt::SigUInt(const SigUInt& other) : SigUInt() {
    *this = other;
}

SigUInt& SigUInt::operator=(const SigUInt& other) {
    if (this != &other) {
        size_ = 0; // nothing to keep when the storage grows
        reserve(other.size_);
        std::copy_n(other.limbs_, other.size_, limbs_);
        size_ = other.size_;
    }
    return *this;
}

SigUInt& SigUInt::operator=(SigUInt&& other) noexcept {
    if (this != &other)
        takeFrom(other);
    return *this;
}

// The value of `other`, which becomes zero.
void SigUInt::takeFrom(SigUInt& other) {
    if (other.limbs_ == other.inside_) {
        std::copy_n(other.limbs_, other.size_, limbs_);
        size_ = other.size_;
        other.size_ = 0;
        return;
    }
    release();
    limbs_ = std::exchange(other.limbs_, other.inside_);
    room_ = std::exchange(other.room_, insideCount_);
    size_ = std::exchange(other.size_, 0);
}

// Frees the storage on the heap.
void SigUInt::release() {
    if (limbs_ != inside_)
        delete[] limbs_;
}

// Makes room for at least `count` limbs. Those in use stay as they are, the others have no
// value.
void SigUInt::reserve(long long count) {
    if (count <= room_)
        return;
    const long long room = count + 2; // a carry or two grow into it
    Limb* const limbs = allocateLimbs(room);
    std::copy_n(limbs_, size_, limbs);
    release();
    limbs_ = limbs;
    room_ = static_cast<int>(room);
}

// The number is in the first `count` limbs, zeros at their top included. If it is too long
// it becomes zero.
void SigUInt::setSize(long long count) {
    const Size size = significant(limbs_, count);
    size_ = zarnex::detail::bitLength(limbs_, size) > mostBits ? 0 : static_cast<int>(size);
}

// ---- Comparison

int SigUInt::compareLimbs(const SigUInt& other) const {
    return zarnex::detail::compare(limbs_, other.limbs_, size_);
}

int SigUInt::bitLength() const {
    return static_cast<int>(zarnex::detail::bitLength(limbs_, size_));
}

// ---- Arithmetic. *this may be an operand of every set...() function.

void SigUInt::setSum(const SigUInt& a, const SigUInt& b) {
    const SigUInt& longer = a.size_ < b.size_ ? b : a;
    const SigUInt& shorter = a.size_ < b.size_ ? a : b;
    const int count = longer.size_;
    const int common = shorter.size_;
    reserve(count);
    unsigned char carry = add(limbs_, longer.limbs_, shorter.limbs_, common);
    carry = propagateCarry(limbs_ + common, longer.limbs_ + common, count - common, carry);
    size_ = count;
    if (carry != 0) {
        reserve(count + 1LL);
        limbs_[count] = 1;
    }
    setSize(count + carry);
}

void SigUInt::setDifference(const SigUInt& a, const SigUInt& b) {
    if (a <= b) {
        size_ = 0;
        return;
    }
    const int count = a.size_;
    const int common = b.size_;
    reserve(count);
    const unsigned char borrow = subtract(limbs_, a.limbs_, b.limbs_, common);
    propagateBorrow(limbs_ + common, a.limbs_ + common, count - common, borrow);
    setSize(count);
}

void SigUInt::setProduct(const SigUInt& a, const SigUInt& b) {
    const long long count = static_cast<long long>(a.size_) + b.size_;
    if (a.isZero() || b.isZero() || 0LL + a.bitLength() + b.bitLength() > mostBits + 1) {
        size_ = 0;
    } else if (b.size_ == 1) {
        const Limb factor = b.limbs_[0]; // b may be *this
        reserve(count);
        limbs_[count - 1] = multiplyByLimb(limbs_, a.limbs_, count - 1, factor);
        setSize(count);
    } else if (this == &a || this == &b) {
        SigUInt product;
        product.setProduct(a, b);
        takeFrom(product);
    } else {
        reserve(count);
        if (&a == &b)
            square(limbs_, a.limbs_, a.size_);
        else
            multiply(limbs_, a.limbs_, a.size_, b.limbs_, b.size_);
        setSize(count);
    }
}

void SigUInt::setRemainder(const SigUInt& a, const SigUInt& b) {
    if (b.isZero()) {
        size_ = 0;
    } else if (a < b) {
        *this = a;
    } else if (this == &b) {
        SigUInt rest;
        rest.setRemainder(a, b);
        takeFrom(rest);
    } else {
        reserve(b.size_ == 1 ? 1 : a.size_ + 1LL);
        remainder(limbs_, a.limbs_, a.size_, b.limbs_, b.size_);
        setSize(b.size_);
    }
}

// The number times 2^bits; by less than nothing if `bits` is negative.
void SigUInt::setShifted(const SigUInt& number, long long bits) {
    const long long length = number.bitLength();
    if (length == 0 || length + bits <= 0 || length + bits > mostBits) {
        size_ = 0;
    } else if (bits >= 0) {
        const Size zeros = static_cast<Size>(bits / limbBits);
        const Size used = number.size_;
        const Size count = static_cast<Size>((length + bits - 1) / limbBits + 1);
        reserve(count);
        const Limb top =
            shiftUp(limbs_ + zeros, number.limbs_, used, static_cast<int>(bits % limbBits));
        if (count > zeros + used)
            limbs_[count - 1] = top;
        std::fill_n(limbs_, zeros, Limb{0});
        setSize(count);
    } else {
        const Size dropped = static_cast<Size>(-bits / limbBits);
        const Size count = number.size_ - dropped;
        reserve(count);
        shiftDown(limbs_, number.limbs_ + dropped, count, static_cast<int>(-bits % limbBits));
        setSize(count);
    }
}

SigUInt& SigUInt::operator+=(const SigUInt& other) {
    setSum(*this, other);
    return *this;
}

SigUInt& SigUInt::operator-=(const SigUInt& other) {
    setDifference(*this, other);
    return *this;
}

SigUInt& SigUInt::operator*=(const SigUInt& other) {
    setProduct(*this, other);
    return *this;
}

SigUInt& SigUInt::operator%=(const SigUInt& other) {
    setRemainder(*this, other);
    return *this;
}

SigUInt operator+(const SigUInt& a, const SigUInt& b) {
    SigUInt sum;
    sum.setSum(a, b);
    return sum;
}

SigUInt operator-(const SigUInt& a, const SigUInt& b) {
    SigUInt difference;
    difference.setDifference(a, b);
    return difference;
}

SigUInt operator*(const SigUInt& a, const SigUInt& b) {
    SigUInt product;
    product.setProduct(a, b);
    return product;
}

SigUInt operator%(const SigUInt& a, const SigUInt& b) {
    SigUInt rest;
    rest.setRemainder(a, b);
    return rest;
}

SigUInt& SigUInt::operator<<=(int bits) {
    setShifted(*this, bits);
    return *this;
}

SigUInt& SigUInt::operator>>=(int bits) {
    setShifted(*this, -static_cast<long long>(bits));
    return *this;
}

SigUInt SigUInt::operator<<(int bits) const {
    SigUInt shifted;
    shifted.setShifted(*this, bits);
    return shifted;
}

SigUInt SigUInt::operator>>(int bits) const {
    SigUInt shifted;
    shifted.setShifted(*this, -static_cast<long long>(bits));
    return shifted;
}

SigUInt& SigUInt::operator++() {
    return *this += 1;
}

SigUInt SigUInt::operator++(int) {
    SigUInt before(*this);
    *this += 1;
    return before;
}

SigUInt& SigUInt::operator--() {
    return *this -= 1;
}

SigUInt SigUInt::operator--(int) {
    SigUInt before(*this);
    *this -= 1;
    return before;
}

// ---- Export

int SigUInt::getBytes(unsigned char* out, int room) const {
    const int count = static_cast<int>((bitLength() + 7LL) / 8);
    if (out != nullptr && room >= count) {
        for (int i = 0; i < count; ++i)
            out[count - 1 - i] = static_cast<unsigned char>(limbs_[i / 8] >> (i % 8 * 8) & 0xff);
    }
    return count;
}

ZString SigUInt::getHex() const {
    if (isZero())
        return L"0";
    const int count = static_cast<int>((bitLength() + 3LL) / 4);
    ZString text(count, 0);
    wchar_t* const first = &text[0];
    wchar_t* digit = first + count;
    *digit = L'\0';
    for (int i = 0; digit != first; ++i) {
        Limb rest = limbs_[i];
        for (int left = limbBits / 4; left > 0 && digit != first; --left, rest >>= 4)
            *--digit = L"0123456789abcdef"[rest & 0xf];
    }
    return text;
}
