#pragma once

#include "stitchplan/Motif.h"
#include "stitchplan/StitchPath.h"

namespace stitchplan {

/// Sews once round an outline, from its first corner back to it, on a thread of its own.
///
/// The needle goes into every sharp corner; between two of them the stitches are equally
/// long along the outline and no longer than `stitchLength`, but shorter where the outline
/// would bend away from them by more than 0.1 mm.
void sewAlong(const Outline& outline, double stitchLength, StitchPath& path);

} // namespace stitchplan
