#include <zarnex/units/internal/TextTokenizer.h>

#include <zarnex/units/internal/scannedNumber.h>
#include <zarnex/units/internal/tokenTables.h>

#include <algorithm>
#include <cctype>

namespace zarnex::detail {

namespace {

/// White space that no token holds, and that is dropped for that reason.
bool isDroppedSpace(int c) {
    return c == '\r' || c == '\v' || c == '\f';
}

std::uint8_t classOf(wchar_t c) {
    // NOLINTNEXTLINE(bugprone-signed-char-misuse): it is none
    const auto code = static_cast<unsigned int>(c);
    return code < typedClasses.size() ? typedClasses[code]
                                      : tokenAutomaton.classOf[scannedByte(scannedCharacter(c))];
}

bool isSpace(wchar_t c) {
    return isScannedSpace(scannedByte(scannedCharacter(c)));
}

void storeNumberOf(const wchar_t* begin, const wchar_t* end) {
    char digits[tokenRoom];
    char* const stop = std::transform(
        begin, end, digits, [](wchar_t c) { return static_cast<char>(c); }); // the low 8 bits
    storeScannedNumber(digits, stop);
}

} // namespace

int scannedCharacter(wchar_t wide) {
    // A 32-bit wchar_t may be negative; nothing but the end gives -1.
    const int c = static_cast<int>(static_cast<unsigned int>(wide) & 0x7FFFFFFFu);
    if (c >= 'A' && c <= 'Z')
        return c - 'A' + 'a';
    return c >= 0x80 && c <= 0xFF ? std::tolower(c) : c;
}

unsigned char scannedByte(int character) {
    const int low = character & 0xFF;
    return character > 0xFF && isDroppedSpace(low) ? 0 : static_cast<unsigned char>(low);
}

bool isScannedSpace(unsigned char byte) {
    return byte == ' ' || byte == '\t' || byte == '\n' || isDroppedSpace(byte);
}

int TextTokenizer::next() {
    std::uint8_t states[tokenRoom + 1]; // behind so many characters of the token
    wordDropped = 0;
    for (;;) {
        const wchar_t* at = end;
        std::uint8_t state = Automaton::start;
        int length = 0;
        while (!tokenAutomaton.last[state]) { // which it is behind the terminator at the latest
            if (length == tokenRoom)
                return overrun;
            state = tokenAutomaton.next[state][classOf(*at++)];
            states[++length] = state;
        }
        if (at[-1] == L'\0')
            --at;
        readEnd = (std::max)(readEnd, at);
        while (length > 0 && tokenAutomaton.rule[states[length]] == Automaton::noRule)
            --length;
        begin = end;
        end += length;
        if (length > 0) {
            const int token = tokenRules[tokenAutomaton.rule[states[length]]].token;
            if (token == skippedToken)
                continue;
            if (token == unitNumber)
                storeNumberOf(begin, end);
            return token;
        }
        if (at == begin)
            return unitNone;
        if (begin != text && isSpace(begin[-1]) && !isSpace(*begin))
            wordDropped = 1;
        ++end;
    }
}

} // namespace zarnex::detail
