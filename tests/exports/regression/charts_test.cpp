#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "kelpower.h"
#include "support/chart_records.h"

namespace kelpower {
namespace {

constexpr double quietNaN = std::numeric_limits<double>::quiet_NaN();

TEST(PlotNmlr, HasAPointASizeWithFixedPredictors) {
  const CurveRecord curve(PlotNmlr(4, 4, 0.5, 0, 0, 1, 0.05, 10, 20));
  ASSERT_EQ(curve.count, 11);
  for (int i = 0; i < 11; ++i) {
    EXPECT_EQ(curve.x[i], 10 + i);
    EXPECT_EQ(curve.y[i], Single(Powerbymlr(10 + i, 4, 4, 0.5, 0, 0, 1, 0.05)));
  }
}

TEST(PlotNmlr, IsCoarseOnlyWhenTheFlagIsOne) {
  const struct {
    int to, random, count;
    double step;
  } cases[] = {{310, 1, 61, 5},   {159, 1, 150, 1}, {160, 1, 31, 5},   {510, 1, 51, 10}, {1010, 1, 51, 20},
               {2010, 1, 41, 50}, {310, 2, 301, 1}, {310, -1, 301, 1}, {312, 1, 62, 5}};
  for (const auto& expected : cases) {
    const CurveRecord curve(PlotNmlr(4, 4, 0.3, 0, expected.random, 1, 0.05, 10, expected.to));
    ASSERT_EQ(curve.count, expected.count) << expected.to;
    EXPECT_EQ(curve.x[1], 10 + expected.step);
    EXPECT_EQ(curve.y[1], Single(Powerbymlr(10 + expected.step, 4, 4, 0.3, 0, 1, 1, 0.05)));
  }
}

TEST(PlotNmlr, HasAnAutomaticRange) {
  const CurveRecord curve(PlotNmlr(4.5, 4, 0.3, 0, 0, 1, 0.05, 0, 50));
  ASSERT_EQ(curve.count, 5004 - 6 + 1);
  EXPECT_EQ(curve.x[0], 6);
  EXPECT_EQ(curve.x[4998], 5004);
}

TEST(PlotNmlr, KeepsPointsThatAreRejected) {
  const CurveRecord short_(PlotNmlr(4, 4, 0.5, 0, 0, 1, 0.05, 5, 7));
  ASSERT_EQ(short_.count, 3);
  EXPECT_EQ(short_.y[0], -1);
  EXPECT_GT(short_.y[1], 0);
  const CurveRecord reversed(PlotNmlr(4, 2, 0.2, 0.3, 1, 1, 0.05, 10, 12));
  ASSERT_EQ(reversed.count, 3);
  EXPECT_EQ(reversed.y[2], -1);
}

TEST(PlotNmlr, RejectsInvalidInput) {
  EXPECT_TRUE(IsEmpty(PlotNmlr(0.5, 0.5, 0.5, 0, 0, 1, 0.05, 10, 20)));
  EXPECT_TRUE(IsEmpty(PlotNmlr(4, 5, 0.5, 0, 0, 1, 0.05, 10, 20)));
  EXPECT_TRUE(IsEmpty(PlotNmlr(4, 4, 1, 0, 0, 1, 0.05, 10, 20)));
  EXPECT_TRUE(IsEmpty(PlotNmlr(4, 4, 0.5, 1, 0, 1, 0.05, 10, 20)));
  EXPECT_TRUE(IsEmpty(PlotNmlr(4, 4, 0.5, 0, 0, 1, 1, 10, 20)));
  EXPECT_TRUE(IsEmpty(PlotNmlr(4, 4, 0.5, 0, 0, 1, 0.05, 4, 20)));
  EXPECT_TRUE(IsEmpty(PlotNmlr(4, 4, 0.5, 0, 0, 1, 0.05, 21, 20)));
  EXPECT_TRUE(IsEmpty(PlotNmlr(4, 4, 0.5, 0, 0, 1, 0.05, 10, 5005)));
  EXPECT_TRUE(IsEmpty(PlotNmlrFES(4, 5, 0.5, 0, 1, 0.05, 10, 20)));
  EXPECT_TRUE(IsEmpty(PlotNmlrFES(1e300, 5, 0.5, 0, 1, 0.05, 0, 0)));
  EXPECT_TRUE(IsEmpty(PlotNmlrFES(quietNaN, 5, 0.5, 0, 1, 0.05, 0, 0)));
}

TEST(PlotESmlr, LeavesOutBothEnds) {
  const CurveRecord curve(PlotESmlr(30, 4, 2, 1, 1, 0.05, 0.1));
  ASSERT_EQ(curve.count, 9);
  for (int i = 0; i < 9; ++i) {
    EXPECT_EQ(curve.x[i], (i + 1) * 0.1);
    EXPECT_EQ(curve.y[i], Single(PowerbymlrwES(30, 4, 2, curve.x[i], 1, 1, 0.05)));
  }
}

TEST(PlotESmlr, AnswersForEveryStep) {
  for (const double step : {0.0, -0.1, quietNaN, 1e-12}) EXPECT_TRUE(IsEmpty(PlotESmlr(30, 4, 2, 1, 1, 0.05, step)));
  const CurveRecord curve(PlotESmlr(30, 4, 2, 1, 1, 0.05, 1.5));
  EXPECT_EQ(curve.count, 0);
  EXPECT_NE(curve.x, nullptr);
  EXPECT_TRUE(IsEmpty(PlotESmlr(5, 4, 2, 1, 1, 0.05, 0.1)));
}

TEST(PlotCorrmlr, HasItsOwnStepAndThatOfRandomPredictors) {
  const CurveRecord fixed(PlotCorrmlr(30, 4, 2, 0, 1, 0.05, 0.5));
  ASSERT_EQ(fixed.count, 3);
  EXPECT_EQ(fixed.x[0], -0.5);
  EXPECT_EQ(fixed.x[1], 0);
  EXPECT_EQ(fixed.x[2], 0.5);
  EXPECT_EQ(fixed.y[0], fixed.y[2]);
  const CurveRecord random(PlotCorrmlr(30, 4, 2, 1, 1, 0.05, 0));
  EXPECT_EQ(random.count, 39);
  const CurveRecord uneven(PlotCorrmlr(30, 4, 2, 0, 1, 0.05, 0.3));
  EXPECT_EQ(uneven.count, 5);
}

TEST(PlotNaCorrmlr, IgnoresTheStepWithRandomPredictors) {
  const SurfaceRecord surface(PlotNaCorrmlr(30, 4, 2, 0.5, 0, 1, 1, 0.05, 20, 120, 0.5));
  ASSERT_EQ(surface.xCount, 51);
  ASSERT_EQ(surface.yCount, 39);
  EXPECT_EQ(surface.x[1], 22);
  EXPECT_EQ(surface.z[39 * 7 + 30], Single(Powerbymlr(34, 4, 2, surface.y[30], 0, 1, 1, 0.05)));
  const SurfaceRecord uneven(PlotNaCorrmlr(30, 4, 2, 0.5, 0, 0, 1, 0.05, 20, 22, 0.3));
  EXPECT_EQ(uneven.yCount, 6);
}

TEST(PlotNaESmlr, CentresItsAutomaticRangeOnTheDesign) {
  const double power = PowerbymlrwES(40, 4, 2, 0.2, 2, 1, 0.05);
  const SurfaceRecord random(PlotNaESmlr(40, 4, 2, 0.2, 2, 1, 0.05, 0, 0, 0.25));
  EXPECT_EQ(random.x[0], std::floor((1 - power) * 40));
  EXPECT_EQ(random.x[random.xCount - 1], std::ceil((2 - power) * 40));
  EXPECT_EQ(random.yCount, 3);
  const SurfaceRecord fixed(PlotNaESmlr(40, 4, 2, 0.2, 0, 1, 0.05, 0, 0, 0.25));
  EXPECT_EQ(fixed.x[0], 6);
  EXPECT_EQ(fixed.xCount, 4999);
  EXPECT_TRUE(IsEmpty(PlotNaESmlr(5, 4, 2, 0.2, 0, 1, 0.05, 10, 20, 0.25)));
}

}  // namespace
}  // namespace kelpower
