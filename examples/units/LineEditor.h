#pragma once

#include <memory>
#include <string>

namespace units {

/// Asks for lines on the terminal. There is one at a time.
///
/// Where the program is built with libedit, lines can be edited, and what was typed is kept
/// from run to run: the last 1000 lines, in zarnex/units_history under XDG_STATE_HOME, or under
/// ~/.local/state. Without it the terminal's own line discipline must do. A history that can be
/// neither read nor written does no harm.
class LineEditor {
public:
    /// To ask with `prompt`.
    explicit LineEditor(std::string prompt);
    ~LineEditor();

    LineEditor(const LineEditor&) = delete;
    LineEditor& operator=(const LineEditor&) = delete;

    /// Sets `line` to what the user types, without its end, and returns true; false at the end
    /// of the input. Throws std::system_error when the terminal is gone.
    bool next(std::string& line);

    /// What the user may want to know of it: a line, or nothing.
    static const char* const help;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace units
