#include "means/crossover.h"

#include <gtest/gtest.h>

#include <cmath>

#include "means/one_sample.h"

namespace kelpower::means {
namespace {

// In equal sequences the effect is the mean of the differences within subjects, whose standard deviation is sqrt(2) sd.
TEST(Crossover, HasTheErrorOfPairsInEqualSequences) {
  const DifferenceDistribution difference = CrossoverDifference(12, 12, 3);
  EXPECT_DOUBLE_EQ(difference.standardError, 3 * std::sqrt(2.0) / std::sqrt(24.0));
  EXPECT_EQ(difference.df, 22);
}

TEST(Crossover, LosesByUnequalSequences) {
  EXPECT_LT(CrossoverDifference(12, 12, 3).standardError, CrossoverDifference(13, 11, 3).standardError);
  EXPECT_EQ(CrossoverDifference(13, 11, 3).standardError, CrossoverDifference(11, 13, 3).standardError);
}

// Student's t of 22 degrees of freedom: R 4.2, qt(.975, 22) = 2.073873067904.
TEST(Crossover, HasTheHalfWidthOfT) {
  EXPECT_NEAR(CrossoverHalfWidth(12, 12, 5, 0.05), 2.073873067904 * 5 / std::sqrt(12.0), 1e-11);
}

TEST(Crossover, FindsTheSizeForAHalfWidth) {
  for (double halfWidth : {0.01, 0.5, 2.0, 4.0}) {
    const Answer size = CrossoverSizeForHalfWidth(halfWidth, 5, 0.05);
    ASSERT_TRUE(size);
    EXPECT_NEAR(CrossoverHalfWidth(*size, *size, 5, 0.05), halfWidth, 1e-8 * halfWidth);
  }
  EXPECT_FALSE(CrossoverSizeForHalfWidth(0, 5, 0.05));
}

}  // namespace
}  // namespace kelpower::means
