#include "catalogue/exact_proportions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "kelcommon/kel_mv.h"
#include "kelpower.h"

namespace planner {
namespace {

using KelCommon::KelMV;

double PowerAt(const OneProportion& test, double n) {
  return PowerOneSampBinom(n, test.alternative, test.null, 1, test.isOneSided, test.alpha, 0, nullptr);
}

double PowerAt(const DiscordantProportions& test, double n) {
  return PowerbyPRelSampBionm(n, test.p12, test.p21, test.isOneSided, 1, test.alpha, nullptr);
}

/// By trying every size.
template <typename Test>
double LastSizeBelow(const Test& test, double power, double upTo) {
  double n = upTo;
  while (n >= 1 && PowerAt(test, n) >= power) --n;
  return n;
}

TEST(CriticalCounts, OfOneProportionAreThoseOfTheTextbook) {
  const OneProportion test = {0.80, 0.65, true, 0.05};
  EXPECT_EQ(CriticalCounts(test, 20).lower, -1);
  EXPECT_EQ(CriticalCounts(test, 20).upper, 17);
  EXPECT_NEAR(AttainedLevel(test, 20), 0.044376, 5e-7);
}

TEST(CriticalCounts, OfTheSignTestAreThoseOfTheTextbook) {
  // Two-sided at 0.05 with 10 pairs: P(X <= 1) = 11/1024 rejects, P(X <= 2) = 56/1024 does not.
  const DiscordantProportions test = {0.3, 0.1, false, 0.05};
  EXPECT_EQ(CriticalCounts(test, 10).lower, 1);
  EXPECT_EQ(CriticalCounts(test, 10).upper, 9);
  EXPECT_EQ(CriticalCounts(test, 5).lower, -1);
  EXPECT_EQ(CriticalCounts(test, 5).upper, 6);
}

// 5 successes of 5, and none, have the probability 1/32 under the null hypothesis. The sign test does not count its
// upper tail at such a tie.
TEST(CriticalCounts, AtALevelThatIsTheProbabilityOfACount) {
  const double level = 1.0 / 32;
  EXPECT_EQ(CriticalCounts(OneProportion{0.9, 0.5, true, level}, 5).upper, 5);
  EXPECT_EQ(CriticalCounts(OneProportion{0.1, 0.5, true, level}, 5).lower, 0);
  EXPECT_EQ(AttainedLevel(OneProportion{0.9, 0.5, true, level}, 5), level);
  EXPECT_NEAR(PowerAt(OneProportion{0.9, 0.5, true, level}, 5), std::pow(0.9, 5), 1e-15);
  EXPECT_EQ(CriticalCounts(DiscordantProportions{0.3, 0.1, true, level}, 5).lower, 0);
  EXPECT_EQ(CriticalCounts(DiscordantProportions{0.1, 0.3, true, level}, 5).upper, 6);
}

TEST(AttainedLevel, OfOneProportionIsThePowerAtTheNullProportion) {
  for (double n = 1; n < 60; ++n) {
    for (bool isOneSided : {false, true}) {
      const OneProportion lower = {0.2, 0.4, isOneSided, 0.05};
      EXPECT_NEAR(AttainedLevel(lower, n), PowerAt(OneProportion{0.4, 0.4, isOneSided, 0.05}, n), 1e-15) << n;
      EXPECT_LE(AttainedLevel(lower, n), 0.05);
      const OneProportion upper = {0.6, 0.4, isOneSided, 0.05};
      EXPECT_NEAR(AttainedLevel(upper, n), PowerAt(OneProportion{0.4 + 1e-15, 0.4, isOneSided, 0.05}, n), 1e-13) << n;
    }
  }
}

TEST(AttainedLevel, OfPairsIsAtMostAlpha) {
  for (double n = 2; n < 200; n += 7) {
    EXPECT_LE(AttainedLevel(DiscordantProportions{0.3, 0.1, true, 0.05}, n), 0.05);
    EXPECT_LE(AttainedLevel(DiscordantProportions{0.3, 0.1, false, 0.05}, n), 0.05);
  }
}

TEST(LastingSize, OfOneProportionIsTheOneFoundByTryingAll) {
  EXPECT_EQ(LastingSize(OneProportion{0.65, 0.80, false, 0.05}, 0.8), 78);
  EXPECT_EQ(LastingSize(OneProportion{0.70, 0.80, false, 0.05}, 0.8), 155);
  EXPECT_EQ(LastingSize(OneProportion{0.90, 0.80, false, 0.05}, 0.8), 113);

  std::mt19937 engine(5);
  std::uniform_real_distribution<double> uniform(0, 1);
  int compared = 0;
  while (compared < 60) {
    const OneProportion test = {uniform(engine), uniform(engine), uniform(engine) < 0.5, 0.2 * uniform(engine)};
    if (std::fabs(test.alternative - test.null) < 0.15) continue;
    const double power = 0.3 + 0.65 * uniform(engine);
    const double size = LastingSize(test, power);
    EXPECT_EQ(size, LastSizeBelow(test, power, 4 * size + 50) + 1)
        << test.alternative << " " << test.null << " " << test.isOneSided << " " << test.alpha << " " << power;
    ++compared;
  }
}

TEST(LastingSize, OfOneProportionHandlesCertainOutcomes) {
  for (const OneProportion& test : {OneProportion{0, 0.3, true, 0.05}, OneProportion{1, 0.3, true, 0.05},
                                    OneProportion{0.3, 1, true, 0.05}, OneProportion{0.3, 0, false, 0.05}}) {
    const double size = LastingSize(test, 0.9);
    EXPECT_EQ(size, LastSizeBelow(test, 0.9, 200) + 1) << test.alternative << " " << test.null;
  }
}

TEST(LastingSize, OfOneProportionIsFoundAmongMillions) {
  const OneProportion test = {0.501, 0.5, false, 0.05};
  const double size = LastingSize(test, 0.8);
  EXPECT_LT(PowerAt(test, size - 1), 0.8);
  for (double n = size; n < size + 2000; ++n) EXPECT_GE(PowerAt(test, n), 0.8) << n;
}

TEST(LastingSize, OfPairsIsTheOneFoundByTryingAll) {
  std::mt19937 engine(6);
  std::uniform_real_distribution<double> uniform(0, 1);
  int compared = 0;
  while (compared < 20) {
    const double discordant = compared % 4 == 0 ? 1 : 0.2 + 0.8 * uniform(engine);
    const double second = discordant * uniform(engine);
    const DiscordantProportions test = {discordant - second, second, uniform(engine) < 0.5,
                                        0.01 + 0.1 * uniform(engine)};
    if (std::fabs(test.p12 - test.p21) < 0.4 * discordant) continue;
    const double power = 0.4 + 0.5 * uniform(engine);
    const double size = LastingSize(test, power);
    EXPECT_EQ(size, LastSizeBelow(test, power, 4 * size + 50) + 1)
        << test.p12 << " " << test.p21 << " " << test.isOneSided << " " << test.alpha << " " << power;
    ++compared;
  }
}

TEST(LastingSize, IsMissingWhereThereIsNone) {
  EXPECT_TRUE(KelMV::IsMissing(LastingSize(OneProportion{0.5, 0.5, false, 0.05}, 0.8)));
  EXPECT_TRUE(KelMV::IsMissing(LastingSize(OneProportion{0.5, 0.4, false, 0.05}, 1)));
  EXPECT_TRUE(KelMV::IsMissing(LastingSize(OneProportion{0.5, 0.5 + 1e-9, false, 0.05}, 0.8)));
  EXPECT_TRUE(KelMV::IsMissing(LastingSize(DiscordantProportions{0.2, 0.2, false, 0.05}, 0.8)));
  EXPECT_TRUE(KelMV::IsMissing(LastingSize(DiscordantProportions{0.2, 0.2001, false, 0.05}, 0.8)));
}

}  // namespace
}  // namespace planner
