#include "host/paths.h"

#include "host/platform.h"
#include "host/utf8.h"

namespace host {

namespace {

constexpr int mostShown = 200; // characters

bool isStandardInput(const std::string& path) {
    return path == "-";
}

} // namespace

std::string shownPath(const std::string& path) {
    return shown(path, mostShown);
}

std::string inputName(const std::string& path) {
    return isStandardInput(path) ? "standard input" : shownPath(path);
}

int openInput(const std::string& path) {
    return isStandardInput(path) ? platform::standardInput : platform::openFile(path);
}

std::runtime_error cannotRead(const std::string& path, const std::system_error& error) {
    return std::runtime_error("cannot read " + inputName(path) + ": " + error.code().message());
}

std::runtime_error cannotWrite(const std::string& path, const std::system_error& error) {
    return std::runtime_error("cannot write " + shownPath(path) + ": " + error.code().message());
}

} // namespace host
