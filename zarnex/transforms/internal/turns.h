#pragma once

/// Rotations that are given by directions, as Z2DTrans and Z2DRotate take them.

#include <zarnex/geometry/DVector.h>
#include <zarnex/geometry/formulas.h>
#include <zarnex/geometry/tolerance.h>

#include <cmath>
#include <optional>

namespace zarnex::detail {

/// Cosine and sine of an angle, in x and y.
using Turn = Pair;

/// The turn by the angle of `u` less that of `v`; nothing where one has no direction.
inline std::optional<Turn> turnBetween(const DVector& u, const DVector& v) {
    const double lengths = std::sqrt((u * u) * (v * v));
    if (IS_ZERO(lengths))
        return std::nullopt;
    return Turn{(u * v) / lengths, v.cross(u) / lengths};
}

} // namespace zarnex::detail
