#include <gtest/gtest.h>

#include <cmath>

#include "kelpower.h"
#include "support/chart_records.h"

using namespace kelpower;

namespace {

double Power(double n, double alternative, double null, int method, int oneSided) {
  return PowerOneSampBinom(n, alternative, null, method, oneSided, 0.05, 1, nullptr);
}

TEST(PlotNOneSampBinom, HoldsThePowerAtEverySize) {
  for (int method : {0, 1}) {
    const CurveRecord plot(PlotNOneSampBinom(30, 0.6, 0.45, method, 1, 0.05, 1, 120, 1));
    ASSERT_EQ(plot.count, 120);
    for (int i = 0; i < plot.count; ++i) {
      EXPECT_EQ(plot.x[i], 1 + i);
      EXPECT_EQ(plot.y[i], Single(Power(plot.x[i], 0.6, 0.45, method, 1)));
    }
  }
}

TEST(PlotNOneSampBinom, HasNoAutomaticRangeAndRejectsASingleSize) {
  const CurveRecord plot(PlotNOneSampBinom(30, 0.6, 0.45, 1, 1, 0.05, 0, 0, 0));
  ASSERT_EQ(plot.count, 1);
  EXPECT_EQ(plot.x[0], 0);
  EXPECT_EQ(plot.y[0], -1);
  EXPECT_EQ(PlotNOneSampBinom(30, 0.6, 0.45, 1, 1, 0.05, 3, 3, 0).x, nullptr);
  EXPECT_EQ(PlotNOneSampBinom(30, 0.6, 0.45, 1, 1, 0.05, 4998, 5001, 0).x, nullptr);
  EXPECT_EQ(PlotNOneSampBinom(30, 0.6, 0.45, 1, 1, 0.05, -1, 3, 0).x, nullptr);
  EXPECT_EQ(PlotNOneSampBinom(30, 0.6, 0.45, 1, 1, 0.05, 5, 4, 0).x, nullptr);
}

TEST(PlotNullOneSampBinom, RunsOverTheProportionGrid) {
  const CurveRecord plot(PlotNullOneSampBinom(25, 0.6, 1, 0, 0.05, 0, 0.1));
  ASSERT_EQ(plot.count, 9);
  for (int i = 0; i < 9; ++i) {
    EXPECT_EQ(plot.x[i], (i + 1) * 0.1);
    EXPECT_EQ(plot.y[i], Single(Power(25, 0.6, plot.x[i], 1, 0)));
  }
}

TEST(PlotAlterOneSampBinom, HasItsStepChecked) {
  const CurveRecord plot(PlotAlterOneSampBinom(25, 0.6, 1, 0, 0.05, 0, 0.5));
  ASSERT_EQ(plot.count, 1);
  EXPECT_EQ(plot.x[0], 0.5);
  EXPECT_EQ(plot.y[0], Single(Power(25, 0.5, 0.6, 1, 0)));
  for (double step : {0.6, 0.0, -0.1, std::nan("")}) {
    EXPECT_EQ(PlotAlterOneSampBinom(25, 0.6, 1, 0, 0.05, 0, step).x, nullptr) << step;
  }
}

TEST(PlotRiskDiffOneSampBionm, MeetsTheSameAlternatives) {
  const CurveRecord plot(PlotRiskDiffOneSampBionm(25, 0.3, 1, 1, 0.05, 0, 0.125));
  ASSERT_EQ(plot.count, 7);
  for (int i = 0; i < 7; ++i) {
    EXPECT_EQ(plot.x[i], (i + 1) * 0.125 - 0.3);
    EXPECT_EQ(plot.y[i], Single(Power(25, plot.x[i] + 0.3, 0.3, 1, 1)));
  }
}

TEST(PlotNAlterOneSampBinom, HoldsThePowerAtEveryPoint) {
  for (int method : {0, 1}) {
    for (int oneSided : {0, 1}) {
      const SurfaceRecord plot(PlotNAlterOneSampBinom(30, 0.6, 0.45, method, oneSided, 0.05, 8, 40, 1, 0.05));
      ASSERT_EQ(plot.xCount, 33);
      ASSERT_EQ(plot.yCount, 19);
      for (int i = 0; i < plot.xCount; ++i) {
        for (int j = 0; j < plot.yCount; ++j) {
          EXPECT_EQ(plot.z[i * plot.yCount + j], Single(Power(plot.x[i], plot.y[j], 0.45, method, oneSided)));
        }
      }
    }
  }
}

TEST(PlotNNullOneSampBinom, TakesItsSizesFromTheDesignWhenOneIsZero) {
  const double power = Power(30, 0.6, 0.45, 1, 0);
  const SurfaceRecord plot(PlotNNullOneSampBinom(30, 0.6, 0.45, 1, 0, 0.05, 0, 12, 1, 0.2));
  ASSERT_GT(plot.xCount, 1);
  EXPECT_EQ(plot.x[0], std::floor((1 - power) * 30));
  EXPECT_EQ(plot.x[plot.xCount - 1], std::ceil((2 - power) * 30));
  ASSERT_EQ(plot.yCount, 4);
  EXPECT_EQ(plot.z[5 * 4 + 2], Single(Power(plot.x[5], 0.6, plot.y[2], 1, 0)));
  EXPECT_EQ(PlotNNullOneSampBinom(1e12, 0.6, 0.45, 1, 0, 0.05, 0, 0, 1, 0.2).x, nullptr);
}

TEST(PlotNRiskDiffOneSampBinom, HoldsThePowerAtEveryPoint) {
  const SurfaceRecord plot(PlotNRiskDiffOneSampBinom(30, 0.6, 0.25, 1, 1, 0.05, 20, 23, 1, 0.25));
  ASSERT_EQ(plot.xCount, 4);
  ASSERT_EQ(plot.yCount, 3);
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 3; ++j) {
      EXPECT_EQ(plot.z[i * 3 + j], Single(Power(plot.x[i], plot.y[j] + 0.25, 0.25, 1, 1)));
    }
  }
}

TEST(PlotNullAlterOneSampBinom, HasTheNullProportionAlongX) {
  const SurfaceRecord plot(PlotNullAlterOneSampBinom(30, 1, 1, 0.05, 0, 0.2));
  ASSERT_EQ(plot.xCount, 4);
  ASSERT_EQ(plot.yCount, 4);
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 4; ++j) EXPECT_EQ(plot.z[i * 4 + j], Single(Power(30, plot.y[j], plot.x[i], 1, 1)));
  }
}

}  // namespace
