#pragma once

/// What the program needs of its platform. Files are descriptors, paths and
/// arguments UTF-8. A failure throws std::system_error.

#include <cstddef>
#include <string>
#include <vector>

namespace units::platform {

/// Lets the standard streams carry bytes as they are. Called once, before all others.
void prepareStreams();

/// The program's arguments without its name.
std::vector<std::string> arguments(int argc, char** argv);

/// Opens a file for reading; the program ends before it would be closed.
int openFile(const std::string& path);

/// Waits for input and reads at most `room` bytes; 0 at the end.
std::size_t readSome(int file, char* bytes, std::size_t room);

void writeAll(int file, const char* bytes, std::size_t count);

bool isTerminal(int file);

} // namespace units::platform
