#include "stitchplan/plan.h"

#include "stitchplan/fill.h"
#include "stitchplan/outlines.h"
#include "stitchplan/runningStitch.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace stitchplan {

namespace {

// Each repeat takes all copies that there are so far.
std::vector<Z2DTrans> copiesBy(const std::vector<Repeat>& repeats) {
    std::vector<Z2DTrans> copies(1);
    for (const Repeat& repeat : repeats) {
        const std::vector<Z2DTrans> originals = copies;
        for (int i = 1; i < repeat.count; ++i)
            for (Z2DTrans copy : originals) {
                if (repeat.kind == Repeat::Kind::mirrored)
                    copy.mirror();
                else if (repeat.kind == Repeat::Kind::flipped)
                    copy.flip();
                else
                    copy.rotateInDegree(repeat.degrees * i);
                copies.push_back(copy);
            }
    }
    return copies;
}

// Every corner of every copy must lie in the hoop, which is convex: all stitches then do.
void checkHoop(const Motif& motif, const std::vector<Z2DTrans>& copies) {
    DRECT hoop;
    SetDRect(&hoop, 0.0, 0.0, 0.0, 0.0);
    InflateDRect(&hoop, motif.hoopWidth / 2.0, motif.hoopHeight / 2.0);
    for (const Z2DTrans& copy : copies)
        for (const Outline& outline : motif.outlines)
            for (int i = 0; i < outline.corners.length(); ++i) {
                const DPoint sewn = copy * outline.corners[i];
                const DBLPOINT corner{sewn.x, sewn.y};
                if (!PointInDRect(&hoop, &corner))
                    throw MotifError(outline.lines[static_cast<std::size_t>(i)],
                                     copies.size() > 1 ? "a copy of this lies outside the hoop"
                                                       : "this lies outside the hoop");
            }
}

DRECT extentOf(const StitchPath& path) {
    DRECT extent;
    const DPoint first = path.needle(0);
    SetDRect(&extent, first.x, first.y, first.x, first.y);
    for (int i = 1; i < path.needles(); ++i) {
        const DPoint& needle = path.needle(i);
        SetDRect(&extent, (std::min)(extent.left, needle.x), (std::min)(extent.top, needle.y),
                 (std::max)(extent.right, needle.x), (std::max)(extent.bottom, needle.y));
    }
    return extent;
}

} // namespace

Plan planStitches(Motif motif, const std::function<void(int)>& progress) {
    Plan plan;
    plan.motif = std::move(motif);
    plan.copies = copiesBy(plan.motif.repeats);

    Z2DTrans scale;
    scale.scale(plan.motif.scale, plan.motif.scale);
    transform(plan.motif.outlines, scale);
    checkHoop(plan.motif, plan.copies);
    checkAndOrient(plan.motif.outlines);
    try {
        StitchPath one;
        int rows = 0;
        for (const std::vector<Outline>& shape : shapesOf(plan.motif.outlines))
            rows += fill(shape, plan.motif, one, progress);
        for (const Outline& outline : plan.motif.outlines)
            sewAlong(outline, plan.motif.stitchLength, one);
        for (const Z2DTrans& copy : plan.copies) {
            plan.path.append(one, copy);
            progress(plan.path.needles());
            plan.rows += rows;
        }
    } catch (const TooManyNeedles& error) {
        const int line =
            plan.motif.spacingLine > 0 ? plan.motif.spacingLine : plan.motif.stitchLine;
        throw MotifError(line, error.what());
    }
    plan.extent = extentOf(plan.path);
    return plan;
}

} // namespace stitchplan
