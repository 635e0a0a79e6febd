#pragma once

#include "timing.h"

#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace bench {

/// One comparison: the same work, done by the library and by its peers.
///
/// A side is a callable that does the work once and returns a number that tells what came
/// of it: a length, a sum, a hash. All sides must return the same number.
///
///     suite.row("find in 1000", 1.0, "The first place of a word near the end.",
///               [](Row& row, const auto& measure) {
///                   const ZString text(...);
///                   const std::wstring peer(...);
///                   row.ours([&] { return text.findString(L"needle"); });
///                   row.peer("std", [&] { return peer.find(L"needle"); });
///                   measure();
///               });
///
/// Where the work uses its input up, a first callable prepares a fresh one outside the
/// measured time and the second takes it by reference.
///
/// The body measures before it ends, so that the sides can refer to its variables.
class Row {
public:
    /// `limit` is the ratio to reach against the fastest peer of the same structure.
    Row(std::string name, double limit, std::string what);

    /// The library's side.
    template <class... Work>
    void ours(Work... work) {
        add("ours", Role::ours, std::move(work)...);
    }

    /// A peer of the same structure: its ratio counts.
    template <class... Work>
    void peer(std::string name, Work... work) {
        add(std::move(name), Role::peer, std::move(work)...);
    }

    /// A peer of another structure, or one that does less work: shown, not counted.
    template <class... Work>
    void beside(std::string name, Work... work) {
        add(std::move(name), Role::beside, std::move(work)...);
    }

    /// A peer with a limit of its own.
    template <class... Work>
    void peerWithin(double limit, std::string name, Work... work) {
        add(std::move(name), Role::peer, std::move(work)...);
        sides_.back().limit = limit;
    }

    /// Times are shown for one of the `count` items that a side handles.
    void per(double count) {
        items_ = count;
    }

    /// How far, relative to their size, the numbers of the sides may differ.
    void tolerance(double relative) {
        tolerance_ = relative;
    }

    /// Where the time goes if the limit is not reached, and what forces it.
    void why(std::string text) {
        why_ = std::move(text);
    }

    /// Runs every side once in each round, in rotating order. False if the sides do not
    /// come to the same result.
    bool measure(int rounds);

    /// The figures of a side after measure(), and its ratios ours/side.
    struct Figures {
        std::string name;
        bool counts;
        double limit;
        double nanoseconds; ///< median, for one item
        double low, median, high;
    };
    const std::vector<Figures>& figures() const {
        return figures_;
    }

    /// The counting peer that is hardest to match, by ratio and limit; null without one.
    const Figures* hardest() const;

    /// Whether even the lower quartile of a counting peer's ratios is above its limit.
    bool isBeyond() const;

    const std::string& name() const {
        return name_;
    }
    const std::string& what() const {
        return what_;
    }
    const std::string& whyText() const {
        return why_;
    }

private:
    enum class Role { ours, peer, beside };

    /// The nanoseconds of `times` runs.
    using Pass = std::function<double(long times)>;

    struct Side {
        std::string name;
        Role role;
        double limit;
        std::function<double()> result;
        Pass pass;
        long times = 1;
        std::vector<double> measured; // a round each, for one run
    };

    template <class Run>
    void add(std::string name, Role role, Run run) {
        sides_.push_back({std::move(name),
                          role,
                          limit_,
                          [run] { return number(run()); },
                          [run](long times) {
                              return nanoseconds([&] {
                                  for (long i = 0; i < times; ++i) {
                                      const auto result = run();
                                      keep(result);
                                  }
                              });
                          },
                          1,
                          {}});
    }

    template <class Prepare, class Run>
    void add(std::string name, Role role, Prepare prepare, Run run) {
        const auto result = [prepare, run] {
            auto state = prepare();
            return number(run(state));
        };
        const auto pass = [prepare, run](long times) {
            std::vector<std::decay_t<decltype(prepare())>> states;
            states.reserve(static_cast<std::size_t>(times));
            for (long i = 0; i < times; ++i)
                states.push_back(prepare());
            return nanoseconds([&] {
                for (auto& state : states) {
                    const auto came = run(state);
                    keep(came);
                }
            });
        };
        sides_.push_back({std::move(name), role, limit_, result, pass, 1, {}});
    }

    template <class T>
    static double number(T result) {
        return static_cast<double>(result);
    }

    bool sidesAgree() const;
    void chooseTimes(Side& side) const;

    std::string name_;
    double limit_;
    std::string what_;
    std::string why_;
    double items_ = 1.0;
    double tolerance_ = 0.0;
    std::vector<Side> sides_;
    std::vector<Figures> figures_;
};

} // namespace bench
