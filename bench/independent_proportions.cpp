#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>

#include "exports/proportions/independent_literal.h"
#include "kelpower.h"
#include "proportions/independent_design.h"

namespace {

using namespace kelpower;

double Power(double n, int exact, int method, double p1 = 0.3, double p2 = 0.5) {
  return PowerIndSampBinom(n, n, p1, p2, exact, method, 0, 0.05, 0, 0, nullptr);
}

/// The processor time of the fastest of some calls, so that what else the machine does counts little.
template <typename Function>
double Seconds(int calls, Function function) {
  double fastest = 1e9;
  for (int i = 0; i < calls; ++i) {
    const std::clock_t start = std::clock();
    function();
    fastest = std::min(fastest, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
  }
  return fastest;
}

// How many times faster than the definition, table by table and total by total. Methods 0 to 2 are the z, t and
// likelihood-ratio tests, 3 is the conditional test, whose definition takes too long beyond 40 and 40.
void ExactPowerAgainstItsDefinition(benchmark::State& state) {
  const int method = static_cast<int>(state.range(0));
  const double n = method == 3 ? 40 : 100;
  using proportions::TwoProportionTest;
  const auto tested = method == 3 ? TwoProportionTest::Conditional : TwoProportionTest(method);
  const proportions::IndependentDesign test{tested, /*isExact=*/true, /*isOneSided=*/false, 0.05};
  const double literal =
      Seconds(5, [&] { benchmark::DoNotOptimize(LiteralExactPower(test, n, n, 0.3, 0.5, nullptr)); });
  constexpr int manyCases = 100;  // the clock counts microseconds
  const double ours = Seconds(5, [&] {
    for (int i = 0; i < manyCases; ++i) benchmark::DoNotOptimize(Power(n, 1, method));
  });
  for (auto _ : state) benchmark::DoNotOptimize(Power(n, 1, method));
  state.counters["ratio"] = literal / (ours / manyCases);
}
BENCHMARK(ExactPowerAgainstItsDefinition)->ArgName("method")->DenseRange(0, 3)->Unit(benchmark::kMicrosecond);

void ExactPower(benchmark::State& state) {
  const double n = static_cast<double>(state.range(0));
  const int method = static_cast<int>(state.range(1));
  for (auto _ : state) benchmark::DoNotOptimize(Power(n, 1, method));
}
BENCHMARK(ExactPower)
    ->ArgNames({"n", "method"})
    ->ArgsProduct({{100, 400, 3000}, {0, 1, 2, 3}})
    ->Unit(benchmark::kMicrosecond);

/// The least that a caller's request can do.
class NeverStops : public StopRequest {
public:
  bool ShouldStop() override { return false; }
};

// What a request costs that never stops: it is asked once a table, by the conditional test once a total.
void ExactPowerThatCanBeStopped(benchmark::State& state) {
  const int method = static_cast<int>(state.range(0));
  NeverStops stop;
  for (auto _ : state) {
    benchmark::DoNotOptimize(PowerIndSampBinom(400, 400, 0.3, 0.5, 1, method, 0, 0.05, 0, 0, &stop));
  }
}
BENCHMARK(ExactPowerThatCanBeStopped)->ArgName("method")->DenseRange(0, 3)->Unit(benchmark::kMicrosecond);

// About 400 per group; method 4 is the conditional test.
void ExactSizeWithAndWithoutRequest(benchmark::State& state) {
  const int method = static_cast<int>(state.range(0));
  NeverStops stop;
  StopRequest* request = state.range(1) != 0 ? &stop : nullptr;
  DoubleVector sizes;
  for (auto _ : state) {
    sizes.clear();
    PowerReverseIndSampBinom(0.8, 0.3, 0.4, sizes, 1, 1, method, 0, 0.05, 0, 0, request);
  }
  state.counters["N1"] = sizes[0];
}
BENCHMARK(ExactSizeWithAndWithoutRequest)
    ->ArgNames({"method", "request"})
    ->ArgsProduct({{0, 1, 2, 4}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

void LargeSamplePower(benchmark::State& state) {
  const int method = static_cast<int>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(Power(100, 0, method));
}
BENCHMARK(LargeSamplePower)->ArgName("method")->DenseRange(0, 3);

// About 100 per group.
void SizeForAPower(benchmark::State& state) {
  const int exact = static_cast<int>(state.range(0));
  const int method = static_cast<int>(state.range(1));
  DoubleVector sizes;
  for (auto _ : state) {
    sizes.clear();
    PowerReverseIndSampBinom(0.85, 0.3, 0.5, sizes, 1, exact, method, 0, 0.05, 0, 0, nullptr);
  }
  state.counters["N1"] = sizes[0];
}
BENCHMARK(SizeForAPower)
    ->ArgNames({"exact", "method"})
    ->ArgsProduct({{0, 1}, {0, 1, 2, 3, 4}})
    ->Unit(benchmark::kMicrosecond);

void ExactSizeThatDoesNotExist(benchmark::State& state) {
  DoubleVector sizes;
  for (auto _ : state) {
    sizes.clear();
    PowerReverseIndSampBinom(0.8, 0.3, 0.3, sizes, 1, 1, 0, 0, 0.05, 0, 0, nullptr);
  }
}
BENCHMARK(ExactSizeThatDoesNotExist)->Unit(benchmark::kMillisecond);

void HalfWidth(benchmark::State& state) {
  const int ciMethod = static_cast<int>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(HalfCIIndSampBinom(70, 80, 0.8, 0.6, ciMethod, 0.05, 0));
}
BENCHMARK(HalfWidth)->ArgName("method")->DenseRange(0, 5);

void SizeForAHalfWidth(benchmark::State& state) {
  const int ciMethod = static_cast<int>(state.range(0));
  DoubleVector sizes;
  for (auto _ : state) {
    PowerReversebyHalfCIIndSampBinom(0.1, 0.8, 0.6, sizes, 1, ciMethod, 0.05, 0, nullptr);
  }
}
BENCHMARK(SizeForAHalfWidth)->ArgName("method")->Arg(0)->Arg(5);

// 19 by 19 pairs of proportions at 100 and 100.
void SurfaceOfProportions(benchmark::State& state) {
  const int method = static_cast<int>(state.range(0));
  for (auto _ : state) {
    XYZPlot plot = PlotPropIndSampBinom(100, 100, 0.3, 0.5, 1, method, 0, 0.05, 0, 0, 0.05);
    benchmark::DoNotOptimize(plot.z);
    FreeMemXYZPlot(&plot);
  }
}
BENCHMARK(SurfaceOfProportions)->ArgName("method")->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

// 50 by 50 pairs of sizes around 100.
void SurfaceOfSizes(benchmark::State& state) {
  const int method = static_cast<int>(state.range(0));
  for (auto _ : state) {
    XYZPlot plot = PlotNIndSampBinom(100, 100, 0.3, 0.5, 1, method, 0, 0.05, 0, 0, 76, 125, 76, 125);
    benchmark::DoNotOptimize(plot.z);
    FreeMemXYZPlot(&plot);
  }
}
BENCHMARK(SurfaceOfSizes)->ArgName("method")->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

void ExactCurves(benchmark::State& state) {
  for (auto _ : state) {
    XYPlot split = PlotNRatioIndSampBinom(200, 0.3, 0.5, 1, 0, 0, 0.05, 0, 0, 0, 0, 0.05);
    XYPlot difference = PlotRiskDiffIndSampBinom(100, 100, 0.3, 1, 0, 0, 0.05, 0, 0, 0.05);
    XYPlot risk = PlotRiskRatioIndSampBinom(100, 100, 0.3, 1, 0, 0, 0.05, 0, 0, 0.5, 3, 0.05);
    XYPlot odds = PlotOddsRatioIndSampBinom(100, 100, 0.3, 1, 0, 0, 0.05, 0, 0, 0.5, 3, 0.05);
    FreeMemXYPlot(&split);
    FreeMemXYPlot(&difference);
    FreeMemXYPlot(&risk);
    FreeMemXYPlot(&odds);
  }
}
BENCHMARK(ExactCurves)->Unit(benchmark::kMicrosecond);

}  // namespace
