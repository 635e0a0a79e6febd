/// Chains of transforms: which step acts when, and where points go, against flat lists of steps.

#include "fuzz/fuzz.h"
#include "fuzz/vectors.h"

#include <zarnex/transforms/CompositeTrans.h>
#include <zarnex/transforms/IdTrans.h>
#include <zarnex/transforms/ReverseTrans.h>

#include <bit>
#include <utility>
#include <vector>

namespace {

using namespace fuzz;

using Arb = ArbTrans<DPoint>;
using Chain = CompositeTrans<DPoint>;
using Reverse = ReverseTrans<DPoint>;

class Step;

/// A step that maps one point.
struct Act {
    Step* step;
    bool isBack;

    bool operator==(const Act&) const = default;
};

using Acts = std::vector<Act>;

Acts performed; // since it was emptied

/// A host's own transform: no two kinds commute, and on whole numbers the way back is exact.
class Step : public Arb {
public:
    explicit Step(fuzz::Input& input)
        : kind_(input.choice(3)), x_(input.choice(256) - 128), y_(input.choice(256) - 128) {
        ++alive;
    }
    ~Step() override {
        --alive;
    }

    DPoint moved(const DPoint& p, bool isBack) const {
        if (kind_ == 0)
            return isBack ? DPoint(p.y, -p.x) : DPoint(-p.y, p.x);
        if (kind_ == 1)
            return DPoint(p.y, p.x);
        return isBack ? DPoint(p.x - x_, p.y - y_) : DPoint(p.x + x_, p.y + y_);
    }

    DPoint transform(const DPoint& p) override {
        performed.push_back({this, false});
        return moved(Arb::transform(p), false);
    }
    DPoint reverseTransform(const DPoint& p) override {
        performed.push_back({this, true});
        return moved(Arb::reverseTransform(p), true);
    }

    inline static int alive = 0;

private:
    int kind_;
    double x_, y_;
};

/// A transform and what it consists of, as numbers of nodes in front of it.
struct Node {
    Arb* trans;
    Step* step = nullptr;
    Chain* chain = nullptr;
    Reverse* reverse = nullptr;    // none of the three: the identity
    std::vector<int> members = {}; // of a chain, or the one that is reversed; -1 for null
    bool owns = false;
    bool isOwned = false;
};

using Nodes = std::vector<Node>;

void flatten(const Nodes& nodes, int i, bool isBack, Acts& acts) {
    if (i < 0)
        return;
    const Node& node = *at(nodes, i);
    if (node.step != nullptr)
        acts.push_back({node.step, isBack});
    for (int k = 0; k < sizeOf(node.members); ++k) {
        const int member = *at(node.members, isBack ? sizeOf(node.members) - 1 - k : k);
        flatten(nodes, member, isBack != (node.reverse != nullptr), acts);
    }
}

/// Chains of chains become long soon.
bool isTooLong(const Nodes& nodes) {
    std::vector<double> lengths;
    for (const Node& node : nodes) {
        lengths.push_back(1);
        for (const int member : node.members)
            lengths.back() += member < 0 ? 1 : *at(lengths, member);
        if (lengths.back() > 200)
            return true;
    }
    return false;
}

void map(const Nodes& nodes, int i, bool isBack, const DPoint& p) {
    Arb& trans = *at(nodes, i)->trans;
    Acts acts;
    flatten(nodes, i, isBack, acts);
    DPoint expected = p;
    for (const Act& act : acts)
        expected = act.step->moved(expected, act.isBack);
    performed.clear();
    const DPoint image = isBack ? trans.reverseTransform(p) : trans.transform(p);
    FUZZ_REQUIRE(performed == acts);
    const auto bits = [](double value) { return std::bit_cast<std::uint64_t>(value); };
    FUZZ_REQUIRE(bits(image.x) == bits(expected.x) && bits(image.y) == bits(expected.y));
}

void mapThereAndBack(fuzz::Input& input, const Nodes& nodes, int i) {
    const DPoint anywhere(input.real(), input.real());
    map(nodes, i, false, anywhere);
    map(nodes, i, true, anywhere);
    Arb& trans = *at(nodes, i)->trans;
    const DPoint whole(input.between(-999, 999), input.between(-999, 999));
    const DPoint back = trans.reverseTransform(trans.transform(whole));
    FUZZ_REQUIRE(back.x == whole.x && back.y == whole.y);
}

// Whether a transform may have `member`, which it owns then if it `owns` at all.
bool takes(Nodes& nodes, int member, bool owns) {
    if (member < 0 || !owns)
        return true;
    return !std::exchange(at(nodes, member)->isOwned, true);
}

void addNode(fuzz::Input& input, Nodes& nodes) {
    const int any = input.choice(sizeOf(nodes) + 1) - 1;
    const bool owns = input.choice(4) == 0;
    switch (input.choice(6)) {
    case 0: {
        auto* const step = new Step(input);
        nodes.push_back({step, step});
        break;
    }
    case 1:
        nodes.push_back({new IdTrans<DPoint>});
        break;
    case 2:
        if (takes(nodes, any, owns)) {
            auto* const reverse = new Reverse(any < 0 ? nullptr : at(nodes, any)->trans, owns);
            nodes.push_back({reverse, nullptr, nullptr, reverse, {any}, owns});
        }
        break;
    case 3: {
        auto* const chain = new Chain(owns);
        nodes.push_back({chain, nullptr, chain, nullptr, {}, owns});
        break;
    }
    default: // copies share members; two owners would delete them twice
        if (any < 0 || at(nodes, any)->owns)
            break;
        Node copy = *at(nodes, any);
        copy.isOwned = false;
        if (copy.chain != nullptr)
            copy.trans = copy.chain = new Chain(*copy.chain);
        else if (copy.reverse != nullptr)
            copy.trans = copy.reverse = new Reverse(*copy.reverse);
        else
            break;
        nodes.push_back(copy);
    }
}

void change(fuzz::Input& input, Nodes& nodes) {
    const int i = input.choice(sizeOf(nodes));
    const int member = input.choice(i + 2) - 1; // null, one in front, or the chain itself
    Node& node = *at(nodes, i);
    switch (input.choice(4)) {
    case 0:
        mapThereAndBack(input, nodes, i);
        break;
    case 1: // what was owned would be lost
        if (member >= 0 && node.chain != nullptr && at(nodes, member)->chain != nullptr &&
            !node.owns && !at(nodes, member)->owns) {
            *node.chain = *at(nodes, member)->chain;
            node.members = at(nodes, member)->members;
        }
        break;
    default:
        if (node.chain == nullptr)
            break;
        if (member == i) {
            node.chain->addTrans(node.chain);
        } else if (takes(nodes, member, node.owns)) {
            node.chain->addTrans(member < 0 ? nullptr : at(nodes, member)->trans);
            node.members.push_back(member);
        }
    }
}

} // namespace

void tryInput(fuzz::Input input) {
    Nodes nodes;
    for (int steps = 0; !input.atEnd() && steps < 200 && !isTooLong(nodes); ++steps) {
        if (nodes.empty() || (input.choice(4) == 0 && nodes.size() < 40))
            addNode(input, nodes);
        else
            change(input, nodes);
    }
    if (!isTooLong(nodes))
        for (int i = 0; i < sizeOf(nodes); ++i)
            mapThereAndBack(input, nodes, i);
    for (const Node& node : nodes)
        if (!node.isOwned)
            delete node.trans;
    FUZZ_REQUIRE(Step::alive == 0);
}
