#include <gtest/gtest.h>

#include <cmath>

#include "correlation/dependent_correlations.h"
#include "correlation/exact_pearson.h"
#include "correlation/two_correlations.h"
#include "support/drawn_correlation.h"
#include "support/drawn_variables.h"
#include "support/share_of_studies.h"

// Studies drawn from normal distributions, with the test done as its users do it. The exact test has the power stated;
// of the tests by Fisher's z, which is nearly normal, the documentation says how far the power stated may be off.
namespace kelpower::correlation {
namespace {

constexpr int studies = 1000000;

TEST(ExactPearson, RejectsAsOftenAsItsPowerSays) {
  struct Design {
    int size;
    double r;
    double null;
    bool isOneSided;
  };
  unsigned seed = 20261122;
  for (const Design& design : {Design{8, 0.3, 0.8, false}, Design{5, -0.6, 0, true}, Design{20, 0.7, 0.4, false}}) {
    const Level level(0.05, design.isOneSided);
    const CriticalCorrelations critical = CriticalValues(level, design.size, {design.r, design.null});
    const SimulatedShare share = Simulate(studies, seed++, [&](auto& engine) {
      const double r = DrawCorrelation(engine, design.size, design.r);
      return r <= critical.below || r >= critical.above;
    });
    const double power = *ExactPower(level, design.size, {design.r, design.null});
    EXPECT_LT(share.StandardErrorsFrom(power), kMostStandardErrors)
        << design.size << ' ' << share.share << ' ' << power;
  }
}

/// How far the share of studies is from the power, beyond what chance explains.
double Beyond(const SimulatedShare& share, double power) {
  return std::fabs(share.share - power) - kMostStandardErrors * std::sqrt(power * (1 - power) / share.studies);
}

// Stated in docs/correlation.md.
constexpr double statedFrom15 = 0.04;
constexpr double statedFrom20 = 0.018;
constexpr double statedFrom100 = 0.006;
constexpr double statedForDependent = 0.015;

TEST(TwoCorrelations, RejectAboutAsOftenAsTheirPowerSays) {
  struct Design {
    GroupSizes sizes;
    double first;
    double second;
    bool isOneSided;
    double stated;
  };
  unsigned seed = 20261123;
  for (const Design& design :
       {Design{{20, 20}, 0.3, 0.3, false, statedFrom20}, Design{{25, 40}, 0.75, 0.3, false, statedFrom20},
        Design{{30, 15}, -0.2, 0.5, true, statedFrom15}, Design{{100, 100}, 0.3, 0.6, false, statedFrom100}}) {
    const Level level(0.05, design.isOneSided);
    const double direction = design.first > design.second ? 1 : -1;
    const double error = StandardError(design.sizes);
    const SimulatedShare share = Simulate(studies / 4, seed++, [&](auto& engine) {
      const double first = DrawCorrelation(engine, static_cast<int>(design.sizes.first), design.first);
      const double second = DrawCorrelation(engine, static_cast<int>(design.sizes.second), design.second);
      const double z = direction * FisherDifference({first, second}) / error;
      return design.isOneSided ? z > level.critical : std::fabs(z) > level.critical;
    });
    const double power = *PowerOfDifference(level, FisherDifference({design.first, design.second}), design.sizes);
    EXPECT_LT(Beyond(share, power), design.stated) << share.share << ' ' << power;
  }
}

/// Steiger's statistic of a sample: its standard error is that at the average of the correlations compared.
template <typename Correlations>
double Statistic(const Correlations& sample, int size) {
  return UnderAlternative(sample, NullCorrelations::Average, size).shift;
}

SharedVariable FirstThree(const SeparatePairs& c) { return {c.r12, c.r13, c.r23}; }

TEST(DependentCorrelations, RejectAboutAsOftenAsTheirPowerSays) {
  const Level level(0.05, false);
  constexpr int size = 60;
  unsigned seed = 20261124;
  for (const SeparatePairs& c : {SeparatePairs{0.5, 0.1, 0.2, 0.2, 0.2, 0.2}, SeparatePairs{0.3, 0.3, 0.5, 0.2, 0.1, 0},
                                 SeparatePairs{0.7, 0.4, 0.5, 0.3, 0.6, 0.3}}) {
    const Variables variables(c);
    int inCommon = 0;
    const SimulatedShare pairs = Simulate(studies / 8, seed++, [&](auto& engine) {
      const SeparatePairs sample = variables.Draw<SeparatePairs>(engine, size);
      inCommon += std::fabs(Statistic(FirstThree(sample), size)) > level.critical ? 1 : 0;
      return std::fabs(Statistic(sample, size)) > level.critical;
    });
    const SimulatedShare common{inCommon / pairs.studies, pairs.studies};
    const double power = *Power(level, c, NullCorrelations::Average, size);
    const double powerInCommon = *Power(level, FirstThree(c), NullCorrelations::Average, size);
    EXPECT_LT(Beyond(pairs, power), statedForDependent) << pairs.share << ' ' << power;
    EXPECT_LT(Beyond(common, powerInCommon), statedForDependent) << common.share << ' ' << powerInCommon;
  }
}

}  // namespace
}  // namespace kelpower::correlation
