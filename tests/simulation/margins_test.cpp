#include "means/margins.h"

#include <gtest/gtest.h>

#include <cmath>

#include "means/crossover.h"
#include "means/equivalence.h"
#include "means/paired.h"
#include "support/share_of_studies.h"

// Means against margins: data are drawn and tested as a study would.
namespace kelpower::means {
namespace {

constexpr int studies = 1000000;

/// A difference that a study has estimated.
struct Estimate {
  double difference;
  double standardError;
};

bool ShowsAbove(const Estimate& estimate, double margin, double t) {
  return (estimate.difference - margin) / estimate.standardError > t;
}

bool ShowsBelow(const Estimate& estimate, double margin, double t) {
  return (estimate.difference - margin) / estimate.standardError < -t;
}

bool ShowsBetween(const Estimate& estimate, double lower, double upper, double t) {
  return ShowsAbove(estimate, lower, t) && ShowsBelow(estimate, upper, t);
}

void ExpectPower(const SimulatedShare& simulated, const Answer& power) {
  ASSERT_TRUE(power);
  EXPECT_LT(simulated.StandardErrorsFrom(*power), kMostStandardErrors) << *power << " against " << simulated.share;
}

template <typename Engine>
Estimate DrawMean(Engine& engine, int size, double mean, double sd) {
  const Moments sample = DrawNormal(engine, size, mean, sd);
  return {sample.mean, std::sqrt(sample.variance / size)};
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

/// The mean of the differences of pairs.
template <typename Engine>
Estimate DrawPairs(Engine& engine, int pairs, double difference, const PairedSpread& spread) {
  std::normal_distribution<double> normal;
  const double rest = std::sqrt(1 - spread.correlation * spread.correlation);
  double sum = 0;
  double squares = 0;
  for (int i = 0; i < pairs; ++i) {
    const double first = normal(engine);
    const double second = spread.correlation * first + rest * normal(engine);
    const double d = difference + spread.sd1 * first - spread.sd2 * second;
    sum += d;
    squares += d * d;
  }
  const double variance = (squares - sum * sum / pairs) / (pairs - 1);
  return {sum / pairs, std::sqrt(variance / pairs)};
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

template <typename Engine>
Estimate DrawGroups(Engine& engine, int n1, int n2, double difference, double sd) {
  const Moments first = DrawNormal(engine, n1, difference, sd);
  const Moments second = DrawNormal(engine, n2, 0, sd);
  const double variance = ((n1 - 1) * first.variance + (n2 - 1) * second.variance) / (n1 + n2 - 2);
  return {first.mean - second.mean, std::sqrt(variance * (1.0 / n1 + 1.0 / n2))};
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
  const Moments first = DrawNormal(engine, n1, difference, sd1);
  const Moments second = DrawNormal(engine, n2, 0, sd2);
  const DifferenceDistribution found = WelchDifference(n1, std::sqrt(first.variance), n2, std::sqrt(second.variance));
  return ShowsAbove({first.mean - second.mean, found.standardError}, -2, OneSidedTest(0.05, found)->critical);
}

// The degrees of freedom are taken at the standard deviations expected, which is an approximation; in groups of some ten
// it is off by less than 0.002.
TEST(MarginsOfTwoMeans, AreNearlyThoseOfWelchsTest) {
  const SimulatedShare drawn =
      Simulate(studies / 5, 10, [](auto& engine) { return ShowsByWelch(engine, 12, 9, 0, 2, 4); });
  const double power = *PowerBeyondMargin(2, 0.05, WelchDifference(12, 2, 9, 4));
  EXPECT_NEAR(drawn.share, power, 0.002 + kMostStandardErrors * std::sqrt(power * (1 - power) / drawn.studies));
}

/// The differences of the periods of one sequence: the effects of subjects drop out, those of periods and treatments stay.
template <typename Engine>
Moments DrawSequence(Engine& engine, int size, double change, double within, double between) {
  std::normal_distribution<double> normal;
  double sum = 0;
  double squares = 0;
  for (int i = 0; i < size; ++i) {
    const double subject = between * normal(engine);
    const double first = subject + change + within * normal(engine);
    const double second = subject + within * normal(engine);
    sum += first - second;
    squares += (first - second) * (first - second);
  }
  return {sum / size, (squares - sum * sum / size) / (size - 1)};
}

/// One sequence has the treatments in one order, with the effect of the period added, the other in the reverse order.
template <typename Engine>
Estimate DrawCrossover(Engine& engine, int n1, int n2, double effect, double within) {
  constexpr double period = 1.5;
  constexpr double between = 4;
  const Moments one = DrawSequence(engine, n1, period + effect, within, between);
  const Moments other = DrawSequence(engine, n2, period - effect, within, between);
  const double variance = ((n1 - 1) * one.variance + (n2 - 1) * other.variance) / (n1 + n2 - 2);
  return {(one.mean - other.mean) / 2, std::sqrt(variance * (1.0 / n1 + 1.0 / n2)) / 2};
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
