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

const std::vector<double> usualMeans = {10, 12, 15};
const std::vector<double> usualSizes = {20, 15, 25};

TEST(EffectSizeSC, RepairsTheLastCoefficient) {
  std::vector<double> coefficients = {1, 0, 0};
  EXPECT_DOUBLE_EQ(EffectSizeSC(3, usualMeans.data(), 4, coefficients.data()), -1.25);
  EXPECT_EQ(coefficients, (std::vector<double>{1, 0, -1}));
}

TEST(EffectSizeSC, IsMissingWhenTheRepairedCoefficientIsOutOfRange) {
  std::vector<double> coefficients = {1, 1, 5};
  EXPECT_TRUE(KelMV::IsMissing(EffectSizeSC(3, usualMeans.data(), 4, coefficients.data())));
  EXPECT_EQ(coefficients, (std::vector<double>{1, 1, -2}));
  // The next call finds coefficients that sum to zero.
  EXPECT_DOUBLE_EQ(EffectSizeSC(3, usualMeans.data(), 4, coefficients.data()), -2);
}

TEST(EffectSizeSC, RepairsBeforeItChecksTheStandardDeviation) {
  std::vector<double> coefficients = {0.5, 0.5, 0};
  EXPECT_TRUE(KelMV::IsMissing(EffectSizeSC(3, usualMeans.data(), 0, coefficients.data())));
  EXPECT_EQ(coefficients, (std::vector<double>{0.5, 0.5, -1}));
}

TEST(EffectSizeSC, ReadsNothingWithoutGroups) {
  EXPECT_EQ(EffectSizeSC(0, nullptr, 4, nullptr), 0);
  EXPECT_TRUE(KelMV::IsMissing(EffectSizeSC(-2, nullptr, 0, nullptr)));
}

TEST(PowerSC, OneSidedIsTheUpperTailOfTheNoncentralT) {
  std::vector<double> coefficients = {0.5, 0.5, -1};
  const double effect = (0.5 * 10 + 0.5 * 12 - 15) / 6;
  const double variance = 0.25 / 20 + 0.25 / 15 + 1.0 / 25;
  const double t = KelDistFun::IdfT(0.95, 57, 1e-40, 1e-30);
  const double wanted = 1 - KelDistFun::NonCentralCdfT(t, 57, std::fabs(effect) / std::sqrt(variance), 1e-12);
  EXPECT_NEAR(PowerSC(3, usualMeans.data(), 6, usualSizes.data(), coefficients.data(), 1, 0.05), wanted, 1e-14);
  EXPECT_NEAR(PowerSCwES(3, effect, usualSizes.data(), coefficients.data(), -1, 0.05), wanted, 1e-14);
  EXPECT_NEAR(PowerSCwES(3, -effect, usualSizes.data(), coefficients.data(), 1, 0.05), wanted, 1e-14);
}

TEST(PowerSC, TwoSidedIsBothTailsOfTheNoncentralT) {
  std::vector<double> coefficients = {0.5, 0.5, -1};
  const double delta = (0.5 * 10 + 0.5 * 12 - 15) / 6 / std::sqrt(0.25 / 20 + 0.25 / 15 + 1.0 / 25);
  const double t = KelDistFun::IdfT(0.975, 57, 1e-40, 1e-30);
  const double wanted =
      1 - KelDistFun::NonCentralCdfT(t, 57, delta, 1e-12) + KelDistFun::NonCentralCdfT(-t, 57, delta, 1e-12);
  EXPECT_NEAR(PowerSC(3, usualMeans.data(), 6, usualSizes.data(), coefficients.data(), 0, 0.05), wanted, 1e-13);
}

TEST(PowerSC, RepairsTheCallersCoefficientsUnlessItRejects) {
  std::vector<double> coefficients = {1, 0, 0};
  PowerSC(3, usualMeans.data(), 6, usualSizes.data(), coefficients.data(), 0, 0.05);
  EXPECT_EQ(coefficients[2], -1);

  coefficients = {1, 0, 0};
  EXPECT_TRUE(KelMV::IsMissing(PowerSC(3, usualMeans.data(), 6, usualSizes.data(), coefficients.data(), 0, 1)));
  EXPECT_TRUE(KelMV::IsMissing(PowerSC(3, usualMeans.data(), 0, usualSizes.data(), coefficients.data(), 0, 0.05)));
  EXPECT_TRUE(KelMV::IsMissing(PowerSC(1, usualMeans.data(), 6, usualSizes.data(), coefficients.data(), 0, 0.05)));
  EXPECT_EQ(coefficients[2], 0);
}

TEST(PowerSC, OfACoefficientThatCannotBeRepairedIsOne) {
  std::vector<double> coefficients = {1, 1, 5};  // the missing effect counts as infinite
  EXPECT_EQ(PowerSC(3, usualMeans.data(), 6, usualSizes.data(), coefficients.data(), 0, 0.05), 1);
}

TEST(PowerSCwES, OfAnEmptyGroupIsAlpha) {
  const std::vector<double> sizes = {20, 0, 20};
  const std::vector<double> coefficients = {1, -1, 0};
  for (const int isDirectional : {0, 1}) {
    EXPECT_NEAR(PowerSCwES(3, 0.7, sizes.data(), coefficients.data(), isDirectional, 0.05), 0.05, 1e-14);
  }
}

TEST(PowerReverseSC, ReachesThePowerAndOneLessDoesNot) {
  const std::vector<double> equal = {1, 1, 1};
  for (const int isDirectional : {0, 1}) {
    std::vector<double> coefficients = {1, 0, -1};
    DoubleVector sizes;
    PowerReverseSC(3, usualMeans.data(), 6, equal.data(), coefficients.data(), 0.9, sizes, isDirectional, 0.05);
    ASSERT_EQ(sizes.size(), 3U);
    EXPECT_GE(PowerSC(3, usualMeans.data(), 6, sizes.data(), coefficients.data(), isDirectional, 0.05), 0.9);
    const std::vector<double> less(3, sizes[0] - 1);
    EXPECT_LT(PowerSC(3, usualMeans.data(), 6, less.data(), coefficients.data(), isDirectional, 0.05), 0.9);

    DoubleVector byEffect;
    PowerReverseSCwES(3, -5.0 / 6, equal.data(), coefficients.data(), 0.9, byEffect, isDirectional, 0.05);
    EXPECT_EQ(byEffect, sizes);
  }
}

TEST(PowerReverseSC, DoesNotRepairTheCallersCoefficients) {
  std::vector<double> coefficients = {1, 0, 0};
  std::vector<double> repaired = {1, 0, -1};
  DoubleVector sizes;
  DoubleVector wanted;
  PowerReverseSC(3, usualMeans.data(), 6, usualSizes.data(), coefficients.data(), 0.9, sizes, 0, 0.05);
  PowerReverseSC(3, usualMeans.data(), 6, usualSizes.data(), repaired.data(), 0.9, wanted, 0, 0.05);
  EXPECT_EQ(coefficients, (std::vector<double>{1, 0, 0}));
  EXPECT_EQ(sizes, wanted);
}

TEST(HalfCISCTest, IsInvertedByTheSizeForIt) {
  const std::vector<double> coefficients = {0.5, 0.5, -1};
  const std::vector<double> ratios = {2, 1, 1};
  DoubleVector sizes;
  const double total = PowerReversebyHalfCISCTest(1.5, 3, ratios.data(), coefficients.data(), 6, sizes, 0.05);
  EXPECT_LE(HalfCISCTest(total, 3, ratios.data(), coefficients.data(), 6, 0.05), 1.5);
  EXPECT_GT(HalfCISCTest(total - 3, 3, ratios.data(), coefficients.data(), 6, 0.05), 1.5);
}

TEST(HalfCISCTest, OfADifferenceIsThatOfTwoMeans) {
  const std::vector<double> sizes = {20, 30};
  const std::vector<double> coefficients = {1, -1};
  const double t = KelDistFun::IdfT(0.975, 48, 1e-40, 1e-30);
  EXPECT_NEAR(HalfCISCTest(50, 2, sizes.data(), coefficients.data(), 6, 0.05), t * 6 * std::sqrt(1 / 20.0 + 1 / 30.0),
              1e-13);
}

TEST(PairwiseDiff, IsTheContrastOfTwoGroupsAtTheAdjustedLevel) {
  std::vector<double> contrast = {1, 0, -1};
  const std::vector<double> levels = {0.1 / 3 / 2, 1 - std::pow(0.95, 1.0 / 3), 0.05};
  for (int adjustment = 0; adjustment <= 2; ++adjustment) {
    const double level = levels[static_cast<std::size_t>(adjustment)];
    EXPECT_NEAR(PowerPairwiseDiff(3, usualMeans.data(), 6, usualSizes.data(), 1, 3, adjustment, 0.05),
                PowerSC(3, usualMeans.data(), 6, usualSizes.data(), contrast.data(), 0, level), 1e-14);
    EXPECT_NEAR(HalfCIPairwiseDiff(60, 3, usualSizes.data(), 1, 3, 6, adjustment, 0.05),
                HalfCISCTest(60, 3, usualSizes.data(), contrast.data(), 6, level), 1e-12);
    DoubleVector sizes;
    DoubleVector wanted;
    PowerReversePairwiseDiff(3, usualMeans.data(), 6, usualSizes.data(), 1, 3, 0.8, sizes, adjustment, 0.05);
    PowerReverseSC(3, usualMeans.data(), 6, usualSizes.data(), contrast.data(), 0.8, wanted, 0, level);
    EXPECT_EQ(sizes, wanted);
    PowerReversebyHalfCIPairwiseDiff(2, 3, usualSizes.data(), 1, 3, 6, sizes, adjustment, 0.05);
    PowerReversebyHalfCISCTest(2, 3, usualSizes.data(), contrast.data(), 6, wanted, level);
    EXPECT_EQ(sizes, wanted);
  }
  EXPECT_DOUBLE_EQ(EffectSizePairwiseDiff(3, usualMeans.data(), 4, nullptr, 1, 3), -1.25);
}

TEST(PairwiseDiff, RefusesAnUnknownAdjustment) {
  DoubleVector sizes;
  EXPECT_TRUE(KelMV::IsMissing(PowerPairwiseDiff(3, usualMeans.data(), 6, usualSizes.data(), 1, 2, 3, 0.05)));
  EXPECT_TRUE(KelMV::IsMissing(HalfCIPairwiseDiff(60, 3, usualSizes.data(), 1, 2, 6, -1, 0.05)));
  EXPECT_TRUE(KelMV::IsMissing(
      PowerReversePairwiseDiff(3, usualMeans.data(), 6, usualSizes.data(), 1, 2, 0.8, sizes, 3, 0.05)));
  EXPECT_EQ(sizes, DoubleVector(3, KelMV::Missing()));
  sizes.clear();
  EXPECT_TRUE(KelMV::IsMissing(PowerReversebyHalfCIPairwiseDiff(2, 3, usualSizes.data(), 1, 2, 6, sizes, 3, 0.05)));
  EXPECT_EQ(sizes, DoubleVector(3, KelMV::Missing()));
}

TEST(PairwiseDiff, TheFirstGroupMustComeFirstExceptForHalfWidths) {
  EXPECT_TRUE(KelMV::IsMissing(PowerPairwiseDiff(3, usualMeans.data(), 6, usualSizes.data(), 2, 1, 2, 0.05)));
  EXPECT_TRUE(KelMV::IsMissing(PowerPairwiseDiff(3, usualMeans.data(), 6, usualSizes.data(), 2, 2, 2, 0.05)));
  EXPECT_TRUE(KelMV::IsMissing(PowerPairwiseDiff(3, usualMeans.data(), 6, usualSizes.data(), 0, 2, 2, 0.05)));
  EXPECT_TRUE(KelMV::IsMissing(EffectSizePairwiseDiff(3, usualMeans.data(), 6, nullptr, 3, 1)));
  EXPECT_EQ(HalfCIPairwiseDiff(60, 3, usualSizes.data(), 2, 1, 6, 2, 0.05),
            HalfCIPairwiseDiff(60, 3, usualSizes.data(), 1, 2, 6, 2, 0.05));
}

TEST(PairwiseDiff, GroupNumbersThatNameNoGroupTouchNoMemory) {
  const int huge = std::numeric_limits<int>::max();
  const int tiny = std::numeric_limits<int>::min();
  for (const int second : {4, huge}) {
    EXPECT_GT(PowerPairwiseDiff(3, usualMeans.data(), 6, usualSizes.data(), 1, second, 2, 0.05), 0);
  }
  EXPECT_EQ(HalfCIPairwiseDiff(60, 3, usualSizes.data(), tiny, huge, 6, 2, 0.05), 0);  // a contrast of zeros
  EXPECT_EQ(HalfCIPairwiseDiff(60, tiny, nullptr, 1, 2, 6, 2, 0.05),
            HalfCIPairwiseDiff(60, tiny, nullptr, 1, 2, 6, 2, 0.05));
}

// A group with a coefficient and no share has no estimate of its mean, at no total size.
TEST(PowerReverseSC, OfAContrastWithAnEmptyGroupIsTwoEach) {
  const std::vector<double> ratios = {0, 1, 1};
  std::vector<double> contrast = {1, -1, 0};
  DoubleVector sizes;
  EXPECT_EQ(PowerReverseSCwES(3, 2, ratios.data(), contrast.data(), 0.8, sizes, 0, 0.05), 6);
  EXPECT_EQ(sizes, (DoubleVector{2, 2, 2}));

  const std::vector<double> means = {0, 3, 0};
  const std::vector<double> middleEmpty = {1, 0, 1};
  EXPECT_EQ(PowerReverseSC(3, means.data(), 1, middleEmpty.data(), contrast.data(), 0.8, sizes, 0, 0.05), 6);
  EXPECT_EQ(PowerReversePairwiseDiff(3, means.data(), 1, middleEmpty.data(), 1, 2, 0.8, sizes, 0, 0.05), 6);
  EXPECT_EQ(PowerReversebyHalfCISCTest(5, 3, middleEmpty.data(), contrast.data(), 1, sizes, 0.05), 6);
  EXPECT_EQ(PowerReversebyHalfCIPairwiseDiff(5, 3, middleEmpty.data(), 1, 2, 1, sizes, 2, 0.05), 6);
}

TEST(PowerSC, DoesNotDependOnTheScaleOfTheCoefficients) {
  const std::vector<double> means = {0, 1};
  const std::vector<double> sizes = {10, 10};
  std::vector<double> plain = {1, -1};
  const double power = PowerSC(2, means.data(), 1, sizes.data(), plain.data(), 0, 0.05);
  for (const double scale : {1e160, 1e-160, 1e300}) {
    std::vector<double> scaled = {scale, -scale};
    EXPECT_NEAR(PowerSC(2, means.data(), 1, sizes.data(), scaled.data(), 0, 0.05), power, 1e-14) << scale;
  }
}

TEST(PowerSC, ReadsNoArrayOfInvalidInput) {
  EXPECT_TRUE(KelMV::IsMissing(PowerSCwES(2, 0.5, nullptr, nullptr, 0, 2)));
  EXPECT_TRUE(KelMV::IsMissing(PowerSCwES(1, 0.5, nullptr, nullptr, 0, 0.05)));
  EXPECT_TRUE(KelMV::IsMissing(PowerSC(2, nullptr, 1, nullptr, nullptr, 0, 2)));
  EXPECT_TRUE(KelMV::IsMissing(PowerSC(1, nullptr, 1, nullptr, nullptr, 0, 0.05)));
}

}  // namespace
