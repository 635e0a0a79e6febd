#pragma once

/// What the programs need of their platform. Files are descriptors, paths and
/// arguments UTF-8. A failure throws std::system_error.

#include <cstddef>
#include <string>
#include <vector>

namespace host::platform {

/// The standard streams, as files.
inline constexpr int standardInput = 0;
inline constexpr int standardOutput = 1;
inline constexpr int standardError = 2;

/// Lets the standard streams carry bytes as they are, and a closed one stay closed whatever is
/// opened. Called once, before all others.
void prepareStreams();

/// The program's arguments without its name.
std::vector<std::string> arguments(int argc, char** argv);

/// Opens a file for reading; the program ends before it would be closed.
int openFile(const std::string& path);

/// Waits for input and reads at most `room` bytes; 0 at the end.
std::size_t readSome(int file, char* bytes, std::size_t room);

void writeAll(int file, const char* bytes, std::size_t count);

/// A file that is being made to take the place of another.
struct Replacement {
    int file = -1;
    std::string name;   ///< of the file while it is made; empty where it is written in place
    std::string target; ///< the name that it shall have
};

/// Creates an empty file in the folder of `path` under a name of its own. What is no
/// file, a device say, cannot be replaced and is opened for writing itself.
Replacement createReplacement(const std::string& path);

/// Whether both paths name one file that there is.
bool isSameFile(const std::string& a, const std::string& b);

/// Closes the file and gives it its name, in place of what had it.
void commit(const Replacement& made);

/// Closes and removes the file.
void discard(const Replacement& made) noexcept;

bool isTerminal(int file);

} // namespace host::platform
