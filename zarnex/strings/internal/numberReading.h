#pragma once

/// Numbers at the start of wide text, read the same in every locale.

namespace zarnex::detail {

/// The number that `text` begins with, as the C library's wcstod reads it in the
/// "C" locale: white space, a sign, then decimal or hexadecimal digits with an
/// exponent, "inf", "infinity" or "nan". What follows is ignored; no number is
/// 0.0. Out of range is an infinity or, for values too small, zero.
double readDouble(const wchar_t* text);

/// The decimal integer that `text` begins with, behind white space and a sign; no
/// integer is 0. Out of range is the nearest int.
int readInt(const wchar_t* text);

} // namespace zarnex::detail
