#include "tests/support.h"

#include <zarnex/runtime/exiting.h>
#include <zarnex/units/ZUnitScanner.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

// All that a scanner tells: each token and the end with its place, "!" where a word was
// dropped before it, and the number. Behind `taken` tokens the host takes a character.
template <class Scanner = ZUnitScanner>
std::string told(const wchar_t* text, int taken = -1) {
    ZUnitScanner(L"0").yylex(); // a lone sign has this number
    Scanner scanner(text);
    std::ostringstream out;
    for (int token = -1, count = 0; token != 0; ++count) {
        if (count == taken)
            out << '<' << scanner.yygetc() << "> ";
        token = scanner.yylex();
        out << token << '@' << scanner.tokenBegin() << '-' << scanner.tokenEnd()
            << (scanner.wordDropped() ? "!=" : "=") << scanner.value << ' ';
    }
    EXPECT_EQ(scanner.yylex(), 0) << "the end must last";
    return out.str();
}

TEST(ZUnitScanner, JudgesOtherCharactersByTheirLowBitsAndDropsThem) {
    const wchar_t allOnes[] = {static_cast<wchar_t>(-1), L'2', L'\0'};
    const struct {
        const wchar_t* text;
        const char* told;
    } rows[] = {
        {nullptr, "0@0-0=0 "},
        {L"3\"", "1@0-1=3 4@1-2=3 0@2-2=3 "},
        {L"3 INCHES", "1@0-1=3 4@2-8=3 0@8-8=3 "},
        {L"5 cm/s", "1@0-1=5 3@2-4=5 0@6-6=5 "},
        {L"3 int t", "1@0-1=3 4@2-4=3 0@7-7!=3 "},
        {L"\u0132 mm", "1@0-1=2 2@2-4=2 0@4-4=2 "},       // of a 2
        {L"5 \u016D\u016Dx", "1@0-1=5 2@2-4=5 0@5-5=5 "}, // of an m
        {L"1\u01002", "1@0-1=1 1@2-3=2 0@3-3=2 "},        // of a terminator
        {L"1\u00FF2", "1@0-1=1 1@2-3=2 0@3-3=2 "},        // of the end mark
        {allOnes, "1@1-2=2 0@2-2=2 "},
        {L"1\r\n2\u00B0", "1@0-1=1 1@3-4=2 0@5-5=2 "},
        {L"5 \v\f", "1@0-1=5 0@4-4=5 "},
        {L"5\fx", "1@0-1=5 0@3-3!=5 "},
        {L"5\vx", "1@0-1=5 0@3-3!=5 "},
        {L"5 \u010D", "1@0-1=5 0@3-3!=5 "}, // no carriage return, though it has its low bits
        {L"5\u010Dx", "1@0-1=5 0@3-3=5 "},
    };
    for (const auto& row : rows)
        EXPECT_EQ(told(row.text), row.told) << shown(row.text);
}

// What the scanner must find, by trying every word at every place.
class Oracle {
public:
    Oracle() {
        for (const char* per : {"/", "per"})
            for (const char* square : {"sq", "square"})
                for (const char* unit : {"", "cm", "centi", "centimeter", "centimeters"})
                    words_.push_back({std::string(per) + " " + square + " " + unit, 7});
        const char* const lists[] = {"mm,milli,millimeter,millimeters",
                                     "cm,centi,centimeter,centimeters", "\",in,inch,inches",
                                     "p,pt,point,points", "spi,stitch,stitches,stitches per inch"};
        int token = 2;
        for (const char* list : lists) {
            std::istringstream in(list);
            for (std::string word; std::getline(in, word, ',');)
                words_.push_back({word, token});
            ++token;
        }
    }

    std::string scan(const std::string& text) {
        number_ = 0.0;
        std::ostringstream out;
        bool dropped = false;
        for (std::size_t at = 0; at < text.size();) {
            const auto [length, token] = longest(text, at);
            if (length == 0) {
                dropped |= at > 0 && isSpace(text[at - 1]) && !isSpace(text[at]);
                ++at;
                continue;
            }
            const std::string word = text.substr(at, length);
            if (token == 1 && word.find_first_of("0123456789") != std::string::npos)
                number_ = inDefaultLocale([&word] { return std::strtod(word.c_str(), nullptr); });
            if (token != 0) {
                out << token << '@' << at << '-' << at + length << (dropped ? "!=" : "=") << number_
                    << ' ';
                dropped = false;
            }
            at += length;
        }
        out << "0@" << text.size() << '-' << text.size() << (dropped ? "!=" : "=") << number_
            << ' ';
        return out.str();
    }

private:
    struct Word {
        std::string text;
        int token;
    };

    static bool isSpace(char c) {
        return std::string(" \t\n\r\v\f").find(c) != std::string::npos;
    }

    static std::size_t endOf(const char* chars, const std::string& text, std::size_t at) {
        return (std::min)(text.find_first_not_of(chars, at), text.size());
    }

    std::pair<std::size_t, int> longest(const std::string& text, std::size_t at) const {
        const std::size_t sign = text[at] == '+' || text[at] == '-' ? 1 : 0;
        std::size_t end = endOf("0123456789", text, at + sign);
        if (end < text.size() && text[end] == '.' && endOf("0123456789", text, end + 1) > end + 1)
            end = endOf("0123456789", text, end + 1);
        std::pair<std::size_t, int> best{end - at, 1};
        if (const std::size_t blanks = endOf(" \t\n", text, at) - at; blanks > best.first)
            best = {blanks, 0};
        for (const Word& word : words_)
            if (word.text.size() > best.first && text.compare(at, word.text.size(), word.text) == 0)
                best = {word.text.size(), word.token};
        return best;
    }

    std::vector<Word> words_;
    double number_ = 0.0;
};

TEST(ZUnitScanner, AgreesWithTryingEveryWordOnRandomTexts) {
    std::vector<std::string> pieces = {" ", " ", " ", "  ", "\t", "\n", "\r"};
    std::istringstream words("/ per sq square cm centi meter s milli m in ch es stitch spi p t "
                             "oint \" + - . 0 1 27 x e r");
    for (std::string word; words >> word;)
        pieces.push_back(word);
    std::mt19937 random(20240607);
    Oracle oracle;
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (std::size_t n = random() % 12; n > 0; --n)
            text += pieces[random() % pieces.size()];
        const std::wstring wide(text.begin(), text.end());
        ASSERT_EQ(told(wide.c_str()), oracle.scan(text)) << "text: " << text;
    }
}

TEST(ZUnitScanner, LoneSignKeepsTheNumberOfAnEarlierScanner) {
    ZUnitScanner(L"42.5").yylex();
    for (const wchar_t* text : {L"+ mm", L"- mm"}) {
        ZUnitScanner scanner(text);
        EXPECT_EQ(scanner.value, 0.0);
        EXPECT_EQ(scanner.yylex(), 1);
        EXPECT_EQ(scanner.value, 42.5);
        scanner.value = 1.0;
        EXPECT_EQ(scanner.yylex(), 2);
        EXPECT_EQ(scanner.value, 42.5) << "a unit word stores the number again";
    }
}

TEST(ZUnitScannerDeathTest, ATokenOfAHundredCharactersEndsTheProcess) {
    const std::wstring digits(99, L'7');
    const std::wstring blanks(99, L' ');
    const struct {
        std::wstring text;
        int line;
    } rows[] = {
        {digits + L"7", 1},
        {digits + L"77", 1},
        {digits + L".", 1}, // a digit might follow
        {L"-" + digits, 1},
        {std::wstring(100, L'\t'), 1},
        {std::wstring(100, L'\n'), 1}, // no line finished
        {blanks + L" ", 1},
        {L"1\n2 \n\n" + digits + L"7", 4},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        const auto run = [&row] {
            std::atexit([] { std::_Exit(isExiting() + 10); });
            told(row.text.c_str());
        };
        EXPECT_EXIT(run(), testing::ExitedWithCode(11),
                    "^" + std::to_string(row.line) + ": Token buffer overflow\r?\n$");
    }
    for (const std::wstring& text : {digits, digits + L"x", blanks + digits, digits + L"mm."}) {
        SCOPED_TRACE(text);
        ZUnitScanner scanner(text.c_str());
        EXPECT_EQ(scanner.yylex(), 1);
        EXPECT_EQ(scanner.value, std::strtod(std::string(99, '7').c_str(), nullptr));
    }
}

TEST(ZUnitScanner, HoldsTheLockForItsLifeButNotAgainstItsOwnThread) {
    std::optional<ZUnitScanner> first(std::in_place, L"1 mm");
    std::atomic<bool> passed = false;
    std::thread other([&passed] {
        ZUnitScanner waiting(L"2 mm");
        passed = true;
    });
    {
        ZUnitScanner second(L"3 cm");
        EXPECT_TRUE(second.yylex() == 1 && second.yylex() == 3 && second.yylex() == 0);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    EXPECT_FALSE(passed);
    EXPECT_TRUE(first->yylex() == 1 && first->yylex() == 2);
    first.reset();
    other.join();
    EXPECT_TRUE(passed);
}

TEST(ZUnitScanner, CharactersComeWholeInLowerCaseAndTheEndStays) {
    ZUnitScanner scanner(L"A\u0132\u00FFZ");
    for (const int c : {int('a'), 0x132, 0xFF, int('z'), -1, -1})
        EXPECT_EQ(scanner.yygetc(), c);
}

class CommaScanner : public ZUnitScanner {
public:
    using ZUnitScanner::ZUnitScanner;
    int yygetc() override {
        const int c = ZUnitScanner::yygetc();
        return c == ',' ? '.' : c;
    }
};

TEST(ZUnitScanner, DerivedScannersChangeTheCharacters) {
    EXPECT_EQ(told<CommaScanner>(L"12,5 mm"), told(L"12.5 mm"));
}

// Derived, so that it reads character by character.
class FedScanner : public ZUnitScanner {
public:
    using ZUnitScanner::ZUnitScanner;
};

TEST(ZUnitScanner, ReadsItsTextInPlaceAsItReadsByCharacters) {
    const wchar_t* const pieces[] = {
        L" ",      L" ",      L"\t",     L"\n",     L"\r",     L"7",      L"12",     L".5",
        L"-",      L"mm",     L"per sq", L" cm",    L"stitch", L"es per", L"In",     L"x",
        L"\u0132", L"\u016D", L"\u010D", L"\u010A", L"\u0120", L"\u0100", L"\u00FF", L"\u00C9"};
    std::mt19937 random(20260208);
    for (int round = 0; round < 20000; ++round) {
        std::wstring text;
        for (std::size_t n = random() % 12; n > 0; --n)
            text += pieces[random() % std::size(pieces)];
        const int taken = static_cast<int>(random() % 6);
        ASSERT_EQ(told(text.c_str(), taken), told<FedScanner>(text.c_str(), taken))
            << "text: " << shown(text.c_str()) << ", " << taken;
    }
}

TEST(ZUnitScanner, ReadsShortAndLongNumbersToTheNearestDouble) {
    std::mt19937_64 random(20260209);
    for (int round = 0; round < 20000; ++round) {
        std::string number = std::to_string(random() >> random() % 64);
        number.insert(random() % number.size(), ".");
        const std::wstring text(number.begin(), number.end());
        ZUnitScanner scanner(text.c_str());
        ASSERT_EQ(scanner.yylex(), 1);
        const double nearest =
            inDefaultLocale([&number] { return std::strtod(number.c_str(), nullptr); });
        ASSERT_EQ(scanner.value, nearest) << number;
    }
}

} // namespace
