#pragma once

#include "stitchplan/plan.h"

#include <string>

namespace stitchplan {

/// What the program prints of a plan: a line a value, each ending with a line feed.
std::string summaryOf(const Plan& plan);

} // namespace stitchplan
