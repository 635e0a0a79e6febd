#include <zarnex/runtime/internal/locks.h>

#include <zarnex/runtime/MiniLock.h>

namespace zarnex::detail {

MiniLock& refCountLock() {
    static MiniLock& lock = *new MiniLock;
    return lock;
}

MiniLock& scannerLock() {
    static MiniLock& lock = *new MiniLock;
    return lock;
}

MiniLock& sortLock() {
    static MiniLock& lock = *new MiniLock;
    return lock;
}

} // namespace zarnex::detail
