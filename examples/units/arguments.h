#pragma once

#include <zarnex/units/unitIds.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace units {

/// What the program was called with.
struct Arguments {
    enum class Task { list, check, table, help, version };

    Task task = Task::list;
    std::vector<std::string> texts;        ///< to list or check
    std::string file;                      ///< to make a table of; "-" is the standard input
    int bareUnit = zarnex::unitMillimeter; ///< what a bare number counts in
    bool bareUnitGiven = false;
    int to = zarnex::unitNone; ///< the one unit to list; unitNone for all
};

/// A call that the program does not take; its text says why.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads the arguments, without the program's name, or throws UsageError.
///
/// Options begin with "--" and may stand anywhere in front of "--"; "-2 mm" is a
/// quantity. A last text that is the word of a unit is the unit to list.
Arguments parseArguments(const std::vector<std::string>& given);

extern const char* const helpText;

} // namespace units
