#include "Suite.h"

#include "text.h"

#include <utility>

namespace bench {

namespace {

/// The sides that are not `hardest`: "Boost 0.52, Qt 0.31".
std::string others(const Row& row, const Row::Figures* hardest, bool counting) {
    std::string list;
    for (const Row::Figures& side : row.figures()) {
        if (&side == hardest || &side == &row.figures().front() || side.counts != counting)
            continue;
        list += (list.empty() ? "" : ", ") + side.name + text(" %.2f", side.median);
    }
    return list;
}

} // namespace

Suite::Suite(std::string filter, int rounds, std::FILE* markdown)
    : filter_(std::move(filter)), rounds_(rounds), markdown_(markdown) {}

void Suite::topic(std::string name) {
    finish();
    topic_ = std::move(name);
}

void Suite::row(const std::string& name, double limit, const std::string& what,
                const std::function<void(Row&, const Measure&)>& body) {
    if ((topic_ + ": " + name).find(filter_) == std::string::npos)
        return;
    Row row(name, limit, what);
    body(row, [&] {
        ++count_;
        if (!row.measure(rounds_)) {
            ++wrong_;
            return;
        }
        print(row);
        note(row);
    });
}

void Suite::print(const Row& row) const {
    const Row::Figures* const peer = row.hardest();
    std::string line = text("%-44s %9s", (topic_ + ": " + row.name()).c_str(),
                            time(row.figures().front().nanoseconds).c_str());
    if (peer != nullptr) {
        line += text("  %6.2f [%.2f %.2f] of %s, limit %.2f%s", peer->median, peer->low, peer->high,
                     peer->name.c_str(), peer->limit,
                     !row.isBeyond()         ? ""
                     : row.whyText().empty() ? " BEYOND, unexplained"
                                             : " BEYOND");
    }
    for (const bool counting : {true, false}) {
        const std::string list = others(row, peer, counting);
        if (!list.empty())
            line += (counting ? "; " : "; beside: ") + list;
    }
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
}

void Suite::note(const Row& row) {
    const Row::Figures* const peer = row.hardest();
    beyond_ += row.isBeyond() ? 1 : 0;

    table_ += "| " + row.name() + " | " + time(row.figures().front().nanoseconds) + " | ";
    if (peer != nullptr) {
        table_ +=
            text(row.isBeyond() ? "**%.2f** (%.2f\xE2\x80\x93%.2f)" : "%.2f (%.2f\xE2\x80\x93%.2f)",
                 peer->median, peer->low, peer->high);
        table_ += text(" | %.2f | ", peer->limit) + peer->name + ", " + time(peer->nanoseconds);
    } else {
        table_ += "| | ";
    }
    table_ += " | " + others(row, peer, true) + " | " + others(row, peer, false) + " |\n";

    notes_ += "- *" + row.name() + "*: " + row.what() + "\n";
    if (row.isBeyond())
        notes_ += "  **Beyond its limit**: " +
                  (row.whyText().empty() ? "not explained; measured again below." : row.whyText()) +
                  "\n";
}

void Suite::finish() {
    if (markdown_ != nullptr && !table_.empty()) {
        std::fprintf(
            markdown_,
            "### %s\n\n| row | ours | ratio | limit | hardest peer | other peers | beside |\n"
            "|---|---|---|---|---|---|---|\n%s\n%s\n",
            topic_.c_str(), table_.c_str(), notes_.c_str());
    }
    table_.clear();
    notes_.clear();
}

} // namespace bench
