#include <zarnex/runtime/ZarnexException.h>
#include <zarnex/runtime/exiting.h>

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

int source; // an object to have raised the exceptions

TEST(ZarnexException, EachConstructorFillsWhatItIsNotGiven) {
    ZarnexException own("bad", 5, &source);
    own = static_cast<const ZarnexException&>(own);
    const struct {
        ZarnexException exception;
        const char* what;
        long code;
        void* source;
    } rows[] = {
        {ZarnexException(), "No Exception Message Set", -1, nullptr},
        {ZarnexException(7, &source), "No Exception Message Set", 7, &source},
        {ZarnexException("bad", 5, &source), "bad", 5, &source},
        {ZarnexException("bad", &source), "bad", -1, &source},
        {ZarnexException("", 5, &source), "No Exception Message Set", 5, &source},
        {ZarnexException(0, nullptr), "No Exception Message Set", 0, nullptr},
        // Codes have 32 bits and a sign on every platform.
        {ZarnexException(static_cast<long>(0x80004005), nullptr), "No Exception Message Set",
         -2147467259L, nullptr},
        {ZarnexException(0xffffffffu, nullptr), "No Exception Message Set", -1, nullptr},
        {ZarnexException(1LL << 32, nullptr), "No Exception Message Set", 0, nullptr},
        {own, "bad", 5, &source},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        const std::exception& standard = row.exception;
        EXPECT_STREQ(standard.what(), row.what);
        EXPECT_EQ(row.exception.errCode(), row.code);
        EXPECT_EQ(row.exception.sourceObject(), row.source);
    }
    EXPECT_EQ(own.type(), 0);
}

class Overriding : public ZarnexException {
public:
    Overriding() : ZarnexException("own", 1, nullptr) {}
    const char* what() const noexcept override {
        return "overridden";
    }
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wignored-qualifiers"
    const long errCode() const override {
        return 42;
    }
#pragma GCC diagnostic pop
    void* sourceObject() const override {
        return &source;
    }
};

TEST(ZarnexException, CopiesGoThroughTheVirtualAccessors) {
    const Overriding derived;
    const ZarnexException copied(derived);
    ZarnexException assigned;
    assigned = derived;
    for (const ZarnexException* copy : {&copied, static_cast<const ZarnexException*>(&assigned)}) {
        EXPECT_STREQ(copy->what(), "overridden");
        EXPECT_EQ(copy->errCode(), 42);
        EXPECT_EQ(copy->sourceObject(), &source);
    }
}

TEST(ExitFlag, GoesToOneAndStays) {
    const auto run = [] {
        int seen = isExiting() == 0 ? 0 : 100;
        setExiting();
        seen += isExiting();
        setExiting();
        seen += isExiting();
        std::exit(seen);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(2), "");
}

TEST(ExitFlagDeathTest, FatalExitWritesThenFlagsThenExits) {
    const auto run = [] {
        std::atexit([] { std::_Exit(isExiting() + 10); });
        zarnex::exitFatally("the reason\n", 1);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(11), "the reason");
}

} // namespace
