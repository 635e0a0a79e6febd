#include "../byHand.h"
#include "../quantityTexts.h"
#include "../rows.h"

#include <zarnex/units/ZMillimeter.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <thread>
#include <vector>

namespace bench {

namespace {

constexpr int textsInAll = 64 * 1024;

/// Reads `textsInAll` texts, shared out among the threads; the sum of all millimetres.
template <class Texts, class Read>
double readOn(int threadCount, const Texts& texts, Read read) {
    const auto work = [&](double& sum) {
        for (int round = 0; round < textsInAll / textCount / threadCount; ++round)
            for (const auto& text : texts)
                sum += read(text);
    };
    std::vector<double> sums(static_cast<std::size_t>(threadCount));
    std::vector<std::thread> others;
    for (int i = 1; i < threadCount; ++i)
        others.emplace_back([&work, &sum = sums[static_cast<std::size_t>(i)]] {
            double own = 0.0; // not shared, so that no cache line is
            work(own);
            sum = own;
        });
    work(sums[0]);
    double all = 0.0;
    for (std::thread& other : others)
        other.join();
    for (const double sum : sums)
        all += sum;
    return all;
}

} // namespace

void threadRows(Suite& suite) {
    suite.topic("threads");
    const QuantityTexts texts(formed("%.1f mm"));
    for (const int threadCount : {1, 2, 4}) {
        const std::string number = std::to_string(threadCount);
        suite.row("read on " + number, 1.0,
                  "\"2.5 mm\" and the like, read on " + number +
                      " at once; time over texts. The library reads one text at a time in the "
                      "whole process, as it must; the peer takes no lock.",
                  [&](Row& row, const auto& measure) {
                      row.per(textsInAll);
                      row.tolerance(1e-9);
                      row.ours([&] {
                          return readOn(threadCount, texts.ours, [](const ZString& text) {
                              return double(ZMillimeter(text));
                          });
                      });
                      row.beside("by hand", [&] {
                          return readOn(threadCount, texts.wide, [](const std::wstring& text) {
                              return byHand::read(text, byHand::Unit::millimeter).value;
                          });
                      });
                      measure();
                  });
    }
}

} // namespace bench
