#include "host/Messages.h"

#include "host/platform.h"
#include "host/utf8.h"

#include <string>
#include <system_error>
#include <utility>

namespace host {

namespace {

void write(const std::string& text) {
    try {
        platform::writeAll(platform::standardError, text.data(), text.size());
    } catch (const std::system_error&) {
    }
}

} // namespace

Messages::Messages(std::string program, bool writesAllTheWhile)
    : program_(std::move(program)), writesAllTheWhile_(writesAllTheWhile) {}

void Messages::say(std::string_view text) {
    clearProgress();
    write(program_ + ": " + std::string(text) + '\n');
}

void Messages::cannotRead(std::string_view place, std::string_view text, std::string_view problem) {
    say(std::string(place) + "cannot read " + quoted(text) + ": " + std::string(problem));
}

void Messages::progress(long long done, std::string_view what) {
    constexpr long long betweenLooks = 1024;
    if (done < look_ && done >= look_ - betweenLooks)
        return;
    look_ = done + betweenLooks;
    if (Clock::now() < next_)
        return;
    next_ = Clock::now() + std::chrono::milliseconds(200);
    static const bool wanted =
        platform::isTerminal(platform::standardError) &&
        !(writesAllTheWhile_ && platform::isTerminal(platform::standardOutput));
    if (wanted) {
        clearProgress();
        write(program_ + ": " + std::to_string(done) + ' ' + std::string(what));
        shown_ = true;
    }
}

void Messages::clearProgress() {
    if (shown_)
        write('\r' + std::string(60, ' ') + '\r');
    shown_ = false;
}

} // namespace host
