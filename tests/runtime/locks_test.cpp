#include <zarnex/runtime/MiniGuard.h>
#include <zarnex/runtime/ZRefCount.h>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstring>
#include <new>
#include <thread>

namespace {

// Whether another thread gets hold of `lock` soon. It lets go again at once.
class Contender {
public:
    explicit Contender(MiniLock& lock)
        : thread_([this, &lock] {
              const MiniGuard guard(lock);
              passed_ = true;
          }) {}
    ~Contender() {
        thread_.join();
    }

    bool passes(std::chrono::milliseconds patience) {
        const auto end = std::chrono::steady_clock::now() + patience;
        while (!passed_ && std::chrono::steady_clock::now() < end)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return passed_;
    }

private:
    std::atomic<bool> passed_ = false;
    std::thread thread_;
};

constexpr std::chrono::milliseconds briefly{30};
constexpr std::chrono::milliseconds amply{20000};

TEST(MiniGuard, NestsOnOneThreadAndReleasesWithTheOutermost) {
    MiniLock lock;
    lock.lock();
    {
        MiniGuard inner(lock);
        EXPECT_EQ(&inner.getLock(), &lock);
    }
    Contender contender(lock);
    EXPECT_FALSE(contender.passes(briefly)) << "the inner guard released too much";
    lock.unlock();
    EXPECT_TRUE(contender.passes(amply));
}

TEST(MiniGuard, CopyingTakesNoLockButReleasesOne) {
    MiniLock lock;
    lock.lock();
    {
        MiniGuard guard(lock);
        const MiniGuard copy(guard);
    } // two releases for one lock(): the outer lock() is undone here
    Contender contender(lock);
    EXPECT_TRUE(contender.passes(amply));
}

// The copy is never destroyed: it would be the end of the lock that it was made from.
TEST(MiniLock, CopiesAreTheBytesOfTheLock) {
    const MiniLock lock, other;
    alignas(MiniLock) unsigned char place[sizeof(MiniLock)];
    MiniLock& copy = *new (place) MiniLock(lock);
    EXPECT_EQ(std::memcmp(place, static_cast<const void*>(&lock), sizeof place), 0);
    std::memset(place + sizeof(void*), 0x5a, sizeof place - sizeof(void*));
    copy = other;
    EXPECT_EQ(std::memcmp(place, static_cast<const void*>(&other), sizeof place), 0);
}

TEST(ZRefCount, CountsUpDownAndWraps) {
    int shared = 0;
    ZRefCount count(&shared);
    EXPECT_EQ(count.value(), 1u);
    EXPECT_EQ(count.pointer(), &shared);
    EXPECT_EQ((++ ++count).value(), 3u);
    EXPECT_EQ(count.decrement(), 2u);
    EXPECT_EQ(count.value(), 2u);
    count.decrement();
    EXPECT_EQ(count.decrement(), 0u);
    EXPECT_EQ(count.decrement(), 4294967295u);
}

TEST(ZRefCount, OneLockSerialisesTheCountsOfAllThreads) {
    ZRefCount count(nullptr);
    const auto takeAndDrop = [&count] {
        for (int i = 0; i < 20000; ++i) {
            lockRefCount();
            ++count;
            unlockRefCount();
            lockRefCount();
            count.decrement();
            unlockRefCount();
        }
    };
    std::thread one(takeAndDrop);
    std::thread two(takeAndDrop);
    one.join();
    two.join();
    EXPECT_EQ(count.value(), 1u);
}

} // namespace
