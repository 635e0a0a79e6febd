#include "tests/boundary/module.h"

#include <zarnex/foundation.h>

#include <cstdio>
#include <cstring>
#include <cwchar>
#include <exception>

/// Not exported: each module has type information and a table of its own for it. Compared by
/// its name, so in no unnamed namespace.
class HostFailure : public ZarnexException {
public:
    HostFailure() : ZarnexException("of the host", 12, nullptr) {}
    const char* what() const noexcept override {
        return "overridden";
    }
    int type() override {
        return 7;
    }
    int extra = 42;
};

namespace {

// ---- Ways through the library

struct Order {
    Raise raise;
    int thrown;
};

Order order; // for callbacks that take no data

void throwDirectly() {
    order.raise(order.thrown);
}

void throwFromSort() {
    struct Thrower : QSort::Callback {
        int compare(const void*, const void*) override {
            order.raise(order.thrown);
            return 0;
        }
    } thrower;
    int values[] = {3, 1, 2};
    QSort::sort(values, 3, sizeof(int), thrower);
}

void throwFromVisit() {
    ZList<int> list{1, 2};
    list.forEach([](int, void*) { order.raise(order.thrown); }, nullptr);
}

void throwFromTest() {
    ZList<ZString> list{ZString("a")};
    list.firstThat(
        [](ZString, void*) {
            order.raise(order.thrown);
            return 0;
        },
        nullptr);
}

void throwFromRing() {
    DLList ring;
    ring.insert(*new DLLNode); // the library deletes it
    ring.apply(
        [](DLLNode&, void*) {
            order.raise(order.thrown);
            return 0;
        },
        nullptr);
}

void throwFromTree() {
    ZGroup inner(1);
    ZGroup outer(1);
    struct Leaf : ZGroupable {
    } leaf;
    inner.addItem(&leaf);
    outer.addItem(&inner);
    outer.traverse([](ZGroupable*) { order.raise(order.thrown); });
}

struct Thrower : ArbTrans<DPoint> {
    DPoint transform(const DPoint& p) override {
        order.raise(order.thrown);
        return p;
    }
    DPoint reverseTransform(const DPoint& p) override {
        return p;
    }
};

void throwFromChain() {
    CompositeTrans<DPoint> chain(1); // deletes its members
    chain.addTrans(new Thrower);
    chain.transform(DPoint(1, 2));
}

// Gives the scanner lock back on its way, or whoever reads next waits for ever.
void throwFromScanner() {
    struct Scanner : ZUnitScanner {
        using ZUnitScanner::ZUnitScanner;
        int yygetc() override {
            order.raise(order.thrown);
            return -1;
        }
    } scanner(L"1 mm");
    scanner.yylex();
}

void (*const ways[])() = {throwDirectly, throwFromSort, throwFromVisit, throwFromTest,
                          throwFromRing, throwFromTree, throwFromChain, throwFromScanner};

// ---- What must arrive

bool isWhole(const std::exception& caught) {
    return std::strcmp(caught.what(),
                       order.thrown == derivedException ? "overridden" : "of the library") == 0;
}

bool isWhole(ZarnexException& caught) {
    ZarnexException copy(caught); // its text is freed here and was made there
    const bool derived = order.thrown == derivedException;
    return isWhole(static_cast<const std::exception&>(copy)) &&
           caught.errCode() == (derived ? 12 : -5) && caught.type() == (derived ? 7 : 0) &&
           copy.type() == 0 && (dynamic_cast<HostFailure*>(&caught) != nullptr) == derived;
}

bool isWhole(HostFailure& caught) {
    return caught.extra == 42 && isWhole(static_cast<ZarnexException&>(caught));
}

template <class Caught>
bool arrivesAs(void (*way)()) {
    try {
        way();
    } catch (Caught& caught) {
        return isWhole(caught);
    } catch (...) {
    }
    return false;
}

bool arrivesKept(void (*way)()) {
    std::exception_ptr kept;
    try {
        way();
    } catch (...) {
        kept = std::current_exception();
    }
    try {
        std::rethrow_exception(kept);
    } catch (ZarnexException& caught) {
        return isWhole(caught);
    }
}

} // namespace

void boundaryRaise(int thrown) {
    if (thrown == derivedException)
        throw HostFailure();
    throw ZarnexException("of the library", -5, nullptr);
}

int boundaryCatchAll(Raise raise) {
    int caught = 0;
    for (int thrown = 0; thrown < thrownCount; ++thrown) {
        order = {raise, thrown};
        for (const auto way : ways) {
            if (!arrivesAs<std::exception>(way) || !arrivesAs<ZarnexException>(way) ||
                !arrivesKept(way))
                return -1;
            caught += 3;
            if (thrown != derivedException)
                continue;
            if (!arrivesAs<HostFailure>(way))
                return -1;
            ++caught;
        }
    }
    return caught;
}

int boundaryUseHeap() {
    const ZString text(L"21.5 mm");
    char* const ascii = text.getAscii();
    char* const ansi = text.getAnsi();
    wchar_t* const wide = text.getWide();
    const bool right = ascii != nullptr && ansi != nullptr && wide != nullptr &&
                       std::strcmp(ascii, "21.5 mm") == 0 && std::strcmp(ansi, ascii) == 0 &&
                       std::wcscmp(wide, L"21.5 mm") == 0;
    delete[] ascii;
    delete[] ansi;
    delete[] wide;

    // Lists and arrays that one side fills and the other empties.
    ZList<std::pair<ZString, ZString>> list;
    list.add({text, ZMillimeter(text).getStringWithUnits(4)});
    ZList<std::pair<ZString, ZString>> taken(std::move(list));
    ZXArray<ZString> names(1, 4);
    names[40] = taken[0].second;
    names.setSize(1);
    ZString* const made = new ZString(names[0]);
    delete made;
    const SigUInt large = SigUInt(1ULL) << 4000;
    return right && taken.length() == 1 && taken[0].second == L"0.85 in" &&
           large.bitLength() == 4001;
}
