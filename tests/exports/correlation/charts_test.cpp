#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "kelpower.h"
#include "support/chart_records.h"

namespace kelpower {
namespace {

constexpr double quietNaN = std::numeric_limits<double>::quiet_NaN();

TEST(SizeCurve, OfPearsonMayStartAtZero) {
  const CurveRecord curve(PlotNOneSampPearson(20, 0.3, 0, 0, 0, 0.05, 0, 10));
  ASSERT_EQ(curve.count, 11);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(curve.y[i], -1);
  for (int i = 0; i < 11; ++i) EXPECT_EQ(curve.x[i], i);
  EXPECT_EQ(curve.y[10], Single(PowerbyOneSampPearson(10, 0.3, 0, 0, 0, 0.05)));
  EXPECT_TRUE(IsEmpty(PlotNOneSampPearson(20, 0.3, 0, 0, 0, 0.05, 0, 0)));
  EXPECT_TRUE(IsEmpty(PlotNOneSampPearson(20, 0.3, 0, 0, 0, 0.05, 7, 7)));
  EXPECT_TRUE(IsEmpty(PlotNOneSampPearson(20, 0.3, 0, 0, 0, 0.05, 3, 7)));
  EXPECT_TRUE(IsEmpty(PlotNOneSampPearson(20, 0.3, 0, 0, 0, 0.05, -2, 7)));
  EXPECT_TRUE(IsEmpty(PlotNOneSampPearson(20, 0.3, 0, 0, 0, 0.05, 4, 5001)));
}

TEST(SizeCurve, OfSpearmanStartsAtFour) {
  const CurveRecord curve(PlotNOneSampSpearman(20, 0.3, 0, 1, 0, 0.05, 4, 10));
  ASSERT_EQ(curve.count, 7);
  EXPECT_EQ(curve.y[6], Single(PowerbyOneSampSpearman(10, 0.3, 0, 1, 0, 0.05)));
  EXPECT_TRUE(IsEmpty(PlotNOneSampSpearman(20, 0.3, 0, 1, 0, 0.05, 0, 10)));
  EXPECT_TRUE(IsEmpty(PlotNOneSampSpearman(3, 0.3, 0, 2, 0, 0.05, 4, 10)));
}

TEST(SizeCurve, OfPartialHasAnAutomaticRange) {
  const CurveRecord curve(PlotNOneSampPartial(20, 2.5, 0.3, 0, 0, 0.05, 0, 10));
  ASSERT_EQ(curve.count, 4997);
  EXPECT_EQ(curve.x[0], 6);
  EXPECT_EQ(curve.y[0], Single(PowerbyOneSampPartial(6, 2.5, 0.3, 0, 0, 0.05)));
  EXPECT_TRUE(IsEmpty(PlotNOneSampPartial(20, 2.5, 0.3, 0, 0, 0.05, 6, 10)));
  EXPECT_TRUE(IsEmpty(PlotNOneSampPartial(5.5, 2.5, 0.3, 0, 0, 0.05, 0, 0)));
  EXPECT_TRUE(IsEmpty(PlotNOneSampPartial(1e300, 1e299, 0.3, 0, 0, 0.05, 0, 0)));
}

TEST(NullCurve, RunsFromMinusOneToOne) {
  const CurveRecord curve(PlotNullOneSampPearson(20, 0.3, 0, 1, 0.05, 0.5));
  ASSERT_EQ(curve.count, 5);
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(curve.x[i], -1 + 0.5 * i);
    EXPECT_EQ(curve.y[i], Single(PowerbyOneSampPearson(20, 0.3, -1 + 0.5 * i, 0, 1, 0.05)));
  }
}

TEST(AlternativeCurve, RunsFromMinusOneToOne) {
  const CurveRecord curve(PlotAlterOneSampSpearman(20, 0.3, 2, 1, 0.05, 0.25));
  ASSERT_EQ(curve.count, 9);
  EXPECT_EQ(curve.y[2], Single(PowerbyOneSampSpearman(20, -0.5, 0.3, 2, 1, 0.05)));
}

TEST(DifferenceCurve, RunsOverAllDifferences) {
  const CurveRecord curve(PlotRiskDiffOneSampPearson(20, 0.2, 0, 0, 0.05, 0.5));
  ASSERT_EQ(curve.count, 5);
  EXPECT_EQ(curve.x[0], -1.2);
  EXPECT_NEAR(curve.x[4], 0.8, 1e-15);
  EXPECT_EQ(curve.y[1], Single(PowerbyOneSampPearson(20, -0.7 + 0.2, 0.2, 0, 0, 0.05)));
}

TEST(SizeDifferenceSurface, ShowsTheLowerHalfOfTheDifferences) {
  const SurfaceRecord wide(PlotNRiskDiffOneSampPearson(20, 0.3, 0.2, 0, 0, 0.05, 10, 1010, 0.5));
  ASSERT_EQ(wide.xCount, 501);
  ASSERT_EQ(wide.yCount, 3);
  EXPECT_NEAR(wide.y[2], -0.2, 1e-15);
  EXPECT_EQ(wide.x[1], 12);
  const SurfaceRecord narrow(PlotNRiskDiffOneSampPearson(20, 0.3, 0.2, 0, 0, 0.05, 10, 1009, 0.5));
  EXPECT_EQ(narrow.xCount, 1000);
  EXPECT_EQ(narrow.z[3 * 5 + 1], Single(PowerbyOneSampPearson(15, narrow.y[1] + 0.2, 0.2, 0, 0, 0.05)));
  EXPECT_TRUE(IsEmpty(PlotNRiskDiffOneSampPearson(20, 0.3, 0.2, 0, 0, 0.05, 0, 100, 0.5)));
}

TEST(SizeNullSurface, OfPearsonTakesAStartAtZeroAsItStands) {
  const SurfaceRecord surface(PlotNNullOneSampPearson(20, 0.3, 0, 0, 0, 0.05, 0, 0, 0.5));
  ASSERT_EQ(surface.xCount, 1);
  ASSERT_EQ(surface.yCount, 5);
  EXPECT_EQ(surface.x[0], 0);
  for (int j = 0; j < 5; ++j) EXPECT_EQ(surface.z[j], -1);
}

TEST(SizeAlternativeSurface, OfSpearmanCentresItsAutomaticRange) {
  const double power = PowerbyOneSampSpearman(40, 0.4, 0, 1, 0, 0.05);
  const SurfaceRecord surface(PlotNAlterOneSampSpearman(40, 0.4, 0, 1, 0, 0.05, 0, 10, 0.5));
  ASSERT_GT(surface.xCount, 0);
  EXPECT_EQ(surface.x[0], std::floor((1 - power) * 40));
  EXPECT_EQ(surface.x[surface.xCount - 1], std::ceil((2 - power) * 40));
  EXPECT_EQ(surface.z[4], Single(PowerbyOneSampSpearman(surface.x[0], 1, 0, 1, 0, 0.05)));
}

TEST(NullAlternativeSurface, HasTheNullAlongX) {
  const SurfaceRecord surface(PlotNullAlterOneSampPartial(20, 3, 1, 0.05, 0.4));
  ASSERT_EQ(surface.xCount, 6);
  ASSERT_EQ(surface.yCount, 6);
  EXPECT_EQ(surface.z[6 * 1 + 3], Single(PowerbyOneSampPartial(20, 3, surface.y[3], surface.x[1], 1, 0.05)));
}

TEST(PlotNPartialoutOneSampPartial, EndsAtFiveBelowTheSize) {
  const CurveRecord curve(PlotNPartialoutOneSampPartial(20, 0.3, 0, 0, 0.05));
  ASSERT_EQ(curve.count, 16);
  EXPECT_EQ(curve.x[15], 15);
  EXPECT_EQ(curve.y[15], Single(PowerbyOneSampPartial(20, 15, 0.3, 0, 0, 0.05)));
  EXPECT_TRUE(IsEmpty(PlotNPartialoutOneSampPartial(3.5, 0.3, 0, 0, 0.05)));
  EXPECT_TRUE(IsEmpty(PlotNPartialoutOneSampPartial(1e300, 0.3, 0, 0, 0.05)));
  const CurveRecord none(PlotNPartialoutOneSampPartial(4, 0.3, 0, 0, 0.05));
  EXPECT_EQ(none.count, 0);
  EXPECT_NE(none.x, nullptr);
}

TEST(CorrelationCharts, RejectInvalidInput) {
  for (const double step : {0.51, 0.0, -0.1, -10.0, quietNaN, 1e-12}) {
    EXPECT_TRUE(IsEmpty(PlotNullOneSampPearson(20, 0.3, 0, 0, 0.05, step))) << step;
    EXPECT_TRUE(IsEmpty(PlotRiskDiffOneSampPartial(20, 1, 0.3, 0, 0.05, step))) << step;
    EXPECT_TRUE(IsEmpty(PlotNullAlterOneSampSpearman(20, 0, 0, 0.05, step))) << step;
    EXPECT_TRUE(IsEmpty(PlotNRiskDiffOneSampSpearman(20, 0.3, 0, 0, 0, 0.05, 4, 9, step))) << step;
  }
  EXPECT_TRUE(IsEmpty(PlotNullOneSampPearson(3, 0.3, 0, 0, 0.05, 0.5)));
  EXPECT_TRUE(IsEmpty(PlotNullOneSampPearson(20, 1.3, 0, 0, 0.05, 0.5)));
  EXPECT_TRUE(IsEmpty(PlotAlterOneSampPearson(20, -1.3, 0, 0, 0.05, 0.5)));
  EXPECT_TRUE(IsEmpty(PlotAlterOneSampPearson(20, 0.3, 0, 0, 1, 0.5)));
  EXPECT_TRUE(IsEmpty(PlotAlterOneSampPartial(20, -1, 0.3, 0, 0.05, 0.5)));
  EXPECT_TRUE(IsEmpty(PlotNNullOneSampPearson(20, 0.3, 1.5, 0, 0, 0.05, 4, 9, 0.5)));
}

}  // namespace
}  // namespace kelpower
