#include "proportions/one_sample_tests.h"

#include <gtest/gtest.h>

#include <cmath>

#include "kelpower.h"
#include "proportions/one_sample_interval.h"
#include "support/stop_requests.h"

namespace kelpower::proportions {
namespace {

constexpr OneSampleDesign byTables{true, true, 0.05};

TEST(OneSampleTest, IsThatOfTheExports) {
  for (const bool isExact : {false, true}) {
    const OneSampleDesign design{isExact, false, 0.05};
    EXPECT_EQ(*OneSampleTest(design).Power(72, {0.8, 0.65}),
              PowerOneSampBinom(72, 0.8, 0.65, isExact, 0, 0.05, 0, nullptr));
    EXPECT_EQ(*SizeForPower(design, {0.8, 0.65}, 0.8),
              PowerReverseOneSampBinom(0.8, 0.8, 0.65, isExact, 0, 0.05, 0, nullptr));
  }
}

TEST(OneSampleTest, HasTheRegionOfTheTextbook) {
  OneSampleTest test(byTables);
  const CriticalRegion region = test.Region(20, {0.80, 0.65});
  EXPECT_EQ(region.lower, -1);
  EXPECT_EQ(region.upper, 17);
  EXPECT_NEAR(test.AttainedLevel(20, {0.80, 0.65}), 0.044376, 5e-7);
}

// 5 successes of 5, and none, have the probability 1/32 under the null hypothesis.
TEST(OneSampleTest, RejectsACountWhoseProbabilityIsTheLevel) {
  constexpr double level = 1.0 / 32;
  OneSampleTest test({true, true, level});
  EXPECT_EQ(test.Region(5, {0.9, 0.5}).upper, 5);
  EXPECT_EQ(test.Region(5, {0.1, 0.5}).lower, 0);
  EXPECT_EQ(test.AttainedLevel(5, {0.9, 0.5}), level);
  EXPECT_NEAR(*test.Power(5, {0.9, 0.5}), std::pow(0.9, 5), 1e-15);
}

// Its power where the null hypothesis is true is the level that it attains.
TEST(OneSampleTest, AttainsALevelUpToItsOwn) {
  for (const double alpha : {0.01, 0.05, 0.2}) {
    OneSampleTest test({true, false, alpha});
    for (double n = 1; n < 200; n += 7) {
      EXPECT_LE(test.AttainedLevel(n, {0.5, 0.3}), alpha);
      EXPECT_NEAR(test.AttainedLevel(n, {0.5, 0.3}), *test.Power(n, {0.3, 0.3}), 1e-15);
    }
  }
}

TEST(OneSampleTest, SaysWhyThereIsNoPowerOrSize) {
  OneSampleTest test(byTables);
  EXPECT_EQ(test.Power(0.5, {0.8, 0.65}).Reason(), NoValue::Refused);
  EXPECT_EQ(test.Power(20, {1.2, 0.65}).Reason(), NoValue::Refused);
  EXPECT_EQ(test.Power(2147483648.0, {0.8, 0.65}).Reason(), NoValue::Uncountable);
  keltest::CountingStop stop(3);
  EXPECT_EQ(test.Power(20, {0.8, 0.65}, stop).Reason(), NoValue::Stopped);
  EXPECT_EQ(SizeForPower(byTables, {0.650001, 0.65}, 1.5).Reason(), NoValue::Uncountable);
  keltest::CountingStop late(40);
  EXPECT_EQ(SizeForPower(byTables, {0.8, 0.65}, 0.8, late).Reason(), NoValue::Stopped);
}

TEST(OneSampleInterval, IsThatOfTheExports) {
  for (int method = 0; method < 7; ++method) {
    const OneSampleInterval interval({OneSampleMethod(method), 0.3, 0.05, true});
    EXPECT_EQ(interval.HalfWidth(80), HalfCIOneSampBinom(80, 0.3, method, 0.05, 1)) << method;
    EXPECT_EQ(*interval.SizeFor(0.1), PowerReversebyHalfCIOneSampBinom(0.1, 0.3, method, 0.05, 1, nullptr)) << method;
  }
}

}  // namespace
}  // namespace kelpower::proportions
