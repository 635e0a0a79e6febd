#include "tests/geometry/coordinates.h"

#include <zarnex/transforms/CompositeTrans.h>
#include <zarnex/transforms/IdTrans.h>
#include <zarnex/transforms/ReverseTrans.h>
#include <zarnex/transforms/ZHashablePointer.h>

#include <type_traits>

namespace {

using Arb = ArbTrans<DPoint>;
static_assert(std::is_abstract_v<Arb>);
using Chain = CompositeTrans<DPoint>;
using Pointer = ZHashablePointer<Arb>;

// (x, y) to (x * factor + step, y) and back; counts those alive.
struct Step : Arb {
    Step(double factorValue, double stepValue) : factor(factorValue), step(stepValue) {
        ++alive;
    }
    ~Step() override {
        --alive;
    }
    DPoint transform(const DPoint& p) override {
        return DPoint(Arb::transform(p).x * factor + step, p.y);
    }
    DPoint reverseTransform(const DPoint& p) override {
        return DPoint((Arb::reverseTransform(p).x - step) / factor, p.y);
    }
    double factor, step;
    inline static int alive = 0;
};

TEST(Chains, MapForwardInOrderAndBackInReverse) {
    Step twice(2, 0), further(1, 3);
    IdTrans<DPoint> same;
    Chain inner(0), chain;
    EXPECT_TRUE(at(chain.transform(DPoint(5, 6)), 5, 6));
    EXPECT_TRUE(at(chain.reverseTransform(DPoint(5, 6)), 5, 6));
    inner.addTrans(&same);
    inner.addTrans(nullptr);
    inner.addTrans(&twice);
    chain.addTrans(&inner);
    chain.addTrans(&further);
    chain.addTrans(&chain); // ignored
    Chain assigned;
    assigned = chain;
    ReverseTrans<DPoint> back(&assigned, 0), there(&back, 0);
    for (Arb* arb : {static_cast<Arb*>(&chain), static_cast<Arb*>(&there)}) {
        EXPECT_TRUE(at(arb->transform(DPoint(5, 6)), 13, 6));
        EXPECT_TRUE(at(arb->reverseTransform(DPoint(13, 6)), 5, 6));
    }
    EXPECT_TRUE(at(back.transform(DPoint(13, 6)), 5, 6));
}

TEST(Chains, DeleteWhatTheyOwn) {
    Step kept(2, 0);
    {
        Chain owner(1), guest, heir;
        owner.addTrans(new Step(1, 1));
        owner.addTrans(nullptr);
        owner.addTrans(new ReverseTrans<DPoint>(new Step(1, 1), 2));
        guest.addTrans(&kept);
        Chain copy(guest);
        EXPECT_TRUE(at(copy.transform(DPoint(5, 6)), 10, 6));
        heir = owner;
        owner = Chain(0); // owns nothing any more
        ReverseTrans<DPoint> none(nullptr, 1), loose(&kept, 0);
        EXPECT_TRUE(at(none.transform(DPoint(5, 6)), 5, 6));
        EXPECT_TRUE(at(none.reverseTransform(DPoint(5, 6)), 5, 6));
        EXPECT_EQ(Step::alive, 3);
    }
    EXPECT_EQ(Step::alive, 1);
}

TEST(ZHashablePointer, IsFoundInListsByThePlainPointer) {
    IdTrans<DPoint> first, second;
    const ZList<Pointer> list{Pointer(), Pointer(&first)};
    EXPECT_EQ(list.find(&first), 1);
    EXPECT_EQ(list.find(&second), -1);
    EXPECT_TRUE(at(list[1]->transform(DPoint(1, 2)), 1, 2));
}

TEST(ZHashablePointer, HashesTheLowBitsOfTheAddress) {
    for (const auto& [address, hash] :
         {std::pair(0ull, 0), {16ull, 27856}, {0x100000010ull, 27856}, {0xfffffff8ull, -13928}})
        EXPECT_EQ(Pointer(reinterpret_cast<Arb*>(address)).hash(), hash) << address;
}

} // namespace
