#include "ranks/mann_whitney.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <limits>

namespace kelpower::ranks {
namespace {

constexpr Parent parents[] = {Parent::Normal, Parent::Logistic, Parent::Laplace, Parent::Uniform, Parent::Minimum};
constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(Parents, WithoutAShiftExceedAsOftenAsNot) {
  for (Parent parent : parents) {
    EXPECT_EQ(Shifted(parent, 0).excess, 0);
    EXPECT_NEAR(Shifted(parent, 0).both, 1.0 / 3, 1e-15);
    EXPECT_EQ(Probability(parent, 0), 0.5);
    EXPECT_EQ(Superiority(parent, 0), 0.5);
  }
}

TEST(Parents, FarApartDoNotOverlap) {
  for (Parent parent : parents) {
    for (double shift : {60.0, 1e10, 1e300, infinity}) {
      EXPECT_EQ(Shifted(parent, shift).excess, 0.5) << shift;
      EXPECT_EQ(Shifted(parent, shift).both, 1) << shift;
    }
    EXPECT_EQ(Probability(parent, 1e3), 1);
    EXPECT_NEAR(Probability(parent, -1e3), 0, 1e-300);
  }
}

TEST(Parents, AreSymmetric) {
  for (Parent parent : parents) {
    for (double x : {1e-9, 0.1, 0.5, 1.0, 1.7, 3.0}) {
      EXPECT_NEAR(Probability(parent, x) + Probability(parent, -x), 1, 1e-15);
      EXPECT_NEAR(Superiority(parent, x) + Superiority(parent, -x), 1, 1e-15);
    }
  }
}

// For small shifts P(X < Y) - 1/2 is the shift times the integral of the squared density.
TEST(Parents, HaveTheEfficiencyOfTheirDensities) {
  for (Parent parent : parents) {
    constexpr double shift = 1e-8;
    const double density = Shifted(parent, shift).excess / shift;
    EXPECT_NEAR(12 * density * density, RelativeEfficiency(parent), 1e-7);
  }
}

// The covariance of two comparisons with one value in common is positive, and at most the variance of one.
TEST(Parents, GiveVariancesThatCanBe) {
  for (Parent parent : parents) {
    for (double shift = 0; shift < 12; shift += 0.01) {
      const auto [excess, both] = Shifted(parent, shift);
      const double p = 0.5 + excess;
      EXPECT_GE(both - p * p, -1e-15) << shift;
      EXPECT_LE(both, p + 1e-15) << shift;
      EXPECT_LE(p, 1 + 1e-15) << shift;
    }
  }
}

// From a scale at which the closed forms of the logistic parent begin.
TEST(Parents, AreSmoothWhereFormulasMeet) {
  constexpr double meeting = 0.5513288954217921;  // sqrt 3 / pi
  const auto below = Shifted(Parent::Logistic, meeting * (1 - 1e-15));
  const auto above = Shifted(Parent::Logistic, meeting * (1 + 1e-15));
  EXPECT_NEAR(below.excess, above.excess, 2e-15);
  EXPECT_NEAR(below.both, above.both, 2e-15);
}

TEST(MannWhitney, WithoutAnEffectRejectsAtItsLevel) {
  for (double alpha : {0.001, 0.05, 0.3}) {
    EXPECT_NEAR(*PowerByNoether({Sides::Two, alpha}, 0.5, 40, 60), alpha, 1e-15);
    EXPECT_NEAR(*PowerByNoether({Sides::One, alpha}, 0.5, 40, 60), alpha, 1e-15);
    EXPECT_NEAR(*PowerByEfficiency({Sides::Two, alpha}, Parent::Normal, 0, 40, 60), alpha, 1e-13);
    EXPECT_LT(*PowerByMoments({Sides::Two, alpha}, Parent::Normal, 0, 40, 60), alpha);  // corrected for continuity
  }
}

// The uniform parent has the efficiency 1, so this is the t test.
TEST(MannWhitney, OfUniformValuesIsAsEfficientAsTheTTest) {
  const TTest test = TTest::TwoSided(0.05, 58);
  EXPECT_EQ(*PowerByEfficiency({Sides::Two, 0.05}, Parent::Uniform, 0.5, 30, 30),
            test.PowerBothTails(0.5 / std::sqrt(2.0 / 30)));
}

TEST(MannWhitney, LooksWhereTheEffectLies) {
  const TwoGroupTest test{Sides::One, 0.05};
  EXPECT_EQ(*PowerByEfficiency(test, Parent::Laplace, -0.5, 20, 30),
            *PowerByEfficiency(test, Parent::Laplace, 0.5, 20, 30));
  EXPECT_EQ(*PowerByMoments(test, Parent::Laplace, -0.5, 20, 30), *PowerByMoments(test, Parent::Laplace, 0.5, 20, 30));
  EXPECT_NEAR(*PowerByNoether(test, 0.3, 20, 30), *PowerByNoether(test, 0.7, 20, 30), 1e-15);
}

TEST(MannWhitney, DoesNotMindTheOrderOfTheGroups) {
  const TwoGroupTest test{Sides::Two, 0.05};
  for (Parent parent : parents) {
    EXPECT_NEAR(*PowerByMoments(test, parent, 0.6, 15, 40), *PowerByMoments(test, parent, 0.6, 40, 15), 1e-14);
    EXPECT_NEAR(*PowerByEfficiency(test, parent, 0.6, 15, 40), *PowerByEfficiency(test, parent, 0.6, 40, 15), 1e-13);
  }
}

TEST(MannWhitney, IsMorePowerfulWithALargerEffect) {
  for (Parent parent : parents) {
    for (double alpha : {0.001, 0.05, 0.5}) {
      for (double n : {4.0, 7.0, 30.0}) {
        for (Sides sides : {Sides::One, Sides::Two}) {
          double last = 0;
          for (double shift = 0; shift < 8; shift += 0.02) {
            const Answer power = PowerByMoments({sides, alpha}, parent, shift, n, n + 3);
            if (!power) break;
            EXPECT_GE(*power, last - 1e-14) << shift << ' ' << n << ' ' << alpha;
            last = *power;
          }
        }
      }
    }
  }
}

TEST(MannWhitney, IsMorePowerfulWithMoreValues) {
  for (Parent parent : parents) {
    double last = 0;
    for (double n = 4; n < 300; ++n) {
      const double power = *PowerByMoments({Sides::Two, 0.05}, parent, 0.4, n, 2 * n);
      EXPECT_GT(power, last) << n;
      last = power;
    }
  }
}

// Three in each of two groups are chosen in 20 ways: the smallest two-sided p-value is 0.1.
TEST(MannWhitney, IsRefusedWhereNoRanksReject) {
  EXPECT_FALSE(PowerByNoether({Sides::Two, 0.0999}, 0.9, 3, 3));
  EXPECT_TRUE(PowerByNoether({Sides::Two, 0.1}, 0.9, 3, 3));
  EXPECT_TRUE(PowerByNoether({Sides::One, 0.05}, 0.9, 3, 3));
  EXPECT_FALSE(PowerByEfficiency({Sides::Two, 0.05}, Parent::Normal, 9, 1, 38));
  EXPECT_TRUE(PowerByEfficiency({Sides::Two, 0.05}, Parent::Normal, 9, 1, 39));
  EXPECT_TRUE(CanRejectTwoGroups(Sides::Two, 5e-324, 2000, 2000));
  // Seven in each group reject at 0.001 by their 3432 choices, but not by the normal approximation.
  EXPECT_TRUE(PowerByNoether({Sides::Two, 0.001}, 0.9, 7, 7));
  EXPECT_FALSE(PowerByMoments({Sides::Two, 0.001}, Parent::Normal, 9, 7, 7));
}

TEST(MannWhitney, IsAProbabilityOrRefused) {
  const double odd[] = {std::nan(""), -infinity, infinity, -1e308, -1,  -0.0,  0,
                        5e-324,       1e-300,    0.5,      1,      2.5, 1e300, 1e308};
  const auto expectSane = [](const Answer& power) {
    if (power && !std::isnan(*power)) {
      EXPECT_GE(*power, 0);
      EXPECT_LE(*power, 1 + 1e-15);
    }
  };
  for (double a : odd) {
    for (double b : odd) {
      for (double c : odd) {
        for (Sides sides : {Sides::One, Sides::Two}) {
          for (const TwoGroupTest& test : {TwoGroupTest{sides, c}, TwoGroupTest{sides, 0.05}}) {
            for (Parent parent : parents) {
              expectSane(PowerByMoments(test, parent, a, b, c));
              expectSane(PowerByEfficiency(test, parent, a, b, c));
            }
            if (std::fabs(a) <= 1) expectSane(PowerByNoether(test, a, b, c));
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace kelpower::ranks
