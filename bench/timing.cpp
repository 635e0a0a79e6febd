#include "timing.h"

#include <algorithm>
#include <cmath>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace bench {

#if defined(__x86_64__)

namespace {
[[gnu::target("avx")]] void zeroUpperHalves() {
    _mm256_zeroupper();
}
} // namespace

void cleanVectorState() {
    static const bool hasAvx = __builtin_cpu_supports("avx") != 0;
    if (hasAvx)
        zeroUpperHalves();
}

#else

void cleanVectorState() {}

#endif

double quantile(const std::vector<double>& sorted, double part) {
    const double place = part * static_cast<double>(sorted.size() - 1);
    const auto below = static_cast<std::size_t>(place);
    const std::size_t above = (std::min)(below + 1, sorted.size() - 1);
    const double share = place - std::floor(place);
    return sorted[below] + share * (sorted[above] - sorted[below]);
}

} // namespace bench
