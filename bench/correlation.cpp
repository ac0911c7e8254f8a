#include <benchmark/benchmark.h>

#include "kelcommon/kel_dist_fun.h"
#include "kelpower.h"

namespace {

void PowerOfPearson(benchmark::State& state) {
  const auto adjustBias = static_cast<std::uint8_t>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(PowerbyOneSampPearson(50, 0.3, 0, 0, adjustBias, 0.05));
}
BENCHMARK(PowerOfPearson)->ArgName("adjustBias")->Arg(0)->Arg(1);

void PowerOfSpearman(benchmark::State& state) {
  const int method = static_cast<int>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(PowerbyOneSampSpearman(50, 0.3, 0, method, 0, 0.05));
}
BENCHMARK(PowerOfSpearman)->ArgName("varianceMethod")->DenseRange(0, 2);

void PowerOfPartial(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(PowerbyOneSampPartial(50, 3, 0.3, 0, 0, 0.05));
}
BENCHMARK(PowerOfPartial);

void SizeOfPearson(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(PowerReversebyOneSampPearson(0.8, 0.3, 0, 0, 1, 0.05, nullptr));
}
BENCHMARK(SizeOfPearson)->Unit(benchmark::kMicrosecond);

void SizeForHalfWidthOfPearson(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(PowerReversebyHalfCIOneSampPearson(0.05, 0.3, 0, 0.05, nullptr));
}
BENCHMARK(SizeForHalfWidthOfPearson)->Unit(benchmark::kMicrosecond);

// 500 sizes by 401 correlations, and the two normal probabilities a point that the surface cannot do without.
void SurfaceOfPearson(benchmark::State& state) {
  for (auto _ : state) {
    XYZPlot plot = PlotNAlterOneSampPearson(50, 0.3, 0, 0, 1, 0.05, 10, 509, 0.005);
    benchmark::DoNotOptimize(plot.z);
    FreeMemXYZPlot(&plot);
  }
}
BENCHMARK(SurfaceOfPearson)->Unit(benchmark::kMillisecond);

void NormalProbabilitiesOfThatSurface(benchmark::State& state) {
  for (auto _ : state) {
    for (int i = 0; i < 500 * 401; ++i) {
      benchmark::DoNotOptimize(KelMath::KelDistFun::CdfStdNorm(i * 1e-5));
      benchmark::DoNotOptimize(KelMath::KelDistFun::CdfStdNorm(i * -1e-5));
    }
  }
}
BENCHMARK(NormalProbabilitiesOfThatSurface)->Unit(benchmark::kMillisecond);

}  // namespace
