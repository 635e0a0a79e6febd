#pragma once

#include "stitchplan/plan.h"

#include <functional>
#include <string_view>

namespace stitchplan {

/// Writes a plan as an SVG picture in its true size: the hoop's fabric, the outlines as
/// chalk on it, the stitches as thread with their needle points, and a scale bar.
///
/// `write` gets the picture piece by piece, `progress` the number of stitches drawn.
void drawPicture(const Plan& plan, const std::function<void(std::string_view)>& write,
                 const std::function<void(int)>& progress);

} // namespace stitchplan
