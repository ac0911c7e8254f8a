#include "frame/charts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "frame/axes.h"
#include "kelcommon/kel_mv.h"

namespace kelpower {
namespace {

using KelCommon::KelMV;

constexpr double quietNaN = std::numeric_limits<double>::quiet_NaN();

std::vector<double> PositionsOf(const Axis& axis) {
  std::vector<double> positions;
  for (std::int32_t i = 0; i < axis.count; ++i) positions.push_back(axis.At(i));
  return positions;
}

TEST(Axes, SizesAreWholeNumbers) {
  EXPECT_EQ(PositionsOf(*SizeAxis(7, 7)), std::vector<double>{7});
  EXPECT_EQ(PositionsOf(*SizeAxis(2, 5)), (std::vector<double>{2, 3, 4, 5}));
  EXPECT_EQ(SizeAxis(5, 4)->count, 0);
  EXPECT_FALSE(SizeAxis(5, 3));
  EXPECT_FALSE(SizeAxis(0, 2147483647.0));
}

TEST(Axes, SurfaceSizesStepByTwoFromASpanOfAThousand) {
  EXPECT_EQ(SurfaceSizeAxis(2, 1001)->count, 1000);
  EXPECT_EQ(SurfaceSizeAxis(2, 1002)->count, 501);
  const Axis odd = *SurfaceSizeAxis(2, 1003);
  EXPECT_EQ(odd.At(odd.count - 1), 1004);
}

TEST(Axes, FractionsEndInThreeWays) {
  EXPECT_EQ(PositionsOf(*FractionAxis(0, 1, 0.25, AxisEnd::Open)), (std::vector<double>{0, 0.25, 0.5, 0.75}));
  EXPECT_EQ(PositionsOf(*FractionAxis(0, 2, 0.25, AxisEnd::OnGrid)), (std::vector<double>{0, 0.5, 1, 1.5, 2}));
  const std::vector<double> exact = PositionsOf(*FractionAxis(0, 1, 0.3, AxisEnd::Exact));
  ASSERT_EQ(exact.size(), 5U);
  EXPECT_EQ(exact.back(), 1);
}

TEST(Axes, AnEmptyRangeHasOnePositionAndABadStepNone) {
  for (const AxisEnd end : {AxisEnd::Open, AxisEnd::OnGrid, AxisEnd::Exact}) {
    EXPECT_EQ(PositionsOf(*FractionAxis(0.4, 0.4, 0.1, end)), std::vector<double>{0.4});
    for (const double fraction : {0.0, -0.1, quietNaN}) EXPECT_FALSE(FractionAxis(0, 1, fraction, end));
    EXPECT_FALSE(FractionAxis(0, quietNaN, 0.1, end));
    EXPECT_FALSE(FractionAxis(0, 1, 1e-12, end));
  }
}

TEST(Axes, CountsOutOfRangeHaveNoAxis) {
  EXPECT_FALSE(CountedAxis(-1, 0, 1));
  EXPECT_FALSE(CountedAxis(quietNaN, 0, 1));
  EXPECT_FALSE(CountedAxis(2147483648.0, 0, 1));
  EXPECT_EQ(CountedAxis(2147483647, 0, 1)->count, 2147483647);
}

TEST(Axes, InnerPositionsLeaveOutTheOrigin) {
  EXPECT_EQ(PositionsOf(*InnerAxis(3, -1, 0.5)), (std::vector<double>{-0.5, 0, 0.5}));
  for (const double step : {0.0, -0.1, quietNaN}) EXPECT_FALSE(InnerAxis(3, 0, step));
}

TEST(Axes, AFractionMultipliesLast) {
  Axis axis = *CountedAxis(2, 0, 0.7);
  axis.fraction = 0.1;
  EXPECT_EQ(axis.At(1), 0.7 * 0.1);
  axis.fraction = 1e308;
  EXPECT_EQ(axis.At(0), 0);
}

TEST(PointsOfCurve, StoresPositionsAndValues) {
  CurvePoints points = PointsOfCurve(SizeAxis(2, 4), Precision::Double, [](double x) { return x / 3; });
  ASSERT_EQ(points.count, 3);
  EXPECT_EQ(points.x[2], 4);
  EXPECT_EQ(points.y[2], 4.0 / 3);

  points = PointsOfCurve(SizeAxis(2, 4), Precision::Single, [](double x) { return x / 3; });
  EXPECT_EQ(points.y[2], static_cast<double>(4.0F / 3.0F));
}

TEST(PointsOfCurve, HasNoArraysWithoutAnAxis) {
  const CurvePoints none = PointsOfCurve(std::nullopt, Precision::Single, [](double) { return 1.0; });
  EXPECT_EQ(none.count, 0);
  EXPECT_FALSE(none.x || none.y);
}

TEST(Stored, TurnsMissingIntoMinusInfinityInSinglePrecision) {
  EXPECT_EQ(Stored(KelMV::Missing(), Precision::Single), -std::numeric_limits<double>::infinity());
  EXPECT_EQ(Stored(KelMV::Missing(), Precision::Double), KelMV::Missing());
}

TEST(PointsOfSurface, AreTheSameByRowsAndByColumns) {
  const std::optional<Axis> x = SizeAxis(2, 5);
  const std::optional<Axis> y = FractionAxis(0, 1, 0.5, AxisEnd::OnGrid);
  const SurfacePoints rows = PointsByRows(x, y, Precision::Double, [](double xValue, const SurfaceLine& row) {
    row.Fill([&](double yValue) { return 10 * xValue + yValue; });
  });
  const SurfacePoints columns = PointsByColumns(x, y, Precision::Double, [](double yValue, const SurfaceLine& column) {
    column.Fill([&](double xValue) { return 10 * xValue + yValue; });
  });
  ASSERT_EQ(rows.xCount, 4);
  ASSERT_EQ(rows.yCount, 3);
  for (int i = 0; i < rows.xCount; ++i) {
    for (int j = 0; j < rows.yCount; ++j) {
      const auto index = static_cast<std::size_t>(i * rows.yCount + j);
      EXPECT_EQ(rows.z[index], 10 * rows.x[static_cast<std::size_t>(i)] + rows.y[static_cast<std::size_t>(j)]);
      EXPECT_EQ(columns.z[index], rows.z[index]);
    }
  }
}

}  // namespace
}  // namespace kelpower
