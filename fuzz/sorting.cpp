/// QSort: elements of any size under callbacks of any kind, against std::stable_sort.

#include "fuzz/fuzz.h"

#include <zarnex/containers/QSort.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Elements = std::vector<std::string>; // all of one size

enum class Order { ascending, descending, byFirst, byLast, allEqual, inconsistent };

int compareUnits(char a, char b) {
    return static_cast<unsigned char>(a) - static_cast<unsigned char>(b);
}

/// Negative, 0 or positive; for every order but the inconsistent one.
int compareBy(Order order, std::string_view a, std::string_view b) {
    switch (order) {
    case Order::ascending:
        return a.compare(b);
    case Order::descending:
        return b.compare(a);
    case Order::byFirst:
        return compareUnits(a.front(), b.front());
    case Order::byLast:
        return compareUnits(a.back(), b.back());
    default:
        return 0;
    }
}

struct Failure {};

class Throwing : public QSort::Callback {
public:
    int compare(const void*, const void*) override {
        throw Failure();
    }
};

class Descending : public QSort::Callback {
public:
    int compare(const void* a, const void* b) override {
        return compareUnits(*static_cast<const char*>(b), *static_cast<const char*>(a));
    }
};

/// An order, and now and then what a callback may do beside: sort something else, or throw.
class Fuzzed : public QSort::Callback {
public:
    Fuzzed(fuzz::Input& input, const Elements& elements)
        : order(static_cast<Order>(input.choice(6))), input_(input), sorted_(elements),
          isExtreme_(input.choice(2) != 0), sortsInside_(input.choice(16) == 0),
          untilFailure_(input.choice(4) == 0 ? input.between(1, 1000) : -1) {
        std::sort(sorted_.begin(), sorted_.end());
    }

    int compare(const void* a, const void* b) override {
        FUZZ_REQUIRE(!hasThrown()); // else it is not asked any more
        const std::string_view left = element(a);
        const std::string_view right = element(b);
        if (sortsInside_)
            sortInside();
        if (untilFailure_ > 0 && --untilFailure_ == 0)
            throw Failure();
        const int result =
            order == Order::inconsistent ? input_.integer<int>() : compareBy(order, left, right);
        return !isExtreme_ || result == 0 ? result : result < 0 ? INT_MIN : INT_MAX;
    }

    bool hasThrown() const {
        return untilFailure_ == 0;
    }

    const Order order;

private:
    // One of the elements, wherever its bytes stand now.
    std::string_view element(const void* bytes) const {
        const std::string_view found(static_cast<const char*>(bytes), sorted_.front().size());
        FUZZ_REQUIRE(std::binary_search(sorted_.begin(), sorted_.end(), found));
        return found;
    }

    static void sortInside() {
        char few[] = "bdac";
        Descending descending;
        QSort::sort(few, 4, 1, descending);
        FUZZ_REQUIRE(std::strcmp(few, "dcba") == 0);
        Throwing throwing;
        bool threw = false;
        try {
            QSort::sort(few, 4, 1, throwing);
        } catch (const Failure&) {
            threw = true;
        }
        FUZZ_REQUIRE(threw);
    }

    fuzz::Input& input_;
    Elements sorted_;
    bool isExtreme_;
    bool sortsInside_;
    int untilFailure_; // calls; no failure for -1
};

/// Elements that differ in their first bytes as the input has it, in the others by their number.
Elements elementsFrom(fuzz::Input& input) {
    const auto size = static_cast<std::size_t>(input.between(1, 80));
    Elements elements(static_cast<std::size_t>(input.between(0, 150)), std::string(size, '\0'));
    for (std::size_t i = 0; i < elements.size(); ++i) {
        elements[i].front() = static_cast<char>(input.byte());
        for (std::size_t at = 1; at < size; ++at)
            elements[i][at] = static_cast<char>(at % 2 == 1 ? i : i >> 8);
    }
    return elements;
}

/// Sorts the elements side by side in memory, between bytes that nobody may touch.
Elements sorted(const Elements& elements, Fuzzed& callback) {
    const std::string guard(64, '#');
    std::string bytes = guard;
    for (const std::string& element : elements)
        bytes += element;
    bytes += guard;
    const std::size_t size = elements.front().size();
    bool threw = false;
    try {
        QSort::sort(&bytes[guard.size()], elements.size(), size, callback);
    } catch (const Failure&) {
        threw = true;
    }
    FUZZ_REQUIRE(threw == callback.hasThrown());
    FUZZ_REQUIRE(bytes.compare(0, guard.size(), guard) == 0);
    FUZZ_REQUIRE(bytes.compare(bytes.size() - guard.size(), guard.size(), guard) == 0);
    Elements result;
    for (std::size_t i = 0; i < elements.size(); ++i)
        result.push_back(bytes.substr(guard.size() + i * size, size));
    return result;
}

void trySort(fuzz::Input& input) {
    Elements elements = elementsFrom(input);
    if (elements.empty())
        return;
    Fuzzed callback(input, elements);
    Elements result = sorted(elements, callback);
    if (callback.order != Order::inconsistent && !callback.hasThrown()) {
        // In the order of the model, up to that of equal ones.
        std::stable_sort(elements.begin(), elements.end(), [&](const auto& a, const auto& b) {
            return compareBy(callback.order, a, b) < 0;
        });
        FUZZ_REQUIRE(std::equal(
            result.begin(), result.end(), elements.begin(), elements.end(),
            [&](const auto& a, const auto& b) { return compareBy(callback.order, a, b) == 0; }));
    }
    std::sort(elements.begin(), elements.end());
    std::sort(result.begin(), result.end());
    FUZZ_REQUIRE(result == elements); // whatever the callback did
}

/// What is no array of elements is left alone, and nothing is compared.
void tryNothing(fuzz::Input& input) {
    constexpr std::size_t most = (std::numeric_limits<std::size_t>::max)();
    class Never : public QSort::Callback {
    public:
        int compare(const void*, const void*) override {
            std::abort();
        }
    } never;
    char bytes[] = "ba";
    const std::size_t any = input.integer<std::size_t>();
    QSort::sort(nullptr, any, input.integer<std::size_t>(), never);
    QSort::sort(bytes, 0, any, never);
    QSort::sort(bytes, any, 0, never);
    QSort::sort(bytes, any > 1 ? most / any + 1 : 0, any, never); // too many bytes to be one array
    FUZZ_REQUIRE(std::strcmp(bytes, "ba") == 0);
}

} // namespace

void tryInput(fuzz::Input input) {
    if (input.choice(16) == 0)
        tryNothing(input);
    else
        trySort(input);
}
