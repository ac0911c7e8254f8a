#include "pictures/level_lines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace planner {
namespace {

const double gap = std::nan("");

TEST(LevelLines, RunThroughTheGridByInterpolation) {
  const Series slope{{0, 1, 2}, {0, 10}, {0, 0, 0.4, 0.4, 0.8, 0.8}};
  const std::vector<Line> lines = LevelLines(slope, 0.5);
  ASSERT_EQ(lines.size(), 1u);
  ASSERT_EQ(lines[0].x.size(), 2u);
  EXPECT_NEAR(lines[0].x[0], 1.25, 1e-12);
  EXPECT_NEAR(lines[0].x[1], 1.25, 1e-12);
  EXPECT_EQ(std::abs(lines[0].y[1] - lines[0].y[0]), 10);
}

TEST(LevelLines, EndAtGaps) {
  const Series slope{{0, 1}, {0, 1, 2}, {0, 0, gap, 1, 1, 1}};
  const std::vector<Line> lines = LevelLines(slope, 0.5);
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(std::max(lines[0].y[0], lines[0].y[1]), 1);
  EXPECT_TRUE(LevelLines({{0, 1}, {0, 1}, {0, gap, 1, 1}}, 0.5).empty());
}

TEST(LevelLines, CloseAroundAPeak) {
  const Series peak{{0, 1, 2}, {0, 1, 2}, {0, 0, 0, 0, 1, 0, 0, 0, 0}};
  const std::vector<Line> lines = LevelLines(peak, 0.5);
  ASSERT_EQ(lines.size(), 1u);
  ASSERT_EQ(lines[0].x.size(), 5u);
  EXPECT_EQ(lines[0].x.front(), lines[0].x.back());
  EXPECT_EQ(lines[0].y.front(), lines[0].y.back());
}

TEST(LevelLines, AreNoneWhereTheLevelIsNotReached) {
  EXPECT_TRUE(LevelLines({{0, 1}, {0, 1}, {0, 0, 0.2, 0.2}}, 0.5).empty());
}

}  // namespace
}  // namespace planner
