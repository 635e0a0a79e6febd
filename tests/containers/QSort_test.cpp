#include <zarnex/containers/QSort.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
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
    for (const std::size_t count : {1u, 2u, 3u, 100u, 1000u}) {
        expectSorted<1>(count);
        expectSorted<4>(count);
        expectSorted<24>(count);
        expectSorted<300>(count);
    }
}

TEST(QSort, DoesNothingWhereThereIsNothingToSort) {
    constexpr std::size_t most = (std::numeric_limits<std::size_t>::max)();
    unsigned char bytes[] = {2, 1};
    const struct {
        void* base;
        std::size_t count, size;
    } rows[] = {{nullptr, 2, 1}, {bytes, 0, 1}, {bytes, 2, 0}, {bytes, most, 2}, {bytes, 2, most}};
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        ByFirst failing(1, 1);
        EXPECT_NO_THROW(QSort::sort(row.base, row.count, row.size, failing));
        EXPECT_EQ(bytes[0], 2);
    }
}

TEST(QSort, ExceptionsComeOutAndLeaveElementsAndLockInOrder) {
    for (const int failAt : {1, 2, 50, 400}) {
        SCOPED_TRACE(failAt);
        auto sorted = elements<4>(100);
        ByFirst failing(1, failAt);
        EXPECT_THROW(QSort::sort(sorted.data(), 100, 4, failing), std::runtime_error);
        EXPECT_EQ(failing.left_, 0) << "compared on";
        const auto before = elements<4>(100);
        EXPECT_TRUE(std::is_permutation(before.begin(), before.end(), sorted.begin()));
        std::thread([] { expectSorted<4>(100); }).join();
    }
}

// Sorts, and fails to, inside of its own comparison.
class Nested : public ByFirst {
    int compare(const void* a, const void* b) override {
        expectSorted<1>(5);
        ByFirst failing(1, 1);
        unsigned char bytes[] = {2, 1};
        EXPECT_THROW(QSort::sort(bytes, 2, 1, failing), std::runtime_error);
        return ByFirst::compare(a, b);
    }
};

TEST(QSort, CallbacksMaySortThemselves) {
    auto sorted = elements<4>(50);
    Nested nested;
    QSort::sort(sorted.data(), 50, 4, nested);
    EXPECT_TRUE(std::is_sorted(sorted.begin(), sorted.end()));
}

} // namespace
