#include "../rows.h"
#include "plane.h"

#include <zarnex/containers/ZXArray.h>
#include <zarnex/geometry/DPoint.h>

#if BENCH_BOOST
#include <boost/container/vector.hpp>
#endif
#if BENCH_QT
#include <QList>
#endif

#include <algorithm>
#include <random>
#include <vector>

namespace bench {

namespace {

constexpr int count = 10000;

template <class Array, class T>
auto append(const std::vector<T>& values) {
    return [&values] {
        Array array;
        for (const T& value : values) {
            if constexpr (requires { array.add(value); })
                array.add(value);
            else
                array.push_back(value);
        }
        if constexpr (requires { array.length(); })
            return static_cast<long>(array.length());
        else
            return static_cast<long>(array.size());
    };
}

template <class T>
void appendRow(Suite& suite, const char* name, const char* what) {
    suite.row(name, 1.0, what, [](Row& row, const auto& measure) {
        std::vector<T> values;
        if constexpr (std::is_arithmetic_v<T>)
            values = randomNumbers(count, 0.0, 1.0, 1);
        else
            values = paired<T>(randomNumbers(2 * count, 0.0, 1.0, 1));
        row.per(count);
        row.why("Growth allocates through the global operators, copies and frees, as a vector's, "
                "and constructs every slot, used or not; QList has its block enlarged in place. "
                "Growth is a call, so the loop reads length and address again: 1.1 ns a point "
                "with room reserved, where a vector's stays in registers and takes 0.4. The rest "
                "are pages that glibc gives back at each free: in a process of its own a fill of "
                "points took 19 to 25 ns a point and one of a vector 12 to 18, with the heap kept "
                "2.9 and 1.5.");
        row.ours(append<ZXArray<T>>(values));
        row.peer("std::vector", append<std::vector<T>>(values));
#if BENCH_BOOST
        row.peer("Boost", append<boost::container::vector<T>>(values));
#endif
#if BENCH_QT
        row.peer("Qt", append<QList<T>>(values));
#endif
        measure();
    });
}

/// The same numbers in each kind of array.
struct Kinds {
    std::vector<double> vector;
    ZXArray<double> ours;
#if BENCH_BOOST
    boost::container::vector<double> boost;
#endif
#if BENCH_QT
    QList<double> qt;
#endif

    explicit Kinds(int length)
        : vector(randomNumbers(static_cast<std::size_t>(length), 0.0, 1.0, 2)), ours(length, -1)
#if BENCH_BOOST
          ,
          boost(vector.begin(), vector.end())
#endif
#if BENCH_QT
          ,
          qt(vector.begin(), vector.end())
#endif
    {
        std::copy(vector.begin(), vector.end(), static_cast<double*>(ours));
    }
};

std::vector<int> randomPositions() {
    std::mt19937 random(3);
    std::vector<int> positions(1000);
    for (int& position : positions)
        position = static_cast<int>(random() % count);
    return positions;
}

template <class Read>
auto readAt(const std::vector<int>& positions, Read read) {
    return [&positions, read] {
        double sum = 0.0;
        for (const int position : positions)
            sum += read(position);
        return sum;
    };
}

void readRow(Suite& suite) {
    suite.row("read", 1.0,
              "The sum of 1,000 of 10,000 doubles, at random positions and checked against the "
              "bounds; per element.",
              [](Row& row, const auto& measure) {
                  const Kinds kinds(count);
                  const std::vector<int> positions = randomPositions();
                  const auto unsignedAt = [](int i) { return static_cast<std::size_t>(i); };
                  row.per(1000);
                  row.ours(readAt(positions, [&](int i) { return kinds.ours[i]; }));
                  row.peer("std::vector::at", readAt(positions, [&](int i) {
                               return kinds.vector.at(unsignedAt(i));
                           }));
                  row.beside("std::vector[]",
                             readAt(positions, [&](int i) { return kinds.vector[unsignedAt(i)]; }));
#if BENCH_BOOST
                  row.peer("Boost at",
                           readAt(positions, [&](int i) { return kinds.boost.at(unsignedAt(i)); }));
#endif
#if BENCH_QT
                  row.beside("Qt at", readAt(positions, [&](int i) { return kinds.qt.at(i); }));
#endif
                  measure();
              });
}

template <class Write>
auto writeAt(const std::vector<int>& positions, Write write) {
    return [&positions, write] {
        double value = 0.0;
        for (const int position : positions)
            write(position) = value += 0.5;
        return value;
    };
}

void writeRow(Suite& suite) {
    suite.row(
        "write", 1.0,
        "1,000 of 10,000 doubles, at random positions and checked against the bounds; per "
        "element. Ours also extends the array and QList looks whether it is shared.",
        [](Row& row, const auto& measure) {
            Kinds kinds(count);
            const std::vector<int> positions = randomPositions();
            const auto unsignedAt = [](int i) { return static_cast<std::size_t>(i); };
            row.per(1000);
            row.why(
                "An index past the end extends the array, which may move. So the compiler reads "
                "length and address again for each element and cannot keep 0.5 in a register: "
                "1.13 ns. The same loop by hand takes 0.90 ns, as std::vector::at does, where it "
                "keeps both in variables that only the extension reads again, and 1.04 ns where "
                "it reads them each time.");
            row.ours(writeAt(positions, [&](int i) -> double& { return kinds.ours[i]; }));
            row.peer("std::vector::at", writeAt(positions, [&](int i) -> double& {
                         return kinds.vector.at(unsignedAt(i));
                     }));
            row.beside("std::vector[]", writeAt(positions, [&](int i) -> double& {
                           return kinds.vector[unsignedAt(i)];
                       }));
#if BENCH_BOOST
            row.peer("Boost at", writeAt(positions, [&](int i) -> double& {
                         return kinds.boost.at(unsignedAt(i));
                     }));
#endif
#if BENCH_QT
            row.peer("Qt", writeAt(positions, [&](int i) -> double& { return kinds.qt[i]; }));
#endif
            measure();
        });
}

void findRow(Suite& suite) {
    suite.row("find", 1.0, "A number that stands last of 10,000; per element.",
              [](Row& row, const auto& measure) {
                  const Kinds kinds(count);
                  const double wanted = kinds.vector.back();
                  const auto find = [&](const auto& array) {
                      return [&] {
                          return std::find(array.begin(), array.end(), wanted) - array.begin();
                      };
                  };
                  row.per(count);
                  row.ours([&] { return kinds.ours.find(wanted); });
                  row.peer("std::find", find(kinds.vector));
#if BENCH_BOOST
                  row.peer("Boost", find(kinds.boost));
#endif
#if BENCH_QT
                  row.peer("Qt", [&] { return kinds.qt.indexOf(wanted); });
#endif
                  measure();
              });
}

template <class Array>
auto copy(const Array& array) {
    return [&array] {
        const Array copied(array);
        return copied[count / 2];
    };
}

void copyRow(Suite& suite) {
    suite.row("copy", 1.0, "An array of 10,000 doubles, copied and freed; per element.",
              [](Row& row, const auto& measure) {
                  const Kinds kinds(count);
                  row.per(count);
                  row.ours(copy(kinds.ours));
                  row.peer("std::vector", copy(kinds.vector));
#if BENCH_BOOST
                  row.peer("Boost", copy(kinds.boost));
#endif
#if BENCH_QT
                  row.peer("Qt", [&] {
                      QList<double> copied(kinds.qt);
                      copied.detach(); // else the copy shares the elements
                      return std::as_const(copied)[count / 2];
                  });
#endif
                  measure();
              });
}

} // namespace

void arrayRows(Suite& suite) {
    suite.topic("array");
    appendRow<double>(suite, "append",
                      "10,000 doubles appended one by one, without room reserved, then freed; per "
                      "element.");
    appendRow<DPoint>(suite, "append points", "10,000 points of two doubles in the same way.");
    readRow(suite);
    writeRow(suite);
    findRow(suite);
    copyRow(suite);
}

} // namespace bench
