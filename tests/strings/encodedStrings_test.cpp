#include "tests/strings/systemCodePage.h"
#include "tests/support.h"

#include <zarnex/strings/StringUtils.h>
#include <zarnex/strings/ZGenericString.h>
#include <zarnex/strings/conversions.h>

#include <climits>
#include <cstring>
#include <string>
#include <utility>

namespace {

// The same claims for both classes, with texts of their own unit.
template <class String>
struct Encoded : testing::Test {
    using Char = std::conditional_t<std::is_same_v<String, ZWideString>, wchar_t, char>;
    using Text = std::basic_string<Char>;

    static Text text(const char* bytes) {
        return Text(bytes, bytes + std::strlen(bytes));
    }
    static String made(const char* bytes) {
        return String(text(bytes).c_str());
    }
    static Text units(const String& string) {
        return Text(static_cast<const Char*>(string));
    }
};

using Classes = testing::Types<ZMultiByteString, ZWideString>;
TYPED_TEST_SUITE(Encoded, Classes, );

TYPED_TEST(Encoded, IsMadeResizedSlicedAndFormattedLikeZString) {
    const auto check = [](const TypeParam& string, const ZString& model) {
        EXPECT_EQ(std::wstring(&string[0], &string[0] + string.length()), wide(model));
        EXPECT_EQ(string.allocLength(), model.allocLength());
        EXPECT_EQ(string[string.allocLength() - 1], 0);
    };
    const auto hello = this->text("hello");
    for (const bool isNull : {false, true}) {
        const typename TestFixture::Char* const text = isNull ? nullptr : hello.c_str();
        const wchar_t* const units = isNull ? nullptr : L"hello";
        const TypeParam string(text);
        const ZString model(units);
        for (int n : {-12, -6, -2, -1, 0, 1, 4, 5, 10, INT_MAX, INT_MIN}) {
            SCOPED_TRACE(testing::Message() << "null " << isNull << ", " << n);
            for (int count : {-1, 0, 1, 3, 100, INT_MAX, INT_MIN})
                check(string.subString(n, count), model.subString(n, count));
            if (n == INT_MAX)
                continue;
            check(TypeParam(text, n), ZString(units, n));
            TypeParam resized(string);
            resized.resize(n);
            ZString resizedModel(model);
            resizedModel.resize(n);
            check(resized, resizedModel);
        }
        const char* const format = "%s|%4.*2f|%#x|%-5d|%c%%";
        TypeParam formatted;
        formatted.set(this->text(format).c_str(), hello.c_str(), 1, 2.5, 255, 42, 'z');
        ZString formattedModel;
        formattedModel.set(ZString(format), L"hello", 1, 2.5, 255, 42, L'z');
        formatted.set(nullptr);
        check(formatted, formattedModel);
        formatted.set(this->text("").c_str());
        formattedModel.set(L"");
        check(formatted, formattedModel);
        EXPECT_EQ(formattedModel.allocLength(), 1);
    }
    check(TypeParam(), ZString());
}

TYPED_TEST(Encoded, CopiesAreDeepAndWhatWasMovedFromStaysUsable) {
    TypeParam source = this->made("abc");
    source.resize(50);
    TypeParam copy(source), assigned;
    assigned = copy;
    assigned = static_cast<const TypeParam&>(assigned);
    source[0] = 'x';
    for (const TypeParam* const string : {&copy, &assigned}) {
        EXPECT_EQ(this->units(*string), this->text("abc"));
        EXPECT_EQ(string->allocLength(), 51);
    }
    assigned = this->text("de").c_str();
    EXPECT_EQ(assigned.allocLength(), 3);

    TypeParam taken(std::move(copy));
    EXPECT_EQ(this->units(taken), this->text("abc"));
    EXPECT_TRUE(copy == TypeParam());
    copy[1] = 'y';
    EXPECT_EQ(copy.length(), 0) << "terminated before it grew";
    copy = std::move(taken);
    EXPECT_EQ(this->units(copy), this->text("abc"));
    const TypeParam emptied(std::move(copy));
    copy.resize(40);
    EXPECT_EQ(copy.length(), 0);
}

TYPED_TEST(Encoded, IndicesDoNotWrapAndWritingGrows) {
    TypeParam string = this->made("abc");
    const TypeParam& reader = string;
    EXPECT_EQ(reader[-1], 'a');
    EXPECT_EQ(reader[INT_MIN], 'a');
    EXPECT_EQ(reader[std::size_t{2}], 'c');
    EXPECT_EQ(reader[1000L], 0);
    string[-7] = 'A';
    string[9] = 'x';
    EXPECT_EQ(this->units(string), this->text("Abc"));
    EXPECT_EQ(string.allocLength(), 10);
}

TYPED_TEST(Encoded, TakesBytesAndTextFromInside) {
    TypeParam string = this->made("45");
    const TypeParam& reader = string;
    string += "";
    string += "mm"; // of bytes, whatever the class
    string.set(this->text("<%s>").c_str(), &reader[0]);
    EXPECT_EQ(this->units(string), this->text("<45mm>"));
    EXPECT_EQ(string.startsWith(nullptr, 1) + ZString(L"45").startsWith(nullptr, 1), 0);
}

// The formats' own text is narrow in the one class and wide in the other.
TEST(EncodedSet, TakesTextOfBothTypes) {
    ZMultiByteString narrow;
    narrow.set("%s|%hs|%S|%ls|%c%C|%.2S", "ab", "cd", L"ef", L"gh", 'i', L'j', L"klm");
    EXPECT_STREQ(narrow, "ab|cd|ef|gh|ij|kl");
    narrow.set("%C", systemLetter().unit[0]);
    EXPECT_STREQ(narrow, systemLetter().bytes.c_str());
    narrow.set("%.3S", L"\xD800\xDBFF");
    EXPECT_GT(narrow.length(), 0) << "two halves are no pair, and the first fits";
    ZWideString wideText;
    wideText.set(L"%s|%ls|%S|%hs|%c%C|%.2S", L"ab", L"cd", "ef", "gh", L'i', 'j', "klm");
    EXPECT_STREQ(wideText, L"ab|cd|ef|gh|ij|kl");
}

// -1, 0 or 1 as the operators say, which must agree for strings and text on either side.
template <class String, class Char>
std::string relations(const Char* left, const Char* right) {
    const String a(left), b(right);
    const auto all = [](const auto& x, const auto& y) {
        const int holds[] = {x == y, x != y, x<y, x> y, x <= y, x >= y};
        const char* const names[] = {"==", "!=", "<", ">", "<=", ">="};
        std::string found;
        for (int i = 0; i < 6; ++i)
            found += holds[i] != 0 ? std::string(" ") + names[i] : "";
        return found;
    };
    EXPECT_EQ(all(a, b), all(a, right));
    EXPECT_EQ(all(a, b), all(left, b));
    return all(a, b);
}

TEST(EncodedComparison, DiffersByClass) {
    const struct {
        const char *a, *b, *narrow, *wide;
    } rows[] = {
        {"abc", "abc", " == <= >=", " == <= >="},
        {"Abc", "abc", " != <= >=", " != < <="}, // neither equal nor less nor greater
        {"B", "a", " != > >=", " != < <="},
        {"[", "A", " != < <=", " != > >="}, // compared as the lower case 'a'
        {"ab", "ABC", " != < <=", " != > >="},
        {"", "a", " != < <=", " != < <="},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.a << " with " << row.b);
        const ZString a(row.a), b(row.b);
        EXPECT_EQ((relations<ZMultiByteString>(row.a, row.b)), row.narrow);
        EXPECT_EQ((relations<ZWideString>(static_cast<const wchar_t*>(a),
                                          static_cast<const wchar_t*>(b))),
                  row.wide);
    }
    EXPECT_EQ((relations<ZMultiByteString>("\xC9", "\xE9")), " != < <=") << "A to Z alone fold";
    EXPECT_EQ((relations<ZMultiByteString>("z", "\x80")), " != < <=") << "bytes are not signed";
    EXPECT_TRUE(ZMultiByteString() == nullptr);
    char buffer[] = "a"; // not const: no address may be compared
    ZMultiByteString string("A");
    EXPECT_TRUE(string != buffer && buffer != string && string <= buffer && buffer >= string);
}

// ---- ZGenericString

static_assert(!std::is_copy_assignable_v<ZGenericString>);
static_assert(!std::is_assignable_v<ZGenericString&, ZGenericString&>);

// The wide and the narrow form, as the object stores them.
std::pair<const wchar_t*, const char*> formsOf(const ZGenericString& string) {
    struct Layout {
        void* table;
        const wchar_t* wide;
        const char* bytes;
    } layout;
    static_assert(sizeof layout == sizeof string);
    std::memcpy(&layout, static_cast<const void*>(&string), sizeof layout);
    return {layout.wide, layout.bytes};
}

struct Freeing : ZGenericString {
    explicit Freeing(const ZGenericString& string) : ZGenericString(string) {}
    using ZGenericString::freeBuffers;
};

TEST(ZGenericString, HoldsTheFormItWasMadeFrom) {
    const char* const none = nullptr;
    const wchar_t* const wideNone = nullptr;
    const ZString abc(L"abc");
    const struct {
        const char* what;
        ZGenericString string;
        const wchar_t* wide;
        const char* bytes;
    } rows[] = {
        {"string", ZGenericString(abc), L"abc", nullptr},
        {"bytes", ZGenericString("abc"), nullptr, "abc"},
        {"bytes, cut", ZGenericString("abc", 3), nullptr, "ab"},
        {"bytes, room to spare", ZGenericString("abc", 9), nullptr, "abc"},
        {"bytes, no room", ZGenericString("abc", 0), nullptr, nullptr},
        {"bytes, negative room", ZGenericString("abc", -1), nullptr, nullptr},
        {"wide", ZGenericString(L"abc"), L"abc", nullptr},
        {"wide, cut", ZGenericString(L"abc", 3), L"ab", nullptr},
        {"wide, one unit", ZGenericString(L"abc", 1), L"", nullptr},
        {"empty", ZGenericString(""), nullptr, ""},
        {"null", ZGenericString(none), nullptr, nullptr},
        {"wide null", ZGenericString(wideNone, 5), nullptr, nullptr},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const auto [wideForm, bytes] = formsOf(row.string);
        EXPECT_STREQ(wideForm, row.wide);
        EXPECT_STREQ(bytes, row.bytes);
        // Copies are deep, the conversions make what is missing, and hosts may free both.
        Freeing copy(row.string);
        const auto [wideCopy, bytesCopy] = formsOf(copy);
        EXPECT_TRUE((wideCopy == nullptr || wideCopy != wideForm) &&
                    (bytesCopy == nullptr || bytesCopy != bytes));
        const bool isThere = row.wide != nullptr || row.bytes != nullptr;
        EXPECT_EQ(static_cast<wchar_t*>(copy) != nullptr, isThere);
        EXPECT_EQ(static_cast<char*>(copy) != nullptr, isThere);
        EXPECT_EQ(ZString(copy).multiByteSize(),
                  static_cast<int>(std::strlen(isThere ? static_cast<char*>(copy) : "")) + 1);
        copy.freeBuffers();
        EXPECT_TRUE(static_cast<wchar_t*>(copy) == nullptr && static_cast<char*>(copy) == nullptr);
    }
}

TEST(ZGenericString, MakesTheOtherFormOnce) {
    const std::wstring letter = systemLetter().unit;
    const std::wstring typed = letter + L"t" + letter;
    ZGenericString string(typed.c_str());
    char* const bytes = string;
    EXPECT_TRUE(ZMultiByteString(typed.c_str(), 0) == bytes);
    EXPECT_EQ(static_cast<char*>(string), bytes);
    ZGenericString back(bytes);
    wchar_t* const units = back;
    EXPECT_EQ(units, typed);
    EXPECT_EQ(static_cast<wchar_t*>(back), units);
    const wchar_t* const reading = back;
    EXPECT_EQ(reading, units);

    ZString text(back);
    EXPECT_EQ(text.allocLength(), 4);
    text = string;
    text += string;
    EXPECT_EQ(wide(text), typed + typed);
    ZGenericString nothing(static_cast<const char*>(nullptr));
    text = nothing;
    EXPECT_EQ(wide(text), L"");
}

// Reaches the private assignment, as an explicit instantiation may.
ZGenericString& assign(ZGenericString& a, ZGenericString& b);

template <auto assignment>
struct Reached {
    friend ZGenericString& assign(ZGenericString& a, ZGenericString& b) {
        return (a.*assignment)(b);
    }
};
template struct Reached < &ZGenericString::operator=>;

TEST(ZGenericString, AssignmentTakesTheFormsThatTheSourceHolds) {
    ZGenericString target("both");
    EXPECT_STREQ(static_cast<wchar_t*>(target), L"both");
    ZGenericString source(L"wide");
    assign(target, source);
    EXPECT_STREQ(formsOf(target).first, L"wide");
    EXPECT_NE(formsOf(target).first, formsOf(source).first);
    EXPECT_EQ(formsOf(target).second, nullptr);
    EXPECT_STREQ(formsOf(assign(target, target)).first, L"wide");
}

} // namespace
