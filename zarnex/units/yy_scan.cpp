#include <zarnex/units/yy_scan.h>

#include <zarnex/runtime/exiting.h>
#include <zarnex/units/internal/scannedNumber.h>
#include <zarnex/units/internal/tokenTables.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <new>

using namespace zarnex::detail;

yy_scan::yy_scan(int size) : yystates(nullptr), yysize(size), yyowned(1), yytext(nullptr) {
    if (size >= 0) {
        const std::size_t room = static_cast<std::size_t>(size) + 1;
        yytext = new (std::nothrow) char[room];
        yystates = new (std::nothrow) unsigned char[room];
    }
    if (yytext == nullptr || yystates == nullptr)
        yy_scan::yyerror("No space for scanner!");
    *yytext = '\0';
}

yy_scan::yy_scan(int size, char* text, unsigned char* states)
    : yystates(states), yysize(size), yyowned(0), yytext(text) {
    if (size < 20 || text == nullptr || states == nullptr)
        yy_scan::yyerror("Bad space for scanner!");
    *yytext = '\0';
}

yy_scan::~yy_scan() {
    if (yyowned != 0) {
        delete[] yytext;
        delete[] yystates;
    }
}

int yy_scan::yygetc() {
    return yyin != nullptr ? std::getc(yyin) : -1;
}

int yy_scan::yywrap() {
    return 1;
}

void yy_scan::yyputc(int c) {
    if (yyout != nullptr)
        std::putc(c, yyout);
}

void yy_scan::yyerror(const char* message) {
    if (message == nullptr)
        message = "";
    if (yylineno != 0)
        std::fprintf(stderr, "%d: %s\n", yylineno, message);
    else
        std::fprintf(stderr, "%s\n", message);
    zarnex::exitFatally(nullptr, 1);
}

void yy_scan::yyecho() {
    if (yyout != nullptr)
        std::fwrite(yytext, 1, static_cast<std::size_t>(yyleng), yyout);
}

double yy_scan::yynumber() {
    return scannedNumber;
}

int yy_scan::yylex() {
    int token = yystep();
    while (token < 0)
        token = yystep();
    return token;
}

int yy_scan::yystep() {
    static_assert(yySkipped == skippedToken);

    // The token before makes room, and what was read ahead begins the next one.
    char* const text = yytext;
    unsigned char* const states = yystates;
    text[yyleng] = static_cast<char>(yysaved);
    if (yyleng > 0) {
        yyprevious = static_cast<unsigned char>(text[yyleng - 1]);
        yylineno += static_cast<int>(std::count(text, text + yyleng, '\n'));
        yyheld -= yyleng;
        std::copy_n(text + yyleng, yyheld, text);
        yyleng = 0;
    }

    std::uint8_t state = Automaton::start; // for every start condition, at a line's start or not
    int length = 0;
    while (!tokenAutomaton.last[state]) {
        if (length == yysize) {
            yyerror("Token buffer overflow");
            break;
        }
        if (length == yyheld) {
            const int c = yygetc();
            if (c == -1)
                break;
            text[yyheld++] = static_cast<char>(c & 0xFF);
        }
        const auto byte = static_cast<unsigned char>(text[length]);
        state = tokenAutomaton.next[state][tokenAutomaton.classOf[byte]];
        states[++length] = state;
    }

    const bool atEnd = length == 0;
    while (length > 0 && tokenAutomaton.rule[states[length]] == Automaton::noRule)
        --length;
    const bool accepted = length > 0;
    yyleng = accepted ? length : (atEnd ? 0 : 1);
    yysaved = yyleng < yyheld ? static_cast<unsigned char>(text[yyleng]) : 0;
    text[yyleng] = '\0';

    if (accepted) {
        const int token = tokenRules[tokenAutomaton.rule[states[length]]].token;
        if (token == zarnex::unitNumber)
            storeScannedNumber(text, text + yyleng);
        return token;
    }
    if (atEnd)
        return yywrap() != 0 ? 0 : yySkipped;
    return yyDropped;
}

void yy_scan::yyunput(int c) {
    if (c == -1)
        return;
    if (yyheld >= yysize) {
        yyerror("Push-back buffer overflow");
        return;
    }
    // The character takes the place of the 0, and what stood there follows it.
    char* const rest = yytext + yyleng;
    std::copy_backward(rest, yytext + yyheld, yytext + yyheld + 1);
    if (yyheld > yyleng)
        rest[1] = static_cast<char>(yysaved);
    yysaved = c & 0xFF;
    ++yyheld;
    if (yysaved == '\n')
        --yylineno;
}
