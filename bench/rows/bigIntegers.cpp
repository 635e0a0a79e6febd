#include "../rows.h"
#include "bigNumbers.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace bench {

namespace {

constexpr std::size_t poolSize = 8;

/// Operands as hexadecimal digits; the sides take turns through them.
struct Texts {
    std::vector<std::string> a, b, c;
};

/// Numbers of exactly these bits (multiples of 8); c is odd unless `twos` bits are to be 0.
Texts texts(int aBits, int bBits = 8, int cBits = 8, int twos = 0) {
    static std::mt19937_64 random(20);
    const auto number = [](int bits, int zeros) {
        std::string digits;
        for (int i = 0; i < bits; i += 4)
            digits += "0123456789abcdef"[i < bits - zeros ? random() % 16 : 0];
        digits[0] = 'c';
        return digits;
    };
    Texts made;
    for (std::size_t i = 0; i < poolSize; ++i) {
        made.a.push_back(number(aBits, 0));
        made.b.push_back(number(bBits, 0));
        made.c.push_back(number(cBits, twos));
        if (twos == 0)
            made.c.back().back() = 'b';
    }
    return made;
}

template <class Number>
struct Pool {
    explicit Pool(const Texts& texts)
        : a(numbers(texts.a)), b(numbers(texts.b)), c(numbers(texts.c)), state(a[0]) {}

    static std::vector<Number> numbers(const std::vector<std::string>& texts) {
        std::vector<Number> made(texts.size());
        for (std::size_t i = 0; i < texts.size(); ++i)
            set(made[i], texts[i]);
        return made;
    }

    /// The place of the operands whose turn it is.
    std::size_t next() {
        turn = (turn + 1) % poolSize;
        return turn;
    }

    std::vector<Number> a, b, c;
    Number state; // what works in place work on
    std::size_t turn = 0;
};

/// What the side's work comes to for every operand, outside of the measured time.
template <class Number, class Work>
std::string outcomes(const Texts& texts, const Work& work) {
    Pool<Number> pool(texts);
    std::string all;
    for (std::size_t i = 0; i < poolSize; ++i)
        all += hex(work(pool, i)) + ' ';
    return all;
}

template <class Number, class Work>
auto side(const Texts& texts, const Work& work) {
    const auto pool = std::make_shared<Pool<Number>>(texts);
    std::vector<int> expected;
    for (std::size_t i = 0; i < poolSize; ++i)
        expected.push_back(bits(work(*pool, i)));
    return [pool, expected, &work] {
        const std::size_t i = pool->next();
        return bits(work(*pool, i)) == expected[i];
    };
}

/// A row of the same `work(pool, i)` on the numbers of every library.
template <class Work>
void numberRow(Suite& suite, const std::string& name, double limit, const std::string& what,
               const Texts& texts, const char* why, const Work& work) {
    suite.row(name, limit, what, [&](Row& row, const auto& measure) {
        if (why != nullptr)
            row.why(why);
        const std::string expected = outcomes<SigUInt>(texts, work);
        const auto check = [&](const std::string& outcome) {
            if (outcome == expected)
                return;
            std::fprintf(stderr, "%s: the numbers differ\n", name.c_str());
            std::abort();
        };
        row.ours(side<SigUInt>(texts, work));
#if BENCH_GMP
        check(outcomes<Gmp>(texts, work));
        row.peer("GMP", side<Gmp>(texts, work));
#endif
#if BENCH_OPENSSL
        check(outcomes<OpenSsl>(texts, work));
        row.peer("OpenSSL", side<OpenSsl>(texts, work));
#endif
#if BENCH_BOOST
        check(outcomes<BoostInteger>(texts, work));
        row.peer("Boost", side<BoostInteger>(texts, work));
#endif
        check(expected);
        measure();
    });
}

template <class Number>
using Made = std::decay_t<Number>; // not an expression of Boost

void powerRows(Suite& suite) {
    const auto power = [](const auto& pool, std::size_t i) {
        return bench::power(pool.a[i], pool.b[i], pool.c[i]);
    };
    for (const int bits : {512, 1024, 2048, 4096}) {
        const std::string size = std::to_string(bits);
        numberRow(suite, "power, " + size, 1.5, "a^b mod c, each of " + size + " bits, c odd.",
                  texts(bits, bits, bits), nullptr, power);
    }
    numberRow(suite, "power, even", 1.5, "a^b mod c, each of 2048 bits, 64 factors of 2 in c.",
              texts(2048, 2048, 2048, 64), nullptr, power);
}

void productRows(Suite& suite) {
    const auto product = [](const auto& pool, std::size_t i) -> Made<decltype(pool.state)> {
        return pool.a[i] * pool.b[i];
    };
    const auto square = [](const auto& pool, std::size_t i) -> Made<decltype(pool.state)> {
        return pool.a[i] * pool.a[i];
    };
    const auto remainder = [](const auto& pool, std::size_t i) -> Made<decltype(pool.state)> {
        return pool.a[i] % pool.b[i];
    };
    for (const int bits : {512, 2048, 16384, 131072}) {
        const std::string size = std::to_string(bits);
        numberRow(suite, "product, " + size, 1.5, "a * b, each of " + size + " bits.",
                  texts(bits, bits),
                  "Long products halve their operands (Karatsuba, whose time grows with the length "
                  "to the power of 1.58); GMP cuts them into three parts and more, which pays at "
                  "lengths far beyond those of keys.",
                  product);
    }
    for (const int bits : {2048, 16384}) {
        const std::string size = std::to_string(bits);
        numberRow(suite, "square, " + size, 1.5, "a * a, of " + size + " bits.", texts(bits),
                  nullptr, square);
    }
    for (const int bits : {1024, 4096, 16384}) {
        const std::string size = std::to_string(bits);
        numberRow(suite, "remainder, " + size, 1.5, "a % b, of " + size + " bits and half of them.",
                  texts(bits, bits / 2), nullptr, remainder);
    }
}

void shortRows(Suite& suite) {
    const Texts operands = texts(2048, 2048);
    numberRow(suite, "sum", 1.5, "A new number a + b, each of 2048 bits.", operands, nullptr,
              [](const auto& pool, std::size_t i) -> Made<decltype(pool.state)> {
                  return pool.a[i] + pool.b[i];
              });
    numberRow(
        suite, "sum in place", 1.5, "x += a, then x -= b, each of 2048 bits.", operands, nullptr,
        [](auto& pool, std::size_t i) -> const auto& {
            pool.state += pool.a[i];
            pool.state -= pool.a[(i + 1) % poolSize];
            return pool.state;
        });
    const char* const limbByLimb =
        "About 1 ns a limb and shift, one limb after the other; GMP's are vector instructions.";
    numberRow(suite, "shift up", 1.5, "A new number a << 77 of 2048 bits.", operands, limbByLimb,
              [](const auto& pool, std::size_t i) -> Made<decltype(pool.state)> {
                  return pool.a[i] << 77;
              });
    numberRow(suite, "shift down", 1.5, "A new number a >> 77 of 2048 bits.", operands, limbByLimb,
              [](const auto& pool, std::size_t i) -> Made<decltype(pool.state)> {
                  return pool.a[i] >> 77;
              });
    numberRow(
        suite, "shift in place", 1.5, "x <<= 77, then x >>= 77, of 2048 bits.", operands,
        limbByLimb, [](auto& pool, std::size_t) -> const auto& {
            pool.state <<= 77;
            pool.state >>= 77;
            return pool.state;
        });
}

void hexRow(Suite& suite) {
    suite.row("hexadecimal", 1.5, "The digits of 2048 bits as new text.",
              [](Row& row, const auto& measure) {
                  const Texts operands = texts(2048);
                  const auto digits = [&operands](auto number) {
                      return [pool = std::make_shared<Pool<decltype(number)>>(operands)] {
                          return hexLength(pool->a[pool->next()]);
                      };
                  };
                  row.ours(digits(SigUInt()));
#if BENCH_GMP
                  row.peer("GMP", digits(Gmp()));
#endif
#if BENCH_OPENSSL
                  row.peer("OpenSSL", digits(OpenSsl()));
#endif
#if BENCH_BOOST
                  row.peer("Boost", digits(BoostInteger()));
#endif
                  measure();
              });
}

} // namespace

void bigIntegerRows(Suite& suite) {
    suite.topic("big integers");
    powerRows(suite);
    productRows(suite);
    shortRows(suite);
    hexRow(suite);
}

} // namespace bench
