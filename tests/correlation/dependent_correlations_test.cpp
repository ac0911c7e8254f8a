#include "correlation/dependent_correlations.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "correlation/two_correlations.h"

namespace kelpower::correlation {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
const Level twoSided(0.05, false);
const Level oneSided(0.05, true);
const SharedVariable shared{0.4, 0.2, 0.5};
const SeparatePairs separate{0.1, 0.2, 0.5, 0.4, -0.4, 0.8};

// Two groups of the same size are pairs of variables that have nothing to do with each other.
TEST(DependentCorrelations, OfUnrelatedPairsAreIndependent) {
  const SeparatePairs unrelated{0.5, 0.3, 0, 0, 0, 0};
  for (const NullCorrelations null : {NullCorrelations::First, NullCorrelations::Average, NullCorrelations::Expected}) {
    for (const Level& level : {twoSided, oneSided}) {
      EXPECT_NEAR(*Power(level, unrelated, null, 90), *PowerOfDifference(level, FisherDifference({0.5, 0.3}), {90, 90}),
                  1e-15);
    }
  }
}

// A variable in common is one that occurs twice: the matrix of four variables is singular, and the formula the same.
TEST(DependentCorrelations, WithAVariableInCommonAreThoseOfFourVariables) {
  for (const SharedVariable& c : {shared, SharedVariable{-0.3, 0.3, -0.6}, SharedVariable{0.8, 0.7, 0.9}}) {
    EXPECT_NEAR(CorrelationOfZ(c), CorrelationOfZ(SeparatePairs{c.r12, c.r13, 1, c.r13, c.r12, c.r23}), 1e-15);
  }
}

TEST(DependentCorrelations, AreComparedInEitherOrder) {
  EXPECT_NEAR(CorrelationOfZ(separate), CorrelationOfZ(SeparatePairs{0.2, 0.1, 0.5, -0.4, 0.4, 0.8}), 1e-15);
  const SharedVariable swapped{0.2, 0.4, 0.5};
  for (const NullCorrelations null : {NullCorrelations::Average, NullCorrelations::Expected}) {
    EXPECT_NEAR(*Power(twoSided, shared, null, 100), *Power(twoSided, swapped, null, 100), 1e-15);
  }
  EXPECT_NE(*Power(twoSided, shared, NullCorrelations::First, 100),
            *Power(twoSided, swapped, NullCorrelations::First, 100));
}

TEST(DependentCorrelations, HaveTheLevelWithoutADifference) {
  EXPECT_NEAR(*Power(twoSided, SharedVariable{0.3, 0.3, 0.5}, NullCorrelations::First, 40), 0.05, 1e-15);
  EXPECT_NEAR(*Power(twoSided, SeparatePairs{0.3, 0.3, 0.5, 0.2, 0.1, 0}, NullCorrelations::First, 40), 0.05, 1e-15);
}

TEST(DependentCorrelations, ArePositiveDefiniteWithinThePossible) {
  const auto [low, high] = PossibleSecond(shared);
  EXPECT_TRUE(IsPositiveDefinite(SharedVariable{0.4, low + 1e-9, 0.5}));
  EXPECT_FALSE(IsPositiveDefinite(SharedVariable{0.4, low - 1e-9, 0.5}));
  EXPECT_TRUE(IsPositiveDefinite(SharedVariable{0.4, high - 1e-9, 0.5}));
  EXPECT_FALSE(IsPositiveDefinite(SharedVariable{0.4, high + 1e-9, 0.5}));
  SeparatePairs pairs = separate;
  const auto [lowest, highest] = PossibleSecond(separate);
  for (const double inside : {lowest + 1e-9, highest - 1e-9}) {
    pairs.r34 = inside;
    EXPECT_TRUE(IsPositiveDefinite(pairs)) << inside;
  }
  for (const double outside : {lowest - 1e-9, highest + 1e-9}) {
    pairs.r34 = outside;
    EXPECT_FALSE(IsPositiveDefinite(pairs)) << outside;
  }
  EXPECT_TRUE(std::isnan(PossibleSecond(SeparatePairs{0.9, 0, 0.9, 0, -0.9, 0}).low));
}

TEST(DependentCorrelations, AreRefusedWhereThereIsNoTest) {
  constexpr NullCorrelations null = NullCorrelations::First;
  EXPECT_FALSE(Power(twoSided, shared, null, 3));
  EXPECT_FALSE(Power({1, false}, shared, null, 30));
  EXPECT_FALSE(Power(twoSided, SharedVariable{0.9, -0.9, 0.9}, null, 30));
  EXPECT_FALSE(Power(twoSided, SharedVariable{1, 0.5, 0.5}, null, 30));
  EXPECT_FALSE(Power(twoSided, SharedVariable{std::nan(""), 0.5, 0.5}, null, 30));
  EXPECT_FALSE(Power(twoSided, SharedVariable{infinite, 0.5, 0.5}, null, 30));
  // 0.9 and 0.3 go with 0.1, but 0.9 twice does not.
  EXPECT_FALSE(Power(twoSided, SharedVariable{0.9, 0.3, 0.1}, NullCorrelations::First, 30));
  EXPECT_TRUE(Power(twoSided, SharedVariable{0.9, 0.3, 0.1}, NullCorrelations::Expected, 30));
}

}  // namespace
}  // namespace kelpower::correlation
