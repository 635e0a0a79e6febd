// ZString from and to the strings of the standard library.

#include <zarnex/foundation.h>

#include "../support.h"

#include <string>
#include <string_view>
#include <type_traits>

namespace {

using namespace std::string_literals;
using zarnex::fromUtf8;
using zarnex::fromWstring;
using zarnex::toUtf8;
using zarnex::toWstring;
using zarnex::viewOf;

template <class Text>
concept Viewable = requires(Text&& text) {
    viewOf(std::forward<Text>(text));
};
static_assert(Viewable<ZString&> && Viewable<const ZString&>);
static_assert(!Viewable<ZString>, "the text would be gone");

TEST(StandardStrings, Utf8GoesThereAndBack) {
    const struct {
        const wchar_t* wide;
        const char* utf8;
    } rows[] = {
        {L"", ""},
        {L"hoop 2.5 mm", "hoop 2.5 mm"},
        {L"\u00E9\u0416\u20AC", "\xC3\xA9\xD0\x96\xE2\x82\xAC"},
        {L"a\U0001F9F5b", "a\xF0\x9F\xA7\xB5"
                          "b"},        // two units on Windows
        {L"\uFEFFx", "\xEF\xBB\xBFx"}, // a byte order mark is a character
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.utf8);
        const ZString text(row.wide);
        EXPECT_EQ(toUtf8(text), row.utf8);
        EXPECT_TRUE(fromUtf8(row.utf8).isEqual(row.wide));
        EXPECT_EQ(toWstring(text), row.wide);
        EXPECT_TRUE(fromWstring(row.wide).isEqual(row.wide));
        EXPECT_EQ(viewOf(text), row.wide);
    }
    EXPECT_TRUE(fromUtf8(u8"\u00E9").isEqual(L"\u00E9"));
}

TEST(StandardStrings, IllFormedTextBecomesReplacementCharacters) {
    EXPECT_TRUE(fromUtf8("\xFFz\xF0\x9F\xA7").isEqual(L"\uFFFDz\uFFFD")); // cut at the end
    const wchar_t high[] = {L'a', static_cast<wchar_t>(0xD83E), 0};
    EXPECT_EQ(toUtf8(high), "a\xEF\xBF\xBD");
}

TEST(StandardStrings, TextEndsAtTheFirstZeroAndWhereTheViewEnds) {
    EXPECT_TRUE(fromWstring(L"hoop\0needle"s).isEqual(L"hoop"));
    EXPECT_EQ(fromWstring(L"hoop\0needle"s).allocLength(), 5); // nothing is kept behind it
    EXPECT_TRUE(fromUtf8("hoop\0needle"s).isEqual(L"hoop"));
    EXPECT_TRUE(fromWstring(std::wstring_view(L"needle").substr(0, 4)).isEqual(L"need"));
    EXPECT_TRUE(fromUtf8(std::string_view("\xC3\xA9xyz").substr(0, 3)).isEqual(L"\u00E9x"));
    EXPECT_TRUE(fromWstring(std::wstring_view()).isEqual(L""));
    EXPECT_TRUE(fromUtf8(std::string_view()).isEqual(L""));
    EXPECT_EQ(fromWstring(L"\0x"s).length(), 0);

    ZString cut(L"needle");
    cut[4] = L'\0'; // by hand, without resize()
    EXPECT_EQ(toWstring(cut), L"need");
    EXPECT_EQ(toUtf8(cut), "need");
    EXPECT_EQ(viewOf(cut).size(), 4u);
}

TEST(StandardStrings, LongTextIsWhole) {
    const std::wstring wide(100000, L'\u00E9');
    const std::string utf8 = toUtf8(fromWstring(wide));
    EXPECT_EQ(utf8.size(), 200000u);
    EXPECT_EQ(toWstring(fromUtf8(utf8)), wide);
}

} // namespace
