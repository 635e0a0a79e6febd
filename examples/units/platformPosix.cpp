#include "platform.h"

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace units::platform {

namespace {

[[noreturn]] void fail() {
    throw std::system_error(errno, std::generic_category());
}

} // namespace

void prepareStreams() {}

std::vector<std::string> arguments(int argc, char** argv) {
    return std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc);
}

int openFile(const std::string& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        fail();
    return file;
}

std::size_t readSome(int file, char* bytes, std::size_t room) {
    for (;;) {
        const ssize_t count = read(file, bytes, room);
        if (count >= 0)
            return static_cast<std::size_t>(count);
        if (errno != EINTR)
            fail();
    }
}

void writeAll(int file, const char* bytes, std::size_t count) {
    while (count > 0) {
        const ssize_t written = write(file, bytes, count);
        if (written >= 0) {
            bytes += written;
            count -= static_cast<std::size_t>(written);
        } else if (errno != EINTR) {
            fail();
        }
    }
}

bool isTerminal(int file) {
    return isatty(file) != 0;
}

} // namespace units::platform
