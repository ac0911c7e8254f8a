#include "anova/overall.h"

#include <gtest/gtest.h>

#include <cmath>

#include "anova/sizes.h"
#include "kelpower.h"

namespace kelpower::anova {
namespace {

using Numbers = std::vector<double>;

const Numbers usualMeans = {10, 12, 15};
const Numbers usualSizes = {10, 12, 8};

TEST(Overall, PowersAreThoseOfTheExports) {
  const GroupSpread spread = GroupSpread::Of(usualMeans, usualSizes);
  EXPECT_EQ(*PowerOfMeans(spread, 6, 3, 30, 0.05), PowerOverallTest(3, usualMeans.data(), 6, usualSizes.data(), 0.05));
  EXPECT_EQ(*PowerOfEffect({0.3, true}, 3, 30, 0.05), PowerOverallTestwES(3, 0.3, 1, usualSizes.data(), 0.05));
}

TEST(Overall, SizesSpreadAreThoseOfTheExports) {
  DoubleVector sizes;
  PowerReverseOverallTest(3, usualMeans.data(), 6, usualSizes.data(), 0.8, sizes, 0.05);
  EXPECT_EQ(SpreadByShares(*TotalForPowerOfMeans(usualMeans, 6, usualSizes, 0.8, 0.05), usualSizes), sizes);
  PowerReversebyHalfCIOverallTest(1.5, 3, usualSizes.data(), 6, sizes, 0.05);
  EXPECT_EQ(SpreadByRatios(*TotalForHalfWidthOfGrandMean(1.5, 3, 6, 0.05), usualSizes), sizes);
}

TEST(Overall, SaysWhyThereIsNoPowerOrSize) {
  EXPECT_EQ(OverallTest(1, 30, 0.05).Power(5).Reason(), NoValue::Refused);
  EXPECT_EQ(OverallTest(3, 2, 0.05).Power(5).Reason(), NoValue::Refused);
  EXPECT_EQ(OverallTest(3, 30, 1).Power(5).Reason(), NoValue::Refused);
  EXPECT_EQ(PowerOfMeans({1, 1}, 0, 3, 30, 0.05).Reason(), NoValue::Refused);
  EXPECT_EQ(TotalForPowerOfEffect({0, false}, 3, 0.8, 0.05).Reason(), NoValue::NotReached);
}

TEST(GroupSpread, SurvivesWhatItsPartsDoNot) {
  EXPECT_EQ((GroupSpread{4, 0}.Noncentrality(1e-200, 20)), 0);
  EXPECT_NEAR((GroupSpread{1e200, 1e-320}.Noncentrality(1e100, 20) / (20 * 1e-120)), 1, 1e-3);  // few digits are left
  EXPECT_TRUE(std::isinf(GroupSpread{1e200, 1}.Noncentrality(1, 20)));
}

TEST(WeightedDistance, IsTheRootOfTheWeightedSquares) {
  EXPECT_DOUBLE_EQ(WeightedDistance(Numbers{1, 3}, Numbers{5, 5}), std::sqrt(10.0));
  EXPECT_EQ(WeightedDistance(Numbers{0.1, 0.1, 0.1}, Numbers{3, 7, 11}), 0);
  EXPECT_DOUBLE_EQ(WeightedDistance(Numbers{1e200, 3e200}, Numbers{5, 5}), std::sqrt(10.0) * 1e200);
  EXPECT_DOUBLE_EQ(WeightedDistance(Numbers{1e-200, 3e-200}, Numbers{5, 5}), std::sqrt(10.0) * 1e-200);
}

}  // namespace
}  // namespace kelpower::anova
