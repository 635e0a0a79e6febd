#pragma once

/// The process-wide locks.
///
/// Each is made at its first use and never destroyed, so that the static
/// constructors, static destructors and exit handlers of hosts can use what it
/// guards. The library itself never holds two of them at once; a host's callback of
/// QSort::sort() that takes another does.

class MiniLock;

namespace zarnex::detail {

MiniLock& refCountLock(); ///< lockRefCount() and unlockRefCount()
MiniLock& scannerLock();  ///< each ZUnitScanner, all its life
MiniLock& sortLock();     ///< QSort::sort()

} // namespace zarnex::detail
