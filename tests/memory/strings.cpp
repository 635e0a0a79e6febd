// ZString, its 8-bit and wide companions, and the conversions between them.

#include "tests/memory/operations.h"

#include <zarnex/foundation.h>

#include <cstring>
#include <cwchar>
#include <memory>
#include <optional>
#include <string>

namespace {

// Longer than a string's first allocation and than the formatter's room on the stack.
const std::string longBytes(600, 'n');
const std::wstring longText(600, L'w');
const std::wstring longWidened(600, L'n');

// What operations read: made before the heap fails.
const ZString shortString(L"abc");
const ZString longString(longText.c_str());
const ZMultiByteString shortNarrow("abc");
const ZMultiByteString longNarrow(longBytes.c_str());
const ZWideString longWide(longText.c_str());
const ZString accented(L"\u00E9");
const ZMultiByteString accentedBytes("\xC3\xA9");

template <class String>
bool holds(const String& text, const wchar_t* units) {
    return std::wcscmp(static_cast<const wchar_t*>(text), units) == 0;
}
bool holds(const ZMultiByteString& text, const char* bytes) {
    return std::strcmp(static_cast<const char*>(text), bytes) == 0;
}

template <class String>
struct TextOf {
    using Type = std::wstring;
};
template <>
struct TextOf<ZMultiByteString> {
    using Type = std::string;
};
template <class String>
using Text = typename TextOf<String>::Type;

/// The text holds `expected` and can grow.
template <class String>
void expectWhole(Trial& trial, String& text, const Text<String>& expected) {
    trial.expect(holds(text, expected.c_str()));
    text += expected.c_str();
    trial.expect(static_cast<std::size_t>(text.length()) == 2 * expected.size());
}

/// A string that `make` makes on the failing heap holds `expected`.
template <class String, class Make>
auto made(Text<String> expected, Make make) {
    return [=](Trial& trial) {
        std::optional<String> text;
        trial.attempt([&] { text.emplace(make()); });
        trial.expectDone(text.has_value());
        if (text)
            expectWhole(trial, *text, expected);
    };
}

/// A string that `edit` edits on the failing heap holds `expected`.
template <class String, class Edit>
auto edited(Text<String> begin, Text<String> expected, Edit edit) {
    return [=](Trial& trial) {
        String text(begin.c_str());
        trial.attempt([&] { edit(text); });
        expectWhole(trial, text, expected);
    };
}

} // namespace

Group stringOperations() {
    using S = ZString;
    return {
        "`ZString`",
        {
            {"ZString(n, step)", endsAlloc, made<S>(L"", [] { return S(40, 8); })},
            {"ZString(wide, n)", endsAlloc, made<S>(L"www", [] { return S(longText.c_str(), 3); })},
            {"ZString(long)", endsAlloc, made<S>(longText, [] { return S(longText.c_str()); })},
            {"ZString(long narrow)", endsAlloc,
             made<S>(longWidened, [] { return S(longBytes.c_str()); })},
            {"ZString(ZString)", endsAlloc, made<S>(L"abc", [] { return S(shortString); })},
            {"ZString = ZString", endsAlloc,
             edited<S>(L"abc", longText, [](S& s) { s = longString; })},
            {"ZString = narrow", endsAlloc,
             edited<S>(L"", longWidened, [](S& s) { s = longBytes.c_str(); })},
            {"ZString += wide", endsAlloc,
             edited<S>(L"", longText, [](S& s) { s += longText.c_str(); })},
            {"ZString += itself", endsAlloc,
             edited<S>(std::wstring(300, L'w'), longText, [](S& s) { s += s; })},
            {"ZString += int", endsAlloc,
             edited<S>(L"a length of thirty characters ",
                       L"a length of thirty characters 1234567890", [](S& s) { s += 1234567890; })},
            {"wide + ZString + wide + int", endsAlloc,
             made<S>(L"0abcd12", [] { return L"0" + shortString + L"d" + 12; })},
            {"ZString[] beyond the end", endsAlloc,
             edited<S>(L"abc", L"abc", [](S& s) { s[700] = L'z'; })},
            {"ZString as a buffer, resize()", endsAlloc,
             edited<S>(L"abc", std::wstring(200, L'w'),
                       [](S& s) {
                           std::wmemcpy(s, longText.c_str(), 200);
                           s[200] = L'\0';
                           s.resize();
                       })},
            {"ZString truncate and resize upward", endsAlloc,
             edited<S>(L"abc", L"abc",
                       [](S& s) {
                           s.truncate(100);
                           s.resize(300);
                       })},
            {"ZString findAndReplace", endsAlloc,
             edited<S>(std::wstring(200, L'-'), longText,
                       [](S& s) { s.findAndReplace(L"-", L"www"); })},
            {"ZString subString", endsAlloc,
             made<S>(L"www", [] { return longString.subString(10, 3); })},
            {"ZString set", endsAlloc,
             edited<S>(L"", L"2.5                                        7",
                       [](S& s) { s.set(L"%.1f %40d", 2.5, 7); })},
            {"ZString set, long", endsAlloc,
             edited<S>(L"", longText + longWidened,
                       [](S& s) { s.set(L"%s%S", longText.c_str(), longBytes.c_str()); })},
            {"ZString getAscii, getWide", goesOn,
             [](Trial& t) {
                 std::unique_ptr<char[]> ascii;
                 std::unique_ptr<wchar_t[]> units;
                 t.attempt([&] {
                     ascii.reset(shortString.getAscii());
                     units.reset(shortString.getWide());
                 });
                 t.expect(ascii ? std::strcmp(ascii.get(), "abc") == 0 : t.failed());
                 t.expect(units ? std::wcscmp(units.get(), L"abc") == 0 : t.failed());
             }},
            {"ZString compared, searched, trimmed, moved", asksNothing,
             [](Trial& t) {
                 S text(L"  aBc  ");
                 t.attempt([&] {
                     text.trimLeft();
                     text.trimRight();
                     t.expect(text == shortString && text.hash() == shortString.hash());
                     text.toUpper();
                     t.expect(text.findString(L"C") == 2);
                     S moved(std::move(text));
                     text = std::move(moved);
                 });
                 t.expect(holds(text, L"ABC"));
             }},
        },
    };
}

Group encodedStringOperations() {
    using M = ZMultiByteString;
    using W = ZWideString;
    return {
        "`ZMultiByteString`, `ZWideString`, `ZGenericString`, conversions",
        {
            {"ZMultiByteString(text)", endsAlloc, made<M>("abc", [] { return M("abc"); })},
            {"ZMultiByteString(text, n)", endsAlloc,
             made<M>("nnn", [] { return M(longBytes.c_str(), 3); })},
            {"ZMultiByteString(ZString, code page)", endsAlloc,
             made<M>(std::string(600, 'w'), [] { return M(longString, 65001); })},
            {"ZMultiByteString copied", endsAlloc, made<M>("abc", [] { return M(shortNarrow); })},
            {"ZMultiByteString =", endsAlloc,
             edited<M>("abc", longBytes, [](M& m) { m = longNarrow; })},
            {"ZMultiByteString +=", endsAlloc,
             edited<M>("", longBytes, [](M& m) { m += longBytes.c_str(); })},
            {"ZMultiByteString[] and resize", endsAlloc,
             edited<M>("abc", "abc",
                       [](M& m) {
                           m[200] = '\0';
                           m.resize(400);
                       })},
            {"ZMultiByteString subString", endsAlloc,
             made<M>("nnn", [] { return longNarrow.subString(10, 3); })},
            {"ZMultiByteString set", endsAlloc,
             edited<M>("", longBytes, [](M& m) { m.set("%s", longBytes.c_str()); })},
            {"ZWideString(narrow)", endsAlloc, made<W>(L"abc", [] { return W("abc"); })},
            {"ZWideString(narrow, n)", endsAlloc,
             made<W>(L"nnn", [] { return W(longBytes.c_str(), 3); })},
            {"ZWideString(ZString), copied", endsAlloc,
             made<W>(L"abc", [] { return W(W(shortString)); })},
            {"ZWideString = narrow", endsAlloc,
             edited<W>(L"", longWidened, [](W& w) { w = longBytes.c_str(); })},
            {"ZWideString += narrow", endsAlloc,
             edited<W>(L"wide ", L"wide narrow", [](W& w) { w += "narrow"; })},
            {"ZWideString set", endsAlloc,
             edited<W>(L"", longText, [](W& w) { w.set(L"%s", longText.c_str()); })},
            {"strToUtf8", endsAlloc, made<M>("\xC3\xA9", [] { return strToUtf8(accented); })},
            {"utf8ToStr", endsAlloc,
             made<ZString>(L"\u00E9", [] { return utf8ToStr(accentedBytes); })},
            {"wideToUtf8 into a string", endsAlloc,
             edited<M>("abc", std::string(600, 'w'), [](M& m) { wideToUtf8(longWide, m); })},
            {"strToWide and back", endsAlloc,
             made<ZString>(L"abc", [] { return wideToStr(strToWide(L"abc")); })},
            // A code page of the system's: without memory there, it counts as unknown.
            {"mbsToStr, code page 1252", endsAlloc,
             [](Trial& t) {
                 std::optional<ZString> read;
                 t.attempt([&] { read.emplace(mbsToStr("\xE9", 1252)); });
                 t.expect(read && (holds(*read, L"\u00E9") || (t.failed() && read->isEmpty())));
             }},
            {"strToMbs, code page 932", endsAlloc,
             [](Trial& t) {
                 std::optional<M> written;
                 t.attempt([&] { written.emplace(strToMbs(L"\u30C6", 932)); });
                 t.expect(written &&
                          (holds(*written, "\x83\x65") || (t.failed() && written->length() <= 1)));
             }},
            {"ZGenericString(wide) as bytes", goesOn,
             [](Trial& t) {
                 std::optional<ZGenericString> text;
                 const char* bytes = nullptr;
                 t.attempt([&] {
                     text.emplace(L"abc");
                     bytes = *text;
                 });
                 t.expect(text && (bytes == nullptr ? t.failed() : std::strcmp(bytes, "abc") == 0));
             }},
            {"ZGenericString(narrow) as wide, copied", goesOn,
             [](Trial& t) {
                 ZGenericString text("abc");
                 t.attempt([&] {
                     const wchar_t* const units = text;
                     ZGenericString copy(text);
                     const char* const bytes = copy;
                     t.expect(units != nullptr || t.failed());
                     t.expect(bytes != nullptr || t.failed());
                 });
                 const wchar_t* const again = text; // made now, if not before
                 t.expect(again != nullptr && std::wcscmp(again, L"abc") == 0);
             }},
            {"ZString(ZGenericString)", endsAlloc,
             [](Trial& t) {
                 ZGenericString source("abc");
                 std::optional<ZString> text;
                 t.attempt([&] { text.emplace(source); });
                 t.expect(text && (holds(*text, L"abc") || (t.failed() && text->isEmpty())));
             }},
        },
    };
}
