#include <benchmark/benchmark.h>

#include <vector>

#include "anova/covariance.h"
#include "anova/factorial.h"
#include "anova/repeated.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelpower.h"

namespace {

using KelMath::KelDistFun;

const std::vector<double> usualMeans = {10, 12, 15};
const std::vector<double> usualSizes = {20, 20, 20};

void PowerOfOverallTest(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(PowerOverallTest(3, usualMeans.data(), 6, usualSizes.data(), 0.05));
  }
}
BENCHMARK(PowerOfOverallTest);

void PowerOfInteraction(benchmark::State& state) {
  using namespace kelpower::anova;
  const std::vector<double> means = {1, 2, 3, 2, 5, 4, 0, 1, 7};
  std::vector<double> sizes(9, 10);
  sizes[0] += static_cast<double>(state.range(0));
  for (auto _ : state) {
    const auto term = FactorialTerm::Of({3, 3}, {1, 2});
    benchmark::DoNotOptimize(EffectTest(term->Df(), 81, 0.05).Power(*term->Noncentrality(means, sizes, 6)));
  }
}
BENCHMARK(PowerOfInteraction)->ArgName("unequal")->Arg(0)->Arg(1);

void PowerOfAdjustedMeans(benchmark::State& state) {
  const auto covariates = static_cast<double>(state.range(0));
  for (auto _ : state) {
    benchmark::DoNotOptimize(kelpower::anova::CovarianceTest(3, 63, covariates, 0.05).Power(10.6));
  }
}
BENCHMARK(PowerOfAdjustedMeans)->ArgName("covariates")->Arg(0)->Arg(1)->Arg(10);

void PowerOfRepeatedMeasures(benchmark::State& state) {
  using namespace kelpower::anova;
  const RepeatedDesign design{RepeatedEffect::Interaction, 2, 4, 0.5, 1};
  for (auto _ : state) {
    benchmark::DoNotOptimize(design.TestAt(24, 0.05).Power(design.NoncentralityOfF(0.25, RepeatedF::Means, 24)));
  }
}
BENCHMARK(PowerOfRepeatedMeasures);

void PowerOfContrast(benchmark::State& state) {
  std::vector<double> coefficients = {1, 0, -1};
  const int isDirectional = static_cast<int>(state.range(0));
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        PowerSC(3, usualMeans.data(), 6, usualSizes.data(), coefficients.data(), isDirectional, 0.05));
  }
}
BENCHMARK(PowerOfContrast)->ArgName("directional")->Arg(0)->Arg(1);

void SizeOfOverallTest(benchmark::State& state) {
  DoubleVector sizes;
  for (auto _ : state) {
    benchmark::DoNotOptimize(PowerReverseOverallTest(3, usualMeans.data(), 6, usualSizes.data(), 0.8, sizes, 0.05));
  }
}
BENCHMARK(SizeOfOverallTest);

void SizeThatDoesNotExist(benchmark::State& state) {
  const std::vector<double> equal = {5, 5, 5};
  DoubleVector sizes;
  for (auto _ : state) {
    benchmark::DoNotOptimize(PowerReverseOverallTest(3, equal.data(), 6, usualSizes.data(), 0.8, sizes, 0.05));
  }
}
BENCHMARK(SizeThatDoesNotExist)->Unit(benchmark::kMillisecond);

void SizeForHalfWidth(benchmark::State& state) {
  DoubleVector sizes;
  for (auto _ : state) {
    benchmark::DoNotOptimize(PowerReversebyHalfCIOverallTest(1.0, 3, usualSizes.data(), 6, sizes, 0.05));
  }
}
BENCHMARK(SizeForHalfWidth);

// A surface of 500 sizes by 50 effects, and the 25,000 noncentral probabilities that it cannot do without.
void SurfaceOfSizesAndEffects(benchmark::State& state) {
  for (auto _ : state) {
    XYZPlot plot = PlotNaESOverallTest(3, 0.3, 0, usualSizes.data(), 10, 509, 0.02, 1.0, 0.05, 1.0 / 49);
    benchmark::DoNotOptimize(plot.z);
    FreeMemXYZPlot(&plot);
  }
}
BENCHMARK(SurfaceOfSizesAndEffects)->Unit(benchmark::kMillisecond);

void NoncentralProbabilitiesOfThatSurface(benchmark::State& state) {
  XYZPlot plot = PlotNaESOverallTest(3, 0.3, 0, usualSizes.data(), 10, 509, 0.02, 1.0, 0.05, 1.0 / 49);
  std::vector<double> critical;
  for (int i = 0; i < plot.xCount; ++i) critical.push_back(KelDistFun::IdfF(0.95, 2, plot.x[i] - 3));
  for (auto _ : state) {
    double sum = 0;
    for (int i = 0; i < plot.xCount; ++i) {
      for (int j = 0; j < plot.yCount; ++j) {
        const double noncentrality = plot.y[j] * plot.x[i] * plot.y[j];
        sum +=
            KelDistFun::NonCentralCdfF(critical[static_cast<std::size_t>(i)], 2, plot.x[i] - 3, noncentrality, 1e-12);
      }
    }
    benchmark::DoNotOptimize(sum);
  }
  FreeMemXYZPlot(&plot);
}
BENCHMARK(NoncentralProbabilitiesOfThatSurface)->Unit(benchmark::kMillisecond);

}  // namespace
