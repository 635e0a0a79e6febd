#include <zarnex/containers/ZArray.h>

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <cstring>
#include <new>
#include <vector>

namespace {

bool heapIsFull = false; // for arrays that ask without exceptions

} // namespace

void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept {
    return heapIsFull ? nullptr : ::operator new[](bytes);
}

namespace {

using Floats = ZArray<float>;

struct Fields {
    void* table;
    unsigned char* block;
    float* cache;
    std::uint32_t blockBytes, cacheLength, limit, cacheStart, growBytes;
};
static_assert(sizeof(Fields) == sizeof(Floats));

Fields fieldsOf(const Floats& array) {
    Fields fields;
    std::memcpy(&fields, static_cast<const void*>(&array), sizeof fields);
    return fields;
}

std::vector<float> firstOf(const Floats& array, long count) {
    return std::vector<float>(&array[0], &array[0] + count);
}

Floats& fill(Floats& array, int count) {
    for (int i = 0; i < count; ++i)
        array[i] = static_cast<float>(i);
    return array;
}

TEST(ZArray, AccessKeepsOneGrowthStepInReserve) {
    const struct {
        unsigned int n;
        long index;
        std::uint32_t blockBytes;
    } rows[] = {
        {100, 98, 800},    {100, 99, 1200}, {100, 198, 1200}, {100, 199, 1600},
        {100, 1000, 4800}, {1, 50, 212},    {0, 3, 24}, // no elements counts as one
        {100, -7, 800},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.n << ", " << row.index);
        Floats array(row.n, 0);
        array[row.index] = 2.5f;
        EXPECT_EQ(fieldsOf(array).blockBytes, row.blockBytes);
        EXPECT_EQ(*(array + row.index), 2.5f);
        EXPECT_EQ(&array[row.index], &array[0] + (row.index < 0 ? 0 : row.index));
        EXPECT_EQ(array.reset(), 0);
        EXPECT_EQ(fieldsOf(array).blockBytes, 8 * (row.n == 0 ? 1 : row.n));
    }
    struct Open : Floats {
        using Floats::checkSize;
        using Floats::Floats;
    } array(100, 0);
    EXPECT_EQ(array.checkSize(99), 0);
    EXPECT_EQ(fieldsOf(array).blockBytes, 1200u);
}

TEST(ZArray, InsertShiftsTheWholeBlockAndGrowsItEachTime) {
    Floats array(100, 20);
    EXPECT_EQ(array.size(), 120u);
    fill(array, 50);
    EXPECT_EQ(array.insert(array[3], 1), 3.0f) << "its own element";
    EXPECT_EQ(firstOf(array, 5), (std::vector<float>{0, 3, 1, 2, 3}));
    EXPECT_EQ(fieldsOf(array).blockBytes, 1600u);
    array.insert(9, INT_MIN);
    EXPECT_EQ(firstOf(array, 5), (std::vector<float>{9, 0, 3, 1, 2}));
    array.insert(8, 5000);
    EXPECT_EQ(array[5000], 8.0f);
    EXPECT_EQ(array[51], 49.0f);
}

TEST(ZArray, RemoveDropsTheElementBeforeTheIndex) {
    const struct {
        int index;
        float returned;
        std::vector<float> after;
    } rows[] = {{2, 3, {0, 2, 3, 4}},
                {1, 2, {1, 2, 3, 4}},
                {0, 1, {1, 2, 3, 4}},
                {INT_MIN, 1, {1, 2, 3, 4}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.index);
        Floats array(8, 0);
        EXPECT_EQ(fill(array, 10).remove(row.index), row.returned);
        array.remove(2000); // past the block: nothing to move
        EXPECT_EQ(firstOf(array, 4), row.after);
    }
}

TEST(ZArray, TransfersNeedRoomForAChunkAndGrowTheBlock) {
    Floats array(10, 0);
    fill(array, 8);
    for (const int kb : {0, INT_MIN})
        EXPECT_EQ(array.copy(0, 3, 3, kb), -1);
    EXPECT_EQ(array.move(0, 3, 6, 0), -1);
    EXPECT_EQ(firstOf(array, 4), (std::vector<float>{0, 1, 2, 3}));
    EXPECT_EQ(fieldsOf(array).cache[1], 0.0f) << "a failed copy does not load the cache";
    EXPECT_EQ(array.move(0, 6, 3, 0) + array.copy(0, 3, 0, 0) + array.copy(0, 3, -5, 0), 0)
        << "empty ranges need no chunk";

    array.copy(500, 0, 8, 4); // both ends are within the block then
    EXPECT_EQ(array[507], 7.0f);
    EXPECT_GE(fieldsOf(array).blockBytes, 4u * 508);
    array.move(0, 900, 901, 4);
    EXPECT_GE(fieldsOf(array).blockBytes, 4u * 901);
}

TEST(ZArray, FreezeWritesTheCacheOverTheBlock) {
    Floats array(4, 0);
    fill(array, 10);
    EXPECT_EQ(array.copy(2, 8, 1, 4), 0); // loads the cache: 0, 1, 8, 3
    array[0] = 20;
    array[4] = 24;
    EXPECT_EQ(array.freeze(), 0);
    EXPECT_EQ(firstOf(array, 5), (std::vector<float>{0, 1, 8, 3, 24})) << "the 20 is lost";
    array[1] = 21;
    EXPECT_EQ(array.freeze(), 0);
    EXPECT_EQ(array.copy(9, 0, 1, 4), 0);
    EXPECT_EQ(array.restore(), 0);
    EXPECT_EQ(array[1], 21.0f) << "frozen, the block is all there is";
    array[1] = 0;
    array.freeze();
    EXPECT_EQ(array[1], 21.0f);
}

TEST(ZArray, CopiesShareBlockAndCache) {
    Floats array(4, 1);
    alignas(Floats) unsigned char room[2][sizeof(Floats)]; // never destroyed
    Floats& copy = *new (room[0]) Floats(array);
    Floats& assigned = *new (room[1]) Floats(array);
    assigned = copy;
    EXPECT_EQ(&copy[2], &array[2]);
    EXPECT_EQ(&assigned[2], &array[2]);
    EXPECT_EQ(fieldsOf(copy).cache, fieldsOf(array).cache);
    EXPECT_EQ(copy.size(), 5u);
}

TEST(ZArrayDeathTest, StorageThatCannotBeHadEndsTheProcess) {
    const auto buildInFullHeap = [] {
        heapIsFull = true;
        const ZArray<double> array(10, 0);
    };
    const auto restoreInFullHeap = [] {
        ZArray<double> array(10, 0);
        array.freeze();
        heapIsFull = true;
        array.restore();
    };
    const auto buildTooLarge = [] { const Floats array(1u << 29, 0); };
    const auto reachTooFar = [] { Floats(10, 0)[INT_MAX] = 1; };
    EXPECT_EXIT(buildInFullHeap(), testing::ExitedWithCode(0), "^$");
    EXPECT_EXIT(buildTooLarge(), testing::ExitedWithCode(0), "^$");
    EXPECT_EXIT(reachTooFar(), testing::ExitedWithCode(0), "^$");
    EXPECT_EXIT(restoreInFullHeap(), testing::ExitedWithCode(1), "failed alloc");
}

} // namespace
