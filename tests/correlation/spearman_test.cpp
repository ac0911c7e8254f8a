#include "correlation/spearman.h"

#include <gtest/gtest.h>

#include <cmath>

#include "kelpower.h"

namespace kelpower::correlation {
namespace {

TEST(Spearman, IsThatOfTheExports) {
  for (int method = 0; method < 3; ++method) {
    const RankVariance variance = RankVariance(method);
    const SpearmanTest test{{0.05, false}, variance};
    EXPECT_EQ(*Power(test, 84, {0.3, 0}), PowerbyOneSampSpearman(84, 0.3, 0, method, 0, 0.05));
    EXPECT_EQ(*SizeForPower(test, {0.3, 0}, 0.8), PowerReversebyOneSampSpearman(0.8, 0.3, 0, method, 0, 0.05));
    const SpearmanInterval interval{Confidence(0.05), 0.3, variance};
    EXPECT_EQ(HalfWidth(interval, 84), HalfCIOneSampSpearman(84, 0.3, method, 0.05));
    EXPECT_EQ(std::ceil(*SizeForHalfWidth(interval, 0.1)),
              PowerReversebyHalfCIOneSampSpearman(0.1, 0.3, method, 0.05, nullptr));
  }
}

TEST(Spearman, RefusesInfiniteVariances) {
  EXPECT_EQ(Power({{0.05, false}, RankVariance::BonettWright}, 3, {0.3, 0}).Reason(), NoValue::Refused);
  EXPECT_EQ(Power({{0.05, false}, RankVariance::FiellerHartleyPearson}, 3, {0.3, 0}).Reason(), NoValue::Refused);
  EXPECT_TRUE(Power({{0.05, false}, RankVariance::CarusoCliff}, 3, {0.3, 0}));
  EXPECT_EQ(Power({{0.05, false}, RankVariance::CarusoCliff}, 2.9, {0.3, 0}).Reason(), NoValue::Refused);
}

}  // namespace
}  // namespace kelpower::correlation
