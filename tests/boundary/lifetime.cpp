/// Uses the library before main() and after exit() began. The first object to be made is the
/// last to be destroyed, and ends the process with 0 if all has been well until then.

#include <zarnex/foundation.h>

#include <cstdio>
#include <cstdlib>

namespace {

bool works() {
    struct Descending : QSort::Callback {
        int compare(const void* a, const void* b) override {
            const double left = ZMillimeter(ZString(*static_cast<const char* const*>(a)));
            const double right = ZMillimeter(ZString(*static_cast<const char* const*>(b)));
            return (left < right) - (left > right);
        }
    } descending;
    const char* texts[] = {"1 mm", "1 in", "1 cm"};
    QSort::sort(texts, 3, sizeof *texts, descending);

    ZRefCount count(nullptr);
    lockRefCount();
    ++count;
    unlockRefCount();

    int thrown = 0;
    try {
        throw ZarnexException("late", 3, nullptr);
    } catch (const ZarnexException& caught) {
        thrown = static_cast<int>(caught.errCode());
    }

    ZString rendered;
    ZList<ZString> empty;
    renderZUnitQuantity(4, 2.0, rendered, 0);
    const ZGUIDWrapper made;
    return texts[0][2] == 'i' && texts[2][2] == 'm' && count.value() == 2 && thrown == 3 &&
           ZString(ZMillimeter(2.5)) == L" 2.5 mm" && ZString(ZDegree(90.0)).length() == 6 &&
           rendered == L"2.00 in" && empty[0].length() == 0 &&
           ZGUIDWrapper(&made.getString()) == made && zrnrandom() < 1.0f &&
           strToUtf8(mbsToStr(strToMbs(L"\u00E9", 1252), 1252)).length() == 2 &&
           a_exp_b_mod_c(SigUInt(2ULL), SigUInt(10ULL), SigUInt(1001ULL)) == SigUInt(23ULL);
}

int stages = 0;
bool failed = false;

void pass(const char* stage) {
    if (works()) {
        ++stages;
    } else {
        failed = true;
        std::fprintf(stderr, "Not well %s\n", stage);
    }
}

struct First {
    First() {
        pass("in a static constructor");
    }
    ~First() {
        pass("in a static destructor");
        std::printf("%d stages\n", stages);
        std::fflush(nullptr);
        std::_Exit(!failed && stages == 6 ? 0 : 1);
    }
};

struct OfThread {
    ~OfThread() {
        pass("in the destructor of an object of a thread");
    }
};

// Made before all others of the program.
__attribute__((init_priority(101))) First first;

// Held by static objects of the host.
const ZMillimeter inch(ZString("1 in"));
const ZString label(ZString(inch) + L" wide");
struct Last {
    ~Last() {
        if (label == L"25.4 mm wide")
            pass("with static quantities of the host");
    }
} last;

} // namespace

int main() {
    thread_local OfThread ofThread;
    (void)ofThread;
    std::atexit([] { pass("in an exit handler"); });
    pass("in main()");
    return 2; // First decides
}
