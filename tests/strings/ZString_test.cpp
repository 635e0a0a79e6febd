#include "tests/support.h"

#include <zarnex/strings/ZString.h>

#include <climits>
#include <cstring>
#include <memory>
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

TEST(ZString, CopyingTakesTheArrayAssigningTheTextWithinTheSlots) {
    ZString source(L"abc");
    source.resize(50);
    ZString copy(source), assigned(L"something else");
    assigned = source;
    for (const ZString* const string : {&copy, &assigned}) {
        EXPECT_EQ(string->allocLength(), 51);
        EXPECT_EQ(wide(*string), L"abc");
    }
    source = L"de";
    EXPECT_EQ(source.allocLength(), 3);
    EXPECT_EQ(wide(source), L"de");
    source = "narrow";
    source = static_cast<const ZString&>(source);
    EXPECT_EQ(wide(source), L"narrow");
    std::wcscpy(source, L"longer than before"); // no resize(): seven slots in use
    assigned = source;
    EXPECT_EQ(wide(assigned), L"longer");
}

TEST(ZString, WhatWasMovedFromStaysUsable) {
    ZString use[8];
    use[0] = L"abc";
    EXPECT_EQ(wide(ZString(std::move(use[0]))), L"abc");
    for (ZString& target : use) {
        target = L"what new storage may find in its place";
        const ZString emptied(std::move(target));
    }
    EXPECT_EQ(use[0].length(), 0);
    use[1] += L"x";
    use[2] += L'x';
    use[3].resize();
    use[4][0] = L'x';
    std::wcscpy(use[5], L"x");
    use[6].truncate(40);
    use[7].resize(40);
    EXPECT_TRUE(use[6].isEmpty() && use[7].isEmpty());
    EXPECT_EQ(wide(use[1]), L"x");
    EXPECT_EQ(wide(use[2]), L"x");
    EXPECT_EQ(wide(use[3]), L"");
    EXPECT_EQ(use[4][0], L'x');
    EXPECT_EQ(wide(use[5]), L"x");
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
    EXPECT_EQ(reader[UINT_MAX], L'c') << "-1 as an int";
    EXPECT_EQ(ZString()[-7], L'\0');
    string[-3] = L'A';
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
    EXPECT_EQ(wide(L"label " + string + L"y" + string + 42 + 7L + L'A'), L"label xyx42765");
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
    ZString string(L"452345");
    const ZString& reader = string;
    string.findAndReplace(static_cast<const wchar_t*>(reader) + 4,
                          static_cast<const wchar_t*>(reader));
    EXPECT_EQ(wide(string), L"45234523452345");
    string.set(L"<%ls>", static_cast<const wchar_t*>(reader));
    EXPECT_EQ(wide(string), L"<45234523452345>");
}

TEST(ZString, OperatorsIgnoreCaseAndIsEqualDoesNot) {
    const ZString mixed(L"Abc");
    EXPECT_TRUE(mixed == L"aBC" && !(mixed != L"aBC") && L"abcd" != mixed);
    EXPECT_FALSE(mixed.isEqual(L"aBC"));
    EXPECT_TRUE(mixed.isEqual(ZString("Abc")));
    EXPECT_FALSE(mixed.isEqual(static_cast<const wchar_t*>(nullptr)));
    EXPECT_TRUE(ZString(L"ab") < ZString(L"ABC"));
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
    const auto byHand = [](const wchar_t* text) { // seven letters overflow 28 bits once
        ZString lower(text);
        lower.toLower(); // a Turkish i has no dot
        unsigned hash = 0;
        for (const wchar_t c : wide(lower)) {
            hash = hash * 16 + static_cast<unsigned>(c);
            hash = (hash ^ (hash >> 28 << 4)) % (1u << 28);
        }
        return static_cast<int>(hash);
    };
    for (const wchar_t* const text : {L"", L"a", L"aBC", L"STITCHES"})
        EXPECT_EQ(ZString(text).hash(), byHand(text)) << shown(text);
}

TEST(ZString, ExportsToPlainBuffers) {
    const ZString string(L"abc");
    const std::unique_ptr<char[]> ascii(string.getAscii()), ansi(string.getAnsi());
    const std::unique_ptr<wchar_t[]> units(string.getWide());
    EXPECT_STREQ(ascii.get(), "abc");
    EXPECT_STREQ(ansi.get(), "abc");
    EXPECT_STREQ(units.get(), L"abc");
    char bytes[8];
    EXPECT_EQ(string.copyString(bytes, 8), 4);
    EXPECT_EQ(string.copyString(bytes, 3), -1);
    EXPECT_STREQ(bytes, "ab");
    EXPECT_EQ(string.copyString(bytes, 1), -1);
    EXPECT_EQ(string.copyString(bytes, 0), 4);
    EXPECT_EQ(string.copyString(static_cast<char*>(nullptr), 8), 4);
    wchar_t wides[8];
    EXPECT_EQ(string.copyString(wides, 3), 4);
    EXPECT_STREQ(wides, L"ab");
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

} // namespace
