#include <benchmark/benchmark.h>

#include <cmath>

#include "kelcommon/kel_dist_fun.h"
#include "kelpower.h"

namespace {

using KelMath::KelDistFun;

void PowerOfOneSample(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(PowerOneSampleNondirectional(40, 104, 10, 100, 0.05));
}
BENCHMARK(PowerOfOneSample);

void PowerOfOneSampleOneSided(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(PowerOneSampleDirectional(40, 104, 10, 100, 0.05));
}
BENCHMARK(PowerOfOneSampleOneSided);

void PowerOfPairs(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(PowerRelatedNondirectional(30, 25, 8, 21, 7, 0.6, 0.05));
}
BENCHMARK(PowerOfPairs);

void PowerOfTwoGroups(benchmark::State& state) {
  const double sd2 = static_cast<double>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(PowerIndependentNondirectional(40, 52, 10, 40, 47, sd2, 0.05));
}
BENCHMARK(PowerOfTwoGroups)->ArgName("sd2")->Arg(10)->Arg(14);

void SizeOfOneSample(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(PowerReverseOneSampleNondirectional(0.8, 104, 10, 100, 0.05));
}
BENCHMARK(SizeOfOneSample);

void SizeOfPairs(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(PowerReverseRelatedNondirectional(0.9, 25, 8, 21, 7, 0.6, 0.05));
}
BENCHMARK(SizeOfPairs);

void SizesOfTwoGroups(benchmark::State& state) {
  const double sd2 = static_cast<double>(state.range(0));
  for (auto _ : state) {
    DoubleVector sizes;
    PowerReverseIndependentNondirectional(0.8, 2, 52, 10, 47, sd2, sizes, 0.05);
    benchmark::DoNotOptimize(sizes.data());
  }
}
BENCHMARK(SizesOfTwoGroups)->ArgName("sd2")->Arg(10)->Arg(14);

void SizeOfOneSampleWithoutEffect(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(PowerReverseOneSampleNondirectionalES(0.8, 0, 0.05));
}
BENCHMARK(SizeOfOneSampleWithoutEffect)->Unit(benchmark::kMillisecond);

void SizesOfTwoGroupsWithoutEffect(benchmark::State& state) {
  const double sd2 = static_cast<double>(state.range(0));
  for (auto _ : state) {
    DoubleVector sizes;
    PowerReverseIndependentNondirectional(0.8, 2, 5, 10, 5, sd2, sizes, 0.05);
    benchmark::DoNotOptimize(sizes.data());
  }
}
BENCHMARK(SizesOfTwoGroupsWithoutEffect)->ArgName("sd2")->Arg(10)->Arg(14)->Unit(benchmark::kMillisecond);

// The dearest search: the power passes 1 nowhere, and the noncentrality grows to 1e153.
void SizeOfOneSampleForAPowerAboveOne(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(PowerReverseOneSampleNondirectionalES(1.2, 0.2, 0.05));
}
BENCHMARK(SizeOfOneSampleForAPowerAboveOne)->Unit(benchmark::kMillisecond);

void HalfWidthOfTwoGroups(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(HalfCIIndependentMeans(40, 10, 40, 14, 0.05));
}
BENCHMARK(HalfWidthOfTwoGroups);

void SizesForHalfWidthOfTwoGroups(benchmark::State& state) {
  for (auto _ : state) {
    DoubleVector sizes;
    PowerReversebyHalfCIIndependentMeans(4, 1, 10, 14, sizes, 0.05);
    benchmark::DoNotOptimize(sizes.data());
  }
}
BENCHMARK(SizesForHalfWidthOfTwoGroups);

// A surface of 50 effects by 500 sizes, and the 50,000 noncentral probabilities that it cannot do without.
void SurfaceOfEffectsAndSizes(benchmark::State& state) {
  for (auto _ : state) {
    XYZPlot plot = PlotNaESOneSample(10, 509, 0.02, 1.0, 0, 0.05, 1.0 / 49);
    benchmark::DoNotOptimize(plot.z);
    FreeMemXYZPlot(&plot);
  }
}
BENCHMARK(SurfaceOfEffectsAndSizes)->Unit(benchmark::kMillisecond);

void NoncentralProbabilitiesOfItsTails(benchmark::State& state) {
  XYZPlot plot = PlotNaESOneSample(10, 509, 0.02, 1.0, 0, 0.05, 1.0 / 49);
  for (auto _ : state) {
    double sum = 0;
    for (int j = 0; j < plot.yCount; ++j) {
      const double df = plot.y[j] - 1;
      const double critical = KelDistFun::IdfT(0.975, df, 1e-40, 1e-30);
      for (int i = 0; i < plot.xCount; ++i) {
        const double noncentrality = std::sqrt(plot.y[j]) * plot.x[i];
        sum += KelDistFun::NonCentralCdfT(critical, df, noncentrality, 1e-12);
        sum -= KelDistFun::NonCentralCdfT(-critical, df, noncentrality, 1e-12);
      }
    }
    benchmark::DoNotOptimize(sum);
  }
  FreeMemXYZPlot(&plot);
}
BENCHMARK(NoncentralProbabilitiesOfItsTails)->Unit(benchmark::kMillisecond);

void SurfaceOfRatiosAndDifferences(benchmark::State& state) {
  for (auto _ : state) {
    XYZPlot plot = PlotRatioaMeanDiffIndependent(80, 52, 10, 47, 14, 0.2, 5, -10, 10, 0, 0.05, 0.02);
    benchmark::DoNotOptimize(plot.z);
    FreeMemXYZPlot(&plot);
  }
}
BENCHMARK(SurfaceOfRatiosAndDifferences)->Unit(benchmark::kMillisecond);

}  // namespace
