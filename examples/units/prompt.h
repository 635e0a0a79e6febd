#pragma once

#include "host/Output.h"

namespace units {

/// Asks for quantities on the terminal, one a line, until the user ends it, and shows each as
/// the program does that gets it as an argument. Of one that is invalid, or of which something
/// is ignored, it says what was seen in it, as --check does.
///
/// A number without a unit counts in `bareUnit`. Throws std::runtime_error with a message for
/// the user when the terminal is gone.
void askForQuantities(int bareUnit, host::Output& output);

} // namespace units
