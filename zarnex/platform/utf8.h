#pragma once

/// UTF-8, by one codec on both platforms.
///
/// An ill-formed sequence gives one U+FFFD for its longest part that begins a
/// well-formed one, or else for one byte: "E2 82 z" one, the surrogate "ED A0 80"
/// three, the overlong "C0 AF" two. (Windows itself has been of several minds, so it is
/// not asked.) Surrogates without their other half and values above U+10FFFF are
/// encoded as U+FFFD.
/// Source: The Unicode Standard, chapter 3.9, table 3-7 and "U+FFFD Substitution of
/// Maximal Subparts".

#include <cstddef>

namespace zarnex::platform {

/// bytesToWide() and wideToBytes() for UTF-8. On failure as many whole characters as
/// fit stand in `out`.
int utf8ToWide(const char* text, int count, wchar_t* out, int room);
int wideToUtf8(const wchar_t* text, int count, char* out, int room);

/// likelyWideUnits() for UTF-8: of well-formed text exact, of any other too few at most.
std::size_t utf8WideUnits(const char* text, std::size_t count);

/// characterBytes() for UTF-8.
int utf8CharacterBytes(const char* text);

} // namespace zarnex::platform
