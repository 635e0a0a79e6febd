#pragma once

#include "timing.h"

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace bench {

/// How the cost of an operation grows with the size of what it works on.
class Growth {
public:
    /// As Suite.
    Growth(std::string filter, std::FILE* markdown);

    /// `prepare(n)` makes an input of size n and returns the operation on it. Writes the
    /// time at each size and the slope of their logarithms: 0 for constant cost, 1 for
    /// linear, 2 for quadratic.
    using Operation = std::function<void()>;
    void row(const std::string& name, const std::vector<long>& sizes,
             const std::function<Operation(long)>& prepare);

    /// The rows that ran.
    int count() const {
        return count_;
    }

    /// Writes what is owed.
    void finish();

private:
    std::string filter_;
    std::FILE* markdown_;
    std::string table_;
    int count_ = 0;
};

/// The rows.
void growthRows(Growth& growth);

} // namespace bench
