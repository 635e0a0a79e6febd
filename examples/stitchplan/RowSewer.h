#pragma once

#include "stitchplan/EdgeGrid.h"
#include "stitchplan/StitchPath.h"
#include "stitchplan/sections.h"

#include <functional>
#include <vector>

namespace stitchplan {

/// An end of a section, where sewing it may begin.
struct Entry {
    DPoint at;
    bool fromTop = false;
    bool fromRight = false;
    double squaredDistance = 0.0; ///< from where the needle is
};

/// Sews the sections of one shape, whose rows run along the x axis.
class RowSewer {
public:
    RowSewer(const std::vector<Outline>& shape, const Rows& rows, double stitchLength,
             StitchPath& path, std::function<void()> afterRow);

    /// The end of `section` that is nearest to the needle; the lowest left one before the
    /// first stitch.
    Entry nearestEntry(const Section& section) const;

    /// Sews all rows of `section`, to and fro. The way there, and those from row to row,
    /// are sewn as far as they stay inside the shape; elsewhere the thread is cut.
    void sew(const Section& section, const Entry& entry);

private:
    /// A row's span on the way of the needle.
    struct Run {
        Span span;
        int row;
        double y;
        bool rightward;

        DPoint begin() const;
        DPoint end() const;
    };

    void goTo(const Run& run);
    void goToNextRow(const Run& from, const Run& to);
    void sewRun(const Run& run);
    bool staysInside(const DPoint& from, const DPoint& to) const;

    const EdgeGrid edges_;
    const Rows rows_;
    const double stitchLength_;
    StitchPath& path_;
    const std::function<void()> afterRow_;
    DPoint insideLast_; ///< beside the last needle, well inside the shape
};

} // namespace stitchplan
