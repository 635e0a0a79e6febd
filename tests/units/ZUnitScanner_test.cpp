#include "fuzz/tokenModel.h"
#include "tests/support.h"

#include <zarnex/runtime/exiting.h>
#include <zarnex/units/ZUnitScanner.h>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

// Derived, so that it reads character by character.
class FedScanner : public ZUnitScanner {
public:
    using ZUnitScanner::ZUnitScanner;
};

// All that a scanner tells: each token and the end with its place, "!" where a word was
// dropped before it, and the number. Behind `taken` tokens the host takes a character.
template <class Scanner = ZUnitScanner>
std::string told(const wchar_t* text, int taken = -1) {
    ZUnitScanner(L"0").yylex(); // a lone sign has this number
    Scanner scanner(text);
    std::ostringstream out;
    out.precision(17);
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

// The same by the model.
std::string expected(const std::wstring& text) {
    fuzz::TokenModel model(text);
    std::ostringstream out;
    out.precision(17);
    for (int token = -1; token != 0;) {
        token = model.next();
        out << token << '@' << model.begin << '-' << model.end << (model.wordDropped ? "!=" : "=")
            << model.value << ' ';
    }
    return out.str();
}

TEST(ZUnitScanner, AgreesWithThePlainModelInPlaceAndByCharacters) {
    std::vector<std::wstring> pieces = {L" ",
                                        L" ",
                                        L"  ",
                                        L"\t",
                                        L"\n",
                                        L"\r",
                                        L"\v",
                                        L"\f",
                                        L"per sq",
                                        L" cm",
                                        L"es per",
                                        L"mm",
                                        L"In",
                                        L"INCHES",
                                        L"\u0132",
                                        L"\u016D",
                                        L"\u010D",
                                        L"\u010A",
                                        L"\u0120",
                                        L"\u0100",
                                        L"\u00FF",
                                        L"\u00C9",
                                        std::wstring(1, static_cast<wchar_t>(-1))};
    std::wistringstream words(L"/ per sq square cm centi meter s milli m in ch es stitch spi p t "
                              L"oint \" + - . 0 1 27 .5 x e r");
    for (std::wstring word; words >> word;)
        pieces.push_back(word);
    std::mt19937_64 random(20240607);
    for (int round = 0; round < 30000; ++round) {
        std::wstring text;
        for (auto n = random() % 12; n > 0 && text.size() < 70; --n) {
            if (random() % 8 != 0) {
                text += pieces[random() % pieces.size()];
            } else {
                std::wstring number = std::to_wstring(random() >> random() % 64);
                text += number.insert(random() % number.size(), L".");
            }
        }
        SCOPED_TRACE(shown(text.c_str()));
        const std::string right = inDefaultLocale([&text] { return expected(text); });
        ASSERT_EQ(told(text.c_str()), right);
        ASSERT_EQ(told<FedScanner>(text.c_str()), right);
        const int taken = round % 6;
        ASSERT_EQ(told(text.c_str(), taken), told<FedScanner>(text.c_str(), taken)) << taken;
    }
    EXPECT_EQ(told(nullptr), told(L""));
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

} // namespace
