#include "stitchplan/EdgeGrid.h"

#include <zarnex/geometry/lineIntersection.h>

#include <algorithm>
#include <cmath>

namespace stitchplan {

EdgeGrid::EdgeGrid(const std::vector<Outline>& outlines) {
    DPoint high = outlines.front().corners[0];
    corner_ = high;
    for (const Outline& outline : outlines) {
        for (int i = 0; i < outline.corners.length(); ++i) {
            const DPoint& from = outline.corners[i];
            edges_.push_back(outline.edge(i));
            corner_ = DPoint((std::min)(corner_.x, from.x), (std::min)(corner_.y, from.y));
            high = DPoint((std::max)(high.x, from.x), (std::max)(high.y, from.y));
        }
    }
    // About a cell an edge; an edge that crosses the whole grid stands in few of them.
    count_ = static_cast<int>(std::ceil(std::sqrt(static_cast<double>(edges_.size()))));
    cellWidth_ = (std::max)((high.x - corner_.x) / count_, 1.0);
    cellHeight_ = (std::max)((high.y - corner_.y) / count_, 1.0);
    cells_.resize(static_cast<std::size_t>(count_) * static_cast<std::size_t>(count_));
    for (int edge = 0; edge < static_cast<int>(edges_.size()); ++edge)
        add(edge);
}

// Row by row, in the columns that the edge passes there.
void EdgeGrid::add(int edge) {
    const Edge& s = edges_[static_cast<std::size_t>(edge)];
    const DPoint& low = s.from.y < s.to.y ? s.from : s.to;
    const DPoint& high = s.from.y < s.to.y ? s.to : s.from;
    const double slope = high.y > low.y ? (high.x - low.x) / (high.y - low.y) : 0.0;
    const int last = row(high.y);
    for (int r = row(low.y); r <= last; ++r) {
        const double bottom = corner_.y + r * cellHeight_;
        const double top = bottom + cellHeight_;
        double begin = bottom > low.y ? low.x + slope * (bottom - low.y) : low.x;
        double end = top < high.y ? low.x + slope * (top - low.y) : high.x;
        if (begin > end)
            std::swap(begin, end);
        // Rounding may place an end just across the border of a cell.
        for (int c = column(begin - 0.01); c <= column(end + 0.01); ++c)
            cells_[place(c, r)].push_back(edge);
    }
}

int EdgeGrid::column(double x) const {
    return std::clamp(static_cast<int>((x - corner_.x) / cellWidth_), 0, count_ - 1);
}

int EdgeGrid::row(double y) const {
    return std::clamp(static_cast<int>((y - corner_.y) / cellHeight_), 0, count_ - 1);
}

std::size_t EdgeGrid::place(int column, int row) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(count_) +
           static_cast<std::size_t>(column);
}

const std::vector<int>& EdgeGrid::cell(int column, int row) const {
    return cells_[place(column, row)];
}

bool EdgeGrid::isCrossed(const DPoint& from, const DPoint& to) const {
    const int lastColumn = column((std::max)(from.x, to.x));
    const int lastRow = row((std::max)(from.y, to.y));
    for (int r = row((std::min)(from.y, to.y)); r <= lastRow; ++r)
        for (int c = column((std::min)(from.x, to.x)); c <= lastColumn; ++c)
            for (const int i : cell(c, r)) {
                const Edge& edge = edges_[static_cast<std::size_t>(i)];
                if (isContainedIntersect(from, to, edge.from, edge.to))
                    return true;
            }
    return false;
}

} // namespace stitchplan
