#pragma once

#include "host/Quantity.h"

#include <zarnex/units/unitIds.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace host {

/// Longer texts are refused: nobody types them.
constexpr std::size_t mostTextBytes = 1000;

/// What the library makes of one typed text.
///
/// A text is refused with a `problem` before it reaches the library when it
/// - is longer than `mostTextBytes`, holds a NUL or is not UTF-8;
/// - holds 100 digits or blanks in a row, counting as digits "." and a sign in
///   front and as blanks tabs and newlines: ZUnitScanner ends the process at a
///   token of 100 characters, and no shorter run makes one.
/// and after it has been read when
/// - no number begins it, or a sign without digits, to which the scanner gives the
///   number of the text before;
/// - a character beyond ASCII stands in the number or the unit: the scanner looks at
///   the low 8 bits, and a 5 with U+2033, the double prime, would be 53;
/// - the quantity's class finds it invalid, for text behind the unit.
///
/// "mm/s" and "cm/s" are speeds here, as the library displays them, although to the
/// scanner they are lengths and a "/s" that it drops.
struct Reading {
    /// Reads `text`; a number without a unit counts in `bareUnit`.
    Reading(std::string_view text, int bareUnit);

    std::string problem;    ///< why the text is no quantity; empty when it is one
    std::string numberText; ///< the number as it stands in the text; may be empty
    std::string unitText;   ///< the unit likewise; empty for a bare number
    std::string ignored;    ///< the rest without white space around, a blank between pieces
    double number = 0.0;
    int unit = zarnex::unitNone; ///< of the number; the bare unit if the text names none
    Quantity quantity;           ///< of use without a problem
};

} // namespace host
