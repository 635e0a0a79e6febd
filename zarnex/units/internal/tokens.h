#pragma once

/// What all readers of typed quantities share: the automaton and the latest number.

#include <zarnex/units/internal/automaton.h>

namespace zarnex::detail {

/// The tables of tokenRules.
extern const Automaton tokenAutomaton;

/// The class of an ASCII character, where a capital counts as its small letter.
extern const std::array<std::uint8_t, 128> typedClasses;

/// The number of the latest number token of the process; ZUnitScanner's lock guards it.
extern double scannedNumber;

/// Sets scannedNumber from the text of a number token; a lone sign leaves it alone.
void readNumber(const char* text, const char* end);

} // namespace zarnex::detail
