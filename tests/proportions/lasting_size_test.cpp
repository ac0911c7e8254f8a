#include "proportions/lasting_size.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace kelpower::proportions {
namespace {

OneSampleDesign OneSample(bool isOneSided, double alpha) { return {true, isOneSided, alpha}; }

/// The largest size up to `upTo` that does not reach the power, by trying every one.
template <typename Test, typename Truth>
double LastSizeBelow(Test& test, const Truth& truth, double power, double upTo) {
  double size = upTo;
  while (size >= 1 && test.Power(size, truth).ValueOr(0) >= power) --size;
  return size;
}

TEST(LastingSize, OfOneProportionIsTheOneFoundByTryingAll) {
  EXPECT_EQ(*LastingSize(OneSample(false, 0.05), {0.65, 0.80}, 0.8), 78);
  EXPECT_EQ(*LastingSize(OneSample(false, 0.05), {0.70, 0.80}, 0.8), 155);
  EXPECT_EQ(*LastingSize(OneSample(false, 0.05), {0.90, 0.80}, 0.8), 113);

  std::mt19937 engine(5);
  std::uniform_real_distribution<double> uniform(0, 1);
  int compared = 0;
  while (compared < 60) {
    const OneSampleProportions proportions{uniform(engine), uniform(engine)};
    const OneSampleDesign design = OneSample(uniform(engine) < 0.5, 0.2 * uniform(engine));
    if (std::fabs(proportions.alternative - proportions.null) < 0.15) continue;
    const double power = 0.3 + 0.65 * uniform(engine);
    const double size = *LastingSize(design, proportions, power);
    OneSampleTest test(design);
    EXPECT_EQ(size, LastSizeBelow(test, proportions, power, 4 * size + 50) + 1)
        << proportions.alternative << ' ' << proportions.null << ' ' << design.alpha << ' ' << power;
    ++compared;
  }
}

TEST(LastingSize, OfOneProportionHandlesCertainOutcomes) {
  for (const OneSampleProportions& proportions :
       {OneSampleProportions{0, 0.3}, OneSampleProportions{1, 0.3}, OneSampleProportions{0.3, 1}}) {
    OneSampleTest test(OneSample(true, 0.05));
    EXPECT_EQ(*LastingSize(OneSample(true, 0.05), proportions, 0.9), LastSizeBelow(test, proportions, 0.9, 200) + 1)
        << proportions.alternative << ' ' << proportions.null;
  }
}

TEST(LastingSize, OfOneProportionIsFoundAmongMillions) {
  const OneSampleProportions proportions{0.501, 0.5};
  OneSampleTest test(OneSample(false, 0.05));
  const double size = *LastingSize(OneSample(false, 0.05), proportions, 0.8);
  EXPECT_LT(*test.Power(size - 1, proportions), 0.8);
  for (double n = size; n < size + 2000; ++n) EXPECT_GE(*test.Power(n, proportions), 0.8) << n;
}

TEST(LastingSize, OfPairsIsTheOneFoundByTryingAll) {
  std::mt19937 engine(6);
  std::uniform_real_distribution<double> uniform(0, 1);
  int compared = 0;
  while (compared < 20) {
    const double discordant = compared % 4 == 0 ? 1 : 0.2 + 0.8 * uniform(engine);
    const double second = discordant * uniform(engine);
    const DiscordantPairs pairs{discordant - second, second};
    const McNemarDesign design{true, uniform(engine) < 0.5, 0.01 + 0.1 * uniform(engine)};
    if (std::fabs(pairs.p12 - pairs.p21) < 0.4 * discordant) continue;
    const double power = 0.4 + 0.5 * uniform(engine);
    const double size = *LastingSize(design, pairs, power);
    McNemarTest test(design);
    EXPECT_EQ(size, LastSizeBelow(test, pairs, power, 4 * size + 50) + 1)
        << pairs.p12 << ' ' << pairs.p21 << ' ' << design.isOneSided << ' ' << design.alpha << ' ' << power;
    ++compared;
  }
}

TEST(LastingSize, SaysWhyThereIsNone) {
  const OneSampleDesign design = OneSample(false, 0.05);
  EXPECT_EQ(LastingSize(design, {0.5, 0.5}, 0.8).Reason(), NoValue::NotReached);
  EXPECT_EQ(LastingSize(design, {0.5, 0.4}, 1).Reason(), NoValue::NotReached);
  EXPECT_EQ(LastingSize(design, {0.5, 0.5 + 1e-9}, 0.8).Reason(), NoValue::Uncountable);
  const McNemarDesign pairs{true, false, 0.05};
  EXPECT_EQ(LastingSize(pairs, {0.2, 0.2}, 0.8).Reason(), NoValue::NotReached);
  EXPECT_EQ(LastingSize(pairs, {0.2, 0.2001}, 0.8).Reason(), NoValue::Uncountable);
  EXPECT_EQ(LastingSize(pairs, {1e-12, 0}, 0.8).Reason(), NoValue::Uncountable);
}

}  // namespace
}  // namespace kelpower::proportions
