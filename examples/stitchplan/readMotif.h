#pragma once

#include "stitchplan/Motif.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace stitchplan {

/// Larger files are refused: nobody writes such a motif.
inline constexpr std::size_t mostMotifBytes = std::size_t(4) << 20;

/// The lines of a motif, without line ends and a byte order mark. They refer into `text`.
std::vector<std::string_view> linesOf(std::string_view text);

/// Reads the statements of a motif, one a line; motifHelpText lists them.
///
/// Throws MotifError for the first line that is none, and for what is missing.
Motif readMotif(const std::vector<std::string_view>& lines);

} // namespace stitchplan
