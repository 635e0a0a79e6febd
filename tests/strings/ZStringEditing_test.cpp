#include "tests/support.h"

#include <zarnex/strings/ZString.h>

#include <climits>
#include <clocale>
#include <cwctype>
#include <random>

namespace {

constexpr const wchar_t* null = nullptr;

TEST(ZString, FindsSlotsInUseFromEitherEnd) {
    ZString string(L"abca");
    const auto found = [&](wchar_t wanted) {
        return std::pair(string.find(wanted), string.find(wanted, 1));
    };
    EXPECT_EQ(found(L'a'), std::pair(0, 3));
    EXPECT_EQ(found(L'\0'), std::pair(4, 4));
    string.truncate(1);
    EXPECT_EQ(found(L'b'), std::pair(-1, -1)) << "no longer a slot in use";
}

TEST(ZString, FindsText) {
    const ZString string(L"abcABC");
    const struct {
        const wchar_t* wanted;
        int start, ignoreCase, found;
    } rows[] = {
        {L"b", 0, 0, 1},   {L"B", 0, 0, 4},        {L"B", 0, 1, 1},       {L"bC", 2, 1, 4},
        {L"b", -1, 0, -1}, {L"B", -2, 0, 4},       {L"b", -6, 0, 1},      {L"b", -12, 0, 1},
        {L"C", 6, 0, -1},  {L"C", 7, 0, -1},       {L"C", INT_MIN, 0, 5}, {L"", 3, 0, 6},
        {null, 3, 0, 6},   {L"abcABCd", 0, 0, -1}, {L"abcabc", 0, 1, 0},  {L"C", 5, 0, 5},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << shown(row.wanted) << " from " << row.start);
        EXPECT_EQ(string.findString(row.wanted, row.start, row.ignoreCase), row.found);
    }
    EXPECT_EQ(ZString().findString(L"a", -3, 0), -1);
    EXPECT_EQ(ZString().findString(L"", -3, 0), 0);
}

// In several locales: that of the test, one that maps more than A to Z, and one in which
// I and i are two letters. Those that the system lacks are left out.
TEST(ZString, SearchesAndComparesAsUnitByUnitMappingTells) {
    const auto lower = [](std::wstring text) {
        for (wchar_t& unit : text)
            unit = static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(unit)));
        return text;
    };
    // U+0130 and U+212A, the Kelvin sign, have lower cases in ASCII.
    constexpr wchar_t units[] = L"aaaaaaAAbBiIkKz@[\u00E9\u00C9\u0130\u0131\u212A\uFF21";
    std::mt19937 engine(11);
    const KeptLocale kept;
    for (const char* const locale : {"C", "C.UTF-8", "tr_TR.UTF-8", "Turkish_Turkey.1254"}) {
        if (std::setlocale(LC_CTYPE, locale) == nullptr)
            continue;
        SCOPED_TRACE(locale);
        for (int turn = 0; turn < 4000; ++turn) {
            const auto random = [&](std::size_t most) {
                std::wstring text(engine() % (most + 1), L'\0');
                for (wchar_t& unit : text)
                    unit = units[engine() % (std::size(units) - 1)];
                return text;
            };
            const std::wstring text = random(70);
            const std::wstring wanted = L"a" + random(turn % 2 == 0 ? 1 : 4);
            const ZString string(text.c_str());
            ASSERT_EQ(string.findString(wanted.c_str(), 0, 0), static_cast<int>(text.find(wanted)));
            ASSERT_EQ(string.findString(wanted.c_str(), 0, 1),
                      static_cast<int>(lower(text).find(lower(wanted))));

            const std::wstring other = turn % 3 == 0 ? lower(text) : text + wanted;
            const int order = lower(text).compare(lower(other));
            ASSERT_EQ(string.compare(other.c_str()), order < 0 ? -1 : order > 0);
            if (order == 0) {
                ASSERT_EQ(string.hash(), ZString(other.c_str()).hash());
            }
            ZString mapped(string);
            mapped.toLower();
            ASSERT_EQ(wide(mapped), lower(text));
        }
    }
}

TEST(ZString, FindsOneOfASet) {
    const struct {
        const wchar_t *text, *set;
        int start, invert, found, byUnicode;
    } rows[] = {
        {L"abc", L"", 1, 0, 3, 3},      {L"abc", L"", 1, 1, 1, 1},    {L"abc", L"ab", 0, 1, 2, -1},
        {L"abc", L"cb", 0, 0, 1, 1},    {L"abc", L"cb", -1, 0, 2, 2}, {L"abc", L"a", 1, 0, -1, -1},
        {L"abc", L"a", 3, 0, -1, -1},   {L"abc", L"a", 4, 0, -1, -1}, {L"abc", null, 0, 0, -1, -1},
        {L"abc", L"abc", 0, 1, -1, -1}, {L"", L"a", -1, 0, -1, -1},   {L"", L"", -1, 1, -1, -1},
        {L"", L"", 0, 0, 0, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << shown(row.set) << " from " << row.start);
        const ZString string(row.text);
        EXPECT_EQ(string.findOneOf(row.set, row.start, row.invert), row.found);
        EXPECT_EQ(string.findOneOfByUnicode(row.set, row.start, row.invert), row.byUnicode);
    }
    EXPECT_EQ(ZString(L"abc").findOneOf(L"a", LLONG_MAX, 0), -1);
}

TEST(ZString, ReplacesFromLeftToRightWithoutSearchingTheReplacement) {
    const struct {
        const wchar_t *text, *find, *replace, *result;
    } rows[] = {{L"aaa", L"a", L"aa", L"aaaaaa"}, {L"abc", L"B", L"y", L"abc"},
                {L"abc", L"b", null, L"ac"},      {L"abc", L"", L"x", L"abc"},
                {L"abc", null, L"x", L"abc"},     {L"", L"a", L"x", L""}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << shown(row.text) << " " << shown(row.find));
        ZString string(row.text);
        string.findAndReplace(row.find, row.replace);
        EXPECT_EQ(wide(string), row.result);
        EXPECT_EQ(string.allocLength(), string.length() + 1);
    }
    ZString string(L"aXbX");
    string.truncate(20);
    string.truncate(4);
    const wchar_t* const before = string;
    string.findAndReplace(L"X", L"yy");
    EXPECT_EQ(static_cast<const wchar_t*>(string), before) << "there was room";
    string.truncate(20);
    for (int i = 6; i <= 20; ++i)
        EXPECT_EQ(string[i], L'\0') << "what was given up stays empty: " << i;
}

TEST(ZString, EmptyingKeepsTheAllocation) {
    for (auto empty : {&ZString::empty, &ZString::reset}) {
        ZString string(std::wstring(100, L'x').c_str());
        const wchar_t* const before = static_cast<const ZString&>(string);
        (string.*empty)();
        EXPECT_EQ(string.allocLength(), 1);
        EXPECT_EQ(wide(string), L"");
        EXPECT_EQ(static_cast<const wchar_t*>(static_cast<const ZString&>(string)), before);
    }
}

TEST(ZString, MapsCase) {
    ZString string(L"aB1\u00E9");
    string.toUpper();
    EXPECT_EQ(wide(string), isDefaultLocale() ? L"AB1\u00E9" : L"AB1\u00C9");
}

} // namespace
