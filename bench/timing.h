#pragma once

/// The clock of the benchmark, and what keeps compilers and processors honest.

#include <chrono>
#include <utility>
#include <vector>

namespace bench {

/// Makes the compiler believe that `value` is read, and that all memory may have changed.
template <class T>
inline void keep(const T& value) {
    asm volatile("" : : "r"(&value) : "memory");
}

/// Clears the upper halves of the vector registers. Code that leaves them dirty makes the
/// plain vector instructions of whatever runs next many times slower.
void cleanVectorState();

/// The nanoseconds that `work()` takes.
template <class Work>
double nanoseconds(Work&& work) {
    cleanVectorState();
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::nano> passed =
        std::chrono::steady_clock::now() - start;
    return passed.count();
}

/// The value below which a part of the sorted `values` lies: 0.5 is the median.
double quantile(const std::vector<double>& sorted, double part);

} // namespace bench
