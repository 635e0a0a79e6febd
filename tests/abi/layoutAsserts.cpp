// What layout.txt says of sizes and places, asserted.

#include <zarnex/foundation.h>

#include <cstddef>

/// The type that the one in parentheses points to; it may hold commas and be abstract.
template <class>
struct Parenthesized;
template <class T>
struct Parenthesized<void(T*)> {
    using Type = T;
};

#define SIZE(bytes, type) static_assert(sizeof(Parenthesized<void type>::Type) == bytes);
#define PLACE(at, member, type)                                                                    \
    static_assert(offsetof(Parenthesized<void type>::Type, member) == at);
#include "layoutAsserts.inc"
