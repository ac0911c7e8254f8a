#include "anova/covariance.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "anova/overall.h"

namespace kelpower::anova {
namespace {

TEST(Covariance, WithoutCovariatesIsTheOneWayTest) {
  for (double noncentrality : {0.0, 2.0, 9.5, 40.0}) {
    EXPECT_EQ(*CovarianceTest(3, 30, 0, 0.05).Power(noncentrality), *OverallTest(3, 30, 0.05).Power(noncentrality));
  }
}

TEST(Covariance, WithoutAnEffectHasTheLevel) {
  for (double covariates : {1, 2, 7, 20}) {
    EXPECT_NEAR(*CovarianceTest(3, 30, covariates, 0.05).Power(0), 0.05, 1e-14) << covariates;
  }
}

TEST(Covariance, IsBelowThatOfBalancedCovariatesAndNearItInLargeStudies) {
  double gap = 1;
  for (double total : {10, 20, 40, 80, 160, 320}) {
    const CovarianceTest test(2, total, 2, 0.05);
    const double exact = *test.Power(8);
    const double balanced = *test.PowerOfBalancedCovariates(8);
    EXPECT_LT(exact, balanced) << total;
    EXPECT_LT(balanced - exact, gap) << total;
    gap = balanced - exact;
  }
  EXPECT_LT(gap, 0.01);
}

TEST(Covariance, RisesWithTheEffectAndTheSizeAndFallsWithCovariates) {
  for (double noncentrality = 1; noncentrality < 30; ++noncentrality) {
    const double power = *CovarianceTest(3, 24, 2, 0.05).Power(noncentrality);
    EXPECT_GT(*CovarianceTest(3, 24, 2, 0.05).Power(noncentrality + 1), power);
    EXPECT_GT(*CovarianceTest(3, 25, 2, 0.05).Power(noncentrality), power);
    EXPECT_LT(*CovarianceTest(3, 24, 3, 0.05).Power(noncentrality), power);
  }
}

// The power is nearly linear in small noncentralities: it is then that at the mean of B.
TEST(Covariance, OfSmallEffectsIsThatOfTheMeanShare) {
  for (double covariates : {1, 3, 9}) {
    const CovarianceTest test(3, 20, covariates, 0.05);
    const double gain = *test.Power(1e-4) - 0.05;
    EXPECT_NEAR(gain, *test.PowerOfBalancedCovariates(1e-4 * test.MeanShare()) - 0.05, 1e-4 * gain) << covariates;
  }
}

TEST(Covariance, IsRefusedForWhatIsNoDesign) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(CovarianceTest(1, 20, 1, 0.05).Power(3));
  EXPECT_FALSE(CovarianceTest(2, 3, 1, 0.05).Power(3));
  EXPECT_FALSE(CovarianceTest(2, 20, -1, 0.05).Power(3));
  EXPECT_FALSE(CovarianceTest(2, 20, nan, 0.05).Power(3));
  EXPECT_FALSE(CovarianceTest(2, nan, 1, 0.05).Power(3));
  EXPECT_FALSE(CovarianceTest(nan, 20, 1, 0.05).Power(3));
  EXPECT_FALSE(CovarianceTest(2, 20, 1, 0).Power(3));
  EXPECT_FALSE(CovarianceTest(2, 20, 1, 0.05).Power(nan));
  EXPECT_EQ(*CovarianceTest(2, 20, 1, 0.05).Power(std::numeric_limits<double>::infinity()), 1);
}

TEST(Covariance, IsAProbabilityForEveryMagnitude) {
  const double odd[] = {0, 1e-320, 0.3, 1, 2, 3, 5, 1e3, 1e9, 1e300};
  for (double groups : odd) {
    for (double total : odd) {
      for (double covariates : odd) {
        for (double noncentrality : odd) {
          const Answer power = CovarianceTest(groups, total, covariates, 0.05).Power(noncentrality);
          EXPECT_TRUE(!power || (*power >= 0 && *power <= 1)) << groups << ' ' << total << ' ' << covariates;
        }
      }
    }
  }
}

}  // namespace
}  // namespace kelpower::anova
