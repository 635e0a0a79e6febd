// Big integers, identifiers, and what stands below all of them.

#include "tests/memory/operations.h"

#include <zarnex/foundation.h>

#include <cstring>
#include <optional>
#include <vector>

namespace {

/// An odd number of `bits` bits.
SigUInt ones(int bits) {
    return (SigUInt(1) << bits) - SigUInt(1);
}

/// `work` on a number of 20000 bits gives `result`, and the operand is as it was.
template <class Work>
auto computed(const SigUInt& result, Work work) {
    return [=](Trial& trial) {
        const SigUInt operand = ones(20000);
        SigUInt number;
        trial.attempt([&] { number = work(operand); });
        trial.expect(number == result && operand.bitLength() == 20000);
    };
}

/// base^exponent mod modulus by squaring alone.
SigUInt plainPower(const SigUInt& base, unsigned exponent, const SigUInt& modulus) {
    SigUInt power = 1;
    for (unsigned bit = 1u << 31; bit != 0; bit >>= 1) {
        power = power * power % modulus;
        if ((exponent & bit) != 0)
            power = power * base % modulus;
    }
    return power;
}

void raised(Trial& trial, const SigUInt& modulus) {
    const SigUInt base = ones(13000);
    const SigUInt expected = plainPower(base, 1000003, modulus);
    SigUInt power;
    trial.attempt([&] { power = a_exp_b_mod_c(base, 1000003, modulus); });
    trial.expect(power == expected);
}

} // namespace

Group numberOperations() {
    return {
        "`SigUInt`, `a_exp_b_mod_c`",
        {
            {"SigUInt of bytes", endsAlloc,
             [](Trial& t) {
                 const std::vector<unsigned char> bytes(2500, 0xFF);
                 std::optional<SigUInt> number;
                 t.attempt([&] { number.emplace(bytes.data(), 2500); });
                 t.expect(number && *number == ones(20000));
             }},
            {"SigUInt of words", endsAlloc,
             [](Trial& t) {
                 const std::vector<unsigned short> words(1250, 0xFFFF);
                 std::optional<SigUInt> number;
                 t.attempt([&] { number.emplace(words.data(), 1250); });
                 t.expect(number && *number == ones(20000));
             }},
            {"SigUInt copied", endsAlloc,
             computed(ones(20000), [](const SigUInt& n) { return SigUInt(n); })},
            {"SigUInt + and ++", endsAlloc,
             computed(SigUInt(1) << 20000, [](const SigUInt& n) { return n + SigUInt(1); })},
            {"SigUInt -", endsAlloc,
             computed(SigUInt(1) << 19999, [](const SigUInt& n) { return n - (n >> 1); })},
            {"SigUInt *", endsAlloc,
             computed((ones(20000) << 20000) - ones(20000),
                      [](const SigUInt& n) { return n * n; })},
            {"SigUInt *= itself", endsAlloc,
             [](Trial& t) {
                 SigUInt number = ones(9000);
                 const SigUInt square = (ones(9000) << 9000) - ones(9000);
                 t.attempt([&] { number *= number; });
                 t.expect(number == square);
             }},
            {"SigUInt %", endsAlloc,
             computed(ones(2000),
                      [divisor = ones(9000)](const SigUInt& n) { return n % divisor; })},
            {"SigUInt << and >>", endsAlloc,
             computed(ones(20000), [](const SigUInt& n) { return (n << 5000) >> 5000; })},
            {"SigUInt getHex", endsAlloc,
             [](Trial& t) {
                 const SigUInt number = ones(20000);
                 std::optional<ZString> digits;
                 t.attempt([&] { digits.emplace(number.getHex()); });
                 t.expect(digits && digits->length() == 5000);
             }},
            {"SigUInt of 256 bits", asksNothing,
             [](Trial& t) {
                 t.attempt([&] {
                     SigUInt number = ones(255);
                     number = number - SigUInt(2) + SigUInt(1);
                     t.expect(number.bitLength() == 255);
                 });
             }},
            {"a_exp_b_mod_c, odd", endsAlloc, [](Trial& t) { raised(t, ones(14000)); }},
            {"a_exp_b_mod_c, even", endsAlloc, [](Trial& t) { raised(t, ones(14000) << 500); }},
        },
    };
}

Group runtimeOperations() {
    return {
        "`ZGUIDWrapper`, `ZarnexException`, locks",
        {
            {"ZGUIDWrapper new", endsAlloc,
             [](Trial& t) {
                 std::optional<ZGUIDWrapper> shape;
                 t.attempt([&] { shape.emplace(1); });
                 t.expect(shape && shape->isValid() && shape->getString().length() == 36);
             }},
            {"ZGUIDWrapper of text, copied", endsAlloc,
             [](Trial& t) {
                 ZGUIDWrapper bead(0);
                 bead.setBead1();
                 const ZString text(bead.getString());
                 t.attempt([&] {
                     const ZGUIDWrapper read(&text);
                     ZGUIDWrapper copy(read);
                     copy = bead;
                     t.expect(copy.isBead1() && copy == read);
                 });
                 t.expect(bead.isBead1());
             }},
            {"ZGUIDWrapper setters", asksNothing,
             [](Trial& t) {
                 ZGUIDWrapper shape(0);
                 t.attempt([&] {
                     shape.setCircle();
                     shape.setValid(0);
                     shape.setValid(1);
                 });
                 t.expect(shape.isCircle() && shape.getString().length() == 36);
             }},
            {"ZarnexException", throwsBad,
             [](Trial& t) {
                 std::optional<ZarnexException> error;
                 t.attempt([&] {
                     error.emplace("a message that is too long for a short one", 12, nullptr);
                 });
                 t.expectDone(error && error->errCode() == 12);
             }},
            {"ZarnexException copied", throwsBad,
             [](Trial& t) {
                 const ZarnexException error("a message that is too long for a short one", 12,
                                             nullptr);
                 ZarnexException other;
                 t.attempt([&] {
                     const ZarnexException copy(error);
                     other = copy;
                 });
                 t.expectDone(std::strcmp(other.what(), error.what()) == 0);
                 t.expect(*other.what() != '\0');
             }},
            {"locks and reference counts, for the first time", asksNothing,
             [](Trial& t) {
                 t.attempt([&] {
                     lockRefCount();
                     ZRefCount count(nullptr);
                     ++count;
                     t.expect(count.decrement() == 1);
                     unlockRefCount();
                     MiniLock lock;
                     const MiniGuard guard(lock);
                 });
             }},
        },
    };
}
