#pragma once

#include <string>
#include <vector>

namespace stitchplan {

/// What the program was called with.
struct Arguments {
    enum class Task { plan, help, motifHelp, version };

    Task task = Task::plan;
    std::string motif;   ///< a path; "-" is the standard input
    std::string picture; ///< a path; empty for none
};

/// Reads the arguments, without the program's name, or throws host::UsageError.
Arguments parseArguments(const std::vector<std::string>& given);

extern const char* const helpText;

/// How a motif is written.
extern const char* const motifHelpText;

} // namespace stitchplan
