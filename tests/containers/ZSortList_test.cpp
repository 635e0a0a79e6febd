#include <zarnex/containers/ZSortList.h>

#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <vector>

namespace {

using Sorted = ZSortList<int>;

std::vector<int> contents(const ZList<int>& list) {
    return std::vector<int>(list.begin(), list.end());
}

Sorted sorted(const std::vector<int>& values, int ascending) {
    Sorted list(ascending);
    for (const int value : values)
        list.add(value);
    return list;
}

TEST(ZSortList, NotANumberIsNeverFound) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    ZSortList<double> list;
    for (const double value : {1.0, 2.0, 3.0, nan})
        list.add(value);
    EXPECT_NE(list[2], list[2]) << "in front of the last";
    EXPECT_EQ(list.find(nan), -1);
}

TEST(ZSortList, TakesAListUnsortedAndChangesDirectionOnlyWhileEmpty) {
    Sorted list(ZList<int>{3, 1, 2});
    EXPECT_EQ(contents(list), (std::vector<int>{3, 1, 2})) << "not sorted";
    list.setAscending(0); // ignored
    list.empty();
    list.add(1);
    list.add(2);
    EXPECT_EQ(contents(list), (std::vector<int>{1, 2}));
    list.empty();
    list.setAscending(0);
    list.add(1);
    list.add(2);
    EXPECT_EQ(contents(list), (std::vector<int>{2, 1}));
}

TEST(ZSortList, CopiesTakeTheDirectionAlong) {
    const Sorted descending = sorted({1, 2}, 0);
    Sorted assigned, moveAssigned, copied(descending), moved(Sorted{descending});
    assigned = descending;
    moveAssigned = Sorted(descending);
    for (Sorted* list : {&assigned, &moveAssigned, &copied, &moved}) {
        list->add(3);
        EXPECT_EQ(contents(*list), (std::vector<int>{3, 2, 1}));
    }
    const Sorted& same = copied;
    copied = same;
    EXPECT_EQ(copied.length(), 0) << "as any list assigned to itself";
}

// Knows the copies of it that stand alone on the heap.
struct Loose {
    int value;
    bool operator>(const Loose& other) const {
        return value > other.value;
    }
    bool operator==(const Loose& other) const {
        return value == other.value;
    }
    static void* operator new(std::size_t bytes) {
        heap.push_back(::operator new(bytes));
        return heap.back();
    }
    static void operator delete(void* pointer) {
        ::operator delete(pointer);
    }
    static inline std::vector<void*> heap;
};

TEST(ZSortList, InsertLeavesTheListAloneAndMoveLosesTheElement) {
    ZSortList<Loose> list;
    for (const int value : {1, 2, 3})
        list.add(Loose{value});

    ZList<Loose>& plain = list;
    const Loose& loose = plain.insert(Loose{9}, 0);
    EXPECT_EQ(loose.value, 9);
    EXPECT_EQ(list.length(), 3);
    EXPECT_EQ(list.find(Loose{9}), -1);

    EXPECT_EQ(list.move(0, 2), 1);
    EXPECT_EQ(list.length(), 2);
    EXPECT_EQ(list[0].value, 2);
    EXPECT_EQ(Loose::heap.size(), 2u);
    for (void* const copy : Loose::heap)
        ::operator delete(copy);
}

} // namespace
