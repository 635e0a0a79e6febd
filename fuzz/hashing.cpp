/// The hashing policies of texts and integers, as their header states them, in 64 bits.

#include "fuzz/fuzz.h"

#include <zarnex/strings/ZString.h>
#include <zarnex/strings/hashFunctions.h>

#include <string>
#include <utility>

namespace {

using Wide = std::int64_t;

/// To a signed integer of 32 bits.
Wide wrapped(Wide value) {
    constexpr Wide range = Wide{1} << 32;
    value = (value % range + range) % range;
    return value < range / 2 ? value : value - range;
}

/// |hash|, for which there is no room in the case of -2^31.
Wide magnitude(Wide hash) {
    return wrapped(hash < 0 ? -hash : hash);
}

Wide reduced(Wide hash, long size) {
    const Wide divisor = wrapped(size);
    return divisor == 0 ? 0 : magnitude(hash) % divisor;
}

Wide codeUnit(wchar_t character) {
    return static_cast<Wide>(character) & 0xFFFF;
}

Wide shiftedAndAdded(const std::wstring& text) {
    Wide hash = 0;
    for (const wchar_t character : text)
        hash = wrapped(4 * hash + codeUnit(character));
    return hash;
}

Wide multipliedAndAdded(const std::wstring& text) {
    Wide hash = static_cast<Wide>(text.size());
    for (const wchar_t character : text)
        hash = wrapped(613 * hash + codeUnit(character));
    return hash;
}

Wide shiftedAndXored(const std::wstring& text) {
    Wide hash = static_cast<Wide>(text.size());
    for (std::size_t i = 0; i < text.size(); ++i)
        hash = wrapped(hash ^ codeUnit(text[i]) << (i + 8) % 32);
    return hash;
}

/// Any characters, those among them whose code unit is 0. A byte is a character, or tells that
/// one of more bytes follows.
std::wstring textFrom(fuzz::Input& input) {
    constexpr auto empty = static_cast<wchar_t>(sizeof(wchar_t) == 4 ? 0x10000 : 1);
    std::wstring text;
    for (int left = input.between(0, 80); left > 0; --left) {
        const int kind = input.byte();
        wchar_t character = static_cast<wchar_t>(kind);
        if (kind >= 0xC0)
            character = input.integer<wchar_t>();
        else if (kind >= 0x80)
            character = static_cast<wchar_t>(input.between(0, 0xFFFE));
        text += character == 0 ? empty : character;
    }
    return text;
}

void tryTexts(fuzz::Input& input) {
    const std::wstring text = textFrom(input);
    const ZString string(text.c_str());
    const long size = input.integer<long>();
    FUZZ_REQUIRE(HashFunction1(size)(string) == reduced(shiftedAndAdded(text), size));
    FUZZ_REQUIRE(HashFunction2(size)(string) == reduced(multipliedAndAdded(text), size));
    constexpr long standard = 1073741827;
    FUZZ_REQUIRE(HashFunction1()(string) == reduced(shiftedAndAdded(text), standard));
    FUZZ_REQUIRE(HashFunction2()(string) == reduced(multipliedAndAdded(text), standard));
    const float scaled = static_cast<float>(magnitude(shiftedAndXored(text))) * 0.61254233f;
    FUZZ_REQUIRE(HashFunction3(size)(string) == static_cast<Wide>(scaled));
    FUZZ_REQUIRE(HashFunction3()(string) == static_cast<Wide>(scaled));
}

template <class Integer>
void compare(const ZHashInt& key, int value, Integer other) {
    const bool isEqual = std::cmp_equal(value, other);
    FUZZ_REQUIRE((key == other) == int(isEqual) && (other == key) == int(isEqual));
    FUZZ_REQUIRE((key != other) == int(!isEqual) && (other != key) == int(!isEqual));
}

void tryIntegers(fuzz::Input& input) {
    const int value = input.integer<int>();
    const int other = input.integer<int>();
    const ZHashInt key(value);
    FUZZ_REQUIRE(key.getInt() == value && int(key) == value);
    FUZZ_REQUIRE(key.hash() == wrapped(Wide{1741} * value));
    FUZZ_REQUIRE(IntHashFunction()(key) == key.hash());
    ZHashInt assigned(other);
    FUZZ_REQUIRE((key == assigned) == int(value == other));
    FUZZ_REQUIRE((key != assigned) == int(value != other));
    assigned = key;
    FUZZ_REQUIRE(assigned == key && ZHashInt(key) == value);
    compare(key, value, other);
    compare(key, value, input.integer<short>());
    compare(key, value, input.integer<unsigned>());
    compare(key, value, input.integer<long long>());
    compare(key, value, input.integer<unsigned long long>());
    compare(key, value, static_cast<unsigned>(value));
    compare(key, value, static_cast<unsigned long long>(value));
    compare(key, value, (1LL << 32) + value);
}

} // namespace

void tryInput(fuzz::Input input) {
    if (input.choice(4) == 0)
        tryIntegers(input);
    else
        tryTexts(input);
}
