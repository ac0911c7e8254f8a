#include "correlation/fisher.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kelpower::correlation {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();

TEST(FisherDifference, IsThatOfZOrTheLargestDouble) {
  constexpr double largestDouble = std::numeric_limits<double>::max();
  EXPECT_DOUBLE_EQ(FisherDifference({0.5, 0.2}), std::atanh(0.5) - std::atanh(0.2));
  EXPECT_EQ(FisherDifference({1, 0.2}), largestDouble);
  EXPECT_EQ(FisherDifference({-1, 0.2}), -largestDouble);
  EXPECT_EQ(FisherDifference({0.2, -1}), largestDouble);
  EXPECT_EQ(FisherDifference({0.2, 1}), -largestDouble);
  EXPECT_EQ(FisherDifference({1, 1}), largestDouble);
  EXPECT_EQ(FisherDifference({-1, -1}), largestDouble);
}

TEST(BackTransformedHalfWidth, IsHalfTheDistanceOfItsEnds) {
  for (const double z : {-3.0, -0.4, 0.0, 1e-3, 2.0, 15.0}) {
    for (const double h : {0.01, 0.5, 3.0, 40.0}) {
      EXPECT_NEAR(BackTransformedHalfWidth(z, h), (std::tanh(z + h) - std::tanh(z - h)) / 2, 3e-16) << z << ' ' << h;
    }
  }
  // Small ones are h (1 - tanh^2 z), to the last digit where the difference of the ends has lost half of them.
  EXPECT_DOUBLE_EQ(BackTransformedHalfWidth(0.5, 1e-9), 1e-9 * (1 - std::tanh(0.5) * std::tanh(0.5)));
  EXPECT_EQ(BackTransformedHalfWidth(0.5, infinite), 1);
  EXPECT_EQ(BackTransformedHalfWidth(infinite, 0.5), 0);
  EXPECT_TRUE(std::isnan(BackTransformedHalfWidth(infinite, infinite)));
}

}  // namespace
}  // namespace kelpower::correlation
