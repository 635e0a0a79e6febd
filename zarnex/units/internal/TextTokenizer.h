#pragma once

namespace zarnex::detail {

/// The most characters of a token.
inline constexpr int tokenRoom = 100;

/// A character of wide text as ZUnitScanner::yygetc() returns it.
int scannedCharacter(wchar_t c);

/// Its low 8 bits, except 0 where these alone make a letter white space that is dropped:
/// U+010D looks like a carriage return.
unsigned char scannedByte(int character);

/// White space, in tokens or dropped.
bool isScannedSpace(unsigned char byte);

/// Cuts wide text into tokens in its own place, as a ZUnitScanner does that nobody
/// derives from.
struct TextTokenizer {
    const wchar_t* text;
    const wchar_t* begin = text;   ///< of the latest token
    const wchar_t* end = text;     ///< of the latest token
    const wchar_t* readEnd = text; ///< behind the last character that was looked at
    int wordDropped = 0;           ///< see ZUnitScanner::wordDropped()

    /// What next() answers where tokenRoom characters do not end a token.
    static constexpr int overrun = -1;

    /// Goes to the next token, as ZUnitScanner::yylex().
    int next();
};

} // namespace zarnex::detail
