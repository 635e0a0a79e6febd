#include "Messages.h"

#include "platform.h"
#include "utf8.h"

#include <string>
#include <system_error>

namespace units {

namespace {

constexpr int standardOutput = 1;
constexpr int standardError = 2;

void write(const std::string& text) {
    try {
        platform::writeAll(standardError, text.data(), text.size());
    } catch (const std::system_error&) {
    }
}

} // namespace

void Messages::say(std::string_view text) {
    clearProgress();
    write("zarnex-units: " + std::string(text) + '\n');
}

void Messages::cannotRead(std::string_view place, std::string_view text, std::string_view problem) {
    say(std::string(place) + "cannot read " + quoted(text) + ": " + std::string(problem));
}

void Messages::progress(long long lines) {
    constexpr long long linesBetweenLooks = 1024;
    if (lines % linesBetweenLooks != 0 || Clock::now() < next_)
        return;
    next_ = Clock::now() + std::chrono::milliseconds(200);
    static const bool wanted =
        platform::isTerminal(standardError) && !platform::isTerminal(standardOutput);
    if (wanted) {
        write("\rzarnex-units: " + std::to_string(lines) + " lines");
        shown_ = true;
    }
}

void Messages::clearProgress() {
    if (shown_)
        write('\r' + std::string(60, ' ') + '\r');
    shown_ = false;
}

} // namespace units
