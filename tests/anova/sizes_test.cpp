#include "anova/sizes.h"

#include <gtest/gtest.h>

namespace kelpower::anova {
namespace {

using Numbers = std::vector<double>;

TEST(Spread, RoundsUpToAtLeastTwo) {
  EXPECT_EQ(SpreadByShares(10, Numbers{1, 2, 1}), (Numbers{3, 5, 3}));
  EXPECT_EQ(SpreadByRatios(10, Numbers{1, 2, 1}), (Numbers{3, 5, 3}));
  EXPECT_EQ(SpreadByShares(-1e308, Numbers{1, 2, 1}), (Numbers{2, 2, 2}));
}

// 108 (7 / 12) is 63.00000000000001 and 108 * 7 / 12 is 63: the order decides what is rounded up.
TEST(Spread, DiffersInTheOrderOfOperations) {
  EXPECT_EQ(SpreadByShares(108, Numbers{1, 4, 7}), (Numbers{9, 36, 64}));
  EXPECT_EQ(SpreadByRatios(108, Numbers{1, 4, 7}), (Numbers{9, 36, 63}));
}

TEST(TotalForPower, TakesARefusedPowerForTooLow) {
  const auto powerAt = [](double total) { return total < 50 ? Answer(NoValue::Refused) : Answer(0.9); };
  EXPECT_NEAR(*TotalForPower(3, powerAt, 0.8), 50, 1e-5);
  const Answer none = TotalForPower(
      3, [](double) { return Answer(NoValue::Refused); }, 0.8);
  ASSERT_FALSE(none);
  EXPECT_EQ(none.Reason(), NoValue::NotReached);
}

}  // namespace
}  // namespace kelpower::anova
