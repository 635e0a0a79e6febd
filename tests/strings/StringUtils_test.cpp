#if defined(_WIN32)
#include <windows.h>
#endif

#include "tests/strings/systemCodePage.h"

#include <zarnex/platform/records.h>
#include <zarnex/strings/FontUtils.h>
#include <zarnex/strings/StringUtils.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

using zarnex::errorSize;

TEST(StringUtils, SizesCountTheTerminatorAndNullIsAnError) {
    EXPECT_EQ(StringUtils::bufferSize(""), 1u);
    EXPECT_EQ(StringUtils::bufferSize(L"abc"), 4u);
    EXPECT_EQ(StringUtils::multiByteSize("abc"), 4u);
    EXPECT_EQ(StringUtils::multiByteSize(L""), 1u);
    const auto [bytes, unit] = systemLetter();
    EXPECT_EQ(StringUtils::multiByteSize(unit.c_str()), bytes.size() + 1);
    EXPECT_EQ(StringUtils::unicodeSize(bytes.c_str()), 2u);
    EXPECT_EQ(StringUtils::unicodeSize(L"abc"), 4u);
    EXPECT_EQ(StringUtils::stringLength(bytes.c_str()), 1u);
    EXPECT_EQ(StringUtils::stringLength(""), 0u);
    EXPECT_EQ(StringUtils::stringLength(L"abc"), 3u);
    constexpr const char* noBytes = nullptr;
    constexpr const wchar_t* noUnits = nullptr;
    for (std::size_t size :
         {StringUtils::bufferSize(noBytes), StringUtils::bufferSize(noUnits),
          StringUtils::multiByteSize(noBytes), StringUtils::multiByteSize(noUnits),
          StringUtils::unicodeSize(noBytes), StringUtils::unicodeSize(noUnits),
          StringUtils::stringLength(noBytes), StringUtils::stringLength(noUnits)})
        EXPECT_EQ(size, errorSize);
}

template <class Out, class Char>
void checkCopy(const Char* text, std::size_t room, std::size_t result,
               const std::basic_string<Out>& left) {
    SCOPED_TRACE(testing::Message() << "room " << room << ", result " << result);
    std::basic_string<Out> out(9, Out{'#'});
    EXPECT_EQ(StringUtils::copyString(out.data(), text, room), result);
    EXPECT_EQ(out.find_first_not_of(Out{'#'}, room), out.npos) << "written beyond the room";
    if (room > 0) {
        EXPECT_EQ(out.c_str(), left);
        EXPECT_EQ(out[room - 1], Out{});
    }
}

TEST(StringUtils, CopiesAreCutAndTerminatedAndConversionsTellThatItDidNotFit) {
    checkCopy<char>("abcdef", 4, 7, "abc");
    checkCopy<char>("abc", 8, 4, "abc");
    checkCopy<char>("abc", 1, 4, "");
    checkCopy<char>("abc", 0, 4, "");
    checkCopy<wchar_t>(L"abcdef", 4, 7, L"abc");
    checkCopy<wchar_t>(L"abc", 0, 4, L"");
    constexpr char* nowhere = nullptr;
    EXPECT_EQ(StringUtils::copyString(nowhere, "abc", 5), 4u);
    EXPECT_EQ(StringUtils::copyString(nowhere, L"\u00E9", 5), 2u) << "in units of the source";
    constexpr const char* nothing = nullptr;
    EXPECT_EQ(StringUtils::copyString(nowhere, nothing, 0), errorSize);

    const auto [bytes, unit] = systemLetter();
    checkCopy<char>(L"abc", 8, 4, "abc");
    checkCopy<char>(L"abcdef", 4, errorSize, "abc");
    checkCopy<char>(unit.c_str(), 8, bytes.size() + 1, bytes);
    checkCopy<wchar_t>("abc", 4, 4, L"abc");
    checkCopy<wchar_t>("abcdef", 4, errorSize, L"abc");
    checkCopy<wchar_t>(bytes.c_str(), 8, 2, unit);
}

template <class Out, class Char>
void checkAppend(const Char* text, std::size_t room, const char* left) {
    Out units[9] = {'a', 'b'};
    EXPECT_EQ(StringUtils::appendString(units, text, room), 5u);
    EXPECT_EQ(units, std::basic_string<Out>(left, left + std::strlen(left)));
}

TEST(StringUtils, AppendsWithinTheRoomAndReturnsWhatIsNeeded) {
    const struct {
        std::size_t room;
        const char* left;
    } rows[] = {{4, "abc"}, {5, "abcd"}, {8, "abcd"}, {0, "ab"}, {2, "ab"}, {1, "ab"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.room);
        checkAppend<char>("cd", row.room, row.left);
        checkAppend<char>(L"cd", row.room, row.left);
        checkAppend<wchar_t>("cd", row.room, row.left);
        checkAppend<wchar_t>(L"cd", row.room, row.left);
    }
    char same[9] = "ab";
    EXPECT_EQ(StringUtils::appendString(same, same, 9), 5u);
    EXPECT_STREQ(same, "abab");
    EXPECT_EQ(StringUtils::appendString(same, static_cast<const char*>(nullptr), 9), errorSize);
}

TEST(StringUtils, PathsSplitAtTheLastColonSeparatorAndDot) {
    const struct {
        const char *path, *drive, *dir, *name, *ext;
    } rows[] = {
        {"C:\\dir.x\\file.tar.gz", "C:", "\\dir.x\\", "file.tar", ".gz"},
        {"file.", "", "", "file", "."},
        {"dir/..", "", "dir/", ".", "."},
        {"a:b:c/d:e/f.g", "a:b:c/d:", "e/", "f", ".g"},
        {"a.b/c", "", "a.b/", "c", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path);
        char drive[20], dir[20], name[20], ext[20];
        StringUtils::splitPath(row.path, drive, 20, dir, 20, name, 20, ext, 20);
        EXPECT_STREQ(drive, row.drive);
        EXPECT_STREQ(dir, row.dir);
        EXPECT_STREQ(name, row.name);
        EXPECT_STREQ(ext, row.ext);
        char again[40];
        StringUtils::makePath(again, 40, drive, dir, name, ext);
        EXPECT_STREQ(again, row.path);
        const std::wstring widePath(row.path, row.path + std::strlen(row.path));
        wchar_t wideName[3];
        StringUtils::splitPath(widePath.c_str(), nullptr, 0, nullptr, 0, wideName, 3, nullptr, 0);
        EXPECT_EQ(std::string(wideName, wideName + std::wcslen(wideName)),
                  std::string(row.name).substr(0, 2));
    }
    char own[40] = "C:\\dir\\file.txt"; // an output may be the path itself
    char ownDir[20];
    StringUtils::splitPath(own, own, 40, ownDir, 20, nullptr, 20, own + 39, 0);
    EXPECT_STREQ(ownDir, "\\dir\\");
    EXPECT_EQ(own[38], '\0') << "an output without room, before which nothing may be written";
    std::string endless(300, 'x');
    endless[258] = '.';
    endless[259] = '/'; // past the 259 units that count
    char name[300], ext[300];
    StringUtils::splitPath(endless.c_str(), nullptr, 0, nullptr, 0, name, 300, ext, 300);
    EXPECT_EQ(std::strlen(name), 258u);
    EXPECT_STREQ(ext, ".");
}

TEST(StringUtils, PathsAreBuiltWithTheMarksThatPartsLack) {
    const struct {
        const char *drive, *dir, *name, *ext, *path;
    } rows[] = {
        {"C", "dir", "f", "txt", "C:dir\\f.txt"},
        {"C:", "dir/", "f", ".txt", "C:dir/f.txt"},
        {nullptr, nullptr, nullptr, nullptr, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path);
        char path[40] = "old";
        StringUtils::makePath(path, 40, row.drive, row.dir, row.name, row.ext);
        EXPECT_STREQ(path, row.path);
        char tight[5] = "####";
        StringUtils::makePath(tight, 4, row.drive, row.dir, row.name, row.ext);
        EXPECT_EQ(tight, std::string(row.path).substr(0, 3));
        StringUtils::makePath(tight, 1, row.drive, row.dir, row.name, row.ext);
        EXPECT_STREQ(tight, "");
    }
    wchar_t path[12] = L"old";
    StringUtils::makePath(path, 12, L"C", L"dir", L"f", L"txt");
    EXPECT_STREQ(path, L"C:dir\\f.txt");
    StringUtils::makePath(static_cast<wchar_t*>(nullptr), 12, L"C", L"dir", L"f", L"txt");
}

TEST(StringUtils, FixnameReplacesTheExtension) {
    const struct {
        const wchar_t *path, *ext, *fixed;
    } rows[] = {{L"C:\\a\\b.x.old", L".new", L"C:\\a\\b.x.new"},
                {L"a/b.old", nullptr, L"a/b"},
                {L"b", L"new", L"b.new"}};
    for (const auto& row : rows) {
        wchar_t path[20];
        StringUtils::copyString(path, row.path, 20);
        StringUtils::fixname(path, 20, row.ext);
        EXPECT_STREQ(path, row.fixed);
    }
    char narrow[20] = "a/b.old";
    StringUtils::fixname(narrow, 20, "c");
    EXPECT_STREQ(narrow, "a/b.c");
}

TEST(FontUtils, ReportsTheSystemsMetricsOrTheFailureStatus) {
    NONCLIENTMETRICSW metrics;
    std::memset(&metrics, 0, sizeof metrics);
    const long status = FontUtils::getSystemFont(metrics);
    EXPECT_EQ(metrics.cbSize, 504u);
#if defined(_WIN32)
    EXPECT_EQ(status, 0);
    EXPECT_GT(metrics.iCaptionHeight, 0);
#else
    EXPECT_EQ(status, -2147467259);
#endif
}

} // namespace
