// The containers under the algorithms and concepts of the standard library.

#include <zarnex/foundation.h>

#include "../support.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <ranges>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using Array = ZXArray<double>;
using List = ZList<DPoint>;

// What algorithms choose by, for elements that can be written and those that cannot.
static_assert(std::ranges::contiguous_range<Array> && std::ranges::contiguous_range<const Array>);
static_assert(std::ranges::sized_range<Array> && std::ranges::sized_range<const Array>);
static_assert(std::ranges::common_range<Array> && std::ranges::viewable_range<Array&>);
static_assert(std::ranges::output_range<Array, double>);
static_assert(!std::ranges::output_range<const Array, double>);
static_assert(std::is_same_v<std::ranges::range_reference_t<const Array>, const double&>);
static_assert(std::sortable<ZXArray<ZString>::iterator>);

static_assert(std::ranges::bidirectional_range<List> &&
              std::ranges::bidirectional_range<const List>);
static_assert(!std::ranges::random_access_range<List>);
static_assert(std::ranges::sized_range<List> && std::ranges::sized_range<const List>);
static_assert(std::ranges::common_range<List> && std::ranges::viewable_range<List&>);
static_assert(std::ranges::output_range<List, DPoint>);
static_assert(!std::ranges::output_range<const List, DPoint>);
static_assert(std::is_convertible_v<List::iterator, List::const_iterator>);
static_assert(!std::is_convertible_v<List::const_iterator, List::iterator>);
static_assert(std::bidirectional_iterator<List::reverse_iterator>);
static_assert(std::ranges::bidirectional_range<ZSortList<int>>);

TEST(Ranges, AnArrayIsItsElementsInUse) {
    Array array;
    EXPECT_EQ(array.begin(), array.end());
    EXPECT_TRUE(std::ranges::empty(array));
    EXPECT_EQ(std::data(array), nullptr);

    array.reserve(40); // spare slots are in no range
    array.add(3.0);
    array.add(1.0);
    array.add(2.0);
    const Array& reading = array;
    EXPECT_EQ(std::size(reading), 3u);
    EXPECT_EQ(std::data(reading), &reading[0]);
    EXPECT_EQ(std::data(array), static_cast<double*>(array));
    EXPECT_EQ(std::accumulate(reading.cbegin(), reading.cend(), 0.0), 6.0);
    EXPECT_EQ(std::span<const double>(reading).size(), 3u);
    EXPECT_EQ(array.length(), 3); // no access has grown it

    for (double& value : array)
        value *= 2.0;
    std::sort(array.begin(), array.end());
    EXPECT_EQ(std::vector<double>(reading.begin(), reading.end()),
              (std::vector<double>{2.0, 4.0, 6.0}));
    EXPECT_EQ(*std::ranges::lower_bound(array, 3.0), 4.0);
    EXPECT_EQ(std::vector<double>(reading.rbegin(), reading.rend()),
              (std::vector<double>{6.0, 4.0, 2.0}));
    *array.rbegin() = 7.0;
    *std::prev(array.rend()) = 1.0;
    EXPECT_EQ(std::vector<double>(array.crbegin(), array.crend()),
              (std::vector<double>{7.0, 4.0, 1.0}));
}

TEST(Ranges, ArraysOfStringsSortByTheirOwnOrder) {
    ZXArray<ZString> names;
    for (const wchar_t* name : {L"needle", L"Bobbin", L"hoop"})
        names.add(name);
    std::sort(names.begin(), names.end()); // without regard to case
    std::vector<std::wstring> sorted;
    std::ranges::transform(names, std::back_inserter(sorted), zarnex::toWstring);
    EXPECT_EQ(sorted, (std::vector<std::wstring>{L"Bobbin", L"hoop", L"needle"}));
}

TEST(Ranges, AListIsItsElementsInOrder) {
    List list;
    EXPECT_TRUE(std::ranges::empty(list));
    EXPECT_EQ(list.size(), 0u);

    for (int i = 0; i < 4; ++i)
        list.add(DPoint(i, -i));
    const List& reading = list;
    EXPECT_EQ(std::size(reading), 4u);
    const std::vector<DPoint> copied(reading.begin(), reading.end());
    ASSERT_EQ(copied.size(), 4u);
    EXPECT_EQ(copied[3].y, -3.0);

    const auto found = std::find_if(list.begin(), list.end(), [](auto& p) { return p.x > 1.0; });
    EXPECT_EQ(found, list.it(2));
    EXPECT_EQ(std::find_if(reading.begin(), reading.end(), [](auto& p) { return p.x > 9.0; }),
              reading.end());

    std::ranges::for_each(list, [](DPoint& p) { p.x *= 10.0; });
    std::ranges::reverse(list);
    EXPECT_EQ(list[0].x, 30.0);
    EXPECT_EQ(std::prev(list.end())->x, 0.0);
}

#if !defined(__clang__) || __clang_major__ >= 16 // earlier ones do not compile libstdc++'s views

TEST(Ranges, ViewsOverListsAndArrays) {
    const ZList<int> list{1, 2, 3, 4};
    ZXArray<int> backwards;
    for (const int value : list | std::views::reverse | std::views::drop(1) | std::views::take(2))
        backwards.add(value);
    EXPECT_TRUE(std::ranges::equal(backwards, std::vector<int>{3, 2}));

    const auto halves = backwards | std::views::transform([](int value) { return value / 2.0; });
    EXPECT_EQ(std::ranges::max(halves), 1.5);
    EXPECT_EQ(halves.size(), 2u);
}

#endif

} // namespace
