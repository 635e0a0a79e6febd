#include "host/Reading.h"

#include "host/trimming.h"
#include "host/utf8.h"

#include <zarnex/units/ZUnitScanner.h>

#include <algorithm>

namespace host {

namespace {

constexpr int tokenRoom = 100; // characters; a token must stay below

// The whole of the scanner's view of a character: its low 8 bits.
char lowBits(wchar_t c) {
    return static_cast<char>(static_cast<unsigned>(c) & 0xFF);
}

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n';
}

bool isSign(char c) {
    return c == '+' || c == '-';
}

// Whether a token could reach `tokenRoom`. Numbers and white space alone have no
// greatest length, and a sign begins a number.
bool overrunsScanner(std::wstring_view text) {
    if (text.size() < std::size_t{tokenRoom})
        return false;
    int digits = 0;
    int blanks = 0;
    for (const wchar_t unit : text) {
        const char c = lowBits(unit);
        if (isSign(c))
            digits = 1;
        else
            digits = (c >= '0' && c <= '9') || c == '.' ? digits + 1 : 0;
        blanks = isBlank(c) ? blanks + 1 : 0;
        if (digits >= tokenRoom || blanks >= tokenRoom)
            return true;
    }
    return false;
}

// A stretch of the text, in characters.
struct Span {
    int begin;
    int end;
};

Span tokenOf(const ZUnitScanner& scanner) {
    return {scanner.tokenBegin(), scanner.tokenEnd()};
}

std::wstring_view cut(std::wstring_view text, Span span) {
    return text.substr(static_cast<std::size_t>(span.begin),
                       static_cast<std::size_t>(span.end - span.begin));
}

// The speed that displays as `unit` and "/s", or `unit` if there is none.
int speedOf(int unit) {
    switch (unit) {
    case zarnex::unitMillimeter:
        return zarnex::unitMillimeterPerSec;
    case zarnex::unitCentimeter:
        return zarnex::unitCentimeterPerSec;
    default:
        return unit;
    }
}

// Whether "/s" stands at `at` and ends a word.
bool isPerSecond(std::wstring_view text, int at) {
    const std::wstring_view rest = text.substr(static_cast<std::size_t>(at));
    return rest.size() >= 2 && rest[0] == L'/' && (rest[1] == L's' || rest[1] == L'S') &&
           (rest.size() == 2 || isBlank(lowBits(rest[2])));
}

// The first character beyond ASCII, as UTF-8; empty if there is none.
std::string beyondAscii(std::wstring_view token) {
    const auto found = std::find_if(token.begin(), token.end(),
                                    [](wchar_t c) { return static_cast<unsigned>(c) > 0x7F; });
    return found == token.end() ? std::string() : toUtf8({&*found, 1});
}

void addPiece(std::string& pieces, std::wstring_view piece) {
    constexpr std::wstring_view space = L" \t\r\n\v\f\u00A0\u2007\u2009\u202F";
    piece = trimmed(piece, space);
    if (piece.empty())
        return;
    if (!pieces.empty())
        pieces += ' ';
    pieces += toUtf8(piece);
}

std::string problemBefore(std::string_view text, std::wstring& wide) {
    if (text.size() > mostTextBytes)
        return "longer than " + std::to_string(mostTextBytes) + " bytes";
    if (text.find('\0') != std::string_view::npos)
        return "a NUL byte in it";
    if (!toWide(text, wide))
        return "not UTF-8";
    if (overrunsScanner(wide))
        return std::to_string(tokenRoom) + " digits or blanks in a row";
    return {};
}

} // namespace

Reading::Reading(std::string_view text, int bareUnit) {
    std::wstring wide;
    problem = problemBefore(text, wide);
    if (!problem.empty())
        return;

    Span numberAt{0, 0};
    Span unitAt{0, 0};
    int word = zarnex::unitNone;
    {
        ZUnitScanner scanner(wide.c_str());
        if (scanner.yylex() != zarnex::unitNumber) {
            problem = "no number";
            return;
        }
        number = scanner.value;
        numberAt = tokenOf(scanner);
        word = scanner.yylex();
        unitAt = tokenOf(scanner);
    } // the scanner holds a lock, and the quantity takes it again

    if (word == zarnex::unitNone || word == zarnex::unitNumber) {
        word = bareUnit;
        unitAt = {numberAt.end, numberAt.end};
    } else if (speedOf(word) != word && isPerSecond(wide, unitAt.end)) {
        word = speedOf(word);
        unitAt.end += 2;
    }
    const std::wstring_view numberIn = cut(wide, numberAt);
    const std::wstring_view unitIn = cut(wide, unitAt);

    std::string strange = beyondAscii(numberIn);
    if (strange.empty())
        strange = beyondAscii(unitIn);
    if (!strange.empty()) {
        problem = quoted(strange) + " is no part of a number or a unit";
        return;
    }
    if (numberIn.size() == 1 && isSign(lowBits(numberIn[0]))) {
        problem = "a sign without digits";
        return;
    }

    unit = word;
    numberText = toUtf8(numberIn);
    unitText = toUtf8(unitIn);
    addPiece(ignored, cut(wide, {0, numberAt.begin}));
    addPiece(ignored, cut(wide, {numberAt.end, unitAt.begin}));
    addPiece(ignored, cut(wide, {unitAt.end, static_cast<int>(wide.size())}));

    quantity = quantityFrom(ZString(wide.c_str()), unit);
    if (!isValid(quantity))
        problem = "text behind the unit";
}

} // namespace host
