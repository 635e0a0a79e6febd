#include <zarnex/containers/VMAccess.h>
#include <zarnex/containers/ZArrayManager.h>
#include <zarnex/runtime/exiting.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <string>

namespace {

// A block store that aborts exits with 0: without this, one that does so outside
// a death test would end the whole run as if it had passed.
[[maybe_unused]] const int watch = std::atexit([] {
    if (isExiting() != 0 && !testing::internal::InDeathTestChild()) {
        std::fputs("A block store ended the test run.\n", stderr);
        std::_Exit(99);
    }
});

// The first `count` characters of the block.
std::string textIn(VMAccess& store, long count) {
    std::string text(static_cast<std::size_t>(count), '?');
    EXPECT_EQ(store.getBlock(text.data(), 0, count), 0);
    return text;
}

char letters[] = "abcdefgh";

TEST(VMAccess, CopiesRangesInAndOut) {
    VMAccess store;
    EXPECT_EQ(textIn(store, 2), "??") << "nothing without a block";
    EXPECT_EQ(store.saveBlock(letters, 0, 4), 0);
    EXPECT_EQ(store.unallocate(), 0);
    EXPECT_EQ(store.allocate(8), 0);
    EXPECT_EQ(store.saveBlock(letters, 0, 8), 0);
    store.saveBlock(letters, 5, 3);
    EXPECT_EQ(textIn(store, 8), "abcdeabc");
    char part[] = "....";
    store.getBlock(part, 3, 2);
    EXPECT_STREQ(part, "de..");

    store.saveBlock(letters, 0, -1);
    store.saveBlock(nullptr, 0, 2);
    store.getBlock(nullptr, 0, 2);
    EXPECT_EQ(store.reallocate(1000), 0);
    EXPECT_EQ(textIn(store, 8), "abcdeabc") << "kept while resizing";

    VMAccess copy(store), assigned;
    assigned = store;
    store.saveBlock(letters, 0, 8);
    EXPECT_EQ(textIn(copy, 8), letters) << "copies share the block";
    EXPECT_EQ(textIn(assigned, 8), letters);
    EXPECT_EQ(store.reallocate(0), 0); // frees, and the heap answers null
    EXPECT_EQ(textIn(store, 2), "??");
}

TEST(VMAccess, OverlappingCopiesRunFromTheFirstByteUp) {
    struct Open : VMAccess {
        using VMAccess::block_;
    } store;
    store.allocate(8);
    store.saveBlock(letters, 0, 8);
    store.getBlock(store.block_, 2, 6);
    EXPECT_EQ(textIn(store, 8), "cdefghgh");
    store.getBlock(store.block_ + 2, 0, 6);
    EXPECT_EQ(textIn(store, 8), "cdcdcdcd") << "the bytes in between repeat";
    store.unallocate();
}

TEST(VMAccessDeathTest, FatalFailuresSetTheFlagAndExitWithZero) {
    const auto abortPlainly = [] { VMAccess().abort(12345); };
    const auto reallocateNothing = [] { VMAccess().reallocate(16); };
    const auto withFlag = [](auto run) {
        std::atexit([] { std::_Exit(isExiting() + 10); });
        run();
    };
    EXPECT_EXIT(abortPlainly(), testing::ExitedWithCode(0), "^$");
    EXPECT_EXIT(reallocateNothing(), testing::ExitedWithCode(0), "^$");
    EXPECT_EXIT(withFlag(abortPlainly), testing::ExitedWithCode(11), "");
    EXPECT_EXIT(withFlag(reallocateNothing), testing::ExitedWithCode(11), "");
}

TEST(VMAccess, DiagnosticsWriteNothing) {
    std::ostringstream out;
    VMAccess().printHeapWalk(out);
    VMAccess().printMemorySummary(out);
    ZArrayManager manager(100);
    manager.growHeap();
    manager = ZArrayManager(5);
    EXPECT_EQ(manager.printStatus(out), 0);
    EXPECT_EQ(out.str(), "");
}

} // namespace
