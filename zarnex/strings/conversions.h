#pragma once

/// @file
/// Conversions between wide text and 8-bit text in a code page.
///
/// Each function comes in two forms: one returns the result, the other assigns it to
/// `out`, whose storage it uses again. Names tell the types: `mbs` is ZMultiByteString,
/// `wide` ZWideString, `str` ZString or plain wide text, `utf8` a ZMultiByteString in
/// UTF-8.
///
/// A code page is a number as Windows counts them: 0 is the system's own (UTF-8 on Linux),
/// 65001 UTF-8. On Linux the others are those that the C library's iconv knows as
/// "CP1252". With an unknown code page the result is the empty text, as it is where it
/// would have more than 2^31 - 2 bytes or units.
///
/// What cannot be converted:
/// - UTF-8 follows one rule on both platforms. An ill-formed sequence gives one U+FFFD for
///   its longest part that begins a well-formed one, or else for one byte. Surrogates
///   without their other half become the three bytes of U+FFFD.
/// - In other code pages, a unit without a place becomes the code page's replacement,
///   mostly '?'. Windows first tries a best fit ('a' for U+0101), Linux does not.
///   Bytes that mean nothing give a replacement that Windows has for each code page;
///   Linux has U+FFFD.
///
/// Texts end at their terminator. The slots in use of a result are its length + 1. Nothing
/// throws or depends on the locale, and UTF-8 takes no lock; on Linux the other code pages
/// take the C library's. Without memory the process ends with "failed alloc" and status 1.
///
///     const ZMultiByteString sent = strToUtf8(L"\u00E9");   // C3 A9
///     const ZString received = utf8ToStr(sent);
///     const ZWideString legacy = mbsToWide("\xE9", 1252);   // U+00E9
///
/// Source: for UTF-8, The Unicode Standard, chapter 3.9, "U+FFFD Substitution of Maximal
/// Subparts".

#include <zarnex/config.h>
#include <zarnex/strings/ZMultiByteString.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/strings/ZWideString.h>

/// @name By code page
/// @{

/// From or to `codePage`; the system's own where none is named.
ZARNEX_API ZWideString mbsToWide(const ZMultiByteString& text, unsigned int codePage = 0);
ZARNEX_API void mbsToWide(const ZMultiByteString& text, ZWideString& out,
                          unsigned int codePage = 0);

ZARNEX_API ZMultiByteString wideToMbs(const ZWideString& text, unsigned int codePage = 0);
ZARNEX_API void wideToMbs(const ZWideString& text, ZMultiByteString& out,
                          unsigned int codePage = 0);

ZARNEX_API ZString mbsToStr(const ZMultiByteString& text, unsigned int codePage = 0);
ZARNEX_API void mbsToStr(const ZMultiByteString& text, ZString& out, unsigned int codePage = 0);

ZARNEX_API ZARNEX_WIDE ZMultiByteString strToMbs(const wchar_t* text, unsigned int codePage = 0);
ZARNEX_API ZARNEX_WIDE void strToMbs(const wchar_t* text, ZMultiByteString& out,
                                     unsigned int codePage = 0);
/// @}

/// @name UTF-8
/// @{

/// From or to UTF-8.
ZARNEX_API ZWideString utf8ToWide(const ZMultiByteString& text);
ZARNEX_API void utf8ToWide(const ZMultiByteString& text, ZWideString& out);

ZARNEX_API ZMultiByteString wideToUtf8(const ZWideString& text);
ZARNEX_API void wideToUtf8(const ZWideString& text, ZMultiByteString& out);

ZARNEX_API ZString utf8ToStr(const ZMultiByteString& text);
ZARNEX_API void utf8ToStr(const ZMultiByteString& text, ZString& out);

ZARNEX_API ZMultiByteString strToUtf8(const ZString& text);
ZARNEX_API void strToUtf8(const ZString& text, ZMultiByteString& out);
/// @}

/// @name Between the two wide classes
/// @{

/// A copy of the text.
///
/// Kept as is: the code page is ignored, although these stand in one line with functions that
/// convert.
ZARNEX_API ZWideString strToWide(const wchar_t* text, unsigned int codePage = 0);
ZARNEX_API void strToWide(const wchar_t* text, ZWideString& out, unsigned int codePage = 0);

ZARNEX_API ZString wideToStr(const ZWideString& text, unsigned int codePage = 0);
ZARNEX_API void wideToStr(const ZWideString& text, ZString& out, unsigned int codePage = 0);
/// @}
