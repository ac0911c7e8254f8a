#include "effects/explained_variance.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/share_of_studies.h"

namespace kelpower::effects {
namespace {

constexpr FStatistic kTest{5, 5, 100, 106};

TEST(ExplainedVariance, IsThatOfItsFormulas) {
  EXPECT_DOUBLE_EQ(FSquared(kTest, 0.05)->value, 0.25);
  EXPECT_DOUBLE_EQ(CohensF(kTest, 0.05)->value, 0.5);
  EXPECT_DOUBLE_EQ(EtaSquared(kTest, 0.05)->value, 0.2);
  EXPECT_DOUBLE_EQ(OmegaSquared(kTest, 0.05)->value, 20.0 / 126);
}

// For F = 5 on 5 and 100 degrees of freedom, multiple precision gives the noncentralities.
TEST(ExplainedVariance, HasTheLimitsOfTheNoncentrality) {
  constexpr double lower = 5.35371316103045;
  constexpr double upper = 45.276111147830996;
  EXPECT_NEAR(FSquared(kTest, 0.05)->interval.lower, lower / 106, 1e-14);
  EXPECT_NEAR(FSquared(kTest, 0.05)->interval.upper, upper / 106, 1e-13);
  EXPECT_NEAR(CohensF(kTest, 0.05)->interval.upper, std::sqrt(upper / 106), 1e-13);
  EXPECT_NEAR(EtaSquared(kTest, 0.05)->interval.lower, lower / (lower + 106), 1e-14);
  EXPECT_NEAR(OmegaSquared(kTest, 0.05)->interval.upper, upper / (upper + 106), 1e-14);
}

TEST(ExplainedVariance, OfASmallFIsNone) {
  const FStatistic small{0.01, 2, 12, 15};
  EXPECT_EQ(EtaSquared(small, 0.05)->interval.lower, 0);
  EXPECT_EQ(EtaSquared(small, 0.05)->interval.upper, 0);
  EXPECT_LT(OmegaSquared(small, 0.05)->value, 0);
  EXPECT_EQ(CohensF({2, 3, 40, 44}, 0.05)->interval.lower, 0);
}

TEST(ExplainedVariance, ConvertsBothWays) {
  for (const double etaSquared : {0.0, 1e-9, 0.06, 0.5, 0.999})
    EXPECT_NEAR(EtaSquaredOfFSquared(FSquaredOfEtaSquared(etaSquared)), etaSquared, 1e-16);
  EXPECT_EQ(FSquaredOfEtaSquared(1), HUGE_VAL);
  EXPECT_EQ(EtaSquaredOfFSquared(HUGE_VAL), 1);
  EXPECT_TRUE(std::isnan(FSquaredOfEtaSquared(-0.1)));
  EXPECT_TRUE(std::isnan(EtaSquaredOfFSquared(-0.1)));
}

// Three groups of 12 with the means 0, 0.5 and 1 and a standard deviation of 1: eta squared is (1 / 6) / (7 / 6).
TEST(ExplainedVariance, IsCoveredAsOftenAsStated) {
  const double truth = 1.0 / 7;
  const auto share = Simulate(4000, 41, [&](auto& engine) {
    double sum = 0;
    double squaresOfMeans = 0;
    double within = 0;
    for (const double mean : {0.0, 0.5, 1.0}) {
      const Moments group = DrawNormal(engine, 12, mean, 1);
      sum += group.mean;
      squaresOfMeans += group.mean * group.mean;
      within += 11 * group.variance;
    }
    const double between = 12 * (squaresOfMeans - sum * sum / 3);
    const auto etaSquared = EtaSquared({between / 2 / (within / 33), 2, 33, 36}, 0.1);
    return etaSquared->interval.lower <= truth && truth <= etaSquared->interval.upper;
  });
  EXPECT_LT(share.StandardErrorsFrom(0.9), kMostStandardErrors);
}

TEST(ExplainedVariance, OfRSquaredIsThatOfItsF) {
  const auto test = FOfRSquared({0.2, 5, 106});
  ASSERT_TRUE(test);
  EXPECT_NEAR(test->f, 5, 1e-14);
  EXPECT_EQ(test->df2, 100);
  EXPECT_NEAR(EtaSquared(*test, 0.05)->value, 0.2, 1e-15);
  EXPECT_NEAR(FSquared(*test, 0.05)->interval.lower, 5.35371316103045 / 106, 1e-13);
}

TEST(ExplainedVariance, IsNoneForOtherArguments) {
  EXPECT_FALSE(EtaSquared({-1, 5, 100, 106}, 0.05));
  EXPECT_FALSE(EtaSquared({5, 0, 100, 106}, 0.05));
  EXPECT_FALSE(OmegaSquared({5, 5, 100, 0}, 0.05));
  EXPECT_FALSE(CohensF({5, 5, 100, 106}, 1));
  EXPECT_FALSE(FOfRSquared({1, 5, 106}));
  EXPECT_FALSE(FOfRSquared({-0.1, 5, 106}));
  EXPECT_FALSE(FOfRSquared({0.2, 5, 6}));
  EXPECT_FALSE(FOfRSquared({0.2, 0, 60}));
}

}  // namespace
}  // namespace kelpower::effects
