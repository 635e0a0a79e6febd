#pragma once

#include <zarnex/config.h>

#include <cstdio>

/// The matching engine of the quantity scanner: cuts a stream of characters into
/// numbers and unit words with the tables of one automaton.
///
/// ZUnitScanner runs it on wide text and is what hosts use. On its own it reads
/// bytes from a stream, and a derived class can feed it from anywhere:
///
///     class Feed : public yy_scan {
///     public:
///         int yygetc() override;   // the next character, in lower case, or -1
///     };
///
/// The tokens are those that ZUnitScanner lists, in lower case; the longest wins.
/// What begins no token is dropped, one character at a time.
///
/// Every failure ends the process through yyerror(). An override of yyerror()
/// that returns makes a token end where the buffer is full, and a push-back do
/// nothing.
///
/// The number of the latest number token is one value for the whole process,
/// which no lock of the engine guards: engines of a host's own must not run
/// while another thread scans.
// Functions are virtual, the destructor is not: hosts rely on the layout.
#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#endif
class ZARNEX_API yy_scan {
public:
    /// Takes space for tokens of up to `size` characters; longer ones are fatal.
    /// Without that space, and for a negative size, fatal: "No space for scanner!".
    explicit yy_scan(int size = 100);

    /// Works in `text` and `states`, each of `size` + 1 elements, which stay the
    /// caller's and must outlive the engine. Fatal for a null one or a size
    /// below 20: "Bad space for scanner!".
    ///
    /// Kept as is: this constructor alone asks for 20; the other takes any size.
    yy_scan(int size, char* text, unsigned char* states);

    /// Not to be copied: the engine holds buffers.
    /// @{
    yy_scan(const yy_scan&) = delete;
    yy_scan& operator=(const yy_scan&) = delete;
    /// @}

    /// Not virtual: do not delete an object of a derived class through a yy_scan*.
    ~yy_scan();

    /// The next character, or -1 at the end of the input. Here: a byte of `yyin`.
    ///
    /// Kept as is: of every other value the low 8 bits alone count, so that
    /// U+0132 reads as "2", although -1 is compared whole: 255 is no end.
    virtual int yygetc();

    /// Asked at the end of the input: 1 when no more follows, 0 to read on.
    virtual int yywrap();

    /// Writes one character to `yyout`.
    virtual void yyputc(int c);

    /// Writes `message` (null is empty) and a newline to the standard error
    /// stream, with "<yylineno>: " in front unless the line number is 0, calls
    /// setExiting() and ends the process with status 1.
    virtual void yyerror(const char* message);

    /// Writes the current token to `yyout`.
    virtual void yyecho();

    /// Reads the next token: the unit identifier of a unit word (2 to 7), 1 for
    /// a number, 0 at the end of the input. `yytext` and `yyleng` then tell its
    /// text; at the end they are empty.
    ///
    /// Kept as is: fatal with "Token buffer overflow" when the buffer is full and
    /// the token could still go on, before the next character is looked at: a
    /// hundred digits overflow 100 characters, and so do 99 digits and a ".".
    int yylex();

    /// Puts `c` (its low 8 bits) in front of what is read next; -1 does nothing.
    /// Fatal with "Push-back buffer overflow" when the buffer is full, which the
    /// current token counts towards. A newline takes 1 off `yylineno`.
    void yyunput(int c);

    /// The value of the number token that was read last, by any engine of the
    /// process; 0.0 before the first. Beyond the range of double it is an
    /// infinity or a zero, with the sign of the number.
    ///
    /// Kept as is: a lone "+" or "-" is a number token that leaves it alone, so
    /// the number of an earlier token, or of an earlier scanner, stands.
    static double yynumber();

protected:
    /// What yystep() answers besides tokens.
    enum { yySkipped = -1, yyDropped = -2 };

    /// One round of yylex(): a token, 0 at the end, yySkipped for a run of blanks,
    /// tabs and newlines or a yywrap() that answered 0, yyDropped for a character
    /// that fits no rule. `yytext` holds what was read.
    int yystep();

    // The order of the data members is fixed.
    unsigned char* yystates; ///< yystates[i]: the state behind i characters of a token
    int yysize;              ///< characters that fit in yytext; the buffers hold one more
    int yyowned;             ///< 1 when the engine frees the two buffers
    int yyheld = 0;          ///< characters in yytext: the token, then what is read ahead
    int yystart = 0;         ///< start condition; there is one only, 0
    int yyprevious = '\n';   ///< last character of the token before this one, 0 to 255
    int yysaved = 0;         ///< the character of yytext that its ending 0 hides

public:
    std::FILE* yyin = stdin;   ///< not owned; null is an empty stream
    std::FILE* yyout = stdout; ///< not owned; null takes nothing
    char* yytext;              ///< the token, ended by a 0
    int yylineno = 1;          ///< 1 and the newlines before this token
    int yyleng = 0;            ///< characters in the token
};
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif
