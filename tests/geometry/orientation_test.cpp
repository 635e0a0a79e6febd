#include <zarnex/geometry/angles.h>
#include <zarnex/geometry/orientation.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <iterator>
#include <list>
#include <random>
#include <vector>

namespace {

constexpr double pi = 3.14159265358979323846;

TEST(Angles, ArctangentSnapsToTheAxes) {
    const struct {
        double y, x, angle;
    } rows[] = {
        {0.0, 0.0, 3.141592654},
        {1e-7, -5.0, 3.141592654},
        {-1e-6, -5.0, 3.141592654}, // not -pi
        {1e-6, 1e-300, 0.0},
        {2.0, 1e-7, 1.570796327},
        {-2.0, -1e-6, -1.570796327},
        {1.1e-6, 0.0, 1.570796327},
        {1.0, -1.0, std::atan2(1.0, -1.0)},
        {-1.1e-6, -1.1e-6, std::atan2(-1.0, -1.0)},
    };
    for (const auto& row : rows)
        EXPECT_EQ(atan3(row.y, row.x), row.angle) << row.y << " " << row.x;
    EXPECT_TRUE(std::isnan(atan3(std::nan(""), 1.0)));
}

TEST(Angles, AtACorner) {
    const struct {
        int a[2], b[2], c[2];
        double radians;
    } rows[] = {
        {{0, 0}, {1, 0}, {2, 0}, pi}, // straight, below the bound
        {{2, 0}, {1, 0}, {0, 0}, -pi},
        {{0, 1}, {0, 0}, {1, 0}, 1.5 * pi - 6.283185308},
        {{1, 0}, {0, 0}, {0, 1}, -1.5 * pi + 6.283185308},
        {{0, -1}, {0, 0}, {1, 0}, pi / 2},
        {{5, 5}, {3, 3}, {4, 4}, 0.0},
        {{3, 3}, {3, 3}, {4, 3}, pi / 2}, // a counts as below b
        {{3, 3}, {3, 3}, {3, 3}, 0.0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        const auto [a, b, c, radians] = row;
        const DPoint d[] = {DPoint(a[0], a[1]), DPoint(b[0], b[1]), DPoint(c[0], c[1])};
        const IPoint i[] = {IPoint(a[0], a[1]), IPoint(b[0], b[1]), IPoint(c[0], c[1])};
        const auto narrow = [](const int(&p)[2]) {
            return ZCoord<short>(static_cast<short>(p[0]), static_cast<short>(p[1]));
        };
        EXPECT_DOUBLE_EQ(angleRad(d[0], d[1], d[2]), radians);
        EXPECT_DOUBLE_EQ(angleRad(i[0], i[1], i[2]), radians);
        EXPECT_DOUBLE_EQ(angleRad(narrow(a), narrow(b), narrow(c)), radians);
        const double degrees = radians / (3.141592654 / 180);
        EXPECT_DOUBLE_EQ(angle(d[0], d[1], d[2]), degrees);
        EXPECT_DOUBLE_EQ(angle(i[0], i[1], i[2]), degrees);
        EXPECT_DOUBLE_EQ(angle(narrow(a), narrow(b), narrow(c)), degrees);
    }
}

TEST(Angles, DifferencesWrapIn32BitsAndDoNotIn16) {
    // INT_MAX - INT_MIN is -1: the corner seems to lie to the left.
    EXPECT_DOUBLE_EQ(angleRad(IPoint(INT_MIN, 0), IPoint(INT_MAX, 0), IPoint(INT_MAX, -1)),
                     -pi / 2);
    using C = ZCoord<short>;
    EXPECT_DOUBLE_EQ(angleRad(C(-32768, 0), C(32767, 0), C(32767, -1)), pi / 2);
}

TEST(CrossProduct, OfIntegersWraps) {
    const IPoint origin(0, 0), right(65536, 0), up(0, 65536), half(0, 32768);
    EXPECT_EQ(crossProduct(&right, &origin, &up, &origin), 0.0);
    EXPECT_EQ(crossProduct(&right, &origin, &half, &origin), -2147483648.0);
    const IPoint low(INT_MIN, 0), high(INT_MAX, 0), one(0, 1);
    EXPECT_EQ(crossProduct(&high, &low, &one, &origin), -1.0);
    const DPoint a(5, 1), b(2, 3), c(7, 7), d(1, 5); // (3, -2) and (6, 2)
    EXPECT_EQ(crossProduct(&a, &b, &c, &d), 18.0);
    for (int missing = 0; missing < 4; ++missing) {
        const IPoint* whole[] = {&high, &low, &one, &origin};
        const DPoint* real[] = {&a, &b, &c, &d};
        whole[missing] = nullptr;
        real[missing] = nullptr;
        EXPECT_EQ(crossProduct(whole[0], whole[1], whole[2], whole[3]), 0.0);
        EXPECT_EQ(crossProduct(real[0], real[1], real[2], real[3]), 0.0);
    }
}

// The formula itself, without the short way for turns that are certain.
TEST(Turn, AgreesWithTheNormalizedCrossProduct) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> mantissa(-1.0, 1.0);
    const int exponents[] = {-1000, -520, -180, -30, -17, -1, 0, 20, 160, 510, 530, 1000};
    const auto coordinate = [&](int exponent) { return std::ldexp(mantissa(random), exponent); };
    int straight = 0;
    for (int i = 0; i < 60000; ++i) {
        const int scale = exponents[random() % std::size(exponents)];
        const int other = random() % 2 ? scale : exponents[random() % std::size(exponents)];
        const DPoint a(0.0, 0.0);
        const DPoint b(coordinate(scale), coordinate(scale));
        DPoint c(coordinate(other), coordinate(other));
        if (i % 2 == 0) // nearly straight on, or exactly
            c = b + DVector(b.x, b.y) * mantissa(random) +
                DVector(coordinate(scale - 50), coordinate(scale - 53)) *
                    static_cast<int>(random() % 3);
        const double k = (b - a).normalize().cross((c - b).normalize());
        const int expected = k > 0.0 ? 1 : k < 0.0 ? -1 : 0;
        straight += expected == 0;
        ASSERT_EQ(Are3PointsCCW(a, b, c), expected)
            << b.x << " " << b.y << ", " << c.x << " " << c.y;
    }
    EXPECT_GT(straight, 1000);
}

TEST(Winding, OfSmallOutlines) {
    using Outline = std::list<DPoint>;
    constexpr double near = 2e-5; // a squared distance below 1e-9
    const struct {
        const char* name;
        Outline outline;
        int counterClockwise, valid;
    } rows[] = {
        {"none", {}, 0, 0},
        {"two points", {{0, 0}, {1, 1}}, 0, 0},
        {"square", {{0, 0}, {1, 0}, {1, 1}, {0, 1}}, 1, 1},
        {"square reversed", {{0, 1}, {1, 1}, {1, 0}, {0, 0}}, 0, 1},
        {"on one line", {{0, 0}, {1, 1}, {2, 2}}, 0, 0},
        {"one point thrice", {{1, 1}, {1, 1}, {1, 1}}, 0, 0},
        {"duplicate before the top", {{0, 0}, {2, 0}, {1, 2 - near}, {1, 2}}, 1, 1},
        {"duplicate after the top", {{1, 2}, {1, 2}, {0, 0}, {2, 0}}, 1, 1},
        {"top first, duplicate last", {{1, 2}, {0, 0}, {2, 0}, {1, 2}}, 1, 1},
        // The point before lies apart but straight below, as does the one after it.
        {"spike", {{0, 0}, {2, 0}, {1, 1}, {1, 2}, {1, 0.5}}, 1, 1},
        // Skipping (1.00002, 2) before the top leaves a clockwise turn at it.
        {"hook at the top", {{0, 0}, {1 + near, 2 - near}, {1, 2}, {2, 0}}, 0, 1},
        // The first of two tops turns left, the other one right.
        {"two tops", {{0, 2}, {-1, 0}, {1, 0}, {9, 0.5}, {10, 2}, {11, 0}}, 1, 1},
        // Where no point lies apart, the one after the top stands for the one before: a
        // counter-clockwise outline comes out as clockwise.
        {"tiny", {{0, near}, {-near, 0}, {near / 2, near / 2}}, 0, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        int valid = 7;
        EXPECT_EQ(isCCWSTDListDPoint(valid, row.outline), row.counterClockwise);
        EXPECT_EQ(valid, row.valid);
    }
}

TEST(Winding, AgreesWithTheSignedArea) {
    std::mt19937 random(20240611);
    std::uniform_real_distribution<double> radius(1.0, 50.0);
    for (int round = 0; round < 500; ++round) {
        // A star about the origin, counter-clockwise, each point at any distance.
        const int count = 5 + static_cast<int>(random() % 20);
        std::vector<DPoint> star;
        for (int i = 0; i < count; ++i) {
            const double turn = 2.0 * pi * i / count;
            const double r = radius(random);
            star.push_back(DPoint(r * std::cos(turn), r * std::sin(turn)));
        }
        if (random() % 2 != 0)
            std::reverse(star.begin(), star.end());
        std::rotate(star.begin(), star.begin() + static_cast<int>(random() % 5), star.end());
        double area = 0.0;
        for (std::size_t i = 0; i < star.size(); ++i) {
            const DPoint& next = star[(i + 1) % star.size()];
            area += star[i].x * next.y - star[i].y * next.x;
        }
        int valid = 0;
        EXPECT_EQ(isCCWSTDListDPoint(valid, {star.begin(), star.end()}), area > 0.0) << round;
        EXPECT_EQ(valid, 1) << round;
    }
}

} // namespace
