#include <zarnex/containers/ZXArray.h>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <functional>
#include <utility>
#include <vector>

namespace {

using Ints = ZXArray<int>;

std::vector<int> contents(const Ints& array) {
    const int* const first = array;
    return std::vector<int>(first, first + array.length());
}

Ints arrayOf(std::vector<int> values) {
    return Ints(values.data(), static_cast<int>(values.size()));
}

TEST(ZXArray, AllocationFollowsTheGrowthRule) {
    const struct {
        const char* what;
        int step;
        std::function<void(Ints&)> grow;
        int length, alloc;
    } rows[] = {
        {"the first add takes 32", -1, [](Ints& a) { a.add(1); }, 1, 32},
        {"then doubles", -1, [](Ints& a) { a[31] = 1, a.add(33); }, 33, 64},
        {"a far write doubles until it fits", -1, [](Ints& a) { a[200] = 1; }, 201, 256},
        {"steps round up", 10, [](Ints& a) { a[25] = 1; }, 26, 30},
        {"setSize never shrinks", -1, [](Ints& a) { a[99] = 1, a.setSize(3), a.setSize(9); }, 9,
         128},
        {"setSize grows by the rule", 10, [](Ints& a) { a.setSize(11); }, 11, 20},
        {"resize halves", -1, [](Ints& a) { a[255] = 1, a.resize(33); }, 33, 64},
        {"resize to nothing frees", 10, [](Ints& a) { a[99] = 1, a.resize(-3); }, 0, 0},
        {"setAllocSize is exact", 10, [](Ints& a) { a.add(1), a.setAllocSize(7); }, 1, 7},
        {"compact is exact", -1, [](Ints& a) { a[8] = 1, a.compact(); }, 9, 9},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        Ints array;
        EXPECT_EQ(array.setStep(row.step), row.step);
        row.grow(array);
        EXPECT_EQ(array.length(), row.length);
        EXPECT_EQ(array.allocLength(), row.alloc);
        EXPECT_EQ(array.allocBytes(), row.alloc * 4);
    }
}

TEST(ZXArray, ConstructorsAllocateAsStated) {
    const std::vector<int> values{7, 8, 9, 10, 11};
    const struct {
        const char* what;
        Ints array;
        int length, alloc, step;
    } rows[] = {
        {"values", Ints(values.data(), 3), 3, 32, -1},
        {"in steps", Ints(values.data(), 5, 4), 5, 8, 4},
        {"sized", Ints(5, 10), 5, 5, 10},
        {"negative size", Ints(-1, 3), 0, 0, 3},
        {"nothing", Ints(), 0, 0, -1},
        {"null", Ints(nullptr, 3), 0, 0, -1},
        {"negative count", Ints(values.data(), -2), 0, 0, -1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(row.array.length(), row.length);
        EXPECT_EQ(row.array.allocLength(), row.alloc);
        EXPECT_EQ(row.array.getStep(), row.step);
    }
    EXPECT_EQ(contents(rows[1].array), values);
}

TEST(ZXArray, ReadsAreBoundedByTheAllocation) {
    Ints array = arrayOf({0, 1, 2, 3, 4, 5, 6, 7});
    array.compact();
    array.setSize(6); // clears slots 6 and 7
    array[-5] = 9;    // a negative index counts as 0
    static_cast<int*>(array)[7] = 77;
    const Ints& reader = array;
    EXPECT_EQ(reader[7u], 77) << "a spare slot";
    EXPECT_EQ(reader[8L], 0) << "past the allocation";
    EXPECT_EQ(reader[-7LL], 9);
    EXPECT_EQ(reader[ULLONG_MAX], 9) << "-1 as an int";
    EXPECT_EQ(reader(short{3}), 3);
    EXPECT_EQ(reader.get(1000000), 0);
    EXPECT_EQ(array.length(), 6) << "reading extends nothing";
}

TEST(ZXArray, VacatedSlotsHoldTheEmptyValue) {
    Ints array = arrayOf({1, 2, 3});
    EXPECT_EQ(array.isEmptySet(), 0);
    array.setEmpty(7);
    EXPECT_EQ(array.isEmptySet(), 1);
    array.del(2);
    EXPECT_EQ(std::as_const(array)[2], 7);
    EXPECT_EQ(array.add(), 7);
    array.clear();
    EXPECT_EQ(contents(array), std::vector<int>(3, 7));
}

TEST(ZXArray, ResizeClearsVacatedSlotsOnlyWhereTheAllocationStaysAboveTheLength) {
    const struct {
        int size, alloc, slot, value;
    } rows[] = {
        {22, 30, 23, 0},  // 30 slots, more than the 25 used: cleared
        {12, 20, 15, 15}, // 20 slots: what the cut leaves keeps its old value
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.size);
        Ints array;
        array.setStep(10);
        for (int i = 0; i < 25; ++i)
            array.add(i);
        array.resize(row.size);
        const Ints& reader = array;
        EXPECT_EQ(reader.allocLength(), row.alloc);
        EXPECT_EQ(reader[row.slot], row.value);
    }
}

TEST(ZXArray, ElementsOfTheArrayItselfSurviveItsGrowth) {
    ZXArray<ZXArray<std::pair<int, double>>> nested;
    nested.add()[2].second = 2.5;
    for (int i = 0; i < 40; ++i)
        nested.add(nested[0]);
    nested.setAllocSize(nested.length());
    nested.ins(1, nested[40]);
    nested.set(nested.allocLength(), nested[1]);
    nested.setAll(nested[3]);
    for (int i = 0; i < nested.length(); ++i)
        ASSERT_EQ(nested[i][2].second, 2.5) << i;
}

TEST(ZXArray, AnElementSetToItselfKeepsItsContent) {
    ZXArray<ZList<double>> lists;
    lists.add().add(2.5);
    lists.setEmpty(lists[0]);
    lists.set(0, lists[0]);
    lists.setEmpty(lists.getEmpty());
    EXPECT_EQ(lists[0].length(), 1);
    EXPECT_EQ(lists.getEmpty().length(), 1);
}

struct Refusing { // plain bytes otherwise
    static inline bool refuses = false;
    int number = 0;
    Refusing() {
        if (refuses)
            throw 1;
    }
    bool operator==(const Refusing&) const = default;
};

TEST(ZXArray, StaysAsItWasWhereAnElementRefusesToBeMade) {
    ZXArray<Refusing> array;
    array[3].number = 5;
    Refusing::refuses = true;
    EXPECT_THROW(array.setAllocSize(100000), int);
    Refusing::refuses = false;
    EXPECT_EQ(array[3].number, 5);
    EXPECT_EQ(array.length(), 4);
    EXPECT_EQ(array.allocLength(), 32);
}

TEST(ZXArray, CopiesTakeSpareSlotsAndBookkeeping) {
    Ints source(8, 4);
    source.setAll(3);
    source.setEmpty(9);
    source.setSize(2);
    Ints assigned(100, 1);
    assigned = source;
    const Ints copied(source);
    source = static_cast<const Ints&>(source);
    for (const Ints* const array : {&copied, &std::as_const(assigned), &std::as_const(source)}) {
        EXPECT_EQ(contents(*array), (std::vector{3, 3}));
        EXPECT_EQ(array->allocLength(), 8);
        EXPECT_EQ(array->getStep(), 4);
        EXPECT_EQ((*array)[5], 9);
        EXPECT_EQ((*array)[100], 9);
    }
    EXPECT_NE(static_cast<const int*>(copied), static_cast<const int*>(std::as_const(source)));
    assigned = Ints();
    EXPECT_EQ(assigned.allocLength(), 0);
}

TEST(ZXArray, EqualityComparesUsedElements) {
    const Ints one = arrayOf({1, 2});
    Ints other(2, 1);
    other[0] = 1;
    other[1] = 2;
    EXPECT_TRUE(one == other && !(one != other));
    other[1] = 3;
    EXPECT_TRUE(one != other && !(one == other) && one != arrayOf({1, 2, 3}));
    const double nan = std::nan("");
    const ZXArray<double> undefined(&nan, 1);
    EXPECT_TRUE(undefined == undefined) << "the same object";
    EXPECT_FALSE(undefined == ZXArray<double>(undefined));
    EXPECT_EQ(undefined.find(nan, 0), -1);
}

TEST(ZXArrayDeathTest, ASlotThatCannotBeHadEndsTheProcess) {
    EXPECT_EXIT(
        {
            ZXArray<double> array;
            array[INT_MAX] = 1.0;
        },
        testing::ExitedWithCode(1), "failed alloc");
    const char text[] = "more than any array has";
    EXPECT_EXIT(ZXArray<char>(text, INT_MAX + 1LL, 32), testing::ExitedWithCode(1), "failed alloc");
}

} // namespace
