#include <zarnex/runtime/exiting.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace {

constinit std::atomic<int> exiting = 0;

} // namespace

int isExiting() {
    return exiting.load(std::memory_order_relaxed);
}

void setExiting() {
    exiting.store(1, std::memory_order_relaxed);
}

void zarnex::exitFatally(const char* message, int status) {
    if (message != nullptr)
        std::fputs(message, stderr);
    setExiting();
    std::exit(status); // NOLINT(concurrency-mt-unsafe): any thread may ask
}
