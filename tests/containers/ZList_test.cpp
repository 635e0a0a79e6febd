#include <zarnex/containers/ZList.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <limits>
#include <numeric>
#include <ranges>
#include <type_traits>
#include <vector>

namespace {

using Ints = ZList<int>;

// The elements, after checking that the ring says the same backwards.
std::vector<int> contents(const Ints& list) {
    const std::vector<int> forwards(list.begin(), list.end());
    std::vector<int> backwards(list.rbegin(), list.rend());
    std::reverse(backwards.begin(), backwards.end());
    EXPECT_EQ(forwards, backwards);
    EXPECT_EQ(list.length(), static_cast<long>(forwards.size()));
    return forwards;
}

std::vector<int> upTo(int count) {
    std::vector<int> values(static_cast<std::size_t>(count));
    std::iota(values.begin(), values.end(), 0);
    return values;
}

TEST(ZList, AnEmptyListTakesEveryCall) {
    Ints list;
    list.remove(0);
    list.remove(list.begin());
    list.empty();
    EXPECT_EQ(list.find(1), -1);
    EXPECT_TRUE(list.begin() == list.end() && list.rbegin() == list.rend() && list == Ints());
    EXPECT_EQ(list[3], 0) << "a default-constructed element";
    EXPECT_EQ(list.length(), 0);
}

TEST(ZList, PositionsWrapAndNegativeOnesAre2To32More) {
    const struct {
        int index, element, inserted; // where the first comes round again, it is appended
    } rows[] = {{0, 0, 0}, {2, 2, 2}, {3, 0, 3}, {7, 1, 1}, {-1, 0, 3}, {INT_MIN, 2, 2}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.index);
        Ints list{0, 1, 2};
        EXPECT_EQ(list[row.index], row.element);
        EXPECT_EQ(&list(row.index), &list[row.index]);
        list.insert(9, row.index);
        EXPECT_EQ(list.find(9), row.inserted);
        list.remove(list.find(9));
        list.removeByIndex(row.index);
        EXPECT_EQ(list.find(row.element), -1);
    }
}

TEST(ZList, TakesItselfAndItsElementsAsArguments) {
    Ints list{0, 1};
    list.add(list[0]);
    list.insert(list[1], 0);
    list.join(list);
    list += list;
    list.inject(list, 1);
    EXPECT_EQ(contents(list), (std::vector<int>{1, 0, 1, 0}));
}

TEST(ZList, CopiesAreIndependentAndMovesTakeTheNodes) {
    Ints list{0, 1, 2};
    const int* const first = &list[0];
    Ints copy(list);
    copy[0] = 9;
    EXPECT_EQ(contents(list), upTo(3));
    copy = list;
    EXPECT_EQ(contents(copy), upTo(3));

    Ints moved(std::move(list));
    EXPECT_EQ(contents(list), upTo(0));
    copy = std::move(moved);
    EXPECT_EQ(&copy[0], first);
    EXPECT_EQ(contents(copy), upTo(3));
    const Ints& same = copy;
    copy = same;
    EXPECT_EQ(contents(copy), upTo(0)) << "assigned to itself";
}

// Has no default constructor and knows how many of it are alive.
struct Counted {
    explicit Counted(int number) : value(number) {
        ++alive;
    }
    Counted(const Counted& other) : value(other.value) {
        ++alive;
    }
    ~Counted() {
        --alive;
    }
    int value;
    static inline int alive = 0;
};

TEST(ZList, ElementsDieWithTheirNodes) {
    {
        ZList<Counted> list;
        for (const int value : upTo(5))
            list.add(Counted(value));
        list.remove(1);
        list.remove(list.begin());
        EXPECT_EQ(Counted::alive, 3);
        list.empty();
        EXPECT_EQ(Counted::alive, 0);
        list.add(Counted(1));
    }
    EXPECT_EQ(Counted::alive, 0);
}

TEST(ZListDeathTest, AnEmptyListOfElementsWithoutDefaultEndsTheProcess) {
    const auto run = [] {
        ZList<Counted> none;
        none[0].value = 1;
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(1), "empty list");
}

TEST(ZList, CallbacksGetElementsInOrderWithTheUserPointer) {
    Ints list{5, 6, 7, 6};
    std::vector<int> seen;
    list.forEach(
        [](int value, void* user) { static_cast<std::vector<int>*>(user)->push_back(value); },
        &seen);
    EXPECT_EQ(seen, contents(list));

    const auto equals = [](int value, void* user) -> int {
        return *static_cast<int*>(user) == value;
    };
    int wanted = 6;
    EXPECT_EQ(list.firstThat(equals, &wanted), &list[1]);
    EXPECT_EQ(list.find(wanted), 1);
    wanted = 8;
    EXPECT_EQ(list.firstThat(equals, &wanted), nullptr);
    EXPECT_EQ(list.find(wanted), -1);
    EXPECT_EQ(list.firstThat(nullptr, nullptr), nullptr);
    list.forEach(nullptr, nullptr);
}

TEST(ZList, EqualityComparesElementByElement) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const ZList<double> lists[] = {{}, {1}, {1, 2}, {1, 3}, {nan}};
    for (const auto& a : lists) {
        for (const auto& b : lists) {
            SCOPED_TRACE(testing::Message() << &a - lists << " with " << &b - lists);
            EXPECT_EQ(a == b, &a == &b && &a != &lists[4]);
            EXPECT_EQ(a != b, 1 - (a == b));
        }
    }
    EXPECT_EQ(lists[2] == ZList<double>(lists[2]), 1);
    EXPECT_EQ(lists[4].find(nan), -1);
}

static_assert(std::is_same_v<decltype(*std::declval<Ints&>().rbegin()), int&>);

TEST(ZList, IteratorsServeTheStandardAlgorithms) {
    Ints list{0, 1, 2};
    std::reverse(list.begin(), list.end());
    for (int& value : list)
        value *= 10;
    EXPECT_EQ(contents(list), (std::vector<int>{20, 10, 0}));

    Ints::const_iterator last = list.end();
    EXPECT_EQ(*--last, 0);
    EXPECT_TRUE(last == list.it(2) && last != list.cend());
    EXPECT_TRUE(++last == list.end() && ++last == list.end()) << "the end stays the end";
    EXPECT_EQ(*--list.rend(), 20);
    EXPECT_TRUE(--list.begin() == list.end());
    EXPECT_EQ(*list.rit(1)++, 10);

    Ints other(list);
    Ints::iterator theirs = other.begin();
    list.remove(theirs);
    EXPECT_EQ(list.length(), 3) << "an iterator of another list removes nothing";
    EXPECT_EQ(*theirs, 20);
}

TEST(ZList, IteratorsByPositionDoNotWrap) {
    Ints list{0, 1, 2};
    const Ints& constant = list;
    for (const int index : {-1, 3, INT_MIN, INT_MAX}) {
        SCOPED_TRACE(index);
        EXPECT_TRUE(list.it(index) == list.end() && constant.it(index) == constant.end());
        EXPECT_TRUE(list.rit(index) == list.rend() && constant.rit(index) == constant.rend());
    }
    EXPECT_EQ(std::vector<int>(constant.it(1), constant.end()), (std::vector<int>{1, 2}));
    EXPECT_EQ(std::vector<int>(constant.rit(1), constant.rend()), (std::vector<int>{1, 0}));
}

template <class Index>
concept Indexes = requires(Ints list, const Ints constant, Index index) {
    list.remove(index);
    list[index];
    constant[index];
    list(index);
    list.it(index);
    list.insert(1, index);
};
static_assert(Indexes<int> && Indexes<long> && Indexes<unsigned> && Indexes<std::size_t>);
static_assert(requires(Ints list) { list.remove(0L), list.remove(0u), list.remove(list.begin()); });
static_assert(requires(Ints list) { list.insert(1, list.length()), list.insert(1, 0u); });

} // namespace
