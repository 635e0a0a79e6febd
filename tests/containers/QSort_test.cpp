#include <zarnex/containers/QSort.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <stdexcept>
#include <thread>
#include <vector>

namespace {

// Orders elements of any size by their first byte.
class ByFirst : public QSort::Callback {
public:
    explicit ByFirst(int direction = 1, int failAt = -1) : direction_(direction), left_(failAt) {}

    int compare(const void* a, const void* b) override {
        if (--left_ == 0)
            throw std::runtime_error("failed");
        const unsigned char *const first = static_cast<const unsigned char*>(a),
                                   *const second = static_cast<const unsigned char*>(b);
        return direction_ * (*first - *second);
    }

    int direction_, left_;
};

template <std::size_t size>
std::vector<std::array<unsigned char, size>> elements(std::size_t count) {
    std::mt19937 random(9);
    std::vector<std::array<unsigned char, size>> made(count);
    for (auto& element : made)
        element.fill(static_cast<unsigned char>(random()));
    return made;
}

template <std::size_t size>
void expectSorted(std::size_t count) {
    SCOPED_TRACE(testing::Message() << count << " of " << size << " bytes");
    for (const int direction : {1, -1}) {
        auto expected = elements<size>(count);
        std::sort(expected.begin(), expected.end());
        if (direction < 0)
            std::reverse(expected.begin(), expected.end());
        auto sorted = elements<size>(count);
        ByFirst callback(direction);
        QSort::sort(sorted.data(), count, size, callback);
        ASSERT_EQ(sorted, expected);
    }
}

TEST(QSort, SortsElementsOfEverySize) {
    for (const std::size_t count : {3u, 1000u}) {
        expectSorted<1>(count);
        expectSorted<4>(count);
        expectSorted<24>(count);
        expectSorted<300>(count);
    }
}

TEST(QSort, ExceptionsLeaveTheLockToOtherThreads) {
    auto sorted = elements<4>(100);
    ByFirst failing(1, 50);
    EXPECT_THROW(QSort::sort(sorted.data(), 100, 4, failing), std::runtime_error);
    std::thread([] { expectSorted<4>(100); }).join();
}

} // namespace
