#pragma once

/// What the program prints of its readings. Everything ends with a line feed.

#include "host/Reading.h"

#include <string>
#include <string_view>

namespace units {

/// A line for each unit that a quantity converts to, or for the unit `to` alone:
/// the unit, the display text and the number. Empty if it does not convert to `to`.
std::string listed(const host::Quantity& quantity, int to);

/// A line that says whether `text` is valid and what the scanner saw in it.
std::string checked(std::string_view text, const host::Reading& reading);

/// The names of the table's columns, between tabs.
std::string tableHeader();

/// Appends the row of the table for the text of line `line`. Fields that do not
/// apply are empty, as are the converted ones of an invalid text. Fields are never
/// quoted.
void appendTableRow(std::string& out, long long line, std::string_view text,
                    const host::Reading& reading);

/// A number in the fewest digits that read back the same: "2.5", and with an
/// exponent below 1e-5 and from 1e15 on.
std::string digitsOf(double number);

} // namespace units
