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

void raised(Trial& trial, const SigUInt& modulus) {
    const SigUInt base = ones(13000);
    const SigUInt expected = a_exp_b_mod_c(base, 1000003, modulus); // while there is memory
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
             computed(ones(20000), [bytes = std::vector<unsigned char>(2500, 0xFF)](
                                       const SigUInt&) { return SigUInt(bytes.data(), 2500); })},
            {"SigUInt of words", endsAlloc,
             computed(ones(20000), [words = std::vector<unsigned short>(1250, 0xFFFF)](
                                       const SigUInt&) { return SigUInt(words.data(), 1250); })},
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
             computed((ones(20000) << 20000) - ones(20000), [](SigUInt n) { return n *= n; })},
            {"SigUInt %", endsAlloc,
             computed(ones(2000),
                      [divisor = ones(9000)](const SigUInt& n) { return n % divisor; })},
            {"SigUInt << and >>", endsAlloc,
             computed(ones(20000), [](const SigUInt& n) { return (n << 5000) >> 5000; })},
            {"SigUInt getHex", endsAlloc,
             computed(5000, [](const SigUInt& n) { return n.getHex().length(); })},
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
                 t.attempt([&] { shape.setCircle(); });
                 t.expect(shape.isCircle() && shape.getString().length() == 36);
             }},
            {"ZarnexException, copied and assigned", throwsBad,
             [](Trial& t) {
                 const char* const message = "a message that is too long for a short one";
                 ZarnexException other;
                 t.attempt([&] {
                     const ZarnexException error(message, 12, nullptr);
                     const ZarnexException copy(error);
                     other = copy;
                 });
                 t.expectDone(std::strcmp(other.what(), message) == 0 && other.errCode() == 12);
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
