#include <zarnex/strings/internal/format.h>

#include <zarnex/platform/platform.h>
#include <zarnex/strings/internal/convert.h>
#include <zarnex/strings/internal/numberText.h>
#include <zarnex/strings/internal/text.h>

#include <climits>
#include <cstdint>
#include <type_traits>

namespace zarnex::detail {

namespace {

enum class Length { none, hh, h, l, ll, z, longDouble };

// A va_list that functions can pass on and all read from.
struct Arguments {
    std::va_list list;
};

template <class Char>
struct Conversion {
    NumberLayout layout;
    Length length = Length::none;
    char kind = '\0';          // '\0' at the end of the format
    const Char* end = nullptr; // behind the conversion
};

int appendDigit(int number, int digit) {
    return number > (INT_MAX - digit) / 10 ? INT_MAX : 10 * number + digit;
}

template <class Char>
int readCount(const Char*& next, int number) {
    for (; *next >= Char{'0'} && *next <= Char{'9'}; ++next)
        number = appendDigit(number, static_cast<int>(*next - Char{'0'}));
    return number;
}

template <class Char>
bool readFlag(Char unit, NumberLayout& layout) {
    switch (unit) {
    case Char{'-'}:
        return layout.left = true;
    case Char{'+'}:
        return layout.plus = true;
    case Char{' '}:
        return layout.blank = true;
    case Char{'0'}:
        return layout.zero = true;
    case Char{'#'}:
        return layout.alternate = true;
    default:
        return false;
    }
}

template <class Char>
Length readLength(const Char*& next) {
    const auto skip = [&next](int count, Length length) {
        next += count;
        return length;
    };
    switch (*next) {
    case Char{'h'}:
        return next[1] == Char{'h'} ? skip(2, Length::hh) : skip(1, Length::h);
    case Char{'l'}:
        return next[1] == Char{'l'} ? skip(2, Length::ll) : skip(1, Length::l);
    case Char{'w'}:
        return skip(1, Length::l);
    case Char{'j'}:
        return skip(1, Length::ll);
    case Char{'z'}:
    case Char{'t'}:
        return skip(1, Length::z);
    case Char{'L'}:
        return skip(1, Length::longDouble);
    case Char{'I'}:
        if (next[1] == Char{'6'} && next[2] == Char{'4'})
            return skip(3, Length::ll);
        if (next[1] == Char{'3'} && next[2] == Char{'2'})
            return skip(3, Length::none);
        return skip(1, Length::z);
    default:
        return Length::none;
    }
}

// Reads the conversion behind the '%' at `next`. Arguments for '*' are taken.
template <class Char>
Conversion<Char> readConversion(const Char* next, Arguments& arguments) {
    Conversion<Char> read;
    NumberLayout& layout = read.layout;
    while (readFlag(*next, layout))
        ++next;
    if (*next == Char{'*'}) {
        ++next;
        const int width = va_arg(arguments.list, int);
        layout.left = layout.left || width < 0;
        layout.width = width >= 0 ? width : width == INT_MIN ? INT_MAX : -width;
    } else {
        layout.width = readCount(next, 0);
    }
    if (*next == Char{'.'}) {
        ++next;
        if (*next == Char{'*'}) {
            ++next;
            const int precision = va_arg(arguments.list, int);
            const int further = readCount(next, (std::max)(precision, 0));
            layout.precision = precision < 0 ? -1 : further;
        } else {
            layout.precision = readCount(next, 0);
        }
    }
    read.length = readLength(next);
    if (*next != Char{}) {
        read.kind = *next > Char{0} && *next < Char{127} ? static_cast<char>(*next) : '?';
        ++next;
    }
    read.end = next;
    return read;
}

std::int64_t takeSigned(Arguments& arguments, Length length) {
    switch (length) {
    case Length::hh:
        return static_cast<signed char>(va_arg(arguments.list, int));
    case Length::h:
        return static_cast<short>(va_arg(arguments.list, int));
    case Length::l:
        return va_arg(arguments.list, long);
    case Length::ll:
        return va_arg(arguments.list, long long);
    case Length::z:
        return static_cast<std::int64_t>(va_arg(arguments.list, std::size_t));
    default:
        return va_arg(arguments.list, int);
    }
}

std::uint64_t takeUnsigned(Arguments& arguments, Length length) {
    switch (length) {
    case Length::hh:
        return static_cast<unsigned char>(va_arg(arguments.list, unsigned));
    case Length::h:
        return static_cast<unsigned short>(va_arg(arguments.list, unsigned));
    case Length::l:
        return va_arg(arguments.list, unsigned long);
    case Length::ll:
        return va_arg(arguments.list, unsigned long long);
    case Length::z:
        return va_arg(arguments.list, std::size_t);
    default:
        return va_arg(arguments.list, unsigned);
    }
}

double takeDouble(Arguments& arguments, Length length) {
    if (length == Length::longDouble)
        return static_cast<double>(va_arg(arguments.list, long double));
    return va_arg(arguments.list, double);
}

template <class Char>
void appendPadded(TextBuffer<Char>& out, const Char* text, std::size_t length,
                  const NumberLayout& layout) {
    const auto width = static_cast<std::size_t>(layout.width);
    const std::size_t padding = width > length ? width - length : 0;
    if (!layout.left)
        out.append(Char{' '}, padding);
    out.append(text, text + length);
    if (layout.left)
        out.append(Char{' '}, padding);
}

std::size_t mostUnits(const NumberLayout& layout) {
    return layout.precision < 0 ? static_cast<std::size_t>(INT_MAX)
                                : static_cast<std::size_t>(layout.precision);
}

int unitsOfCharacter(const char* text) {
    return platform::characterBytes(text);
}

int unitsOfCharacter(const wchar_t* text) {
    const bool pair = *text >= 0xD800 && *text <= 0xDBFF && text[1] >= 0xDC00 && text[1] <= 0xDFFF;
    return pair ? 2 : 1;
}

// Text of the format's own type: as it stands.
template <class Char>
void appendText(TextBuffer<Char>& out, const Char* text, const NumberLayout& layout) {
    // Without precision the text is terminated; with one it need not be.
    const std::size_t length =
        layout.precision < 0 ? textLength(text) : textLength(text, mostUnits(layout));
    appendPadded(out, text, length, layout);
}

// Text of the other type: whole characters as long as the precision holds them.
template <class Char, class Other>
void appendText(TextBuffer<Char>& out, const Other* text, const NumberLayout& layout) {
    TextBuffer<Char> converted;
    const std::size_t most = mostUnits(layout);
    while (converted.length() < most && *text != Other{}) {
        const int units = unitsOfCharacter(text);
        Char character[8];
        const int size = convertUnits(platform::ansiCodePage, text, units, character, 8);
        if (converted.length() + static_cast<std::size_t>(size) > most)
            break;
        converted.append(character, character + size);
        text += units;
    }
    appendPadded(out, converted.data(), converted.length(), layout);
}

template <class Char>
void appendNull(TextBuffer<Char>& out, const NumberLayout& layout) {
    constexpr Char null[] = {'(', 'n', 'u', 'l', 'l', ')'};
    appendPadded(out, null, (std::min)(std::size_t{6}, mostUnits(layout)), layout);
}

template <class Text, class Char>
void appendTextArgument(TextBuffer<Char>& out, Arguments& arguments, const NumberLayout& layout) {
    const Text* const text = va_arg(arguments.list, const Text*);
    if (text == nullptr)
        appendNull(out, layout);
    else
        appendText(out, text, layout);
}

template <class Unit, class Char>
void appendUnitArgument(TextBuffer<Char>& out, Arguments& arguments, NumberLayout layout) {
    const Unit text[2] = {static_cast<Unit>(va_arg(arguments.list, int)), Unit{}};
    layout.precision = -1;
    if constexpr (std::is_same_v<Unit, Char>)
        appendPadded(out, text, 1, layout);
    else
        appendText(out, text, layout);
}

// c, C, s and S: a capital takes the type that the format is not made of.
template <class Char>
bool takesWide(const Conversion<Char>& conversion) {
    if (conversion.length == Length::h)
        return false;
    if (conversion.length == Length::l)
        return true;
    const bool capital = conversion.kind == 'S' || conversion.kind == 'C';
    return std::is_same_v<Char, wchar_t> != capital;
}

// False for a conversion that is not known.
template <class Char>
bool appendConversion(TextBuffer<Char>& out, const Conversion<Char>& conversion,
                      Arguments& arguments) {
    const NumberLayout& layout = conversion.layout;
    const char kind = conversion.kind;
    switch (kind) {
    case '%':
        out.append(Char{'%'});
        return true;
    case 'd':
    case 'i': {
        const std::int64_t value = takeSigned(arguments, conversion.length);
        const auto bits = static_cast<std::uint64_t>(value);
        appendInteger(out, value < 0 ? 0 - bits : bits, value < 0, kind, layout);
        return true;
    }
    case 'u':
    case 'o':
    case 'x':
    case 'X':
        appendInteger(out, takeUnsigned(arguments, conversion.length), false, kind, layout);
        return true;
    case 'p': {
        NumberLayout address;
        address.width = layout.width;
        address.left = layout.left;
        address.precision = 16;
        const auto value = reinterpret_cast<std::uintptr_t>(va_arg(arguments.list, const void*));
        appendInteger(out, value, false, 'X', address);
        return true;
    }
    case 'e':
    case 'E':
    case 'f':
    case 'F':
    case 'g':
    case 'G':
    case 'a':
    case 'A':
        appendDouble(out, takeDouble(arguments, conversion.length), kind, layout);
        return true;
    case 's':
    case 'S':
        if (takesWide(conversion))
            appendTextArgument<wchar_t>(out, arguments, layout);
        else
            appendTextArgument<char>(out, arguments, layout);
        return true;
    case 'c':
    case 'C':
        if (takesWide(conversion))
            appendUnitArgument<wchar_t>(out, arguments, layout);
        else
            appendUnitArgument<char>(out, arguments, layout);
        return true;
    default:
        return false;
    }
}

} // namespace

template <class Char>
void appendFormatted(TextBuffer<Char>& out, const Char* format, std::va_list list) {
    Arguments arguments;
    va_copy(arguments.list, list);
    const Char* const end = format + textLength(format);
    while (format != end) {
        const Char* const mark = std::find(format, end, Char{'%'});
        out.append(format, mark);
        if (mark == end)
            break;
        const Conversion<Char> conversion = readConversion(mark + 1, arguments);
        if (!appendConversion(out, conversion, arguments))
            out.append(mark, conversion.end);
        format = conversion.end;
    }
    va_end(arguments.list);
}

template void appendFormatted(TextBuffer<char>&, const char*, std::va_list);
template void appendFormatted(TextBuffer<wchar_t>&, const wchar_t*, std::va_list);

} // namespace zarnex::detail
