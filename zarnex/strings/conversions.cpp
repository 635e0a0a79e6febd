#include <zarnex/strings/conversions.h>

#include <zarnex/strings/internal/textArray.h>

using namespace zarnex::detail;
using zarnex::platform::utf8CodePage;

namespace {

const char* unitsOf(const ZMultiByteString& text) {
    return text;
}

const wchar_t* unitsOf(const ZWideString& text) {
    return text;
}

const wchar_t* unitsOf(const ZString& text) {
    return text;
}

template <class String, class Char>
void convert(const Char* text, String& out, unsigned codePage) {
    assignConverted(TextAccess::array(out), text, codePage);
}

} // namespace

ZWideString mbsToWide(const ZMultiByteString& text, unsigned codePage) {
    return converted<ZWideString>(unitsOf(text), codePage);
}

void mbsToWide(const ZMultiByteString& text, ZWideString& out, unsigned codePage) {
    convert(unitsOf(text), out, codePage);
}

ZMultiByteString wideToMbs(const ZWideString& text, unsigned codePage) {
    return converted<ZMultiByteString>(unitsOf(text), codePage);
}

void wideToMbs(const ZWideString& text, ZMultiByteString& out, unsigned codePage) {
    convert(unitsOf(text), out, codePage);
}

ZString mbsToStr(const ZMultiByteString& text, unsigned codePage) {
    return converted<ZString>(unitsOf(text), codePage);
}

void mbsToStr(const ZMultiByteString& text, ZString& out, unsigned codePage) {
    convert(unitsOf(text), out, codePage);
}

ZMultiByteString strToMbs(const wchar_t* text, unsigned codePage) {
    return converted<ZMultiByteString>(text, codePage);
}

void strToMbs(const wchar_t* text, ZMultiByteString& out, unsigned codePage) {
    convert(text, out, codePage);
}

ZWideString utf8ToWide(const ZMultiByteString& text) {
    return mbsToWide(text, utf8CodePage);
}

void utf8ToWide(const ZMultiByteString& text, ZWideString& out) {
    mbsToWide(text, out, utf8CodePage);
}

ZMultiByteString wideToUtf8(const ZWideString& text) {
    return wideToMbs(text, utf8CodePage);
}

void wideToUtf8(const ZWideString& text, ZMultiByteString& out) {
    wideToMbs(text, out, utf8CodePage);
}

ZString utf8ToStr(const ZMultiByteString& text) {
    return mbsToStr(text, utf8CodePage);
}

void utf8ToStr(const ZMultiByteString& text, ZString& out) {
    mbsToStr(text, out, utf8CodePage);
}

ZMultiByteString strToUtf8(const ZString& text) {
    return strToMbs(unitsOf(text), utf8CodePage);
}

void strToUtf8(const ZString& text, ZMultiByteString& out) {
    strToMbs(unitsOf(text), out, utf8CodePage);
}

ZWideString strToWide(const wchar_t* text, unsigned) {
    return ZWideString(text);
}

void strToWide(const wchar_t* text, ZWideString& out, unsigned) {
    out = text;
}

ZString wideToStr(const ZWideString& text, unsigned) {
    return ZString(unitsOf(text));
}

void wideToStr(const ZWideString& text, ZString& out, unsigned) {
    out = unitsOf(text);
}
