#include "tests/support.h"

#include <zarnex/runtime/exiting.h>
#include <zarnex/units/ZUnitScanner.h>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <string>
#include <thread>

namespace {

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
            ZUnitScanner scanner(row.text.c_str());
            while (scanner.yylex() != 0) {
            }
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
    CommaScanner scanner(L"12,5 mm");
    EXPECT_TRUE(scanner.yylex() == 1 && scanner.value == 12.5 && scanner.tokenEnd() == 4);
    EXPECT_TRUE(scanner.yylex() == 2 && scanner.yylex() == 0 && scanner.yylex() == 0);
    EXPECT_EQ(ZUnitScanner(nullptr).yylex(), 0);
}

} // namespace
