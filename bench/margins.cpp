#include "means/margins.h"

#include <benchmark/benchmark.h>

#include "means/crossover.h"
#include "means/equivalence.h"

namespace {

namespace means = kelpower::means;

void PowerOfNonInferiority(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(means::PowerBeyondMargin(2, 0.025, means::PooledDifference(60, 60, 6)));
  }
}
BENCHMARK(PowerOfNonInferiority);

void PowerOfEquivalence(benchmark::State& state) {
  const auto n = static_cast<double>(state.range(0));
  for (auto _ : state) {
    benchmark::DoNotOptimize(means::PowerBetweenLimits({2.5, 1.5}, 0.05, means::PooledDifference(n, n, 4)));
  }
}
BENCHMARK(PowerOfEquivalence)->ArgName("n")->Arg(3)->Arg(60)->Arg(10000);

void PowerOfBioequivalence(benchmark::State& state) {
  for (auto _ : state) {
    const double sd = means::SdOfLogarithms(0.25);
    const means::Insides insides{means::LogDistance(0.95, 0.8), means::LogDistance(1.25, 0.95)};
    benchmark::DoNotOptimize(means::PowerBetweenLimits(insides, 0.05, means::CrossoverDifference(12, 12, sd)));
  }
}
BENCHMARK(PowerOfBioequivalence);

}  // namespace
