#pragma once

/// The units by the names that the program prints and takes.

#include <string_view>

namespace host {

/// The name of a unit (zarnex::UnitId): "mm", "cm", "in", "pt", "spi",
/// "per sq cm", "mm/s" or "cm/s".
const char* unitName(int unit);

/// The unit that `text` is the word of, or zarnex::unitNone.
///
/// Every word that may stand behind a number will do, such as "Inches", and
/// besides them "mm/s" and "cm/s".
int unitOfWord(std::string_view text);

} // namespace host
