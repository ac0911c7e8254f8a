#include <benchmark/benchmark.h>

#include <cmath>

#include "kelcommon/kel_dist_fun.h"
#include "kelpower.h"
#include "stated_series.h"

namespace {

// 200 cases, 5 predictors, rho squared 0.3: the power as it is computed, the quantile of F included, and the plain
// series of its distribution function alone.
void PowerOfRandomPredictors(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(Powerbymlr(200, 5, 5, std::sqrt(0.3), 0, 1, 1, 0.05));
}
BENCHMARK(PowerOfRandomPredictors)->Unit(benchmark::kMicrosecond);

void SeriesInLogarithms(benchmark::State& state) {
  const kelpower::FTest test{5, 194, KelMath::KelDistFun::IdfF(0.95, 5, 194), 1e-12};
  for (auto _ : state) benchmark::DoNotOptimize(kelpower::CdfByStatedSeries(test, 0.3));
}
BENCHMARK(SeriesInLogarithms)->Unit(benchmark::kMicrosecond);

// Many terms, and a mixture too wide to be summed.
void PowerOfWideMixture(benchmark::State& state) {
  const double predictors = static_cast<double>(state.range(0));
  for (auto _ : state) {
    benchmark::DoNotOptimize(PowerbymlrwES(predictors + 10, predictors, predictors, 1, 1, 1, 0.05));
  }
}
BENCHMARK(PowerOfWideMixture)->ArgName("predictors")->Arg(10'000)->Arg(10'000'000)->Unit(benchmark::kMicrosecond);

void PowerOfRegression(benchmark::State& state) {
  const int random = static_cast<int>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(PowerbymlrwES(95, 5, 5, 1.0 / 9, random, 1, 0.05));
}
BENCHMARK(PowerOfRegression)->ArgName("random")->Arg(0)->Arg(1);

void SizeOfRegression(benchmark::State& state) {
  const int random = static_cast<int>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(PowerReversebymlrwES(0.8, 5, 5, 1.0 / 9, random, 1, 0.05));
}
BENCHMARK(SizeOfRegression)->ArgName("random")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void SizeOfRegressionThatDoesNotExist(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(PowerReversebymlrwES(0.8, 5, 5, 0, 1, 1, 0.05));
}
BENCHMARK(SizeOfRegressionThatDoesNotExist)->Unit(benchmark::kMillisecond);

void SurfaceOfSizesAndCorrelations(benchmark::State& state) {
  const int random = static_cast<int>(state.range(0));
  for (auto _ : state) {
    XYZPlot plot = PlotNaCorrmlr(95, 5, 5, 0.3, 0, random, 1, 0.05, 10, 509, 0.05);
    benchmark::DoNotOptimize(plot.z);
    FreeMemXYZPlot(&plot);
  }
}
BENCHMARK(SurfaceOfSizesAndCorrelations)->ArgName("random")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
