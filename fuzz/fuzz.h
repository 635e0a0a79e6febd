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

/// Tries the library with one input. Each target defines it.
void tryInput(fuzz::Input input);
