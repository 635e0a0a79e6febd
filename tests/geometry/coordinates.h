#pragma once

#include <gtest/gtest.h>

/// Whether `v` is exactly (x, y), without the tolerance that some == have.
template <class V>
testing::AssertionResult at(const V& v, double x, double y) {
    if (v.x == x && v.y == y)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "(" << v.x << ", " << v.y << ")";
}
