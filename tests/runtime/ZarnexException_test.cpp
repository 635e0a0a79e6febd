#include "tests/slots.h"

#include <zarnex/runtime/ZarnexException.h>
#include <zarnex/runtime/exiting.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

int source; // an object to have raised the exceptions

TEST(ZarnexException, EachConstructorFillsWhatItIsNotGiven) {
    const ZarnexException none;
    const ZarnexException coded(7, &source);
    const ZarnexException full("bad", 5, &source);
    const ZarnexException sourced("bad", &source);
    const ZarnexException silent("", 5, &source);
    const ZarnexException zero(0, nullptr);
    const struct {
        const ZarnexException& exception;
        const char* what;
        long code;
        void* source;
    } rows[] = {
        {none, "No Exception Message Set", -1, nullptr},
        {coded, "No Exception Message Set", 7, &source},
        {full, "bad", 5, &source},
        {sourced, "bad", -1, &source},
        {silent, "No Exception Message Set", 5, &source},
        {zero, "No Exception Message Set", 0, nullptr},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.what << " " << row.code);
        EXPECT_STREQ(row.exception.what(), row.what);
        EXPECT_EQ(row.exception.errCode(), row.code);
        EXPECT_EQ(row.exception.sourceObject(), row.source);
    }
    EXPECT_EQ(ZarnexException().type(), 0);
}

TEST(ZarnexException, CodesAreSigned32BitOnEveryPlatform) {
    EXPECT_EQ(ZarnexException(static_cast<long>(0x80004005), nullptr).errCode(), -2147467259L);
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

TEST(ZarnexException, SelfAssignmentChangesNothing) {
    ZarnexException exception("bad", 5, &source);
    const ZarnexException& same = exception;
    exception = same;
    EXPECT_STREQ(exception.what(), "bad");
    EXPECT_EQ(exception.errCode(), 5);
}

TEST(ZarnexException, CrossesTheLibraryBoundaryAsStandardException) {
    try {
        throw ZarnexException("bad", 5, &source);
    } catch (const std::exception& caught) {
        EXPECT_STREQ(caught.what(), "bad");
    }
}

TEST(ZarnexException, FieldsAndSlotsStandInTheirOrder) {
    struct Fields {
        const void* table;
        void* source;
        std::string message;
        std::int32_t code;
    };
    static_assert(sizeof(Fields) == sizeof(ZarnexException));
    const ZarnexException exception("bad", 5, &source);
    const char* const start = reinterpret_cast<const char*>(&exception);
    EXPECT_EQ(std::memcmp(start + offsetof(Fields, code), "\5\0\0\0", 4), 0);
    void* held;
    std::memcpy(&held, start + offsetof(Fields, source), sizeof held);
    EXPECT_EQ(held, &source);
    EXPECT_EQ(slotOf(&ZarnexException::what), 2);
    EXPECT_EQ(slotOf(&ZarnexException::type), 3);
    EXPECT_EQ(slotOf(&ZarnexException::errCode), 4);
    EXPECT_EQ(slotOf(&ZarnexException::sourceObject), 5);
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
