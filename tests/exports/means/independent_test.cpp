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

/// The sizes of a search in a vector that was empty.
template <typename Search>
DoubleVector Sizes(Search search, double power, double ratio, double effectSize, double alpha) {
  DoubleVector sizes;
  search(power, ratio, effectSize, sizes, alpha);
  return sizes;
}

DoubleVector RawSizes(double power, double ratio, double mean1, double sd1, double mean2, double sd2, double alpha) {
  DoubleVector sizes;
  PowerReverseIndependentNondirectional(power, ratio, mean1, sd1, mean2, sd2, sizes, alpha);
  return sizes;
}

DoubleVector HalfWidthSizes(double halfWidth, double ratio, double sd1, double sd2, double alpha) {
  DoubleVector sizes;
  PowerReversebyHalfCIIndependentMeans(halfWidth, ratio, sd1, sd2, sizes, alpha);
  return sizes;
}

bool AreTwoMissing(const DoubleVector& sizes) {
  return sizes.size() == 2 && KelMV::IsMissing(sizes[0]) && KelMV::IsMissing(sizes[1]);
}

TEST(Independent, GivesPublishedPowers) {
  EXPECT_NEAR(PowerIndependentNondirectionalES(20, 20, 1, 0.05), 0.8689530, 5e-8);
  // Sizes for d = 0.5 and power 0.8: 63.76561 in each group, so 64 (Cohen 1988, table 2.4.1).
  EXPECT_NEAR(PowerIndependentNondirectionalES(63.76561, 63.76561, 0.5, 0.05), 0.8, 5e-8);
  // Cohen 1988, section 2.3: one-sided, n = 90 and 60, d = 0.6.
  EXPECT_NEAR(PowerIndependentDirectionalES(90, 60, 0.6, 0.05), 0.9737262, 5e-8);
  // Unequal variances: standard deviations 0.5 and 1, a difference of 1, power 0.9 at 14.53583 in each group.
  EXPECT_NEAR(PowerIndependentNondirectional(14.53583, 0, 0.5, 14.53583, 1, 1, 0.05), 0.9, 5e-7);
}

TEST(Independent, GivesPublishedSizes) {
  EXPECT_EQ(Sizes(PowerReverseIndependentNondirectionalES, 0.8, 1, 0.5, 0.05), (DoubleVector{64, 64}));
  EXPECT_EQ(RawSizes(0.9, 1, 0, 0.5, 1, 1, 0.05), (DoubleVector{15, 15}));
}

TEST(Independent, EffectSizeRejectsOnlyAStandardDeviationOfZero) {
  EXPECT_TRUE(KelMV::IsMissing(EffectSizeIndependent(5, 3, 0)));
  EXPECT_EQ(EffectSizeIndependent(5, 3, -2), -1);
}

TEST(Independent, WithoutEffectThePowerIsTheLevel) {
  for (double n : {1.5, 2.0, 20.0, 1e5, 1e154, 1e307}) {
    for (double alpha : {0.001, 0.05, 0.5}) {
      EXPECT_NEAR(PowerIndependentNondirectionalES(n, 30, 0, alpha), alpha, 1e-13) << n;
      EXPECT_NEAR(PowerIndependentDirectionalES(n, n, 0, alpha), alpha, 1e-13) << n;
      EXPECT_NEAR(PowerIndependentNondirectional(n, 3, 4, n, 3, 5, alpha), alpha, 1e-13) << n;
      EXPECT_NEAR(PowerIndependentDirectional(n, 3, 4, 30, 3, 4, alpha), alpha, 1e-13) << n;
    }
  }
}

TEST(Independent, EqualStandardDeviationsArePooled) {
  const double noncentrality = std::sqrt(10.0) * 0.5;
  const double critical = KelDistFun::IdfT(0.975, 38, 1e-40, 1e-30);
  const double expected = 1 - KelDistFun::NonCentralCdfT(critical, 38, noncentrality, 1e-12) +
                          KelDistFun::NonCentralCdfT(-critical, 38, noncentrality, 1e-12);
  const double pooled = PowerIndependentNondirectional(20, 0, 10, 20, 5, 10, 0.05);
  EXPECT_NEAR(pooled, expected, 1e-13);
  EXPECT_NEAR(pooled, PowerIndependentNondirectionalES(20, 20, 0.5, 0.05), 1e-14);

  const double welch = PowerIndependentNondirectional(20, 0, 10, 20, 5, 10.001, 0.05);
  EXPECT_NE(welch, pooled);
  EXPECT_NEAR(welch, pooled, 1e-4);
}

TEST(Independent, UnequalStandardDeviationsTakeWelchsDegreesOfFreedom) {
  const double a1 = 16.0 / 12;
  const double a2 = 81.0 / 30;
  const double df = (a1 + a2) * (a1 + a2) / (a1 * a1 / 11 + a2 * a2 / 29);
  const double critical = KelDistFun::IdfT(0.95, df, 1e-40, 1e-30);
  const double expected = 1 - KelDistFun::NonCentralCdfT(critical, df, 5 / std::sqrt(a1 + a2), 1e-12);
  EXPECT_NEAR(PowerIndependentDirectional(12, 3, 4, 30, 8, 9, 0.05), expected, 1e-13);
}

TEST(Independent, GroupsMayChangePlaces) {
  EXPECT_NEAR(PowerIndependentNondirectional(12, 3, 4, 30, 8, 9, 0.05),
              PowerIndependentNondirectional(30, 8, 9, 12, 3, 4, 0.05), 1e-14);
  EXPECT_NEAR(PowerIndependentNondirectionalES(12, 30, 0.7, 0.05), PowerIndependentNondirectionalES(30, 12, -0.7, 0.05),
              1e-14);
}

TEST(Independent, PowerDoesNotDependOnTheUnit) {
  for (double unit : {0x1p-600, 0x1p600}) {
    EXPECT_NEAR(PowerIndependentNondirectional(12, 3 * unit, 4 * unit, 30, 8 * unit, 9 * unit, 0.05),
                PowerIndependentNondirectional(12, 3, 4, 30, 8, 9, 0.05), 1e-14);
  }
}

TEST(Independent, OneHugeGroupGivesTheTestOfTheOtherAlone) {
  // The standard error and, in the form of Welch, the degrees of freedom are those of the small group.
  for (double n : {1e154, 1e200, 1e307, std::numeric_limits<double>::max()}) {
    EXPECT_NEAR(PowerIndependentNondirectional(20, 5, 10, n, 0, 9, 0.05), PowerOneSampleNondirectionalES(20, 0.5, 0.05),
                1e-13);
    EXPECT_NEAR(PowerIndependentDirectional(n, 5, 9, 20, 0, 10, 0.05), PowerOneSampleDirectionalES(20, 0.5, 0.05),
                1e-13);
  }
}

TEST(Independent, RejectsInvalidDesigns) {
  for (double n : {1.0, 0.0, -3.0}) {
    EXPECT_TRUE(KelMV::IsMissing(PowerIndependentNondirectional(n, 0, 10, 20, 5, 10, 0.05)));
    EXPECT_TRUE(KelMV::IsMissing(PowerIndependentNondirectional(20, 0, 10, n, 5, 10, 0.05)));
    EXPECT_TRUE(KelMV::IsMissing(PowerIndependentDirectional(n, 0, 10, 20, 5, 12, 0.05)));
    EXPECT_TRUE(KelMV::IsMissing(PowerIndependentDirectional(20, 0, 10, n, 5, 12, 0.05)));
    EXPECT_TRUE(KelMV::IsMissing(PowerIndependentNondirectionalES(n, 20, 0.5, 0.05)));
    EXPECT_TRUE(KelMV::IsMissing(PowerIndependentNondirectionalES(20, n, 0.5, 0.05)));
    EXPECT_TRUE(KelMV::IsMissing(PowerIndependentDirectionalES(n, 20, 0.5, 0.05)));
    EXPECT_TRUE(KelMV::IsMissing(PowerIndependentDirectionalES(20, n, 0.5, 0.05)));
  }
  for (double sd : {0.0, -1.0}) {
    EXPECT_TRUE(KelMV::IsMissing(PowerIndependentNondirectional(20, 0, sd, 20, 5, 10, 0.05)));
    EXPECT_TRUE(KelMV::IsMissing(PowerIndependentDirectional(20, 0, 10, 20, 5, sd, 0.05)));
  }
  for (double alpha : {0.0, 1.0}) {
    EXPECT_TRUE(KelMV::IsMissing(PowerIndependentNondirectional(20, 0, 10, 20, 5, 10, alpha)));
    EXPECT_TRUE(KelMV::IsMissing(PowerIndependentDirectional(20, 0, 10, 20, 5, 10, alpha)));
    EXPECT_TRUE(KelMV::IsMissing(PowerIndependentNondirectionalES(20, 20, 0.5, alpha)));
    EXPECT_TRUE(KelMV::IsMissing(PowerIndependentDirectionalES(20, 20, 0.5, alpha)));
  }
}

TEST(Independent, NotANumberGoesThroughToThePower) {
  EXPECT_TRUE(std::isnan(PowerIndependentNondirectional(20, 0, 10, 20, 5, quietNaN, 0.05)));
  EXPECT_TRUE(std::isnan(PowerIndependentDirectional(20, quietNaN, 10, 20, 5, 10, 0.05)));
  EXPECT_TRUE(std::isnan(PowerIndependentNondirectionalES(20, quietNaN, 0.5, 0.05)));
  EXPECT_TRUE(std::isnan(PowerIndependentDirectionalES(quietNaN, 20, 0.5, 0.05)));
}

TEST(IndependentSizes, ReachThePowerAndOneLessDoesNot) {
  for (double d : {0.2, 0.5, 0.9}) {
    const DoubleVector twoSided = Sizes(PowerReverseIndependentNondirectionalES, 0.8, 1, d, 0.05);
    ASSERT_EQ(twoSided.size(), 2u);
    EXPECT_GE(PowerIndependentNondirectionalES(twoSided[0], twoSided[1], d, 0.05), 0.8);
    EXPECT_LT(PowerIndependentNondirectionalES(twoSided[0] - 1, twoSided[1] - 1, d, 0.05), 0.8);
    const DoubleVector oneSided = Sizes(PowerReverseIndependentDirectionalES, 0.8, 1, d, 0.05);
    EXPECT_GE(PowerIndependentDirectionalES(oneSided[0], oneSided[1], d, 0.05), 0.8);
    EXPECT_LT(PowerIndependentDirectionalES(oneSided[0] - 1, oneSided[1] - 1, d, 0.05), 0.8);
  }
}

TEST(IndependentSizes, TheRatioAppliesToTheUnroundedFirstSize) {
  const DoubleVector sizes = Sizes(PowerReverseIndependentNondirectionalES, 0.8, 3, 0.5, 0.05);
  ASSERT_EQ(sizes.size(), 2u);
  double lower = sizes[0] - 1;
  double upper = sizes[0];
  for (int i = 0; i < 60; ++i) {
    const double mid = (lower + upper) / 2;
    (PowerIndependentNondirectionalES(mid, 3 * mid, 0.5, 0.05) < 0.8 ? lower : upper) = mid;
  }
  EXPECT_EQ(sizes[0], std::ceil(upper));
  EXPECT_EQ(sizes[1], std::ceil(3 * upper));
  EXPECT_NE(sizes[1], 3 * sizes[0]);
}

TEST(IndependentSizes, OnlyTheSecondIsRaisedToTwo) {
  // Below a first size of 100 a ratio of 0.01 leaves no second group; just above it the power is reached.
  EXPECT_EQ(Sizes(PowerReverseIndependentDirectionalES, 0.06, 0.01, 0.5, 0.05), (DoubleVector{100, 2}));
  EXPECT_EQ(HalfWidthSizes(1e6, 0.3, 4, 4, 0.05), (DoubleVector{2, 2}));
}

TEST(IndependentSizes, OfRawInputAreNotAppendedToOthers) {
  DoubleVector sizes = {7};
  PowerReverseIndependentNondirectional(0.8, 1, 0, 10, 5, 10, sizes, 0.05);
  PowerReverseIndependentDirectional(0.8, 1, 0, 10, 5, 10, sizes, 0.05);
  EXPECT_EQ(sizes, DoubleVector{7});
  PowerReverseIndependentNondirectionalES(0.8, 1, 0.5, sizes, 0.05);
  EXPECT_EQ(sizes, (DoubleVector{7, 64, 64}));
  PowerReverseIndependentDirectionalES(0.8, 1, 0.5, sizes, 0.05);
  EXPECT_EQ(sizes, (DoubleVector{7, 64, 64, 51, 51}));
  PowerReversebyHalfCIIndependentMeans(3, 1, 10, 10, sizes, 0.05);
  EXPECT_EQ(sizes.size(), 7u);
}

TEST(IndependentSizes, AreMissingWhereNoSizeReachesThePower) {
  for (double ratio : {0.01, 1.0, 4.0, 1e6}) {
    EXPECT_TRUE(AreTwoMissing(Sizes(PowerReverseIndependentNondirectionalES, 0.8, ratio, 0, 0.05))) << ratio;
    EXPECT_TRUE(AreTwoMissing(Sizes(PowerReverseIndependentDirectionalES, 0.8, ratio, 0, 0.05))) << ratio;
    EXPECT_TRUE(AreTwoMissing(Sizes(PowerReverseIndependentDirectionalES, 1.4, ratio, 0.2, 0.05))) << ratio;
    EXPECT_TRUE(AreTwoMissing(RawSizes(0.8, ratio, 5, 10, 5, 10, 0.05))) << ratio;
    EXPECT_TRUE(AreTwoMissing(RawSizes(0.8, ratio, 5, 10, 5, 12, 0.05))) << ratio;
    EXPECT_TRUE(AreTwoMissing(HalfWidthSizes(0, ratio, 10, 10, 0.05))) << ratio;
    EXPECT_TRUE(AreTwoMissing(HalfWidthSizes(0, ratio, 10, 12, 0.05))) << ratio;
  }
}

TEST(IndependentSizes, AreMissingForInvalidDesigns) {
  EXPECT_TRUE(AreTwoMissing(RawSizes(0.8, 1, 0, 0, 5, 10, 0.05)));
  EXPECT_TRUE(AreTwoMissing(RawSizes(0.8, 1, 0, 10, 5, -1, 0.05)));
  EXPECT_TRUE(AreTwoMissing(RawSizes(0.8, 1, 0, 10, 5, 10, 1)));
  EXPECT_TRUE(AreTwoMissing(RawSizes(0.8, 0, 0, 10, 5, 10, 0.05)));
  EXPECT_TRUE(AreTwoMissing(RawSizes(0.8, -1, 0, 10, 5, 10, 0.05)));
  EXPECT_TRUE(AreTwoMissing(Sizes(PowerReverseIndependentNondirectionalES, 0.8, 0, 0.5, 0.05)));
  EXPECT_TRUE(AreTwoMissing(Sizes(PowerReverseIndependentDirectionalES, 0.8, 1, 0.5, 0)));
}

TEST(IndependentHalfWidth, IsTheQuantileTimesTheStandardError) {
  const double pooled = KelDistFun::IdfT(0.975, 48, 1e-40, 1e-30) * 10 * std::sqrt(1.0 / 20 + 1.0 / 30);
  EXPECT_NEAR(HalfCIIndependentMeans(20, 10, 30, 10, 0.05), pooled, 1e-13);
  const double a1 = 5;
  const double a2 = 4.8;
  const double df = (a1 + a2) * (a1 + a2) / (a1 * a1 / 19 + a2 * a2 / 29);
  EXPECT_NEAR(HalfCIIndependentMeans(20, 10, 30, 12, 0.05),
              KelDistFun::IdfT(0.975, df, 1e-40, 1e-30) * std::sqrt(a1 + a2), 1e-13);
}

TEST(IndependentHalfWidth, IsReachedAtTheSizesFoundAndNotBefore) {
  for (double unit : {1.0, 0x1p600}) {
    for (double sd2 : {10.0, 14.0}) {
      for (double width : {1.0, 3.0}) {
        const DoubleVector sizes = HalfWidthSizes(width * unit, 1, 10 * unit, sd2 * unit, 0.05);
        ASSERT_EQ(sizes.size(), 2u);
        EXPECT_LE(HalfCIIndependentMeans(sizes[0], 10 * unit, sizes[1], sd2 * unit, 0.05), width * unit);
        EXPECT_GT(HalfCIIndependentMeans(sizes[0] - 1, 10 * unit, sizes[1] - 1, sd2 * unit, 0.05), width * unit);
      }
    }
  }
}

TEST(PowerReversebyHalfCIIndependentMeans, IsMissingWhereNoSizeReachesTheHalfWidth) {
  for (const double sd2 : {1.0, 2.0}) {
    DoubleVector sizes;
    PowerReversebyHalfCIIndependentMeans(2, 0, 1, sd2, sizes, 0.05);
    EXPECT_EQ(sizes, (DoubleVector{KelMV::Missing(), KelMV::Missing()}));
  }
}

// With little more than one subject in group 2, Welch's degrees of freedom are so few that the quantile of t overflows
// and the power is 1, at a level above one half. What the power is there says nothing about larger sizes.
TEST(PowerReverseIndependentDirectional, TakesNothingForGrantedAtALevelAboveOneHalf) {
  DoubleVector sizes;
  PowerReverseIndependentDirectional(.64388645773345288, .00020353021050115904, 1, 3.0355388521757156, 1,
                                     .78533116551411286, sizes, .64388645773345288);
  EXPECT_EQ(sizes, (DoubleVector{6400, 2}));
  sizes.clear();
  PowerReverseIndependentDirectional(0.83758474443573216, 9.7656250690435158e-06, 0.010520184381508519, 1, 0,
                                     4.0330198194082811, sizes, 0.72238930656501354);
  EXPECT_EQ(sizes, (DoubleVector{102400, 2}));
}

}  // namespace
