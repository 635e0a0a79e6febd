/// Lists: sequences of operations, against std::vector.

#include "fuzz/fuzz.h"
#include "fuzz/vectors.h"

#include <zarnex/containers/Stack.h>
#include <zarnex/containers/ZList.h>
#include <zarnex/containers/ZSortList.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

using namespace fuzz;

// ---- ZList

struct ListPair {
    ZList<int> list;
    Values values;

    void check() const {
        FUZZ_REQUIRE(list.length() == sizeOf(values));
        FUZZ_REQUIRE(std::equal(list.begin(), list.end(), values.begin(), values.end()));
        FUZZ_REQUIRE(std::equal(list.rbegin(), list.rend(), values.rbegin(), values.rend()));
    }

    // Where an index leads.
    int wrapped(int i) const {
        return static_cast<int>(static_cast<unsigned>(i) % values.size());
    }

    // Where an insertion at an index goes.
    int place(int i) const {
        return i == 0 || values.empty() ? 0 : wrapped(i) == 0 ? sizeOf(values) : wrapped(i);
    }
};

void changeList(fuzz::Input& input, ListPair& a, ListPair& b) {
    const int i = input.integer<int>();
    const int value = input.choice(16);
    switch (input.choice(12)) {
    case 0:
        FUZZ_REQUIRE(a.list.add(value) == value);
        a.values.push_back(value);
        break;
    case 1:
        FUZZ_REQUIRE(a.list.insert(value, i) == value);
        a.values.insert(at(a.values, a.place(i)), value);
        break;
    case 2:
        a.list.remove(i);
        if (!a.values.empty())
            a.values.erase(at(a.values, a.wrapped(i)));
        break;
    case 3: {
        auto position = a.list.it(i);
        const bool isInside = i >= 0 && i < sizeOf(a.values);
        FUZZ_REQUIRE((position == a.list.end()) == !isInside);
        a.list.remove(position);
        if (isInside) {
            a.values.erase(at(a.values, i));
            FUZZ_REQUIRE(i == sizeOf(a.values) ? position == a.list.end()
                                               : *position == *at(a.values, i));
        }
        break;
    }
    case 4:
        if (!a.values.empty()) {
            FUZZ_REQUIRE(a.list[i] == *at(a.values, a.wrapped(i)));
            a.list[i] = value;
            *at(a.values, a.wrapped(i)) = value;
        }
        break;
    case 5: {
        const bool moves =
            std::min(i, value) >= 0 && std::max(i, value) < sizeOf(a.values) && i != value;
        FUZZ_REQUIRE(a.list.move(i, value) == int(moves));
        if (moves) {
            const int moved = *at(a.values, i);
            a.values.erase(at(a.values, i));
            a.values.insert(at(a.values, value), moved);
        }
        break;
    }
    case 6:
        a.list.join(b.list);
        if (&a != &b)
            a.values.insert(a.values.end(), b.values.begin(), b.values.end()), b.values.clear();
        break;
    case 7:
        if (&a == &b)
            break;
        a.list.inject(b.list, i);
        a.values.insert(at(a.values, a.place(i)), b.values.begin(), b.values.end());
        b.values.clear();
        break;
    case 8: // a list that is assigned to itself is empty then
        a.list = b.list;
        a.values = &a == &b ? Values() : b.values;
        break;
    case 9:
        if (&a != &b) {
            a.list = std::move(b.list);
            a.values = std::exchange(b.values, {});
        }
        break;
    case 10:
        FUZZ_REQUIRE(a.list.find(value) == positionOf(a.values, value));
        FUZZ_REQUIRE((a.list == b.list) == int(a.values == b.values));
        break;
    default:
        b.list = ZList<int>(a.list);
        b.values = a.values;
    }
}

void tryLists(fuzz::Input& input) {
    trySteps<ListPair, 3>(input, [&](ListPair& a, ListPair& b) {
        if (a.values.size() + b.values.size() > 200)
            a.list.empty(), a.values.clear();
        changeList(input, a, b);
    });
}

// ---- ZSortList

/// Ordered by `key` alone; `serial` tells equal ones apart.
struct Keyed {
    int key, serial;

    bool operator>(const Keyed& other) const {
        return key > other.key;
    }
    bool operator==(const Keyed& other) const {
        return key == other.key;
    }
};

void trySortList(fuzz::Input& input) {
    const int ascending = input.choice(3) - 1; // whatever is not 0
    ZSortList<Keyed> list(ascending);
    std::vector<Keyed> values;
    const auto isBefore = [=](const Keyed& a, const Keyed& b) {
        return ascending != 0 ? b > a : a > b;
    };
    for (int steps = 0; !input.atEnd() && steps < 200; ++steps) {
        const Keyed value{input.choice(2) != 0 ? input.choice(8) : input.integer<int>(), steps};
        const auto place = std::upper_bound(values.begin(), values.end(), value, isBefore);
        switch (input.choice(4)) {
        case 0:
            list.removeByIndex(0);
            if (!values.empty())
                values.erase(values.begin());
            break;
        case 1: {
            const int found = list.find(value);
            FUZZ_REQUIRE(found == -1 ? positionOf(values, value) == -1
                                     : found < sizeOf(values) && *at(values, found) == value);
            break;
        }
        default:
            FUZZ_REQUIRE(list.add(value).serial == steps);
            values.insert(place, value);
        }
        FUZZ_REQUIRE(
            std::equal(list.begin(), list.end(), values.begin(), values.end(),
                       [](const Keyed& a, const Keyed& b) { return a.serial == b.serial; }));
    }
}

// ---- DLList and Stack

class Node : public DLLNode {
public:
    Node() {
        ++alive;
    }
    ~Node() override {
        --alive;
        if (dying.empty())
            return;
        FUZZ_REQUIRE(dying.front() == this);
        dying.erase(dying.begin());
    }

    inline static int alive = 0;
    inline static std::vector<Node*> dying; // what a list is about to delete, in this order
};

struct Ring {
    Stack list;
    std::vector<Node*> nodes;
    Node* current = nullptr;

    ~Ring() {
        Node::dying = std::move(nodes);
    }

    Node* at(int i) const {
        i = std::max(i, 0);
        return i < sizeOf(nodes) ? *(nodes.begin() + i) : nullptr;
    }

    Node* next(Node* node, int offset) const {
        const int i = positionOf(nodes, node) + offset + sizeOf(nodes);
        return *(nodes.begin() + i % sizeOf(nodes));
    }

    void insert(Node* node, int i) {
        nodes.insert(nodes.begin() + std::clamp(i, 0, sizeOf(nodes)), node);
        if (nodes.size() == 1)
            current = node;
    }

    void remove(Node* node) {
        if (current == node)
            current = nodes.size() > 1 ? next(node, 1) : nullptr;
        nodes.erase(std::find(nodes.begin(), nodes.end(), node));
    }

    void check() {
        FUZZ_REQUIRE(list.length() == sizeOf(nodes));
        FUZZ_REQUIRE(list.current() == current);
        for (int i = -1; i <= sizeOf(nodes); ++i)
            FUZZ_REQUIRE(list[i] == at(i));
        for (Node* const node : nodes)
            FUZZ_REQUIRE(&list.pred(*node) == next(node, -1));
    }
};

struct Owned {
    Node* node = new Node;
    Ring* owner = nullptr; // the list that it was put into, which is not where join() took it
    bool isFree = true;
};

void changeRing(fuzz::Input& input, std::vector<Owned>& pool, Ring& a, Ring& b) {
    Owned& any = *at(pool, input.choice(sizeOf(pool)));
    const int i = input.choice(16) == 0 ? input.integer<int>() : input.between(-2, 14);
    const int inA = positionOf(a.nodes, any.node);
    const auto taken = [&](DLLNode* node) {
        for (Owned& each : pool) {
            if (each.node == node) {
                a.remove(each.node);
                each.isFree = true;
                each.owner = nullptr;
            }
        }
    };
    switch (input.choice(10)) {
    case 0:
    case 1:
    case 2: {
        const bool push = i == 0;
        push ? a.list.push(*any.node) : a.list.insert(*any.node, i);
        if (any.isFree)
            a.insert(any.node, i);
        if (any.isFree)
            any.owner = &a;
        any.isFree = false;
        break;
    }
    case 3: {
        Node* const expected = a.at(i);
        DLLNode* const removed = i == 0 ? a.list.pop() : a.list.remove(i);
        FUZZ_REQUIRE(removed == expected);
        taken(expected);
        break;
    }
    case 4:
        a.list.remove(*any.node);
        if (any.owner == &a && inA >= 0)
            taken(any.node);
        break;
    case 5:
        FUZZ_REQUIRE(a.list.find(*any.node) == inA);
        FUZZ_REQUIRE(a.list.inspect() == a.at(0));
        if (inA >= 0)
            FUZZ_REQUIRE(&a.list.succ(*any.node) == a.next(any.node, 1));
        break;
    case 6:
        a.list(i);
        a.current = a.at(i);
        break;
    case 7:
        i % 2 == 0 ? a.list.forward() : a.list.backward();
        if (a.current != nullptr)
            a.current = a.next(a.current, i % 2 == 0 ? 1 : -1);
        break;
    case 8:
        FUZZ_REQUIRE(a.list.setHead(any.node) == int(inA >= 0));
        if (inA >= 0)
            std::rotate(a.nodes.begin(), a.nodes.begin() + inA, a.nodes.end());
        break;
    default:
        a.list.join(b.list);
        if (&a == &b || b.nodes.empty())
            break;
        if (a.nodes.empty())
            a.current = b.nodes.front();
        a.nodes.insert(a.nodes.end(), b.nodes.begin(), b.nodes.end());
        b.nodes.clear();
        b.current = nullptr;
    }
}

void changeRings(fuzz::Input& input, std::vector<Owned>& pool) {
    Ring rings[3];
    for (int steps = 0; !input.atEnd() && steps < 200; ++steps) {
        changeRing(input, pool, rings[input.choice(3)], rings[input.choice(3)]);
        for (Ring& ring : rings)
            ring.check();
    }
    FUZZ_REQUIRE(Node::alive == sizeOf(pool));
}

void tryRings(fuzz::Input& input) {
    std::vector<Owned> pool(10);
    changeRings(input, pool);
    for (const Owned& each : pool)
        if (each.isFree)
            delete each.node; // the lists have deleted the others
    FUZZ_REQUIRE(Node::alive == 0);
}

} // namespace

void tryInput(fuzz::Input input) {
    switch (input.choice(3)) {
    case 0:
        return tryLists(input);
    case 1:
        return trySortList(input);
    default:
        return tryRings(input);
    }
}
