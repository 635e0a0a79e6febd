#include <zarnex/platform/platform.h>

#include <new>
#include <pthread.h>

namespace zarnex::platform {

namespace {

static_assert(sizeof(pthread_mutex_t) <= sizeof(PlatformLock));
static_assert(alignof(pthread_mutex_t) <= alignof(PlatformLock));

pthread_mutex_t* mutexIn(PlatformLock& lock) {
    return std::launder(reinterpret_cast<pthread_mutex_t*>(lock.bytes));
}

} // namespace

void createLock(PlatformLock& lock) {
    pthread_mutexattr_t recursive;
    pthread_mutexattr_init(&recursive);
    pthread_mutexattr_settype(&recursive, PTHREAD_MUTEX_RECURSIVE);
    pthread_mutex_init(new (lock.bytes) pthread_mutex_t, &recursive);
    pthread_mutexattr_destroy(&recursive);
}

void destroyLock(PlatformLock& lock) {
    pthread_mutex_destroy(mutexIn(lock));
}

void takeLock(PlatformLock& lock) {
    pthread_mutex_lock(mutexIn(lock));
}

void releaseLock(PlatformLock& lock) {
    pthread_mutex_unlock(mutexIn(lock));
}

} // namespace zarnex::platform
