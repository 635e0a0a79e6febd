#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace units {

/// Reads a file line by line, in chunks and in bounded memory.
///
/// Lines end with a line feed, with or without a carriage return in front; the
/// last one may end with the file. A byte order mark at the start is dropped.
class LineReader {
public:
    /// Of a line longer than `mostBytes` the end may be missing, but more than
    /// `mostBytes` are left of it. `beforeWaiting` is called whenever the lines at
    /// hand are used up.
    LineReader(int file, std::size_t mostBytes, std::function<void()> beforeWaiting);

    /// Sets `line`, which lives until the next call, and returns true; false at the
    /// end. Throws std::system_error when the file cannot be read.
    bool next(std::string_view& line);

    /// The number of the line that next() has set, from 1.
    long long lineNumber() const {
        return lineNumber_;
    }

private:
    bool fill();

    int file_;
    std::size_t mostKept_;
    std::function<void()> beforeWaiting_;
    std::vector<char> chunk_;
    std::string_view rest_; ///< what of the chunk is still to be read
    std::string broken_;    ///< a line that stands in more than one chunk
    bool atEnd_ = false;
    long long lineNumber_ = 0;
};

} // namespace units
