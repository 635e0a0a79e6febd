#pragma once

#include "host/platform.h"

#include <string>
#include <string_view>

namespace host {

/// A file that appears under its path whole or not at all.
///
/// Members throw std::system_error.
class NewFile {
public:
    /// Begins to make the file `path`; what stands there stays until commit().
    explicit NewFile(const std::string& path);

    /// Discards what was not committed.
    ~NewFile();

    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    /// Adds bytes, which wait in a buffer.
    void write(std::string_view bytes);

    /// Writes what waits.
    void flush();

    /// Puts the file in its place. The last call.
    void commit();

private:
    platform::Replacement made_;
    std::string waiting_;
    bool isOpen_ = true;
};

} // namespace host
