#pragma once

#include <zarnex/units/unitIds.h>

#include <string>
#include <vector>

namespace units {

/// What the program was called with.
struct Arguments {
    enum class Task { list, check, table, prompt, help, version };

    Task task = Task::list;
    std::vector<std::string> texts;        ///< to list or check
    std::string file;                      ///< to make a table of; "-" is the standard input
    int bareUnit = zarnex::unitMillimeter; ///< what a bare number counts in
    bool bareUnitGiven = false;
    int to = zarnex::unitNone; ///< the one unit to list; unitNone for all
};

/// Reads the arguments, without the program's name, or throws host::UsageError.
///
/// Options may stand anywhere in front of "--"; "-2 mm" is a quantity. A last text that is
/// the word of a unit is the unit to list. Without texts, quantities are asked for.
Arguments parseArguments(const std::vector<std::string>& given);

extern const char* const helpText;

/// What is wrong with a call that lacks a text.
extern const char* const noQuantity;

} // namespace units
