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

const SigUInt large = ones(20000); // made before the heap fails

} // namespace

Group numberOperations() {
    using N = SigUInt;
    return {
        "`SigUInt`, `a_exp_b_mod_c`",
        {
            {"SigUInt of bytes", endsAlloc,
             edited(large, [bytes = std::vector<unsigned char>(2500, 0xFE)](
                               N& n) { n = N(bytes.data(), 2500); })},
            {"SigUInt of words", endsAlloc,
             edited(large, [words = std::vector<unsigned short>(1250, 0xFFFE)](
                               N& n) { n = N(words.data(), 1250); })},
            {"SigUInt copied", endsAlloc, edited(N(1), [](N& n) { n = N(large); })},
            {"SigUInt + and ++", endsAlloc, edited(large, [](N& n) { n = n++ + N(1); })},
            {"SigUInt -", endsAlloc, edited(large, [](N& n) { n = n - (n >> 1); })},
            {"SigUInt *", endsAlloc, edited(large, [](N& n) { n = n * large; })},
            {"SigUInt *= itself", endsAlloc, edited(large, [](N& n) { n *= n; })},
            {"SigUInt %", endsAlloc,
             edited(large, [divisor = ones(9000)](N& n) { n = n % divisor; })},
            {"SigUInt << and >>", endsAlloc, edited(large, [](N& n) { n = (n << 5000) >> 4999; })},
            {"SigUInt getHex", endsAlloc,
             edited(ZString(), [](ZString& s) { s = large.getHex(); })},
            {"SigUInt of 256 bits", asksNothing,
             edited(ones(255), [](N& n) { n = n - N(2) + N(1); })},
            {"a_exp_b_mod_c, odd", endsAlloc,
             edited(ones(13000),
                    [modulus = ones(14000)](N& n) { n = a_exp_b_mod_c(n, 1000003, modulus); })},
            {"a_exp_b_mod_c, even", endsAlloc,
             edited(ones(13000), [modulus = ones(14000) << 500](
                                     N& n) { n = a_exp_b_mod_c(n, 1000003, modulus); })},
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
