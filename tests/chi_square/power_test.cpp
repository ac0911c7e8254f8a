#include "chi_square/power.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "kelcommon/distributions.h"
#include "kelcommon/kel_dist_fun.h"

namespace kelpower::chi_square {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

// Unrounded sizes printed by the R package pwr 1.3 (2096.0792) and by G*Power 3.1 (219.779).
TEST(ChiSquarePower, SizesAreThosePublished) {
  EXPECT_NEAR(*SizeForPower(20, 0.05, 0.1 * 0.1, 0.8), 2096.07918337039, 1e-9);
  EXPECT_NEAR(*SizeForPower(5, 0.05, 0.3 * 0.3, 0.95), 219.779270821186, 1e-10);
}

TEST(ChiSquarePower, IsTheLevelWithoutEffect) {
  for (const double alpha : {1e-10, 0.01, 0.05, 0.5, 0.99})
    for (const double df : {1.0, 2.0, 7.0, 100.0, 1e5}) EXPECT_NEAR(*Power(df, alpha, 0, 50), alpha, 1e-13);
}

TEST(ChiSquarePower, OnOneDegreeOfFreedomIsThatOfATwoSidedNormalTest) {
  using KelMath::KelDistFun;
  const double z = -KelDistFun::IdfStdNorm(0.025);
  for (const double w : {0.05, 0.2, 0.5}) {
    const double shift = w * 10;
    EXPECT_NEAR(*Power(1, 0.05, w * w, 100), KelDistFun::CdfStdNorm(shift - z) + KelDistFun::CdfStdNorm(-shift - z),
                1e-13);
  }
}

TEST(ChiSquarePower, RisesWithEffectSizeAndLevelAndFallsWithDegreesOfFreedom) {
  EXPECT_LT(*Power(3, 0.05, 0.09, 100), *Power(3, 0.05, 0.0901, 100));
  EXPECT_LT(*Power(3, 0.05, 0.09, 100), *Power(3, 0.05, 0.09, 101));
  EXPECT_LT(*Power(3, 0.05, 0.09, 100), *Power(3, 0.06, 0.09, 100));
  EXPECT_GT(*Power(3, 0.05, 0.09, 100), *Power(4, 0.05, 0.09, 100));
}

TEST(ChiSquarePower, IsReachedAtTheSizeForIt) {
  for (const double power : {0.06, 0.5, 0.8, 0.99, 1 - 1e-9})
    for (const double df : {1.0, 6.0, 300.0}) {
      const Answer size = SizeForPower(df, 0.05, 0.04, power);
      EXPECT_NEAR(*Power(df, 0.05, 0.04, *size), power, 1e-13) << df;
    }
}

TEST(ChiSquarePower, SaysWhyThereIsNone) {
  EXPECT_EQ(Power(0, 0.05, 0.1, 50).Reason(), NoValue::Refused);
  EXPECT_EQ(Power(infinity, 0.05, 0.1, 50).Reason(), NoValue::Refused);
  EXPECT_EQ(Power(3, 0, 0.1, 50).Reason(), NoValue::Refused);
  EXPECT_EQ(Power(3, 1, 0.1, 50).Reason(), NoValue::Refused);
  EXPECT_EQ(Power(3, 0.05, -0.1, 50).Reason(), NoValue::Refused);
  EXPECT_EQ(Power(3, 0.05, 0.1, 0).Reason(), NoValue::Refused);
  EXPECT_EQ(SizeForPower(3, 0.05, 0, 0.8).Reason(), NoValue::NotReached);
  EXPECT_EQ(SizeForPower(3, 0.05, 0.1, 1).Reason(), NoValue::NotReached);
  EXPECT_EQ(SizeForPower(3, 0.05, 0.1, 0.01).Reason(), NoValue::NotReached);
  EXPECT_TRUE(std::isnan(*Power(3, 0.05, nan, 50)));
  EXPECT_TRUE(std::isnan(*Power(nan, 0.05, 0.1, 50)));
}

TEST(ChiSquarePower, EndsForEveryArgument) {
  for (const double df : {1.0, 1.5, 1e300})
    for (const double alpha : {1e-300, 0.05, 1 - 1e-16})
      for (const double effect : {0.0, 1e-300, 0.1, 1e300, infinity})
        for (const double n : {1e-300, 2.0, 1e300}) {
          const double power = *Power(df, alpha, effect, n);
          EXPECT_TRUE(power >= 0 && power <= 1) << df << ' ' << alpha << ' ' << effect << ' ' << n << ' ' << power;
        }
}

}  // namespace
}  // namespace kelpower::chi_square
