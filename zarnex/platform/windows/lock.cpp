#include <zarnex/platform/platform.h>

#include <new>
#include <windows.h>

namespace zarnex::platform {

namespace {

static_assert(sizeof(CRITICAL_SECTION) == sizeof(PlatformLock));
static_assert(alignof(CRITICAL_SECTION) <= alignof(PlatformLock));

CRITICAL_SECTION* sectionIn(PlatformLock& lock) {
    return std::launder(reinterpret_cast<CRITICAL_SECTION*>(lock.bytes));
}

} // namespace

void createLock(PlatformLock& lock) {
    InitializeCriticalSection(new (lock.bytes) CRITICAL_SECTION);
}

void destroyLock(PlatformLock& lock) {
    DeleteCriticalSection(sectionIn(lock));
}

void takeLock(PlatformLock& lock) {
    EnterCriticalSection(sectionIn(lock));
}

void releaseLock(PlatformLock& lock) {
    LeaveCriticalSection(sectionIn(lock));
}

} // namespace zarnex::platform
