#include "means/one_sample.h"

#include <gtest/gtest.h>

#include <cmath>

#include "kelpower.h"

namespace kelpower::means {
namespace {

TEST(OneSample, PowersAndSizesAreThoseOfTheExports) {
  EXPECT_EQ(*Power({0.5, Sides::Two, 0.05}, 34), PowerOneSampleNondirectionalES(34, 0.5, 0.05));
  EXPECT_EQ(*Power({-0.5, Sides::One, 0.05}, 34), PowerOneSampleDirectionalES(34, -0.5, 0.05));
  EXPECT_EQ(*SizeForPower({0.5, Sides::Two, 0.05}, 0.8), PowerReverseOneSampleNondirectionalES(0.8, 0.5, 0.05));
  EXPECT_EQ(*SizeForPower({0.5, Sides::One, 0.05}, 0.8), PowerReverseOneSampleDirectionalES(0.8, 0.5, 0.05));
}

TEST(OneSample, IntervalsAreThoseOfTheExports) {
  const MeanInterval interval{6, 0.05};
  EXPECT_EQ(HalfWidth(interval, 40), HalfCIOneSampleMeans(40, 6, 0.05));
  EXPECT_EQ(std::ceil(*SizeForHalfWidth(interval, 2)), PowerReversebyHalfCIOneSampleMeans(2, 6, 0.05));
}

TEST(OneSample, SaysWhyThereIsNoPowerOrSize) {
  EXPECT_EQ(Power({0.5, Sides::Two, 0.05}, 1).Reason(), NoValue::Refused);
  EXPECT_EQ(Power({0.5, Sides::Two, 0}, 34).Reason(), NoValue::Refused);
  EXPECT_EQ(SizeForPower({0, Sides::Two, 0.05}, 0.8).Reason(), NoValue::NotReached);
  EXPECT_EQ(SizeForHalfWidth(MeanInterval{6, 0}, 2).Reason(), NoValue::NotReached);
}

}  // namespace
}  // namespace kelpower::means
