#include "effects/two_proportions.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/share_of_studies.h"

namespace kelpower::effects {
namespace {

void ExpectInterval(const std::optional<Estimate>& estimate, double lower, double upper, double tolerance) {
  ASSERT_TRUE(estimate);
  EXPECT_NEAR(estimate->interval.lower, lower, tolerance);
  EXPECT_NEAR(estimate->interval.upper, upper, tolerance);
}

// Newcombe (1998), table II, method 10.
TEST(RiskDifference, IsThatOfNewcombesTable) {
  EXPECT_DOUBLE_EQ(RiskDifference({56, 70}, {48, 80}, 0.05)->value, 0.8 - 0.6);
  ExpectInterval(RiskDifference({56, 70}, {48, 80}, 0.05), 0.0524, 0.3339, 5e-5);
  ExpectInterval(RiskDifference({9, 10}, {3, 10}, 0.05), 0.1705, 0.8090, 5e-5);
  ExpectInterval(RiskDifference({6, 7}, {2, 7}, 0.05), 0.0582, 0.8062, 5e-5);
  ExpectInterval(RiskDifference({5, 56}, {0, 29}, 0.05), -0.0381, 0.1926, 5e-5);
  ExpectInterval(RiskDifference({0, 10}, {0, 20}, 0.05), -0.1611, 0.2775, 5e-5);
  ExpectInterval(RiskDifference({10, 10}, {0, 20}, 0.05), 0.6791, 1, 5e-5);
}

// Myocardial infarctions in the Physicians' Health Study (Agresti 2002, "Categorical Data Analysis", section 3.1).
TEST(Ratios, AreThoseOfAgrestisExample) {
  const EventCount placebo{189, 11034};
  const EventCount aspirin{104, 11037};
  EXPECT_NEAR(OddsRatio(placebo, aspirin, 0.05)->value, 1.832, 5e-4);
  ExpectInterval(OddsRatio(placebo, aspirin, 0.05), 1.44, 2.33, 0.005);
  EXPECT_NEAR(RiskRatio(placebo, aspirin, 0.05)->value, 1.82, 0.005);
  ExpectInterval(RiskRatio(placebo, aspirin, 0.05), 1.43, 2.31, 0.005);
}

TEST(Ratios, HaveTheLimitsOfTheirLogarithms) {
  const auto odds = OddsRatio({12, 40}, {6, 50}, 0.1);
  const double reach = 1.6448536269514722 * std::sqrt(1.0 / 12 + 1.0 / 28 + 1.0 / 6 + 1.0 / 44);
  EXPECT_NEAR(std::log(odds->interval.lower), std::log(12.0 * 44 / (28 * 6)) - reach, 1e-14);
  EXPECT_NEAR(std::log(odds->interval.upper), std::log(12.0 * 44 / (28 * 6)) + reach, 1e-14);
  const auto risk = RiskRatio({12, 40}, {6, 50}, 0.1);
  EXPECT_DOUBLE_EQ(risk->value, 2.5);
  const double riskReach = 1.6448536269514722 * std::sqrt(1.0 / 12 - 1.0 / 40 + 1.0 / 6 - 1.0 / 50);
  EXPECT_NEAR(std::log(risk->interval.upper), std::log(2.5) + riskReach, 1e-14);
  EXPECT_TRUE(RiskRatio({40, 40}, {6, 50}, 0.1));
}

TEST(Intervals, CoverTheTrueEffectsAboutAsOftenAsStated) {
  const auto coverage = [](unsigned seed, double truth, auto effect) {
    return Simulate(10000, seed,
                    [&](auto& engine) {
                      std::binomial_distribution<int> one(150, 0.4);
                      std::binomial_distribution<int> two(200, 0.25);
                      const auto estimate = effect({static_cast<double>(one(engine)), 150},
                                                   {static_cast<double>(two(engine)), 200}, 0.05);
                      return estimate->interval.lower <= truth && truth <= estimate->interval.upper;
                    })
        .share;
  };
  // The methods are approximate: within a hundredth at these sizes, and the chance of the simulation.
  const double tolerance = 0.01 + kMostStandardErrors * std::sqrt(0.95 * 0.05 / 10000);
  using Effect = std::optional<Estimate> (*)(const EventCount&, const EventCount&, double);
  EXPECT_NEAR(coverage(61, 2, static_cast<Effect>(OddsRatio)), 0.95, tolerance);
  EXPECT_NEAR(coverage(62, 1.6, RiskRatio), 0.95, tolerance);
  EXPECT_NEAR(coverage(63, 0.15, RiskDifference), 0.95, tolerance);
}

TEST(CohensH, IsThatOfCohen) {
  // Cohen (1988), section 6.2: phi is 1.571 at .50, 1.982 at .70 and 0.644 at .10.
  EXPECT_NEAR(CohensH(0.7, 0.5), 1.982 - 1.571, 0.001);
  EXPECT_NEAR(CohensH(0.1, 0.5), 0.644 - 1.571, 0.001);
  EXPECT_EQ(CohensH(0.3, 0.3), 0);
  EXPECT_NEAR(CohensH(1, 0), std::acos(-1.0), 1e-15);
  EXPECT_TRUE(std::isnan(CohensH(1.1, 0.5)));
}

TEST(CohensH, HasAnIntervalWithinItsRange) {
  const double reach = 1.959963984540054 * std::sqrt(1 / 50.0 + 1 / 40.0);
  ExpectInterval(CohensH({35, 50}, {20, 40}, 0.05), CohensH(0.7, 0.5) - reach, CohensH(0.7, 0.5) + reach, 1e-14);
  EXPECT_EQ(CohensH({10, 10}, {0, 10}, 0.05)->interval.upper, std::acos(-1.0));
  EXPECT_EQ(CohensH({0, 10}, {10, 10}, 0.05)->interval.lower, -std::acos(-1.0));
}

// Newcombe (1998), Statistics in Medicine 17, 857-872, table I, method 3.
TEST(Proportion, HasTheScoreIntervalOfNewcombesTable) {
  ExpectInterval(Proportion({81, 263}, 0.05), 0.2553, 0.3662, 5e-5);
  ExpectInterval(Proportion({15, 148}, 0.05), 0.0624, 0.1605, 5e-5);
  ExpectInterval(Proportion({0, 20}, 0.05), 0, 0.1611, 5e-5);
  ExpectInterval(Proportion({1, 29}, 0.05), 0.0061, 0.1718, 5e-5);
  EXPECT_EQ(Proportion({20, 20}, 0.05)->value, 1);
}

TEST(OddsRatio, ConvertsBothWays) {
  EXPECT_DOUBLE_EQ(OddsRatio(0.4, 0.25), 2);
  EXPECT_DOUBLE_EQ(ProportionOfOddsRatio(2, 0.25), 0.4);
  EXPECT_EQ(ProportionOfOddsRatio(3, 0), 0);
  EXPECT_EQ(ProportionOfOddsRatio(3, 1), 1);
}

TEST(TwoProportions, AreNoneForOtherArguments) {
  EXPECT_FALSE(OddsRatio({0, 40}, {6, 50}, 0.05));
  EXPECT_FALSE(OddsRatio({12, 40}, {50, 50}, 0.05));
  EXPECT_FALSE(RiskRatio({12, 40}, {0, 50}, 0.05));
  EXPECT_FALSE(RiskDifference({41, 40}, {6, 50}, 0.05));
  EXPECT_FALSE(RiskDifference({12, 40}, {-1, 50}, 0.05));
  EXPECT_FALSE(RiskDifference({0, 0}, {6, 50}, 0.05));
  EXPECT_FALSE(RiskDifference({12, 40}, {6, 50}, 1));
  EXPECT_FALSE(RiskDifference({12, HUGE_VAL}, {6, 50}, 0.05));
  EXPECT_FALSE(CohensH({41, 40}, {6, 50}, 0.05));
  EXPECT_FALSE(CohensH({12, 40}, {6, 50}, 0));
  EXPECT_FALSE(Proportion({41, 40}, 0.05));
  EXPECT_FALSE(Proportion({12, 40}, 0));
}

}  // namespace
}  // namespace kelpower::effects
