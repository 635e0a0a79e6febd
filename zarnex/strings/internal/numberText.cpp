#include <zarnex/strings/internal/numberText.h>

#include <zarnex/strings/internal/fewDecimals.h>

#include <charconv>
#include <cmath>
#include <cstring>

namespace zarnex::detail {

namespace {

// The pieces of a rendered number: sign and base in front, zeros that the
// precision asks for, digits, and zeros behind (decimals that are always zero).
struct Pieces {
    char prefix[4];
    int prefixLength = 0;
    std::size_t zerosInFront = 0;
    const char* digits = nullptr;
    std::size_t digitCount = 0;
    const char* tail = nullptr; // an exponent, behind the zeros
    std::size_t tailCount = 0;
    std::size_t zerosBehind = 0;

    void addPrefix(char c) {
        prefix[prefixLength++] = c;
    }
    std::size_t length() const {
        return static_cast<std::size_t>(prefixLength) + zerosInFront + digitCount + zerosBehind +
               tailCount;
    }
};

void addSign(Pieces& pieces, bool negative, const NumberLayout& layout) {
    if (negative)
        pieces.addPrefix('-');
    else if (layout.plus)
        pieces.addPrefix('+');
    else if (layout.blank)
        pieces.addPrefix(' ');
}

template <class Char>
void appendPieces(TextBuffer<Char>& out, const Pieces& pieces, const NumberLayout& layout,
                  bool zeroPads) {
    const std::size_t length = pieces.length();
    const auto width = static_cast<std::size_t>((std::max)(layout.width, 0));
    const std::size_t padding = width > length ? width - length : 0;
    if (!layout.left && !zeroPads)
        out.append(Char{' '}, padding);
    out.append(pieces.prefix, pieces.prefix + pieces.prefixLength);
    out.append(Char{'0'}, pieces.zerosInFront + (!layout.left && zeroPads ? padding : 0));
    out.append(pieces.digits, pieces.digits + pieces.digitCount);
    out.append(Char{'0'}, pieces.zerosBehind);
    out.append(pieces.tail, pieces.tail + pieces.tailCount);
    if (layout.left)
        out.append(Char{' '}, padding);
}

void capitalise(char* begin, const char* end) {
    for (; begin != end; ++begin) {
        // NOLINTNEXTLINE(clang-analyzer-core.UndefinedBinaryOperatorResult): std::to_chars wrote it
        if (*begin >= 'a' && *begin <= 'z')
            *begin = static_cast<char>(*begin - 'a' + 'A');
    }
}

// No double has a nonzero decimal past this many, nor a significant digit past it.
constexpr int mostDigits = 1100;

// Room for any double with mostDigits decimals, a sign, a dot and an exponent.
using DigitRoom = char[mostDigits + 400];

char* finiteDigits(DigitRoom& room, double magnitude, char kind, int precision) {
    char* const end = room + sizeof room;
    switch (kind) {
    case 'f':
        if (char* const few = fewDecimals(room, magnitude, precision))
            return few;
        return std::to_chars(room, end, magnitude, std::chars_format::fixed, precision).ptr;
    case 'e':
        return std::to_chars(room, end, magnitude, std::chars_format::scientific, precision).ptr;
    case 'g':
        return std::to_chars(room, end, magnitude, std::chars_format::general, precision).ptr;
    default:
        if (precision < 0)
            return std::to_chars(room, end, magnitude, std::chars_format::hex).ptr;
        return std::to_chars(room, end, magnitude, std::chars_format::hex, precision).ptr;
    }
}

// '#' with g keeps the trailing zeros that g drops: choose e or f as g does and
// render with the precision that this leaves.
// Source: ISO/IEC 9899:2011, 7.21.6.1, conversion g.
char* generalWithZeros(DigitRoom& room, double magnitude, int precision, char& kind) {
    precision = (std::max)(precision, 1);
    char* const end = finiteDigits(room, magnitude, 'e', precision - 1);
    const char* const mark = std::find(room, end, 'e');
    int exponent = 0;
    std::from_chars(mark + (mark[1] == '+' ? 2 : 1), end, exponent);
    if (exponent < -4 || exponent >= precision) {
        kind = 'e';
        return end;
    }
    kind = 'f';
    return finiteDigits(room, magnitude, 'f', precision - 1 - exponent);
}

} // namespace

template <class Char>
void appendInteger(TextBuffer<Char>& out, std::uint64_t magnitude, bool negative, char conversion,
                   const NumberLayout& layout) {
    const int base = conversion == 'o' ? 8 : conversion == 'x' || conversion == 'X' ? 16 : 10;
    char digits[24];
    char* const end = std::to_chars(digits, digits + sizeof digits, magnitude, base).ptr;
    if (conversion == 'X')
        capitalise(digits, end);

    Pieces pieces;
    if (conversion == 'd' || conversion == 'i')
        addSign(pieces, negative, layout);
    pieces.digits = digits;
    pieces.digitCount =
        layout.precision == 0 && magnitude == 0 ? 0 : static_cast<std::size_t>(end - digits);
    if (layout.precision > 0 && static_cast<std::size_t>(layout.precision) > pieces.digitCount)
        pieces.zerosInFront = static_cast<std::size_t>(layout.precision) - pieces.digitCount;
    if (layout.alternate) {
        if (base == 16 && magnitude != 0) {
            pieces.addPrefix('0');
            pieces.addPrefix(conversion);
        }
        if (base == 8 && pieces.zerosInFront == 0 && (magnitude != 0 || pieces.digitCount == 0))
            pieces.zerosInFront = 1;
    }
    appendPieces(out, pieces, layout, layout.zero && layout.precision < 0);
}

template <class Char>
void appendDouble(TextBuffer<Char>& out, double value, char conversion,
                  const NumberLayout& layout) {
    const bool capital = conversion < 'a';
    char kind = capital ? static_cast<char>(conversion - 'A' + 'a') : conversion;
    Pieces pieces;
    DigitRoom room;
    if (!std::isfinite(value)) {
        if (!std::isnan(value))
            addSign(pieces, value < 0, layout);
        pieces.digits = room;
        pieces.digitCount = 3;
        // NOLINTNEXTLINE(bugprone-not-null-terminated-result): the digits are counted
        std::memcpy(room, std::isnan(value) ? "nan" : "inf", 3);
        if (capital)
            capitalise(room, room + 3);
        appendPieces(out, pieces, layout, false);
        return;
    }

    addSign(pieces, std::signbit(value), layout);
    if (kind == 'a') {
        pieces.addPrefix('0');
        pieces.addPrefix(capital ? 'X' : 'x');
    }
    const double magnitude = std::fabs(value);
    const int asked = layout.precision < 0 && kind != 'a' ? 6 : layout.precision;
    const int precision = (std::min)(asked, mostDigits);
    const bool keepsZeros = kind == 'g' && layout.alternate;
    char* const end = keepsZeros ? generalWithZeros(room, magnitude, precision, kind)
                                 : finiteDigits(room, magnitude, kind, precision);

    // Zeros beyond what was rendered, and the dot of '#', stand before an exponent.
    char* const tail = kind == 'f' ? end : std::find(room, end, kind == 'a' ? 'p' : 'e');
    if (capital)
        capitalise(room, end);
    pieces.digits = room;
    pieces.digitCount = static_cast<std::size_t>(tail - room);
    pieces.tail = tail;
    pieces.tailCount = static_cast<std::size_t>(end - tail);
    if (kind != 'g' && asked > precision)
        pieces.zerosBehind = static_cast<std::size_t>(asked - precision);
    char tailWithDot[16];
    if (layout.alternate && std::find(room, tail, '.') == tail) {
        tailWithDot[0] = '.';
        std::copy(tail, end, tailWithDot + 1);
        pieces.tail = tailWithDot;
        ++pieces.tailCount;
    }
    appendPieces(out, pieces, layout, layout.zero);
}

template void appendInteger(TextBuffer<char>&, std::uint64_t, bool, char, const NumberLayout&);
template void appendInteger(TextBuffer<wchar_t>&, std::uint64_t, bool, char, const NumberLayout&);
template void appendDouble(TextBuffer<char>&, double, char, const NumberLayout&);
template void appendDouble(TextBuffer<wchar_t>&, double, char, const NumberLayout&);

} // namespace zarnex::detail
