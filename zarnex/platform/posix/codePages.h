#pragma once

/// Code pages other than UTF-8, by the C library's iconv, which knows them as "CP1252".
///
/// What iconv refuses is treated as Windows does:
/// - A byte 80..9F without a character is the control character of its number, both
///   ways. 1252 leaves five of those.
/// - Other ill-formed bytes give U+FFFD (where Windows has a character for each code
///   page); a lead byte takes the next byte with it, unless that is a terminator.
/// - A unit that the code page cannot hold becomes '?'. There is no best fit: U+0101 is
///   no 'a', although Windows makes one of it in 1252.

namespace zarnex::platform {

/// bytesToWide() and wideToBytes() for a code page that is not UTF-8. Thread-safe: each
/// call opens a descriptor of its own, for which the C library takes a lock and, the first
/// time, loads its table.
int codePageToWide(unsigned int codePage, const char* text, int count, wchar_t* out, int room);
int wideToCodePage(unsigned int codePage, const wchar_t* text, int count, char* out, int room);

} // namespace zarnex::platform
