#include "means/margins.h"

#include <gtest/gtest.h>

#include <cmath>

#include "means/crossover.h"
#include "means/equivalence.h"
#include "means/paired.h"
#include "support/drawn_means.h"
#include "support/share_of_studies.h"

// Means against margins: data are drawn and tested as a study would.
namespace kelpower::means {
namespace {

constexpr int studies = 1000000;

void ExpectPower(const SimulatedShare& simulated, const Answer& power) {
  ASSERT_TRUE(power);
  EXPECT_LT(simulated.StandardErrorsFrom(*power), kMostStandardErrors) << *power << " against " << simulated.share;
}

TEST(MarginsOfAMean, ArePowersOfDrawnStudies) {
  const DifferenceDistribution five = SingleMean(5, 2);
  const double t = OneSidedTest(0.05, five)->critical;
  ExpectPower(Simulate(studies, 1, [&](auto& engine) { return ShowsAbove(DrawMean(engine, 5, 0.5, 2), -2, t); }),
              PowerBeyondMargin(2.5, 0.05, five));
  ExpectPower(Simulate(studies, 2, [&](auto& engine) { return ShowsBelow(DrawMean(engine, 5, -2, 2), -0.5, t); }),
              PowerBeyondMargin(1.5, 0.05, five));
  ExpectPower(Simulate(studies, 3, [&](auto& engine) { return ShowsBetween(DrawMean(engine, 5, 0.5, 2), -4, 4, t); }),
              PowerBetweenLimits({4.5, 3.5}, 0.05, five));
}

TEST(MarginsOfPairs, ArePowersOfDrawnStudies) {
  const PairedSpread spread{3, 2, 0.6};
  const DifferenceDistribution seven = SingleMean(7, DifferenceVariance::Of(spread).StandardDeviation());
  const double t = OneSidedTest(0.1, seven)->critical;
  ExpectPower(Simulate(studies, 4, [&](auto& engine) { return ShowsAbove(DrawPairs(engine, 7, 1, spread), -1, t); }),
              PowerBeyondMargin(2, 0.1, seven));
  ExpectPower(Simulate(studies, 5, [&](auto& engine) { return ShowsBelow(DrawPairs(engine, 7, 1, spread), 2, t); }),
              PowerBeyondMargin(1, 0.1, seven));
  ExpectPower(
      Simulate(studies, 6, [&](auto& engine) { return ShowsBetween(DrawPairs(engine, 7, -0.5, spread), -2, 3, t); }),
      PowerBetweenLimits({1.5, 3.5}, 0.1, seven));
}

TEST(MarginsOfTwoMeans, ArePowersOfDrawnStudies) {
  const DifferenceDistribution estimate = PooledDifference(4, 7, 3);
  const double t = OneSidedTest(0.05, estimate)->critical;
  ExpectPower(Simulate(studies, 7, [&](auto& engine) { return ShowsAbove(DrawGroups(engine, 4, 7, 1, 3), -3, t); }),
              PowerBeyondMargin(4, 0.05, estimate));
  ExpectPower(
      Simulate(studies, 8, [&](auto& engine) { return ShowsBetween(DrawGroups(engine, 4, 7, 1, 3), -6, 6, t); }),
      PowerBetweenLimits({7, 5}, 0.05, estimate));
  // Lognormal data: of means 0.9 and 1 and one coefficient of variation the logarithms differ by ln(0.9).
  const double sd = SdOfLogarithms(0.3);
  ExpectPower(Simulate(studies, 9,
                       [&](auto& engine) {
                         const Estimate logs = DrawGroups(engine, 4, 7, std::log(0.9), sd);
                         return ShowsBetween(logs, std::log(0.5), std::log(2.0), t);
                       }),
              PowerBetweenLimits({LogDistance(0.9, 0.5), LogDistance(2, 0.9)}, 0.05, PooledDifference(4, 7, sd)));
}

/// Welch's test, whose degrees of freedom each study estimates.
template <typename Engine>
bool ShowsByWelch(Engine& engine, int n1, int n2, double difference, double sd1, double sd2) {
  const WelchEstimate found = DrawWelch(engine, n1, n2, difference, sd1, sd2);
  const DifferenceDistribution distribution{found.df, found.estimate.standardError};
  return ShowsAbove(found.estimate, -2, OneSidedTest(0.05, distribution)->critical);
}

// The degrees of freedom are taken at the standard deviations expected, which is an approximation; in groups of some ten
// it is off by less than 0.002.
TEST(MarginsOfTwoMeans, AreNearlyThoseOfWelchsTest) {
  const SimulatedShare drawn =
      Simulate(studies / 5, 10, [](auto& engine) { return ShowsByWelch(engine, 12, 9, 0, 2, 4); });
  const double power = *PowerBeyondMargin(2, 0.05, WelchDifference(12, 2, 9, 4));
  EXPECT_NEAR(drawn.share, power, 0.002 + kMostStandardErrors * std::sqrt(power * (1 - power) / drawn.studies));
}

TEST(MarginsInACrossover, ArePowersOfDrawnStudies) {
  const DifferenceDistribution estimate = CrossoverDifference(4, 3, 2);
  const double t = OneSidedTest(0.05, estimate)->critical;
  ExpectPower(Simulate(studies, 11, [&](auto& engine) { return ShowsAbove(DrawCrossover(engine, 4, 3, 0, 2), -2, t); }),
              PowerBeyondMargin(2, 0.05, estimate));
  ExpectPower(
      Simulate(studies, 12, [&](auto& engine) { return ShowsBelow(DrawCrossover(engine, 4, 3, -3, 2), -1, t); }),
      PowerBeyondMargin(2, 0.05, estimate));
  ExpectPower(
      Simulate(studies, 13, [&](auto& engine) { return ShowsBetween(DrawCrossover(engine, 4, 3, 0.5, 2), -4, 4, t); }),
      PowerBetweenLimits({4.5, 3.5}, 0.05, estimate));
}

}  // namespace
}  // namespace kelpower::means
