#include "../rows.h"

#include <zarnex/containers/QSort.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <vector>

namespace bench {

namespace {

constexpr int count = 100000;

int order(const void* a, const void* b) {
    const int left = *static_cast<const int*>(a);
    const int right = *static_cast<const int*>(b);
    return (left > right) - (left < right);
}

class Ascending : public QSort::Callback {
public:
    int compare(const void* a, const void* b) override {
        return order(a, b);
    }
};

/// The object that the C library's function calls, written by hand.
struct Comparison {
    virtual ~Comparison() = default;
    virtual int compare(const void* a, const void* b) = 0;
};

struct PlainAscending : Comparison {
    int compare(const void* a, const void* b) override {
        return order(a, b);
    }
};

// With one class alone, the compiler would see through the call.
struct PlainDescending : Comparison {
    int compare(const void* a, const void* b) override {
        return order(b, a);
    }
};

Comparison* comparison = nullptr;

extern "C" int callComparison(const void* a, const void* b) {
    return comparison->compare(a, b);
}

extern "C" int compareInts(const void* a, const void* b) {
    return order(a, b);
}

void sortRow(Suite& suite, const char* name, const char* what, const std::vector<int>& numbers) {
    suite.row(name, 1.0, what, [&](Row& row, const auto& measure) {
        const auto fresh = [&numbers] { return numbers; };
        // The harness may look at one place; a wrong order shows in one of many.
        const auto digest = [](const std::vector<int>& sorted) {
            double sum = 0.0;
            for (std::size_t i = 0; i < sorted.size(); i += 1000)
                sum += sorted[i] * static_cast<double>(i + 1);
            return sum;
        };
        Ascending ascending;
        PlainAscending plainAscending;
        PlainDescending plainDescending;
        const volatile bool descends = false;
        if (descends)
            comparison = &plainDescending;
        else
            comparison = &plainAscending;
        row.per(count);
        row.ours(fresh, [&](std::vector<int>& v) {
            QSort::sort(v.data(), v.size(), sizeof v[0], ascending);
            return digest(v);
        });
        row.peer("qsort, virtual", fresh, [&](std::vector<int>& v) {
            std::qsort(v.data(), v.size(), sizeof v[0], callComparison);
            return digest(v);
        });
        row.beside("qsort", fresh, [&](std::vector<int>& v) {
            std::qsort(v.data(), v.size(), sizeof v[0], compareInts);
            return digest(v);
        });
        row.beside("std::sort", fresh, [&](std::vector<int>& v) {
            std::sort(v.begin(), v.end());
            return digest(v);
        });
        measure();
    });
}

} // namespace

void sortRows(Suite& suite) {
    suite.topic("sorting");
    std::mt19937 random(1);
    std::vector<int> numbers(count);
    for (int& number : numbers)
        number = static_cast<int>(random() >> 1);
    sortRow(suite, "100,000 ints", "Random ints, compared by a virtual call; per element.",
            numbers);
    std::sort(numbers.begin(), numbers.end());
    sortRow(suite, "100,000 ints in order", "The same, sorted already; per element.", numbers);
}

} // namespace bench
