/// Counts what common operations ask of the heap: a Markdown table on standard output.

#include <zarnex/foundation.h>

#include <cstddef>
#include <cstdio>
#include <utility>

namespace {

long calls = 0;
long bytes = 0;

volatile double used = 0.0; ///< takes results, so that no work is left out

} // namespace

// The C library's own functions, behind ours, which take their place in the whole process.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);

void* malloc(std::size_t size) {
    ++calls;
    bytes += static_cast<long>(size);
    return __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size) {
    ++calls;
    bytes += static_cast<long>(count * size);
    return __libc_calloc(count, size);
}

void* realloc(void* block, std::size_t size) {
    ++calls;
    bytes += static_cast<long>(size);
    return __libc_realloc(block, size);
}
}

namespace {

/// The second run counts: what is made once in a process is there by then.
template <class Work>
void row(const char* name, Work work) {
    long callsUsed = 0, bytesUsed = 0;
    for (int run = 0; run < 2; ++run) {
        const long callsBefore = calls, bytesBefore = bytes;
        work();
        callsUsed = calls - callsBefore;
        bytesUsed = bytes - bytesBefore;
    }
    std::printf("| %s | %ld | %ld |\n", name, callsUsed, bytesUsed);
}

void stringRows() {
    const ZString eight(L"12345678");
    const ZString words(L"one two three four five six seven eight nine ten");
    row("`ZString` of 8 characters", [] { const ZString text(L"12345678"); });
    row("`ZString` of 40 characters",
        [] { const ZString text(L"1234567890123456789012345678901234567890"); });
    row("`ZString` of 40 bytes in UTF-8",
        [] { const ZString text("1234567890123456789012345678901234567890"); });
    row("copying a `ZString`", [&] { const ZString copy(eight); });
    row("moving a `ZString`", [] {
        ZString text(L"12345678");
        const ZString moved(std::move(text));
    });
    row("a + b + c", [&] { const ZString sum = eight + eight + eight; });
    row("16 times += 8 characters", [&] {
        ZString text;
        for (int i = 0; i < 16; ++i)
            text += eight;
    });
    row("a == b, a < b, find, hash", [&] {
        used = (eight == words) + (eight < words) + words.findString(L"seven") + eight.hash();
    });
    row("set(\"%4.2lf mm\", x)", [] {
        ZString text;
        text.set(L"%4.2lf mm", 2.5);
    });
    row("subString", [&] { const ZString part = words.subString(4, 9); });
    row("findAndReplace of 9 blanks", [&] {
        ZString text(words);
        text.findAndReplace(L" ", L", ");
    });
    row("getAscii()", [&] { delete[] eight.getAscii(); });
}

void containerRows() {
    row("`ZList<int>`: 100 elements", [] {
        ZList<int> list;
        for (int i = 0; i < 100; ++i)
            list.add(i);
    });
    row("`ZList<int>`: join of two lists of one", [] {
        ZList<int> a{1}, b{2};
        a.join(b);
    });
    row("`ZXArray<double>`: 1000 elements", [] {
        ZXArray<double> array;
        for (int i = 0; i < 1000; ++i)
            array.add(i);
    });
    row("`ZXArray<double>`: 1000 elements, reserved", [] {
        ZXArray<double> array;
        array.reserve(1000);
        for (int i = 0; i < 1000; ++i)
            array.add(i);
    });
}

void quantityRows() {
    const ZString typed(L"2.5 mm");
    row("`ZMillimeter` of \"2.5 mm\"", [&] { used = double(ZMillimeter(typed)); });
    row("`ZMillimeter` to text", [] { const ZString text = ZMillimeter(2.5).getString(); });
    row("`ZMillimeter` to inches", [] { used = double(ZInch(ZMillimeter(2.5))); });
    row("`convertZUnits`",
        [] { used = convertZUnits(zarnex::unitMillimeter, 2.5, zarnex::unitInch, 0); });
}

void otherRows() {
    row("`ZGUIDWrapper` new and to text", [] {
        const ZGUIDWrapper identifier(1);
        const ZString text = identifier.getString();
    });
    row("`Z2DTrans`: rotate, scale, map a point", [] {
        Z2DTrans transform;
        transform.rotate(0.5);
        used = (transform * DPoint(1.0, 2.0)).x;
    });
    const SigUInt modulus = (SigUInt(1) << 2048) - SigUInt(1);
    const SigUInt base = modulus >> 3;
    row("`SigUInt` of 2048 bits: a sum", [&] { const SigUInt sum = base + base; });
    row("`SigUInt` of 2048 bits: a product", [&] { const SigUInt product = base * base; });
    row("`SigUInt` of 2048 bits: a remainder", [&] { const SigUInt remainder = modulus % base; });
    row("`SigUInt` of 2048 bits: a power modulo",
        [&] { const SigUInt power = a_exp_b_mod_c(base, base, modulus); });
}

} // namespace

int main() {
    std::printf("| operation | allocations | bytes asked for |\n|---|---|---|\n");
    stringRows();
    containerRows();
    quantityRows();
    otherRows();
}
