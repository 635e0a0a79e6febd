#include <zarnex/containers/QSort.h>

#include <zarnex/runtime/MiniGuard.h>
#include <zarnex/runtime/internal/locks.h>

#include <cstdlib>
#include <exception>
#include <limits>

namespace {

struct Sort {
    QSort::Callback* callback;  // null once it has thrown
    std::exception_ptr failure; // what it threw
};

// The sort in progress, guarded by the sort lock; null between sorts.
Sort* current = nullptr;

extern "C" int compareElements(const void* a, const void* b) {
    // An exception must not cross the C library: it waits until the sort has run out, with
    // all elements equal.
    QSort::Callback* const callback = current->callback;
    if (callback == nullptr)
        return 0;
    try {
        return callback->compare(a, b);
    } catch (...) {
        current->callback = nullptr;
        current->failure = std::current_exception();
        return 0;
    }
}

} // namespace

QSort::Callback::~Callback() = default;

void QSort::sort(void* base, std::size_t count, std::size_t size, Callback& cb) {
    if (base == nullptr || count == 0 || size == 0 ||
        count > (std::numeric_limits<std::size_t>::max)() / size)
        return;

    Sort run{&cb, nullptr};
    {
        const MiniGuard guard(zarnex::detail::sortLock());
        Sort* const outer = current; // of the callback that called us, if any
        current = &run;
        std::qsort(base, count, size, compareElements);
        current = outer;
    }
    if (run.failure != nullptr)
        std::rethrow_exception(run.failure);
}
