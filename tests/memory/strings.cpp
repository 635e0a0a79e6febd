// ZString, its 8-bit and wide companions, and the conversions between them.

#include "tests/memory/operations.h"

#include <zarnex/foundation.h>

#include <cstring>
#include <cwchar>
#include <optional>
#include <string>

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

/// A string that `make` makes on the failing heap holds `expected` and can grow.
template <class String, class Make, class Unit>
void made(Trial& trial, Make make, const Unit* expected) {
    std::optional<String> text;
    trial.attempt([&] { text.emplace(make()); });
    trial.expectDone(text && holds(*text, expected));
    if (text) {
        *text += expected;
        trial.expect(static_cast<std::size_t>(text->length()) ==
                     2 * std::basic_string<Unit>(expected).size());
    }
}

/// A string that `edit` edits on the failing heap holds `expected` and can grow.
template <class String, class Edit, class Unit>
void edited(Trial& trial, const Unit* begin, Edit edit, const Unit* expected) {
    String text(begin);
    trial.attempt([&] { edit(text); });
    trial.expect(holds(text, expected));
    text += expected;
    trial.expect(static_cast<std::size_t>(text.length()) ==
                 2 * std::basic_string<Unit>(expected).size());
}

} // namespace

Group stringOperations() {
    using S = ZString;
    return {
        "`ZString`",
        {
            {"ZString(n, step)", endsAlloc,
             [](Trial& t) {
                 made<S>(
                     t, [] { return S(40, 8); }, L"");
             }},
            {"ZString(wide)", endsAlloc,
             [](Trial& t) {
                 made<S>(
                     t, [] { return S(L"abc"); }, L"abc");
             }},
            {"ZString(wide, n)", endsAlloc,
             [](Trial& t) {
                 made<S>(
                     t, [] { return S(longText.c_str(), 3); }, L"www");
             }},
            {"ZString(long)", endsAlloc,
             [](Trial& t) {
                 made<S>(
                     t, [] { return S(longText.c_str()); }, longText.c_str());
             }},
            {"ZString(narrow)", endsAlloc,
             [](Trial& t) {
                 made<S>(
                     t, [] { return S("abc"); }, L"abc");
             }},
            {"ZString(long narrow)", endsAlloc,
             [](Trial& t) {
                 made<S>(
                     t, [] { return S(longBytes.c_str()); }, std::wstring(600, L'n').c_str());
             }},
            {"ZString(narrow, n)", endsAlloc,
             [](Trial& t) {
                 made<S>(
                     t, [] { return S(longBytes.c_str(), 3); }, L"nnn");
             }},
            {"ZString(ZString)", endsAlloc,
             [](Trial& t) {
                 const S source(L"abc");
                 made<S>(
                     t, [&] { return S(source); }, L"abc");
             }},
            {"ZString = ZString", endsAlloc,
             [](Trial& t) {
                 const S source(longText.c_str());
                 edited<S>(
                     t, L"abc", [&](S& s) { s = source; }, longText.c_str());
             }},
            {"ZString = wide", endsAlloc,
             [](Trial& t) {
                 edited<S>(
                     t, L"abc", [](S& s) { s = longText.c_str(); }, longText.c_str());
             }},
            {"ZString = narrow", endsAlloc,
             [](Trial& t) {
                 edited<S>(
                     t, L"", [](S& s) { s = longBytes.c_str(); }, std::wstring(600, L'n').c_str());
             }},
            {"ZString += ZString", endsAlloc,
             [](Trial& t) {
                 const S more(longText.c_str());
                 edited<S>(
                     t, L"", [&](S& s) { s += more; }, longText.c_str());
             }},
            {"ZString += itself", endsAlloc,
             [](Trial& t) {
                 edited<S>(
                     t, std::wstring(300, L'w').c_str(), [](S& s) { s += s; }, longText.c_str());
             }},
            {"ZString += wide", endsAlloc,
             [](Trial& t) {
                 edited<S>(
                     t, L"", [](S& s) { s += longText.c_str(); }, longText.c_str());
             }},
            {"ZString += units", endsAlloc,
             [](Trial& t) {
                 edited<S>(
                     t, L"",
                     [](S& s) {
                         for (int i = 0; i < 600; ++i)
                             s += L'w';
                     },
                     longText.c_str());
             }},
            {"ZString += int", endsAlloc,
             [](Trial& t) {
                 edited<S>(
                     t, L"a length of thirty characters ", [](S& s) { s += 1234567890; },
                     L"a length of thirty characters 1234567890");
             }},
            {"ZString + wide + int", endsAlloc,
             [](Trial& t) {
                 const S left(L"a");
                 made<S>(
                     t, [&] { return left + L"b" + 12; }, L"ab12");
             }},
            {"wide + ZString", endsAlloc,
             [](Trial& t) {
                 const S right(L"b");
                 made<S>(
                     t, [&] { return L"a" + right; }, L"ab");
             }},
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
             [](Trial& t) {
                 edited<S>(
                     t, L"abc",
                     [](S& s) {
                         s.truncate(100);
                         s.resize(300);
                     },
                     L"abc");
             }},
            {"ZString findAndReplace", endsAlloc,
             [](Trial& t) {
                 edited<S>(
                     t, std::wstring(200, L'-').c_str(),
                     [](S& s) { s.findAndReplace(L"-", L"www"); }, longText.c_str());
             }},
            {"ZString subString", endsAlloc,
             [](Trial& t) {
                 const S text(longText.c_str());
                 made<S>(
                     t, [&] { return text.subString(10, 3); }, L"www");
             }},
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
             [](Trial& t) {
                 edited<S>(
                     t, L"", [](S& s) { s.set(L"%.1f %40d", 2.5, 7); },
                     L"2.5                                        7");
             }},
            {"ZString set, long", endsAlloc,
             [](Trial& t) {
                 edited<S>(
                     t, L"", [](S& s) { s.set(L"%s", longText.c_str()); }, longText.c_str());
             }},
            {"ZString set, narrow", endsAlloc,
             [](Trial& t) {
                 edited<S>(
                     t, L"", [](S& s) { s.set(L"%S", longBytes.c_str()); },
                     std::wstring(600, L'n').c_str());
             }},
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
            {"ZMultiByteString(text)", endsAlloc,
             [](Trial& t) {
                 made<M>(
                     t, [] { return M("abc"); }, "abc");
             }},
            {"ZMultiByteString(text, n)", endsAlloc,
             [](Trial& t) {
                 made<M>(
                     t, [] { return M(longBytes.c_str(), 3); }, "nnn");
             }},
            {"ZMultiByteString(ZString, code page)", endsAlloc,
             [](Trial& t) {
                 const ZString text(longText.c_str());
                 made<M>(
                     t, [&] { return M(text, 65001); }, std::string(600, 'w').c_str());
             }},
            {"ZMultiByteString copied", endsAlloc,
             [](Trial& t) {
                 const M source("abc");
                 made<M>(
                     t, [&] { return M(source); }, "abc");
             }},
            {"ZMultiByteString =", endsAlloc,
             [](Trial& t) {
                 const M source(longBytes.c_str());
                 edited<M>(
                     t, "abc", [&](M& m) { m = source; }, longBytes.c_str());
             }},
            {"ZMultiByteString +=", endsAlloc,
             [](Trial& t) {
                 edited<M>(
                     t, "", [](M& m) { m += longBytes.c_str(); }, longBytes.c_str());
             }},
            {"ZMultiByteString[] and resize", endsAlloc,
             [](Trial& t) {
                 edited<M>(
                     t, "abc",
                     [](M& m) {
                         m[200] = '\0';
                         m.resize(400);
                     },
                     "abc");
             }},
            {"ZMultiByteString subString", endsAlloc,
             [](Trial& t) {
                 M text(longBytes.c_str());
                 made<M>(
                     t, [&] { return text.subString(10, 3); }, "nnn");
             }},
            {"ZMultiByteString set", endsAlloc,
             [](Trial& t) {
                 edited<M>(
                     t, "", [](M& m) { m.set("%s", longBytes.c_str()); }, longBytes.c_str());
             }},
            {"ZWideString(text)", endsAlloc,
             [](Trial& t) {
                 made<W>(
                     t, [] { return W(L"abc"); }, L"abc");
             }},
            {"ZWideString(narrow)", endsAlloc,
             [](Trial& t) {
                 made<W>(
                     t, [] { return W("abc"); }, L"abc");
             }},
            {"ZWideString(narrow, n)", endsAlloc,
             [](Trial& t) {
                 made<W>(
                     t, [] { return W(longBytes.c_str(), 3); }, L"nnn");
             }},
            {"ZWideString(ZString)", endsAlloc,
             [](Trial& t) {
                 const ZString text(L"abc");
                 made<W>(
                     t, [&] { return W(text); }, L"abc");
             }},
            {"ZWideString copied", endsAlloc,
             [](Trial& t) {
                 const W source(L"abc");
                 made<W>(
                     t, [&] { return W(source); }, L"abc");
             }},
            {"ZWideString =", endsAlloc,
             [](Trial& t) {
                 edited<W>(
                     t, L"abc", [](W& w) { w = longText.c_str(); }, longText.c_str());
             }},
            {"ZWideString = narrow", endsAlloc,
             [](Trial& t) {
                 edited<W>(
                     t, L"", [](W& w) { w = longBytes.c_str(); }, std::wstring(600, L'n').c_str());
             }},
            {"ZWideString += narrow", endsAlloc,
             [](Trial& t) {
                 edited<W>(
                     t, L"wide ", [](W& w) { w += "narrow"; }, L"wide narrow");
             }},
            {"ZWideString +=", endsAlloc,
             [](Trial& t) {
                 edited<W>(
                     t, L"", [](W& w) { w += longText.c_str(); }, longText.c_str());
             }},
            {"ZWideString set", endsAlloc,
             [](Trial& t) {
                 edited<W>(
                     t, L"", [](W& w) { w.set(L"%s", longText.c_str()); }, longText.c_str());
             }},
            {"strToUtf8", endsAlloc,
             [](Trial& t) {
                 const ZString text(L"\u00E9");
                 made<M>(
                     t, [&] { return strToUtf8(text); }, "\xC3\xA9");
             }},
            {"utf8ToStr", endsAlloc,
             [](Trial& t) {
                 const M text("\xC3\xA9");
                 made<ZString>(
                     t, [&] { return utf8ToStr(text); }, L"\u00E9");
             }},
            {"wideToUtf8 into a string", endsAlloc,
             [](Trial& t) {
                 const W text(longText.c_str());
                 edited<M>(
                     t, "abc", [&](M& m) { wideToUtf8(text, m); }, std::string(600, 'w').c_str());
             }},
            {"strToWide and back", endsAlloc,
             [](Trial& t) {
                 made<ZString>(
                     t, [] { return wideToStr(strToWide(L"abc")); }, L"abc");
             }},
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
