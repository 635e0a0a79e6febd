#include "tests/threads/works.h"

#include <zarnex/foundation.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <mutex>
#include <set>
#include <string>

namespace {

// ---- Typed quantities

bool readQuantities(unsigned n) {
    static const struct {
        const char* text;
        double millimeters;
        int valid;
    } rows[] = {
        {"2.5 mm", 2.5, 1}, {"10 pt", 1.0, 1}, {"1 in extra", 25.4, 0}, {"nothing", 0.0, 0}};
    const auto& row = rows[n % std::size(rows)];
    const ZMillimeter read{ZString(row.text)};
    return std::abs(double(read) - row.millimeters) < 1e-9 && read.isValid() == row.valid;
}

bool convertQuantities(unsigned n) {
    return std::abs(convertZUnits(2, 25.4 * (n % 50), 4, 0) - n % 50) < 1e-9;
}

bool renderQuantities(unsigned n) {
    ZString expected;
    expected.set(L"%.1f pt", n % 1000 * 10.0);
    return ZMillimeter(n % 1000).getStringWithUnits(5) == expected &&
           ZInch(2.5).getStringWithUnits(2) == L"63.5 mm";
}

// A scanner within a scanner of the same thread, over text that each changes in its own way.
bool scan(unsigned n) {
    ZString text;
    text.set(L"%u mm 3 inches", n % 977);
    ZUnitScanner scanner(text);
    bool right = scanner.yylex() == 1 && scanner.value == n % 977;
    {
        ZUnitScanner inner(L"-1.5 spi");
        right = right && inner.yylex() == 1 && inner.value == -1.5 && inner.yylex() == 6;
    }
    return right && scanner.yylex() == 2 && scanner.yylex() == 1 && scanner.value == 3.0 &&
           scanner.yylex() == 4 && scanner.yylex() == 0;
}

// ---- Locks

// What the reference counts guard: given to whoever counts it down to 0.
struct Shared {
    ZRefCount count{this};
    unsigned payload = 42;
};

Shared* current = nullptr; // guarded by the lock of the counts
std::atomic<long> alive = 0;

void release(Shared* shared) {
    lockRefCount();
    const unsigned left = shared->count.decrement();
    unlockRefCount();
    if (left == 0) {
        --alive;
        delete shared;
    }
}

// Takes a reference to what all threads share and lets go of it again; now and then puts
// something else in its place.
bool countReferences(unsigned n) {
    Shared* fresh = nullptr;
    if (n % 8 == 0) {
        fresh = new Shared;
        ++alive;
    }
    lockRefCount();
    Shared* const held = current;
    if (held != nullptr)
        ++held->count;
    if (fresh != nullptr)
        current = fresh;
    unlockRefCount();
    if (held == nullptr)
        return true;
    const bool right = held->payload == 42 && held->count.pointer() == held;
    if (fresh != nullptr)
        release(held); // the reference of `current`
    release(held);
    return right;
}

bool referencesAreSettled() {
    return alive == 1 && current->count.value() == 1;
}

MiniLock counterLock;
long counter = 0; // guarded by it
std::atomic<long> counted = 0;

bool lockRecursively(unsigned) {
    const MiniGuard outer(counterLock), inner(counterLock);
    return ++counter == ++counted;
}

// ---- Sorts

// Sorts pairs and throws in between.
class InTurn : public QSort::Callback {
public:
    explicit InTurn(unsigned n) : n_(n) {}

    int compare(const void* a, const void* b) override {
        if (++calls_ == 7 && n_ % 8 == 0)
            throw ZarnexException("enough", static_cast<int>(n_), this);
        if (calls_ == 9 && n_ % 3 == 0) {
            InTurn inner(1);
            int pair[] = {2, 1};
            QSort::sort(pair, 2, sizeof(int), inner);
        }
        return *static_cast<const int*>(a) - *static_cast<const int*>(b);
    }

private:
    unsigned n_;
    int calls_ = 0;
};

bool sort(unsigned n) {
    int values[48];
    for (unsigned i = 0; i < std::size(values); ++i)
        values[i] = static_cast<int>((i * 29 + n) % 64);
    InTurn inTurn(n);
    try {
        QSort::sort(values, std::size(values), sizeof(int), inTurn);
    } catch (const ZarnexException& caught) {
        return n % 8 == 0 && caught.sourceObject() == &inTurn;
    }
    return n % 8 != 0 && std::is_sorted(std::begin(values), std::end(values));
}

// The callback takes the scanner lock while its sort holds the sort lock.
class ByLength : public QSort::Callback {
public:
    int compare(const void* a, const void* b) override {
        const double left = ZMillimeter(ZString(*static_cast<const char* const*>(a)));
        const double right = ZMillimeter(ZString(*static_cast<const char* const*>(b)));
        return (left > right) - (left < right);
    }
};

bool sortTexts(unsigned) {
    const char* texts[] = {"1 in", "2 mm", "1 cm", "3 pt"};
    ByLength byLength;
    QSort::sort(texts, std::size(texts), sizeof *texts, byLength);
    return texts[0][0] == '3' && texts[1][0] == '2' && texts[2][2] == 'c' && texts[3][2] == 'i';
}

// ---- What takes no lock of the library

bool fillContainers(unsigned n) {
    ZList<int> list;
    ZXArray<ZString> names;
    const int count = 3 + static_cast<int>(n % 40);
    for (int i = 0; i < count; ++i) {
        list.add(i);
        names.add(ZString() + i);
    }
    const ZList<int> none;
    return list[count - 1] == count - 1 && names[count - 1] == ZString() + (count - 1) &&
           none[0] == 0; // one element for all empty lists
}

bool makeGuids(unsigned n) {
    static std::mutex mutex;
    static std::set<std::wstring> seen;
    const ZGUIDWrapper made;
    const ZGUIDWrapper read(&made.getString());
    if (made.isValid() == 0 || read != made || made.getString().length() != 36)
        return false;
    const std::lock_guard guard(mutex);
    return n % 64 != 0 || seen.size() > 20000 ||
           seen.insert(static_cast<const wchar_t*>(made.getString())).second;
}

bool drawNumbers(unsigned n) {
    const float shared = zrnrandom();
    const ZrnRandomGenerator one(static_cast<long>(n));
    const ZrnRandomGenerator same(static_cast<long>(n));
    ZrnRandomGenerator2 twister(4357);
    return shared > 0 && shared < 1 && one.random() == same.random() &&
           std::abs(twister.random() - 0.8173300) < 1e-6;
}

bool editStrings(unsigned n) {
    ZString text;
    text.set(L"%u \u20AC, %ls", n, L"K\u00F6ln");
    const ZString back = mbsToStr(strToMbs(text, 1252), 1252); // through the system's tables
    const ZString again = utf8ToStr(strToUtf8(text));
    text.toUpper();
    return back == text && again == back && text.hash() == back.hash();
}

bool raisePowers(unsigned n) {
    const SigUInt prime = (SigUInt(1ULL) << 127) - SigUInt(1ULL);
    return a_exp_b_mod_c(SigUInt(n + 2ULL), prime - SigUInt(1ULL), prime) == SigUInt(1ULL);
}

// Constant objects may be read by any number of threads.
bool readConstants(unsigned n) {
    static const ZString text(L"Stitch Length");
    static const ZMillimeter length(25.4);
    static const ZList<double> list{1, 2, 3, 4};
    static const ZGUIDWrapper shape(1);
    static const SigUInt number = SigUInt(3ULL) << 200;
    return text == L"STITCH LENGTH" && text.find(L'L') == 7 && text.length() == 13 &&
           ZString(length) == L"25.4 mm" && ZInch(length) == ZInch(1.0) &&
           list[static_cast<long>(n % 4)] == n % 4 + 1 && ZGUIDWrapper(shape) == shape &&
           (number >> 200) == SigUInt(3ULL) && isExiting() == 0;
}

} // namespace

const std::vector<Work>& works() {
    static const std::vector<Work> all = {
        {"quantities read", scannerLock, noLock, readQuantities, nullptr},
        {"quantities converted", scannerLock, noLock, convertQuantities, nullptr},
        {"scanners within scanners", scannerLock, noLock, scan, nullptr},
        {"sorts", sortLock, scannerLock, sort, nullptr},
        {"sorts by what is read", sortLock | scannerLock, noLock, sortTexts, nullptr},
        {"reference counts", refCountLock, noLock, countReferences, referencesAreSettled},
        {"recursive locks", noLock, noLock, lockRecursively, nullptr},
        {"quantities rendered", noLock, noLock, renderQuantities, nullptr},
        {"lists and arrays", noLock, noLock, fillContainers, nullptr},
        {"GUIDs", noLock, noLock, makeGuids, nullptr},
        {"random numbers", noLock, noLock, drawNumbers, nullptr},
        {"strings and code pages", noLock, noLock, editStrings, nullptr},
        {"powers of large numbers", noLock, noLock, raisePowers, nullptr},
        {"constant objects of all threads", noLock, noLock, readConstants, nullptr},
    };
    return all;
}
