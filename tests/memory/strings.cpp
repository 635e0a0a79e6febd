// ZString, its 8-bit and wide companions, and the conversions between them.

#include "tests/memory/operations.h"

#include <zarnex/foundation.h>

#include <cstring>
#include <cwchar>
#include <memory>
#include <optional>
#include <string>

namespace {

// What operations read: made before the heap fails, and mostly longer than a string's first
// allocation and than the formatter's room on the stack.
const std::string longBytes(600, 'n');
const std::wstring longText(600, L'w');
const ZString longString(longText.c_str());
const ZMultiByteString longNarrow(longBytes.c_str());
const ZWideString longWide(longText.c_str());
const ZString abc(L"abc");

} // namespace

Group stringOperations() {
    using S = ZString;
    return {
        "`ZString`",
        {
            {"ZString(n, step)", endsAlloc, edited(abc, [](S& s) { s = S(40, 8); })},
            {"ZString(wide, n)", endsAlloc, edited(abc, [](S& s) { s = S(longText.c_str(), 3); })},
            {"ZString(wide)", endsAlloc, edited(abc, [](S& s) { s = S(longText.c_str()); })},
            {"ZString(narrow)", endsAlloc, edited(abc, [](S& s) { s = S(longBytes.c_str()); })},
            {"ZString(ZString)", endsAlloc, edited(abc, [](S& s) { s = S(longString); })},
            {"ZString = ZString", endsAlloc, edited(abc, [](S& s) { s = longString; })},
            {"ZString = narrow", endsAlloc, edited(abc, [](S& s) { s = longBytes.c_str(); })},
            {"ZString += wide", endsAlloc, edited(abc, [](S& s) { s += longText.c_str(); })},
            {"ZString += itself", endsAlloc, edited(longString, [](S& s) { s += s; })},
            {"ZString += int", endsAlloc,
             edited(S(L"a length of thirty characters "), [](S& s) { s += 1234567890; })},
            {"wide + ZString + wide + int", endsAlloc,
             edited(abc, [](S& s) { s = L"0" + s + L"d" + 12; })},
            {"ZString[] beyond the end", endsAlloc, edited(abc, [](S& s) { s[700] = L'z'; })},
            {"ZString as a buffer", endsAlloc, edited(abc, [](S& s) { std::wcscpy(s, L"ABCD"); })},
            {"ZString resize() of what was written", endsAlloc,
             edited(abc,
                    [](S& s) {
                        std::wcscpy(s, longText.c_str() + 400);
                        s.resize();
                    })},
            {"ZString truncate upward", endsAlloc, edited(abc, [](S& s) { s.truncate(100); })},
            {"ZString resize upward", endsAlloc, edited(abc, [](S& s) { s.resize(300); })},
            {"ZString findAndReplace", endsAlloc,
             edited(longString, [](S& s) { s.findAndReplace(L"w", L"-+-"); })},
            {"ZString subString", endsAlloc,
             edited(abc, [](S& s) { s = longString.subString(10, 99); })},
            {"ZString set", endsAlloc, edited(abc, [](S& s) { s.set(L"%.1f %40d", 2.5, 7); })},
            {"ZString set, long", endsAlloc,
             edited(abc, [](S& s) { s.set(L"%s%S", longText.c_str(), longBytes.c_str()); })},
            {"ZString getAscii, getWide", goesOn,
             [](Trial& t) {
                 std::unique_ptr<char[]> ascii;
                 std::unique_ptr<wchar_t[]> units;
                 t.attempt([&] {
                     ascii.reset(abc.getAscii());
                     units.reset(abc.getWide());
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
                     t.expect(text == abc && text.hash() == abc.hash());
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
    using S = ZString;
    return {
        "`ZMultiByteString`, `ZWideString`, `ZGenericString`, conversions",
        {
            {"ZMultiByteString(text, n)", endsAlloc,
             edited(M("abc"), [](M& m) { m = M(longBytes.c_str(), 99); })},
            {"ZMultiByteString(ZString, code page)", endsAlloc,
             edited(M("abc"), [](M& m) { m = M(longString, 65001); })},
            {"ZMultiByteString copied", endsAlloc,
             edited(M("abc"), [](M& m) { m = M(longNarrow); })},
            {"ZMultiByteString =", endsAlloc, edited(M("abc"), [](M& m) { m = longNarrow; })},
            {"ZMultiByteString +=", endsAlloc,
             edited(M("abc"), [](M& m) { m += longBytes.c_str(); })},
            {"ZMultiByteString[]", endsAlloc, edited(M("abc"), [](M& m) { m[200] = 'z'; })},
            {"ZMultiByteString resize", endsAlloc, edited(M("abc"), [](M& m) { m.resize(400); })},
            {"ZMultiByteString subString", endsAlloc,
             edited(longNarrow, [](M& m) { m = m.subString(10, 99); })},
            {"ZMultiByteString set", endsAlloc,
             edited(M("abc"), [](M& m) { m.set("%s", longBytes.c_str()); })},
            {"ZWideString(narrow)", endsAlloc,
             edited(W(L"abc"), [](W& w) { w = W(longBytes.c_str()); })},
            {"ZWideString(narrow, n)", endsAlloc,
             edited(W(L"abc"), [](W& w) { w = W(longBytes.c_str(), 99); })},
            {"ZWideString(ZString)", endsAlloc, edited(W(L"abc"), [](W& w) { w = W(longString); })},
            {"ZWideString = narrow", endsAlloc,
             edited(W(L"abc"), [](W& w) { w = longBytes.c_str(); })},
            {"ZWideString += narrow", endsAlloc, edited(longWide, [](W& w) { w += "narrow"; })},
            {"ZWideString set", endsAlloc,
             edited(W(L"abc"), [](W& w) { w.set(L"%s", longText.c_str()); })},
            {"strToUtf8", endsAlloc, edited(M("abc"), [](M& m) { m = strToUtf8(longString); })},
            {"utf8ToStr", endsAlloc, edited(abc, [](S& s) { s = utf8ToStr(longNarrow); })},
            {"wideToUtf8 into a string", endsAlloc,
             edited(M("abc"), [](M& m) { wideToUtf8(longWide, m); })},
            {"strToWide and back", endsAlloc,
             edited(abc, [](S& s) { s = wideToStr(strToWide(longText.c_str())); })},
            // A code page of the system's: without memory there, it counts as unknown.
            {"mbsToStr, code page 1252", endsAlloc,
             [](Trial& t) {
                 S read;
                 t.attempt([&] { read = mbsToStr("\xE9", 1252); });
                 t.expect(holds(read, L"\u00E9") || (t.failed() && read.isEmpty()));
             }},
            {"strToMbs, code page 932", endsAlloc,
             [](Trial& t) {
                 M written;
                 t.attempt([&] { written = strToMbs(L"\u30C6", 932); });
                 t.expect(written == M("\x83\x65") || (t.failed() && written.length() <= 1));
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
