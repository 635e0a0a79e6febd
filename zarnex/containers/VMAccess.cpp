#include <zarnex/containers/VMAccess.h>

#include <zarnex/runtime/exiting.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <cwchar>

namespace {

// Copies `bytes` bytes one after the other in ascending order. Where `to` starts
// inside the source, that repeats the bytes in between; everywhere else the
// faster std::memmove gives the same.
void copyAscending(unsigned char* to, const unsigned char* from, long bytes) {
    const auto count = static_cast<std::size_t>(bytes);
    const auto distance =
        reinterpret_cast<std::uintptr_t>(to) - reinterpret_cast<std::uintptr_t>(from);
    if (distance >= count) {
        std::memmove(to, from, count);
    } else {
        for (std::size_t i = 0; i < count; ++i)
            to[i] = from[i];
    }
}

} // namespace

VMAccess::VMAccess() = default;
VMAccess::VMAccess(const VMAccess&) = default;
VMAccess& VMAccess::operator=(const VMAccess&) = default;

int VMAccess::allocate(unsigned long bytes) {
    block_ = static_cast<unsigned char*>(std::malloc(bytes));
    if (block_ == nullptr)
        abort(static_cast<int>(bytes));
    return 0;
}

int VMAccess::reallocate(unsigned long bytes) {
    const bool wasAllocated = block_ != nullptr;
    void* const resized = std::realloc(block_, bytes);
    if (!wasAllocated) {
        std::free(resized);
        abort(static_cast<int>(bytes));
    }
    block_ = static_cast<unsigned char*>(resized);
    return 0;
}

int VMAccess::unallocate() {
    std::free(block_);
    return 0;
}

int VMAccess::getBlock(void* dst, long offset, long bytes) {
    if (block_ != nullptr && dst != nullptr && bytes > 0)
        copyAscending(static_cast<unsigned char*>(dst), block_ + offset, bytes);
    return 0;
}

int VMAccess::saveBlock(void* src, long offset, long bytes) {
    if (block_ != nullptr && src != nullptr && bytes > 0)
        copyAscending(block_ + offset, static_cast<const unsigned char*>(src), bytes);
    return 0;
}

void VMAccess::printHeapWalk(std::ostream&) {}

void VMAccess::printMemorySummary(std::ostream&) {}

void VMAccess::abort(int code) {
    wchar_t text[30];
    std::swprintf(text, sizeof text / sizeof *text, L"XDATA error: %d", code);
    zarnex::exitFatally(nullptr, 0);
}
