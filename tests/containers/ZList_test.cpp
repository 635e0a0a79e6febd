#include "tests/slots.h"

#include <zarnex/containers/ZList.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <limits>
#include <numeric>
#include <random>
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

TEST(ZList, PositionsWrap) {
    const struct {
        int index;
        int element, insertedAt;
    } rows[] = {
        {0, 10, 0},       {1, 20, 1},       {4, 50, 4},
        {5, 10, 5}, // the length: the first element, but inserting appends
        {6, 20, 1},       {12, 30, 2},      {10, 10, 5},
        {INT_MAX, 30, 2}, {-1, 10, 5}, // 2^32 - 1 steps from the head, not the last element
        {-2, 50, 4},      {INT_MIN, 40, 3},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.index);
        Ints list{10, 20, 30, 40, 50};
        const Ints& constant = list;
        EXPECT_EQ(list[row.index], row.element);
        EXPECT_EQ(list(row.index), row.element);
        EXPECT_EQ(&constant[row.index], &list[row.index]);

        Ints shortened(list);
        shortened.remove(row.index);
        std::vector<int> expected{10, 20, 30, 40, 50};
        std::erase(expected, row.element);
        EXPECT_EQ(contents(shortened), expected);

        EXPECT_EQ(list.insert(7, row.index), 7);
        EXPECT_EQ(contents(list)[static_cast<std::size_t>(row.insertedAt)], 7);
    }
}

TEST(ZList, AnEmptyListTakesEveryCall) {
    Ints list;
    list.remove(0);
    list.remove(list.begin());
    list.empty();
    EXPECT_EQ(list.find(1), -1);
    EXPECT_EQ(list.move(0, 1), 0);
    EXPECT_TRUE(list.begin() == list.end() && list.rbegin() == list.rend());
    EXPECT_TRUE(list == Ints());
    EXPECT_EQ(list[3], 0) << "a default-constructed element";
    EXPECT_EQ(list.length(), 0);
    list.insert(8, 5);
    EXPECT_EQ(contents(list), std::vector<int>{8});
    list.remove(-4);
    EXPECT_EQ(contents(list), std::vector<int>());
}

TEST(ZList, MoveRefusesPositionsOutOfRange) {
    Ints list{0, 1, 2};
    for (const auto& [from, to] : {std::pair(1, 1), {-1, 1}, {3, 1}, {1, -1}, {1, 3}}) {
        SCOPED_TRACE(testing::Message() << from << " to " << to);
        EXPECT_EQ(list.move(from, to), 0);
        EXPECT_EQ(contents(list), upTo(3));
    }
}

TEST(ZList, AgreesWithAVectorOverRandomEdits) {
    std::mt19937 random(20);
    Ints list;
    std::vector<int> model;
    for (int step = 0; step < 4000; ++step) {
        SCOPED_TRACE(step);
        const int kind = static_cast<int>(random() % 8);
        const bool any = !model.empty();
        const int at = any ? static_cast<int>(random() % model.size()) : 0;
        const int to = any ? static_cast<int>(random() % model.size()) : 0;
        const auto place = model.begin() + at;
        std::vector<int> moreModel = upTo(static_cast<int>(random() % 3));
        Ints more;
        for (const int value : moreModel)
            more.add(value);

        if (kind == 0) {
            EXPECT_EQ(list.add(step), step);
            model.push_back(step);
        } else if (kind == 1) {
            EXPECT_EQ(list.insert(step, at), step);
            model.insert(place, step);
        } else if (kind == 2) {
            list += more;
            EXPECT_EQ(more.length(), 0);
            model.insert(model.end(), moreModel.begin(), moreModel.end());
        } else if (kind == 3) {
            list.inject(more, at);
            EXPECT_EQ(more.length(), 0);
            model.insert(place, moreModel.begin(), moreModel.end());
        } else if (kind == 4 && any) {
            EXPECT_EQ(list.move(at, to), at != to ? 1 : 0);
            const int moved = *place;
            model.erase(place);
            model.insert(model.begin() + to, moved);
        } else if (kind == 5 && any) {
            Ints::iterator position = list.it(at);
            list.remove(position);
            model.erase(place);
            EXPECT_TRUE(position == list.it(at)) << "at the next element or the end";
        } else if (any) {
            list.removeByIndex(at);
            model.erase(place);
        }
        ASSERT_EQ(contents(list), model);
    }
}

TEST(ZList, InjectingAtAWrappedIndexAppends) {
    Ints list{0, 1};
    Ints more{2, 3};
    list.inject(more, 2);
    EXPECT_EQ(contents(list), upTo(4));
    Ints taken;
    taken.inject(list, 9);
    EXPECT_EQ(contents(taken), upTo(4));
    EXPECT_EQ(contents(list), upTo(0));
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

TEST(ZList, AssigningAListToItselfEmptiesIt) {
    Ints list{0, 1, 2};
    const Ints& same = list;
    list = same;
    EXPECT_EQ(contents(list), upTo(0));
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
    EXPECT_EQ(&moved[0], first);
    EXPECT_EQ(list.length(), 0);
    copy = std::move(moved);
    EXPECT_EQ(&copy[0], first);
    EXPECT_EQ(contents(copy), upTo(3));
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
        EXPECT_EQ(Counted::alive, 5);
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
    const ZList<double> notANumber{nan};
    const struct {
        ZList<double> a, b;
        int equal;
    } rows[] = {
        {{}, {}, 1},      {{1, 2}, {1, 2}, 1}, {{1, 2}, {1, 3}, 0},
        {{1, 2}, {1}, 0}, {{1}, {1, 2}, 0},    {{nan}, {nan}, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        EXPECT_EQ(row.a == row.b, row.equal);
        EXPECT_EQ(row.a != row.b, 1 - row.equal);
    }
    EXPECT_EQ(notANumber == notANumber, 0);
    EXPECT_EQ(notANumber.find(nan), -1);
}

static_assert(std::bidirectional_iterator<Ints::iterator>);
static_assert(std::bidirectional_iterator<Ints::const_reverse_iterator>);
static_assert(std::ranges::bidirectional_range<const Ints>);
static_assert(std::is_convertible_v<Ints::iterator, Ints::const_iterator>);
static_assert(!std::is_convertible_v<Ints::const_iterator, Ints::iterator>);
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
}

TEST(ZList, IteratorsByPositionDoNotWrap) {
    Ints list{0, 1, 2};
    const Ints& constant = list;
    for (const int index : {-1, 3, INT_MIN, INT_MAX}) {
        SCOPED_TRACE(index);
        EXPECT_TRUE(list.it(index) == list.end() && constant.it(index) == constant.end());
        EXPECT_TRUE(list.rit(index) == list.rend() && constant.rit(index) == constant.rend());
    }
    EXPECT_EQ(std::vector<int>(list.it(1), list.end()), (std::vector<int>{1, 2}));
    EXPECT_EQ(std::vector<int>(constant.rit(1), constant.rend()), (std::vector<int>{1, 0}));
}

TEST(ZList, RemovingAnIteratorOfAnotherListDoesNothing) {
    Ints list{0, 1};
    Ints other{0, 1};
    Ints::iterator theirs = other.begin();
    list.remove(theirs);
    EXPECT_EQ(contents(list), upTo(2));
    EXPECT_EQ(*theirs, 0);
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

struct Later; // a list of pointers needs no more

struct alignas(64) Aligned {
    double number;
    bool operator==(const Aligned&) const = default;
};

template <class T>
void exercise(const T& one, const T& two) {
    ZList<T> list{one, two};
    list.move(0, 1);
    list.insert(one, 0);
    EXPECT_EQ(list.find(two), 1);
    list.removeByIndex(0);
    EXPECT_EQ(list == ZList<T>({two, one}), 1);
}

TEST(ZList, HoldsEachElementType) {
    exercise<unsigned char>(1, 2);
    exercise<short>(1, 2);
    exercise<double>(1, 2);
    exercise<std::pair<int, unsigned char>>({1, 2}, {1, 3});
    exercise<std::pair<int, int>>({1, 2}, {2, 2});
    exercise<Aligned>({1.0}, {2.0});
    int storage[2];
    exercise<Later*>(reinterpret_cast<Later*>(storage), reinterpret_cast<Later*>(storage + 1));
}

TEST(ZList, FieldsAndSlotsStandInTheirOrder) {
    struct Fields {
        const void* table;
        const ZListNode<int>* head;
        std::uint32_t count;
    } fields;
    static_assert(sizeof(Fields) == sizeof(Ints));
    static_assert(offsetof(ZListNode<int>, data) == 0);
    static_assert(offsetof(ZListNode<int>, next) < offsetof(ZListNode<int>, prev));

    Ints list{4, 5};
    std::memcpy(&fields, static_cast<const void*>(&list), sizeof fields);
    EXPECT_EQ(&fields.head->data, &list[0]);
    EXPECT_EQ(&fields.head->next->data, &list[1]);
    EXPECT_EQ(fields.count, 2u);

    using Insert = int& (Ints::*)(const int&, int);
    EXPECT_EQ(slotOf(static_cast<Insert>(&Ints::insert)), 2);
}

} // namespace
