#include "solve/grid.h"

#include <gtest/gtest.h>

#include "catalogue/axes.h"
#include "solve/make_inputs.h"
#include "support.h"

namespace planner {
namespace {

Axis Plain() { return {.title = "", .symbol = "", .limits = {}, .input = Name("r")}; }

Axis OnUnit(ScaleEnds ends, bool stepIsOfScale) {
  Axis axis = Plain();
  axis.scale = [](const Inputs&) -> Range { return {0, 1}; };
  axis.scaleEnds = ends;
  axis.stepIsOfScale = stepIsOfScale;
  return axis;
}

Numbers PointsOf(const Axis& axis, const Range& range, double step) {
  return Points({&axis, range, step, 1}, Inputs());
}

TEST(Grid, GoesFromEndToEnd) {
  EXPECT_EQ(PointsOf(Plain(), {2, 12}, 0.25), (Numbers{2, 4.5, 7, 9.5, 12}));
  EXPECT_EQ(PointsOf(Plain(), {0, 1}, 0.4), (Numbers{0, 0.4, 0.8, 1}));
}

TEST(Grid, LeavesOutTheEndsOfAScaleThatAreNoPoints) {
  EXPECT_EQ(PointsOf(OnUnit(ScaleEnds::Both, false), {0, 1}, 0.25), (Numbers{0, 0.25, 0.5, 0.75, 1}));
  EXPECT_EQ(PointsOf(OnUnit(ScaleEnds::First, false), {0, 1}, 0.25), (Numbers{0, 0.25, 0.5, 0.75}));
  EXPECT_EQ(PointsOf(OnUnit(ScaleEnds::None, false), {0, 1}, 0.25), (Numbers{0.25, 0.5, 0.75}));
}

TEST(Grid, StepIsAShareOfTheRangeOrOfTheScale) {
  EXPECT_EQ(PointsOf(OnUnit(ScaleEnds::None, false), {0.5, 1}, 0.25), (Numbers{0.5, 0.625, 0.75, 0.875}));
  EXPECT_EQ(PointsOf(OnUnit(ScaleEnds::None, true), {0.3, 1}, 0.25), (Numbers{0.5, 0.75}));
}

TEST(Grid, MeetsAnEndInSpiteOfRounding) {
  const Numbers points = PointsOf(OnUnit(ScaleEnds::None, true), {0.1, 0.3}, 0.1);
  ASSERT_EQ(points.size(), 3u);
  EXPECT_NEAR(points[2], 0.3, 1e-12);
}

TEST(Grid, HasNothingBeyondItsScale) {
  EXPECT_EQ(PointsOf(OnUnit(ScaleEnds::Both, false), {1.5, 1.8}, 0.1), Numbers{});
}

TEST(Grid, SizesAreThinnedOnSurfaces) {
  const Axis size = SizeAxis("", 2, 1e9, nullptr);
  const Chart curve{.name = "n", .axes = {size}, .needs = {}, .example = ""};
  const Chart surface{.name = "n-r", .axes = {size, Plain()}, .needs = {}, .example = ""};
  const Chart sizes{.name = "sizes", .axes = {size, size}, .needs = {}, .example = ""};
  const std::vector<Range> wide{{2, 1501}, {10, 310}};
  EXPECT_EQ(Grids(curve, wide, 0.01)[0].spacing, 1);
  EXPECT_EQ(Grids(surface, wide, 0.01)[0].spacing, 2);
  EXPECT_EQ(Grids(sizes, wide, 0.01)[0].spacing, 10);
  EXPECT_EQ(Grids(sizes, wide, 0.01)[1].spacing, 5);
  EXPECT_EQ(Points(Grids(sizes, wide, 0.01)[0], Inputs()).back(), 1501);
}

TEST(Axes, SizesLieAroundTheDesignAsFarAsAllowed) {
  const auto around = [](double size) {
    const Range range = SizesAround(size, {4, 5000});
    return Numbers{range.from, range.to};
  };
  EXPECT_EQ(around(80), (Numbers{20, 160}));
  EXPECT_EQ(around(4), (Numbers{4, 8}));
  EXPECT_EQ(around(1e9), (Numbers{2500, 5000}));
}

TEST(Axes, RefuseSizesBeyondTheAllowed) {
  EXPECT_FALSE(RefuseSizes({4, 5000}, {4, 5000}));
  EXPECT_TRUE(RefuseSizes({3, 5000}, {4, 5000}));
  EXPECT_TRUE(RefuseSizes({4, 5001}, {4, 5000}));
}

}  // namespace
}  // namespace planner
