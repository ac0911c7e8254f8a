#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

namespace {

using KelCommon::KelMV;
using KelMath::KelDistFun;

constexpr double quietNaN = std::numeric_limits<double>::quiet_NaN();

const std::vector<double> usualSizes = {1.1, 1.5, 2, 3, 8, 20.5, 60, 400, 1e4, 1e9, 1e15, 1e154, 1e307};
const std::vector<double> effects = {0.01, 0.2, 0.5, 0.8, 1.5};
const std::vector<double> levels = {0.001, 0.01, 0.05, 0.1, 0.5};

TEST(OneSample, GivesPublishedPowers) {
  // Cohen 1988, section 2.5: d = 0.2, n = 60, two-sided at 0.10.
  EXPECT_NEAR(PowerOneSampleNondirectionalES(60, 0.2, 0.10), 0.4555818, 5e-8);
}

TEST(OneSample, EffectSizeRejectsOnlyAStandardDeviationOfZero) {
  EXPECT_TRUE(KelMV::IsMissing(EffectSizeOneSample(5, 0, 3)));
  EXPECT_EQ(EffectSizeOneSample(5, -2, 3), -1);
  EXPECT_EQ(EffectSizeOneSample(12, 4, 10), 0.5);
}

TEST(OneSample, WithoutEffectThePowerIsTheLevel) {
  for (double n : usualSizes) {
    for (double alpha : levels) {
      EXPECT_NEAR(PowerOneSampleNondirectionalES(n, 0, alpha), alpha, 1e-13) << n;
      EXPECT_NEAR(PowerOneSampleDirectionalES(n, 0, alpha), alpha, 1e-13) << n;
    }
  }
}

TEST(OneSample, IsSymmetricInTheSignOfTheEffect) {
  for (double n : {1.5, 3.0, 20.5, 60.0, 1e4}) {
    for (double d : effects) {
      EXPECT_NEAR(PowerOneSampleNondirectionalES(n, -d, 0.05), PowerOneSampleNondirectionalES(n, d, 0.05), 1e-13);
      EXPECT_EQ(PowerOneSampleDirectionalES(n, -d, 0.05), PowerOneSampleDirectionalES(n, d, 0.05));
    }
  }
}

TEST(OneSample, PowerGrowsWithSizeEffectAndLevel) {
  for (double n : {2.0, 8.0, 20.5, 60.0}) {
    for (double d : {0.2, 0.5, 0.8}) {
      const double power = PowerOneSampleNondirectionalES(n, d, 0.05);
      EXPECT_GT(PowerOneSampleNondirectionalES(n + 1, d, 0.05), power);
      EXPECT_GT(PowerOneSampleNondirectionalES(n, d + 0.1, 0.05), power);
      EXPECT_GT(PowerOneSampleNondirectionalES(n, d, 0.06), power);
      EXPECT_GT(PowerOneSampleDirectionalES(n, d, 0.05), power);
    }
  }
}

TEST(OneSample, TheTwoTailsAreThoseOfTwoOneSidedTests) {
  // At the halved level the one-sided power is the upper tail; the lower tail of d is at most half the level.
  for (double n : {2.0, 8.0, 60.0}) {
    for (double d : effects) {
      const double upper = PowerOneSampleDirectionalES(n, d, 0.025);
      const double both = PowerOneSampleNondirectionalES(n, d, 0.05);
      EXPECT_GT(both, upper * (1 - 1e-14));
      EXPECT_LE(both - upper, 0.025);
    }
  }
}

TEST(OneSample, TheLimitOfLargeSizesIsTheNormalTest) {
  // With lambda = 2.8 the power of the two-sided z test at 0.05 is Phi(lambda - z) + Phi(-lambda - z).
  const double z = 1.959963984540054;
  const double expected = 0.5 * std::erfc((z - 2.8) / std::sqrt(2.0)) + 0.5 * std::erfc((z + 2.8) / std::sqrt(2.0));
  for (double n : {1e20, 1e154, 1e307}) {
    EXPECT_NEAR(PowerOneSampleNondirectionalES(n, 2.8 / std::sqrt(n), 0.05), expected, 1e-12) << n;
  }
}

TEST(OneSample, RawFormsEqualTheFormsOfTheEffectSize) {
  EXPECT_EQ(PowerOneSampleNondirectional(30, 12, 4, 10, 0.05), PowerOneSampleNondirectionalES(30, 0.5, 0.05));
  EXPECT_EQ(PowerOneSampleDirectional(30, 8, 4, 10, 0.05), PowerOneSampleDirectionalES(30, 0.5, 0.05));
  EXPECT_EQ(PowerReverseOneSampleNondirectional(0.8, 12, 4, 10, 0.05),
            PowerReverseOneSampleNondirectionalES(0.8, 0.5, 0.05));
  EXPECT_EQ(PowerReverseOneSampleDirectional(0.8, 8, 4, 10, 0.05), PowerReverseOneSampleDirectionalES(0.8, 0.5, 0.05));
}

TEST(OneSample, RejectsSizesOfOneAndLess) {
  for (double n : {1.0, 0.5, 0.0, -3.0}) {
    EXPECT_TRUE(KelMV::IsMissing(PowerOneSampleNondirectionalES(n, 0.5, 0.05)));
    EXPECT_TRUE(KelMV::IsMissing(PowerOneSampleNondirectional(n, 12, 4, 10, 0.05)));
    EXPECT_TRUE(KelMV::IsMissing(PowerOneSampleDirectionalES(n, 0.5, 0.05)));
    EXPECT_TRUE(KelMV::IsMissing(PowerOneSampleDirectional(n, 12, 4, 10, 0.05)));
  }
  const double onHalfADegree = PowerOneSampleNondirectionalES(1.5, 0.5, 0.05);
  EXPECT_GT(onHalfADegree, 0.05);
  EXPECT_LT(onHalfADegree, 0.06);
}

TEST(OneSample, RejectsLevelsButInTheTwoSidedFormOfTheEffectSize) {
  for (double alpha : {0.0, 1.0, -0.5, 2.5}) {
    EXPECT_FALSE(KelMV::IsMissing(PowerOneSampleNondirectionalES(20, 0.5, alpha)));
    EXPECT_TRUE(KelMV::IsMissing(PowerOneSampleNondirectional(20, 12, 4, 10, alpha)));
    EXPECT_TRUE(KelMV::IsMissing(PowerOneSampleDirectionalES(20, 0.5, alpha)));
    EXPECT_TRUE(KelMV::IsMissing(PowerOneSampleDirectional(20, 12, 4, 10, alpha)));
    EXPECT_TRUE(KelMV::IsMissing(PowerReverseOneSampleNondirectional(0.8, 12, 4, 10, alpha)));
    EXPECT_TRUE(KelMV::IsMissing(PowerReverseOneSampleDirectional(0.8, 12, 4, 10, alpha)));
    EXPECT_TRUE(KelMV::IsMissing(PowerReverseOneSampleDirectionalES(0.8, 0.5, alpha)));
  }
  EXPECT_EQ(PowerOneSampleNondirectionalES(20, 0.5, 0), 0);
  EXPECT_EQ(PowerOneSampleNondirectionalES(20, 0.5, 1), 1);
}

// The critical value is then negative, and both tails are still counted: together they are more than 1.
TEST(OneSample, BothTailsCountAtALevelAboveOne) {
  for (const double alpha : {1.01, 1.5, 1.99}) {
    const double critical = KelDistFun::IdfT(1 - alpha / 2, 19, 1e-40, 1e-30);
    const double noncentrality = std::sqrt(20.0) * 0.3;
    const double expected = 1 - KelDistFun::NonCentralCdfT(critical, 19, noncentrality, 1e-12) +
                            KelDistFun::NonCentralCdfT(-critical, 19, noncentrality, 1e-12);
    EXPECT_NEAR(PowerOneSampleNondirectionalES(20, 0.3, alpha), expected, 1e-14) << alpha;
    EXPECT_GT(expected, 1) << alpha;
  }
}

TEST(OneSample, RejectsStandardDeviationsInTheRawForms) {
  for (double sd : {0.0, -4.0}) {
    EXPECT_TRUE(KelMV::IsMissing(PowerOneSampleNondirectional(20, 12, sd, 10, 0.05)));
    EXPECT_TRUE(KelMV::IsMissing(PowerOneSampleDirectional(20, 12, sd, 10, 0.05)));
    EXPECT_TRUE(KelMV::IsMissing(PowerReverseOneSampleNondirectional(0.8, 12, sd, 10, 0.05)));
    EXPECT_TRUE(KelMV::IsMissing(PowerReverseOneSampleDirectional(0.8, 12, sd, 10, 0.05)));
  }
}

TEST(OneSample, NotANumberGoesThroughToThePower) {
  EXPECT_TRUE(std::isnan(PowerOneSampleNondirectionalES(quietNaN, 0.5, 0.05)));
  EXPECT_TRUE(std::isnan(PowerOneSampleNondirectional(20, 12, quietNaN, 10, 0.05)));
  EXPECT_TRUE(std::isnan(PowerOneSampleDirectionalES(20, quietNaN, 0.05)));
  EXPECT_TRUE(std::isnan(PowerOneSampleDirectional(20, 12, 4, 10, quietNaN)));
}

TEST(OneSampleSize, IsTheUnroundedSizeThatReachesThePower) {
  for (double d : {-0.8, 0.05, 0.2, 0.5, 0.8}) {
    for (double power : {0.5, 0.8, 0.95, 0.999}) {
      const double twoSided = PowerReverseOneSampleNondirectionalES(power, d, 0.05);
      EXPECT_NEAR(PowerOneSampleNondirectionalES(twoSided, d, 0.05), power, 1e-9);
      EXPECT_NE(twoSided, std::ceil(twoSided));
      const double oneSided = PowerReverseOneSampleDirectionalES(power, d, 0.05);
      EXPECT_NEAR(PowerOneSampleDirectionalES(oneSided, d, 0.05), power, 1e-9);
      EXPECT_LT(oneSided, twoSided);
    }
  }
}

TEST(OneSampleSize, IsAtLeastTwo) {
  EXPECT_EQ(PowerReverseOneSampleNondirectionalES(0.01, 0.5, 0.05), 2);
  EXPECT_EQ(PowerReverseOneSampleDirectionalES(0.8, 100, 0.05), 2);
}

TEST(OneSampleSize, IsMissingWhereNoSizeReachesThePower) {
  for (double power : {0.8, 1.0, 1.4}) {
    EXPECT_TRUE(KelMV::IsMissing(PowerReverseOneSampleNondirectionalES(power, 0, 0.05))) << power;
    EXPECT_TRUE(KelMV::IsMissing(PowerReverseOneSampleDirectionalES(power, 0, 0.05))) << power;
  }
  EXPECT_TRUE(KelMV::IsMissing(PowerReverseOneSampleNondirectionalES(1.4, 0.5, 0.05)));
  EXPECT_TRUE(KelMV::IsMissing(PowerReverseOneSampleDirectionalES(1.4, 0.5, 0.05)));
  EXPECT_TRUE(KelMV::IsMissing(PowerReverseOneSampleNondirectional(0.8, 10, 4, 10, 0.05)));
  EXPECT_TRUE(KelMV::IsMissing(PowerReverseOneSampleDirectional(0.8, 10, 4, 10, 0.05)));
}

TEST(OneSampleHalfWidth, IsTheQuantileTimesTheStandardError) {
  // t(0.975, 24) at 18 digits (Student's table: 2.064).
  const double t = 2.06389856162802542;
  EXPECT_NEAR(HalfCIOneSampleMeans(25, 10, 0.05), 2 * t, 1e-14);
  EXPECT_NEAR(HalfCIOneSampleMeans(25, 1e308, 0.05) / 1e307, 2 * t, 1e-13);
}

TEST(OneSampleHalfWidth, IsReachedAtTheSizeFoundAndNotBefore) {
  for (double sd : {1.0, 4.0, 1e-200, 1e200}) {
    for (double width : {0.02, 0.3, 1.0, 4.0}) {
      const double size = PowerReversebyHalfCIOneSampleMeans(width * sd, sd, 0.05);
      EXPECT_EQ(size, std::ceil(size));
      EXPECT_LE(HalfCIOneSampleMeans(size, sd, 0.05), width * sd);
      if (size > 2) {
        EXPECT_GT(HalfCIOneSampleMeans(size - 1, sd, 0.05), width * sd);
      }
    }
  }
}

TEST(OneSampleHalfWidth, OfZeroIsReachedByNoSize) {
  EXPECT_TRUE(KelMV::IsMissing(PowerReversebyHalfCIOneSampleMeans(0, 4, 0.05)));
}

TEST(PowerReversebyHalfCIOneSampleMeans, IsMissingWhereTheQuantileIsInfinite) {
  EXPECT_TRUE(KelMV::IsMissing(PowerReversebyHalfCIOneSampleMeans(2, 1, 0)));
  EXPECT_TRUE(KelMV::IsMissing(PowerReversebyHalfCIRelatedMeans(2, 1, 0, 0, 0)));
}

// What the interface says of targets and arguments that are out of the ordinary.
TEST(PowerReverseOneSampleNondirectionalES, OfATargetOfOneAndOfNaN) {
  EXPECT_EQ(PowerReverseOneSampleNondirectionalES(1, 0.5, 0.05), 400);  // the first end at which the power rounds to 1
  EXPECT_TRUE(KelMV::IsMissing(PowerReverseOneSampleNondirectionalES(1.5, 0.5, 0.05)));
  EXPECT_EQ(PowerReverseOneSampleNondirectionalES(0.8, std::nan(""), 0.05), 2);
}

}  // namespace
