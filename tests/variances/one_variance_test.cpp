#include "variances/one_variance.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "kelcommon/distributions.h"

namespace kelpower::variances {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

double Power(double n, double ratio, double alpha, bool isOneSided) {
  return *VarianceTest::Checked(n, alpha, isOneSided)->Power(ratio);
}

TEST(OneVariance, PowersAreThosePublished) {
  const auto test = VarianceTest::Checked(81, 0.05, true);
  EXPECT_NEAR(test->LowerCritical(), 60.3914783886895, 1e-12);
  EXPECT_NEAR(*test->Power(2.0 / 3), 0.803685994216161, 1e-13);
  EXPECT_NEAR(Power(80, 2.0 / 3, 0.05, true), 0.798872174185286, 1e-13);
}

TEST(OneVariance, PowerIsTheLevelWithoutEffect) {
  for (const double n : {2.0, 3.0, 30.0, 1e6})
    for (const double alpha : {1e-9, 0.05, 0.6}) {
      EXPECT_NEAR(Power(n, 1, alpha, false), alpha, 1e-13);
      EXPECT_NEAR(Power(n, 1, alpha, true), alpha, 1e-13);
    }
}

// With three observations chi-square is exponential.
TEST(OneVariance, PowerOfThreeObservationsIsInClosedForm) {
  for (const double ratio : {0.1, 0.5, 2.0, 10.0}) {
    const double above = std::pow(0.025, 1 / ratio);
    const double below = 1 - std::pow(0.975, 1 / ratio);
    EXPECT_NEAR(Power(3, ratio, 0.05, false), above + below, 1e-14) << ratio;
  }
}

TEST(OneVariance, OneSidedTestLiesInTheDirectionOfTheAlternative) {
  EXPECT_GT(Power(30, 1.5, 0.05, true), Power(30, 1.5, 0.05, false));
  EXPECT_GT(Power(30, 0.5, 0.05, true), Power(30, 0.5, 0.05, false));
}

TEST(OneVariance, PowerGrowsWithTheSizeAndTheEffect) {
  for (const bool isOneSided : {false, true}) {
    for (double n = 10; n < 200; ++n) EXPECT_LT(Power(n, 1.3, 0.05, isOneSided), Power(n + 1, 1.3, 0.05, isOneSided));
    for (double ratio = 1.1; ratio < 3; ratio += 0.1) {
      EXPECT_LT(Power(25, ratio, 0.05, isOneSided), Power(25, ratio + 0.1, 0.05, isOneSided));
      EXPECT_LT(Power(25, 1 / ratio, 0.05, isOneSided), Power(25, 1 / (ratio + 0.1), 0.05, isOneSided));
    }
  }
}

TEST(OneVariance, PowerIsLeastWhereItIsSaidToBe) {
  for (const double n : {2.0, 5.0, 40.0, 1000.0}) {
    const auto test = VarianceTest::Checked(n, 0.05, false);
    const double least = test->RatioOfLeastPower();
    EXPECT_LT(least, 1);
    EXPECT_LT(*test->Power(least), *test->Power(least * 0.98));
    EXPECT_LT(*test->Power(least), *test->Power(least * 1.02));
    EXPECT_LT(*test->Power(least), 0.05);
  }
}

TEST(OneVariance, SaysWhereThereIsNone) {
  EXPECT_FALSE(VarianceTest::Checked(1, 0.05, false));
  EXPECT_FALSE(VarianceTest::Checked(infinity, 0.05, false));
  EXPECT_FALSE(VarianceTest::Checked(20, 0, false));
  EXPECT_FALSE(VarianceTest::Checked(20, 1, false));
  EXPECT_EQ(VarianceTest::Checked(20, 0.05, false)->Power(0).Reason(), NoValue::Refused);
  EXPECT_EQ(VarianceTest::Checked(20, 0.05, false)->Power(infinity).Reason(), NoValue::Refused);
  EXPECT_EQ(VarianceTest::Checked(20, 0.05, false)->Power(-1).Reason(), NoValue::Refused);
  EXPECT_TRUE(std::isnan(Power(20, nan, 0.05, false)));
}

TEST(OneVariance, EndsForEveryArgument) {
  for (const double n : {2.0, 2.5, 1e16, 1e300})
    for (const double alpha : {1e-300, 0.05, 1 - 1e-16})
      for (const double ratio : {5e-324, 1e-300, 0.5, 1.0, 2.0, 1e300})
        for (const bool isOneSided : {false, true}) {
          const double power = Power(n, ratio, alpha, isOneSided);
          EXPECT_TRUE(power >= 0 && power <= 1 + 1e-15) << n << ' ' << alpha << ' ' << ratio << ' ' << power;
        }
}

}  // namespace
}  // namespace kelpower::variances
