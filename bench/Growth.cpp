#include "Growth.h"

#include "text.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace bench {

namespace {

constexpr int passes = 9;
constexpr double passLength = 2e5; // nanoseconds

/// Nanoseconds of one operation: the median of the passes.
double cost(const Growth::Operation& operation) {
    const auto pass = [&operation](long times) {
        return nanoseconds([&] {
            for (long i = 0; i < times; ++i)
                operation();
        });
    };
    long times = 1;
    while (pass(times) < passLength)
        times *= 2;
    std::vector<double> measured;
    for (int i = 0; i < passes; ++i)
        measured.push_back(pass(times) / static_cast<double>(times));
    std::sort(measured.begin(), measured.end());
    return quantile(measured, 0.5);
}

/// The slope of the straight line through the points, by least squares.
double slope(const std::vector<double>& x, const std::vector<double>& y) {
    const auto n = static_cast<double>(x.size());
    double sumX = 0.0, sumY = 0.0, sumXX = 0.0, sumXY = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        sumX += x[i];
        sumY += y[i];
        sumXX += x[i] * x[i];
        sumXY += x[i] * y[i];
    }
    return (n * sumXY - sumX * sumY) / (n * sumXX - sumX * sumX);
}

} // namespace

Growth::Growth(std::string filter, std::FILE* markdown)
    : filter_(std::move(filter)), markdown_(markdown) {}

void Growth::row(const std::string& name, const std::vector<long>& sizes,
                 const std::function<Operation(long)>& prepare) {
    if (("growth: " + name).find(filter_) == std::string::npos)
        return;
    ++count_;
    std::vector<double> logSizes, logCosts;
    std::string times;
    for (const long size : sizes) {
        const double each = cost(prepare(size));
        logSizes.push_back(std::log(static_cast<double>(size)));
        logCosts.push_back(std::log(each));
        times += (times.empty() ? "" : ", ") + text("%ld: ", size) + time(each);
    }
    const double grows = slope(logSizes, logCosts);
    std::printf("%-44s %5.2f  (%s)\n", ("growth: " + name).c_str(), grows, times.c_str());
    std::fflush(stdout);
    table_ += "| " + name + text(" | %.2f | ", grows) + times + " |\n";
}

void Growth::finish() {
    if (markdown_ != nullptr && !table_.empty()) {
        std::fprintf(markdown_,
                     "## How costs grow\n\n"
                     "The slope of the logarithm of the time over the logarithm of the size: 0 is\n"
                     "constant, 1 linear, 2 quadratic.\n\n"
                     "| operation | slope | time by size |\n|---|---|---|\n%s\n",
                     table_.c_str());
    }
    table_.clear();
}

} // namespace bench
