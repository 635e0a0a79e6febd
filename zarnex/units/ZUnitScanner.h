#pragma once

#include <zarnex/config.h>

namespace zarnex::detail {
class UnitEngine;
}

/// Splits a typed quantity such as "12.5 mm" or "40 per sq cm" into tokens.
///
///     ZUnitScanner scanner(L"3 inches");
///     scanner.yylex();   // 1, and scanner.value is 3.0
///     scanner.yylex();   // 4, inches
///     scanner.yylex();   // 0, the end
///
/// A number is an optional sign, digits, and an optional point with at least one
/// digit behind it; the decimal sign is "." under every locale. The unit words:
///
///     2  mm  milli  millimeter  millimeters
///     3  cm  centi  centimeter  centimeters
///     4  "  in  inch  inches
///     5  p  pt  point  points
///     6  spi  stitch  stitches  stitches per inch
///     7  / sq cm, where "per" may stand for "/", "square" for "sq", and nothing or
///        a longer word of 3 for "cm"
///
/// Case does not matter. The longest token wins: "3 int" is a number, inches and
/// a "t". Characters that begin no token are dropped in silence. Reading takes
/// time in proportion to the characters read.
///
/// Kept as is: the blanks of 7 and of "stitches per inch" are exactly one blank
/// each, although any white space may stand between tokens, and "/ sq " needs
/// the last one although nothing follows: "40 / sq" is a bare number.
///
/// One scanner works at a time: the process-wide scanner lock is held from
/// construction to destruction, on the thread that does both. A second scanner
/// on the same thread works, one on another thread waits. Let scanners live briefly.
///
/// A token that reaches 100 characters ends the process ("Token buffer overflow"
/// on the standard error stream, status 1): a hundred digits, or blanks.
class ZARNEX_API ZARNEX_WIDE ZUnitScanner {
public:
    /// Takes the lock and begins at the start of `text`, which is not copied and
    /// must outlive the scanner unchanged; null is the empty text. Without memory for its
    /// buffers the process ends with status 1 ("No space for scanner!").
    explicit ZUnitScanner(const wchar_t* text);

    /// Not to be copied: the scanner holds a lock.
    /// @{
    ZUnitScanner(const ZUnitScanner&) = delete;
    ZUnitScanner& operator=(const ZUnitScanner&) = delete;
    /// @}

    /// Releases the lock.
    virtual ~ZUnitScanner();

    /// Steps past the next character and returns it whole, in lower case ('A' to
    /// 'Z' always; U+0080 to U+00FF as the process locale maps them; nothing
    /// above). Returns -1 at the end of the text and does not step past it.
    ///
    /// Kept as is: matching looks at the low 8 bits of the result alone, so
    /// U+0132 counts as "2" and U+016D as "m", although the result is whole. A
    /// character with low bits 0 does not end the text, nor does U+00FF.
    virtual int yygetc();

    /// Reads the next token: 1 for a number, 2 to 7 for a unit word, 0 at the end
    /// of the text, and so again from then on.
    virtual int yylex();

    /// 1 if the latest yylex() dropped a word: a character that stood behind white
    /// space. What follows a token directly is no word, nor is what begins the
    /// text: "3 int" and "5 cm/s" answer 0, "3 int t" and "5 mm extra" 1.
    ///
    /// White space is blank, tab and newline, at the end of a token too, and
    /// carriage return, vertical tab and form feed, although those are dropped.
    int wordDropped() const;

    /// Where the token of the latest yylex() begins, in characters from the start
    /// of the text. At the end of the text its length; 0 before the first call.
    int tokenBegin() const;

    /// One past the last character of that token, counted alike.
    int tokenEnd() const;

private:
    const wchar_t* position_;
    zarnex::detail::UnitEngine* engine_;

public:
    /// After a number token its value; 0.0 before the first yylex().
    ///
    /// Kept as is: every yylex() stores the latest number of the process here,
    /// although a unit word or the end brings none, and a lone "+" or "-" is a
    /// number token without a number: the value may be an earlier scanner's.
    double value;
};
