#include <zarnex/runtime/internal/locks.h>

#include <zarnex/runtime/MiniLock.h>
#include <zarnex/runtime/internal/Immortal.h>

namespace zarnex::detail {

MiniLock& refCountLock() {
    static const Immortal<MiniLock> lock;
    return *lock;
}

MiniLock& scannerLock() {
    static const Immortal<MiniLock> lock;
    return *lock;
}

MiniLock& sortLock() {
    static const Immortal<MiniLock> lock;
    return *lock;
}

} // namespace zarnex::detail
