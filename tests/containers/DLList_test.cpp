#include <zarnex/containers/DLList.h>
#include <zarnex/containers/Stack.h>

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace {

struct Item : DLLNode {};

using Nodes = std::vector<DLLNode*>;

// The nodes of `list` from the head on, with the ring checked in both directions.
Nodes nodes(DLList& list) {
    Nodes found;
    for (DLLNode* node = list[0]; node != nullptr; node = &list.succ(*node)) {
        EXPECT_EQ(&list.pred(list.succ(*node)), node);
        found.push_back(node);
        if (list.isTail(node) != 0)
            break;
    }
    return found;
}

void fill(DLList& list, int count) {
    for (int i = 0; i < count; ++i)
        list.insert(*new Item);
}

TEST(DLList, TheCurrentNodeMovesOnWhenItIsTakenOut) {
    DLList list;
    list.forward();
    list.backward();
    EXPECT_EQ(list.current(), nullptr);
    fill(list, 3);
    const Nodes abc = nodes(list);
    list.backward();
    EXPECT_EQ(list.current(), abc[2]);
    delete list.remove();
    EXPECT_EQ(list.current(), abc[0]);
    EXPECT_EQ(list(1), abc[1]);
    EXPECT_EQ(list.current(), abc[1]);
    EXPECT_EQ(list(2), nullptr);
    EXPECT_EQ(list.current(), nullptr);
}

TEST(DLList, JoinedNodesKeepTheirOldOwner) {
    DLList list;
    std::optional<DLList> other(std::in_place);
    Item *const a = new Item, *const b = new Item, *const c = new Item, *const d = new Item;
    list.insert(*a);
    other->insert(*b);
    list.join(*other);
    list.remove(*b);
    other->insert(*c);
    other->remove(*b); // not in it any more, although it is the owner
    other->insert(*b);
    EXPECT_EQ(nodes(list), Nodes({a, b}));
    EXPECT_EQ(nodes(*other), Nodes({c}));
    EXPECT_EQ(list.remove(list.find(*b)), b);
    other->insert(*b);
    EXPECT_EQ(nodes(*other), Nodes({c, b}));

    list.join(*other);
    other.emplace(); // at the same address, but another list
    other->insert(*d);
    other->remove(*b);
    EXPECT_EQ(nodes(list), Nodes({a, c, b}));
    EXPECT_EQ(nodes(*other), Nodes({d}));
}

TEST(DLList, ANodeDeletedInTheListStillCountsAndACopyIsFree) {
    DLList list;
    fill(list, 3);
    const Nodes abc = nodes(list);
    delete abc[1];
    EXPECT_EQ(nodes(list), Nodes({abc[0], abc[2]}));
    EXPECT_EQ(list.length(), 3);
    EXPECT_EQ(list.remove(2), nullptr) << "round to the head";
    EXPECT_EQ(list[2], abc[0]) << "round to the head";

    Item copy(static_cast<Item&>(*abc[0]));
    copy = static_cast<Item&>(*abc[2]);
    EXPECT_EQ(list.find(copy), -1);
    list.insert(copy);
    EXPECT_EQ(nodes(list), Nodes({abc[0], abc[2], &copy}));
    list.remove(copy);
}

TEST(DLList, ApplyStopsAtZeroAndEndsWhateverTheVisitorDoes) {
    using Visit = int (*)(DLLNode&, void*);
    static int visits;
    const Visit none = nullptr;
    const Visit all = [](DLLNode&, void*) { return ++visits; };
    const Visit two = [](DLLNode&, void*) { return ++visits == 2 ? 0 : -1; };
    const Visit take = [](DLLNode& node, void* list) {
        static_cast<DLList*>(list)->remove(node);
        delete &node;
        return ++visits;
    };
    const Visit turn = [](DLLNode& node, void* list) {
        ++visits;
        return static_cast<DLList*>(list)->setHead(&static_cast<DLList*>(list)->succ(node));
    };
    const struct {
        Visit visit;
        int visits, left;
    } rows[] = {{none, 0, 3}, {all, 3, 3}, {two, 2, 3}, {take, 3, 0}, {turn, 3, 3}};
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        DLList list;
        visits = 0;
        EXPECT_EQ(list.apply(row.visit, &list), nullptr) << "of an empty list";
        fill(list, 3);
        DLLNode* const found = row.visit == two ? list[1] : nullptr;
        EXPECT_EQ(list.apply(row.visit, &list), found);
        EXPECT_EQ(visits, row.visits);
        EXPECT_EQ(list.length(), row.left);
    }
}

TEST(Stack, GivesTheLastPushedFirst) {
    Stack stack;
    EXPECT_TRUE(stack.pop() == nullptr && stack.inspect() == nullptr && stack.isTail(nullptr) == 1);
    Item items[3];
    for (Item& item : items)
        stack.push(item);
    for (Item* const item : {&items[2], &items[1], &items[0]}) {
        EXPECT_EQ(stack.isHead(item), 1);
        EXPECT_EQ(stack.inspect(), item);
        EXPECT_EQ(stack.pop(), item);
    }
    EXPECT_EQ(stack.isEmpty(), 1);
}

} // namespace
