#include "effects/mean_difference.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/share_of_studies.h"

namespace kelpower::effects {
namespace {

TEST(CohensD, OfMeansIsThatOfTheirT) {
  const Group first{10, 2, 20};
  const Group second{8.5, 3, 30};
  const double sd = std::sqrt((19 * 4 + 29 * 9) / 48.0);
  EXPECT_DOUBLE_EQ(PooledSd(first, second), sd);
  const auto d = CohensD(first, second, 0.05);
  EXPECT_DOUBLE_EQ(d->value, 1.5 / sd);
  const auto ofT = CohensDOfT(1.5 / (sd * std::sqrt(1.0 / 20 + 1.0 / 30)), 20, 30, 0.05);
  EXPECT_NEAR(ofT->value, d->value, 1e-15);
  EXPECT_NEAR(ofT->interval.lower, d->interval.lower, 1e-13);
  EXPECT_NEAR(ofT->interval.upper, d->interval.upper, 1e-13);
}

// t = 2.83 on 126 degrees of freedom: the limits of multiple precision times sqrt(2 / 64), and over sqrt(127).
TEST(CohensD, HasTheLimitsOfTheNoncentrality) {
  const auto d = CohensDOfT(2.83, 64, 64, 0.05);
  EXPECT_NEAR(d->value, 2.83 * std::sqrt(2.0 / 64), 1e-15);
  EXPECT_NEAR(d->interval.lower, 0.8337502608406527 * std::sqrt(2.0 / 64), 1e-13);
  EXPECT_NEAR(d->interval.upper, 4.81535914001667 * std::sqrt(2.0 / 64), 1e-13);
  const auto one = CohensDOfOneSampleT(2.83, 127, 0.05);
  EXPECT_NEAR(one->interval.upper, 4.81535914001667 / std::sqrt(127.0), 1e-13);
}

TEST(CohensD, CoversTheTrueOneAsOftenAsStated) {
  const auto share = Simulate(4000, 31, [](auto& engine) {
    const Moments one = DrawNormal(engine, 10, 5.6, 2);
    const Moments two = DrawNormal(engine, 14, 4, 2);
    const auto d = CohensD({one.mean, std::sqrt(one.variance), 10}, {two.mean, std::sqrt(two.variance), 14}, 0.05);
    return d->interval.lower <= 0.8 && 0.8 <= d->interval.upper;
  });
  EXPECT_LT(share.StandardErrorsFrom(0.95), kMostStandardErrors);
}

TEST(CohensD, IsNoneForOtherArguments) {
  EXPECT_FALSE(CohensD({1, 2, 1}, {0, 2, 10}, 0.05));
  EXPECT_FALSE(CohensD({1, 0, 10}, {0, 2, 10}, 0.05));
  EXPECT_FALSE(CohensD({1, 2, 10}, {0, 2, 10}, 0));
  EXPECT_FALSE(CohensDOfT(2, 1, 1, 0.05));
  EXPECT_FALSE(CohensDOfT(2, -5, 20, 0.05));
  EXPECT_FALSE(CohensDOfOneSampleT(2, 1, 0.05));
}

// Gamma functions of whole and half numbers: 1 / sqrt(pi) at 2 degrees of freedom, sqrt(2 / 3) sqrt(pi) / 2 at 3.
TEST(HedgesFactor, HasItsClosedForms) {
  const double pi = std::acos(-1.0);
  EXPECT_NEAR(HedgesFactor(2), 1 / std::sqrt(pi), 1e-15);
  EXPECT_NEAR(HedgesFactor(3), std::sqrt(2.0 / 3) * std::sqrt(pi) / 2, 1e-15);
  // Multiple precision:
  EXPECT_NEAR(HedgesFactor(10), 0.9227456080530871, 2e-15);
  EXPECT_NEAR(HedgesFactor(40.99), 0.9815716497480768, 1e-14);
  EXPECT_NEAR(HedgesFactor(41.01), 0.9815807014373894, 2e-15);
  EXPECT_NEAR(HedgesFactor(1e6), 0.9999992499997813, 2e-16);
  EXPECT_TRUE(std::isnan(HedgesFactor(1)));
  EXPECT_EQ(HedgesFactor(1e300), 1);
}

TEST(HedgesG, HasNoBias) {
  constexpr int studies = 40000;
  std::mt19937_64 engine(32);
  double sum = 0;
  double squares = 0;
  for (int i = 0; i < studies; ++i) {
    const Moments one = DrawNormal(engine, 5, 1, 1);
    const Moments two = DrawNormal(engine, 6, 0, 1);
    const double sd = PooledSd({0, std::sqrt(one.variance), 5}, {0, std::sqrt(two.variance), 6});
    const double g = HedgesG({(one.mean - two.mean) / sd, {0, 0}}, 9)->value;
    sum += g;
    squares += g * g;
  }
  const double mean = sum / studies;
  EXPECT_NEAR(mean, 1, 4 * std::sqrt((squares / studies - mean * mean) / studies));
}

TEST(HedgesG, IsNoneWithoutAFactor) { EXPECT_FALSE(HedgesG({1, {0, 2}}, 1)); }

TEST(Superiority, IsThatOfMcGrawAndWong) {
  // Heights of young men and women, 69.7 and 64.3 inches with 2.8 and 2.6: z = 1.41, 0.92 in their table.
  EXPECT_NEAR(ProbabilityOfSuperiority(5.4 / std::sqrt((2.8 * 2.8 + 2.6 * 2.6) / 2)), 0.92, 0.005);
  EXPECT_EQ(ProbabilityOfSuperiority(0), 0.5);
  for (const double d : {-2.0, -0.2, 0.0, 0.5, 3.0})
    EXPECT_NEAR(CohensDOfSuperiority(ProbabilityOfSuperiority(d)), d, 1e-13);
  EXPECT_EQ(CohensDOfSuperiority(1), HUGE_VAL);
  EXPECT_TRUE(std::isnan(CohensDOfSuperiority(1.1)));
}

TEST(Superiority, IsTheShareOfPairs) {
  const auto share = Simulate(20000, 33, [](auto& engine) {
    std::normal_distribution<double> normal;
    return 3 + 2 * normal(engine) > 2 + 2 * normal(engine);
  });
  EXPECT_LT(share.StandardErrorsFrom(ProbabilityOfSuperiority(0.5)), kMostStandardErrors);
}

// Cohen (1988), table 2.2.1.
TEST(CohensU3, IsThatOfCohen) {
  EXPECT_NEAR(CohensU3(0.2), 0.579, 5e-4);
  EXPECT_NEAR(CohensU3(0.8), 0.788, 5e-4);
  EXPECT_EQ(CohensU3(0), 0.5);
  EXPECT_EQ(CohensU3(HUGE_VAL), 1);
}

// Borenstein et al. (2009), chapter 7: an odds ratio with the logarithm 0.9069 is a d of 0.5.
TEST(OddsRatioOfCohensD, IsThatOfBorenstein) {
  EXPECT_NEAR(CohensDOfOddsRatio(std::exp(0.9069)), 0.5, 5e-5);
  EXPECT_NEAR(OddsRatioOfCohensD(0.5), std::exp(0.9069), 5e-4);
  for (double d : {-8.0, -0.5, 0.0, 0.2, 3.0}) EXPECT_NEAR(CohensDOfOddsRatio(OddsRatioOfCohensD(d)), d, 1e-14);
  EXPECT_EQ(CohensDOfOddsRatio(0), -HUGE_VAL);
  EXPECT_TRUE(std::isnan(CohensDOfOddsRatio(-1)));
}

}  // namespace
}  // namespace kelpower::effects
