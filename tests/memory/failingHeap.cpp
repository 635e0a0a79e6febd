#include "tests/memory/failingHeap.h"

#include <cerrno>
#include <cstddef>

namespace {

bool isArmed = false;
long failsAt = 0;
failing::Mode failMode = failing::Mode::one;
long requestCount = 0;
long refusalCount = 0;

bool isRefused() {
    if (!isArmed)
        return false;
    ++requestCount;
    const bool refused = failsAt > 0 && (failMode == failing::Mode::one ? requestCount == failsAt
                                                                        : requestCount >= failsAt);
    if (refused) {
        ++refusalCount;
        errno = ENOMEM;
    }
    return refused;
}

} // namespace

void failing::arm(long n, Mode mode) {
    failsAt = n;
    failMode = mode;
    requestCount = 0;
    refusalCount = 0;
    isArmed = true;
}

void failing::disarm() {
    isArmed = false;
}

long failing::requests() {
    return requestCount;
}

long failing::refusals() {
    return refusalCount;
}

// The C library's own functions, behind ours, which take their place in the whole process:
// operator new calls them too.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);

void* malloc(std::size_t size) {
    return isRefused() ? nullptr : __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size) {
    return isRefused() ? nullptr : __libc_calloc(count, size);
}

void* realloc(void* block, std::size_t size) {
    return isRefused() ? nullptr : __libc_realloc(block, size);
}
}
