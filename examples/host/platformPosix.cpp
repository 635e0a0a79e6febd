#include "host/platform.h"

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace host::platform {

namespace {

[[noreturn]] void fail() {
    throw std::system_error(errno, std::generic_category());
}

// The file that a signal shall remove, for what is not committed must not stay.
char uncommitted[PATH_MAX];

void removeAndEnd(int signal) {
    unlink(uncommitted);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

// Lets the signals that end programs remove `name` first; an empty name removes nothing.
void removeWhenEnded(const std::string& name) {
    const bool fits = name.size() < sizeof uncommitted;
    uncommitted[fits ? name.copy(uncommitted, sizeof uncommitted - 1) : 0] = '\0';
    for (const int signal : {SIGHUP, SIGINT, SIGQUIT, SIGTERM})
        if (const auto before = std::signal(signal, removeAndEnd); before == SIG_IGN)
            std::signal(signal, SIG_IGN);
}

mode_t ordinaryMode() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

} // namespace

// A stream that the caller has closed would otherwise be the first file that the program opens;
// what holds its place fails as a closed one does.
void prepareStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(stream, F_GETFD) < 0)
            static_cast<void>(open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY));
}

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

Replacement createReplacement(const std::string& path) {
    Replacement made;
    struct stat found {};
    mode_t mode = ordinaryMode();
    made.target = path;
    std::signal(SIGXFSZ, SIG_IGN); // a file that grows too large is a failure to write
    if (lstat(path.c_str(), &found) == 0 && S_ISLNK(found.st_mode) &&
        access(path.c_str(), F_OK) != 0) // a link to nothing shall stay one, too
        fail();
    if (stat(path.c_str(), &found) == 0) {
        if (!S_ISREG(found.st_mode)) {
            made.file = open(path.c_str(), O_WRONLY | O_CLOEXEC);
            if (made.file < 0)
                fail();
            return made;
        }
        mode = found.st_mode & 07777;
        if (access(path.c_str(), W_OK) != 0) // what is protected shall stay
            fail();
        if (char* const real = realpath(path.c_str(), nullptr)) { // a link shall stay one
            made.target = real;
            std::free(real);
        }
    }
    made.name = made.target + ".XXXXXX";
    made.file = mkostemp(made.name.data(), O_CLOEXEC);
    if (made.file < 0)
        fail();
    removeWhenEnded(made.name);
    fchmod(made.file, mode);
    return made;
}

bool isSameFile(const std::string& a, const std::string& b) {
    struct stat one {};
    struct stat other {};
    return stat(a.c_str(), &one) == 0 && stat(b.c_str(), &other) == 0 &&
           one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

void commit(const Replacement& made) {
    const bool closed = close(made.file) == 0;
    if (!made.name.empty() &&
        !(closed && std::rename(made.name.c_str(), made.target.c_str()) == 0)) {
        const int problem = errno;
        unlink(made.name.c_str());
        errno = problem;
        fail();
    }
    removeWhenEnded({});
}

void discard(const Replacement& made) noexcept {
    close(made.file);
    if (!made.name.empty())
        unlink(made.name.c_str());
    removeWhenEnded({});
}

bool isTerminal(int file) {
    return isatty(file) != 0;
}

} // namespace host::platform
