#pragma once

#include <chrono>
#include <string_view>

namespace units {

/// What the program says on the standard error stream, all in one voice:
/// "zarnex-units: lengths.txt:12: cannot read "wide": no number".
///
/// Failures to write are ignored: there is nobody to tell.
class Messages {
public:
    /// Says `text` behind the program's name.
    void say(std::string_view text);

    /// Says that `text`, found at `place` ("lengths.txt:12: ", or empty for an
    /// argument), is no quantity.
    void cannotRead(std::string_view place, std::string_view text, std::string_view problem);

    /// Shows how far a long run has come, on a line of its own that the next message
    /// or clearProgress() removes. Only on a terminal, from the second second on, and
    /// not while the output goes to a terminal itself. Cheap enough for every line.
    void progress(long long lines);
    void clearProgress();

private:
    using Clock = std::chrono::steady_clock;

    Clock::time_point next_ = Clock::now() + std::chrono::seconds(1);
    bool shown_ = false;
};

} // namespace units
