#include "chi_square/effect.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kelpower::chi_square {
namespace {

using Numbers = std::vector<double>;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

double Fit(const Numbers& null, const Numbers& expected, Statistic statistic = Statistic::Pearson) {
  return *EffectOfFit(null, expected, statistic);
}

double Table(const Numbers& table, double rows, Statistic statistic = Statistic::Pearson) {
  return *EffectOfTable(table, rows, statistic);
}

TEST(ChiSquareEffect, IsTheOneOfCohensFormula) {
  EXPECT_NEAR(Fit({0.25, 0.25, 0.25, 0.25}, {0.375, 0.625 / 3, 0.625 / 3, 0.625 / 3}), 0.083333333333333333, 1e-16);
  EXPECT_NEAR(Table({0.05, 0.35, 0.10, 0.075, 0.25, 0.175}, 2), 0.0421212121212121212, 1e-16);
}

TEST(ChiSquareEffect, IsNoneWhereProportionsAreThoseOfTheNullHypothesis) {
  for (const Statistic statistic : {Statistic::Pearson, Statistic::LikelihoodRatio}) {
    EXPECT_NEAR(Fit({9, 3, 3, 1}, {90, 30, 30, 10}, statistic), 0, 1e-30);
    EXPECT_NEAR(Table({1, 2, 3, 2, 4, 6}, 2, statistic), 0, 1e-30);
  }
}

TEST(ChiSquareEffect, DoesNotDependOnTheScale) {
  EXPECT_NEAR(Fit({1, 1, 1}, {5, 3, 2}), Fit({0.5, 0.5, 0.5}, {0.5, 0.3, 0.2}), 1e-16);
  EXPECT_NEAR(Table({1e300, 2e300, 3e300, 1e300}, 2), Table({1, 2, 3, 1}, 2), 1e-16);
  EXPECT_NEAR(Table({1e-300, 2e-300, 3e-300, 1e-300}, 2), Table({1, 2, 3, 1}, 2), 1e-16);
}

TEST(ChiSquareEffect, OfATransposedTableIsTheSame) {
  const Numbers table{5, 2, 7, 1, 4, 3};
  const Numbers transposed{5, 1, 2, 4, 7, 3};
  for (const Statistic statistic : {Statistic::Pearson, Statistic::LikelihoodRatio})
    EXPECT_NEAR(Table(table, 2, statistic), Table(transposed, 3, statistic), 1e-16);
}

// In a table of two by two w is |phi|.
TEST(ChiSquareEffect, IsPhiSquaredOfTwoByTwo) {
  const double phi = (0.3 * 0.25 - 0.2 * 0.25) / std::sqrt(0.5 * 0.5 * 0.55 * 0.45);
  EXPECT_NEAR(Table({0.3, 0.2, 0.25, 0.25}, 2), phi * phi, 1e-16);
}

TEST(ChiSquareEffect, OfBothStatisticsIsTheSameForSmallEffectsOnly) {
  const double small = 1e-5;
  const Numbers near{0.25 + small, 0.25 - small, 0.25, 0.25};
  const Numbers equal{1, 1, 1, 1};
  EXPECT_NEAR(Fit(equal, near, Statistic::LikelihoodRatio) / Fit(equal, near), 1, 1e-9);
  EXPECT_NEAR(Fit({1, 1}, {1, 0}, Statistic::LikelihoodRatio), 2 * std::log(2.0), 1e-15);
  EXPECT_NEAR(Fit({1, 1}, {1, 0}), 1, 1e-15);
}

// Where the series of a term meets its closed form.
TEST(ChiSquareEffect, OfTheLikelihoodRatioIsContinuous) {
  for (const double d : {0.1, -0.1}) {
    const double p = 0.5 * (1 + d);
    const double direct = 2 * (p * std::log1p(d) + (1 - p) * std::log1p(-d));
    EXPECT_NEAR(Fit({1, 1}, {p, 1 - p}, Statistic::LikelihoodRatio), direct, 1e-16);
    const double beyond = 0.5 * (1 + d * (1 + 1e-12));
    EXPECT_NEAR(Fit({1, 1}, {beyond, 1 - beyond}, Statistic::LikelihoodRatio), direct, 1e-13);
  }
}

TEST(ChiSquareEffect, OfProfilesIsThatOfTheirTable) {
  const Numbers table = TableOfProfiles({0.3, 0.7, 0.2, 0.8}, 2, {1, 3});
  EXPECT_NEAR(Table(table, 2), Table({0.075, 0.175, 0.15, 0.6}, 2), 1e-16);
  EXPECT_NEAR(Table(TableOfProfiles({3, 7, 2, 8}, 2), 2), Table({3, 7, 2, 8}, 2), 1e-16);
}

TEST(ChiSquareEffect, IsRefusedOfWhatIsNoTable) {
  EXPECT_FALSE(EffectOfFit({1, 1}, {1, 1, 1}, Statistic::Pearson));
  EXPECT_FALSE(EffectOfFit({1}, {1}, Statistic::Pearson));
  EXPECT_FALSE(EffectOfFit({}, {}, Statistic::Pearson));
  EXPECT_FALSE(EffectOfFit({1, 0}, {1, 1}, Statistic::Pearson));
  EXPECT_FALSE(EffectOfFit({1, 1}, {0, 0}, Statistic::Pearson));
  for (const double bad : {nan, infinity, -1.0}) {
    EXPECT_FALSE(EffectOfFit({1, 1}, {1, bad}, Statistic::Pearson)) << bad;
    EXPECT_FALSE(EffectOfFit({1, bad}, {1, 1}, Statistic::Pearson)) << bad;
    EXPECT_FALSE(EffectOfTable({1, 2, bad, 3}, 2, Statistic::Pearson)) << bad;
    EXPECT_FALSE(EffectOfTable({1, 2, 3, 4}, bad, Statistic::Pearson)) << bad;
    EXPECT_TRUE(TableOfProfiles({1, 2, bad, 3}, 2).empty()) << bad;
    EXPECT_TRUE(TableOfProfiles({1, 2, 2, 3}, 2, {1, bad}).empty()) << bad;
  }
  EXPECT_FALSE(EffectOfTable({}, 2, Statistic::Pearson));
  EXPECT_FALSE(EffectOfTable({1, 2, 3}, 2, Statistic::Pearson));
  EXPECT_FALSE(EffectOfTable({1, 2, 3, 4}, 1, Statistic::Pearson));
  EXPECT_FALSE(EffectOfTable({1, 2, 3, 4}, 4, Statistic::Pearson));
  EXPECT_FALSE(EffectOfTable({1, 2, 3, 4}, 1.5, Statistic::Pearson));
  EXPECT_FALSE(EffectOfTable({1, 0, 3, 0}, 2, Statistic::Pearson));
  EXPECT_FALSE(EffectOfTable({0, 0, 3, 1}, 2, Statistic::Pearson));
  EXPECT_FALSE(EffectOfTable({0, 0, 0, 0}, 2, Statistic::Pearson));
  EXPECT_TRUE(TableOfProfiles({1, 2, 0, 0}, 2).empty());
  EXPECT_TRUE(TableOfProfiles({1, 2, 3, 4}, 2, {1}).empty());
  EXPECT_TRUE(TableOfProfiles({1, 2, 3, 4}, 2, {1, 0}).empty());
}

TEST(CramersV, IsWOverItsLargest) {
  EXPECT_EQ(CramersV(0.3, 2, 5), 0.3);
  EXPECT_EQ(CramersV(1, 5, 9), 0.5);
  EXPECT_EQ(WOfCramersV(0.5, 5, 9), 1);
  EXPECT_EQ(TableDf(3, 4), 6);
  EXPECT_NEAR(CramersV(std::sqrt(Table({1, 0, 0, 0, 1, 0, 0, 0, 1}, 3)), 3, 3), 1, 1e-15);
}

}  // namespace
}  // namespace kelpower::chi_square
