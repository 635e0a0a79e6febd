#pragma once

/// The process-wide locks.
///
/// Each is made at its first use and never destroyed, so that the static
/// constructors, static destructors and exit handlers of hosts can use what it
/// guards. No code path holds two of them at once.

class MiniLock;

namespace zarnex::detail {

MiniLock& refCountLock(); ///< lockRefCount() and unlockRefCount()
MiniLock& scannerLock();  ///< each ZUnitScanner, all its life
MiniLock& sortLock();     ///< QSort::sort()

} // namespace zarnex::detail
