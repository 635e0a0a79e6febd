#include "stitchplan/RowSewer.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace stitchplan {

namespace {

constexpr double longestWay = 100.0; ///< that is sewn from section to section

// A point of a span beside one of its ends, off the outline.
DPoint insideFrom(const DPoint& end, const Span& span) {
    const double inset = (std::min)(0.5, (span.right - span.left) / 2.0);
    return DPoint(end.x == span.left ? end.x + inset : end.x - inset, end.y);
}

} // namespace

DPoint RowSewer::Run::begin() const {
    return DPoint(rightward ? span.left : span.right, y);
}

DPoint RowSewer::Run::end() const {
    return DPoint(rightward ? span.right : span.left, y);
}

RowSewer::RowSewer(const std::vector<Outline>& shape, const Rows& rows, double stitchLength,
                   StitchPath& path, std::function<void()> afterRow)
    : edges_(shape), rows_(rows), stitchLength_(stitchLength), path_(path),
      afterRow_(std::move(afterRow)) {}

Entry RowSewer::nearestEntry(const Section& section) const {
    const int height = static_cast<int>(section.spans.size()) - 1;
    Entry nearest;
    nearest.squaredDistance = std::numeric_limits<double>::infinity();
    for (const bool fromTop : {false, true})
        for (const bool fromRight : {false, true}) {
            const Span& span = fromTop ? section.spans.back() : section.spans.front();
            const DPoint at(fromRight ? span.right : span.left,
                            rows_.y(section.firstRow + (fromTop ? height : 0)));
            const double distance =
                path_.needles() == 0 ? 0.0 : path_.lastNeedle().squaredDistance(at);
            if (distance < nearest.squaredDistance)
                nearest = {at, fromTop, fromRight, distance};
        }
    return nearest;
}

void RowSewer::sew(const Section& section, const Entry& entry) {
    const int count = static_cast<int>(section.spans.size());
    Run last{};
    for (int i = 0; i < count; ++i) {
        const int at = entry.fromTop ? count - 1 - i : i;
        const int row = section.firstRow + at;
        const Run run{section.spans[static_cast<std::size_t>(at)], row, rows_.y(row),
                      entry.fromRight == (i % 2 != 0)};
        if (i == 0)
            goTo(run);
        else
            goToNextRow(last, run);
        sewRun(run);
        last = run;
    }
}

void RowSewer::goTo(const Run& run) {
    const bool isNear =
        path_.needles() > 0 && path_.lastNeedle().distance(run.begin()) <= longestWay;
    if (isNear && staysInside(insideLast_, insideFrom(run.begin(), run.span)))
        path_.sewStraightTo(run.begin(), stitchLength_);
    else
        path_.cutThread();
}

// Straight where that stays inside, otherwise back along the row to where both rows are one
// above the other, across, and along the next row to its begin.
void RowSewer::goToNextRow(const Run& from, const Run& to) {
    if (staysInside(insideLast_, insideFrom(to.begin(), to.span)))
        return path_.sewStraightTo(to.begin(), stitchLength_);
    const double left = (std::max)(from.span.left, to.span.left);
    const double right = (std::min)(from.span.right, to.span.right);
    const double inset = (std::min)(shortestStitch, (right - left) / 2.0);
    for (const double x :
         {std::clamp(to.begin().x, left + inset, right - inset), (left + right) / 2.0,
          std::clamp(to.end().x, left + inset, right - inset)}) {
        const DPoint down(x, from.y);
        const DPoint up(x, to.y);
        if (!staysInside(down, up))
            continue;
        path_.sewStraightTo(down, stitchLength_);
        path_.sewStraightTo(up, stitchLength_);
        return path_.sewStraightTo(to.begin(), stitchLength_);
    }
    path_.cutThread();
}

void RowSewer::sewRun(const Run& run) {
    path_.sewTo(run.begin());
    const Span& span = run.span;
    const double shift = stitchLength_ * (run.row % 3) / 3.0;
    const double first = std::ceil((span.left + shortestStitch - shift) / stitchLength_);
    const double last = std::floor((span.right - shortestStitch - shift) / stitchLength_);
    if (last < first && span.right - span.left > stitchLength_ + shortestStitch)
        path_.sewTo(DPoint((span.left + span.right) / 2.0, run.y));
    for (double k = 0.0; k <= last - first; ++k)
        path_.sewTo(DPoint((run.rightward ? first + k : last - k) * stitchLength_ + shift, run.y));
    path_.sewTo(run.end());
    insideLast_ = insideFrom(run.end(), span);
    afterRow_();
}

// For ways that begin inside.
bool RowSewer::staysInside(const DPoint& from, const DPoint& to) const {
    return !edges_.isCrossed(from, to);
}

} // namespace stitchplan
