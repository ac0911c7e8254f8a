#include "ranks/ordinal.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "ranks/mann_whitney.h"

namespace kelpower::ranks {
namespace {

using Probabilities = std::vector<double>;
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr OrdinalMethod methods[] = {OrdinalMethod::LogOdds, OrdinalMethod::ProportionalOdds,
                                     OrdinalMethod::Probability};

const Probabilities five{0.1, 0.2, 0.4, 0.2, 0.1};
const Probabilities better{0.05, 0.1, 0.35, 0.3, 0.2};

OrderedGroups Given(const Probabilities& first, const Probabilities& second) {
  return {first.data(), second.data(), 0, first.size()};
}

OrderedGroups ByOdds(const Probabilities& first, double oddsRatio) {
  return {first.data(), nullptr, oddsRatio, first.size()};
}

double PowerOf(OrdinalMethod method, const OrderedGroups& groups, double n1, double n2) {
  return Power({method, Sides::Two, 0.05}, groups, n1, n2).ValueOr(-1);
}

TEST(Ordinal, WithoutAnEffectRejectsAtItsLevel) {
  for (OrdinalMethod method : methods) {
    EXPECT_NEAR(PowerOf(method, ByOdds(five, 1), 40, 60), 0.05, 1e-15);
    if (method != OrdinalMethod::ProportionalOdds) {
      EXPECT_NEAR(PowerOf(method, Given(five, five), 40, 60), 0.05, 1e-15);
    }
  }
}

TEST(Ordinal, TakesProbabilitiesOnAnyScale) {
  const Probabilities counts{10, 20, 40, 20, 10};
  for (OrdinalMethod method : methods) {
    EXPECT_NEAR(PowerOf(method, ByOdds(five, 2), 40, 40), PowerOf(method, ByOdds(counts, 2), 40, 40), 1e-14);
  }
  EXPECT_NEAR(PowerOf(OrdinalMethod::LogOdds, Given(counts, better), 40, 40),
              PowerOf(OrdinalMethod::LogOdds, Given(five, better), 40, 40), 1e-14);
}

TEST(Ordinal, DoesNotMindCategoriesThatDoNotOccur) {
  const Probabilities first{0, 0.1, 0.2, 0, 0.4, 0.2, 0.1};
  const Probabilities second{0, 0.05, 0.1, 0, 0.35, 0.3, 0.2};
  EXPECT_NEAR(PowerOf(OrdinalMethod::LogOdds, Given(first, second), 40, 40),
              PowerOf(OrdinalMethod::LogOdds, Given(five, better), 40, 40), 1e-14);
}

TEST(Ordinal, IsTheSameWithGroupsOrOrderTurnedRound) {
  const Probabilities fiveTurned(five.rbegin(), five.rend());
  const Probabilities betterTurned(better.rbegin(), better.rend());
  for (OrdinalMethod method : {OrdinalMethod::LogOdds, OrdinalMethod::Probability}) {
    const double power = PowerOf(method, Given(five, better), 30, 50);
    EXPECT_NEAR(PowerOf(method, Given(better, five), 50, 30), power, 1e-14);
    EXPECT_NEAR(PowerOf(method, Given(fiveTurned, betterTurned), 30, 50), power, 1e-14);
  }
  EXPECT_NEAR(PowerOf(OrdinalMethod::ProportionalOdds, ByOdds(five, 3), 30, 30),
              PowerOf(OrdinalMethod::ProportionalOdds, ByOdds(five, 1 / 3.0), 30, 30), 1e-14);
}

// With two categories the odds ratio is that of two proportions.
TEST(Ordinal, OfTwoCategoriesComparesProportions) {
  const Probabilities first{0.7, 0.3};
  const Probabilities second{0.5, 0.5};
  const auto given = MomentsOf(Given(first, second), 0.5);
  const auto byOdds = MomentsOf(ByOdds(first, 7.0 / 3), 0.5);
  ASSERT_TRUE(given && byOdds);
  EXPECT_NEAR(given->excess, -0.1, 1e-15);  // half the difference of the proportions
  EXPECT_NEAR(byOdds->excess, -0.1, 1e-15);
  EXPECT_NEAR(given->firstVariance, 0.3 * 0.7 / 4, 1e-15);
  EXPECT_NEAR(given->secondVariance, 0.5 * 0.5 / 4, 1e-15);
  EXPECT_NEAR(given->mixtureVariance, 0.4 * 0.6 / 4, 1e-15);
  // The z test of two proportions, pooled: Fleiss, Levin and Paik (2003), formula 4.14 without continuity correction.
  const double z = (0.2 * std::sqrt(100.0) - 1.959963984540054 * std::sqrt(2 * 0.4 * 0.6)) / std::sqrt(0.21 + 0.25);
  EXPECT_NEAR(PowerOf(OrdinalMethod::Probability, Given(first, second), 100, 100), std::erfc(-z / std::sqrt(2.0)) / 2,
              1e-6);
}

// A thousand categories of a logistic variable, which an odds ratio shifts, are nearly values without ties.
TEST(Ordinal, OfManyCategoriesIsNearlyWithoutTies) {
  const Probabilities fine(1000, 0.001);
  const double shift = std::log(2.0) * std::sqrt(3.0) / std::acos(-1.0);  // in standard deviations
  const auto moments = MomentsOf(ByOdds(fine, 2), 0.5);
  ASSERT_TRUE(moments);
  EXPECT_NEAR(-moments->excess, Superiority(Parent::Logistic, shift) - 0.5, 1e-6);
  EXPECT_NEAR(moments->mixtureVariance, 1.0 / 12, 1e-6);
  const double both = Shifted(Parent::Logistic, shift).both;
  const double p = Superiority(Parent::Logistic, shift);
  EXPECT_NEAR(moments->firstVariance, both - p * p, 1e-6);
  EXPECT_NEAR(moments->secondVariance, both - p * p, 1e-6);
}

TEST(Ordinal, IsMorePowerfulWithMoreValues) {
  for (OrdinalMethod method : methods) {
    double last = 0;
    for (double n = 4; n < 300; ++n) {
      const double power = PowerOf(method, ByOdds(five, 2), n, 2 * n);
      EXPECT_GT(power, last) << n;
      last = power;
    }
  }
}

TEST(Ordinal, RefusesWhatIsNoDesign) {
  const Probabilities one{0, 1, 0};
  const Probabilities negative{0.5, -0.5, 1};
  const Probabilities none{0, 0, 0};
  const Probabilities low{0.5, 0.5, 0};
  const Probabilities high{0, 0, 1};
  EXPECT_FALSE(MomentsOf(Given(one, one), 0.5));
  EXPECT_FALSE(MomentsOf(ByOdds(one, 2), 0.5));
  EXPECT_FALSE(MomentsOf(Given(negative, one), 0.5));
  EXPECT_FALSE(MomentsOf(Given(one, none), 0.5));
  EXPECT_FALSE(MomentsOf(ByOdds(low, 0), 0.5));
  EXPECT_EQ(PowerOf(OrdinalMethod::LogOdds, Given(low, high), 20, 20), -1);
  EXPECT_NEAR(PowerOf(OrdinalMethod::Probability, Given(low, high), 20, 20), 1, 1e-15);
  EXPECT_EQ(PowerOf(OrdinalMethod::ProportionalOdds, Given(five, better), 20, 20), -1);
  EXPECT_EQ(PowerOf(OrdinalMethod::LogOdds, Given(five, better), 3, 3), -1);
}

TEST(Ordinal, IsAProbabilityOrRefused) {
  const double odd[] = {std::nan(""), -infinity, infinity, -1, 0, 5e-324, 1e-300, 0.05, 1, 20, 1e300};
  for (double a : odd) {
    for (double b : odd) {
      for (double c : odd) {
        const Probabilities list{a, b, 0.5};
        for (OrdinalMethod method : methods) {
          for (const Answer& power : {Power({method, Sides::Two, c}, ByOdds(five, a), b, 20),
                                      Power({method, Sides::One, 0.05}, Given(list, five), c, 20),
                                      Power({method, Sides::One, 0.05}, ByOdds(list, c), 20, 20)}) {
            if (!power || std::isnan(*power)) continue;
            EXPECT_GE(*power, 0);
            EXPECT_LE(*power, 1 + 1e-15);
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace kelpower::ranks
