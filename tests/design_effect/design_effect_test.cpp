#include "design_effect/design_effect.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <random>
#include <vector>

namespace kelpower::design_effect {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(DesignEffect, IsThatOfItsFormula) {
  EXPECT_DOUBLE_EQ(*DesignEffect({20, 0, 0.05}), 1.95);
  EXPECT_DOUBLE_EQ(*DesignEffect({20, 0.65, 0.05}), 2.3725);
  EXPECT_EQ(*DesignEffect({1, 0, 0.3}), 1);
  EXPECT_EQ(*DesignEffect({50, 0.7, 0}), 1);
  EXPECT_DOUBLE_EQ(*DesignEffect({10, 0, 1}), 10);
}

// Clusters of two sizes, 5 and 15: mean 10 and coefficient of variation 0.5. The variance of the mean of all members
// over that of as many independent ones is the design effect.
TEST(DesignEffect, IsTheInflationOfTheVarianceOfAMean) {
  constexpr double correlation = 0.1;
  constexpr int studies = 40000;
  std::mt19937_64 engine(7);
  std::normal_distribution<double> normal;
  double squares = 0;
  for (int i = 0; i < studies; ++i) {
    double sum = 0;
    for (const int size : {5, 15, 5, 15}) {
      sum += size * std::sqrt(correlation) * normal(engine);
      for (int member = 0; member < size; ++member) sum += std::sqrt(1 - correlation) * normal(engine);
    }
    squares += sum / 40 * (sum / 40);
  }
  const double inflation = squares / studies * 40;
  const double standardError = inflation * std::sqrt(2.0 / studies);
  EXPECT_NEAR(inflation, *DesignEffect({10, 0.5, correlation}), 4 * standardError);
}

TEST(DesignEffect, IsRefusedOutsideItsRanges) {
  EXPECT_EQ(DesignEffect({0.5, 0, 0.1}).Reason(), NoValue::Refused);
  EXPECT_EQ(DesignEffect({5, -0.1, 0.1}).Reason(), NoValue::Refused);
  EXPECT_EQ(DesignEffect({5, 0, -0.1}).Reason(), NoValue::Refused);
  EXPECT_EQ(DesignEffect({5, 0, 1.1}).Reason(), NoValue::Refused);
}

TEST(NumberToEnrol, IsNotOneMoreForARoundingError) {
  EXPECT_EQ(*NumberToEnrol(100, 0.2), 125);
  EXPECT_EQ(*NumberToEnrol(101, 0.2), 127);
  EXPECT_EQ(*NumberToEnrol(64, 0), 64);
  EXPECT_EQ(*NumberToEnrol(33.4, 0.1), 38);
  EXPECT_EQ(*NumberToEnrol(100.00000001, 0), 101);
  EXPECT_EQ(*NumberToEnrol(1e-20, 0.5), 1);
}

// In whole numbers: enrolled people times the kept hundredths are at least a hundred times the size.
TEST(NumberToEnrol, IsExactForEveryPercentage) {
  for (long size = 1; size <= 3000; ++size) {
    for (long percent = 0; percent < 100; ++percent) {
      const long kept = 100 - percent;
      const long enrolled = (100 * size + kept - 1) / kept;
      ASSERT_EQ(*NumberToEnrol(static_cast<double>(size), static_cast<double>(percent) / 100), enrolled)
          << size << ' ' << percent;
    }
  }
  EXPECT_EQ(*NumberToEnrol(2147483647, 0.5), 4294967294);
  EXPECT_EQ(*NumberToEnrol(1000001, 0.999), 1000001000);
}

TEST(NumberToEnrol, IsRefusedWithoutPeople) {
  EXPECT_EQ(NumberToEnrol(0, 0.2).Reason(), NoValue::Refused);
  EXPECT_EQ(NumberToEnrol(100, 1).Reason(), NoValue::Refused);
  EXPECT_EQ(NumberToEnrol(100, -0.1).Reason(), NoValue::Refused);
  EXPECT_TRUE(std::isnan(NumberToEnrol(100, std::nan("")).ValueOr(0)));
}

TEST(SizeInPopulation, IsCochransCorrection) {
  EXPECT_NEAR(*SizeInPopulation(400, 1000), 400 / (1 + 399.0 / 1000), 1e-12);
  EXPECT_NEAR(*SizeInPopulation(100.0 / 3, 50), 20.242914979757085, 1e-14);
  EXPECT_EQ(*SizeInPopulation(1, 17), 1);
  EXPECT_DOUBLE_EQ(*SizeInPopulation(384, kInfinity), 384);
  EXPECT_DOUBLE_EQ(*SizeInPopulation(kInfinity, 250), 250);
  EXPECT_DOUBLE_EQ(*SizeInPopulation(1e308, 1e308), 5e307);
  EXPECT_EQ(SizeInPopulation(0.5, 10).Reason(), NoValue::Refused);
  EXPECT_EQ(SizeInPopulation(10, 0).Reason(), NoValue::Refused);
}

// The variance of a mean of 20 of 50 without replacement, told as the size that has it in a sample from very many.
TEST(SizeInPopulation, IsAsPreciseAsTheSizeFromVeryMany) {
  constexpr int population = 50;
  constexpr int studies = 40000;
  std::vector<double> values(population);
  std::iota(values.begin(), values.end(), 1.0);
  const double mean = 25.5;
  const double variance = (population * population - 1) / 12.0;
  std::mt19937_64 engine(8);
  double squares = 0;
  for (int i = 0; i < studies; ++i) {
    double sum = 0;
    for (int k = 0; k < 20; ++k) {
      std::uniform_int_distribution<int> index(k, population - 1);
      std::swap(values[static_cast<std::size_t>(k)], values[static_cast<std::size_t>(index(engine))]);
      sum += values[static_cast<std::size_t>(k)];
    }
    squares += (sum / 20 - mean) * (sum / 20 - mean);
  }
  const double fromVeryMany = variance / (squares / studies);
  const double standardError = 20 * (1 - 20.0 / population) * std::sqrt(2.0 / studies);
  EXPECT_NEAR(*SizeInPopulation(fromVeryMany, population), 20, 4 * standardError);
}

TEST(LevelOfEach, IsThatOfBonferroniAndOfSidak) {
  EXPECT_EQ(*LevelOfEach(Division::Bonferroni, 0.05, 10), 0.005);
  EXPECT_NEAR(*LevelOfEach(Division::Sidak, 0.05, 10), 0.0051161968918237011, 1e-18);
  EXPECT_DOUBLE_EQ(*LevelOfEach(Division::Sidak, 0.05, 1), 0.05);
  EXPECT_DOUBLE_EQ(*LevelOfEach(Division::Sidak, 1e-20, 4), 2.5e-21);
  for (const double k : {1.0, 3.0, 1000.0})
    EXPECT_GE(*LevelOfEach(Division::Sidak, 0.2, k), *LevelOfEach(Division::Bonferroni, 0.2, k));
}

TEST(LevelOfEach, IsRefusedWithoutALevelOrAComparison) {
  EXPECT_EQ(LevelOfEach(Division::Sidak, 0, 3).Reason(), NoValue::Refused);
  EXPECT_EQ(LevelOfEach(Division::Sidak, 1, 3).Reason(), NoValue::Refused);
  EXPECT_EQ(LevelOfEach(Division::Bonferroni, 0.05, 0).Reason(), NoValue::Refused);
}

}  // namespace
}  // namespace kelpower::design_effect
