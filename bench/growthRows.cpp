#include "Growth.h"

#include <zarnex/bigint/SigUInt.h>
#include <zarnex/containers/ZList.h>
#include <zarnex/containers/ZXArray.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/units/ZMillimeter.h>
#include <zarnex/units/ZUnitScanner.h>

#include <memory>
#include <random>
#include <string>

namespace bench {

namespace {

/// An operation on a `value` that it owns.
template <class T, class Work>
Growth::Operation on(T value, Work work) {
    return [state = std::make_shared<T>(std::move(value)), work] { keep(work(*state)); };
}

ZList<int> list(long n) {
    ZList<int> numbers;
    for (long i = 0; i < n; ++i)
        numbers.add(static_cast<int>(i));
    return numbers;
}

ZXArray<double> array(long n) {
    ZXArray<double> numbers;
    for (long i = 0; i < n; ++i)
        numbers.add(static_cast<double>(i));
    return numbers;
}

/// `n` units: words with a blank behind each.
ZString words(long n) {
    std::wstring text;
    while (text.size() < static_cast<std::size_t>(n))
        text += L"stitches ";
    text.resize(static_cast<std::size_t>(n));
    return ZString(text.c_str());
}

/// An odd number of exactly `bits` bits.
SigUInt bigInteger(long bits, unsigned seed = 7) {
    std::mt19937 random(seed);
    std::string bytes;
    for (long i = 0; i < bits / 8; ++i)
        bytes += static_cast<char>(random());
    bytes.front() = static_cast<char>(bytes.front() | 0x80);
    bytes.back() = static_cast<char>(bytes.back() | 1);
    return SigUInt(reinterpret_cast<const unsigned char*>(bytes.data()),
                   static_cast<int>(bytes.size()));
}

const std::vector<long> sizes{1000, 10000, 100000};
const std::vector<long> units{1000, 10000, 100000, 1000000};
const std::vector<long> bits{2048, 8192, 32768, 131072};

void containerGrowth(Growth& growth) {
    growth.row("ZList: append n, free", sizes,
               [](long n) { return on(n, [](long count) { return list(count).length(); }); });
    growth.row("ZList: iterate", sizes, [](long n) {
        return on(list(n), [](const ZList<int>& numbers) {
            long sum = 0;
            for (const int number : numbers)
                sum += number;
            return sum;
        });
    });
    growth.row("ZList: one positional read, in the middle", sizes, [](long n) {
        return on(list(n), [](const ZList<int>& numbers) { return numbers[numbers.length() / 2]; });
    });
    growth.row("ZList: join and take back", sizes, [](long n) {
        return on(list(n), [](ZList<int>& numbers) {
            ZList<int> other;
            other.join(numbers);
            numbers.join(other);
            return numbers.length();
        });
    });
    growth.row("ZXArray<double>: append n, free", sizes,
               [](long n) { return on(n, [](long count) { return array(count).length(); }); });
    growth.row("ZXArray<double>: find the last", sizes, [](long n) {
        return on(array(n), [n](const ZXArray<double>& numbers) {
            return numbers.find(static_cast<double>(n - 1));
        });
    });
    growth.row("ZXArray<double>: insert in front, remove", sizes, [](long n) {
        return on(array(n), [](ZXArray<double>& numbers) {
            numbers.ins(0, 1.0);
            numbers.del(0);
            return numbers.length();
        });
    });
    growth.row("ZXArray<double>: copy", sizes, [](long n) {
        return on(array(n),
                  [](const ZXArray<double>& numbers) { return ZXArray<double>(numbers).length(); });
    });
}

void stringGrowth(Growth& growth) {
    growth.row("ZString: length", units, [](long n) {
        return on(words(n), [](const ZString& text) { return text.length(); });
    });
    growth.row("ZString: append a unit, cut it off", units, [](long n) {
        return on(words(n), [n](ZString& text) {
            text += L'x';
            text.truncate(static_cast<int>(n));
            return text[0];
        });
    });
    growth.row("ZString: append n units one by one", {250, 1000, 4000, 16000}, [](long n) {
        return on(n, [](long count) {
            ZString text;
            for (long i = 0; i < count; ++i)
                text += L'x';
            return text.length();
        });
    });
    growth.row("ZString: find a word that is not there", units, [](long n) {
        return on(words(n), [](const ZString& text) { return text.findString(L"thread"); });
    });
    growth.row("ZString: replace every word", units, [](long n) {
        return on(words(n), [](const ZString& text) {
            ZString copy(text);
            copy.findAndReplace(L"stitches", L"threads");
            return copy.length();
        });
    });
    growth.row("ZString: equality ignoring case", units, [](long n) {
        return on(words(n), [other = words(n)](const ZString& text) { return text == other; });
    });
    growth.row("ZString: second half", units, [](long n) {
        return on(words(n), [n](const ZString& text) {
            return text.subString(static_cast<int>(n / 2), -1).length();
        });
    });
    growth.row("ZString: trim blanks at both ends", units, [](long n) {
        ZString text(std::wstring(static_cast<std::size_t>(n), L' ').c_str());
        text += L"x";
        text += text;
        return on(text, [](const ZString& padded) {
            ZString copy(padded);
            copy.trimLeft();
            copy.trimRight();
            return copy.length();
        });
    });
    growth.row("ZString: format \"%s mm\"", units, [](long n) {
        return on(words(n), [](const ZString& text) {
            ZString formatted;
            formatted.set(L"%s mm", static_cast<const wchar_t*>(text));
            return formatted.length();
        });
    });
    growth.row("ZString to UTF-8", units, [](long n) {
        return on(words(n), [](const ZString& text) {
            const std::unique_ptr<char[]> bytes(text.getAscii());
            return bytes[0];
        });
    });
    growth.row("UTF-8 to ZString", units, [](long n) {
        const ZString text = words(n);
        const std::unique_ptr<char[]> bytes(text.getAscii());
        return on(std::string(bytes.get()),
                  [](const std::string& utf8) { return ZString(utf8.c_str()).length(); });
    });
}

void scannerGrowth(Growth& growth) {
    growth.row("ZUnitScanner: all tokens of n numbers with units", sizes, [](long n) {
        std::wstring text;
        for (long i = 0; i < n; ++i)
            text += L"2.5 mm ";
        return on(text, [](const std::wstring& typed) {
            ZUnitScanner scanner(typed.c_str());
            int tokens = 0;
            while (scanner.yylex() != 0)
                ++tokens;
            return tokens;
        });
    });
    growth.row("ZMillimeter of a text with n dots behind the unit", sizes, [](long n) {
        const std::wstring text = L"2.5 mm" + std::wstring(static_cast<std::size_t>(n), L'.');
        return on(ZString(text.c_str()),
                  [](const ZString& typed) { return ZMillimeter(typed).isValid(); });
    });
}

void bigIntegerGrowth(Growth& growth) {
    growth.row("SigUInt: sum of n bits", bits, [](long n) {
        return on(bigInteger(n), [](const SigUInt& a) { return (a + a).isZero(); });
    });
    growth.row("SigUInt: product of n by n bits", bits, [](long n) {
        return on(bigInteger(n),
                  [other = bigInteger(n, 8)](const SigUInt& a) { return (a * other).isZero(); });
    });
    growth.row("SigUInt: remainder of 2n by n bits", bits, [](long n) {
        return on(bigInteger(n), [product = bigInteger(2 * n, 8)](const SigUInt& a) {
            return (product % a).isZero();
        });
    });
    growth.row("SigUInt: hexadecimal text of n bits", bits, [](long n) {
        return on(bigInteger(n), [](const SigUInt& a) { return a.getHex().isEmpty(); });
    });
    growth.row("SigUInt: power modulo, all of n bits", {512, 1024, 2048, 4096}, [](long n) {
        return on(bigInteger(n), [modulus = bigInteger(n, 8)](const SigUInt& a) {
            return a_exp_b_mod_c(a, a, modulus).isZero();
        });
    });
}

} // namespace

void growthRows(Growth& growth) {
    containerGrowth(growth);
    stringGrowth(growth);
    scannerGrowth(growth);
    bigIntegerGrowth(growth);
}

} // namespace bench
