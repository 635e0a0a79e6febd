#include <zarnex/units/internal/TextTokens.h>

#include <zarnex/units/internal/tokens.h>

#include <algorithm>
#include <cctype>

namespace zarnex::detail {

namespace {

/// White space that no token holds, and that is dropped for that reason.
bool isDroppedSpace(int c) {
    return c == '\r' || c == '\v' || c == '\f';
}

std::uint8_t classOf(wchar_t c) {
    const auto code = static_cast<unsigned int>(c);
    return code < typedClasses.size() ? typedClasses[code]
                                      : tokenAutomaton.classOf[scannedByte(scannedCharacter(c))];
}

bool isSpace(wchar_t c) {
    return isScannedSpace(scannedByte(scannedCharacter(c)));
}

void readNumberIn(const wchar_t* begin, const wchar_t* end) {
    char digits[tokenRoom];
    char* const stop = std::transform(
        begin, end, digits, [](wchar_t c) { return static_cast<char>(c); }); // the low 8 bits
    readNumber(digits, stop);
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

int TextTokens::next() {
    wordDropped = 0;
    for (;;) {
        TokenWalk walk;
        const wchar_t* at = end;
        while (!walk.isOver()) { // which it is behind the terminator at the latest
            if (walk.read() == tokenRoom)
                return overrun;
            walk.step(classOf(*at++));
        }
        if (at[-1] == L'\0')
            --at;
        readEnd = (std::max)(readEnd, at);
        begin = end;
        end += walk.length();
        if (walk.length() > 0) {
            const int token = walk.token();
            if (token == skippedToken)
                continue;
            if (token == unitNumber)
                readNumberIn(begin, end);
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
