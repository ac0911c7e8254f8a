#include "ranks/signed_rank.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kelpower::ranks {
namespace {

constexpr Parent parents[] = {Parent::Normal, Parent::Logistic, Parent::Laplace, Parent::Uniform, Parent::Minimum};
constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(SignedRank, WithoutAnEffectRejectsAtItsLevel) {
  for (double alpha : {0.001, 0.05, 0.3}) {
    EXPECT_NEAR(*PowerByNoether({Sides::Two, alpha}, 0.5, 40), alpha, 1e-15);
    EXPECT_NEAR(*PowerByEfficiency({Sides::Two, alpha}, Parent::Normal, 0, 40), alpha, 1e-13);
    for (Parent parent : parents) {
      EXPECT_NEAR(*PowerByMoments({Sides::Two, alpha}, parent, 0, 40), alpha, 1e-14);
      EXPECT_NEAR(*PowerByMoments({Sides::One, alpha}, parent, 0, 40), alpha, 1e-14);
    }
  }
}

TEST(SignedRank, OfUniformValuesIsAsEfficientAsTheTTest) {
  const TTest test = TTest::TwoSided(0.05, 29);
  EXPECT_EQ(*PowerByEfficiency({Sides::Two, 0.05}, Parent::Uniform, 0.5, 30), test.PowerBothTails(0.5 * std::sqrt(30)));
}

TEST(SignedRank, LooksWhereTheEffectLies) {
  const SignedRankTest test{Sides::One, 0.05};
  for (Parent parent : parents) {
    EXPECT_EQ(*PowerByEfficiency(test, parent, -0.5, 20), *PowerByEfficiency(test, parent, 0.5, 20));
    EXPECT_EQ(*PowerByMoments(test, parent, -0.5, 20), *PowerByMoments(test, parent, 0.5, 20));
    EXPECT_NEAR(PositiveAverage(parent, 0.5) + PositiveAverage(parent, -0.5), 1, 1e-15);
  }
  EXPECT_NEAR(*PowerByNoether(test, 0.3, 20), *PowerByNoether(test, 0.7, 20), 1e-15);
}

// The average of two normal values with mean d has the standard deviation 1 / sqrt 2.
TEST(SignedRank, KnowsTheAverageOfNormalValues) {
  EXPECT_NEAR(PositiveAverage(Parent::Normal, 0.4), std::erfc(-0.4) / 2, 1e-15);
}

TEST(SignedRank, IsMorePowerfulWithALargerEffect) {
  for (Parent parent : parents) {
    for (double alpha : {0.001, 0.05, 0.5}) {
      for (double n : {6.0, 12.0, 40.0}) {
        for (Sides sides : {Sides::One, Sides::Two}) {
          double last = 0;
          for (double shift = 0; shift < 6; shift += 0.02) {
            const Answer power = PowerByMoments({sides, alpha}, parent, shift, n);
            if (!power) break;
            EXPECT_GE(*power, last - 1e-14) << shift << ' ' << n << ' ' << alpha;
            last = *power;
          }
        }
      }
    }
  }
}

TEST(SignedRank, IsMorePowerfulWithMoreValues) {
  for (Parent parent : parents) {
    double last = 0;
    for (double n = 6; n < 200; ++n) {
      const double power = *PowerByMoments({Sides::Two, 0.05}, parent, 0.4, n);
      EXPECT_GT(power, last) << n;
      last = power;
    }
  }
}

// Five signs are all the same in one of 32 cases, or of either sign in one of 16.
TEST(SignedRank, IsRefusedWhereNoSignsReject) {
  EXPECT_FALSE(PowerByNoether({Sides::Two, 0.0624}, 0.9, 5));
  EXPECT_TRUE(PowerByNoether({Sides::Two, 0.0625}, 0.9, 5));
  EXPECT_TRUE(PowerByNoether({Sides::One, 0.03125}, 0.9, 5));
  EXPECT_FALSE(PowerByEfficiency({Sides::Two, 0.05}, Parent::Normal, 9, 5));
  EXPECT_TRUE(PowerByEfficiency({Sides::Two, 0.05}, Parent::Normal, 9, 6));
  // Eleven signs reject at 0.001 by their 2048 cases, but not by the normal approximation.
  EXPECT_TRUE(PowerByNoether({Sides::Two, 0.001}, 0.9, 11));
  EXPECT_FALSE(PowerByMoments({Sides::Two, 0.001}, Parent::Normal, 9, 11));
}

TEST(SignedRank, IsAProbabilityOrRefused) {
  const double odd[] = {std::nan(""), -infinity, infinity, -1e308, -1,  -0.0,  0,
                        5e-324,       1e-300,    0.5,      1,      2.5, 1e300, 1e308};
  for (double a : odd) {
    for (double b : odd) {
      for (double c : odd) {
        for (Parent parent : parents) {
          for (const SignedRankTest& test : {SignedRankTest{Sides::One, c}, SignedRankTest{Sides::Two, c}}) {
            for (const Answer& power : {PowerByMoments(test, parent, a, b), PowerByEfficiency(test, parent, a, b),
                                        std::fabs(a) <= 1 ? PowerByNoether(test, a, b) : NoValue::Refused}) {
              if (!power || std::isnan(*power)) continue;
              EXPECT_GE(*power, 0);
              EXPECT_LE(*power, 1 + 1e-15);
            }
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace kelpower::ranks
