#include <benchmark/benchmark.h>

#include <limits>

#include "proportions/independent_margins.h"
#include "proportions/one_sample_margins.h"
#include "proportions/unconditional_margins.h"

namespace {

using namespace kelpower::proportions;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr ContrastLimits nonInferiority{Contrast::Difference, -0.1, infinity};

void PowerOfFarringtonAndManning(benchmark::State& state) {
  const IndependentMarginTest test({nonInferiority, MarginMethod::FarringtonManning, 0.025}, 200, 200);
  for (auto _ : state) benchmark::DoNotOptimize(test.Power({0.85, 0.85}));
}
BENCHMARK(PowerOfFarringtonAndManning);

void PowerOfExactEquivalence(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(OneSampleMarginTest({{0.5, 0.7}, 0.05, /*isExact=*/true}).Power(500, 0.6));
  }
}
BENCHMARK(PowerOfExactEquivalence);

// The answers are 549 and 566.
void ExactSizesOfEquivalence(benchmark::State& state) {
  const OneSampleMarginDesign design{{0.5, 0.7}, 0.05, /*isExact=*/true};
  for (auto _ : state) {
    benchmark::DoNotOptimize(FirstSize(design, 0.65, 0.8));
    benchmark::DoNotOptimize(LastingSize(design, 0.65, 0.8));
  }
}
BENCHMARK(ExactSizesOfEquivalence)->Unit(benchmark::kMillisecond);

void UnconditionalPower(benchmark::State& state) {
  const double n = static_cast<double>(state.range(0));
  for (auto _ : state) {
    benchmark::DoNotOptimize(UnconditionalMarginTest(nonInferiority, 0.025, n, n).Power({0.8, 0.8}));
  }
}
BENCHMARK(UnconditionalPower)->ArgName("n")->Arg(100)->Arg(300)->Arg(1000)->Unit(benchmark::kMillisecond);

void UnconditionalEquivalence(benchmark::State& state) {
  for (auto _ : state) {
    const ContrastLimits limits{Contrast::Difference, -0.2, 0.15};
    benchmark::DoNotOptimize(UnconditionalMarginTest(limits, 0.05, 100, 100).Power({0.8, 0.8}));
  }
}
BENCHMARK(UnconditionalEquivalence)->Unit(benchmark::kMillisecond);

}  // namespace
