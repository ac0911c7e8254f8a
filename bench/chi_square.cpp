#include <benchmark/benchmark.h>

#include "chi_square/effect.h"
#include "chi_square/power.h"
#include "kelcommon/distributions.h"
#include "variances/one_variance.h"
#include "variances/two_variances.h"

// Chi-square tests of frequencies and the tests of variances, with the distributions that they are made of.
namespace {

void NonCentralSfChiSquare(benchmark::State& state) {
  const double noncentrality = static_cast<double>(state.range(0));
  for (auto _ : state)
    benchmark::DoNotOptimize(kelcommon::NonCentralSfChiSquare(1.02 * noncentrality, 6, noncentrality));
}
BENCHMARK(NonCentralSfChiSquare)->ArgName("noncentrality")->Arg(14)->Arg(1000)->Arg(100000);

void IsfChiSquare(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(kelcommon::IsfChiSquare(0.05, 6));
}
BENCHMARK(IsfChiSquare);

void PowerOfTable(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(kelpower::chi_square::Power(6, 0.05, 0.09, 150));
}
BENCHMARK(PowerOfTable);

void SizeOfTable(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(kelpower::chi_square::SizeForPower(6, 0.05, 0.09, 0.8));
}
BENCHMARK(SizeOfTable);

void PowerOfAVariance(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(kelpower::variances::VarianceTest::Checked(81, 0.05, false)->Power(1.5));
}
BENCHMARK(PowerOfAVariance);

void PowerOfTwoVariances(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(kelpower::variances::TwoVariancesTest::Checked(193, 193, 0.05, false)->Power(1.5));
}
BENCHMARK(PowerOfTwoVariances);

}  // namespace
