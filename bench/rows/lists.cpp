#include "../rows.h"

#include <zarnex/containers/ZList.h>

#if BENCH_BOOST
#include <boost/container/list.hpp>
#endif

#include <list>
#include <random>
#include <vector>

namespace bench {

namespace {

constexpr int count = 10000;

template <class List>
List filled() {
    List list;
    for (int i = 0; i < count; ++i)
        list.push_back(i);
    return list;
}

template <>
ZList<int> filled() {
    ZList<int> list;
    for (int i = 0; i < count; ++i)
        list.add(i);
    return list;
}

} // namespace

void listRows(Suite& suite) {
    suite.topic("list");
    suite.row("append and free", 1.0, "10,000 ints appended one by one, then freed; per element.",
              [](Row& row, const auto& measure) {
                  row.per(count);
                  row.ours([] { return filled<ZList<int>>().length(); });
                  row.peer("std::list", [] { return filled<std::list<int>>().size(); });
#if BENCH_BOOST
                  row.peer("Boost", [] { return filled<boost::container::list<int>>().size(); });
#endif
                  measure();
              });
}

} // namespace bench
