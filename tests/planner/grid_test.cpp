#include "solve/grid.h"

#include <gtest/gtest.h>

#include "solve/usual_range.h"

namespace planner {
namespace {

Axis EvenAxis(bool isScaled = false) {
  Axis axis{.name = "r", .title = "", .symbol = "", .limits = {0, 1, true, true, false}};
  if (isScaled) {
    axis.scale = [](const Inputs&) -> Range { return {0, 1}; };
  }
  return axis;
}

Numbers EvenPoints(const Axis& axis, const Range& range, double step) {
  return Points({.axis = &axis,
                 .range = range,
                 .allowed = {0, 1},
                 .step = step,
                 .spacing = 1,
                 .endsExcluded = axis.scale != nullptr},
                Inputs());
}

TEST(Grid, GoesFromEndToEnd) {
  EXPECT_EQ(EvenPoints(EvenAxis(), {0.5, 1}, 0.25), (Numbers{0.5, 0.625, 0.75, 0.875, 1}));
  EXPECT_EQ(EvenPoints(EvenAxis(), {0, 1}, 0.4), (Numbers{0, 0.4, 0.8, 1}));
}

TEST(Grid, LeavesOutTheEndsOfAScale) {
  EXPECT_EQ(EvenPoints(EvenAxis(true), {0, 1}, 0.25), (Numbers{0.25, 0.5, 0.75}));
  Axis open = EvenAxis();
  open.limits.highAllowed = false;
  EXPECT_EQ(EvenPoints(open, {0, 1}, 0.25), (Numbers{0, 0.25, 0.5, 0.75}));
}

TEST(Grid, HasNothingBeyondTheAxis) {
  EXPECT_EQ(EvenPoints(EvenAxis(), {1.5, 1.8}, 0.1), Numbers{});
  EXPECT_EQ(EvenPoints(EvenAxis(), {0.5, 1.5}, 0.5), (Numbers{0.5, 1}));
}

Numbers WholePoints(const Range& range, double spacing, double design) {
  Axis axis{.name = "n", .title = "", .symbol = "", .limits = {1, 1e9, true, true, true}, .spacing = Spacing::Whole};
  axis.design = [design](const Inputs&) { return design; };
  return Points({.axis = &axis, .range = range, .allowed = {1, 1e9}, .step = 0.01, .spacing = spacing}, Inputs());
}

TEST(Grid, WholePointsMeetTheDesignAndBothEnds) {
  EXPECT_EQ(WholePoints({4, 8}, 1, 6), (Numbers{4, 5, 6, 7, 8}));
  EXPECT_EQ(WholePoints({2, 21}, 5, 13), (Numbers{2, 3, 8, 13, 18, 21}));
  EXPECT_EQ(WholePoints({2, 12}, 5, 100), (Numbers{2, 5, 10, 12}));
}

TEST(Grid, UsualRangesAreThinned) {
  EXPECT_EQ(SpacingOf({2, 300}, true, false), 1);
  EXPECT_EQ(SpacingOf({2, 50000}, true, false), 200);
  EXPECT_EQ(SpacingOf({2, 50000}, false, false), 1);
  EXPECT_EQ(SpacingOf({2, 300}, true, true), 2);
  EXPECT_EQ(SpacingOf({2, 501}, false, true), 1);
  EXPECT_EQ(SpacingOf({2, 5000}, false, true), 10);
}

}  // namespace
}  // namespace planner
