#include "means/independent.h"

#include <gtest/gtest.h>

#include <cmath>

#include "kelpower.h"

namespace kelpower::means {
namespace {

constexpr GroupSpreads equalSpreads{6, 6, true};
constexpr GroupSpreads unequalSpreads{6, 9, false};

TEST(Independent, PowersAreThoseOfTheExports) {
  EXPECT_EQ(*Power({-4, equalSpreads, Sides::Two, 0.05}, 30, 20),
            PowerIndependentNondirectional(30, 1, 6, 20, 5, 6, 0.05));
  EXPECT_EQ(*Power({-4, unequalSpreads, Sides::One, 0.05}, 30, 20),
            PowerIndependentDirectional(30, 1, 6, 20, 5, 9, 0.05));
}

TEST(Independent, SizesAreThoseOfTheExports) {
  for (const GroupSpreads& spreads : {equalSpreads, unequalSpreads}) {
    const Answer size1 = FirstSizeForPower({-4, spreads, Sides::Two, 0.05}, 1.5, 0.8);
    DoubleVector sizes;
    PowerReverseIndependentNondirectional(0.8, 1.5, 1, spreads.sd1, 5, spreads.sd2, sizes, 0.05);
    EXPECT_EQ(sizes, (DoubleVector{std::ceil(*size1), std::ceil(*size1 * 1.5)}));

    const Answer precise = FirstSizeForHalfWidth({spreads, 0.05}, 1.5, 2);
    sizes.clear();
    PowerReversebyHalfCIIndependentMeans(2, 1.5, spreads.sd1, spreads.sd2, sizes, 0.05);
    EXPECT_EQ(sizes, (DoubleVector{std::ceil(*precise), std::ceil(*precise * 1.5)}));
    EXPECT_EQ(HalfWidth({spreads, 0.05}, 30, 20), HalfCIIndependentMeans(30, spreads.sd1, 20, spreads.sd2, 0.05));
  }
}

// The unequal-variance form may be asked for where the standard deviations are equal, which the exports do not offer.
TEST(Independent, WelchIsAChoice) {
  const double pooled = *Power({4, equalSpreads, Sides::Two, 0.05}, 30, 10);
  const double welch = *Power({4, {6, 6, false}, Sides::Two, 0.05}, 30, 10);
  EXPECT_LT(welch, pooled);  // it has fewer degrees of freedom
  // In equal groups the two forms have the same degrees of freedom but for their rounding.
  EXPECT_DOUBLE_EQ(*Power({4, {6, 6, false}, Sides::Two, 0.05}, 30, 30),
                   *Power({4, equalSpreads, Sides::Two, 0.05}, 30, 30));
}

TEST(Independent, SaysWhyThereIsNoPowerOrSize) {
  EXPECT_EQ(Power({4, equalSpreads, Sides::Two, 0.05}, 1, 20).Reason(), NoValue::Refused);
  EXPECT_EQ(Power({4, equalSpreads, Sides::Two, 0.05}, 20, 1).Reason(), NoValue::Refused);
  EXPECT_EQ(Power({4, {0, 6, false}, Sides::Two, 0.05}, 20, 20).Reason(), NoValue::Refused);
  EXPECT_EQ(FirstSizeForPower({0, equalSpreads, Sides::Two, 0.05}, 1, 0.8).Reason(), NoValue::NotReached);
  EXPECT_EQ(FirstSizeForHalfWidth({equalSpreads, 0.05}, 0, 2).Reason(), NoValue::NotReached);
}

}  // namespace
}  // namespace kelpower::means
