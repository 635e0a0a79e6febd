#include "stitchplan/fill.h"

#include "stitchplan/RowSewer.h"
#include "stitchplan/outlines.h"
#include "stitchplan/sections.h"

#include <zarnex/transforms/Z2DTrans.h>

#include <algorithm>
#include <cstddef>

namespace stitchplan {

int fill(const std::vector<Outline>& shape, const Motif& motif, StitchPath& path,
         const std::function<void(int)>& progress) {
    Z2DTrans toRows; // turns the rows into the x axis
    toRows.rotateInDegree(-motif.degrees);
    Z2DTrans fromRows;
    fromRows.rotateInDegree(motif.degrees);

    std::vector<Outline> turnedShape = shape;
    transform(turnedShape, toRows);
    const Rows rows = rowsIn(turnedShape, motif.rowSpacing, motif.spacingLine);
    std::vector<Section> waiting = sectionsOf(turnedShape, rows, shortestStitch);

    StitchPath turned;
    RowSewer sewer(turnedShape, rows, motif.stitchLength, turned,
                   [&] { progress(path.needles() + turned.needles()); });

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
            if (other.squaredDistance < entry.squaredDistance) {
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
