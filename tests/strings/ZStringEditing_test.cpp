#include "tests/support.h"

#include <zarnex/strings/ZString.h>

#include <algorithm>
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

TEST(ZString, EditsLikeTheStandardString) {
    std::mt19937 random(20260102);
    const auto pick = [&random](int below) { return static_cast<int>(random() % unsigned(below)); };
    const auto piece = [&](int most) {
        std::wstring text(static_cast<std::size_t>(pick(most + 1)), L' ');
        for (wchar_t& unit : text)
            unit = L"aaabbb \t\r\n\v"[pick(11)]; // trimmed but for the last
        return text;
    };
    for (int step : {-1, 0, 1, 5, 32}) {
        ZString string(0, step);
        std::wstring model;
        for (int turn = 0; turn < 3000; ++turn) {
            const std::wstring text = piece(6);
            const int size = static_cast<int>(model.size()), kind = pick(9);
            const int odd[] = {INT_MIN, -1, size, INT_MAX};
            const int start = pick(6) == 0 ? odd[pick(4)] : pick(80) - 40, count = pick(12) - 2;
            switch (kind) {
            case 0:
                string += text.c_str();
                model += text;
                break;
            case 1:
                string += string;
                model += model;
                break;
            case 2: {
                const std::wstring wanted = piece(2) + L"a";
                string.findAndReplace(wanted.c_str(), text.c_str());
                for (std::size_t at = 0; (at = model.find(wanted, at)) != model.npos;) {
                    model.replace(at, wanted.size(), text);
                    at += text.size();
                }
                break;
            }
            case 3: // a negative start counts from the end, round and round
                string = string.subString(start, count);
                model =
                    start >= size || size == 0
                        ? L""
                        : model.substr(static_cast<std::size_t>((start % size + size) % size),
                                       count < 0 ? model.npos : static_cast<std::size_t>(count));
                break;
            case 4:
                string.trimLeft();
                model.erase(0, model.find_first_not_of(L" \t\r\n"));
                break;
            case 5:
                string.trimRight();
                model.erase(model.find_last_not_of(L" \t\r\n") + 1);
                break;
            case 6:
            case 7: {
                const int slots = turn % 50 - 1;
                kind == 6 ? string.truncate(slots) : string.resize(slots);
                ASSERT_EQ(string.allocLength(), (std::max)(slots, 0) + 1);
                model.resize(static_cast<std::size_t>(std::clamp(slots, 0, size)));
                break;
            }
            case 8:
                std::wcscpy(string, text.c_str());
                string.resize();
                model = text;
                break;
            }
            ASSERT_EQ(wide(string), model) << "step " << step << ", turn " << turn;
            if (kind == 4 || kind == 5) {
                ASSERT_EQ(string.allocLength(), string.length() + 1);
            }
            const auto found = model.find(text);
            ASSERT_EQ(string.findString(text.c_str()),
                      static_cast<int>(text.empty() ? model.size() : found));
        }
    }
}

} // namespace
