#include "stitchplan/sections.h"

#include "stitchplan/StitchPath.h"

#include <zarnex/geometry/lineIntersection.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>

namespace stitchplan {

namespace {

constexpr int mostRows = 1000000;
constexpr int mostSpans = StitchPath::mostNeedles / 2; // each takes two needles or more

// The edges that cross rows, all taken upward, in the order of their lower ends.
std::vector<Edge> upwardEdges(const std::vector<Outline>& outlines) {
    std::vector<Edge> edges;
    for (const Outline& outline : outlines)
        for (int i = 0; i < outline.corners.length(); ++i) {
            const Edge edge = outline.edge(i);
            if (edge.from.y != edge.to.y)
                edges.push_back(edge.from.y < edge.to.y ? edge : Edge{edge.to, edge.from});
        }
    std::sort(edges.begin(), edges.end(),
              [](const Edge& a, const Edge& b) { return a.from.y < b.from.y; });
    return edges;
}

/// Goes up through the rows and gives the spans of each.
class Sweep {
public:
    explicit Sweep(const std::vector<Outline>& outlines) : edges_(upwardEdges(outlines)) {}

    /// The spans at height `y`, from left to right; `y` must not sink. An edge counts
    /// from its lower end up to, and without, its upper one, so every row crosses an even
    /// number of them.
    const std::vector<Span>& spansAt(double y, double shortest) {
        for (; next_ < edges_.size() && edges_[next_].from.y <= y; ++next_)
            crossed_.push_back(next_);
        const auto isPassed = [&](std::size_t i) { return edges_[i].to.y <= y; };
        crossed_.erase(std::remove_if(crossed_.begin(), crossed_.end(), isPassed), crossed_.end());

        crossings_.clear();
        const DPoint row(0.0, y);
        const DVector alongRow(1.0, 0.0);
        for (const std::size_t i : crossed_) {
            const Edge& edge = edges_[i];
            DPoint crossing = edge.from; // stays for an edge that is all but parallel
            intersect(crossing, row, alongRow, edge.from, edge.to - edge.from);
            crossings_.push_back(crossing.x);
        }
        std::sort(crossings_.begin(), crossings_.end());

        spans_.clear();
        for (std::size_t i = 0; i + 1 < crossings_.size(); i += 2)
            if (crossings_[i + 1] - crossings_[i] >= shortest)
                spans_.push_back({crossings_[i], crossings_[i + 1]});
        return spans_;
    }

private:
    std::vector<Edge> edges_;
    std::size_t next_ = 0;
    std::vector<std::size_t> crossed_;
    std::vector<double> crossings_;
    std::vector<Span> spans_;
};

/// A span of the last row and the section that it ended.
struct Top {
    Span span;
    std::size_t section;
};

bool overlap(const Span& a, const Span& b) {
    return a.left < b.right && b.left < a.right;
}

// For each of `spans` the one of `others` that it overlaps; `several` where it overlaps
// more, `none` where it overlaps none. Both go from left to right.
constexpr std::size_t none = static_cast<std::size_t>(-1);
constexpr std::size_t several = static_cast<std::size_t>(-2);

template <class A, class B, class SpanOfA, class SpanOfB>
std::vector<std::size_t> partners(const std::vector<A>& spans, const std::vector<B>& others,
                                  SpanOfA spanOfA, SpanOfB spanOfB) {
    std::vector<std::size_t> found(spans.size(), none);
    std::size_t from = 0;
    for (std::size_t i = 0; i < spans.size(); ++i) {
        const Span span = spanOfA(spans[i]);
        while (from < others.size() && spanOfB(others[from]).right <= span.left)
            ++from;
        for (std::size_t j = from; j < others.size() && overlap(span, spanOfB(others[j])); ++j)
            found[i] = j == from ? j : several;
    }
    return found;
}

} // namespace

Rows rowsIn(const std::vector<Outline>& outlines, double spacing, int line) {
    double low = outlines.front().corners[0].y;
    double high = low;
    for (const Outline& outline : outlines)
        for (int i = 0; i < outline.corners.length(); ++i) {
            low = (std::min)(low, outline.corners[i].y);
            high = (std::max)(high, outline.corners[i].y);
        }
    const double count = (std::max)(std::round((high - low) / spacing), 1.0);
    if (!(count <= mostRows))
        throw MotifError(line, "so narrow a spacing makes more than " + std::to_string(mostRows) +
                                   " rows");
    return {low + (high - low - (count - 1.0) * spacing) / 2.0, spacing, static_cast<int>(count)};
}

std::vector<Section> sectionsOf(const std::vector<Outline>& outlines, const Rows& rows,
                                double shortest) {
    const auto itself = [](const Span& span) { return span; };
    const auto ofTop = [](const Top& top) { return top.span; };
    std::vector<Section> sections;
    std::vector<Top> tops;
    std::vector<Top> nextTops;
    Sweep sweep(outlines);
    int count = 0;
    for (int row = 0; row < rows.count; ++row) {
        const std::vector<Span>& spans = sweep.spansAt(rows.y(row), shortest);
        const std::vector<std::size_t> below = partners(spans, tops, itself, ofTop);
        const std::vector<std::size_t> above = partners(tops, spans, ofTop, itself);
        nextTops.clear();
        for (std::size_t i = 0; i < spans.size(); ++i) {
            const bool goesOn = below[i] < tops.size() && above[below[i]] == i;
            if (!goesOn)
                sections.push_back({row, {}});
            nextTops.push_back({spans[i], goesOn ? tops[below[i]].section : sections.size() - 1});
            sections[nextTops.back().section].spans.push_back(spans[i]);
        }
        tops.swap(nextTops);
        if ((count += static_cast<int>(spans.size())) > mostSpans)
            throw TooManyNeedles();
    }
    return sections;
}

} // namespace stitchplan
