#include <zarnex/platform/posix/randomness.h>

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <sys/mman.h>
#include <sys/random.h>
#include <unistd.h>

namespace zarnex::platform {

namespace {

constexpr std::size_t portion = 16;

/// Fills `out` by calls of `read`, which returns as the system call of that name.
template <class Read>
bool fill(unsigned char* out, std::size_t count, Read read) {
    while (count > 0) {
        const ssize_t got = read(out, count);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return false;
        out += got;
        count -= static_cast<std::size_t>(got);
    }
    return true;
}

// A kernel before 3.17 or a sandbox may refuse getrandom(); the device is the same
// generator.
bool fromKernel(void* out, std::size_t count) {
    const auto bytes = static_cast<unsigned char*>(out);
    if (fill(bytes, count, [](void* to, std::size_t n) { return getrandom(to, n, 0); }))
        return true;
    const int device = open("/dev/urandom", O_RDONLY | O_CLOEXEC);
    if (device < 0)
        return false;
    const bool isRead =
        fill(bytes, count, [device](void* to, std::size_t n) { return read(device, to, n); });
    close(device);
    return isRead;
}

/// A number that differs between a process and the children it forks.
using Mark = std::atomic<std::uint64_t>;
static_assert(Mark::is_always_lock_free, "the kernel clears it as plain memory");

// The kernel clears the page of the mark in every child, whichever call made it. The page
// is never unmapped: threads may outlive the destructors of the library.
Mark* makeMark() {
    void* const page =
        mmap(nullptr, sizeof(Mark), PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (page == MAP_FAILED)
        return nullptr;
    if (madvise(page, sizeof(Mark), MADV_WIPEONFORK) != 0) {
        munmap(page, sizeof(Mark));
        return nullptr;
    }
    return new (page) Mark(0);
}

/// The mark of this process, 0 until a thread needs it. Null before the library's
/// constructors have run and on kernels that clear no pages.
Mark* const processMark = makeMark();

/// Bytes fetched ahead: the way into the kernel costs more than they do.
struct Batch {
    std::uint64_t mark; ///< the mark of the process that fetched them; 0 for none
    std::size_t used;
    unsigned char bytes[32 * portion];
};
constinit thread_local Batch batch{};

bool fetchBatch() {
    std::uint64_t mark = *processMark;
    if (mark == 0) {
        std::uint64_t chosen = 0;
        if (!fromKernel(&chosen, sizeof chosen))
            return false;
        chosen |= 1; // not 0
        if (processMark->compare_exchange_strong(mark, chosen))
            mark = chosen;
    }
    batch.mark = 0; // should the next line fail
    if (!fromKernel(batch.bytes, sizeof batch.bytes))
        return false;
    batch.used = 0;
    batch.mark = mark;
    return true;
}

} // namespace

bool randomBytes(std::uint8_t* out) {
    if (processMark == nullptr)
        return fromKernel(out, portion);
    const std::uint64_t mark = processMark->load(std::memory_order_relaxed);
    const bool isUsable = mark != 0 && mark == batch.mark && batch.used < sizeof batch.bytes;
    if (!isUsable && !fetchBatch())
        return false;
    std::memcpy(out, batch.bytes + batch.used, portion);
    batch.used += portion;
    return true;
}

} // namespace zarnex::platform
