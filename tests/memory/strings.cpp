// ZString, its 8-bit and wide companions, and the conversions between them.

#include "tests/memory/operations.h"

#include <zarnex/foundation.h>

#include <cstring>
#include <cwchar>
#include <optional>
#include <string>
#include <type_traits>

namespace {

// Longer than a string's first allocation and than the formatter's room on the stack.
const std::string longBytes(600, 'n');
const std::wstring longText(600, L'w');

template <class String>
bool holds(const String& text, const wchar_t* units) {
    return std::wcscmp(static_cast<const wchar_t*>(text), units) == 0;
}
bool holds(const ZMultiByteString& text, const char* bytes) {
    return std::strcmp(static_cast<const char*>(text), bytes) == 0;
}

template <class String>
using TextOf =
    std::conditional_t<std::is_same_v<String, ZMultiByteString>, std::string, std::wstring>;

/// Whether `text` holds `expected` and can grow.
template <class String>
bool isWhole(String& text, const TextOf<String>& expected) {
    const bool same = holds(text, expected.c_str());
    text += expected.c_str();
    return same && static_cast<std::size_t>(text.length()) == 2 * expected.size();
}

/// A string that `make` makes on the failing heap holds `expected` and can grow.
template <class String, class Make>
auto made(Make make, TextOf<String> expected) {
    return [make, expected](Trial& trial) {
        std::optional<String> text;
        trial.attempt([&] { text.emplace(make()); });
        trial.expectDone(text && isWhole(*text, expected));
    };
}

/// A string that `edit` edits on the failing heap holds `expected` and can grow.
template <class String, class Edit>
auto edited(TextOf<String> begin, TextOf<String> expected, Edit edit) {
    return [begin, edit, expected](Trial& trial) {
        String text(begin.c_str());
        trial.attempt([&] { edit(text); });
        trial.expect(isWhole(text, expected));
    };
}

} // namespace

Group stringOperations() {
    using S = ZString;
    return {
        "`ZString`",
        {
            {"ZString(n, step)", endsAlloc, made<S>([] { return S(40, 8); }, L"")},
            {"ZString(wide)", endsAlloc, made<S>([] { return S(L"abc"); }, L"abc")},
            {"ZString(wide, n)", endsAlloc, made<S>([] { return S(longText.c_str(), 3); }, L"www")},
            {"ZString(long)", endsAlloc, made<S>([] { return S(longText.c_str()); }, longText)},
            {"ZString(narrow)", endsAlloc, made<S>([] { return S("abc"); }, L"abc")},
            {"ZString(long narrow)", endsAlloc,
             made<S>([] { return S(longBytes.c_str()); }, std::wstring(600, L'n'))},
            {"ZString(narrow, n)", endsAlloc,
             made<S>([] { return S(longBytes.c_str(), 3); }, L"nnn")},
            {"ZString(ZString)", endsAlloc,
             made<S>([source = S(L"abc")] { return S(source); }, L"abc")},
            {"ZString = ZString", endsAlloc,
             edited<S>(L"abc", longText, [source = S(longText.c_str())](S& s) { s = source; })},
            {"ZString = wide", endsAlloc,
             edited<S>(L"abc", longText, [](S& s) { s = longText.c_str(); })},
            {"ZString = narrow", endsAlloc,
             edited<S>(L"", std::wstring(600, L'n'), [](S& s) { s = longBytes.c_str(); })},
            {"ZString += ZString", endsAlloc,
             edited<S>(L"", longText, [more = S(longText.c_str())](S& s) { s += more; })},
            {"ZString += itself", endsAlloc,
             edited<S>(std::wstring(300, L'w'), longText, [](S& s) { s += s; })},
            {"ZString += wide", endsAlloc,
             edited<S>(L"", longText, [](S& s) { s += longText.c_str(); })},
            {"ZString += units", endsAlloc,
             edited<S>(L"", longText,
                       [](S& s) {
                           for (int i = 0; i < 600; ++i)
                               s += L'w';
                       })},
            {"ZString += int", endsAlloc,
             edited<S>(L"a length of thirty characters ",
                       L"a length of thirty characters 1234567890", [](S& s) { s += 1234567890; })},
            {"ZString + wide + int", endsAlloc,
             made<S>([left = S(L"a")] { return left + L"b" + 12; }, L"ab12")},
            {"wide + ZString", endsAlloc,
             made<S>([right = S(L"b")] { return L"a" + right; }, L"ab")},
            {"ZString[] beyond the end", endsAlloc,
             [](Trial& t) {
                 S text(L"abc");
                 t.attempt([&] { text[700] = L'z'; });
                 t.expect(text[700] == L'z' && text.allocLength() == 701);
             }},
            {"ZString as a buffer", endsAlloc,
             [](Trial& t) {
                 S text(L"abc");
                 t.attempt([&] { std::wcscpy(static_cast<wchar_t*>(text), L"written"); });
                 text.resize();
                 t.expect(holds(text, L"written"));
             }},
            {"ZString resize()", endsAlloc,
             [](Trial& t) {
                 S text(L"abc");
                 std::wmemcpy(static_cast<wchar_t*>(text), longText.c_str(), 200);
                 text[200] = L'\0';
                 t.attempt([&] { text.resize(); });
                 t.expect(holds(text, std::wstring(200, L'w').c_str()));
             }},
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
             made<S>([text = S(longText.c_str())] { return text.subString(10, 3); }, L"www")},
            {"ZString trims, case, empty", endsAlloc | asksNothing,
             [](Trial& t) {
                 S text(L"  aB  ");
                 t.attempt([&] {
                     text.trimLeft();
                     text.trimRight();
                     text.toUpper();
                 });
                 t.expect(holds(text, L"AB"));
             }},
            {"ZString set", endsAlloc,
             edited<S>(L"", L"2.5                                        7",
                       [](S& s) { s.set(L"%.1f %40d", 2.5, 7); })},
            {"ZString set, long", endsAlloc,
             edited<S>(L"", longText, [](S& s) { s.set(L"%s", longText.c_str()); })},
            {"ZString set, narrow", endsAlloc,
             edited<S>(L"", std::wstring(600, L'n'),
                       [](S& s) { s.set(L"%S", longBytes.c_str()); })},
            {"ZString getAscii", goesOn,
             [](Trial& t) {
                 const S text(L"abc");
                 char* ascii = nullptr;
                 t.attempt([&] { ascii = text.getAscii(); });
                 t.expect(t.failed() ? ascii == nullptr : std::strcmp(ascii, "abc") == 0);
                 delete[] ascii;
             }},
            {"ZString getWide", goesOn,
             [](Trial& t) {
                 const S text(L"abc");
                 wchar_t* units = nullptr;
                 t.attempt([&] { units = text.getWide(); });
                 t.expect(t.failed() ? units == nullptr : std::wcscmp(units, L"abc") == 0);
                 delete[] units;
             }},
            {"ZString compared, searched, moved", asksNothing,
             [](Trial& t) {
                 S text(L"abc");
                 const S other(L"ABC");
                 t.attempt([&] {
                     t.expect(text == other && text.findString(L"c") == 2 &&
                              text.hash() == other.hash());
                     S moved(std::move(text));
                     text = std::move(moved);
                 });
                 t.expect(holds(text, L"abc"));
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
            {"ZMultiByteString(text)", endsAlloc, made<M>([] { return M("abc"); }, "abc")},
            {"ZMultiByteString(text, n)", endsAlloc,
             made<M>([] { return M(longBytes.c_str(), 3); }, "nnn")},
            {"ZMultiByteString(ZString, code page)", endsAlloc,
             made<M>([text = ZString(longText.c_str())] { return M(text, 65001); },
                     std::string(600, 'w'))},
            {"ZMultiByteString copied", endsAlloc,
             made<M>([source = M("abc")] { return M(source); }, "abc")},
            {"ZMultiByteString =", endsAlloc,
             edited<M>("abc", longBytes, [source = M(longBytes.c_str())](M& m) { m = source; })},
            {"ZMultiByteString +=", endsAlloc,
             edited<M>("", longBytes, [](M& m) { m += longBytes.c_str(); })},
            {"ZMultiByteString[] and resize", endsAlloc,
             edited<M>("abc", "abc",
                       [](M& m) {
                           m[200] = '\0';
                           m.resize(400);
                       })},
            {"ZMultiByteString subString", endsAlloc,
             made<M>([text = M(longBytes.c_str())] { return text.subString(10, 3); }, "nnn")},
            {"ZMultiByteString set", endsAlloc,
             edited<M>("", longBytes, [](M& m) { m.set("%s", longBytes.c_str()); })},
            {"ZWideString(text)", endsAlloc, made<W>([] { return W(L"abc"); }, L"abc")},
            {"ZWideString(narrow)", endsAlloc, made<W>([] { return W("abc"); }, L"abc")},
            {"ZWideString(narrow, n)", endsAlloc,
             made<W>([] { return W(longBytes.c_str(), 3); }, L"nnn")},
            {"ZWideString(ZString)", endsAlloc,
             made<W>([text = ZString(L"abc")] { return W(text); }, L"abc")},
            {"ZWideString copied", endsAlloc,
             made<W>([source = W(L"abc")] { return W(source); }, L"abc")},
            {"ZWideString =", endsAlloc,
             edited<W>(L"abc", longText, [](W& w) { w = longText.c_str(); })},
            {"ZWideString = narrow", endsAlloc,
             edited<W>(L"", std::wstring(600, L'n'), [](W& w) { w = longBytes.c_str(); })},
            {"ZWideString += narrow", endsAlloc,
             edited<W>(L"wide ", L"wide narrow", [](W& w) { w += "narrow"; })},
            {"ZWideString +=", endsAlloc,
             edited<W>(L"", longText, [](W& w) { w += longText.c_str(); })},
            {"ZWideString set", endsAlloc,
             edited<W>(L"", longText, [](W& w) { w.set(L"%s", longText.c_str()); })},
            {"strToUtf8", endsAlloc,
             made<M>([text = ZString(L"\u00E9")] { return strToUtf8(text); }, "\xC3\xA9")},
            {"utf8ToStr", endsAlloc,
             made<ZString>([text = M("\xC3\xA9")] { return utf8ToStr(text); }, L"\u00E9")},
            {"wideToUtf8 into a string", endsAlloc,
             edited<M>("abc", std::string(600, 'w'),
                       [text = W(longText.c_str())](M& m) { wideToUtf8(text, m); })},
            {"strToWide and back", endsAlloc,
             made<ZString>([] { return wideToStr(strToWide(L"abc")); }, L"abc")},
            // A code page of the system's: without memory there, it counts as unknown.
            {"mbsToStr, code page 1252", endsAlloc,
             [](Trial& t) {
                 const M text("\xE9");
                 std::optional<ZString> read;
                 t.attempt([&] { read.emplace(mbsToStr(text, 1252)); });
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
