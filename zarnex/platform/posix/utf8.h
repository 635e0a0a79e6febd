#pragma once

/// UTF-8 codec with the outcomes of the Windows conversions.

namespace zarnex::platform {

/// Decodes one sequence at `text`, before `end`; moves `text` past it.
///
/// An ill-formed sequence gives U+FFFD, and `text` moves past its longest part
/// that begins a well-formed one, or past one byte.
/// Source: The Unicode Standard, chapter 3.9, table 3-7 and "U+FFFD
/// Substitution of Maximal Subparts".
char32_t decodeUtf8(const unsigned char*& text, const unsigned char* end);

/// The bytes that `character` takes in UTF-8, written to `out` (up to 4).
/// Surrogates and values above U+10FFFF are encoded as U+FFFD.
int encodeUtf8(char32_t character, char* out);

} // namespace zarnex::platform
