#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace host {

/// What the program says on the standard error stream, all in one voice:
/// "zarnex-units: lengths.txt:12: cannot read "wide": no number".
///
/// Failures to write are ignored: there is nobody to tell.
class Messages {
public:
    /// For the program of that name. One that `writesAllTheWhile` to the standard
    /// output shows no progress while that is a terminal.
    Messages(std::string program, bool writesAllTheWhile);

    /// Says `text` behind the program's name.
    void say(std::string_view text);

    /// Says that `text`, found at `place` ("lengths.txt:12: ", or empty for an
    /// argument), is no quantity.
    void cannotRead(std::string_view place, std::string_view text, std::string_view problem);

    /// Shows how far a long run has come, "30000 lines" for `done` 30000 and `what`
    /// "lines", on a line of its own that the next message or clearProgress() removes.
    /// Only on a terminal and from the second second on. Cheap enough for every line.
    /// `done` may begin anew.
    void progress(long long done, std::string_view what);
    void clearProgress();

private:
    using Clock = std::chrono::steady_clock;

    std::string program_;
    bool writesAllTheWhile_;
    long long look_ = 0; ///< the `done` from which on the clock is asked again
    Clock::time_point next_ = Clock::now() + std::chrono::seconds(1);
    bool shown_ = false;
};

} // namespace host
