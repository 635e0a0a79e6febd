/// Any file as a motif: it is refused, or planned, told and drawn.

#include "fuzz/fuzz.h"

#include "stitchplan/picture.h"
#include "stitchplan/plan.h"
#include "stitchplan/readMotif.h"
#include "stitchplan/summary.h"

#include <algorithm>
#include <cmath>

namespace {

using namespace stitchplan;

constexpr double mostNeedles = 20000; // about as many as there is time for

struct TooLong {};

double needlesIn(const Motif& motif) {
    double reach = 0.0;
    for (const Outline& outline : motif.outlines)
        for (int i = 0; i < outline.corners.length(); ++i)
            reach =
                std::max({reach, std::fabs(outline.corners[i].x), std::fabs(outline.corners[i].y)});
    const double width = 3.0 * reach * motif.scale;
    double copies = 1.0;
    for (const Repeat& repeat : motif.repeats)
        copies *= repeat.count;
    return (width / motif.rowSpacing + 1.0) * (width / motif.stitchLength + 1.0) * copies;
}

void check(const Plan& plan) {
    const StitchPath& path = plan.path;
    const double tolerance = 1e-6 * (plan.motif.hoopWidth + plan.motif.hoopHeight);
    FUZZ_REQUIRE(path.needles() > 0 && path.threads() > 0 && plan.rows >= 0);
    FUZZ_REQUIRE(path.stitches() == path.needles() - path.threads());
    for (int i = 0; i < path.needles(); ++i) {
        const DPoint& needle = path.needle(i);
        FUZZ_REQUIRE(std::fabs(needle.x) <= plan.motif.hoopWidth / 2 + tolerance);
        FUZZ_REQUIRE(std::fabs(needle.y) <= plan.motif.hoopHeight / 2 + tolerance);
        FUZZ_REQUIRE(needle.x >= plan.extent.left && needle.x <= plan.extent.right);
        FUZZ_REQUIRE(needle.y >= plan.extent.top && needle.y <= plan.extent.bottom);
    }
    for (int thread = 0; thread < path.threads(); ++thread)
        for (int i = path.threadBegin(thread) + 1; i < path.threadBegin(thread + 1); ++i)
            FUZZ_REQUIRE(path.needle(i).distance(path.needle(i - 1)) <=
                         plan.motif.stitchLength + shortestStitch + tolerance);
}

} // namespace

void tryInput(fuzz::Input input) {
    const std::string text = input.rest();
    try {
        const Motif motif = readMotif(linesOf(text));
        if (!(needlesIn(motif) <= mostNeedles))
            return;
        const Plan plan = planStitches(motif, [](int needles) {
            if (needles > 10 * mostNeedles)
                throw TooLong();
        });
        check(plan);
        const std::string summary = summaryOf(plan);
        FUZZ_REQUIRE(!summary.empty() && summary.back() == '\n');
        std::string picture;
        drawPicture(
            plan, [&](std::string_view piece) { picture += piece; }, [](int) {});
        FUZZ_REQUIRE(picture.find("</svg>") != std::string::npos);
        FUZZ_REQUIRE(picture.find("nan") == std::string::npos ||
                     plan.motif.title.find("nan") != std::string::npos);
    } catch (const MotifError& error) {
        FUZZ_REQUIRE(error.line >= 0 && error.what()[0] != '\0');
    } catch (const TooLong&) {
    }
}
