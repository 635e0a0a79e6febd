#pragma once

/// A quantity's text in the unit of another class.

#include <zarnex/strings/ZString.h>

namespace zarnex::detail {

/// Assigns `source` to a fresh Target and renders that, as a non-const object.
template <class Target, class Source>
ZString textAs(const Source& source) {
    Target target(0.0);
    target = source;
    return target.operator ZString();
}

} // namespace zarnex::detail
