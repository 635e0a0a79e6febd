#include "tests/geometry/coordinates.h"

#include <zarnex/transforms/IdTrans.h>
#include <zarnex/transforms/ZHashablePointer.h>

#include <type_traits>

namespace {

using Arb = ArbTrans<DPoint>;
static_assert(std::is_abstract_v<Arb>);
using Pointer = ZHashablePointer<Arb>;

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
