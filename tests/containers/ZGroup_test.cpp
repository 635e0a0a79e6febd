#include <zarnex/containers/ZGroup.h>

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <cstring>
#include <deque>
#include <vector>

namespace {

struct Item : ZGroupable {};

using Items = std::vector<ZGroupable*>;

Items members(ZGroup& group) {
    const ZList<ZGroupable*> list = group.getItemList();
    return Items(list.begin(), list.end());
}

void add(ZGroup& group, const Items& items) {
    for (ZGroupable* const item : items)
        EXPECT_EQ(group.addItem(item), 0);
}

// The items that the group passes to a visitor.
Items visited(ZGroup& group, void (ZGroup::*walk)(void (*)(ZGroupable*))) {
    static Items seen;
    seen.clear();
    (group.*walk)(nullptr);
    (group.*walk)([](ZGroupable* item) { seen.push_back(item); });
    return seen;
}

TEST(ZGroup, RoomGrowsBy32) {
    struct {
        const void *table, *parent, *items;
        std::int32_t capacity, count;
    } fields;
    const struct {
        int asked, room, later;
    } rows[] = {{0, 1, 33}, {1, 1, 33}, {40, 40, 40}, {-1, 0, 32}, {INT_MIN, 0, 32}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.asked);
        Item first, second;
        ZGroup group(row.asked);
        std::memcpy(&fields, static_cast<const void*>(&group), sizeof fields);
        EXPECT_EQ(fields.capacity, row.room);
        add(group, {&first, &second});
        std::memcpy(&fields, static_cast<const void*>(&group), sizeof fields);
        EXPECT_EQ(fields.capacity, row.later);
        EXPECT_EQ(members(group), Items({&first, &second}));
    }
}

TEST(ZGroup, RemovalMovesTheLastMemberToTheVacantPlace) {
    Item a, b, c;
    ZGroup group(0);
    add(group, {&a, &b, &c});
    EXPECT_EQ(group.removeItem(&a), 0);
    EXPECT_EQ(members(group), Items({&c, &b}));
    EXPECT_EQ(group.addItem(&b) + group.addItem(&group) + ZGroup(1).addItem(&b), -3);
    EXPECT_EQ(visited(group, &ZGroup::apply), Items({&c, &b}));
    for (const int index : {INT_MIN, -1, 2, INT_MAX})
        EXPECT_EQ(group.indexToItem(index), nullptr) << index;
    EXPECT_EQ(group.indexToItem(1), &b);
    group.emptyGroup();
    EXPECT_EQ(group.size(), 0);
    add(group, {&b, &c, &a});
}

TEST(ZGroup, TraversePassesLeavesAndEndsInCirclesAndDepths) {
    Item leaves[4];
    ZGroup group(1), inner(1), empty(1);
    add(group, {&leaves[0], &inner, &empty, &leaves[3]});
    add(inner, {&leaves[1], &leaves[2]});
    const Items depthFirst{&leaves[0], &leaves[1], &leaves[2], &leaves[3]};
    EXPECT_EQ(visited(group, &ZGroup::traverse), depthFirst);
    EXPECT_EQ(visited(group, &ZGroup::apply), Items({&leaves[0], &inner, &empty, &leaves[3]}));
    EXPECT_EQ(inner.addItem(&group), 0) << "a circle is not noticed";
    EXPECT_EQ(visited(group, &ZGroup::traverse), depthFirst);

    Item leaf;
    std::deque<ZGroup> nested;
    for (int i = 0; i < 200000; ++i) {
        nested.emplace_back(0);
        nested.back().addItem(i == 0 ? static_cast<ZGroupable*>(&leaf)
                                     : &nested[nested.size() - 2]);
    }
    EXPECT_EQ(visited(nested.back(), &ZGroup::traverse), Items({&leaf}));
    EXPECT_EQ(leaf.getPatriarch(), &nested.back());
}

// Compares as hosts would, with every kind of pointer.
template <class Object>
void expectEqualities(const std::vector<std::tuple<Object*, Object*, int>>& rows) {
    for (const auto& [one, two, equal] : rows) {
        SCOPED_TRACE(&equal - &std::get<2>(rows.front()));
        const Object* const constant = two;
        EXPECT_EQ(*one == two, equal);
        EXPECT_EQ(*one != two, !equal);
        EXPECT_EQ(*one != constant, !equal);
        EXPECT_FALSE(*one == nullptr || !(*one != nullptr) || !(*one != 0) || !(*one != NULL));
    }
}

TEST(ZGroup, ItemsCompareAsSiblingsAndGroupsByTheirMembers) {
    Item a, b, c, loose, looser;
    ZGroup group(2), inner(2), other(2), free(2), empty(1), bare(-1);
    add(group, {&a, &b, &inner});
    add(other, {&c});
    expectEqualities<ZGroupable>({{&a, &b, 1},
                                  {&loose, &looser, 1},
                                  {&a, &inner, 0},
                                  {&a, &c, 0},
                                  {&loose, &free, 0},
                                  {&a, nullptr, 0}});
    EXPECT_FALSE(a == &inner || !(a != &inner));
    expectEqualities<ZGroup>(
        {{&group, &other, 0}, {&group, &empty, 0}, {&empty, &bare, 1}, {&empty, nullptr, 0}});
    const ZList<ZGroup*> list{&group, &other};
    EXPECT_EQ(list.find(&other), 1) << "lists compare the pointers";
}

} // namespace
