#include "stitchplan/fill.h"

#include "stitchplan/outlines.h"
#include "stitchplan/sections.h"

#include <zarnex/geometry/lineIntersection.h>
#include <zarnex/transforms/Z2DTrans.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

namespace stitchplan {

namespace {

constexpr double longestWay = 100.0; ///< that is sewn from section to section

/// An end of a section, where sewing it may begin.
struct Entry {
    DPoint at;
    bool fromTop = false;
    bool fromRight = false;
};

/// Sews sections, with the rows along the x axis.
class RowSewer {
public:
    RowSewer(const std::vector<Outline>& outlines, const Rows& rows, double stitchLength,
             StitchPath& path, const std::function<void()>& afterRow)
        : outlines_(outlines), rows_(rows), stitchLength_(stitchLength), path_(path),
          afterRow_(afterRow) {}

    Entry nearestEntry(const Section& section) const {
        Entry nearest;
        double least = std::numeric_limits<double>::infinity();
        const int height = static_cast<int>(section.spans.size()) - 1;
        for (const bool fromTop : {false, true})
            for (const bool fromRight : {false, true}) {
                const Span& span = fromTop ? section.spans.back() : section.spans.front();
                const double y = rows_.y(section.firstRow + (fromTop ? height : 0));
                const DPoint at(fromRight ? span.right : span.left, y);
                if (const double away = squaredDistanceTo(at); away < least) {
                    least = away;
                    nearest = {at, fromTop, fromRight};
                }
            }
        return nearest;
    }

    /// 0 from nowhere, so that sewing begins with the lowest section.
    double squaredDistanceTo(const DPoint& p) const {
        return path_.needles() == 0 ? 0.0 : (p - path_.lastNeedle()).squaredLength();
    }

    void sew(const Section& section, Entry entry) {
        if (path_.needles() == 0 || !staysInside(path_.lastNeedle(), entry.at))
            path_.cutThread();
        const int count = static_cast<int>(section.spans.size());
        bool rightward = !entry.fromRight;
        for (int i = 0; i < count; ++i) {
            const int at = entry.fromTop ? count - 1 - i : i;
            sewRow(section.firstRow + at, section.spans[static_cast<std::size_t>(at)], rightward);
            rightward = !rightward;
        }
    }

private:
    void sewRow(int row, const Span& span, bool rightward) {
        const double y = rows_.y(row);
        sewOn(DPoint(rightward ? span.left : span.right, y));
        const double shift = stitchLength_ * (row % 3) / 3.0;
        const double first = std::ceil((span.left + shortestStitch - shift) / stitchLength_);
        const double last = std::floor((span.right - shortestStitch - shift) / stitchLength_);
        for (double k = 0.0; k <= last - first; ++k)
            path_.sewTo(DPoint((rightward ? first + k : last - k) * stitchLength_ + shift, y));
        path_.sewTo(DPoint(rightward ? span.right : span.left, y));
        afterRow_();
    }

    void sewOn(const DPoint& to) {
        if (path_.isCut())
            path_.sewTo(to);
        else
            path_.sewStraightTo(to, stitchLength_);
    }

    // Whether the straight way between two points is short and runs inside or along an
    // outline: whether it, or a parallel 0.05 mm beside it, stays inside.
    bool staysInside(const DPoint& from, const DPoint& to) const {
        const DVector way = to - from;
        if (way.length() > longestWay)
            return false;
        const DVector inset = way * 0.001; // both ends may stand on an outline
        const DVector aside = way.normalize().ortho(1) * 0.5;
        for (const double side : {0.0, 1.0, -1.0})
            if (isFree(from + inset + aside * side, to - inset + aside * side))
                return true;
        return false;
    }

    bool isFree(const DPoint& from, const DPoint& to) const {
        if (!isInside(from + (to - from) * 0.5, outlines_))
            return false;
        for (const Outline& outline : outlines_) {
            const int count = outline.corners.length();
            for (int i = 0; i < count; ++i)
                if (isContainedIntersect(from, to, outline.corners[i],
                                         outline.corners[i + 1 < count ? i + 1 : 0]))
                    return false;
        }
        return true;
    }

    const std::vector<Outline>& outlines_;
    const Rows rows_;
    const double stitchLength_;
    StitchPath& path_;
    const std::function<void()> afterRow_;
};

} // namespace

int fill(const Motif& motif, StitchPath& path, const std::function<void(int)>& progress) {
    Z2DTrans toRows; // turns the rows into the x axis
    toRows.rotateInDegree(-motif.degrees);
    Z2DTrans fromRows;
    fromRows.rotateInDegree(motif.degrees);

    std::vector<Outline> outlines = motif.outlines;
    transform(outlines, toRows);
    const Rows rows = rowsIn(outlines, motif.rowSpacing, motif.rowSpacingLine);
    std::vector<Section> waiting = sectionsOf(outlines, rows, shortestStitch);

    StitchPath turned;
    const auto afterRow = [&] {
        if (turned.needles() > mostStitches)
            throw MotifError(motif.rowSpacingLine, "this makes more than 10000000 stitches");
        progress(turned.needles());
    };
    RowSewer sewer(outlines, rows, motif.stitchLength, turned, afterRow);

    // The sections wait in the order of their first rows, and only the first of them are
    // looked at: what is near stands there, and a comb of many teeth takes no long search.
    constexpr std::ptrdiff_t lookedAt = 256;
    int sewnRows = 0;
    for (auto next = waiting.begin(); next != waiting.end(); ++next) {
        auto nearest = next;
        Entry entry = sewer.nearestEntry(*next);
        const std::ptrdiff_t count = (std::min)(lookedAt, waiting.end() - next);
        for (auto section = next + 1; section != next + count; ++section) {
            const Entry other = sewer.nearestEntry(*section);
            if (sewer.squaredDistanceTo(other.at) < sewer.squaredDistanceTo(entry.at)) {
                nearest = section;
                entry = other;
            }
        }
        sewer.sew(*nearest, entry);
        sewnRows += static_cast<int>(nearest->spans.size());
        std::rotate(next, nearest, nearest + 1);
    }
    path.append(turned, fromRows);
    return sewnRows;
}

} // namespace stitchplan
