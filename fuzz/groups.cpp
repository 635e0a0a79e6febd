/// ZGroup and ZGroupable: trees that come and go, against plain ones.

#include "fuzz/fuzz.h"
#include "fuzz/vectors.h"

#include <zarnex/containers/ZGroup.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

using namespace fuzz;

class Item : public ZGroupable {};

/// An item or a group, and where it should be.
struct Node {
    std::unique_ptr<Item> item; // one of the two
    std::unique_ptr<ZGroup> group;
    Node* parent = nullptr;
    std::vector<Node*> members;

    ZGroupable* thing() const {
        return group != nullptr ? static_cast<ZGroupable*>(group.get()) : item.get();
    }

    void remove(Node* member) {
        *std::find(members.begin(), members.end(), member) = members.back();
        members.pop_back();
        member->parent = nullptr;
    }

    void removeAll() {
        for (Node* member : members)
            member->parent = nullptr;
        members.clear();
    }
};

using Nodes = std::vector<Node>;

std::vector<ZGroupable*> things(const std::vector<Node*>& nodes) {
    std::vector<ZGroupable*> list;
    for (const Node* node : nodes)
        list.push_back(node->thing());
    return list;
}

/// Those that a patriarch may be: the outermost group alone, or all groups of a circle.
std::vector<Node*> patriarchs(const Node& node) {
    std::vector<Node*> path;
    for (Node* each = node.parent; each != nullptr; each = each->parent) {
        const int at = positionOf(path, each);
        if (at >= 0)
            return {path.begin() + at, path.end()};
        path.push_back(each);
    }
    return path.empty() ? path : std::vector<Node*>{path.back()};
}

void check(const Nodes& nodes, const Node& node) {
    ZGroupable* const thing = node.thing();
    FUZZ_REQUIRE(thing->isGroup() == int(node.group != nullptr));
    FUZZ_REQUIRE(thing->getParent() == (node.parent ? node.parent->group.get() : nullptr));
    const auto outermost = things(patriarchs(node));
    ZGroup* const patriarch = thing->getPatriarch();
    FUZZ_REQUIRE(outermost.empty() ? patriarch == nullptr : positionOf(outermost, patriarch) >= 0);
    if (node.group == nullptr)
        return;
    FUZZ_REQUIRE(node.group->size() == sizeOf(node.members));
    FUZZ_REQUIRE(node.group->indexToItem(-1) == nullptr);
    FUZZ_REQUIRE(node.group->indexToItem(sizeOf(node.members)) == nullptr);
    for (int i = 0; i < sizeOf(node.members); ++i)
        FUZZ_REQUIRE(node.group->indexToItem(i) == (*at(node.members, i))->thing());
    for (const Node& other : nodes)
        FUZZ_REQUIRE(node.group->itemToIndex(other.thing()) == positionOf(node.members, &other));
}

// ---- Visits, which the library makes through plain functions

std::vector<ZGroupable*> visited;
ZGroupable* unwanted; // what the visit takes out

void visit(ZGroupable* item) {
    visited.push_back(item);
    if (item == unwanted)
        item->getParent()->removeItem(item);
}

/// In the model: the members of `group`, and in place of a group its own if it `descends`.
void walk(Node* root, Node* group, bool descends, std::vector<ZGroupable*>& passed) {
    for (int i = 0; i < sizeOf(group->members); ++i) {
        Node* const member = *at(group->members, i);
        if (descends && member->group != nullptr) {
            if (member != root) // else a circle closes here
                walk(root, member, true, passed);
            continue;
        }
        passed.push_back(member->thing());
        if (member->thing() == unwanted)
            group->remove(member); // the last one stands here now, and is left out
    }
}

void visitAll(fuzz::Input& input, Node& node, const Node& other) {
    unwanted = input.choice(2) == 0 ? other.thing() : nullptr;
    visited.clear();
    std::vector<ZGroupable*> passed;
    const bool descends = input.choice(2) == 0;
    descends ? node.group->traverse(visit) : node.group->apply(visit);
    walk(&node, &node, descends, passed);
    FUZZ_REQUIRE(visited == passed);
    node.group->apply(nullptr);
    node.group->traverse(nullptr);
}

// ---- Changes

void create(fuzz::Input& input, Node& node, bool isGroup) {
    if (isGroup)
        node.group = std::make_unique<ZGroup>(input.between(-2, 40));
    else
        node.item = std::make_unique<Item>();
}

void change(fuzz::Input& input, Node& node, Node& other) {
    ZGroupable* const thing = other.thing();
    const int kind = input.choice(10);
    if (kind == 0) { // destroyed, and made anew
        if (node.parent != nullptr)
            node.parent->remove(&node);
        node.removeAll();
        const bool isGroup = node.group != nullptr;
        node.group.reset();
        node.item.reset();
        return create(input, node, isGroup);
    }
    if (kind == 1) {
        const bool areSiblings =
            node.parent == other.parent && (node.group == nullptr) == (other.group == nullptr);
        FUZZ_REQUIRE((*node.thing() == thing) == int(areSiblings));
        FUZZ_REQUIRE((*node.thing() != thing) == int(!areSiblings));
    }
    if (node.group == nullptr) {
        if (kind == 2 && other.item != nullptr)
            *node.item = *other.item; // both stay where they are
        if (kind == 3) {
            const Item copy(*node.item);
            FUZZ_REQUIRE(copy.getParent() == nullptr);
        }
        return;
    }
    switch (kind) {
    case 2:
        node.group->emptyGroup();
        node.removeAll();
        break;
    case 3: {
        const bool isMember = other.parent == &node;
        FUZZ_REQUIRE(node.group->removeItem(thing) == (isMember ? 0 : -1));
        if (isMember)
            node.remove(&other);
        break;
    }
    case 4:
        visitAll(input, node, other);
        break;
    case 5:
        FUZZ_REQUIRE(node.group->addItem(nullptr) == -1);
        FUZZ_REQUIRE(node.group->removeItem(nullptr) == -1);
        FUZZ_REQUIRE((*node.group == other.group.get()) ==
                     int(other.group != nullptr && node.members == other.members));
        break;
    case 6: {
        ZList<ZGroupable*> list = node.group->getItemList();
        const auto expected = things(node.members);
        FUZZ_REQUIRE(std::equal(list.begin(), list.end(), expected.begin(), expected.end()));
        break;
    }
    default: {
        const bool isFree = other.parent == nullptr && &other != &node;
        FUZZ_REQUIRE(node.group->addItem(thing) == (isFree ? 0 : -1));
        if (isFree) {
            node.members.push_back(&other);
            other.parent = &node;
        }
    }
    }
}

} // namespace

void tryInput(fuzz::Input input) {
    Nodes nodes(static_cast<std::size_t>(input.between(2, 60)));
    const int groups = input.between(1, sizeOf(nodes));
    for (int i = 0; i < sizeOf(nodes); ++i)
        create(input, *at(nodes, i), i < groups);
    for (int steps = 0; !input.atEnd() && steps < 200; ++steps) {
        Node& node = *at(nodes, input.choice(input.choice(2) == 0 ? groups : sizeOf(nodes)));
        Node& other = *at(nodes, input.choice(sizeOf(nodes)));
        change(input, node, other);
        check(nodes, node);
        check(nodes, other);
    }
    for (const Node& node : nodes)
        check(nodes, node);
}
