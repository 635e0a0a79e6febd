#include <cstddef>
#include <type_traits>
#include <windows.h>

// What platform/points.h repeats of the system's record.
static_assert(sizeof(tagPOINT) == 8 && offsetof(tagPOINT, y) == 4);
static_assert(std::is_same_v<decltype(tagPOINT::x), long>);
static_assert(std::is_same_v<decltype(tagPOINT::y), long>);
