#include "../rows.h"

#include <zarnex/containers/ZList.h>
#include <zarnex/geometry/DPoint.h>

#if BENCH_BOOST
#include <boost/container/list.hpp>
#endif

#include <deque>
#include <iterator>
#include <list>
#include <random>
#include <type_traits>
#include <vector>

namespace bench {

namespace {

constexpr int count = 10000;
constexpr int shortCount = 1000;

template <class Container>
constexpr bool isOurs = requires(Container list, typename Container::value_type element) {
    list.add(element);
};

template <class T>
T element(int i) {
    if constexpr (std::is_arithmetic_v<T>)
        return static_cast<T>(i);
    else
        return T(i, -i);
}

template <class Container>
Container filled(int length) {
    Container list;
    for (int i = 0; i < length; ++i) {
        const auto value = element<typename Container::value_type>(i);
        if constexpr (isOurs<Container>)
            list.add(value);
        else
            list.push_back(value);
    }
    return list;
}

template <class Container>
auto appendAndFree() {
    return [] {
        const auto list = filled<Container>(count);
        if constexpr (isOurs<Container>)
            return static_cast<long>(list.length());
        else
            return static_cast<long>(list.size());
    };
}

template <class Container>
auto iterate(const Container& list) {
    return [&list] {
        long sum = 0;
        for (const int value : list)
            sum += value;
        return sum;
    };
}

// What stands at a position, walking from the nearer end as one writes it for a list.
template <class Container>
int at(const Container& list, int position) {
    if constexpr (requires { list[0]; }) {
        return list[static_cast<typename Container::size_type>(position)];
    } else {
        const int length = static_cast<int>(list.size());
        return position < length / 2 ? *std::next(list.begin(), position)
                                     : *std::prev(list.end(), length - position);
    }
}

template <>
int at(const ZList<int>& list, int position) {
    return list[position];
}

template <class Container>
auto readInOrder(const Container& list) {
    return [&list] {
        long sum = 0;
        for (int i = 0; i < shortCount; ++i)
            sum += at(list, i) * (i & 3);
        return sum;
    };
}

template <class Container>
auto readAt(const Container& list, const std::vector<int>& positions) {
    return [&list, &positions] {
        long sum = 0;
        for (const int position : positions)
            sum += at(list, position);
        return sum;
    };
}

template <class T>
void appendRow(Suite& suite, const char* name, const char* what) {
    suite.row(name, 1.0, what, [](Row& row, const auto& measure) {
        row.per(count);
        row.ours(appendAndFree<ZList<T>>());
        row.peer("std::list", appendAndFree<std::list<T>>());
#if BENCH_BOOST
        row.peer("Boost", appendAndFree<boost::container::list<T>>());
#endif
        row.beside("std::deque", appendAndFree<std::deque<T>>());
        row.beside("std::vector", appendAndFree<std::vector<T>>());
        measure();
    });
}

/// One of each kind, of the same numbers.
struct Kinds {
    explicit Kinds(int length)
        : ours(filled<ZList<int>>(length)), list(filled<std::list<int>>(length)),
#if BENCH_BOOST
          boost(filled<boost::container::list<int>>(length)),
#endif
          deque(filled<std::deque<int>>(length)), vector(filled<std::vector<int>>(length)) {
    }

    ZList<int> ours;
    std::list<int> list;
#if BENCH_BOOST
    boost::container::list<int> boost;
#endif
    std::deque<int> deque;
    std::vector<int> vector;

    /// Gives `row` a side for each, made by `work`.
    template <class Work>
    void addTo(Row& row, Work work) const {
        row.ours(work(ours));
        row.peer("std::list", work(list));
#if BENCH_BOOST
        row.peer("Boost", work(boost));
#endif
        row.beside("std::deque", work(deque));
        row.beside("std::vector", work(vector));
    }
};

void joinRow(Suite& suite) {
    suite.row("join", 1.0,
              "Two lists of 1,000 ints, each joined to the other in turn, 1,000 times; per join.",
              [](Row& row, const auto& measure) {
                  constexpr int joins = 1000;
                  Kinds a(shortCount);
                  Kinds b(shortCount);
                  const auto splice = [](auto& first, auto& second) {
                      return [&first, &second] {
                          for (int i = 0; i < joins; i += 2) {
                              first.splice(first.end(), second);
                              second.splice(second.end(), first);
                          }
                          return second.size();
                      };
                  };
                  row.per(joins);
                  row.ours([&] {
                      for (int i = 0; i < joins; i += 2) {
                          a.ours.join(b.ours);
                          b.ours.join(a.ours);
                      }
                      return b.ours.length();
                  });
                  row.peer("std::list", splice(a.list, b.list));
#if BENCH_BOOST
                  row.peer("Boost", splice(a.boost, b.boost));
#endif
                  measure();
              });
}

} // namespace

void listRows(Suite& suite) {
    suite.topic("list");
    appendRow<int>(suite, "append and free",
                   "10,000 ints appended one by one, then freed; per element.");
    appendRow<DPoint>(suite, "append and free points",
                      "10,000 points of two doubles appended one by one, then freed; per element.");
    suite.row("iterate", 1.0, "The sum of 10,000 ints; per element.",
              [](Row& row, const auto& measure) {
                  const Kinds kinds(count);
                  row.per(count);
                  kinds.addTo(row, [](const auto& list) { return iterate(list); });
                  measure();
              });
    suite.row("read in order by position", 1.0,
              "list[0], list[1] and so on of 1,000 ints, the peers by std::next from the nearer "
              "end; per element.",
              [](Row& row, const auto& measure) {
                  const Kinds kinds(shortCount);
                  row.per(shortCount);
                  kinds.addTo(row, [](const auto& list) { return readInOrder(list); });
                  measure();
              });
    suite.row("read at random positions", 1.0,
              "1,000 positions of a list of 1,000 ints, from the nearer end; per element.",
              [](Row& row, const auto& measure) {
                  const Kinds kinds(shortCount);
                  std::mt19937 random(1);
                  std::vector<int> positions(shortCount);
                  for (int& position : positions)
                      position = static_cast<int>(random() % shortCount);
                  row.per(shortCount);
                  kinds.addTo(row, [&](const auto& list) { return readAt(list, positions); });
                  measure();
              });
    joinRow(suite);
}

} // namespace bench
