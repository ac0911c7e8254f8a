#include "window.h"

#include <gtest/gtest.h>

#include "planner/error.h"

namespace planner {
namespace {

TEST(Window, KeepsThePointsOfACurveWithinTheRange) {
  const Series curve{{-1, -0.5, 0, 0.5, 1}, {}, {0.1, 0.2, 0.3, 0.4, 0.5}};
  const Series window = Window(curve, {-0.5, 0.6});
  EXPECT_EQ(window.x, (Numbers{-0.5, 0, 0.5}));
  EXPECT_EQ(window.power, (Numbers{0.2, 0.3, 0.4}));
}

TEST(Window, KeepsAPointThatRoundingMovedOverTheEnd) {
  const Series curve{{3 * 0.1, 0.4}, {}, {0.5, 0.6}};
  const Series window = Window(curve, {0, 0.3});
  EXPECT_EQ(window.power, Numbers{0.5});
}

TEST(Window, CutsASurfaceAlongBothAxes) {
  const Series surface{{1, 2, 3}, {10, 20}, {0.11, 0.12, 0.21, 0.22, 0.31, 0.32}};
  const Series window = Window(surface, {2, 3}, {15, 25});
  EXPECT_EQ(window.x, (Numbers{2, 3}));
  EXPECT_EQ(window.y, Numbers{20});
  EXPECT_EQ(window.power, (Numbers{0.22, 0.32}));
}

TEST(Window, WithoutRangesLeavesOutNothing) {
  const Series surface{{1, 2}, {10, 20}, {0.11, 0.12, 0.21, 0.22}};
  const Series window = Window(surface, {}, {});
  EXPECT_EQ(window.x, surface.x);
  EXPECT_EQ(window.y, surface.y);
  EXPECT_EQ(window.power, surface.power);
}

TEST(Window, StepIsAShareOfWhatIsShown) {
  EXPECT_DOUBLE_EQ(StepOfGrid({}, 2, 0.01), 0.02);
  EXPECT_DOUBLE_EQ(StepOfGrid({0.2, 0.7}, 2, 0.01), 0.005);
  EXPECT_DOUBLE_EQ(StepOfGrid({0.2, 0.2001}, 2, 0.01), 0.001);
}

TEST(Window, SizesLieAroundTheDesignAsFarAsAllowed) {
  const Range around = SizesAround(80, {4, 5000});
  EXPECT_EQ(around.from, 20);
  EXPECT_EQ(around.to, 160);
  const Range ofFew = SizesAround(4, {4, 5000});
  EXPECT_EQ(ofFew.from, 4);
  EXPECT_EQ(ofFew.to, 8);
  const Range ofMany = SizesAround(1e9, {4, 5000});
  EXPECT_EQ(ofMany.from, 2500);
  EXPECT_EQ(ofMany.to, 5000);
}

TEST(Window, RefusesSizesBeyondTheAllowed) {
  EXPECT_NO_THROW(CheckSizes({4, 5000}, {4, 5000}));
  EXPECT_THROW(CheckSizes({3, 5000}, {4, 5000}), InputError);
  EXPECT_THROW(CheckSizes({4, 5001}, {4, 5000}), InputError);
}

}  // namespace
}  // namespace planner
