#include "exports/records.h"

#include <gtest/gtest.h>

#include "support/chart_records.h"

namespace kelpower::exports {
namespace {

TEST(Records, AreEmptyWithoutAnAxis) {
  const auto fill = [](double, const SurfaceLine& line) { line.Fill([](double) { return 1.0; }); };
  EXPECT_TRUE(IsEmpty(Curve(std::nullopt, Precision::Single, [](double) { return 1.0; })));
  EXPECT_TRUE(IsEmpty(SurfaceByRows(std::nullopt, SizeAxis(2, 3), Precision::Single, fill)));
  EXPECT_TRUE(IsEmpty(SurfaceByColumns(SizeAxis(2, 3), std::nullopt, Precision::Single, fill)));
}

TEST(Records, HaveArraysWithNoPoints) {
  const CurveRecord curve(Curve(SizeAxis(5, 4), Precision::Single, [](double) { return 1.0; }));
  EXPECT_EQ(curve.count, 0);
  EXPECT_NE(curve.x, nullptr);
  EXPECT_NE(curve.y, nullptr);
}

TEST(Records, HoldThePointsOfTheLoops) {
  const CurveRecord curve(Curve(SizeAxis(2, 4), Precision::Double, [](double x) { return x / 3; }));
  ASSERT_EQ(curve.count, 3);
  EXPECT_EQ(curve.x[2], 4);
  EXPECT_EQ(curve.y[2], 4.0 / 3);

  const auto fillRow = [](double x, const SurfaceLine& row) { row.Fill([=](double y) { return 10 * x + y; }); };
  const SurfaceRecord surface(SurfaceByRows(SizeAxis(2, 4), SizeAxis(7, 8), Precision::Double, fillRow));
  ASSERT_EQ(surface.xCount, 3);
  ASSERT_EQ(surface.yCount, 2);
  EXPECT_EQ(surface.x[1], 3);
  EXPECT_EQ(surface.y[1], 8);
  EXPECT_EQ(surface.At(1, 1), 38);
}

TEST(FreeMem, ClearsAllArraysButTheLast) {
  XYPlot curve = Curve(SizeAxis(2, 4), Precision::Double, [](double x) { return x; });
  const double* y = curve.y;
  FreeMemXYPlot(&curve);
  EXPECT_EQ(curve.x, nullptr);
  EXPECT_EQ(curve.y, y);
  EXPECT_EQ(curve.count, 3);

  XYZPlot surface = SurfaceByRows(SizeAxis(2, 4), SizeAxis(2, 3), Precision::Double,
                                  [](double, const SurfaceLine& row) { row.Fill([](double) { return 0.0; }); });
  const double* z = surface.z;
  FreeMemXYZPlot(&surface);
  EXPECT_EQ(surface.x, nullptr);
  EXPECT_EQ(surface.y, nullptr);
  EXPECT_EQ(surface.z, z);
  EXPECT_EQ(surface.xCount, 3);
  EXPECT_EQ(surface.yCount, 2);
}

TEST(FreeMem, SkipsNullArrays) {
  XYPlot curve = EmptyCurve();
  FreeMemXYPlot(&curve);
  XYZPlot surface = EmptySurface();
  FreeMemXYZPlot(&surface);
  EXPECT_EQ(curve.count + surface.xCount, 0);
}

}  // namespace
}  // namespace kelpower::exports
