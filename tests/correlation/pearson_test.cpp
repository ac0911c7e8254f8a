#include "correlation/pearson.h"

#include <gtest/gtest.h>

#include <cmath>

#include "kelpower.h"
#include "support/stop_requests.h"

namespace kelpower::correlation {
namespace {

TEST(Pearson, PowersAndSizesAreThoseOfTheExports) {
  for (const bool isCorrected : {false, true}) {
    const PearsonTest test{{0.05, false}, 0, isCorrected};
    EXPECT_EQ(*Power(test, 84, {0.3, 0}), PowerbyOneSampPearson(84, 0.3, 0, 0, isCorrected, 0.05));
    EXPECT_EQ(*SizeForPower(test, {0.3, 0}, 0.8),
              PowerReversebyOneSampPearson(0.8, 0.3, 0, 0, isCorrected, 0.05, nullptr));
  }
  const PearsonTest partial{{0.05, true}, 4, true};
  EXPECT_EQ(*Power(partial, 84, {0.3, 0}), PowerbyOneSampPartial(84, 4, 0.3, 0, 1, 0.05));
  EXPECT_EQ(*SizeForPower(partial, {0.3, 0}, 0.8), PowerReversebyOneSampPartial(0.8, 4, 0.3, 0, 1, 0.05));
}

TEST(Pearson, IntervalsAreThoseOfTheExports) {
  const PearsonInterval interval{Confidence(0.05), 0.3, 0, true};
  EXPECT_EQ(HalfWidth(interval, 84), HalfCIOneSampPearson(84, 0.3, 1, 0.05));
  EXPECT_EQ(std::ceil(*SizeForHalfWidth(interval, 0.1)),
            PowerReversebyHalfCIOneSampPearson(0.1, 0.3, 1, 0.05, nullptr));
  const PearsonInterval partial{Confidence(0.05), 0.3, 4};
  EXPECT_EQ(std::ceil(*SizeForHalfWidth(partial, 0.1)), PowerReversebyHalfCIOneSampPartial(0.1, 4, 0.3, 0.05, nullptr));
}

TEST(Pearson, SaysWhyThereIsNoPowerOrSize) {
  const PearsonTest test{{0.05, false}};
  EXPECT_EQ(Power(test, 3, {0.3, 0}).Reason(), NoValue::Refused);
  EXPECT_EQ(Power(test, 30, {1.3, 0}).Reason(), NoValue::Refused);
  EXPECT_EQ(Power({{1, false}}, 30, {0.3, 0}).Reason(), NoValue::Refused);
  EXPECT_EQ(SizeForPower(test, {0, 0}, 0.8).Reason(), NoValue::NotReached);
  keltest::CountingStop stop(3);
  EXPECT_EQ(SizeForPower(test, {0.3, 0}, 0.8, stop).Reason(), NoValue::Stopped);
}

}  // namespace
}  // namespace kelpower::correlation
