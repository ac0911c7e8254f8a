#include "anova/factorial.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "anova/one_effect.h"
#include "anova/overall.h"
#include "anova/quadratic_form.h"

namespace kelpower::anova {
namespace {

using Numbers = std::vector<double>;

double Noncentrality(const Numbers& levels, const Numbers& term, const Numbers& means, const Numbers& sizes,
                     double sd = 1) {
  return *FactorialTerm::Of(levels, term)->Noncentrality(means, sizes, sd);
}

/// Numbers without a pattern that a term could hide in.
Numbers Means(int cells) {
  Numbers means;
  for (int i = 0; i < cells; ++i) means.push_back(100 + (7 * i * i + 3 * i) % 11);
  return means;
}

Numbers Sizes(int cells) {
  Numbers sizes;
  for (int i = 0; i < cells; ++i) sizes.push_back(2 + (5 * i) % 7);
  return sizes;
}

TEST(Factorial, OneFactorIsTheOneWayTest) {
  for (int cells : {2, 3, 7}) {
    const double oneWay = GroupSpread::Of(Means(cells), Sizes(cells)).Noncentrality(3, Sum(Sizes(cells)));
    const double found = Noncentrality({double(cells)}, {1}, Means(cells), Sizes(cells), 3);
    EXPECT_NEAR(found, oneWay, 1e-12 * oneWay) << cells;
    EXPECT_EQ(FactorialTerm::Of({double(cells)}, {1})->Df(), cells - 1);
  }
}

TEST(Factorial, TermsOfEqualCellsShareTheSumOfSquares) {
  const Numbers levels{3, 4, 2};
  const Numbers sizes(24, 5);
  double sum = 0;
  double df = 0;
  for (const Numbers& term : {Numbers{1}, {2}, {3}, {1, 2}, {1, 3}, {2, 3}, {1, 2, 3}}) {
    sum += Noncentrality(levels, term, Means(24), sizes);
    df += FactorialTerm::Of(levels, term)->Df();
  }
  const double all = GroupSpread::Of(Means(24), sizes).Noncentrality(1, 120);
  EXPECT_NEAR(sum, all, 1e-12 * all);
  EXPECT_EQ(df, 23);
}

TEST(Factorial, NearlyEqualCellsTakeTheWayOfUnequalOnesToTheSame) {
  const Numbers levels{3, 4, 3};
  for (const Numbers& term : {Numbers{1}, {1, 3}, {1, 2, 3}}) {
    Numbers sizes(36, 5);
    const double equal = Noncentrality(levels, term, Means(36), sizes);
    sizes[7] *= 1 + 1e-12;
    const double nearly = Noncentrality(levels, term, Means(36), sizes);
    EXPECT_NEAR(nearly, equal, 1e-10 * equal);
  }
}

TEST(Factorial, TwoLevelsAreAContrast) {
  const Numbers means{10, 12, 11, 15};
  const Numbers sizes{4, 7, 9, 3};
  const double interaction = 10 - 12 - 11 + 15;
  const double variance = 1. / 4 + 1. / 7 + 1. / 9 + 1. / 3;
  const double expected = interaction * interaction / variance / 4;
  EXPECT_NEAR(Noncentrality({2, 2}, {1, 2}, means, sizes, 2), expected, 1e-14);
  const double first = (10 + 12 - 11 - 15) / 2.0;
  EXPECT_NEAR(Noncentrality({2, 2}, {1}, means, sizes), first * first / (variance / 4), 1e-13);
}

TEST(Factorial, OrderOfTheTermAndOfTheFactorsDoesNotCount) {
  const double found = Noncentrality({3, 2}, {1, 2}, {1, 2, 5, 3, 9, 4}, {2, 3, 4, 5, 6, 7});
  EXPECT_EQ(found, Noncentrality({3, 2}, {2, 1}, {1, 2, 5, 3, 9, 4}, {2, 3, 4, 5, 6, 7}));
  EXPECT_NEAR(found, Noncentrality({2, 3}, {1, 2}, {1, 5, 9, 2, 3, 4}, {2, 4, 6, 3, 5, 7}), 1e-13 * found);
}

TEST(Factorial, AdditiveMeansHaveNoInteraction) {
  const Numbers additive{0.1, 0.2, 0.4, 0.3, 0.4, 0.6, 0.7, 0.8, 1.0};
  EXPECT_EQ(Noncentrality({3, 3}, {1, 2}, additive, Sizes(9)), 0);
  EXPECT_GT(Noncentrality({3, 3}, {1}, additive, Sizes(9)), 0);
  EXPECT_EQ(Noncentrality({3, 3}, {1, 2}, Numbers(9, 1e300), Sizes(9)), 0);
}

TEST(Factorial, LargeAndSmallMeansKeepTheirDifferences) {
  const Numbers means{1, 2, 5, 3, 9, 4};
  const double one = Noncentrality({2, 3}, {1, 2}, means, Sizes(6));
  for (double scale : {1e200, 1e-200, 1e-300}) {
    Numbers scaled = means;
    for (double& mean : scaled) mean *= scale;
    EXPECT_NEAR(Noncentrality({2, 3}, {1, 2}, scaled, Sizes(6), scale), one, 1e-13 * one) << scale;
  }
  Numbers moved = means;
  for (double& mean : moved) mean += 1048576;
  EXPECT_EQ(Noncentrality({2, 3}, {1, 2}, moved, Sizes(6)), one);
}

TEST(Factorial, IsNoTermOfWhatIsNoDesign) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  for (const Numbers& levels :
       {Numbers{1, 3}, {2.5, 2}, {0}, {-2, 3}, {nan, 2}, {infinity}, {40, 40}, {1e300, 1e300}, {}}) {
    EXPECT_FALSE(FactorialTerm::Of(levels, {1}));
  }
  for (const Numbers& term : {Numbers{}, {0}, {3}, {1, 1}, {1.5}, {nan}, {infinity}, {-1}, {1, 2, 3}}) {
    EXPECT_FALSE(FactorialTerm::Of({2, 3}, term));
  }
  EXPECT_TRUE(FactorialTerm::Of({10, 100}, {1, 2}));
}

TEST(Factorial, IsRefusedForNumbersThatDoNotFit) {
  const auto term = FactorialTerm::Of({3, 3}, {1, 2});
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_FALSE(term->Noncentrality(Means(8), Sizes(9), 1));
  EXPECT_FALSE(term->Noncentrality(Means(9), Sizes(8), 1));
  EXPECT_FALSE(term->Noncentrality(Means(9), Sizes(9), 0));
  EXPECT_FALSE(term->Noncentrality(Means(9), Sizes(9), -1));
  EXPECT_FALSE(term->Noncentrality(Means(9), Numbers(9, 0), 1));
  for (double odd : {nan, infinity, -infinity}) {
    Numbers means = Means(9);
    means[4] = odd;
    EXPECT_FALSE(term->Noncentrality(means, Sizes(9), 1)) << odd;
  }
  Numbers apart(9, 1e308);
  apart[0] = -1e308;
  EXPECT_FALSE(term->Noncentrality(apart, Sizes(9), 1));
}

TEST(Factorial, AnswersForEveryMagnitude) {
  const auto term = FactorialTerm::Of({3, 3}, {1, 2});
  const double odd[] = {0, 1, 1e-320, 1e-200, 1e200, 1e308};
  for (double mean : odd) {
    for (double size : odd) {
      for (double sd : odd) {
        Numbers means = Means(9);
        means[3] = mean;
        Numbers sizes = Sizes(9);
        sizes[2] = size;
        const Answer found = term->Noncentrality(means, sizes, sd);
        const Answer power = EffectTest(4, 30, 0.05).Power(found.ValueOr(-1));
        EXPECT_TRUE(!power || (*power >= 0 && *power <= 1)) << mean << ' ' << size << ' ' << sd;
      }
    }
  }
}

TEST(EffectTest, IsRefusedWithoutFreedomLevelOrEffect) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(EffectTest(0, 10, 0.05).Power(3));
  EXPECT_FALSE(EffectTest(2, 0, 0.05).Power(3));
  EXPECT_FALSE(EffectTest(nan, 10, 0.05).Power(3));
  EXPECT_FALSE(EffectTest(2, 10, 0).Power(3));
  EXPECT_FALSE(EffectTest(2, 10, 1).Power(3));
  EXPECT_FALSE(EffectTest(2, 10, 0.05).Power(nan));
  EXPECT_FALSE(EffectTest(2, 10, 0.05).Power(-1));
  EXPECT_EQ(*EffectTest(2, 10, 0.05).Power(std::numeric_limits<double>::infinity()), 1);
}

TEST(EffectTest, HasTheLevelWithoutAnEffectAndRisesWithIt) {
  const EffectTest test(3, 20, 0.05);
  EXPECT_NEAR(*test.Power(0), 0.05, 1e-14);
  double before = 0;
  for (double noncentrality = 0; noncentrality < 60; noncentrality += 0.5) {
    const double power = *test.Power(noncentrality);
    EXPECT_GT(power, before);
    EXPECT_NEAR(*EffectTest(3, 20, 0.05).PowerOfMany(noncentrality), power, 1e-12);
    before = power;
  }
}

TEST(QuadraticForm, IsThatOfTheInverse) {
  EXPECT_NEAR(InverseQuadraticForm({4, 2, 2, 3}, {1, 2}), (3 * 1 - 2 * 2 * 2 + 4 * 4) / 8.0, 1e-15);
  EXPECT_TRUE(std::isnan(InverseQuadraticForm({1, 2, 2, 1}, {1, 2})));
  EXPECT_TRUE(std::isnan(InverseQuadraticForm({1, 2, 2}, {1, 2})));
  EXPECT_EQ(InverseQuadraticForm({}, {}), 0);
}

}  // namespace
}  // namespace kelpower::anova
