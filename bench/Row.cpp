#include "Row.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace bench {

namespace {

constexpr double passLength = 1e6; // nanoseconds
constexpr long mostTimes = 1 << 20;

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return quantile(values, 0.5);
}

} // namespace

Row::Row(std::string name, double limit, std::string what)
    : name_(std::move(name)), limit_(limit), what_(std::move(what)) {}

bool Row::sidesAgree() const {
    const double first = sides_.front().result();
    bool agree = true;
    for (const Side& side : sides_) {
        const double other = side.result();
        const double room = tolerance_ * (std::max)(std::fabs(first), std::fabs(other));
        if (!(std::fabs(first - other) <= room) && !(std::isnan(first) && std::isnan(other))) {
            std::fprintf(stderr, "%s: %s gives %.17g, %s gives %.17g\n", name_.c_str(),
                         sides_.front().name.c_str(), first, side.name.c_str(), other);
            agree = false;
        }
    }
    return agree;
}

/// So many runs that the clock's own cost does not show.
void Row::chooseTimes(Side& side) const {
    for (side.times = 1; side.times < mostTimes; side.times *= 2) {
        if (side.pass(side.times) >= passLength / 2)
            return;
    }
}

bool Row::measure(int rounds) {
    if (!sidesAgree())
        return false;
    for (Side& side : sides_)
        chooseTimes(side);

    const std::size_t count = sides_.size();
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t turn = 0; turn < count; ++turn) {
            Side& side = sides_[(static_cast<std::size_t>(round) + turn) % count];
            side.pass(1); // so that heap and caches are as this side leaves them
            side.measured.push_back(side.pass(side.times) / static_cast<double>(side.times));
        }
    }

    const Side& ours = sides_.front();
    for (const Side& side : sides_) {
        std::vector<double> ratios;
        for (std::size_t round = 0; round < side.measured.size(); ++round)
            ratios.push_back(ours.measured[round] / side.measured[round]);
        std::sort(ratios.begin(), ratios.end());
        figures_.push_back({side.name, side.role == Role::peer, side.limit,
                            median(side.measured) / items_, quantile(ratios, 0.25),
                            quantile(ratios, 0.5), quantile(ratios, 0.75)});
    }
    return true;
}

const Row::Figures* Row::hardest() const {
    const Figures* found = nullptr;
    for (const Figures& figure : figures_) {
        if (figure.counts &&
            (found == nullptr || figure.median / figure.limit > found->median / found->limit))
            found = &figure;
    }
    return found;
}

bool Row::isBeyond() const {
    return std::any_of(figures_.begin(), figures_.end(), [](const Figures& figure) {
        return figure.counts && figure.low > figure.limit;
    });
}

} // namespace bench
