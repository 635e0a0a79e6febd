#pragma once

#include <vector>

/// The process-wide locks of the library.
enum Locks : unsigned { noLock = 0, refCountLock = 1, sortLock = 2, scannerLock = 4 };

/// A kind of work: an operation that threads do over and over, each checking its own results.
struct Work {
    const char* name;
    unsigned locks;              ///< those that each operation waits for
    unsigned othersLocks;        ///< those that who holds one of them may wait for
    bool (*perform)(unsigned n); ///< false if a result is wrong; `n` varies the input
    bool (*isSettled)();         ///< what must hold once all threads are done; may be null
};

const std::vector<Work>& works();
