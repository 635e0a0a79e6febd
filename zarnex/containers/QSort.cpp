#include <zarnex/containers/QSort.h>

#include <zarnex/runtime/MiniGuard.h>
#include <zarnex/runtime/internal/locks.h>

#include <cstdlib>
#include <exception>
#include <limits>

namespace {

struct Sort {
    QSort::Callback* callback;   // null once it has thrown
    std::exception_ptr* failure; // what it threw
};

// The sort in progress, guarded by the sort lock; nulls between sorts.
Sort current{};

// A function of its own: inside compareElements() it would cost every comparison a stack guard.
[[gnu::noinline]] void keepFailure() {
    current.callback = nullptr;
    *current.failure = std::current_exception();
}

extern "C" int compareElements(const void* a, const void* b) {
    // An exception must not cross the C library: it waits until the sort has run out, with
    // all elements equal.
    if (ZARNEX_UNLIKELY(current.callback == nullptr))
        return 0;
    try {
        return current.callback->compare(a, b);
    } catch (...) {
        keepFailure();
        return 0;
    }
}

} // namespace

QSort::Callback::~Callback() = default;

void QSort::sort(void* base, std::size_t count, std::size_t size, Callback& cb) {
    if (base == nullptr || count == 0 || size == 0 ||
        count > (std::numeric_limits<std::size_t>::max)() / size)
        return;

    std::exception_ptr failure;
    {
        const MiniGuard guard(zarnex::detail::sortLock());
        const Sort outer = current; // of the callback that called us, if any
        current = {&cb, &failure};
        std::qsort(base, count, size, compareElements);
        current = outer;
    }
    if (failure != nullptr)
        std::rethrow_exception(failure);
}
