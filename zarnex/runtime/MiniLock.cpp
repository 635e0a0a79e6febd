#include <zarnex/runtime/MiniLock.h>

#include <zarnex/platform/platform.h>

MiniLock::MiniLock() {
    zarnex::platform::createLock(section_);
}

MiniLock::~MiniLock() {
    zarnex::platform::destroyLock(section_);
}

MiniLock::MiniLock(const MiniLock&) = default;
MiniLock& MiniLock::operator=(const MiniLock&) = default;

void MiniLock::lock() {
    zarnex::platform::takeLock(section_);
}

void MiniLock::unlock() {
    zarnex::platform::releaseLock(section_);
}
