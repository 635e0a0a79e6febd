#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace stitchplan {

/// What the program was called with.
struct Arguments {
    enum class Task { plan, help, version };

    Task task = Task::plan;
    std::string motif;   ///< a path; "-" is the standard input
    std::string picture; ///< a path; empty for none
};

/// A call that the program does not take; its text says why.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads the arguments, without the program's name, or throws UsageError.
Arguments parseArguments(const std::vector<std::string>& given);

extern const char* const helpText;

} // namespace stitchplan
