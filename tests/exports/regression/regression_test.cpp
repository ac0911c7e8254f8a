#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "kelcommon/kel_mv.h"
#include "kelpower.h"

namespace kelpower {
namespace {

using KelCommon::KelMV;

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double quietNaN = std::numeric_limits<double>::quiet_NaN();
constexpr int withFixed = 0;
constexpr int withRandom = 1;

TEST(Powerbymlr, MatchesPublishedValues) {
  EXPECT_NEAR(PowerbymlrwES(95, 5, 5, 1.0 / 9, withFixed, 1, 0.05), 0.673586, 5e-7);
  EXPECT_NEAR(Powerbymlr(95, 5, 5, std::sqrt(0.1), 0, withRandom, 1, 0.05), 0.662627, 5e-7);
  EXPECT_NEAR(PowerbymlrwES(90, 9, 4, 0.0714286, withFixed, 1, 0.01), 0.241297, 5e-7);
  EXPECT_NEAR(PowerReversebymlrwES(0.80, 9, 4, 0.0714286, withFixed, 1, 0.01), 241.3212, 5e-5);
}

TEST(Powerbymlr, TakesFitsOrTheEffectThatFollowsFromThem) {
  for (const int random : {withFixed, withRandom}) {
    const double r = 0.4;
    EXPECT_NEAR(Powerbymlr(60, 4, 4, r, 0, random, 1, 0.05),
                PowerbymlrwES(60, 4, 4, r * r / (1 - r * r), random, 1, 0.05), 1e-13);
    EXPECT_NEAR(Powerbymlr(60, 4, 2, 0.3, 0.2, random, 1, 0.05), PowerbymlrwES(60, 4, 2, 0.1 / 0.7, random, 1, 0.05),
                1e-13);
  }
}

TEST(Powerbymlr, SquaresTheFullFitOnlyWithoutAReducedModel) {
  EXPECT_EQ(Powerbymlr(60, 4, 4, -0.5, 0, withFixed, 1, 0.05), Powerbymlr(60, 4, 4, 0.5, 0, withFixed, 1, 0.05));
  EXPECT_EQ(Powerbymlr(60, 4, 4, -0.5, 0.2, withFixed, 1, 0.05), -1);
}

TEST(Powerbymlr, WithoutEffectIsAlpha) {
  for (const int random : {withFixed, withRandom}) {
    for (const double alpha : {1e-6, 0.01, 0.05, 0.5, 0.99}) {
      EXPECT_NEAR(PowerbymlrwES(50, 3, 2, 0, random, 1, alpha), alpha, 1e-13);
      EXPECT_NEAR(Powerbymlr(50, 3, 2, 0.3, 0.3, random, 1, alpha), alpha, 1e-13);
      EXPECT_NEAR(Powerbymlr(50, 3, 2, 0, 0, random, 1, alpha), alpha, 1e-13);
    }
  }
}

TEST(Powerbymlr, GrowsWithSizeEffectAndAlpha) {
  for (const int random : {withFixed, withRandom}) {
    double last = 0;
    for (double n = 7; n < 300; n += 3.5) {
      const double power = PowerbymlrwES(n, 5, 3, 0.1, random, 1, 0.05);
      EXPECT_GT(power, last);
      last = power;
    }
    last = 0;
    for (double f2 = 0; f2 < 0.6; f2 += 0.05) {
      const double power = PowerbymlrwES(40, 5, 3, f2, random, 1, 0.05);
      EXPECT_GT(power, last);
      last = power;
    }
    last = 0;
    for (double alpha = 0.01; alpha < 1; alpha += 0.01) {
      const double power = PowerbymlrwES(40, 5, 3, 0.1, random, 1, alpha);
      EXPECT_GT(power, last);
      last = power;
    }
  }
}

// Random predictors spread the noncentrality, which costs power in the usual region.
TEST(Powerbymlr, OfRandomPredictorsStaysBelowThatOfFixedOnes) {
  for (double n = 20; n < 200; n += 15) {
    EXPECT_LT(PowerbymlrwES(n, 4, 4, 0.2, withRandom, 1, 0.05), PowerbymlrwES(n, 4, 4, 0.2, withFixed, 1, 0.05));
  }
}

TEST(Powerbymlr, RejectsWhatHasNoTest) {
  for (const int random : {withFixed, withRandom}) {
    EXPECT_GT(Powerbymlr(5, 3, 3, 0.5, 0, random, 1, 0.05), 0.05);
    EXPECT_EQ(Powerbymlr(std::nextafter(5.0, 0), 3, 3, 0.5, 0, random, 1, 0.05), -1);
    EXPECT_GT(Powerbymlr(4, 3, 3, 0.5, 0, random, 0, 0.05), 0.05);
    EXPECT_EQ(Powerbymlr(3, 3, 3, 0.5, 0, random, 0, 0.05), -1);
    EXPECT_EQ(Powerbymlr(50, 0.5, 0.5, 0.5, 0, random, 1, 0.05), -1);
    EXPECT_EQ(Powerbymlr(50, 3, 0.5, 0.5, 0, random, 1, 0.05), -1);
    EXPECT_EQ(Powerbymlr(50, 3, 4, 0.5, 0, random, 1, 0.05), -1);
    EXPECT_EQ(Powerbymlr(50, 3, 3, 1, 0, random, 1, 0.05), -1);
    EXPECT_EQ(Powerbymlr(50, 3, 3, -1, 0, random, 1, 0.05), -1);
    EXPECT_EQ(Powerbymlr(50, 3, 3, 1, 0.2, random, 1, 0.05), -1);
    EXPECT_EQ(Powerbymlr(50, 3, 3, 0.2, 0.3, random, 1, 0.05), -1);
    EXPECT_EQ(Powerbymlr(50, 3, 3, 0.2, -0.3, random, 1, 0.05), -1);
    EXPECT_EQ(Powerbymlr(50, 3, 3, 0.2, 1.3, random, 1, 0.05), -1);
    for (const double alpha : {0.0, 1.0, -0.1, 1.1}) {
      EXPECT_EQ(Powerbymlr(50, 3, 3, 0.5, 0, random, 1, alpha), -1);
      EXPECT_EQ(PowerbymlrwES(50, 3, 3, 0.5, random, 1, alpha), -1);
    }
  }
}

TEST(Powerbymlr, GivesNaNForNaN) {
  for (const int random : {withFixed, withRandom}) {
    EXPECT_TRUE(std::isnan(Powerbymlr(quietNaN, 3, 3, 0.5, 0, random, 1, 0.05)));
    EXPECT_TRUE(std::isnan(Powerbymlr(50, quietNaN, 3, 0.5, 0, random, 1, 0.05)));
    EXPECT_TRUE(std::isnan(Powerbymlr(50, 3, 3, quietNaN, 0, random, 1, 0.05)));
    EXPECT_TRUE(std::isnan(Powerbymlr(50, 3, 3, 0.5, quietNaN, random, 1, 0.05)));
    EXPECT_TRUE(std::isnan(PowerbymlrwES(50, 3, 3, quietNaN, random, 1, 0.05)));
    EXPECT_TRUE(std::isnan(PowerbymlrwES(50, 3, 3, 0.1, random, 1, quietNaN)));
    EXPECT_TRUE(std::isnan(PowerbymlrwES(quietNaN, 3, 3, 1e300, random, 1, 0.05)));
  }
}

TEST(PowerbymlrwES, AnswersForEveryEffect) {
  EXPECT_EQ(PowerbymlrwES(50, 3, 3, -0.1, withFixed, 1, 0.05), 1);
  for (const double effect : {-0.1, -1.0, -2.0, -1e300, -infinite})
    EXPECT_TRUE(std::isnan(PowerbymlrwES(50, 3, 3, effect, withRandom, 1, 0.05))) << effect;
  for (const int random : {withFixed, withRandom}) {
    EXPECT_EQ(PowerbymlrwES(50, 3, 3, 1e300, random, 1, 0.05), 1);
    EXPECT_EQ(PowerbymlrwES(50, 3, 3, infinite, random, 1, 0.05), 1);
  }
}

TEST(Powerbymlr, CountsEveryOtherByteAsOneIntercept) {
  for (const int flag : {2, 7, 255}) {
    EXPECT_EQ(PowerbymlrwES(50, 3, 3, 0.1, withFixed, static_cast<std::uint8_t>(flag), 0.05),
              PowerbymlrwES(50, 3, 3, 0.1, withFixed, 1, 0.05));
  }
}

TEST(PowerReversebymlr, GivesTheSizeThatReachesTheTarget) {
  for (const int random : {withFixed, withRandom}) {
    for (const double f2 : {1e-8, 1e-3, 0.02, 0.15, 0.35}) {
      for (const double target : {0.2, 0.8, 0.99}) {
        const double size = PowerReversebymlrwES(target, 6, 2, f2, random, 1, 0.05);
        EXPECT_LE(PowerbymlrwES(size, 6, 2, f2, random, 1, 0.05), target);
        EXPECT_GT(PowerbymlrwES(size * (1 + 1e-12) + 1e-8, 6, 2, f2, random, 1, 0.05), target - 1e-13);
      }
    }
    EXPECT_EQ(PowerReversebymlr(0.8, 6, 6, std::sqrt(0.1), 0, random, 1, 0.05),
              PowerReversebymlr(0.8, 6, 6, -std::sqrt(0.1), 0, random, 1, 0.05));
  }
}

TEST(PowerReversebymlr, StartsAtOneErrorDegreeOfFreedom) {
  EXPECT_EQ(PowerReversebymlrwES(0.01, 6, 2, 0.1, withRandom, 1, 0.05), 8);
  EXPECT_EQ(PowerReversebymlrwES(0.01, 6, 2, 0.1, withRandom, 0, 0.05), 7);
}

// At a level so small that the critical value is near 1e26, each power once took half a second.
TEST(PowerReversebymlr, FindsSizesAtTinyLevels) {
  const double size = PowerReversebymlrwES(0.8, 12079, 1215, 41732, withRandom, 1, 1e-13);
  EXPECT_NEAR(PowerbymlrwES(size, 12079, 1215, 41732, withRandom, 1, 1e-13), 0.8, 1e-6);
  EXPECT_LT(size, 12090);
  EXPECT_EQ(PowerReversebymlrwES(quietNaN, 12079, 1215, 41732, withRandom, 1, 1e-13), 12081);
}

// Searches that double the size up to half the largest double before they find it, or find that there is none.
TEST(PowerReversebymlr, WalksToTheLargestSizes) {
  for (const int random : {withFixed, withRandom}) {
    EXPECT_TRUE(KelMV::IsMissing(PowerReversebymlrwES(0.8, 5, 5, 0, random, 1, 0.05)));
    EXPECT_TRUE(KelMV::IsMissing(PowerReversebymlrwES(1.5, 5, 5, 0.1, random, 1, 0.05)));
    EXPECT_TRUE(KelMV::IsMissing(PowerReversebymlr(0.8, 5, 5, 1.5, 0, random, 1, 0.05)));
    // The noncentrality of chi-squared on 5 degrees of freedom for a power of 0.8 is 12.83 (Cohen 1988, Table 9.4.2).
    EXPECT_NEAR(PowerReversebymlrwES(0.8, 5, 5, 1e-300, random, 1, 0.05) / 1e300, 12.83, 0.005);
  }
}

}  // namespace
}  // namespace kelpower
