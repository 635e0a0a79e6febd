#include "host/platform.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <system_error>

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>
#include <sys/stat.h>

namespace host::platform {

namespace {

/// Lets a console show UTF-8 until the program ends.
class ConsoleCodePage {
public:
    ConsoleCodePage() : before_(GetConsoleOutputCP()) {
        SetConsoleOutputCP(CP_UTF8);
    }
    ~ConsoleCodePage() {
        SetConsoleOutputCP(before_);
    }

private:
    UINT before_;
};

[[noreturn]] void fail() {
    throw std::system_error(errno, std::generic_category());
}

std::string narrow(const wchar_t* text) {
    const int room = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string out(static_cast<std::size_t>(room > 0 ? room : 1), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, out.data(), room, nullptr, nullptr);
    out.pop_back(); // the terminator
    return out;
}

std::wstring widen(const std::string& text) {
    const int room = MultiByteToWideChar(CP_UTF8, 0, text.c_str(), -1, nullptr, 0);
    std::wstring out(static_cast<std::size_t>(room > 0 ? room : 1), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.c_str(), -1, out.data(), room);
    out.pop_back();
    return out;
}

HANDLE handleOf(int file) {
    return reinterpret_cast<HANDLE>(_get_osfhandle(file));
}

bool isConsole(HANDLE file) {
    DWORD mode = 0;
    return GetConsoleMode(file, &mode) != 0;
}

// What is typed into a console comes in its code page to those who read bytes, so it is taken
// wide. A line that begins with Ctrl-Z is the end.
std::size_t readConsole(HANDLE console, char* bytes, std::size_t room) {
    wchar_t typed[1024];
    const auto most = static_cast<DWORD>((std::min)(std::size(typed), room / 3)); // as UTF-8
    DWORD count = 0;
    if (!ReadConsoleW(console, typed, most, &count, nullptr)) {
        errno = EIO;
        fail();
    }
    if (count == 0 || typed[0] == 0x1A)
        return 0;
    return static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, typed, static_cast<int>(count),
                                                        bytes, static_cast<int>(room), nullptr,
                                                        nullptr));
}

// Whether the path names a device such as NUL or CON.
bool isDevice(const std::string& path) {
    const HANDLE file = CreateFileW(widen(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    const bool device = GetFileType(file) != FILE_TYPE_DISK;
    CloseHandle(file);
    return device;
}

} // namespace

void prepareStreams() {
    for (const int file : {standardInput, standardOutput, standardError})
        _setmode(file, _O_BINARY);
    static const ConsoleCodePage utf8;
}

std::vector<std::string> arguments(int, char**) {
    std::vector<std::string> texts;
    int count = 0;
    wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; wide != nullptr && i < count; ++i)
        texts.push_back(narrow(wide[i]));
    LocalFree(wide);
    return texts;
}

int openFile(const std::string& path) {
    const int file = _wopen(widen(path).c_str(), _O_RDONLY | _O_BINARY);
    if (file < 0)
        fail();
    return file;
}

std::size_t readSome(int file, char* bytes, std::size_t room) {
    if (const HANDLE handle = handleOf(file); isConsole(handle))
        return readConsole(handle, bytes, room);
    const int count = _read(file, bytes, static_cast<unsigned>(room));
    if (count < 0)
        fail();
    return static_cast<std::size_t>(count);
}

void writeAll(int file, const char* bytes, std::size_t count) {
    while (count > 0) {
        const int written = _write(file, bytes, static_cast<unsigned>(count));
        if (written < 0)
            fail();
        bytes += written;
        count -= static_cast<std::size_t>(written);
    }
}

Replacement createReplacement(const std::string& path) {
    Replacement made;
    made.target = path;
    const DWORD attributes = GetFileAttributesW(widen(path).c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        errno = EACCES; // what is protected shall stay
        fail();
    }
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        errno = EISDIR;
        fail();
    }
    if (isDevice(path)) {
        made.file = _wopen(widen(path).c_str(), _O_WRONLY | _O_BINARY);
    } else {
        made.name = path + '.' + std::to_string(GetCurrentProcessId());
        made.file = _wopen(widen(made.name).c_str(), _O_WRONLY | _O_BINARY | _O_CREAT | _O_EXCL,
                           _S_IREAD | _S_IWRITE);
    }
    if (made.file < 0)
        fail();
    return made;
}

bool isSameFile(const std::string& a, const std::string& b) {
    BY_HANDLE_FILE_INFORMATION found[2] = {};
    const std::string* const paths[2] = {&a, &b};
    for (int i = 0; i < 2; ++i) {
        const HANDLE file = CreateFileW(widen(*paths[i]).c_str(), 0,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                        nullptr, OPEN_EXISTING, 0, nullptr);
        if (file == INVALID_HANDLE_VALUE)
            return false;
        const bool known = GetFileInformationByHandle(file, &found[i]) != 0;
        CloseHandle(file);
        if (!known)
            return false;
    }
    return found[0].dwVolumeSerialNumber == found[1].dwVolumeSerialNumber &&
           found[0].nFileIndexHigh == found[1].nFileIndexHigh &&
           found[0].nFileIndexLow == found[1].nFileIndexLow;
}

void commit(const Replacement& made) {
    if (_close(made.file) != 0)
        fail();
    if (!made.name.empty() && !MoveFileExW(widen(made.name).c_str(), widen(made.target).c_str(),
                                           MOVEFILE_REPLACE_EXISTING)) {
        _wunlink(widen(made.name).c_str());
        errno = EACCES;
        fail();
    }
}

void discard(const Replacement& made) noexcept {
    _close(made.file);
    if (!made.name.empty())
        _wunlink(widen(made.name).c_str());
}

bool isTerminal(int file) {
    return isConsole(handleOf(file)); // to _isatty() NUL is one, too
}

} // namespace host::platform
