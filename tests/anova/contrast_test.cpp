#include "anova/contrast.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "anova/sizes.h"
#include "kelpower.h"

namespace kelpower::anova {
namespace {

using Numbers = std::vector<double>;

const Numbers usualSizes = {10, 12, 8};
const Numbers usualContrast = {1, -0.5, -0.5};

TEST(Contrast, PowersAndSizesAreThoseOfTheExports) {
  for (const bool isOneSided : {false, true}) {
    const ContrastDesign design{usualContrast, usualSizes, 0.7, isOneSided, 0.05};
    EXPECT_EQ(*Power(design, 30), PowerSCwES(3, 0.7, usualSizes.data(), usualContrast.data(), isOneSided, 0.05));
    DoubleVector sizes;
    PowerReverseSCwES(3, 0.7, usualSizes.data(), usualContrast.data(), 0.8, sizes, isOneSided, 0.05);
    EXPECT_EQ(SpreadByShares(*TotalForPower(design, 0.8), usualSizes), sizes);
  }
}

TEST(Contrast, IntervalsAreThoseOfTheExports) {
  const ContrastInterval interval{usualContrast, usualSizes, 6, 0.05};
  EXPECT_EQ(HalfWidth(interval, 40), HalfCISCTest(40, 3, usualSizes.data(), usualContrast.data(), 6, 0.05));
  DoubleVector sizes;
  PowerReversebyHalfCISCTest(2, 3, usualSizes.data(), usualContrast.data(), 6, sizes, 0.05);
  EXPECT_EQ(SpreadByRatios(*TotalForHalfWidth(interval, 2), usualSizes), sizes);
}

TEST(Contrast, SaysWhyThereIsNoPowerOrSize) {
  EXPECT_EQ(Power({usualContrast, usualSizes, 0.7, false, 0.05}, 2).Reason(), NoValue::Refused);
  EXPECT_EQ(TotalForPower({usualContrast, usualSizes, 0, false, 0.05}, 0.8).Reason(), NoValue::NotReached);
  EXPECT_EQ(TotalForHalfWidth({usualContrast, Numbers{0, 1, 1}, 6, 0.05}, 2).Reason(), NoValue::NotReached);
}

TEST(WeightedContrast, HasNoNoncentralityWhereAGroupIsEmpty) {
  const WeightedContrast contrast(usualContrast, Numbers{0, 10, 10});
  EXPECT_EQ(contrast.Noncentrality(0.5, 1), 0);
  EXPECT_EQ(contrast.Noncentrality(std::numeric_limits<double>::infinity(), 1e308), 0);
  EXPECT_TRUE(std::isnan(contrast.Noncentrality(std::nan(""), 1)));
}

TEST(PairContrast, HasOneAndMinusOne) {
  EXPECT_EQ(PairContrast(3, 1, 3), (Numbers{1, 0, -1}));
  EXPECT_EQ(PairContrast(3, 2, 7), (Numbers{0, 1, 0}));
  EXPECT_EQ(PairContrast(-1, 1, 2), Numbers());
}

TEST(AdjustedAlpha, DividesTheLevel) {
  EXPECT_DOUBLE_EQ(AdjustedAlpha(Adjustment::Bonferroni, 4, 0.06), 0.01);
  EXPECT_DOUBLE_EQ(std::pow(1 - AdjustedAlpha(Adjustment::Sidak, 4, 0.05), 6), 0.95);
  EXPECT_EQ(AdjustedAlpha(Adjustment::None, 4, 0.05), 0.05);
}

}  // namespace
}  // namespace kelpower::anova
