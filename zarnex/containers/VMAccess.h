#pragma once

#include <zarnex/config.h>

#include <iosfwd>

/// A store of bytes in one block of the runtime heap.
///
/// Sizes and offsets are in bytes; nothing checks them against the block. The
/// class has no destructor: unallocate() frees the block. Copies share it, and
/// unallocate() or reallocate() on one leaves the others dangling.
///
///     VMAccess store;
///     store.allocate(64);
///     store.saveBlock(record, 16, 8);
///     store.unallocate();
class ZARNEX_API VMAccess {
public:
    /// No block.
    VMAccess();

    /// The same block, not one of its own.
    /// @{
    VMAccess(const VMAccess& other);
    VMAccess& operator=(const VMAccess& other);
    /// @}

    /// Gets a block of `bytes` bytes, not initialised, without freeing one held
    /// before. Returns 0; ends the process through abort() if there is no room.
    int allocate(unsigned long bytes);

    /// Changes the size of the block and keeps its content. Returns 0.
    ///
    /// Kept as is: the process ends through abort() when there was no block
    /// before the call; when there is no room for the new one, the object is left
    /// without a block and the process goes on. allocate() does the reverse.
    int reallocate(unsigned long bytes);

    /// Frees the block, if any. Returns 0.
    ///
    /// Kept as is: the pointer is not reset, so a second call frees twice and
    /// allocate() must come before any other use.
    int unallocate();

    /// Copies `bytes` bytes, one after the other in ascending order, from the
    /// block at `offset` to `dst`. Returns 0. Copies nothing without a block, for
    /// a null `dst` and for `bytes` below 1.
    int getBlock(void* dst, long offset, long bytes);

    /// The other direction: from `src` into the block at `offset`.
    int saveBlock(void* src, long offset, long bytes);

    /// Hooks for diagnostics; both do nothing.
    /// @{
    void printHeapWalk(std::ostream& out);
    void printMemorySummary(std::ostream& out);
    /// @}

    /// Ends the process for a fatal failure: setExiting(), then exit().
    ///
    /// Kept as is: with status 0 and no output, although the other fatal
    /// conditions give status 1. `code` is only put into a text in memory.
    [[noreturn]] void abort(int code);

protected:
    unsigned char* block_ = nullptr; ///< null before allocate()
};
