#include <benchmark/benchmark.h>

#include "exports/proportions/literal_tests.h"
#include "kelpower.h"

// The exact tests beside their definitions, which step through every count: the ratio of two rows is what inverting the
// distribution function and updating it by recurrence is worth.

namespace {

void ExactPowerOfOneSample(benchmark::State& state) {
  const double n = static_cast<double>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(PowerOneSampBinom(n, 0.54, 0.5, 1, 0, 0.05, 0, nullptr));
}
BENCHMARK(ExactPowerOfOneSample)->Arg(100)->Arg(1000)->Arg(1000000);

void ExactPowerOfOneSampleByDefinition(benchmark::State& state) {
  const double n = static_cast<double>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(literal::OneSamplePower(n, 0.54, 0.5, 0, 0.05, nullptr));
}
BENCHMARK(ExactPowerOfOneSampleByDefinition)->Arg(100)->Arg(1000);

void ExactPowerOfPairs(benchmark::State& state) {
  const double n = static_cast<double>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(PowerbyPRelSampBionm(n, 0.25, 0.18, 0, 1, 0.05, nullptr));
}
BENCHMARK(ExactPowerOfPairs)->Arg(100)->Arg(500)->Arg(1000000);

void ExactPowerOfPairsByDefinition(benchmark::State& state) {
  const double n = static_cast<double>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(literal::PairedPower(n, 0.25, 0.18, 0, 0.05, nullptr));
}
BENCHMARK(ExactPowerOfPairsByDefinition)->Arg(100)->Arg(500);

// The answers are 49, 144 and 381.
void ExactSizeOfOneSample(benchmark::State& state) {
  const double alternative = static_cast<double>(state.range(0)) / 100;
  const double null = static_cast<double>(state.range(1)) / 100;
  for (auto _ : state) {
    benchmark::DoNotOptimize(PowerReverseOneSampBinom(0.8, alternative, null, 1, 0, 0.05, 0, nullptr));
  }
}
BENCHMARK(ExactSizeOfOneSample)
    ->ArgNames({"p1", "p0"})
    ->Args({70, 50})
    ->Args({70, 80})
    ->Args({57, 50})
    ->Unit(benchmark::kMillisecond);

void ExactSizeOfPairs(benchmark::State& state) {
  const double p12 = static_cast<double>(state.range(0)) / 100;
  const double p21 = static_cast<double>(state.range(1)) / 100;
  for (auto _ : state) {
    benchmark::DoNotOptimize(PowerReversebyPRelSampBionm(0.8, p12, p21, 0, 1, 0.05, nullptr));
  }
}
BENCHMARK(ExactSizeOfPairs)->ArgNames({"p12", "p21"})->Args({32, 8})->Args({25, 15})->Unit(benchmark::kMillisecond);

void ExactSizeOfOneSampleThatDoesNotExist(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(PowerReverseOneSampBinom(1.5, 0.7, 0.5, 1, 0, 0.05, 0, nullptr));
  }
}
BENCHMARK(ExactSizeOfOneSampleThatDoesNotExist)->Unit(benchmark::kMillisecond);

void ExactSizeOfPairsThatDoesNotExist(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(PowerReversebyPRelSampBionm(0.8, 0.2, 0.2, 0, 1, 0.05, nullptr));
  }
}
BENCHMARK(ExactSizeOfPairsThatDoesNotExist)->Unit(benchmark::kMillisecond);

void SizeForHalfWidthOfOneSample(benchmark::State& state) {
  const int method = static_cast<int>(state.range(0));
  for (auto _ : state) {
    benchmark::DoNotOptimize(PowerReversebyHalfCIOneSampBinom(0.04, 0.35, method, 0.05, 0, nullptr));
  }
}
BENCHMARK(SizeForHalfWidthOfOneSample)->ArgName("method")->DenseRange(0, 6);

void CurveOfSizesOfOneSample(benchmark::State& state) {
  for (auto _ : state) {
    XYPlot plot = PlotNOneSampBinom(100, 0.54, 0.5, 1, 0, 0.05, 2, 5000, 0);
    benchmark::DoNotOptimize(plot.y);
    FreeMemXYPlot(&plot);
  }
}
BENCHMARK(CurveOfSizesOfOneSample)->Unit(benchmark::kMillisecond);

void SurfaceOfSizesAndProportionsOfOneSample(benchmark::State& state) {
  for (auto _ : state) {
    XYZPlot plot = PlotNAlterOneSampBinom(100, 0.54, 0.5, 1, 0, 0.05, 2, 500, 0, 0.01);
    benchmark::DoNotOptimize(plot.z);
    FreeMemXYZPlot(&plot);
  }
}
BENCHMARK(SurfaceOfSizesAndProportionsOfOneSample)->Unit(benchmark::kMillisecond);

void CurveOfSizesOfPairs(benchmark::State& state) {
  for (auto _ : state) {
    XYPlot plot = PlotNRelSampBionm(100, 0.25, 0.18, 2, 2500, 0, 1, 0.05);
    benchmark::DoNotOptimize(plot.y);
    FreeMemXYPlot(&plot);
  }
}
BENCHMARK(CurveOfSizesOfPairs)->Unit(benchmark::kMillisecond);

void SurfaceOfDiscordantPairs(benchmark::State& state) {
  for (auto _ : state) {
    XYZPlot plot = PlotPropRelSampBionm(100, 0, 1, 0.05, 0.02);
    benchmark::DoNotOptimize(plot.z);
    FreeMemXYZPlot(&plot);
  }
}
BENCHMARK(SurfaceOfDiscordantPairs)->Unit(benchmark::kMillisecond);

}  // namespace
