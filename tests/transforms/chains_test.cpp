#include "tests/geometry/coordinates.h"

#include <zarnex/transforms/CompositeTrans.h>
#include <zarnex/transforms/IdTrans.h>
#include <zarnex/transforms/ReverseTrans.h>
#include <zarnex/transforms/ZHashablePointer.h>

#include <type_traits>

namespace {

using Arb = ArbTrans<DPoint>;
static_assert(std::is_abstract_v<Arb>);
using Pointer = ZHashablePointer<Arb>;

struct Counted : IdTrans<DPoint> {
    ~Counted() override {
        ++deleted;
    }
    inline static int deleted = 0;
};

// Whether copies of `owner` delete what it owns, which is one transform; then it owns nothing.
template <class Owner, class Copy>
void checkCopiesOwn(Owner& owner, const Owner& empty, Copy copy) {
    Counted::deleted = 0;
    copy(owner);
    EXPECT_EQ(Counted::deleted, 1);
    owner = empty;
}

TEST(Chains, CopiesOwnWhatTheirSourceOwns) {
    using Chain = CompositeTrans<DPoint>;
    using Reverse = ReverseTrans<DPoint>;
    Reverse reverse(new Counted, 1);
    checkCopiesOwn(reverse, Reverse(nullptr, 0), [](const Reverse& r) { const Reverse copy(r); });
    Chain chain(1), other(1);
    chain.addTrans(new Counted);
    checkCopiesOwn(chain, Chain(), [](const Chain& c) { const Chain copy(c); });
    other.addTrans(new Counted);
    checkCopiesOwn(other, Chain(), [](const Chain& c) {
        Chain copy;
        copy = c;
    });
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
