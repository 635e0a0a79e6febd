/// ZString: sequences of operations on a few strings, against std::wstring.

#include "fuzz/fuzz.h"

#include <zarnex/strings/ZString.h>

#include <algorithm>
#include <array>
#include <cwchar>
#include <utility>
#include <vector>

namespace {

using Text = std::wstring;

constexpr std::size_t longest = 3000; // nothing new happens above

const wchar_t* unitsOf(const ZString& string) {
    return string;
}

int lengthOf(const Text& text) {
    return static_cast<int>(text.size());
}

wchar_t lower(wchar_t unit) {
    return unit >= L'A' && unit <= L'Z' ? static_cast<wchar_t>(unit - L'A' + L'a') : unit;
}

wchar_t upper(wchar_t unit) {
    return unit >= L'a' && unit <= L'z' ? static_cast<wchar_t>(unit - L'a' + L'A') : unit;
}

Text mapped(Text text, wchar_t (*map)(wchar_t)) {
    std::transform(text.begin(), text.end(), text.begin(), map);
    return text;
}

int sign(long long value) {
    return value < 0 ? -1 : value > 0;
}

int orderOf(const Text& a, const Text& b) {
    for (std::size_t i = 0; i < a.size() && i < b.size(); ++i)
        if (a[i] != b[i])
            return a[i] < b[i] ? -1 : 1;
    return sign(static_cast<long long>(a.size()) - static_cast<long long>(b.size()));
}

int wrapped(int start, const Text& text) {
    return start >= 0 || text.empty() ? start
                                      : (start % lengthOf(text) + lengthOf(text)) % lengthOf(text);
}

int positionOf(std::size_t found) {
    return found == Text::npos ? -1 : static_cast<int>(found);
}

int findString(Text text, Text wanted, int start, int ignoreCase) {
    if (wanted.empty())
        return lengthOf(text);
    if (text.empty() || wrapped(start, text) > lengthOf(text))
        return -1;
    if (ignoreCase) {
        text = mapped(text, lower);
        wanted = mapped(wanted, lower);
    }
    return positionOf(text.find(wanted, static_cast<std::size_t>(wrapped(start, text))));
}

int findOneOf(const Text& text, const Text& set, int start, int invert) {
    start = wrapped(start, text);
    if (start < 0 || start > lengthOf(text))
        return start < 0 ? -2 : -1; // of an empty text: not asked
    if (set.empty())
        return invert ? start : lengthOf(text);
    const auto from = static_cast<std::size_t>(start);
    return positionOf(invert ? text.find_first_not_of(set, from) : text.find_first_of(set, from));
}

Text subString(const Text& text, int start, int count) {
    start = wrapped(start, text);
    if (count == 0 || text.empty() || start >= lengthOf(text))
        return Text();
    return text.substr(static_cast<std::size_t>(start),
                       count < 0 ? Text::npos : static_cast<std::size_t>(count));
}

Text replaced(const Text& text, const Text& find, const Text& replace) {
    Text result;
    std::size_t done = 0;
    for (std::size_t at; !find.empty() && (at = text.find(find, done)) != Text::npos;) {
        result += text.substr(done, at - done) + replace;
        done = at + find.size();
    }
    return result + text.substr(done);
}

Text trimmed(const Text& text, bool left) {
    const std::size_t at =
        left ? text.find_first_not_of(L" \t\n\r") : text.find_last_not_of(L" \t\n\r");
    if (at == Text::npos)
        return Text();
    return left ? text.substr(at) : text.substr(0, at + 1);
}

/// A string and what it should be.
struct Pair {
    ZString string;
    Text text;

    Pair() : string(0, std::array{-1, 1, 5}[made++ % 3]) {} // of each growth step one

    void check() const {
        FUZZ_REQUIRE(text == unitsOf(string));
        FUZZ_REQUIRE(string.length() == lengthOf(text));
        FUZZ_REQUIRE(string.allocLength() > lengthOf(text) || text.empty());
        FUZZ_REQUIRE(string.isEmpty() == int(text.empty()));
    }

    inline static unsigned made = 0;
};

void compare(const Pair& a, const Pair& b) {
    const int order = orderOf(mapped(a.text, lower), mapped(b.text, lower));
    FUZZ_REQUIRE(sign(a.string.compare(b.string)) == order);
    FUZZ_REQUIRE((a.string == b.string) == (order == 0));
    FUZZ_REQUIRE((a.string < b.string) == (order < 0));
    FUZZ_REQUIRE((unitsOf(a.string) >= b.string) == (order >= 0));
    FUZZ_REQUIRE(a.string.isEqual(b.string) == int(a.text == b.text));
    FUZZ_REQUIRE(order != 0 || a.string.hash() == b.string.hash());
    for (const int ignoreCase : {0, 1}) {
        const Text whole = ignoreCase ? mapped(a.text, lower) : a.text;
        const Text part = ignoreCase ? mapped(b.text, lower) : b.text;
        FUZZ_REQUIRE(a.string.startsWith(unitsOf(b.string), ignoreCase) ==
                     int(whole.substr(0, part.size()) == part));
    }
}

int startFrom(fuzz::Input& input) {
    return input.choice(8) == 0 ? input.integer<int>() : input.between(-20, 200);
}

void search(fuzz::Input& input, const Pair& a, const Pair& b) {
    const int start = startFrom(input);
    for (const int flag : {0, 1}) {
        FUZZ_REQUIRE(a.string.findString(unitsOf(b.string), start, flag) ==
                     findString(a.text, b.text, start, flag));
        const int found = findOneOf(a.text, b.text, start, flag);
        if (found == -2)
            continue;
        FUZZ_REQUIRE(a.string.findOneOf(unitsOf(b.string), start, flag) == found);
        FUZZ_REQUIRE(a.string.findOneOfByUnicode(unitsOf(b.string), start, flag) ==
                     (flag && !b.text.empty() ? -1 : found));
    }
}

void copyOut(fuzz::Input& input, const Pair& a) {
    const int room = input.between(1, 300);
    std::vector<wchar_t> out(static_cast<std::size_t>(room), L'x');
    FUZZ_REQUIRE(a.string.copyString(out.data(), room) == lengthOf(a.text) + 1);
    FUZZ_REQUIRE(Text(out.data()) == a.text.substr(0, out.size() - 1));
    wchar_t* const copy = a.string.getWide();
    FUZZ_REQUIRE(a.text == copy);
    delete[] copy;
}

// Lets the raw buffer be written to, as a system function would.
void writeRaw(fuzz::Input& input, Pair& a) {
    const Text text = input.wide(511);
    if (a.string.allocLength() < 512)
        std::wcscpy(a.string.operator wchar_t*(), text.c_str());
    else
        return;
    a.string.resize();
    a.text = text;
}

void edit(fuzz::Input& input, Pair& a, Pair& b) {
    const Text& text = a.text;
    const int at = input.between(-20, 200);
    switch (input.choice(22)) {
    case 0:
        a.text = input.wide(300);
        a.string = a.text.c_str();
        break;
    case 1:
        a.text += b.text;
        a.string += b.string;
        break;
    case 2: {
        const Text more = input.wide(80);
        a.text += more;
        a.string += more.c_str();
        break;
    }
    case 3:
        a.text += L'x';
        a.string += L'x';
        break;
    case 4: {
        const int number = input.integer<int>();
        a.text += std::to_wstring(number);
        a.string += number;
        break;
    }
    case 5: { // text inside the string itself
        const std::size_t from =
            std::min<std::size_t>(static_cast<std::size_t>(at + 20), text.size());
        a.string += unitsOf(a.string) + from;
        a.text += a.text.substr(from);
        break;
    }
    case 6: {
        const std::size_t from =
            std::min<std::size_t>(static_cast<std::size_t>(at + 20), text.size());
        a.string = unitsOf(a.string) + from;
        a.text.erase(0, from);
        break;
    }
    case 7: {
        const Text find = input.wide(3);
        const Text replace = input.wide(8);
        a.string.findAndReplace(find.c_str(), replace.c_str());
        a.text = replaced(a.text, find, replace);
        break;
    }
    case 8: { // the replacement is the string
        const Text find = subString(a.text, at, 1);
        a.string.findAndReplace(find.c_str(), unitsOf(a.string));
        a.text = replaced(a.text, find, a.text);
        break;
    }
    case 9: {
        const int start = startFrom(input);
        const int count = input.between(-2, 60);
        const ZString part = a.string.subString(start, count);
        FUZZ_REQUIRE(unitsOf(part) == subString(a.text, start, count));
        b.string = part;
        b.text = unitsOf(part);
        break;
    }
    case 10:
        at % 2 == 0 ? a.string.truncate(at) : a.string.resize(at);
        FUZZ_REQUIRE(a.string.allocLength() == std::max(at, 0) + 1);
        a.text.resize(std::min(a.text.size(), static_cast<std::size_t>(std::max(at, 0))));
        break;
    case 11:
        a.string.trimLeft();
        a.text = trimmed(a.text, true);
        FUZZ_REQUIRE(a.string.allocLength() == lengthOf(a.text) + 1);
        break;
    case 12:
        a.string.trimRight();
        a.text = trimmed(a.text, false);
        FUZZ_REQUIRE(a.string.allocLength() == lengthOf(a.text) + 1);
        break;
    case 13:
        a.string.toLower();
        a.text = mapped(a.text, lower);
        break;
    case 14:
        a.string.toUpper();
        a.text = mapped(a.text, upper);
        break;
    case 15:
        if (wrapped(at, text) < lengthOf(text) && !text.empty()) {
            a.string[at] = L'y';
            a.text[static_cast<std::size_t>(wrapped(at, text))] = L'y';
        } else if (at >= lengthOf(text)) { // grows; what is behind the terminator is no text
            a.string[at + 1] = L'\0';
            a.string[lengthOf(text)] = L'z';
            a.string[lengthOf(text) + 1] = L'\0';
            a.text += L'z';
        }
        break;
    case 16:
        writeRaw(input, a);
        break;
    case 17:
        a.string.resize();
        break;
    case 18: { // one is without storage then
        ZString taken(std::move(b.string));
        a.string = std::move(taken);
        a.text = std::exchange(b.text, Text());
        break;
    }
    case 19:
        a.string = b.string;
        a.text = b.text;
        break;
    case 20: {
        const int count = input.between(-1, 60);
        a.string = ZString(unitsOf(b.string), count);
        a.text = b.text.substr(0, static_cast<std::size_t>(std::max(count, 0)));
        break;
    }
    default:
        a.string = a.string + b.string + at;
        a.text += b.text + std::to_wstring(at);
    }
}

} // namespace

void tryInput(fuzz::Input input) {
    fuzz::trySteps<Pair, 3>(input, [&](Pair& a, Pair& b) {
        const bool isLong = a.text.size() + b.text.size() > longest;
        switch (isLong ? 1 : input.choice(8)) {
        case 0:
            compare(a, b);
            search(input, a, b);
            break;
        case 1:
            copyOut(input, a);
            a.string.truncate(9);
            a.text.resize(std::min<std::size_t>(a.text.size(), 9));
            break;
        default:
            edit(input, a, b);
        }
    });
}
