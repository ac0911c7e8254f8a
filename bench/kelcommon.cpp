#include <benchmark/benchmark.h>

#include "kelcommon/distributions.h"
#include "kelcommon/kel_dist_fun.h"

using KelMath::KelDistFun;

// The distribution functions on arguments as the power functions pass them. The number after the name is the sample
// size of the design.
namespace {

constexpr double alpha = 0.05;

void IdfF(benchmark::State& state) {
  const double df2 = static_cast<double>(state.range(0)) - 4;
  for (auto _ : state) benchmark::DoNotOptimize(KelDistFun::IdfF(1 - alpha, 3, df2));
}
BENCHMARK(IdfF)->Arg(80)->Arg(2000);

// Four groups and a medium effect.
void NonCentralCdfF(benchmark::State& state) {
  const double size = static_cast<double>(state.range(0));
  const double critical = KelDistFun::IdfF(1 - alpha, 3, size - 4);
  for (auto _ : state)
    benchmark::DoNotOptimize(KelDistFun::NonCentralCdfF(critical, 3, size - 4, size * 0.0625, 1e-12));
}
BENCHMARK(NonCentralCdfF)->Arg(80)->Arg(2000);

void IdfT(benchmark::State& state) {
  const double df = static_cast<double>(state.range(0)) - 1;
  for (auto _ : state) benchmark::DoNotOptimize(KelDistFun::IdfT(1 - alpha / 2, df, 1e-40, 1e-30));
}
BENCHMARK(IdfT)->Arg(30)->Arg(2000);

// A mean of the square far from 1: a sum with many terms, and an integral in the complex plane.
void NonCentralCdfFFarOut(benchmark::State& state) {
  const double noncentrality = static_cast<double>(state.range(0));
  const double x = 1.01 * (3 + noncentrality) / 3;
  for (auto _ : state) benchmark::DoNotOptimize(KelDistFun::NonCentralCdfF(x, 3, 2000, noncentrality, 1e-12));
}
BENCHMARK(NonCentralCdfFFarOut)->ArgName("noncentrality")->Arg(3000)->Arg(30000);

// One sample and an effect of 2.8 standard errors, a power near 0.8.
void NonCentralCdfT(benchmark::State& state) {
  const double df = static_cast<double>(state.range(0)) - 1;
  const double critical = KelDistFun::IdfT(1 - alpha / 2, df, 1e-40, 1e-30);
  for (auto _ : state) benchmark::DoNotOptimize(KelDistFun::NonCentralCdfT(critical, df, 2.8, 1e-12));
}
BENCHMARK(NonCentralCdfT)->Arg(30)->Arg(2000);

// The same design's probability of a rejection in the wrong direction.
void NonCentralCdfTWrongSide(benchmark::State& state) {
  const double df = static_cast<double>(state.range(0)) - 1;
  const double critical = KelDistFun::IdfT(1 - alpha / 2, df, 1e-40, 1e-30);
  for (auto _ : state) benchmark::DoNotOptimize(KelDistFun::NonCentralCdfT(-critical, df, 2.8, 1e-12));
}
BENCHMARK(NonCentralCdfTWrongSide)->Arg(30)->Arg(2000);

// The power of a one-sided and of a two-sided t test: a quantile and one noncentral probability.
void PowerOfT(benchmark::State& state) {
  const double df = static_cast<double>(state.range(0)) - 1;
  for (auto _ : state) {
    const double critical = KelDistFun::IdfT(1 - alpha, df, 1e-40, 1e-30);
    benchmark::DoNotOptimize(1 - KelDistFun::NonCentralCdfT(critical, df, 2.8, 1e-12));
  }
}
BENCHMARK(PowerOfT)->Arg(30)->Arg(2000);

void PowerOfTwoSidedT(benchmark::State& state) {
  const double df = static_cast<double>(state.range(0)) - 1;
  for (auto _ : state) {
    const double critical = KelDistFun::IdfT(1 - alpha / 2, df, 1e-40, 1e-30);
    benchmark::DoNotOptimize(1 - KelDistFun::NonCentralCdfF(critical * critical, 1, df, 2.8 * 2.8, 1e-12));
  }
}
BENCHMARK(PowerOfTwoSidedT)->Arg(30)->Arg(2000);

void CdfStdNorm(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(KelDistFun::CdfStdNorm(-0.84));
}
BENCHMARK(CdfStdNorm);

void IdfStdNorm(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(KelDistFun::IdfStdNorm(1 - alpha / 2));
}
BENCHMARK(IdfStdNorm);

// The squared multiple correlation of five predictors.
void CdfBeta(benchmark::State& state) {
  const double size = static_cast<double>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(KelDistFun::CdfBeta(11 / size, 2.5, (size - 6) / 2));
}
BENCHMARK(CdfBeta)->Arg(80)->Arg(2000);

// A Clopper-Pearson limit of the proportion 0.3.
void IdfBeta(benchmark::State& state) {
  const double successes = 0.3 * static_cast<double>(state.range(0));
  const double failures = 0.7 * static_cast<double>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(KelDistFun::IdfBeta(alpha / 2, successes, failures + 1));
}
BENCHMARK(IdfBeta)->Arg(50)->Arg(2000);

// The upper limit of the interval of Jeffreys after no success.
void IdfBetaSmallShape(benchmark::State& state) {
  const double failures = static_cast<double>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(KelDistFun::IdfBeta(1 - alpha / 2, 0.5, failures + 0.5));
}
BENCHMARK(IdfBetaSmallShape)->Arg(50)->Arg(2000);

void CdfBin(benchmark::State& state) {
  const double size = static_cast<double>(state.range(0));
  long err = 0;
  for (auto _ : state) benchmark::DoNotOptimize(KelDistFun::CdfBin(0.24 * size, size, 0.3, err));
}
BENCHMARK(CdfBin)->Arg(50)->Arg(2000)->Arg(1000000);

// The null distribution of the sign test.
void CdfBinSignTest(benchmark::State& state) {
  const double size = static_cast<double>(state.range(0));
  long err = 0;
  for (auto _ : state) benchmark::DoNotOptimize(KelDistFun::CdfBin(0.4 * size, size, 0.5, err));
}
BENCHMARK(CdfBinSignTest)->Arg(30)->Arg(100);

void IdfBin(benchmark::State& state) {
  const double size = static_cast<double>(state.range(0));
  long err = 0;
  for (auto _ : state) benchmark::DoNotOptimize(KelDistFun::IdfBin(alpha / 2, size, 0.5, err));
}
BENCHMARK(IdfBin)->Arg(50)->Arg(2000)->Arg(1000000);

void PdfBin(benchmark::State& state) {
  const double size = static_cast<double>(state.range(0));
  long err = 0;
  for (auto _ : state) benchmark::DoNotOptimize(KelDistFun::PdfBin(0.28 * size, size, 0.3, err));
}
BENCHMARK(PdfBin)->Arg(50)->Arg(2000);

void PdfNegBin(benchmark::State& state) {
  const double size = static_cast<double>(state.range(0));
  long err = 0;
  for (auto _ : state) benchmark::DoNotOptimize(KelDistFun::PdfNegBin(20, size / 2, 0.8, err));
}
BENCHMARK(PdfNegBin)->Arg(80)->Arg(200);

void orvadnlgam(benchmark::State& state) {
  const double x = static_cast<double>(state.range(0)) / 2;
  for (auto _ : state) benchmark::DoNotOptimize(KelDistFun::orvadnlgam(x));
}
BENCHMARK(orvadnlgam)->Arg(5)->Arg(80);

// The power of the test at a correlation of 0.5 where it is 0.3.
void SfCorrelation(benchmark::State& state) {
  const double size = static_cast<double>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(kelcommon::SfCorrelation(0.5, size, 0.3));
}
BENCHMARK(SfCorrelation)->Arg(5)->Arg(50)->Arg(2000)->Arg(1000000);

void IdfCorrelation(benchmark::State& state) {
  const double size = static_cast<double>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(kelcommon::IdfCorrelation(1 - alpha / 2, size, 0.3));
}
BENCHMARK(IdfCorrelation)->Arg(5)->Arg(50)->Arg(2000)->Arg(1000000);

}  // namespace
