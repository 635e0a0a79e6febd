#pragma once

#include <zarnex/config.h>

#include <iosfwd>

/// The management interface of the float arrays.
///
/// Kept as is: every operation does nothing. ZArray manages its own block.
class ZARNEX_API ZArrayManager {
public:
    explicit ZArrayManager(unsigned long bytes); ///< ignores `bytes`

    /// Nothing to copy: there is no state.
    /// @{
    ZArrayManager(const ZArrayManager& other);
    ZArrayManager& operator=(const ZArrayManager& other);
    /// @}

    /// Releases nothing: there is no state.
    ~ZArrayManager();

    void growHeap(); ///< does nothing

    /// Writes nothing; returns 0.
    int printStatus(std::ostream& out);
};
