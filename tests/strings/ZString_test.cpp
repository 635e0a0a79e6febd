#include "tests/support.h"

#include <zarnex/strings/ZString.h>

#include <cctype>
#include <climits>
#include <cstring>
#include <sstream>
#include <utility>

namespace {

TEST(ZString, ConstructorsFixTextAndSlotsInUse) {
    const char* const none = nullptr;
    const wchar_t* const wideNone = nullptr;
    const struct {
        const char* what;
        ZString string;
        const wchar_t* text;
        int slots;
    } rows[] = {
        {"default", ZString(), L"", 1},
        {"sized", ZString(5, 0), L"", 6},
        {"negative size", ZString(-5, 0), L"", 1},
        {"wide", ZString(L"abc"), L"abc", 4},
        {"wide, cut", ZString(L"abc", 2), L"ab", 3},
        {"wide, shorter than said", ZString(L"abc", 5), L"abc", 6},
        {"wide, negative count", ZString(L"abc", -1), L"", 1},
        {"narrow", ZString("abc"), L"abc", 4},
        {"narrow, cut", ZString("abc", 2), L"ab", 3},
        {"narrow, shorter than said", ZString("abc", 5), L"abc", 6},
        {"null", ZString(none), L"", 1},
        {"wide null", ZString(wideNone), L"", 1},
        {"wide null with a count", ZString(wideNone, 3), L"", 4},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(wide(row.string), row.text);
        EXPECT_EQ(row.string.allocLength(), row.slots);
        EXPECT_EQ(row.string.length(), static_cast<int>(std::wcslen(row.text)));
        EXPECT_EQ(row.string.bufferSize(), row.string.length() + 1);
        EXPECT_EQ(row.string.unicodeSize(), row.string.length() + 1);
        EXPECT_EQ(row.string.multiByteSize(), row.string.length() + 1);
        EXPECT_EQ(row.string.isEmpty(), *row.text == L'\0');
    }
}

TEST(ZString, CopyingTakesTheArrayAssigningTheTextAndTheSlots) {
    ZString source(L"abc");
    source.resize(50);
    const ZString copy(source);
    EXPECT_EQ(copy.allocLength(), 51);
    EXPECT_EQ(wide(copy), L"abc");
    ZString assigned(L"something else");
    assigned = source;
    EXPECT_EQ(assigned.allocLength(), 51);
    EXPECT_EQ(wide(assigned), L"abc");
    source = L"de";
    EXPECT_EQ(source.allocLength(), 3);
    EXPECT_EQ(wide(source), L"de");
    source = "narrow";
    EXPECT_EQ(wide(source), L"narrow");
    const ZString& same = source;
    source = same;
    EXPECT_EQ(wide(source), L"narrow");
}

TEST(ZString, AssignmentIsCutAtTheSlotsOfARawlyWrittenSource) {
    ZString source(L"ab");
    std::wcscpy(source, L"longer than before"); // no resize(): three slots in use
    ZString target;
    target = source;
    EXPECT_EQ(wide(target), L"lo");
}

TEST(ZString, WhatWasMovedFromStaysUsable) {
    ZString first(L"abc");
    ZString second(std::move(first));
    EXPECT_EQ(wide(second), L"abc");
    EXPECT_EQ(wide(first), L"");
    EXPECT_EQ(first.length(), 0);
    ZString use[5];
    for (ZString& target : use)
        const ZString emptied(std::move(target));
    use[0] += L"x";
    use[1] += L'x';
    use[2].resize();
    use[3][0] = L'x';
    std::wcscpy(use[4], L"x");
    EXPECT_EQ(wide(use[0]), L"x");
    EXPECT_EQ(wide(use[1]), L"x");
    EXPECT_EQ(wide(use[2]), L"");
    EXPECT_EQ(use[3][0], L'x');
    EXPECT_EQ(wide(use[4]), L"x");
}

TEST(ZString, ATemporaryIsAssignedAsAVariableIs) {
    ZString sources[] = {ZString(), ZString(L"abc"), ZString(std::wstring(600, L'w').c_str()),
                         ZString(L"ab"), ZString(300, 512)};
    std::wcscpy(sources[3], L"longer than before"); // cut at three slots
    for (const int room : {0, 10, 2000}) {
        for (const ZString& source : sources) {
            ZString byVariable;
            byVariable.resize(room);
            ZString byTemporary(byVariable);
            const wchar_t* const before = byTemporary;
            byVariable = source;
            byTemporary = ZString(source);
            EXPECT_EQ(wide(byTemporary), wide(byVariable));
            EXPECT_EQ(byTemporary.allocLength(), byVariable.allocLength());
            EXPECT_TRUE(source.allocLength() > room ||
                        static_cast<const wchar_t*>(byTemporary) == before);
        }
    }
}

TEST(ZString, ReplacingKeepsStorageThatHasRoom) {
    ZString text(L"a-b-c");
    const wchar_t* const before = text;
    text.findAndReplace(L"-", L", ");
    EXPECT_EQ(wide(text), L"a, b, c");
    EXPECT_EQ(static_cast<const wchar_t*>(text), before);
}

TEST(ZString, RawWritesCountAtOnceAndResizeSynchronises) {
    ZString string;
    wchar_t* buffer = string;
    std::wmemset(buffer, L'x', 511);
    buffer[511] = L'\0';
    EXPECT_EQ(string.length(), 511);
    std::wcscpy(buffer, L"xyz");
    EXPECT_EQ(string.length(), 3);
    EXPECT_EQ(string.allocLength(), 1);
    string.resize();
    EXPECT_EQ(string.allocLength(), 4);
    EXPECT_EQ(wide(string), L"xyz");
    const ZString& reader = string;
    EXPECT_EQ(reader[40], L'\0') << "the allocation shrank to 32";
}

TEST(ZString, IndicesWrapFromTheEndAndWritingGrows) {
    ZString string(L"abc");
    const ZString& reader = string;
    EXPECT_EQ(reader[-1], L'c');
    EXPECT_EQ(reader[-4], L'c');
    EXPECT_EQ(reader[3L], L'\0');
    EXPECT_EQ(reader[1000u], L'\0');
    EXPECT_EQ(reader[std::size_t{1}], L'b');
    const unsigned none = 0;
    EXPECT_EQ(reader[none - 1], L'c') << "-1 as an int";
    EXPECT_EQ(ZString()[-7], L'\0');
    string[-3] = L'A';
    EXPECT_EQ(wide(string), L"Abc");
    EXPECT_EQ(string.allocLength(), 4);
    string[9] = L'x';
    EXPECT_EQ(string.allocLength(), 10);
    EXPECT_EQ(wide(string), L"Abc") << "the terminator still stands";
}

TEST(ZString, AppendsTextCharactersAndNumbers) {
    ZString string(L"x");
    string += 7;
    string += wchar_t{65};
    string += L"bc";
    string += ZString(L"d");
    string += static_cast<const wchar_t*>(nullptr);
    EXPECT_EQ(wide(string), L"x7Abcd");
    EXPECT_EQ(string.allocLength(), 7);
    string = L"";
    string += INT_MIN;
    string += 5L;
    string += 6u;
    string += ULLONG_MAX;
    string += std::size_t{0};
    EXPECT_EQ(wide(string), L"-21474836485618446744073709551615"
                            L"0");
}

TEST(ZString, PlusLeavesTheOperandsAndCountsCharactersAsNumbers) {
    const ZString string(L"x");
    EXPECT_EQ(wide(string + L"y" + string + 42 + 7L), L"xyx427");
    EXPECT_EQ(wide(string + L'A'), L"x65");
    EXPECT_EQ(wide(L"label " + string), L"label x");
    EXPECT_EQ(wide(string), L"x");
}

// Calls that would compile and mean an address or half a number are refused.
template <class Text>
constexpr bool isRefused = !requires(Text text) {
    5 + text;
}
&&!requires(Text text) {
    text + 2.5;
}
&&!requires(Text text) {
    text += 2.5;
}
&&!requires(Text text) {
    text.set(L"%s", text);
};
static_assert(isRefused<ZString>);

TEST(ZString, TextInsideTheStringItselfWorksAsSource) {
    ZString string(L"abcdefghijklmnopqrstuvwxyz012345"); // fills its allocation but the terminator
    string += string;
    EXPECT_EQ(string.length(), 64);
    const ZString& reader = string;
    string += static_cast<const wchar_t*>(reader) + 60;
    EXPECT_EQ(wide(string).substr(60), L"23452345");
    string = static_cast<const wchar_t*>(reader) + 62;
    EXPECT_EQ(wide(string), L"452345");
    string.findAndReplace(static_cast<const wchar_t*>(reader) + 4,
                          static_cast<const wchar_t*>(reader));
    EXPECT_EQ(wide(string), L"45234523452345");
    string.set(L"<%ls>", static_cast<const wchar_t*>(reader));
    EXPECT_EQ(wide(string), L"<45234523452345>");
}

TEST(ZString, OperatorsIgnoreCaseAndIsEqualDoesNot) {
    const ZString mixed(L"Abc");
    EXPECT_TRUE(mixed == ZString(L"aBC"));
    EXPECT_TRUE(mixed == L"ABC");
    EXPECT_TRUE(L"ABC" == mixed);
    EXPECT_FALSE(mixed != L"ABC");
    EXPECT_TRUE(L"abcd" != mixed);
    EXPECT_FALSE(mixed.isEqual(L"aBC"));
    EXPECT_TRUE(mixed.isEqual(ZString("Abc")));
    EXPECT_FALSE(mixed.isEqual(static_cast<const wchar_t*>(nullptr)));
    EXPECT_TRUE(ZString(L"a") < ZString(L"B"));
    EXPECT_TRUE(ZString(L"B") > ZString(L"a"));
    EXPECT_TRUE(ZString(L"ab") < ZString(L"ABC"));
    EXPECT_EQ(ZString(L"\u00C9") != L"\u00E9", isDefaultLocale());
    EXPECT_TRUE(ZString(L"[") < ZString(L"A")) << "compared as the lower case 'a'";

    ZString string(L"b"); // not const: it converts to a pointer, which must not be compared
    wchar_t buffer[8] = L"B";
    wchar_t* const pointer = buffer;
    EXPECT_TRUE(string == buffer && buffer == string && string == pointer && pointer == string);
    EXPECT_TRUE(string == "B" && "B" == string && !(string != "B") && !("B" != string));
    EXPECT_TRUE(string > L"A" && L"A" < string && "A" < string && string > "A");
    EXPECT_TRUE(string < L"C" && L"C" > string && string <= pointer && pointer >= string);
    EXPECT_TRUE(string <= ZString(L"B") && string >= ZString(L"B") && L"A" <= string);
    EXPECT_FALSE(string < ZString(L"B") || string > ZString(L"B") || string != ZString(L"B"));
    EXPECT_EQ(string.allocLength(), 2);
}

TEST(ZString, HashesTheLowerCasedText) {
    EXPECT_EQ(ZString().hash(), 0);
    EXPECT_EQ(ZString(L"a").hash(), 'a');
    EXPECT_EQ(ZString(L"Abc").hash(), ZString(L"aBC").hash());
    // By hand: seven letters overflow 28 bits once.
    ZString lower(L"STITCHES");
    lower.toLower(); // a Turkish i has no dot
    unsigned hash = 0;
    for (const wchar_t c : wide(lower)) {
        hash = hash * 16 + static_cast<unsigned>(c);
        hash = (hash ^ (hash >> 28 << 4)) % (1u << 28);
    }
    EXPECT_EQ(ZString(L"STITCHES").hash(), static_cast<int>(hash));
}

TEST(ZString, ExportsToPlainBuffers) {
    const ZString string(L"abc");
    char* const ascii = string.getAscii();
    char* const ansi = string.getAnsi();
    wchar_t* const units = string.getWide();
    EXPECT_STREQ(ascii, "abc");
    EXPECT_STREQ(ansi, "abc");
    EXPECT_EQ(std::wstring(units), L"abc");
    delete[] ascii;
    delete[] ansi;
    delete[] units;
    char bytes[8];
    EXPECT_EQ(string.copyString(bytes, 8), 4);
    EXPECT_EQ(string.copyString(bytes, 3), -1);
    EXPECT_STREQ(bytes, "ab");
    EXPECT_EQ(string.copyString(bytes, 0), 4);
    EXPECT_EQ(string.copyString(static_cast<char*>(nullptr), 8), 4);
    wchar_t wides[8];
    EXPECT_EQ(string.copyString(wides, 3), 4);
    EXPECT_EQ(std::wstring(wides), L"ab");
    EXPECT_EQ(string.copyString(static_cast<wchar_t*>(nullptr), 3), 4);
}

TEST(ZString, StreamsAsDecimalNumbers) {
    std::ostringstream out;
    out << std::hex << ZString(L"AB") << ZString();
    EXPECT_EQ(out.str(), "6566");
    std::wostringstream wideOut;
    ZString text(L"AB");
    wideOut << text << std::hex << 10;
    EXPECT_EQ(wideOut.str(), L"ABa") << "wide streams get the text";
}

TEST(ZString, HoldsNothingButItsArray) {
    EXPECT_EQ(sizeof(ZString), sizeof(ZXArray<wchar_t>));
    ZXArray<ZString> strings;
    strings[2] = L"c";
    EXPECT_EQ(strings.length(), 3);
    EXPECT_EQ(strings.find(ZString(L"C"), 0), 2);
    EXPECT_EQ(wide(strings[0]), L"");
}

} // namespace
