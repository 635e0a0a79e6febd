#include "stitchplan/SideGrid.h"

#include <zarnex/geometry/lineIntersection.h>

#include <algorithm>
#include <cmath>

namespace stitchplan {

SideGrid::SideGrid(const std::vector<Outline>& outlines) {
    DPoint high = outlines.front().corners[0];
    corner_ = high;
    for (const Outline& outline : outlines) {
        const int count = outline.corners.length();
        for (int i = 0; i < count; ++i) {
            const DPoint& from = outline.corners[i];
            sides_.push_back({from, outline.corners[i + 1 < count ? i + 1 : 0]});
            corner_ = DPoint((std::min)(corner_.x, from.x), (std::min)(corner_.y, from.y));
            high = DPoint((std::max)(high.x, from.x), (std::max)(high.y, from.y));
        }
    }
    // About a cell a side; a side that crosses the whole grid stands in few of them.
    count_ = static_cast<int>(std::ceil(std::sqrt(static_cast<double>(sides_.size()))));
    cellWidth_ = (std::max)((high.x - corner_.x) / count_, 1.0);
    cellHeight_ = (std::max)((high.y - corner_.y) / count_, 1.0);
    cells_.resize(static_cast<std::size_t>(count_) * static_cast<std::size_t>(count_));
    for (int side = 0; side < static_cast<int>(sides_.size()); ++side)
        add(side);
}

// Row by row, in the columns that the side passes there.
void SideGrid::add(int side) {
    const Side& s = sides_[static_cast<std::size_t>(side)];
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
            cells_[place(c, r)].push_back(side);
    }
}

int SideGrid::column(double x) const {
    return std::clamp(static_cast<int>((x - corner_.x) / cellWidth_), 0, count_ - 1);
}

int SideGrid::row(double y) const {
    return std::clamp(static_cast<int>((y - corner_.y) / cellHeight_), 0, count_ - 1);
}

std::size_t SideGrid::place(int column, int row) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(count_) +
           static_cast<std::size_t>(column);
}

const std::vector<int>& SideGrid::cell(int column, int row) const {
    return cells_[place(column, row)];
}

bool SideGrid::isCrossed(const DPoint& from, const DPoint& to) const {
    const int lastColumn = column((std::max)(from.x, to.x));
    const int lastRow = row((std::max)(from.y, to.y));
    for (int r = row((std::min)(from.y, to.y)); r <= lastRow; ++r)
        for (int c = column((std::min)(from.x, to.x)); c <= lastColumn; ++c)
            for (const int i : cell(c, r)) {
                const Side& side = sides_[static_cast<std::size_t>(i)];
                if (isContainedIntersect(from, to, side.from, side.to))
                    return true;
            }
    return false;
}

} // namespace stitchplan
