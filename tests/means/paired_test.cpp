#include "means/paired.h"

#include <gtest/gtest.h>

#include <cmath>

#include "kelpower.h"
#include "means/one_sample.h"

namespace kelpower::means {
namespace {

TEST(Paired, DifferencesHaveTheirStandardDeviation) {
  EXPECT_DOUBLE_EQ((DifferenceVariance::Of({3, 4, 0}).StandardDeviation()), 5);
  EXPECT_DOUBLE_EQ((DifferenceVariance::Of({3, 4, 0.5}).StandardDeviation()), std::sqrt(13.0));
  EXPECT_DOUBLE_EQ((DifferenceVariance::Of({3e200, 4e200, 0}).StandardDeviation()), 5e200);
  EXPECT_TRUE(std::isnan(DifferenceVariance::Of({4, 4, 1.5}).StandardDeviation()));
}

TEST(Paired, PowersAreThoseOfTheDifferences) {
  const double sd = DifferenceVariance::Of({3, 4, 0.5}).StandardDeviation();
  EXPECT_EQ(*Power({2 / sd, Sides::Two, 0.05}, 30), PowerRelatedNondirectional(30, 5, 3, 3, 4, 0.5, 0.05));
}

TEST(Paired, IntervalsAreThoseOfTheExports) {
  const PairedInterval interval{{3, 4, 0.5}, 0.05};
  EXPECT_EQ(HalfWidth(interval, 40), HalfCIRelatedMeans(40, 3, 4, 0.5, 0.05));
  EXPECT_EQ(std::ceil(*SizeForHalfWidth(interval, 1)), PowerReversebyHalfCIRelatedMeans(1, 3, 4, 0.5, 0.05));
}

}  // namespace
}  // namespace kelpower::means
