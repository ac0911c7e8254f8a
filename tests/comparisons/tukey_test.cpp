#include "comparisons/tukey.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "frame/rejection.h"

namespace {

using namespace kelpower::comparisons;
using kelpower::TTest;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
using Means = std::vector<double>;

TEST(TukeyTest, HoldsItsLevelForAllPairs) {
  for (std::size_t groups : {2u, 3u, 6u, 20u})
    for (double size : {2.0, 5.0, 400.0})
      for (double alpha : {0.2, 0.05, 1e-4})
        EXPECT_NEAR(*PowerOfAnyPair(Means(groups, 7.5), size, alpha), alpha, 2e-15) << groups << " " << size;
}

TEST(TukeyTest, OfTwoGroupsIsTheTTest) {
  for (double size : {2.0, 9.0, 60.0})
    for (double d : {0.0, 0.3, -1.1}) {
      const TTest t = TTest::TwoSided(0.05, 2 * size - 2);
      const double power = t.PowerBothTails(std::fabs(d) * std::sqrt(size / 2));
      EXPECT_NEAR(*PowerOfAnyPair({0, d}, size, 0.05), power, 1e-13) << size << " " << d;
      EXPECT_NEAR(*PowerOfPair(d, size, size, 2, 2 * size, 0.05), power, 1e-13) << size << " " << d;
    }
}

// By the same integrals with 36 digits. The means in another order, moved or mirrored are the same design.
TEST(TukeyTest, FindsAnyPair) {
  for (const Means& means : {Means{0, 0, 0, 1}, Means{0, 1, 0, 0}, Means{5, 5, 5, 4}, Means{-1, -1, -2, -1}})
    EXPECT_NEAR(*PowerOfAnyPair(means, 10, 0.05), 0.5680404583266848, 1e-13);
}

TEST(TukeyTest, FindsAnyPairMoreOftenThanOne) {
  const Means means{0, 0.4, 0.5, 0.9};
  const double any = *PowerOfAnyPair(means, 15, 0.05);
  double sum = 0;
  for (std::size_t i = 0; i < 4; ++i)
    for (std::size_t j = 0; j < i; ++j) {
      const double one = *PowerOfPair(means[i] - means[j], 15, 15, 4, 60, 0.05);
      EXPECT_LT(one, any);
      sum += one;
    }
  EXPECT_LT(any, sum);
}

TEST(TukeyTest, GrowsWithSizeAndEffect) {
  double before = 0;
  for (double size = 2; size < 300; size *= 1.5) {
    const double power = *PowerOfAnyPair({0, 0.2, 0.7}, size, 0.05);
    EXPECT_GT(power, before) << size;
    before = power;
  }
  before = 0;
  for (double d = 0.1; d < 3; d += 0.3) {
    const double power = *PowerOfAnyPair({0, d / 2, d}, 8, 0.05);
    EXPECT_GT(power, before) << d;
    before = power;
  }
}

TEST(TukeyTest, IsCertainOfLargeDifferences) {
  EXPECT_NEAR(*PowerOfAnyPair({0, 1e3, 0}, 10, 0.05), 1, 1e-14);
  EXPECT_NEAR(*PowerOfAnyPair({0, 1e300, -1e300}, 2, 0.05), 1, 1e-14);
  EXPECT_NEAR(*PowerOfPair(1e150, 5, 5, 3, 15, 0.05), 1, 1e-14);
}

TEST(TukeyTest, IntervalsMatchTheTest) {
  const TukeyTest test(3, 57, 0.05);
  EXPECT_NEAR(test.CriticalRange(), 3.40318919259405, 1e-12);
  EXPECT_NEAR(HalfWidthOfPair(6, 20, 20, 3, 60, 0.05), 3.40318919259405 / std::sqrt(2.0) * 6 * std::sqrt(0.1), 1e-12);
}

TEST(TukeyTest, RefusesWhatIsNoDesign) {
  for (double alpha : {0.0, 1.0, -0.1, nan}) EXPECT_FALSE(PowerOfAnyPair({0, 1, 2}, 10, alpha)) << alpha;
  for (double size : {1.0, 0.0, -5.0, nan}) EXPECT_FALSE(PowerOfAnyPair({0, 1, 2}, size, 0.05)) << size;
  EXPECT_FALSE(PowerOfAnyPair({}, 10, 0.05));
  EXPECT_FALSE(PowerOfAnyPair({1}, 10, 0.05));
  EXPECT_FALSE(PowerOfAnyPair({0, nan, 1}, 10, 0.05));
  EXPECT_FALSE(PowerOfAnyPair({0, infinity, 1}, 10, 0.05));
  EXPECT_FALSE(PowerOfAnyPair(Means(mostGroups + 1), 10, 0.05));
  EXPECT_FALSE(PowerOfPair(1, 0, 5, 3, 10, 0.05));
  EXPECT_FALSE(PowerOfPair(nan, 5, 5, 3, 15, 0.05));
  EXPECT_FALSE(PowerOfPair(1, 5, 5, 3, 3, 0.05));
  EXPECT_TRUE(std::isnan(HalfWidthOfPair(6, 2, 2, 1, 4, 0.05)));
}

TEST(TukeyTest, AnswersEveryNumber) {
  for (double d : {0.0, 5e-324, 1e-20, 1.0, 1e9, 1e308, infinity, nan})
    for (double size : {1.5, 2.0, 1e9, 1e300, infinity}) {
      for (const kelpower::Answer power :
           {PowerOfAnyPair({0, d, d / 2}, size, 0.05), PowerOfPair(d, size, 2, 3, size + 4, 0.05)})
        if (power) {
          EXPECT_TRUE(*power >= 0 && *power <= 1) << d << " " << size << " " << *power;
        }
    }
}

}  // namespace
