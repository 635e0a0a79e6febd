#pragma once

#include <zarnex/bigint/internal/limb.h>

namespace zarnex::detail {

/// out = a mod divisor, in divisorCount limbs. `divisor` has at least one limb and its top
/// limb is not 0. Takes (aCount - divisorCount + 1) * divisorCount steps.
///
/// `out` may be `a`. It needs room for max(aCount, divisorCount) + 1 limbs, for a divisor of
/// one limb only for that.
void remainder(Limb* out, const Limb* a, Size aCount, const Limb* divisor, Size divisorCount);

} // namespace zarnex::detail
