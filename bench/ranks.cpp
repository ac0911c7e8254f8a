#include <benchmark/benchmark.h>

#include "ranks/mann_whitney.h"
#include "ranks/ordinal.h"
#include "ranks/signed_rank.h"

namespace {

namespace ranks = kelpower::ranks;

constexpr ranks::TwoGroupTest twoGroups{ranks::Sides::Two, 0.05};
constexpr double five[] = {0.1, 0.2, 0.4, 0.2, 0.1};

void PowerOfRanksByEfficiency(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(ranks::PowerByEfficiency(twoGroups, ranks::Parent::Normal, 0.5, 40, 60));
  }
}
BENCHMARK(PowerOfRanksByEfficiency);

void PowerOfRanksByMoments(benchmark::State& state) {
  const auto parent = static_cast<ranks::Parent>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(ranks::PowerByMoments(twoGroups, parent, 0.5, 40, 60));
}
BENCHMARK(PowerOfRanksByMoments)->ArgName("parent")->DenseRange(0, 4);

void PowerOfFiveCategories(benchmark::State& state) {
  const ranks::OrdinalTest test{ranks::OrdinalMethod::LogOdds, ranks::Sides::Two, 0.05};
  for (auto _ : state) benchmark::DoNotOptimize(ranks::Power(test, {five, nullptr, 2, 5}, 40, 60));
}
BENCHMARK(PowerOfFiveCategories);

void PowerOfSignedRanks(benchmark::State& state) {
  const ranks::SignedRankTest test{ranks::Sides::Two, 0.05};
  for (auto _ : state) benchmark::DoNotOptimize(ranks::PowerByMoments(test, ranks::Parent::Normal, 0.5, 40));
}
BENCHMARK(PowerOfSignedRanks);

}  // namespace
