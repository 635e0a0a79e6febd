#pragma once

/// The files that programs are called with, and what is said of them. A "-" to read from is the
/// standard input.

#include <stdexcept>
#include <string>
#include <system_error>

namespace host {

/// A path as messages show it.
std::string shownPath(const std::string& path);

/// What the user calls the file to read: its path, or "standard input".
std::string inputName(const std::string& path);

/// The descriptor of the file, opened for reading. Throws std::system_error.
int openInput(const std::string& path);

/// The messages for the user, to throw.
std::runtime_error cannotRead(const std::string& path, const std::system_error& error);
std::runtime_error cannotWrite(const std::string& path, const std::system_error& error);

} // namespace host
