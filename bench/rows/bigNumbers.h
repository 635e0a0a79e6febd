#pragma once

/// The peers of SigUInt behind the same few functions, so that one row serves all of them.

#include <zarnex/bigint/SigUInt.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#if BENCH_GMP
#include <gmp.h>
#endif
#if BENCH_OPENSSL
#include <openssl/bn.h>
#include <openssl/crypto.h>
#endif
#if BENCH_BOOST
#include <boost/multiprecision/cpp_int.hpp>
#endif

namespace bench {

// ---- Ours

inline void set(SigUInt& number, const std::string& hex) {
    std::vector<unsigned char> bytes; // an even number of digits
    for (std::size_t i = 0; i < hex.size(); i += 2)
        bytes.push_back(static_cast<unsigned char>(std::stoi(hex.substr(i, 2), nullptr, 16)));
    number = SigUInt(bytes.data(), static_cast<int>(bytes.size()));
}
inline int bits(const SigUInt& number) {
    return number.bitLength();
}
inline std::size_t hexLength(const SigUInt& number) {
    return static_cast<std::size_t>(number.getHex().length());
}
inline std::string hex(const SigUInt& number) {
    const ZString digits = number.getHex();
    std::string text;
    for (int i = 0; i < digits.length(); ++i)
        text += static_cast<char>(digits[i]);
    return text;
}
inline SigUInt power(const SigUInt& a, const SigUInt& b, const SigUInt& c) {
    return a_exp_b_mod_c(a, b, c);
}

// ---- GMP

#if BENCH_GMP

class Gmp {
public:
    Gmp() {
        mpz_init(number);
    }
    Gmp(const Gmp& other) {
        mpz_init_set(number, other.number);
    }
    Gmp(Gmp&& other) noexcept {
        mpz_init(number); // without an allocation
        mpz_swap(number, other.number);
    }
    Gmp& operator=(Gmp other) {
        mpz_swap(number, other.number);
        return *this;
    }
    ~Gmp() {
        mpz_clear(number);
    }

    mpz_t number;
};

inline void set(Gmp& a, const std::string& hex) {
    mpz_set_str(a.number, hex.c_str(), 16);
}
inline int bits(const Gmp& a) {
    return static_cast<int>(mpz_sizeinbase(a.number, 2));
}
inline std::string hex(const Gmp& a) {
    char* const text = mpz_get_str(nullptr, 16, a.number);
    std::string copy(text);
    std::free(text);
    return copy;
}
inline std::size_t hexLength(const Gmp& a) {
    return hex(a).size();
}
inline Gmp operator+(const Gmp& a, const Gmp& b) {
    Gmp out;
    mpz_add(out.number, a.number, b.number);
    return out;
}
inline Gmp operator*(const Gmp& a, const Gmp& b) {
    Gmp out;
    mpz_mul(out.number, a.number, b.number);
    return out;
}
inline Gmp operator%(const Gmp& a, const Gmp& b) {
    Gmp out;
    mpz_mod(out.number, a.number, b.number);
    return out;
}
inline Gmp operator<<(const Gmp& a, int count) {
    Gmp out;
    mpz_mul_2exp(out.number, a.number, static_cast<mp_bitcnt_t>(count));
    return out;
}
inline Gmp operator>>(const Gmp& a, int count) {
    Gmp out;
    mpz_fdiv_q_2exp(out.number, a.number, static_cast<mp_bitcnt_t>(count));
    return out;
}
inline void operator+=(Gmp& a, const Gmp& b) {
    mpz_add(a.number, a.number, b.number);
}
inline void operator-=(Gmp& a, const Gmp& b) {
    mpz_sub(a.number, a.number, b.number);
}
inline void operator<<=(Gmp& a, int count) {
    mpz_mul_2exp(a.number, a.number, static_cast<mp_bitcnt_t>(count));
}
inline void operator>>=(Gmp& a, int count) {
    mpz_fdiv_q_2exp(a.number, a.number, static_cast<mp_bitcnt_t>(count));
}
inline Gmp power(const Gmp& a, const Gmp& b, const Gmp& c) {
    Gmp out;
    mpz_powm(out.number, a.number, b.number, c.number);
    return out;
}

#endif

// ---- OpenSSL

#if BENCH_OPENSSL

/// The scratch numbers that every longer operation asks for, made once.
inline BN_CTX* context() {
    static BN_CTX* const shared = BN_CTX_new();
    return shared;
}

class OpenSsl {
public:
    OpenSsl() : number(BN_new()) {}
    OpenSsl(const OpenSsl& other) : number(BN_dup(other.number)) {}
    OpenSsl(OpenSsl&& other) noexcept : number(std::exchange(other.number, nullptr)) {}
    OpenSsl& operator=(OpenSsl other) {
        std::swap(number, other.number);
        return *this;
    }
    ~OpenSsl() {
        BN_free(number);
    }

    BIGNUM* number;
};

inline void set(OpenSsl& a, const std::string& hex) {
    BN_hex2bn(&a.number, hex.c_str());
}
inline int bits(const OpenSsl& a) {
    return BN_num_bits(a.number);
}
inline std::string hex(const OpenSsl& a) {
    char* const text = BN_bn2hex(a.number);
    std::string copy(text);
    OPENSSL_free(text);
    for (char& digit : copy)
        digit = static_cast<char>(digit >= 'A' ? digit - 'A' + 'a' : digit);
    copy.erase(0, (std::min)(copy.find_first_not_of('0'), copy.size() - 1));
    return copy;
}
inline std::size_t hexLength(const OpenSsl& a) {
    char* const text = BN_bn2hex(a.number);
    const std::size_t length = std::string(text).size();
    OPENSSL_free(text);
    return length;
}
inline OpenSsl operator+(const OpenSsl& a, const OpenSsl& b) {
    OpenSsl out;
    BN_add(out.number, a.number, b.number);
    return out;
}
inline OpenSsl operator*(const OpenSsl& a, const OpenSsl& b) {
    OpenSsl out;
    if (&a == &b)
        BN_sqr(out.number, a.number, context());
    else
        BN_mul(out.number, a.number, b.number, context());
    return out;
}
inline OpenSsl operator%(const OpenSsl& a, const OpenSsl& b) {
    OpenSsl out;
    BN_mod(out.number, a.number, b.number, context());
    return out;
}
inline OpenSsl operator<<(const OpenSsl& a, int count) {
    OpenSsl out;
    BN_lshift(out.number, a.number, count);
    return out;
}
inline OpenSsl operator>>(const OpenSsl& a, int count) {
    OpenSsl out;
    BN_rshift(out.number, a.number, count);
    return out;
}
inline void operator+=(OpenSsl& a, const OpenSsl& b) {
    BN_add(a.number, a.number, b.number);
}
inline void operator-=(OpenSsl& a, const OpenSsl& b) {
    BN_sub(a.number, a.number, b.number);
}
inline void operator<<=(OpenSsl& a, int count) {
    BN_lshift(a.number, a.number, count);
}
inline void operator>>=(OpenSsl& a, int count) {
    BN_rshift(a.number, a.number, count);
}
inline OpenSsl power(const OpenSsl& a, const OpenSsl& b, const OpenSsl& c) {
    OpenSsl out;
    if (BN_is_odd(c.number))
        BN_mod_exp_mont(out.number, a.number, b.number, c.number, context(), nullptr);
    else
        BN_mod_exp(out.number, a.number, b.number, c.number, context());
    return out;
}

#endif

// ---- Boost

#if BENCH_BOOST

using BoostInteger = boost::multiprecision::cpp_int;

inline void set(BoostInteger& a, const std::string& hex) {
    a.assign("0x" + hex);
}
inline int bits(const BoostInteger& a) {
    return a.is_zero() ? 0 : static_cast<int>(msb(a)) + 1;
}
inline std::string hex(const BoostInteger& a) {
    std::string text = a.str(0, std::ios_base::hex);
    for (char& digit : text)
        digit = static_cast<char>(digit >= 'A' && digit <= 'F' ? digit - 'A' + 'a' : digit);
    return text;
}
inline std::size_t hexLength(const BoostInteger& a) {
    return a.str(0, std::ios_base::hex).size();
}
inline BoostInteger power(const BoostInteger& a, const BoostInteger& b, const BoostInteger& c) {
    return powm(a, b, c);
}

#endif

} // namespace bench
