#pragma once

#include "stitchplan/Motif.h"

#include <cstddef>
#include <vector>

namespace stitchplan {

/// The edges of outlines by place, to find those near a short way.
class EdgeGrid {
public:
    explicit EdgeGrid(const std::vector<Outline>& outlines);

    /// Whether the straight way meets an edge that is not parallel to it.
    bool isCrossed(const DPoint& from, const DPoint& to) const;

private:
    int column(double x) const;
    int row(double y) const;
    std::size_t place(int column, int row) const; ///< in cells_
    const std::vector<int>& cell(int column, int row) const;
    void add(int edge);

    std::vector<Edge> edges_;
    std::vector<std::vector<int>> cells_; ///< row by row: indices of edges
    DPoint corner_;                       ///< the least coordinates
    double cellWidth_ = 1.0;
    double cellHeight_ = 1.0;
    int count_ = 1; ///< of columns, and of rows
};

} // namespace stitchplan
