#pragma once

/// The process-wide unit labels.
///
/// Each is made at its first use and never destroyed, so that hosts can render in
/// static constructors, static destructors and exit handlers. Unguarded: labels
/// are set before other threads render.

#include <zarnex/strings/ZString.h>

namespace zarnex::detail {

ZString& millimeterLabel();       ///< "mm"
ZString& inchLabel();             ///< "in"
ZString& millimeterPerSecLabel(); ///< "mm/s"
ZString& degreeLabel();           ///< U+00B0, the degree sign

} // namespace zarnex::detail
