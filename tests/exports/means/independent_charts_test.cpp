#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "exports/means/independent.h"
#include "exports/means/sides.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"
#include "support/chart_records.h"

using namespace kelpower;

namespace {

using exports::SidesOf;
using KelCommon::KelMV;
using means::Sides;

constexpr double infinite = std::numeric_limits<double>::infinity();

double PowerByTotal(Sides sides, double totalSize, double ratio, double difference, double sd1, double sd2) {
  return exports::PowerOrMissing(exports::WelchTestByTotal(sides, totalSize, ratio, sd1, sd2, 0.05), difference);
}

TEST(PowerByTotalSize, NeverPools) {
  const double pooled = PowerIndependentNondirectional(20, 5, 10, 30, 0, 10, 0.05);
  const double welch = PowerByTotal(Sides::Two, 50, 1.5, 5, 10, 10);
  EXPECT_NE(welch, pooled);
  EXPECT_NEAR(welch, pooled, 1e-2);
  EXPECT_NEAR(PowerByTotal(Sides::Two, 50, 1.5, 5, 10, 12), PowerIndependentNondirectional(20, 5, 10, 30, 0, 12, 0.05),
              1e-14);
}

TEST(PlotRatioIndependent, ChartsAnAutomaticRangeSymmetricAroundOne) {
  for (double ratio : {0.0, 3.0}) {
    const std::vector<double> x = TakeX(PlotRatioIndependentFES(52, 0.5, 0, ratio, 0, 0.05, 0.1));
    ASSERT_EQ(x.size(), 11u);
    EXPECT_EQ(x.front(), 1.0 / 40);
    EXPECT_EQ(x.back(), 40);
  }
  EXPECT_TRUE(IsEmpty(PlotRatioIndependentFES(2, 0.5, 0, 0, 0, 0.05, 0.1)));
  EXPECT_TRUE(IsEmpty(PlotRatioIndependentFES(infinite, 0.5, 0, 0, 0, 0.05, 0.1)));
}

TEST(PlotRatioIndependent, HoldsThePowerAtEveryRatio) {
  for (int directional : {0, 1}) {
    const Sides sides = SidesOf(directional);
    const CurveRecord pooled(PlotRatioIndependent(50, 0, 10, 5, 10, 0.5, 2, directional, 0.05, 0.3));
    const CurveRecord standardised(PlotRatioIndependentFES(50, -0.5, 0.5, 2, directional, 0.05, 0.3));
    const CurveRecord welch(PlotRatioIndependent(50, 0, 10, 5, 12, 0.5, 2, directional, 0.05, 0.3));
    ASSERT_EQ(pooled.count, 5);
    ASSERT_EQ(welch.count, 5);
    for (int i = 0; i < 5; ++i) {
      const double ratio = i == 4 ? 2 : i * (0.3 * 1.5) + 0.5;
      EXPECT_EQ(pooled.x[i], ratio);
      const double n = 50 / (ratio + 1);
      const double power = directional != 0 ? PowerIndependentDirectionalES(n, n * ratio, -0.5, 0.05)
                                            : PowerIndependentNondirectionalES(n, n * ratio, -0.5, 0.05);
      EXPECT_EQ(pooled.y[i], Single(power));
      EXPECT_EQ(standardised.y[i], Single(power));
      EXPECT_EQ(welch.y[i], Single(PowerByTotal(sides, 50, ratio, -5, 10, 12)));
    }
  }
}

TEST(PlotRatioIndependent, RepeatsTheLeftNeighbourOfABadPoint) {
  // The least ratio passes the check of the range, but leaves the second group no more than 1 observation.
  const double least = std::nextafter(1.0 / 6, 1);
  const CurveRecord bad(PlotRatioIndependentFES(7, 0.5, least, least, 0, 0.05, 0.5));
  ASSERT_EQ(bad.count, 3);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(bad.y[i], -infinite);

  // The greatest leaves the first group no more than 1.
  const double greatest = std::nextafter(8.0, 0);
  const CurveRecord last(PlotRatioIndependentFES(9, 0.5, 1, greatest, 0, 0.05, 0.5));
  ASSERT_EQ(last.count, 3);
  EXPECT_GT(last.y[1], 0.05);
  EXPECT_EQ(last.y[2], last.y[1]);
}

TEST(PlotRatioIndependent, IsEmptyForInvalidInput) {
  EXPECT_TRUE(IsEmpty(PlotRatioIndependentFES(50, 0.5, 2, 0.5, 0, 0.05, 0.1)));
  EXPECT_TRUE(IsEmpty(PlotRatioIndependentFES(50, 0.5, 1.0 / 49, 2, 0, 0.05, 0.1)));
  EXPECT_TRUE(IsEmpty(PlotRatioIndependentFES(50, 0.5, 0.5, 49, 0, 0.05, 0.1)));
  EXPECT_TRUE(IsEmpty(PlotRatioIndependentFES(1, 0.5, 0.5, 2, 0, 0.05, 0.1)));
  EXPECT_TRUE(IsEmpty(PlotRatioIndependentFES(50, 0.5, 0.5, 2, 0, 1, 0.1)));
  EXPECT_TRUE(IsEmpty(PlotRatioIndependentFES(50, 0.5, 0.5, 2, 0, 0.05, 0)));
  EXPECT_TRUE(IsEmpty(PlotRatioIndependent(50, 0, 0, 5, 10, 0.5, 2, 0, 0.05, 0.1)));
  EXPECT_TRUE(IsEmpty(PlotRatioIndependent(50, 0, 10, 5, -1, 0.5, 2, 0, 0.05, 0.1)));
}

TEST(PlotESIndepended, HoldsThePowerAtEveryEffectSize) {
  for (int directional : {0, 1}) {
    const CurveRecord plot(PlotESIndepended(20, 30, -5, 1, directional, 0.05, 0.3));
    ASSERT_EQ(plot.count, 5);
    EXPECT_EQ(plot.x[0], directional != 0 ? -5 : 0);
    for (int i = 0; i < 5; ++i) {
      const double power = directional != 0 ? PowerIndependentDirectionalES(20, 30, plot.x[i], 0.05)
                                            : PowerIndependentNondirectionalES(20, 30, plot.x[i], 0.05);
      EXPECT_EQ(plot.y[i], Single(power));
    }
  }
}

TEST(PlotESIndepended, IsEmptyForInvalidInput) {
  EXPECT_TRUE(IsEmpty(PlotESIndepended(20, 20, 0.5, 0.5, 0, 0.05, 0.25)));
  EXPECT_TRUE(IsEmpty(PlotESIndepended(20, 20, -0.5, 0.5, 0, 0.05, 0.25)));
  EXPECT_TRUE(IsEmpty(PlotESIndepended(1, 20, 0, 1, 0, 0.05, 0.25)));
  EXPECT_TRUE(IsEmpty(PlotESIndepended(20, 1, 0, 1, 0, 0.05, 0.25)));
  EXPECT_TRUE(IsEmpty(PlotESIndepended(20, 20, 0, 1, 0, 0, 0.25)));
}

TEST(PlotMeanDiffIndepended, ChoosesItsRangeFromTheMeans) {
  const std::vector<double> withoutDifference = TakeX(PlotMeanDiffIndepended(20, 3, 10, 20, 3, 10, 0, 0, 0, 0.05, 50));
  EXPECT_EQ(withoutDifference, (std::vector<double>{-100, -50, 0, 50, 100}));
  const std::vector<double> range = {-10, -4, 2, 8, 10};
  EXPECT_EQ(TakeX(PlotMeanDiffIndepended(20, 5, 10, 20, 3, 10, 0, 0, 0, 0.05, 6)), range);
  EXPECT_EQ(TakeX(PlotMeanDiffIndepended(20, 3, 10, 20, 5, 10, 4, 4, 0, 0.05, 6)), range);
  EXPECT_EQ(TakeX(PlotMeanDiffIndepended(20, 3, 10, 20, 5, 10, 4, 2, 0, 0.05, 6)), range);
}

TEST(PlotMeanDiffIndepended, IsInTheFormOfWelchAndOneSidedOnBothSidesOfZero) {
  for (double sd2 : {10.0, 12.0}) {
    const CurveRecord plot(PlotMeanDiffIndepended(20, 5, 10, 30, 3, sd2, -4, 4, 1, 0.05, 1));
    ASSERT_EQ(plot.count, 9);
    for (int i = 0; i < 9; ++i) {
      EXPECT_EQ(plot.x[i], i - 4);
      EXPECT_EQ(plot.y[i], Single(PowerByTotal(Sides::One, 50, 1.5, plot.x[i], 10, sd2)));
      EXPECT_EQ(plot.y[i], plot.y[8 - i]);
    }
  }
}

TEST(PlotMeanDiffIndepended, IsEmptyForInvalidInput) {
  EXPECT_TRUE(IsEmpty(PlotMeanDiffIndepended(1, 5, 10, 20, 3, 10, -1, 1, 0, 0.05, 1)));
  EXPECT_TRUE(IsEmpty(PlotMeanDiffIndepended(20, 5, 10, 1, 3, 10, -1, 1, 0, 0.05, 1)));
  EXPECT_TRUE(IsEmpty(PlotMeanDiffIndepended(20, 5, 0, 20, 3, 10, -1, 1, 0, 0.05, 1)));
  EXPECT_TRUE(IsEmpty(PlotMeanDiffIndepended(20, 5, 10, 20, 3, 0, -1, 1, 0, 0.05, 1)));
  EXPECT_TRUE(IsEmpty(PlotMeanDiffIndepended(20, 5, 10, 20, 3, 10, -1, 1, 0, 1, 1)));
  EXPECT_TRUE(IsEmpty(PlotMeanDiffIndepended(20, 5, 10, 20, 3, 10, -1, 1, 0, 0.05, 0)));
  EXPECT_TRUE(IsEmpty(PlotMeanDiffIndepended(20, 1e308, 10, 20, -1e308, 10, 0, 0, 0, 0.05, 1)));
}

TEST(PlotRatioaESIndependent, HoldsThePowerAtEveryPoint) {
  const SurfaceRecord plot(PlotRatioaESIndependent(50, 0.5, 2, -5, 1, 0, 0.05, 0.3));
  ASSERT_EQ(plot.xCount, 5);
  ASSERT_EQ(plot.yCount, 5);
  EXPECT_EQ(plot.y[0], 0);
  EXPECT_EQ(plot.y[4], 1);
  for (int i = 0; i < 5; ++i) {
    const double n = 50 / (plot.x[i] + 1);
    for (int j = 0; j < 5; ++j) {
      EXPECT_EQ(plot.z[i * 5 + j], Single(PowerIndependentNondirectionalES(n, n * plot.x[i], plot.y[j], 0.05)));
    }
  }
}

TEST(PlotRatioaESIndependent, ReplacesValuesOutsideTheUnitInterval) {
  // With 20 in all, ratios of 0.01 and 30 leave a group one observation or less; 15 does not.
  const SurfaceRecord plot(PlotRatioaESIndependent(20, 0.01, 30, 0, 1, 0, 0.05, 0.5));
  ASSERT_EQ(plot.xCount, 3);
  ASSERT_EQ(plot.yCount, 3);
  EXPECT_EQ(plot.z[0], -infinite);  // the first column keeps its value
  EXPECT_EQ(plot.z[1], plot.y[0]);
  EXPECT_EQ(plot.z[2], plot.y[1]);
  for (int j = 3; j < 6; ++j) EXPECT_TRUE(plot.z[j] > 0 && plot.z[j] < 1);
  EXPECT_EQ(plot.z[6], -infinite);
  EXPECT_TRUE(KelMV::IsMissing(plot.z[7]));
  EXPECT_TRUE(KelMV::IsMissing(plot.z[8]));
}

TEST(PlotRatioaESIndependent, IsEmptyForInvalidInput) {
  EXPECT_TRUE(IsEmpty(PlotRatioaESIndependent(50, 2, 2, 0, 1, 0, 0.05, 0.5)));
  EXPECT_TRUE(IsEmpty(PlotRatioaESIndependent(50, 0.5, 2, 1, 1, 0, 0.05, 0.5)));
  EXPECT_TRUE(IsEmpty(PlotRatioaESIndependent(50, 0.5, 2, -1, 1, 0, 0.05, 0.5)));
  EXPECT_TRUE(IsEmpty(PlotRatioaESIndependent(1, 0.5, 2, 0, 1, 0, 0.05, 0.5)));
  EXPECT_TRUE(IsEmpty(PlotRatioaESIndependent(50, 0.5, 2, 0, 1, 0, 1, 0.5)));
  EXPECT_TRUE(IsEmpty(PlotRatioaESIndependent(50, 0.5, 2, 0, 1, 0, 0.05, -0.5)));
  EXPECT_TRUE(IsEmpty(PlotRatioaESIndependent(2, 0, 0, 0, 1, 0, 0.05, 0.5)));
}

TEST(PlotRatioaMeanDiffIndependent, IsTwiceAsCoarseAlongTheDifferences) {
  const SurfaceRecord plot(PlotRatioaMeanDiffIndependent(50, 5, 10, 3, 12, 0.5, 2, 0, 0, 1, 0.05, 0.125));
  ASSERT_EQ(plot.xCount, 9);
  ASSERT_EQ(plot.yCount, 5);
  EXPECT_EQ(std::vector<double>(plot.y, plot.y + 5), (std::vector<double>{-10, -5, 0, 5, 10}));
  for (int i = 0; i < 9; ++i) {
    for (int j = 0; j < 5; ++j) {
      EXPECT_EQ(plot.z[i * 5 + j], Single(PowerByTotal(Sides::One, 50, plot.x[i], plot.y[j], 10, 12)));
    }
  }
}

TEST(PlotRatioaMeanDiffIndependent, IsEmptyForInvalidInput) {
  EXPECT_TRUE(IsEmpty(PlotRatioaMeanDiffIndependent(50, 5, 10, 3, 12, 2, 0.5, 1, 4, 0, 0.05, 0.5)));
  EXPECT_TRUE(IsEmpty(PlotRatioaMeanDiffIndependent(1, 5, 10, 3, 12, 0.5, 2, 1, 4, 0, 0.05, 0.5)));
  EXPECT_TRUE(IsEmpty(PlotRatioaMeanDiffIndependent(50, 5, 0, 3, 12, 0.5, 2, 1, 4, 0, 0.05, 0.5)));
  EXPECT_TRUE(IsEmpty(PlotRatioaMeanDiffIndependent(50, 5, 10, 3, -1, 0.5, 2, 1, 4, 0, 0.05, 0.5)));
  EXPECT_TRUE(IsEmpty(PlotRatioaMeanDiffIndependent(50, 5, 10, 3, 12, 0.5, 2, 1, 4, 0, 0, 0.5)));
}

// The index multiplies the range before the fraction does; the last digits tell.
TEST(PlotRatioaESIndependent, PlacesItsPositionsInTheStatedOrder) {
  const SurfaceRecord plot(PlotRatioaESIndependent(60, 0.3, 1.7, 0.1, 0.93, 0, 0.05, 0.07));
  ASSERT_EQ(plot.xCount, 16);
  for (int i = 0; i < 15; ++i) {
    EXPECT_EQ(plot.x[i], i * (1.7 - 0.3) * 0.07 + 0.3);
    EXPECT_EQ(plot.y[i], i * (0.93 - 0.1) * 0.07 + 0.1);
  }
}

TEST(SurfacesOverRatios, HaveTwoPositionsAtAnyLargeFraction) {
  const SurfaceRecord effects(PlotRatioaESIndependent(30, 0.5, 2, 0, 1, 0, 0.05, 1.7e308));
  ASSERT_EQ(effects.xCount, 2);
  EXPECT_EQ(effects.x[0], 0.5);
  EXPECT_EQ(effects.x[1], 2);
  EXPECT_EQ(effects.y[0], 0);
  const SurfaceRecord differences(PlotRatioaMeanDiffIndependent(30, 0, 1, 1, 1, 0.5, 2, -1, 1, 0, 0.05, 1e308));
  ASSERT_EQ(differences.yCount, 2);
  EXPECT_EQ(differences.y[0], -1);
}

}  // namespace
