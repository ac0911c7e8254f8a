#include "variances/two_variances.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "variances/one_variance.h"

namespace kelpower::variances {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

double Power(double n1, double n2, double ratio, double alpha, bool isOneSided) {
  return *TwoVariancesTest::Checked(n1, n2, alpha, isOneSided)->Power(ratio);
}

TEST(TwoVariances, PowersAreThosePublished) {
  EXPECT_NEAR(Power(193, 193, 1.5, 0.05, false), 0.800105000856821, 1e-13);
  EXPECT_LT(Power(192, 192, 1.5, 0.05, false), 0.8);
}

TEST(TwoVariances, PowerIsTheLevelWithoutEffect) {
  for (const double n1 : {2.0, 7.0, 500.0})
    for (const double alpha : {1e-9, 0.05, 0.6}) {
      EXPECT_NEAR(Power(n1, 20, 1, alpha, false), alpha, 1e-13);
      EXPECT_NEAR(Power(n1, 20, 1, alpha, true), alpha, 1e-13);
    }
}

TEST(TwoVariances, GroupsMayBeExchanged) {
  for (const double ratio : {0.2, 0.8, 1.7, 6.0})
    for (const bool isOneSided : {false, true})
      EXPECT_NEAR(Power(12, 31, ratio, 0.05, isOneSided), Power(31, 12, 1 / ratio, 0.05, isOneSided), 1e-14);
}

// On two and two degrees of freedom P(F > x) = 1 / (1 + x).
TEST(TwoVariances, PowerOfThreeObservationsEachIsInClosedForm) {
  for (const double ratio : {0.1, 0.5, 2.0, 10.0}) {
    const double above = 1 / (1 + 39 / ratio);
    const double below = 1 - 1 / (1 + 1 / (39 * ratio));
    EXPECT_NEAR(Power(3, 3, ratio, 0.05, false), above + below, 1e-14) << ratio;
  }
}

// A huge second group tells its variance as well as if it were fixed.
TEST(TwoVariances, BecomesTheTestOfOneVariance) {
  for (const double ratio : {0.5, 0.9, 1.4, 3.0})
    for (const bool isOneSided : {false, true}) {
      const double one = *VarianceTest::Checked(25, 0.05, isOneSided)->Power(ratio);
      EXPECT_NEAR(Power(25, 1e13, ratio, 0.05, isOneSided), one, 1e-12) << ratio;
    }
}

TEST(TwoVariances, PowerGrowsWithTheSizesAndTheEffect) {
  for (const bool isOneSided : {false, true}) {
    for (double n = 10; n < 200; ++n) {
      EXPECT_LT(Power(n, n, 1.4, 0.05, isOneSided), Power(n + 1, n + 1, 1.4, 0.05, isOneSided));
    }
    for (double ratio = 1.1; ratio < 3; ratio += 0.1) {
      EXPECT_LT(Power(25, 30, ratio, 0.05, isOneSided), Power(25, 30, ratio + 0.1, 0.05, isOneSided));
      EXPECT_LT(Power(25, 30, 1 / ratio, 0.05, isOneSided), Power(25, 30, 1 / (ratio + 0.1), 0.05, isOneSided));
    }
  }
}

TEST(TwoVariances, PowerIsLeastWhereItIsSaidToBe) {
  for (const double n1 : {3.0, 10.0, 200.0})
    for (const double n2 : {4.0, 25.0, 90.0}) {
      const auto test = TwoVariancesTest::Checked(n1, n2, 0.05, false);
      const double least = test->RatioOfLeastPower();
      EXPECT_LT(*test->Power(least), *test->Power(least * 0.98)) << n1 << ' ' << n2;
      EXPECT_LT(*test->Power(least), *test->Power(least * 1.02)) << n1 << ' ' << n2;
    }
  EXPECT_NEAR(TwoVariancesTest::Checked(20, 20, 0.05, false)->RatioOfLeastPower(), 1, 1e-12);
}

TEST(TwoVariances, SaysWhereThereIsNone) {
  EXPECT_FALSE(TwoVariancesTest::Checked(1, 20, 0.05, false));
  EXPECT_FALSE(TwoVariancesTest::Checked(20, 1, 0.05, false));
  EXPECT_FALSE(TwoVariancesTest::Checked(infinity, 20, 0.05, false));
  EXPECT_FALSE(TwoVariancesTest::Checked(20, infinity, 0.05, false));
  EXPECT_FALSE(TwoVariancesTest::Checked(20, 20, 0, false));
  EXPECT_FALSE(TwoVariancesTest::Checked(20, 20, 1, false));
  EXPECT_EQ(TwoVariancesTest::Checked(20, 20, 0.05, false)->Power(0).Reason(), NoValue::Refused);
  EXPECT_EQ(TwoVariancesTest::Checked(20, 20, 0.05, false)->Power(infinity).Reason(), NoValue::Refused);
  EXPECT_TRUE(std::isnan(Power(20, 20, nan, 0.05, false)));
}

TEST(TwoVariances, EndsForEveryArgument) {
  for (const double n1 : {2.0, 2.5, 1e16, 1e300})
    for (const double n2 : {2.0, 40.0, 1e300})
      for (const double alpha : {1e-300, 0.05, 1 - 1e-16})
        for (const double ratio : {5e-324, 1e-300, 0.5, 1.0, 2.0, 1e300})
          for (const bool isOneSided : {false, true}) {
            const double power = Power(n1, n2, ratio, alpha, isOneSided);
            EXPECT_TRUE(power >= 0 && power <= 1 + 1e-15) << n1 << ' ' << n2 << ' ' << alpha << ' ' << ratio;
          }
}

}  // namespace
}  // namespace kelpower::variances
