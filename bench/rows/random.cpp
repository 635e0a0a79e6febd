#include "../rows.h"

#include <zarnex/geometry/ZrnRandomGenerator2.h>

#if BENCH_BOOST
#include <boost/random/mersenne_twister.hpp>
#endif
#if BENCH_GSL
#include <gsl/gsl_rng.h>
#endif
#if BENCH_QT
#include <QRandomGenerator>
#endif

#include <random>
#include <sstream>

namespace bench {

namespace {

constexpr int count = 10000;
constexpr double step = 1.0 / 4294967296.0; // of the numbers from 0 to 1

// A fresh copy of `start` each time, so that all runs give the same numbers.
template <class Generator, class Draw>
auto draw(const Generator& start, Draw next) {
    return [&start, next] {
        Generator generator(start);
        double sum = 0.0;
        for (int i = 0; i < count; ++i)
            sum += next(generator);
        return sum;
    };
}

void streamRow(Suite& suite) {
    suite.row("numbers from 0 to 1", 1.0,
              "The sum of 10,000 doubles of 32 random bits each; all sides start with the same "
              "state; per number.",
              [](Row& row, const auto& measure) {
                  const unsigned seeds[] = {12, 345, 6789};
                  std::seed_seq sequence(std::begin(seeds), std::end(seeds));
                  const std::mt19937 standard(sequence);
                  std::stringstream state;
                  state << standard;
                  ZrnRandomGenerator2 ours(1);
                  for (unsigned& word : ours.word)
                      state >> word;
                  state.clear();
                  state.seekg(0);
                  const auto scaled = [](auto& generator) {
                      return static_cast<double>(static_cast<unsigned>(generator())) * step;
                  };
                  row.per(count);
                  row.ours(draw(ours, [](auto& generator) { return generator.random(); }));
                  row.peer("std::mt19937", draw(standard, scaled));
#if BENCH_BOOST
                  boost::random::mt19937 boost;
                  state >> boost;
                  row.peer("Boost", draw(boost, scaled));
#endif
#if BENCH_QT
                  const QRandomGenerator qt(std::begin(seeds), std::end(seeds));
                  row.peer("Qt",
                           draw(qt, [](auto& generator) { return generator.generate() * step; }));
#endif
                  measure();
              });
}

void seedRow(Suite& suite) {
#if BENCH_GSL
    suite.row("seed and draw", 1.0,
              "A seed by the chain of products, then the sum of 1,000 numbers; per number.",
              [](Row& row, const auto& measure) {
                  constexpr int drawn = 1000;
                  row.per(drawn);
                  ZrnRandomGenerator2 ours(1);
                  row.ours([&] {
                      ours.randseed(4357);
                      double sum = 0.0;
                      for (int i = 0; i < drawn; ++i)
                          sum += ours.random();
                      return sum;
                  });
                  gsl_rng* const gsl = gsl_rng_alloc(gsl_rng_mt19937_1998);
                  row.peer("GSL", [&] {
                      gsl_rng_set(gsl, 4357);
                      double sum = 0.0;
                      for (int i = 0; i < drawn; ++i)
                          sum += gsl_rng_uniform(gsl);
                      return sum;
                  });
                  measure();
                  gsl_rng_free(gsl);
              });
#else
    static_cast<void>(suite);
#endif
}

} // namespace

void randomRows(Suite& suite) {
    suite.topic("random");
    streamRow(suite);
    seedRow(suite);
}

} // namespace bench
