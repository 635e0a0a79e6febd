#if defined(_WIN32)
#include <windows.h> // first, and with its min and max
#endif
#include <zarnex/foundation.h>

#include "coordinates.h"

#include <climits>
#include <cmath>
#include <memory>
#include <new>

// The private conversions. Access is not checked in an explicit instantiation; a
// constructor has no address, so it is called by the name that the library exports.
using ToPlatform = tagPOINT (GPoint::*)() const;
ToPlatform toPlatform();
template <ToPlatform member>
struct Opened {
    friend ToPlatform toPlatform() {
        return member;
    }
};
template struct Opened < &GPoint::operator tagPOINT>;
extern "C" void constructFromPlatform(void* place, tagPOINT p) __asm__("_ZN6GPointC1E8tagPOINT");

namespace {

using Point = ZTPoint<double>;

TEST(GPoint, ConvertsBetweenThePointTypes) {
    EXPECT_TRUE(at(Point(), 0, 0) && at(Point(1.5), 1.5, 1.5));
    EXPECT_TRUE(at(GPoint(), 0, 0) && at(GPoint(1.5), 1.5, 1.5));
    EXPECT_TRUE(at(GPoint(DPoint(1, 2)), 1, 2) && at(GPoint(Point(1, 2)), 1, 2));
    GPoint sum = GPoint(1, 2) + GPoint(3, 4);
    const DPoint converted = sum;
    EXPECT_TRUE(at(converted, 4, 6) && sum == Point(4, 6) && sum != Point(4, 6 + 1e-15));
    sum.set(9, sum.x);
    EXPECT_TRUE(at(sum, 9, 4));
}

TEST(GPoint, PlatformPointsAreTruncated) {
    const struct {
        GPoint point;
        long x, y;
    } rows[] = {
        {GPoint(2.9, -2.9), 2, -2},
        {GPoint(1e10, -1e10), INT_MAX, INT_MIN},
        {GPoint(std::nan(""), -0.5), 0, 0},
    };
    for (const auto& row : rows) {
        const tagPOINT platform = (row.point.*toPlatform())();
        EXPECT_EQ(platform.x, row.x);
        EXPECT_EQ(platform.y, row.y);
    }
}

TEST(GPoint, ComesFromPlatformPoints) {
    tagPOINT platform;
    platform.x = -3;
    platform.y = INT_MAX;
    alignas(GPoint) unsigned char place[sizeof(GPoint)];
    constructFromPlatform(place, platform);
    GPoint* const made = std::launder(reinterpret_cast<GPoint*>(place));
    EXPECT_TRUE(at(*made, -3, INT_MAX));
    std::destroy_at(made);
}

TEST(GPoint, ShowWritesToStandardOutput) {
    testing::internal::CaptureStdout();
    GPoint(1.5, -2).show();
    std::string shown = testing::internal::GetCapturedStdout();
    std::erase(shown, '\r');
    EXPECT_EQ(shown, "( 1.5 , -2 )\n");
}

} // namespace
