#include <zarnex/units/internal/automaton.h>
#include <zarnex/units/yy_scan.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <utility>

namespace {

// An engine over the bytes of a string.
class Feed : public yy_scan {
public:
    explicit Feed(std::string text, int size = 100) : yy_scan(size), rest_(std::move(text)) {}
    Feed(std::string text, char* room, unsigned char* states)
        : yy_scan(20, room, states), rest_(std::move(text)) {}

    int yygetc() override {
        if (rest_.empty())
            return -1;
        const int c = static_cast<unsigned char>(rest_[0]);
        rest_.erase(0, 1);
        return c;
    }

    std::string next() {
        const int token = yylex();
        return std::to_string(token) + ":" + std::string(yytext, yytext + yyleng);
    }

protected:
    std::string rest_;
};

TEST(YyScanDeathTest, SpaceThatIsMissingOrTooSmallEndsTheProcess) {
    char text[21];
    unsigned char states[21];
    EXPECT_EXIT(yy_scan(-1), testing::ExitedWithCode(1), "^1: No space for scanner!\r?\n$");
    const char* const bad = "^1: Bad space for scanner!\r?\n$";
    EXPECT_EXIT(yy_scan(19, text, states), testing::ExitedWithCode(1), bad);
    EXPECT_EXIT(yy_scan(20, nullptr, states), testing::ExitedWithCode(1), bad);
    EXPECT_EXIT(yy_scan(20, text, nullptr), testing::ExitedWithCode(1), bad);

    Feed feed("12345678901234567890", text, states); // stays the caller's: on the stack here
    EXPECT_EXIT(feed.yylex(), testing::ExitedWithCode(1), "^1: Token buffer overflow\r?\n$");
    Feed fits("1234567890123456789 mm", text, states);
    EXPECT_STREQ(fits.yytext, ""); // although the room held a text
    EXPECT_EQ(fits.next(), "1:1234567890123456789");
    EXPECT_EQ(fits.next(), "2:mm");
}

TEST(YyScanDeathTest, ErrorsNameTheLineUnlessItIsZero) {
    Feed feed("1\n2 \n\n 3");
    for (const int line : {1, 2, 4, 4}) {
        feed.yylex();
        EXPECT_EQ(feed.yylineno, line);
    }
    EXPECT_EXIT(feed.yyerror("reason"), testing::ExitedWithCode(1), "^4: reason\r?\n$");
    feed.yylineno = 0;
    EXPECT_EXIT(feed.yyerror("%d"), testing::ExitedWithCode(1), "^%d\r?\n$");
    EXPECT_EXIT(feed.yyerror(nullptr), testing::ExitedWithCode(1), "^\r?\n$");
}

TEST(YyScan, PushedBackCharactersComeNextAndTakeBackNewlines) {
    Feed feed("12 mm");
    EXPECT_EQ(feed.next(), "1:12");
    feed.yyunput('5');
    feed.yyunput(0x100 + '.'); // the low bits count
    feed.yyunput(-1);          // no character
    feed.yyunput('4');
    EXPECT_STREQ(feed.yytext, "12");
    EXPECT_EQ(feed.next(), "1:4.5");
    EXPECT_EQ(feed.next(), "2:mm");
    EXPECT_EQ(feed.next(), "0:");
    feed.yyunput('\n');
    EXPECT_EQ(feed.yylineno, 0);
    feed.yyunput('p');
    EXPECT_EQ(feed.next(), "5:p");
    EXPECT_EQ(feed.next(), "0:");
    EXPECT_EQ(feed.yylineno, 1);
}

TEST(YyScanDeathTest, PushingBackIntoAFullBufferEndsTheProcess) {
    Feed feed("12", 3);
    EXPECT_EQ(feed.next(), "1:12");
    feed.yyunput('x');
    EXPECT_EXIT(feed.yyunput('y'), testing::ExitedWithCode(1),
                "^1: Push-back buffer overflow\r?\n$");
}

class Forgiving : public Feed {
public:
    using Feed::Feed;
    void yyerror(const char* message) override {
        errors += message;
    }
    int yywrap() override {
        rest_ = more;
        more.clear();
        return rest_.empty();
    }
    std::string errors;
    std::string more;
};

TEST(YyScan, OverriddenHooksMayContinue) {
    Forgiving feed("123456", 3);
    feed.more = "78";
    EXPECT_EQ(feed.next(), "1:123");
    feed.yyunput('9');
    EXPECT_EQ(feed.errors, "Token buffer overflowPush-back buffer overflow");
    EXPECT_EQ(feed.next(), "1:456");
    EXPECT_EQ(feed.next(), "1:78");
    EXPECT_EQ(feed.next(), "0:");
}

TEST(YyScan, ReadsAndWritesItsStreams) {
    yy_scan engine;
    engine.yyin = std::tmpfile();
    engine.yyout = std::tmpfile();
    ASSERT_TRUE(engine.yyin != nullptr && engine.yyout != nullptr);
    std::fputs("MM\xFF 7 mm", engine.yyin); // capitals are the reader's business
    std::rewind(engine.yyin);
    EXPECT_EQ(engine.yylex(), 1);
    EXPECT_EQ(engine.yylex(), 2);
    engine.yyecho();
    engine.yyputc('!');
    std::rewind(engine.yyout);
    char written[8] = {};
    EXPECT_EQ(std::fread(written, 1, 7, engine.yyout), 3u);
    EXPECT_STREQ(written, "mm!");
    EXPECT_EQ(engine.yylex(), 0);
    std::fclose(engine.yyin);
    std::fclose(engine.yyout);
}

TEST(YyScan, NumbersBeyondTheRangeOfDoubleAreInfiniteOrZero) {
    const std::string nines(400, '9');
    const std::string zeros(400, '0');
    const struct {
        std::string text;
        double number;
    } rows[] = {
        {nines, HUGE_VAL},
        {"-" + nines + ".5", -HUGE_VAL},
        {"-." + zeros + "1", -0.0},
        {zeros + "." + zeros + "1", 0.0},
        {zeros + "2.5", 2.5},
        {"-0", -0.0},
        {"." + std::string(307, '0') + "1", 1e-308},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        Feed feed(row.text, 1000);
        EXPECT_EQ(feed.yylex(), 1);
        EXPECT_EQ(yy_scan::yynumber(), row.number);
        EXPECT_EQ(std::signbit(yy_scan::yynumber()), std::signbit(row.number));
    }
}

TEST(Automaton, TheEarlierRuleWinsATie) {
    using namespace zarnex::detail;
    static constexpr TokenRule rules[] = {
        {1, {oneOf("ab")}},
        {2, {some("ab")}},
        {3, {oneOf("ab", "c")}},
    };
    static constexpr Automaton made = buildAutomaton(rules);
    const auto ruleOf = [](const char* text) {
        std::uint8_t state = Automaton::start;
        for (; *text != '\0'; ++text)
            state = made.next[state][made.classOf[static_cast<unsigned char>(*text)]];
        return made.rule[state];
    };
    EXPECT_EQ(ruleOf("ab"), 0);
    EXPECT_EQ(ruleOf("aba"), 1);
    EXPECT_EQ(ruleOf("a"), 1);
    EXPECT_EQ(ruleOf("c"), 2);
    EXPECT_EQ(ruleOf("ca"), Automaton::noRule);
    EXPECT_EQ(ruleOf("x"), Automaton::noRule);
}

} // namespace
