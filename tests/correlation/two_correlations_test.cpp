#include "correlation/two_correlations.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "correlation/pearson.h"

namespace kelpower::correlation {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
const Level twoSided(0.05, false);
const Level oneSided(0.05, true);

TEST(TwoCorrelations, IsTheLevelWithoutADifference) {
  EXPECT_NEAR(*PowerOfDifference(twoSided, 0, {20, 30}), 0.05, 1e-15);
}

// An endless second group gives its correlation as if it were the null one.
TEST(TwoCorrelations, NearsTheTestOfOneCorrelation) {
  for (const Level& level : {twoSided, oneSided}) {
    for (const double r : {0.5, -0.1}) {
      const Hypotheses hypotheses{r, 0.2};
      EXPECT_NEAR(*PowerOfDifference(level, FisherDifference(hypotheses), {60, 1e30}), *Power({level}, 60, hypotheses),
                  1e-14);
    }
  }
}

TEST(TwoCorrelations, DoesNotDependOnTheOrder) {
  EXPECT_NEAR(*PowerOfDifference(twoSided, 0.3, {20, 300}), *PowerOfDifference(twoSided, -0.3, {300, 20}), 1e-15);
  EXPECT_NEAR(*PowerOfDifference(oneSided, 0.3, {20, 300}), *PowerOfDifference(oneSided, -0.3, {300, 20}), 1e-15);
}

TEST(TwoCorrelations, HasAPowerThatGrows) {
  double before = 0;
  for (double n = 4; n < 2000; n *= 1.5) {
    const double power = *PowerOfDifference(twoSided, 0.2, {n, 2 * n});
    EXPECT_GT(power, before) << n;
    before = power;
  }
}

TEST(TwoCorrelations, IsRefusedWhereThereIsNoTest) {
  EXPECT_FALSE(PowerOfDifference(twoSided, 0.2, {3, 30}));
  EXPECT_FALSE(PowerOfDifference(twoSided, 0.2, {30, 3}));
  EXPECT_FALSE(PowerOfDifference(twoSided, 0.2, {-infinite, 30}));
  EXPECT_FALSE(PowerOfDifference({0, false}, 0.2, {30, 30}));
  EXPECT_EQ(*PowerOfDifference(twoSided, infinite, {30, 30}), 1);
  EXPECT_TRUE(std::isnan(*PowerOfDifference(twoSided, std::nan(""), {30, 30})));
}

}  // namespace
}  // namespace kelpower::correlation
