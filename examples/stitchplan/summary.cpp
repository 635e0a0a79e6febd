#include "stitchplan/summary.h"

#include "host/utf8.h"

#include <zarnex/geometry/rounding.h>
#include <zarnex/interop/standardStrings.h>
#include <zarnex/units/ZEmbPoint.h>
#include <zarnex/units/ZInch.h>
#include <zarnex/units/ZMillimeter.h>
#include <zarnex/units/ZSpi.h>

#include <algorithm>

namespace stitchplan {

namespace {

std::string millimeters(double points) {
    const ZEmbPoint tenths(zarnex::roundHalfAway(points)); // of a millimetre; no -0.0
    return zarnex::toUtf8(ZMillimeter(tenths).getString(0, 1));
}

std::string counted(int count, const char* one, const char* many) {
    return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

std::string row(const char* name, const std::string& value) {
    constexpr std::size_t width = 12;
    std::string line = name;
    line.resize(width, ' ');
    return line + value + '\n';
}

} // namespace

std::string summaryOf(const Plan& plan) {
    const Motif& motif = plan.motif;
    const ZEmbPoint thread(plan.path.length());
    const ZInch inches(thread);
    const ZSpi density(plan.path.stitches() / double(inches));
    const auto holes = static_cast<int>(std::count_if(motif.outlines.begin(), motif.outlines.end(),
                                                      [](const Outline& o) { return o.isHole(); }));
    const int outlines = static_cast<int>(motif.outlines.size()) - holes;
    const DRECT& extent = plan.extent;

    std::string lines;
    if (!motif.title.empty())
        lines += row("title", host::shown(motif.title, 100));
    lines += row("outlines", counted(outlines, "outline", "outlines") + ", " +
                                 counted(holes, "hole", "holes") + ", " +
                                 counted(static_cast<int>(plan.copies.size()), "copy", "copies"));
    lines += row("stitches", std::to_string(plan.path.stitches()));
    lines += row("rows", std::to_string(plan.rows));
    lines += row("threads", std::to_string(plan.path.threads()));
    lines += row("thread", millimeters(thread) + ", " + zarnex::toUtf8(inches.getString(0, 2)));
    lines +=
        row("extent", millimeters(extent.right - extent.left) + " x " +
                          millimeters(extent.bottom - extent.top) + ", from (" +
                          millimeters(extent.left) + ", " + millimeters(extent.top) + ") to (" +
                          millimeters(extent.right) + ", " + millimeters(extent.bottom) + ')');
    lines += row("density", zarnex::toUtf8(density.getString(0, 2)));
    return lines;
}

} // namespace stitchplan
