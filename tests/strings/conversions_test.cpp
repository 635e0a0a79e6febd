#include "tests/strings/systemCodePage.h"
#include "tests/support.h"

#include <zarnex/strings/StringUtils.h>
#include <zarnex/strings/conversions.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

constexpr unsigned utf8 = 65001;

std::string bytesOf(const ZMultiByteString& text) {
    return std::string(static_cast<const char*>(text));
}

std::wstring unitsOf(const ZWideString& text) {
    return std::wstring(static_cast<const wchar_t*>(text));
}

TEST(Utf8, IllFormedSequencesGiveAReplacementForEachMaximalSubpart) {
    const struct {
        const char* bytes;
        std::wstring text;
    } rows[] = {
        {"a\xFFz", L"a\uFFFDz"},                           // no lead byte
        {"\xC0\xAF", L"\uFFFD\uFFFD"},                     // overlong in two bytes
        {"\xE0\x80\x80", L"\uFFFD\uFFFD\uFFFD"},           // in three
        {"\xE2\x82z", L"\uFFFDz"},                         // cut short: one for the part
        {"\xED\xA0\x80", L"\uFFFD\uFFFD\uFFFD"},           // a surrogate
        {"\xED\x9F\xBF\xEE\x80\x80", L"\uD7FF\uE000"},     // the characters around them
        {"\xF4\x90\x80\x80", L"\uFFFD\uFFFD\uFFFD\uFFFD"}, // beyond it
        {"\xE2\x82", L"\uFFFD"},                           // cut short by the terminator
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(shown(row.text.c_str()));
        EXPECT_EQ(unitsOf(utf8ToWide(row.bytes)), row.text);
        // Behind blocks of ASCII, across the end of one.
        for (std::size_t before = 12; before < 34; ++before) {
            const std::string padded = std::string(before, 'x') + row.bytes;
            std::wstring expected(before, L'x');
            expected += row.text;
            EXPECT_EQ(wide(utf8ToStr(padded.c_str())), expected);
        }
    }
}

TEST(Utf8, SurrogatesAloneAndWhatIsNoCharacterAreReplaced) {
    const struct {
        std::vector<std::uint32_t> units;
        const char* bytes;
    } rows[] = {
        {{'a', 0xD800, 'b'},
         "a\xEF\xBF\xBD"
         "b"},
        {{0xDC00, 0xD800}, "\xEF\xBF\xBD\xEF\xBF\xBD"},
        {{0xDFFF}, "\xEF\xBF\xBD"},
#if defined(_WIN32)
        {{0xD800, 0xD83D, 0xDE00}, "\xEF\xBF\xBD\xF0\x9F\x98\x80"}, // a pair behind one alone
#else
        {{0xD83D, 0xDE00}, "\xEF\xBF\xBD\xEF\xBF\xBD"}, // no pairs in UTF-32
        {{0x110000, 0xFFFFFFFF}, "\xEF\xBF\xBD\xEF\xBF\xBD"},
#endif
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.bytes);
        std::wstring text(row.units.begin(), row.units.end());
        EXPECT_EQ(bytesOf(strToUtf8(text.c_str())), row.bytes);
        text.insert(0, 20, L'x');
        EXPECT_EQ(bytesOf(wideToUtf8(text.c_str())), std::string(20, 'x') + row.bytes);
    }
}

TEST(Utf8, EveryFunctionReadsOrWritesIt) {
    const std::string bytes = "a\xC3\xA9\xF0\x9F\x98\x80";
    const std::wstring units = L"a\u00E9\U0001F600";
    ZWideString wideOut;
    ZString stringOut;
    ZMultiByteString bytesOut;
    utf8ToWide(bytes.c_str(), wideOut);
    EXPECT_EQ(unitsOf(wideOut), units);
    utf8ToStr(bytes.c_str(), stringOut);
    EXPECT_EQ(wide(stringOut), units);
    wideToUtf8(wideOut, bytesOut);
    EXPECT_EQ(bytesOf(bytesOut), bytes);
    strToUtf8(L"\u00E9", bytesOut);
    EXPECT_EQ(bytesOf(bytesOut), "\xC3\xA9");
    EXPECT_EQ(bytesOf(ZMultiByteString(stringOut, utf8)), bytes);
}

TEST(CodePages, TheFunctionsTakeTheCodePageOrTheSystems) {
    const ZWideString broad(L"\u00E9");
    const ZMultiByteString narrow = wideToMbs(broad, 1252);
    EXPECT_EQ(bytesOf(narrow), "\xE9");
    EXPECT_EQ(unitsOf(mbsToWide(narrow, 1252)), L"\u00E9");
    EXPECT_EQ(wide(mbsToStr(narrow, 1252)), L"\u00E9");
    EXPECT_EQ(bytesOf(strToMbs(L"\u00E9", utf8)), "\xC3\xA9");
    ZMultiByteString bytesOut;
    strToMbs(L"\u00E9", bytesOut, 1252);
    EXPECT_EQ(bytesOf(bytesOut), "\xE9");
    ZString stringOut;
    mbsToStr(narrow, stringOut, 1252);
    EXPECT_EQ(wide(stringOut), L"\u00E9");

    const ZMultiByteString system(ZString(L"\u00E9"), 0);
    EXPECT_EQ(bytesOf(strToMbs(L"\u00E9")), bytesOf(system));
    EXPECT_EQ(bytesOf(wideToMbs(broad)), bytesOf(system));
    wideToMbs(broad, bytesOut);
    EXPECT_EQ(bytesOf(bytesOut), bytesOf(system));
    ZWideString wideOut;
    mbsToWide(system, wideOut);
    const std::wstring back = unitsOf(mbsToWide(system));
    EXPECT_EQ(unitsOf(wideOut), back);
    EXPECT_EQ(wide(mbsToStr(system)), back);
    EXPECT_EQ(unitsOf(ZWideString(static_cast<const char*>(system))), back);
    EXPECT_EQ(unitsOf(ZWideString(static_cast<const char*>(system), 0)), L"");
    EXPECT_EQ(ZWideString("abc", 2).allocLength(), 3);
    EXPECT_EQ(unitsOf(ZWideString("abc", 2)), L"ab");
}

TEST(CodePages, UnknownOnesAndNullGiveTheEmptyText) {
    ZMultiByteString bytesOut("before");
    ZWideString wideOut(L"before");
    for (unsigned codePage : {99999u, 1200u, 65002u, 0xFFFFFFFFu}) {
        SCOPED_TRACE(codePage);
        EXPECT_EQ(mbsToWide("abc", codePage).allocLength(), 1);
        EXPECT_EQ(bytesOf(strToMbs(L"abc", codePage)), "");
        mbsToWide("abc", wideOut, codePage);
        wideToMbs(L"abc", bytesOut, codePage);
        EXPECT_EQ(wideOut.length() + bytesOut.length(), 0);
    }
    EXPECT_EQ(ZMultiByteString(ZString(L"abc"), -1).allocLength(), 1);
    EXPECT_EQ(strToMbs(nullptr, 1252).length(), 0);
    EXPECT_EQ(strToWide(nullptr).length(), 0);
}

TEST(CodePages, CopiesBetweenTheWideClassesIgnoreTheCodePage) {
    for (unsigned codePage : {0u, 1252u, 99999u}) {
        ZWideString wideOut;
        ZString stringOut;
        strToWide(L"\u00E9\u30C6", wideOut, codePage);
        wideToStr(strToWide(wideToStr(wideOut, codePage), codePage), stringOut, codePage);
        EXPECT_EQ(wide(stringOut), L"\u00E9\u30C6");
    }
}

TEST(CodePages, All256BytesOf1252GoBothWays) {
    // What differs from Latin-1; five bytes are control characters.
    const std::wstring from80 =
        L"\u20AC\x81\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\x8D\u017D"
        L"\x8F"
        L"\x90\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\x9D\u017E"
        L"\u0178";
    ASSERT_EQ(from80.size(), 32u);
    std::string bytes;
    std::wstring units;
    for (unsigned i = 1; i < 256; ++i) {
        bytes += static_cast<char>(i);
        units += i >= 0x80 && i < 0xA0 ? from80[i - 0x80] : static_cast<wchar_t>(i);
    }
    for (int doubled = 0; doubled < 4; ++doubled) { // beyond the block in which sizes are counted
        EXPECT_EQ(unitsOf(mbsToWide(bytes.c_str(), 1252)), units);
        EXPECT_EQ(bytesOf(wideToMbs(units.c_str(), 1252)), bytes);
        bytes += bytes;
        units += units;
    }
    EXPECT_EQ(bytesOf(wideToMbs(L"a\u4E2D\u0082z", 1252)), "a??z") << "0x82 is U+201A";
}

TEST(CodePages, DoubleByteCharactersOf932GoBothWays) {
    const wchar_t text[] = L"a\u523A\u7E4D\u30C6\uFF83z";
    const char bytes[] = "a\x8E\x68\x8F\x4A\x83\x65\xC3z";
    EXPECT_EQ(bytesOf(strToMbs(text, 932)), bytes);
    EXPECT_EQ(unitsOf(mbsToWide(bytes, 932)), text);
#if defined(_WIN32)
    const wchar_t replacement = L'\u30FB'; // that of this code page
#else
    const wchar_t replacement = L'\uFFFD';
#endif
    const struct {
        const char* bytes;
        std::wstring text;
    } rows[] = {
        {"\x80z", L"\x80z"},                                // a control character
        {"\x83\x20z", std::wstring(1, replacement) + L"z"}, // takes the wrong byte with it
        {"z\x83", std::wstring(L"z") + replacement},        // but no terminator
        {"\xFC\xFCz", std::wstring(1, replacement) + L"z"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(shown(row.text.c_str()));
        EXPECT_EQ(unitsOf(mbsToWide(row.bytes, 932)), row.text);
    }
}

// Run by a test of its own under a Japanese locale.
TEST(CodePages, TheSystems932CountsDoubleByteCharacters) {
    if (!isSystemCodePage(932))
        GTEST_SKIP() << "the system code page is not 932";
    const char bytes[] = "a\x83\x65\xC3z";
    EXPECT_EQ(StringUtils::stringLength(bytes), 4u);
    EXPECT_EQ(StringUtils::unicodeSize(bytes), 5u);
    const ZString text(bytes);
    EXPECT_EQ(wide(text), L"a\u30C6\uFF83z");
    EXPECT_EQ(text.multiByteSize(), 6);
    char cut[3];
    StringUtils::copyString(cut, text, 3);
    EXPECT_STREQ(cut, "a") << "no half of a character";
    ZString formatted;
    formatted.set(L"%.2S", bytes);
    EXPECT_EQ(wide(formatted), L"a\u30C6");
}

#if !defined(_WIN32)
TEST(CodePages, StatefulAndCombiningOnesAreFinished) {
    // 1255 holds a letter back in case a point joins it; here the text ends, a byte
    // without character follows, or the point comes.
    EXPECT_EQ(unitsOf(mbsToWide("\xE0", 1255)), L"\u05D0");
    EXPECT_EQ(unitsOf(mbsToWide("\xE0\xDA z", 1255)), L"\u05D0\uFFFD z");
    EXPECT_EQ(unitsOf(mbsToWide("\xE0\xC8", 1255)), L"\uFB2F");
}
#endif

} // namespace
