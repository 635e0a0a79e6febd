#pragma once

#include <string>
#include <string_view>

namespace host {

/// The standard output, in whole lines.
///
/// What is written at once is whole lines of no more than 4096 bytes, which a pipe
/// takes all or none: an interrupted run leaves no broken line behind.
class Output {
public:
    /// Adds lines, which end with a line feed. Throws std::runtime_error with a
    /// message for the user when they cannot be written, as flush() does.
    void add(std::string_view lines);

    void flush();

private:
    std::string waiting_;
};

} // namespace host
