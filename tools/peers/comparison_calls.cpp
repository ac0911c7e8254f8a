// Times the core on the designs of comparisons.py. Nothing is kept between calls, critical values and regions of exact
// tests included.

#include <benchmark/benchmark.h>

#include <limits>

#include "anova/covariance.h"
#include "anova/one_effect.h"
#include "anova/repeated.h"
#include "chi_square/power.h"
#include "comparisons/dunnett.h"
#include "comparisons/tukey.h"
#include "correlation/dependent_correlations.h"
#include "correlation/exact_pearson.h"
#include "correlation/two_correlations.h"
#include "means/crossover.h"
#include "means/equivalence.h"
#include "means/margins.h"
#include "proportions/independent_margins.h"
#include "proportions/one_sample_margins.h"
#include "proportions/unconditional_margins.h"
#include "ranks/mann_whitney.h"
#include "ranks/ordinal.h"
#include "ranks/signed_rank.h"
#include "variances/one_variance.h"
#include "variances/two_variances.h"

namespace {

using namespace kelpower;

constexpr proportions::ContrastLimits notWorse{proportions::Contrast::Difference, -0.1,
                                               std::numeric_limits<double>::infinity()};

Answer Bioequivalence() {
  const means::Insides insides{means::LogDistance(0.95, 0.8), means::LogDistance(1.25, 0.95)};
  return means::PowerBetweenLimits(insides, 0.05, means::CrossoverDifference(12, 12, means::SdOfLogarithms(0.25)));
}

Answer EquivalenceOfAProportion(const proportions::OneSampleMarginDesign& design, double n, double proportion) {
  return proportions::OneSampleMarginTest(design).Power(n, proportion);
}

Answer FarringtonAndManning() {
  using proportions::MarginMethod;
  return proportions::IndependentMarginTest({notWorse, MarginMethod::FarringtonManning, 0.025}, 200, 200)
      .Power({0.85, 0.85});
}

Answer Unconditional() { return proportions::UnconditionalMarginTest(notWorse, 0.025, 100, 100).Power({0.85, 0.85}); }

Answer Dunnett() {
  const comparisons::DunnettTest test({10, 10, 10, 10}, /*isOneSided=*/false, 0.05);
  return test.Power(comparisons::Comparisons::Any, test.Noncentralities({0, 0, 0.5, 1}));
}

// The group means 400, 450 and 500, whose variance at given covariates is 9900.
Answer Covariance() { return anova::CovarianceTest(3, 63, 1, 0.05).Power(21 * 5000 / 9900.0); }

Answer DependentCorrelations() {
  const correlation::SharedVariable correlations{0.5, 0.3, 0.4};
  return correlation::Power({0.05, false}, correlations, correlation::NullCorrelations::First, 100);
}

Answer Repeated() {
  const anova::RepeatedDesign design{anova::RepeatedEffect::Interaction, 2, 3, 0.5, 1};
  return design.TestAt(28, 0.05).Power(design.NoncentralityOfF(0.25, anova::RepeatedF::Means, 28));
}

Answer Ordinal() {
  constexpr double five[] = {0.1, 0.2, 0.4, 0.2, 0.1};
  return ranks::Power({ranks::OrdinalMethod::LogOdds, ranks::Sides::Two, 0.05}, {five, nullptr, 2, 5}, 40, 60);
}

struct Call {
  const char* name;  // as in comparisons.py
  Answer (*call)();
};

const Call calls[] = {
    {"equivalence-means",
     [] {
       return means::PowerBetweenLimits({1.3, 1.3}, 0.05, means::PooledDifference(63, 63, 2.2));
     }},
    {"bioequivalence", Bioequivalence},
    {"non-inferiority-means", [] { return means::PowerBeyondMargin(2, 0.025, means::PooledDifference(60, 60, 6)); }},
    {"equivalence-proportion-exact",
     [] {
       return EquivalenceOfAProportion({{0.5, 0.7}, 0.05, true}, 500, 0.6);
     }},
    {"equivalence-proportion",
     [] {
       return EquivalenceOfAProportion({{0.7, 0.9}, 0.025, false}, 638, 0.75);
     }},
    {"farrington-manning", FarringtonAndManning},
    {"unconditional", Unconditional},
    {"tukey-3",
     [] {
       return comparisons::PowerOfAnyPair({0, 0.5, 1}, 20, 0.05);
     }},
    {"tukey-4",
     [] {
       return comparisons::PowerOfAnyPair({0, 0, 0.5, 1}, 10, 0.05);
     }},
    {"dunnett", Dunnett},
    {"factorial", [] { return anova::EffectTest(4, 72, 0.05).Power(108 * 0.25 * 0.25); }},
    {"covariance", Covariance},
    {"chi-square", [] { return chi_square::Power(6, 0.05, 0.09, 150); }},
    {"chi-square-size", [] { return chi_square::SizeForPower(6, 0.05, 0.09, 0.8); }},
    {"variance", [] { return variances::VarianceTest::Checked(81, 0.05, false)->Power(1.5); }},
    {"two-variances", [] { return variances::TwoVariancesTest::Checked(193, 193, 0.05, false)->Power(1.5); }},
    {"mann-whitney",
     [] {
       return ranks::PowerByMoments({ranks::Sides::Two, 0.05}, ranks::Parent::Normal, 0.5, 40, 60);
     }},
    {"signed-rank",
     [] {
       return ranks::PowerByMoments({ranks::Sides::Two, 0.05}, ranks::Parent::Normal, 0.5, 40);
     }},
    {"correlation-exact",
     [] {
       return correlation::ExactPower({0.05, false}, 85, {0.3, 0});
     }},
    {"two-correlations",
     [] {
       return correlation::PowerOfDifference({0.05, false}, 0.4, {100, 100});
     }},
    {"dependent-correlations", DependentCorrelations},
    {"repeated-measures", Repeated},
    {"ordinal", Ordinal},
};

void Time(benchmark::State& state, Answer (*call)()) {
  for (auto _ : state) benchmark::DoNotOptimize(call());
  state.counters["answer"] = call().ValueOr(std::numeric_limits<double>::quiet_NaN());
}

}  // namespace

int main(int argc, char** argv) {
  for (const Call& each : calls) benchmark::RegisterBenchmark(each.name, Time, each.call);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
}
