// Hashes agree with equality, and tell apart what is not equal.

#include <zarnex/foundation.h>

#include "../support.h"

#include <functional>
#include <random>
#include <type_traits>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace {

template <class Key>
std::size_t hashOf(const Key& key) {
    return std::hash<Key>()(key);
}

template <class Key>
constexpr bool isHashable = std::is_default_constructible_v<std::hash<Key>>;

static_assert(!isHashable<DPoint> && !isHashable<DVector>, "equal within a tolerance");
static_assert(!isHashable<ZMillimeter> && !isHashable<ZNumber>);

TEST(Hashing, StringsThatAreEqualHashAlikeInAnyLocale) {
    const wchar_t* const texts[] = {L"",  L"width",  L"WIDTH",  L"Width ", L"i",
                                    L"I", L"\u0130", L"\u0131", L"\u00E9", L"\u00C9",
                                    L"e", L"\u0416", L"\u0436", L"\u00DF"};
    int equal = 0;
    for (const wchar_t* const left : texts) {
        for (const wchar_t* const right : texts) {
            const ZString a(left);
            const ZString b(right);
            if (a == b) {
                EXPECT_EQ(hashOf(a), hashOf(b)) << shown(left) << ' ' << shown(right);
                equal += left != right;
            }
        }
    }
    EXPECT_GE(equal, 2); // "width" and "WIDTH" in every locale

    std::unordered_map<ZString, int> needles;
    needles[L"Hoop"] = 4;
    needles[L"HOOP"] += 1;
    needles[L"Needle"] = 9;
    EXPECT_EQ(needles.size(), 2u);
    EXPECT_EQ(needles.at(L"hoop"), 5);
}

TEST(Hashing, ExactStringsTellCaseApart) {
    EXPECT_EQ((std::unordered_set<ZWideString>{L"hoop", L"Hoop", L"hoop"}.size()), 2u);
    EXPECT_EQ((std::unordered_set<ZMultiByteString>{"hoop", "Hoop", "hoop"}.size()), 2u);
    EXPECT_NE(hashOf(ZWideString(L"hoop")), hashOf(ZWideString(L"Hoop")));
    EXPECT_NE(hashOf(ZMultiByteString("hoop")), hashOf(ZMultiByteString("Hoop")));
}

TEST(Hashing, InvalidIdentifiersAreOneWhateverTheirText) {
    ZGUIDWrapper bead;
    bead.setBead1();
    ZGUIDWrapper invalidWithText = bead;
    invalidWithText = ZGUIDWrapper(0);
    const ZGUIDWrapper invalid(0);
    ASSERT_FALSE(invalidWithText.getString().isEmpty());
    ASSERT_TRUE(invalid == invalidWithText);
    EXPECT_EQ(hashOf(invalid), hashOf(invalidWithText));

    ZGUIDWrapper sequin;
    sequin.setSequin1();
    EXPECT_NE(hashOf(bead), hashOf(sequin));

    ZGUIDWrapper again;
    again.setString(&bead.getString());
    EXPECT_EQ(hashOf(again), hashOf(bead));
    EXPECT_EQ((std::unordered_set<ZGUIDWrapper>{bead, again, invalid, invalidWithText}.size()), 2u);
}

// All points of a square around the origin: so many hashes, however few of their bits count.
template <class Point>
void spreads() {
    std::unordered_set<Point> points;
    std::unordered_set<std::size_t> hashes;
    std::unordered_set<std::size_t> lowBits;
    for (short x = -32; x < 32; ++x) {
        for (short y = -32; y < 32; ++y) {
            points.insert(Point(x, y));
            points.insert(Point(x, y));
            hashes.insert(hashOf(Point(x, y)));
            lowBits.insert(hashOf(Point(x, y)) % 4096);
        }
    }
    EXPECT_EQ(points.size(), 4096u);
    EXPECT_EQ(hashes.size(), 4096u);
    EXPECT_GT(lowBits.size(), 2400u); // 2589 are expected of random ones
}

TEST(Hashing, PointsSpread) {
    spreads<IPoint>();
    spreads<IVector>();
    spreads<ZCoord<short>>();
    spreads<ZVector<short>>();
    spreads<ZTPoint<double>>();
    spreads<GPoint>();
    EXPECT_EQ(hashOf(GPoint(0.0, -0.0)), hashOf(GPoint(-0.0, 0.0))); // which are equal
}

TEST(Hashing, KeysOfTheLibraryHashByTheirValue) {
    EXPECT_EQ((std::unordered_set<ZHashInt>{1, 2, 1}.size()), 2u);

    IdTrans<DPoint> first;
    IdTrans<DPoint> second;
    using Pointer = ZHashablePointer<ArbTrans<DPoint>>;
    const std::unordered_set<Pointer> pointers{&first, &second, &first, Pointer()};
    EXPECT_EQ(pointers.size(), 3u);
    EXPECT_EQ(pointers.count(&second), 1u);
}

} // namespace
