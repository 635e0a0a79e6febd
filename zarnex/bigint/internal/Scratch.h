#pragma once

#include <zarnex/bigint/internal/limb.h>

#include <zarnex/runtime/exiting.h>

#include <new>

namespace zarnex::detail {

/// `count` limbs without initial values; without memory the process ends with
/// "failed alloc" and status 1.
inline Limb* allocateLimbs(Size count) {
    Limb* const limbs = new (std::nothrow) Limb[static_cast<std::size_t>(count)];
    if (limbs == nullptr)
        exitWithoutMemory();
    return limbs;
}

/// Room for intermediate results: on the stack for numbers up to some thousand bits,
/// else on the heap. Without initial values.
class Scratch {
public:
    explicit Scratch(Size count) : limbs_(count <= nearCount ? near_ : allocateLimbs(count)) {}
    ~Scratch() {
        if (limbs_ != near_)
            delete[] limbs_;
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    operator Limb*() {
        return limbs_;
    }

private:
    static constexpr Size nearCount = 200;

    Limb* limbs_;
    Limb near_[nearCount];
};

} // namespace zarnex::detail
