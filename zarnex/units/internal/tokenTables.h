#pragma once

/// The tables by which all readers of typed quantities cut tokens.

#include <zarnex/units/internal/automaton.h>

#include <array>
#include <cstdint>

namespace zarnex::detail {

/// The tables of tokenRules.
extern const Automaton tokenAutomaton;

/// The class of an ASCII character, where a capital counts as its small letter.
extern const std::array<std::uint8_t, 128> typedClasses;

} // namespace zarnex::detail
