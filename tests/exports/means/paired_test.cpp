#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "kelcommon/kel_mv.h"
#include "kelpower.h"

namespace {

using KelCommon::KelMV;

/// The four functions of raw input at one design, in the order power and size, two-sided before one-sided.
std::vector<double> RawForms(double sd1, double sd2, double correlation, double alpha = 0.05) {
  return {PowerRelatedNondirectional(20, 10, sd1, 8, sd2, correlation, alpha),
          PowerReverseRelatedNondirectional(0.8, 10, sd1, 8, sd2, correlation, alpha),
          PowerRelatedDirectional(20, 10, sd1, 8, sd2, correlation, alpha),
          PowerReverseRelatedDirectional(0.8, 10, sd1, 8, sd2, correlation, alpha)};
}

void ExpectAllMissing(const std::vector<double>& values) {
  for (double value : values) EXPECT_TRUE(KelMV::IsMissing(value));
}

void ExpectNoneMissing(const std::vector<double>& values) {
  for (double value : values) EXPECT_FALSE(KelMV::IsMissing(value));
}

TEST(Paired, EffectSizeIsThatOfTheDifferences) {
  EXPECT_DOUBLE_EQ(EffectSizeRelated(10, 4, 8, 3, 0.5), 2 / std::sqrt(13.0));
  EXPECT_EQ(EffectSizeRelated(10, 4, 8, 3, 0), 0.4);  // of independent measurements
  EXPECT_EQ(EffectSizeRelated(8, 4, 10, 4, -1), -0.25);
}

TEST(Paired, ASecondStandardDeviationOfZeroSaysThatTheFirstIsOfTheDifferences) {
  for (double correlation : {0.5, 0.0, -1.0, 7.0, double(NAN)}) {
    EXPECT_EQ(EffectSizeRelated(10, 4, 8, 0, correlation), 0.5);
    EXPECT_EQ(EffectSizeRelated(10, -4, 8, 0, correlation), -0.5);
  }
}

TEST(Paired, EffectSizeKeepsItsDigitsWhereMeasurementsAgree) {
  // With correlation 1 the standard deviation of the differences is |sd1 - sd2|; the plain sum of squares cancels.
  const double sd2 = 4 + 0x1p-20;
  EXPECT_DOUBLE_EQ(EffectSizeRelated(10, 4, 8, sd2, 1), 2 * 0x1p20);
  EXPECT_DOUBLE_EQ(EffectSizeRelated(10, 4, 8, 4, 1 - 0x1p-40), 2 / std::sqrt(32 * 0x1p-40));
}

TEST(Paired, EffectSizeDoesNotDependOnTheUnit) {
  for (double unit : {0x1p-600, 0x1p600}) {
    EXPECT_DOUBLE_EQ(EffectSizeRelated(10 * unit, 4 * unit, 8 * unit, 3 * unit, 0.5),
                     EffectSizeRelated(10, 4, 8, 3, 0.5));
  }
}

TEST(Paired, ImpossibleVariancesAreNotIntercepted) {
  EXPECT_EQ(EffectSizeRelated(10, 4, 8, 4, 1), INFINITY);
  EXPECT_TRUE(std::isnan(EffectSizeRelated(10, 4, 8, 4, 1.5)));
  EXPECT_TRUE(KelMV::IsMissing(PowerReversebyHalfCIRelatedMeans(1, 4, 4, 1.5, 0.05)));
}

TEST(Paired, RefusesACorrelationOfZero) {
  ExpectAllMissing(RawForms(4, 3, 0));
  ExpectNoneMissing(RawForms(4, 3, 1e-9));
}

TEST(Paired, OnlyTheTwoSidedTestAcceptsACorrelationOfOne) {
  const std::vector<double> values = RawForms(4, 3, 1);
  EXPECT_FALSE(KelMV::IsMissing(values[0]));
  EXPECT_FALSE(KelMV::IsMissing(values[1]));
  EXPECT_TRUE(KelMV::IsMissing(values[2]));
  EXPECT_TRUE(KelMV::IsMissing(values[3]));
}

TEST(Paired, RefusesImpossibleDesigns) {
  ExpectAllMissing(RawForms(4, 3, 1.0000001));
  ExpectAllMissing(RawForms(4, 3, -1.0000001));
  ExpectAllMissing(RawForms(4, 4, -1));
  ExpectAllMissing(RawForms(4, 4, 1));
  ExpectAllMissing(RawForms(0, 3, 0.5));
  ExpectAllMissing(RawForms(-4, 3, 0.5));
  ExpectAllMissing(RawForms(4, -0.1, 0.5));
  for (double alpha : {0.0, 1.0, -0.5, 2.5}) ExpectAllMissing(RawForms(4, 3, 0.5, alpha));
  ExpectNoneMissing(RawForms(4, 3, -1));
  ExpectNoneMissing(RawForms(4, 0, 0.5));
}

TEST(Paired, IsTheOneSampleTestOfTheDifferences) {
  const double sd = std::sqrt(13.0);
  EXPECT_NEAR(PowerRelatedNondirectional(20, 10, 4, 8, 3, 0.5, 0.05), PowerOneSampleNondirectional(20, 2, sd, 0, 0.05),
              1e-14);
  EXPECT_NEAR(PowerRelatedDirectional(20, 8, 4, 10, 3, 0.5, 0.05), PowerOneSampleDirectional(20, 2, sd, 0, 0.05),
              1e-14);
  EXPECT_NEAR(PowerReverseRelatedNondirectional(0.8, 10, 4, 8, 3, 0.5, 0.05),
              PowerReverseOneSampleNondirectional(0.8, 2, sd, 0, 0.05), 2e-9);
  EXPECT_NEAR(HalfCIRelatedMeans(20, 4, 3, 0.5, 0.05), HalfCIOneSampleMeans(20, sd, 0.05), 1e-14);
  EXPECT_EQ(PowerReversebyHalfCIRelatedMeans(1, 4, 3, 0.5, 0.05), PowerReversebyHalfCIOneSampleMeans(1, sd, 0.05));
}

TEST(Paired, ChecksTheLevelWhereTheOneSampleTestDoesNot) {
  for (double alpha : {0.0, 1.0}) {
    EXPECT_TRUE(KelMV::IsMissing(PowerRelatedNondirectionalES(20, 0.5, alpha)));
    EXPECT_FALSE(KelMV::IsMissing(PowerOneSampleNondirectionalES(20, 0.5, alpha)));
  }
  EXPECT_EQ(PowerRelatedNondirectionalES(20, 0.5, 0.05), PowerOneSampleNondirectionalES(20, 0.5, 0.05));
}

TEST(Paired, TheOneSidedFormsOfBothTestsAreTheSame) {
  for (double n : {-1.0, 1.0, 1.5, 2.0, 20.5, 1e9}) {
    for (double d : {-2.0, 0.0, 0.1, 0.5}) {
      for (double alpha : {-1.0, 0.0, 0.01, 0.5, 1.0}) {
        EXPECT_EQ(PowerRelatedDirectionalES(n, d, alpha), PowerOneSampleDirectionalES(n, d, alpha));
      }
    }
  }
  for (double power : {0.01, 0.5, 0.8, 1.2}) {
    for (double d : {-2.0, 0.0, 0.1, 0.5}) {
      EXPECT_EQ(PowerReverseRelatedDirectionalES(power, d, 0.05), PowerReverseOneSampleDirectionalES(power, d, 0.05));
    }
  }
}

TEST(PairedSize, IsTheNumberOfPairsThatReachesThePower) {
  for (double correlation : {-0.9, 0.3, 0.8}) {
    const double twoSided = PowerReverseRelatedNondirectional(0.9, 10, 4, 8, 3, correlation, 0.05);
    EXPECT_NEAR(PowerRelatedNondirectional(twoSided, 10, 4, 8, 3, correlation, 0.05), 0.9, 1e-9);
    const double oneSided = PowerReverseRelatedDirectional(0.9, 10, 4, 8, 3, correlation, 0.05);
    EXPECT_NEAR(PowerRelatedDirectional(oneSided, 10, 4, 8, 3, correlation, 0.05), 0.9, 1e-9);
  }
}

TEST(PairedSize, IsMissingWithoutADifference) {
  EXPECT_TRUE(KelMV::IsMissing(PowerReverseRelatedNondirectional(0.8, 8, 4, 8, 3, 0.5, 0.05)));
  EXPECT_TRUE(KelMV::IsMissing(PowerReverseRelatedDirectional(0.8, 8, 4, 8, 3, 0.5, 0.05)));
}

TEST(PairedHalfWidth, IsReachedAtTheSizeFoundAndNotBefore) {
  for (double unit : {1.0, 0x1p-600, 0x1p600}) {
    for (double correlation : {-1.0, -0.4, 0.0, 0.7, 1.0}) {
      const double size = PowerReversebyHalfCIRelatedMeans(0.5 * unit, 4 * unit, 3 * unit, correlation, 0.05);
      EXPECT_LE(HalfCIRelatedMeans(size, 4 * unit, 3 * unit, correlation, 0.05), 0.5 * unit);
      EXPECT_GT(HalfCIRelatedMeans(size - 1, 4 * unit, 3 * unit, correlation, 0.05), 0.5 * unit);
    }
  }
}

}  // namespace
