#pragma once

/// What every fuzz target has: an input, and a way to say that the library is at fault.

#include "fuzz/Input.h"

#include <cstdio>
#include <cstdlib>

/// Ends the process unless `claim` holds.
#define FUZZ_REQUIRE(claim)                                                                        \
    do {                                                                                           \
        if (!(claim)) {                                                                            \
            std::fprintf(stderr, "%s:%d: not so: %s\n", __FILE__, __LINE__, #claim);               \
            std::abort();                                                                          \
        }                                                                                          \
    } while (false)

namespace fuzz {

/// Up to 200 changes while the input lasts, each to two out of `count` objects, which may be the
/// same one. A Pair is an object of the library and what it should be; both are checked after
/// each change.
template <class Pair, int count, class Change>
void trySteps(Input& input, Change change) {
    Pair pairs[count];
    for (int steps = 0; !input.atEnd() && steps < 200; ++steps) {
        Pair& a = pairs[input.choice(count)];
        Pair& b = pairs[input.choice(count)];
        change(a, b);
        a.check();
        b.check();
    }
}

} // namespace fuzz

/// Tries the library with one input. Each target defines it.
void tryInput(fuzz::Input input);
