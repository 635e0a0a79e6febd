// A host's everyday expressions, with every convenience of the library in sight: none has become
// ambiguous or has another outcome. Compiled as C++17 and as C++20.

#include <zarnex/foundation.h>

#include <cstdio>
#include <ostream>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>

namespace {

int faults = 0;

#define EXPECT(claim) (static_cast<bool>(claim) ? void() : fail(#claim, __LINE__))

void fail(const char* claim, int line) {
    std::printf("line %d: %s\n", line, claim);
    ++faults;
}

template <class Stream, class Value, class = void>
inline constexpr bool prints = false;
template <class Stream, class Value>
inline constexpr bool prints<
    Stream, Value, std::void_t<decltype(std::declval<Stream&>() << std::declval<const Value&>())>> =
    true;

// What would print something else than meant does not compile.
static_assert(!prints<std::ostream, ZMillimeter> && !prints<std::ostream, ZDegree>);
static_assert(!prints<std::ostream, ZWideString> && !prints<std::ostream, ZGUIDWrapper>);
static_assert(std::is_same_v<decltype(ZString() == ZString()), int>);

template <class Char, class Value>
std::basic_string<Char> written(Value&& value) {
    std::basic_ostringstream<Char> out;
    out << value;
    return out.str();
}

void compareStrings() {
    ZString text(L"Hoop");
    const ZString same(L"hOOP");
    const ZString other(L"needle");
    const wchar_t* const plain = L"HOOP";
    const char* const bytes = "hoop";
    EXPECT(text == same && same == text && text == L"hoop" && L"hoop" == text);
    EXPECT(text == plain && plain == text && text == bytes && "HOOP" == same);
    EXPECT(text != other && text != L"needle" && L"needle" != text && !(text != same));
    EXPECT(text < other && text < L"needle" && L"a" < text && !(text < same));
    EXPECT(text <= same && text >= L"hoop" && other > text && L"needle" > text);
    EXPECT(ZString(ZMillimeter(2.5)) == L" 2.5 mm");
    EXPECT(ZWideString(text) == L"Hoop" && L"hoop" != ZWideString(text));
    EXPECT(ZMultiByteString("a") == "a" && "b" > ZMultiByteString("a"));
}

void buildStrings() {
    const ZString name(L"hoop");
    ZString text = name + L" " + 42 + L"/" + name;
    EXPECT(text.isEqual(L"hoop 42/hoop"));
    EXPECT((L"a " + name).isEqual(L"a hoop"));
    text = L"wide";
    text = "narrow";
    text = name;
    text = ZMillimeter(25.0);
    text += L' ';
    text += name;
    text += 7;
    text += ZInch(1.0);
    EXPECT(text.isEqual(L"25.0 mm hoop71.00 in"));
    std::wstring standard = static_cast<const wchar_t*>(name);
    standard += name;
    EXPECT(standard == L"hoophoop");
    EXPECT(std::wstring(static_cast<const wchar_t*>(name)).size() == 4);
}

void print() {
    const ZString text(L"AB");
    ZString writable(L"AB");
    EXPECT(written<char>(text) == "6566"); // numbers, as by dump()
    EXPECT(written<char>(writable) == "6566");
    EXPECT(written<wchar_t>(text) == L"AB");
    EXPECT(written<wchar_t>(writable) == L"AB");
    EXPECT(written<wchar_t>(ZMillimeter(2.5)) == L"2.5"); // the bare number
    EXPECT(written<wchar_t>(double(ZInch(0.25))) == L"0.25");
    EXPECT(written<char>(ZMultiByteString("ab")) == "ab");
    EXPECT(written<wchar_t>(ZMultiByteString("ab")) == L"ab");
    EXPECT(written<char>(ZHashInt(7)) == "7");
}

void reach() {
    ZXArray<int> array;
    array.add(3);
    array[1] = 4;
    const ZXArray<int>& reading = array;
    const int* const first = reading;
    int* const writable = array;
    EXPECT(first == writable && first[1] == 4 && reading[1u] == 4 && *array == 3);
    EXPECT(array == reading && !(array != reading) && *(array + 1) == 4);
    ZXArray<int> other;
    std::swap(array, other);
    array.swap(other);
    EXPECT(array.length() == 2 && other.length() == 0);

    ZList<int> list{1, 2};
    ZList<int>::const_iterator reader = list.begin();
    EXPECT(reader == list.begin() && list.begin() == reader && reader != list.end());
    EXPECT(list == ZList<int>({1, 2}) && list[-1] != 9);
    list.empty(); // removes
    EXPECT(list.length() == 0);
}

} // namespace

int main() {
    compareStrings();
    buildStrings();
    print();
    reach();
    return faults != 0;
}
