#include <gtest/gtest.h>

#include <cmath>

#include "kelpower.h"
#include "support/chart_records.h"

using namespace kelpower;

namespace {

double Power(double n, double p12, double p21, int exact = 1, int oneSided = 0) {
  return PowerbyPRelSampBionm(n, p12, p21, oneSided, exact, 0.05, nullptr);
}

TEST(PlotNRelSampBionm, HoldsThePowerAtEverySize) {
  for (int exact : {0, 1}) {
    const CurveRecord plot(PlotNRelSampBionm(30, 0.3, 0.1, 0, 300, 0, exact, 0.05));
    ASSERT_EQ(plot.count, 301);
    for (int i = 0; i < plot.count; ++i) {
      EXPECT_EQ(plot.x[i], i);
      EXPECT_EQ(plot.y[i], Single(Power(i, 0.3, 0.1, exact)));
    }
    EXPECT_EQ(plot.y[1], -1);
  }
}

TEST(PlotNRelSampBionm, EndsAt2500) {
  const CurveRecord plot(PlotNRelSampBionm(30, 0.3, 0.1, 0, 2500, 0, 1, 0.05));
  EXPECT_EQ(plot.count, 2501);
  EXPECT_EQ(PlotNRelSampBionm(30, 0.3, 0.1, 0, 2501, 0, 1, 0.05).x, nullptr);
  const CurveRecord single(PlotNRelSampBionm(30, 0.3, 0.1, 7, 7, 0, 1, 0.05));
  EXPECT_EQ(single.count, 1);
}

TEST(PlotRiskDiffRelSampBionm, KeepsTheSumBelowOne) {
  const CurveRecord plot(PlotRiskDiffRelSampBionm(40, 0.3, 0, 1, 0.05, 0.1));
  ASSERT_EQ(plot.count, 9);
  for (int i = 0; i < plot.count; ++i) {
    EXPECT_NEAR(plot.x[i], -0.4 + (i + 1) * 0.07, 1e-15);
    EXPECT_EQ(plot.y[i], Single(Power(40, 0.3, 0.3 - plot.x[i])));
    EXPECT_GE(plot.y[i], 0);
  }
  EXPECT_EQ(PlotRiskDiffRelSampBionm(40, 1, 0, 1, 0.05, 0.1).x, nullptr);
}

TEST(PlotRiskRatioRelSampBionm, HasAnAutomaticRange) {
  const CurveRecord plot(PlotRiskRatioRelSampBionm(40, 0.3, 0.2, 0, 0, 0, 1, 0.05, 0.25));
  ASSERT_EQ(plot.count, 5);
  EXPECT_NEAR(plot.x[0], 3.0 / 7, 1e-15);
  EXPECT_NEAR(plot.x[4], 3, 1e-15);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(plot.y[i], Single(Power(40, 0.3, 0.3 / plot.x[i])));
}

TEST(PlotRiskRatioRelSampBionm, MovesTheFirstProbabilityAboveOneHalf) {
  const CurveRecord plot(PlotRiskRatioRelSampBionm(40, 0.6, 0.2, 0, 0, 0, 1, 0.05, 0.3));
  ASSERT_EQ(plot.count, 5);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(plot.y[i], Single(Power(40, plot.x[i] * 0.2, 0.2)));
  EXPECT_GT(plot.x[4], 4);
  EXPECT_EQ(plot.y[4], Single(Power(40, 0.8, 0.2)));
}

TEST(PlotRiskRatioRelSampBionm, RejectsRatiosOutOfReach) {
  const auto isEmpty = [](double p12, double p21, double from, double to) {
    const CurveRecord plot(PlotRiskRatioRelSampBionm(40, p12, p21, from, to, 0, 0, 0.05, 0.2));
    const bool empty = plot.x == nullptr;
    return empty;
  };
  EXPECT_FALSE(isEmpty(0.3, 0.2, 0.5, 2));
  EXPECT_TRUE(isEmpty(0.3, 0.2, 0.5, 10.1));
  EXPECT_TRUE(isEmpty(0.05, 0.2, 0.09, 2));
  EXPECT_TRUE(isEmpty(0.3, 0.2, 0.4, 2));
  EXPECT_TRUE(isEmpty(0.6, 0.2, 0.4, 4.1));
  EXPECT_TRUE(isEmpty(0.6, 0, 0, 0));
}

TEST(PlotOddsRatioRelSampBionm, HasAnAutomaticRange) {
  const CurveRecord plot(PlotOddsRatioRelSampBionm(40, 0.5, 0, 2, 0, 1, 0.05, 0.2));
  ASSERT_EQ(plot.count, 6);
  EXPECT_EQ(plot.x[0], 1);
  EXPECT_NEAR(plot.x[5], 4, 1e-14);
  for (int i = 0; i < 6; ++i) EXPECT_EQ(plot.y[i], Single(Power(40, 0.5, 0.5 / (0.5 * plot.x[i] + 0.5))));
  EXPECT_EQ(PlotOddsRatioRelSampBionm(40, 0.5, 0.9, 2, 0, 1, 0.05, 0.2).x, nullptr);
  EXPECT_EQ(PlotOddsRatioRelSampBionm(40, 0.5, 2, 11.1, 0, 1, 0.05, 0.2).x, nullptr);
  EXPECT_EQ(PlotOddsRatioRelSampBionm(40, 1, 0, 0, 0, 1, 0.05, 0.2).x, nullptr);
}

TEST(PlotCorrRelSampBionm, EndsAtTheLargestCorrelation) {
  const CurveRecord plot(PlotCorrRelSampBionm(40, 0.5, 0.5, 0, 1, 0.05, 0.3));
  ASSERT_EQ(plot.count, 8);
  EXPECT_EQ(plot.x[0], -1);
  EXPECT_EQ(plot.x[7], 1);
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(plot.y[i], Single(PowerbyMargPRelSampBionm(40, 0.5, 0.5, plot.x[i], 0, 1, 0.05)));
  }
  const CurveRecord unequal(PlotCorrRelSampBionm(40, 0.6, 0.4, 0, 1, 0.05, 0.5));
  EXPECT_NEAR(unequal.x[unequal.count - 1], 2.0 / 3, 1e-15);
}

TEST(PlotPropRelSampBionm, IsZeroOnTheDiagonalAndBeyondOne) {
  const SurfaceRecord plot(PlotPropRelSampBionm(30, 0, 1, 0.05, 0.1));
  ASSERT_EQ(plot.xCount, 9);
  ASSERT_EQ(plot.yCount, 9);
  for (int i = 0; i < 9; ++i) {
    for (int j = 0; j < 9; ++j) {
      const bool isExcluded = i == j || plot.x[i] + plot.y[j] > 1;
      EXPECT_EQ(plot.z[i * 9 + j], isExcluded ? 0 : Single(Power(30, plot.x[i], plot.y[j])));
    }
  }
}

TEST(PlotMargPropRelSampBionm, ComputesTheDiagonal) {
  const SurfaceRecord plot(PlotMargPropRelSampBionm(30, 0.2, 0, 1, 0.05, 0.2));
  ASSERT_EQ(plot.xCount, 4);
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 4; ++j) {
      const bool isExcluded = plot.x[i] + plot.y[j] > 1;
      const double power = PowerbyMargPRelSampBionm(30, plot.x[i], plot.y[j], 0.2, 0, 1, 0.05);
      EXPECT_EQ(plot.z[i * 4 + j], isExcluded ? 0 : Single(power));
    }
  }
  EXPECT_GT(plot.z[0], 0);
  EXPECT_EQ(PlotMargPropRelSampBionm(30, 1, 0, 1, 0.05, 0.2).x, nullptr);
}

TEST(PlotMargPropRelSampBionm, HasNoPointsForAStepOfOne) {
  const SurfaceRecord plot(PlotMargPropRelSampBionm(30, 0.2, 0, 1, 0.05, 1));
  EXPECT_EQ(plot.xCount, 0);
  EXPECT_NE(plot.z, nullptr);
  EXPECT_EQ(PlotMargPropRelSampBionm(30, 0.2, 0, 1, 0.05, 0).x, nullptr);
}

}  // namespace
