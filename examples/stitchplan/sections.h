#pragma once

#include "stitchplan/Motif.h"

#include <vector>

namespace stitchplan {

/// The rows of a fill: parallels to the x axis, counted upward.
struct Rows {
    double lowest = 0.0;
    double spacing = 0.0;
    int count = 0;

    double y(int row) const {
        return lowest + spacing * row;
    }
};

/// What of a row lies inside.
struct Span {
    double left;
    double right;
};

/// Spans in neighbouring rows, one a row, each of which overlaps the next and no other
/// span of that row: what is sewn up and down in one go.
struct Section {
    int firstRow = 0;
    std::vector<Span> spans;
};

/// The rows between the lowest and the highest corner, centred there: as many as make the
/// edges a quarter to three quarters of the spacing wide, and one at least. Throws MotifError,
/// naming `line`, where there would be too many.
Rows rowsIn(const std::vector<Outline>& outlines, double spacing, int line);

/// The sections of a shape by the even-odd rule, ordered by their first rows. Spans
/// shorter than `shortest` are left out. Throws TooManyNeedles for too many spans.
std::vector<Section> sectionsOf(const std::vector<Outline>& outlines, const Rows& rows,
                                double shortest);

} // namespace stitchplan
