/// ZMultiByteString and ZWideString: sequences of operations, against std::basic_string.

#include "fuzz/fuzz.h"

#include <zarnex/strings/ZMultiByteString.h>
#include <zarnex/strings/ZWideString.h>

#include <algorithm>
#include <type_traits>
#include <utility>

namespace {

constexpr std::size_t longest = 2000; // nothing new happens above

template <class Char>
using Text = std::basic_string<Char>;

template <class Char>
using String = std::conditional_t<std::is_same_v<Char, char>, ZMultiByteString, ZWideString>;

template <class Char>
Text<Char> textFrom(fuzz::Input& input, int most) {
    if constexpr (std::is_same_v<Char, char>)
        return input.text(most);
    else
        return input.wide(most);
}

template <class Char>
Text<Char> folded(Text<Char> text) {
    for (Char& unit : text)
        unit = unit >= 'A' && unit <= 'Z' ? static_cast<Char>(unit - 'A' + 'a') : unit;
    return text;
}

// Bytes are compared from 0 to 255.
template <class Char>
bool isLess(const Text<Char>& a, const Text<Char>& b) {
    using Unit = std::make_unsigned_t<Char>;
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](Char x, Char y) {
        return std::is_same_v<Char, char> ? Unit(x) < Unit(y) : x < y;
    });
}

/// A string and what it should be.
template <class Char>
struct Pair {
    String<Char> string;
    Text<Char> text;

    const Char* units() const {
        return string;
    }

    int length() const {
        return static_cast<int>(text.size());
    }

    void check() const {
        FUZZ_REQUIRE(text == units());
        FUZZ_REQUIRE(string.length() == length());
        FUZZ_REQUIRE(string.allocLength() > length() || text.empty());
    }
};

template <class Char>
void compare(const Pair<Char>& a, const Pair<Char>& b) {
    // Kept as is: of the two classes, the one of bytes ignores case in its order.
    constexpr bool folds = std::is_same_v<Char, char>;
    const Text<Char> x = folds ? folded(a.text) : a.text;
    const Text<Char> y = folds ? folded(b.text) : b.text;
    FUZZ_REQUIRE((a.string == b.string) == int(a.text == b.text));
    FUZZ_REQUIRE((a.string != b.units()) == int(a.text != b.text));
    FUZZ_REQUIRE((a.string < b.string) == int(isLess(x, y)));
    FUZZ_REQUIRE((a.string > b.units()) == int(isLess(y, x)));
    FUZZ_REQUIRE(a.string.startsWith(b.units(), 0) ==
                 int(a.text.compare(0, b.text.size(), b.text) == 0));
    FUZZ_REQUIRE(a.string.startsWith(b.units(), 1) ==
                 int(folded(a.text).compare(0, b.text.size(), folded(b.text)) == 0));
}

template <class Char>
void subString(fuzz::Input& input, const Pair<Char>& a, Pair<Char>& b) {
    const int given = input.between(-20, 100);
    const int count = input.between(-2, 60);
    int start = given;
    while (start < 0 && !a.text.empty())
        start += a.length();
    Text<Char> part;
    if (count != 0 && start >= 0 && start < a.length())
        part = a.text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(count));
    b.string = a.string.subString(given, count);
    b.text = part;
}

template <class Char>
void edit(fuzz::Input& input, Pair<Char>& a, Pair<Char>& b) {
    const int n = input.between(-3, 100);
    const auto most = static_cast<std::size_t>(std::max(n, 0));
    switch (input.choice(10)) {
    case 0:
        a.text = textFrom<Char>(input, 300);
        a.string = a.text.c_str();
        break;
    case 1:
        a.string += b.string;
        a.text += b.text;
        break;
    case 2: { // text inside the string itself
        const std::size_t from = std::min(most, a.text.size());
        a.string += a.units() + from;
        a.text += Text<Char>(a.text.substr(from));
        break;
    }
    case 3: {
        const std::size_t from = std::min(most, a.text.size());
        a.string = a.units() + from;
        a.text.erase(0, from);
        break;
    }
    case 4:
        a.string.resize(n);
        a.text.resize(std::min(a.text.size(), most));
        break;
    case 5:
        if (std::max(n, 0) < a.length()) { // a negative index counts as 0
            a.string[n] = 'y';
            a.text[most] = 'y';
        }
        break;
    case 6:
        a.string = String<Char>(b.units(), n);
        a.text = b.text.substr(0, most);
        break;
    case 7: { // one is without storage then
        String<Char> taken(std::move(b.string));
        a.string = std::move(taken);
        a.text = std::exchange(b.text, Text<Char>());
        break;
    }
    case 8:
        a.string = b.string;
        a.text = b.text;
        break;
    default:
        subString(input, a, b);
    }
}

template <class Char>
void tryStrings(fuzz::Input& input) {
    fuzz::trySteps<Pair<Char>, 3>(input, [&](Pair<Char>& a, Pair<Char>& b) {
        if (a.text.size() + b.text.size() > longest) {
            a.string.resize(0);
            a.text.clear();
        }
        edit(input, a, b);
        compare(a, b);
    });
}

} // namespace

void tryInput(fuzz::Input input) {
    if (input.choice(2) == 0)
        tryStrings<char>(input);
    else
        tryStrings<wchar_t>(input);
}
