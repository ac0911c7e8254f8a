#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

#include "exports/proportions/designs.h"
#include "frame/root_finders.h"
#include "independent_literal.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"
#include "proportions/independent_statistic.h"
#include "support/answers.h"
#include "support/chart_records.h"
#include "support/stop_requests.h"

namespace kelpower {
namespace {

using namespace exports;
using namespace proportions;
using keltest::CountingStop;

using KelCommon::KelMV;
using KelMath::KelDistFun;

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double quietNaN = std::numeric_limits<double>::quiet_NaN();
constexpr int byLargeSample = 0;
constexpr int byTables = 1;
constexpr int zMethod = 0;
constexpr int tMethod = 1;
constexpr int likelihoodRatioMethod = 2;
constexpr int arcsineMethod = 3;
constexpr int conditionalMethod = 3;

struct Options {
  bool oneSided = false;
  double alpha = 0.05;
  bool corrected = false;
  bool pooled = false;
};

double Power(double n1, double n2, double p1, double p2, int exact, int method, Options options = {},
             StopRequest* stop = nullptr) {
  return PowerIndSampBinom(n1, n2, p1, p2, exact, method, options.oneSided, options.alpha, options.corrected,
                           options.pooled, stop);
}

std::vector<double> Sizes(double power, double p1, double p2, int exact, int method, Options options = {},
                          double sizeRatio = 1, StopRequest* stop = nullptr) {
  std::vector<double> sizes;
  PowerReverseIndSampBinom(power, p1, p2, sizes, sizeRatio, exact, method, options.oneSided, options.alpha,
                           options.corrected, options.pooled, stop);
  return sizes;
}

const std::vector<double> bothMissing = {KelMV::Missing(), KelMV::Missing()};

// Published values ----------------------------------------------------------------------------------------------------

TEST(IndependentZTest, MatchesPublishedValues) {
  Options pooled;
  pooled.pooled = true;
  EXPECT_NEAR(Power(50, 50, 0.5, 0.75, byLargeSample, zMethod, pooled), 0.7401672, 5e-8);

  Options oneSided = pooled;
  oneSided.oneSided = true;
  EXPECT_EQ(Sizes(0.8, 0.022, 0.001, byLargeSample, zMethod, oneSided), (std::vector<double>{318, 318}));
  EXPECT_NEAR(Power(317.6901, 317.6901, 0.022, 0.001, byLargeSample, zMethod, oneSided), 0.8, 5e-8);
}

// Newcombe (1998), table II, example (a): 56/70 and 48/80 have the interval 0.0524 to 0.3339 by method 10.
TEST(IndependentInterval, MatchesPublishedValues) {
  EXPECT_NEAR(HalfCIIndSampBinom(70, 80, 56.0 / 70, 48.0 / 80, 5, 0.05, 0), 0.14072, 5e-6);
  EXPECT_NEAR(HalfCIIndSampBinom(70, 80, 56.0 / 70, 48.0 / 80, 5, 0.05, 0), (0.3339 - 0.0524) / 2, 5e-5);
}

// With 3 of 3 against 0 of 3 the conditional probability is 1 / C(6, 3) = 0.05, which the level 0.05 still rejects.
TEST(IndependentConditionalTest, RejectsATailThatEqualsTheLevel) {
  Options oneSided;
  oneSided.oneSided = true;
  const double p1 = 0.9;
  const double p2 = 0.2;
  EXPECT_NEAR(Power(3, 3, p1, p2, byTables, conditionalMethod, oneSided), std::pow(p1 * (1 - p2), 3), 1e-15);
  oneSided.alpha = std::nextafter(0.05, 0);
  EXPECT_EQ(Power(3, 3, p1, p2, byTables, conditionalMethod, oneSided), 0);
}

// Exact powers against their definitions ------------------------------------------------------------------------------

class IndependentExact : public testing::Test {
protected:
  double Uniform(double from, double to) { return std::uniform_real_distribution<double>(from, to)(random_); }

  int Choice(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }

  /// Small sizes more often than large ones; a quarter of them fractional.
  double Size(double largest) {
    const double size = std::exp(Uniform(0, std::log(largest)));
    return Choice(4) == 0 ? size : std::floor(size);
  }

  double Level() {
    constexpr double usualLevels[] = {0.01, 0.025, 0.05, 0.1, 0.2, 0.5, 0.9};
    return Choice(4) == 0 ? Uniform(0.0001, 0.9999) : usualLevels[Choice(7)];
  }

  IndependentDesign AnyTest(int method) {
    return IndependentDesignOf(1, method, Choice(2), Level(), Choice(2), Choice(2));
  }

  void Compare(const IndependentDesign& test, double n1, double n2) {
    const double p1 = Uniform(0.01, 0.99);
    const double p2 = Choice(8) == 0 ? p1 : Uniform(0.01, 0.99);
    CountingStop never;
    CountingStop neverToo;
    const double expected = LiteralExactPower(test, n1, n2, p1, p2, &neverToo);
    const int method = static_cast<int>(test.test);
    const auto power = [&](StopRequest* stop) {
      return PowerIndSampBinom(n1, n2, p1, p2, 1, method, test.isOneSided, test.alpha, test.isCorrected, test.isPooled,
                               stop);
    };
    const double free = power(nullptr);
    SCOPED_TRACE(testing::Message() << "method " << method << ", N " << n1 << " and " << n2 << ", p " << p1 << " and "
                                    << p2 << ", alpha " << test.alpha << ", one-sided " << test.isOneSided
                                    << ", corrected " << test.isCorrected << ", pooled " << test.isPooled);
    EXPECT_NEAR(free, expected, 1e-12);
    EXPECT_EQ(power(&never), free);
    EXPECT_EQ(never.asked, neverToo.asked);
  }

  std::mt19937_64 random_{20261121};
};

TEST_F(IndependentExact, EnumeratedPowersAreTheSumsOverAllTables) {
  for (int i = 0; i < 6000; ++i) {
    const double n1 = Size(50);
    const double n2 = Size(50);
    if (n1 + n2 > 2) Compare(AnyTest(Choice(3)), n1, n2);
  }
}

// Where all are successes the proportions are moved off 1 and differ by more than where all but one are: at levels of
// which this is all, the row has two rejected ends.
TEST_F(IndependentExact, TheTableOfSuccessesOnlyCanRejectBeyondAcceptedOnes) {
  for (const int method : {zMethod, tMethod}) {
    const IndependentDesign test = IndependentDesignOf(1, method, 0, 0.88, 0, 0);
    for (const auto& [n1, n2] : {std::pair(1.0, 100.0), std::pair(100.0, 1.0)}) {
      EXPECT_NEAR(PowerIndSampBinom(n1, n2, 0.97, 0.99, 1, method, 0, 0.88, 0, 0, nullptr),
                  LiteralEnumeratedPower(test, n1, n2, 0.97, 0.99, nullptr), 1e-12);
    }
  }
}

// The table without successes, the correction that outweighs the difference and the ends of the rows show here.
TEST_F(IndependentExact, EnumeratedPowersOfVeryUnequalGroupsAreTheSumsOverAllTables) {
  for (int i = 0; i < 1000; ++i) {
    const double small = Size(4);
    const double large = Size(3000);
    if (small + large <= 2) continue;
    const bool isFirstSmall = Choice(2) == 0;
    Compare(AnyTest(Choice(3)), isFirstSmall ? small : large, isFirstSmall ? large : small);
  }
}

TEST_F(IndependentExact, ConditionalPowersAreTheSumsOverAllTotals) {
  for (int i = 0; i < 2500; ++i) {
    const double n1 = Size(14);
    const double n2 = Size(14);
    Compare(AnyTest(conditionalMethod), n1, n2);
  }
}

TEST_F(IndependentExact, RejectsTheStatedTablesOfLargeGroups) {
  for (int i = 0; i < 20; ++i) {
    const double n1 = std::floor(Uniform(150, 400));
    const double n2 = std::floor(Uniform(150, 400));
    Compare(AnyTest(Choice(3)), n1, n2);
  }
}

// At a level next to 1 every table is rejected; but for the t test's without variance, which is likely in small groups.
TEST_F(IndependentExact, RejectingEverythingHasPowerOne) {
  Options all;
  all.oneSided = true;
  all.alpha = 1 - 1e-12;
  for (const double n : {5.0, 60.0, 700.0, 5000.0}) {
    EXPECT_NEAR(Power(n, n, 0.3, 0.6, byTables, zMethod, all), 1, 1e-11) << n;
    if (n < 60) continue;
    EXPECT_NEAR(Power(n, n, 0.3, 0.6, byTables, tMethod, all), 1, 1e-11) << n;
  }
}

TEST_F(IndependentExact, MirroredDesignsHaveTheSamePower) {
  for (int i = 0; i < 300; ++i) {
    const double n1 = std::floor(Uniform(3, 80));
    const double n2 = std::floor(Uniform(3, 80));
    const double p1 = Uniform(0.02, 0.98);
    const double p2 = Uniform(0.02, 0.98);
    Options options;
    options.oneSided = Choice(2) == 1;
    options.alpha = 0.0437;  // no table ties with it
    for (const int method : {zMethod, tMethod, likelihoodRatioMethod, conditionalMethod}) {
      const double power = Power(n1, n2, p1, p2, byTables, method, options);
      EXPECT_NEAR(Power(n2, n1, p2, p1, byTables, method, options), power, 1e-12);
      EXPECT_NEAR(Power(n1, n2, 1 - p1, 1 - p2, byTables, method, options), power, 1e-12);
    }
  }
}

// Boschloo (1970): conditioning keeps the level at every common proportion, the normal approximation only about.
TEST_F(IndependentExact, ConditionalTestKeepsItsLevel) {
  for (const double n : {10.0, 40.0, 150.0, 800.0}) {
    for (double p = 0.05; p < 1; p += 0.1) EXPECT_LE(Power(n, n + 7, p, p, byTables, conditionalMethod), 0.05);
  }
}

TEST_F(IndependentExact, LargeSampleAndExactPowersMeetInLargeGroups) {
  const double exact = Power(20000, 20000, 0.5, 0.51, byTables, zMethod);
  EXPECT_NEAR(Power(20000, 20000, 0.5, 0.51, byLargeSample, zMethod), exact, 2e-3);
  EXPECT_NEAR(Power(20000, 20000, 0.5, 0.51, byTables, tMethod), exact, 2e-3);
  EXPECT_NEAR(Power(20000, 20000, 0.5, 0.51, byTables, likelihoodRatioMethod), exact, 2e-3);
}

// From 1,020 subjects on binomial coefficients are not representable and the terms come from a recurrence.
TEST_F(IndependentExact, ConditionalTermsByRecurrenceContinueThoseByCoefficients) {
  const double below = Power(510, 510, 0.5, 0.58, byTables, conditionalMethod);
  const double above = Power(511, 511, 0.5, 0.58, byTables, conditionalMethod);
  EXPECT_NEAR(above, below, 2e-3);
  EXPECT_NEAR(Power(3000, 2000, 0.5, 0.54, byTables, conditionalMethod),
              Power(3000, 2000, 0.5, 0.54, byLargeSample, zMethod), 0.02);
}

// Invalid input and edges ---------------------------------------------------------------------------------------------

TEST(IndependentPower, RejectsInvalidDesigns) {
  for (const int exact : {0, 1}) {
    for (int method = 0; method <= 4; ++method) {
      EXPECT_GT(Power(0.9999999999995, 15, 0.35, 0.62, exact, method), method == 3 || method == 4 ? -2 : -0.5);
      EXPECT_EQ(Power(0.999999, 15, 0.35, 0.62, exact, method), -1);
      EXPECT_EQ(Power(15, 0.999999, 0.35, 0.62, exact, method), -1);
      for (const double p : {0.0, 1.0, -0.1, 1.1}) {
        EXPECT_EQ(Power(10, 10, p, 0.5, exact, method), -1);
        EXPECT_EQ(Power(10, 10, 0.5, p, exact, method), -1);
      }
      Options options;
      for (const double alpha : {0.0, 1.0, -0.1, 1.5}) {
        options.alpha = alpha;
        EXPECT_EQ(Power(10, 10, 0.4, 0.5, exact, method, options), -1);
      }
    }
    EXPECT_EQ(Power(1, 1, 0.4, 0.5, exact, tMethod), -1);
  }
}

TEST(IndependentPower, LetsNaNThrough) {
  for (const int method : {zMethod, tMethod, likelihoodRatioMethod, arcsineMethod}) {
    EXPECT_TRUE(std::isnan(Power(quietNaN, 10, 0.4, 0.5, byLargeSample, method)));
    EXPECT_TRUE(std::isnan(Power(10, 10, quietNaN, 0.5, byLargeSample, method)));
    EXPECT_EQ(Power(quietNaN, 10, 0.4, 0.5, byTables, method), 0);
    EXPECT_EQ(Power(10, quietNaN, 0.4, 0.5, byTables, method), 0);
    Options options;
    options.alpha = quietNaN;
    EXPECT_EQ(Power(10, 10, 0.4, 0.5, byTables, method, options), 0);
  }
  EXPECT_EQ(Power(10, 10, quietNaN, 0.5, byTables, zMethod), -2);
  EXPECT_EQ(Power(10, 10, 0.5, quietNaN, byTables, likelihoodRatioMethod), -2);
  EXPECT_TRUE(std::isnan(Power(10, 10, 0.5, quietNaN, byTables, conditionalMethod)));
  // A level that no table reaches asks nothing of the binomial distribution.
  Options tiny;
  tiny.alpha = 1e-300;
  EXPECT_EQ(Power(2e9, 2e9, quietNaN, 0.5, byTables, zMethod, tiny), 0);
}

TEST(IndependentPower, IsMissingForGroupsThatCannotBeCounted) {
  for (const int method : {zMethod, tMethod, likelihoodRatioMethod, conditionalMethod}) {
    EXPECT_TRUE(KelMV::IsMissing(Power(2147483648.0, 10, 0.4, 0.5, byTables, method)));
    EXPECT_TRUE(KelMV::IsMissing(Power(10, infinite, 0.4, 0.5, byTables, method)));
  }
}

TEST(IndependentPower, AsksOnceATableAndOnceARejectedTable) {
  CountingStop z;
  Power(8, 9, 0.2, 0.7, byTables, zMethod, {}, &z);
  EXPECT_EQ(z.asked, 9 * 10);
  CountingStop fractional;
  Power(8.5, 9, 0.2, 0.7, byTables, zMethod, {}, &fractional);
  EXPECT_EQ(fractional.asked, 10 * 10);
  CountingStop conditional;
  Power(8, 9, 0.2, 0.7, byTables, conditionalMethod, {}, &conditional);
  EXPECT_EQ(conditional.asked, 18);
  CountingStop t;
  Power(8, 9, 0.2, 0.7, byTables, tMethod, {}, &t);
  ASSERT_GT(t.asked, 90);
  for (const std::int64_t n : {std::int64_t{1}, std::int64_t{90}, std::int64_t{91}, t.asked}) {
    CountingStop stop(n);
    EXPECT_TRUE(KelMV::IsMissing(Power(8, 9, 0.2, 0.7, byTables, tMethod, {}, &stop)));
    EXPECT_EQ(stop.asked, n);
  }
}

TEST(IndependentPower, EqualProportionsHaveTheLevel) {
  for (const double n : {20.0, 1e4, 1e150, 1e160, 1e307}) {
    EXPECT_NEAR(Power(n, n, 0.3, 0.3, byLargeSample, zMethod), 0.05, 1e-14) << n;
    EXPECT_NEAR(Power(n, 3, 0.3, 0.3, byLargeSample, likelihoodRatioMethod), 0.05, 1e-14) << n;
    EXPECT_NEAR(Power(n, n, 0.3, 0.3, byLargeSample, arcsineMethod), 0.05, 1e-14) << n;
    Options pooled;
    pooled.pooled = true;
    EXPECT_NEAR(Power(n, n, 0.3, 0.3, byLargeSample, zMethod, pooled), 0.05, 1e-14) << n;
  }
}

// The noncentrality of the likelihood-ratio statistic tends to that of the z statistic, d^2 / (p q (1 / n1 + 1 / n2)).
TEST(IndependentPower, LikelihoodRatioKeepsItsDigitsNearEqualProportions) {
  const double n = 1e16;
  const double d = 1e-8;
  const double shift = d / std::sqrt(0.25 * 2 / n);
  const double z = KelDistFun::IdfStdNorm(0.975);
  const double expected = KelDistFun::CdfStdNorm(shift - z) + KelDistFun::CdfStdNorm(-shift - z);
  const double actualD = (0.5 + d / 2) - (0.5 - d / 2);
  EXPECT_NEAR(actualD, d, 1e-16);
  EXPECT_NEAR(Power(n, n, 0.5 + d / 2, 0.5 - d / 2, byLargeSample, likelihoodRatioMethod), expected, 1e-8);
  EXPECT_NEAR(Power(n, n, 0.5 + d / 2, 0.5 - d / 2, byLargeSample, arcsineMethod), expected, 1e-8);
  EXPECT_NEAR(Power(n, n, 0.5 + d / 2, 0.5 - d / 2, byLargeSample, zMethod), expected, 1e-8);
}

TEST(IndependentPower, ArcsineTestNeedsHalfASubjectOfEachOutcome) {
  EXPECT_EQ(Power(1, 20, 0.3, 0.2, byLargeSample, arcsineMethod), -1);
  EXPECT_GT(Power(2, 20, 0.3, 0.2, byLargeSample, arcsineMethod), 0);
  EXPECT_EQ(Power(20, 1, 0.2, 0.3, byLargeSample, arcsineMethod), -1);
}

// The correction is added to the one-sided statistic and subtracted from the two-sided one.
TEST(IndependentPower, CorrectionRaisesTheOneSidedStatistic) {
  Options plain;
  Options corrected;
  corrected.corrected = true;
  EXPECT_LT(Power(30, 30, 0.3, 0.6, byTables, zMethod, corrected), Power(30, 30, 0.3, 0.6, byTables, zMethod, plain));
  plain.oneSided = corrected.oneSided = true;
  EXPECT_GT(Power(30, 30, 0.3, 0.6, byTables, zMethod, corrected), Power(30, 30, 0.3, 0.6, byTables, zMethod, plain));
}

// Sizes ---------------------------------------------------------------------------------------------------------------

TEST(IndependentSizes, LargeSampleSizesReachThePowerAndOneLessDoesNot) {
  for (const int method : {zMethod, tMethod, likelihoodRatioMethod, arcsineMethod}) {
    for (const double target : {0.5, 0.8, 0.99}) {
      const std::vector<double> sizes = Sizes(target, 0.3, 0.45, byLargeSample, method);
      ASSERT_EQ(sizes.size(), 2u);
      EXPECT_GE(Power(sizes[0], sizes[1], 0.3, 0.45, byLargeSample, method), target - 1e-9);
      EXPECT_LT(Power(sizes[0] - 1, sizes[1] - 1, 0.3, 0.45, byLargeSample, method), target);
    }
  }
}

TEST(IndependentSizes, ExactSizesReachThePower) {
  for (const int method : {zMethod, tMethod, likelihoodRatioMethod, 4}) {
    for (const double ratio : {0.5, 1.0, 1.7}) {
      const std::vector<double> sizes = Sizes(0.85, 0.3, 0.55, byTables, method, {}, ratio);
      ASSERT_EQ(sizes.size(), 2u);
      EXPECT_GE(Power(sizes[0], sizes[1], 0.3, 0.55, byTables, method), 0.85);
      EXPECT_EQ(sizes[1], std::floor(ratio * sizes[0] + 0.5));
    }
  }
}

/// The search for exact sizes as it is defined: a real first size by the method `searched`, smaller ones below it while
/// there are any, and from there the first whole size that reaches the power by the method `reached`.
std::vector<double> LiteralSizes(double power, double p1, double p2, double ratio, int searched, int reached) {
  const auto objective = [&](double n1) {
    return Power(n1, std::max(1.0, ratio * n1), p1, p2, byTables, searched) - power;
  };
  const auto search = [&](double lower, double upper) {
    return keltest::OrMissing(SolveContinuous(lower, upper, 1e-9, objective, {}));
  };
  const auto second = [&](double n1) { return std::max(1.0, std::floor(ratio * n1 + 0.5)); };

  std::vector<double> found = {std::ceil(search(2, 400))};
  for (double next = std::ceil(search(1, found.back()));
       !KelMV::IsMissing(next) && std::find(found.begin(), found.end(), next) == found.end();
       next = std::ceil(search(1, found.back()))) {
    found.push_back(next);
  }
  double n1 = *std::min_element(found.begin(), found.end());
  while (Power(n1, second(n1), p1, p2, byTables, reached) < power) n1 += 1;
  return {n1, second(n1)};
}

// The z test finds the size from which the conditional test, method 4, goes on: by itself it would start elsewhere.
TEST(IndependentSizes, ExactSearchesAreThoseOfTheirMethods) {
  for (const double power : {0.5, 0.7, 0.9}) {
    for (const double ratio : {0.5, 1.0, 2.0}) {
      for (const int method : {zMethod, tMethod, likelihoodRatioMethod}) {
        EXPECT_EQ(Sizes(power, 0.9, 0.2, byTables, method, {}, ratio),
                  LiteralSizes(power, 0.9, 0.2, ratio, method, method));
      }
      EXPECT_EQ(Sizes(power, 0.9, 0.2, byTables, 4, {}, ratio), LiteralSizes(power, 0.9, 0.2, ratio, zMethod, 4));
    }
  }
  EXPECT_EQ(Sizes(0.7, 0.9, 0.1, byTables, 4), (std::vector<double>{5, 5}));
  EXPECT_EQ(LiteralSizes(0.7, 0.9, 0.1, 1, 4, 4), (std::vector<double>{7, 7}));
}

TEST(IndependentSizes, SquaresTheFirstSizeInOneCombinationOfFlags) {
  Options options;
  options.oneSided = options.corrected = options.pooled = true;
  const std::vector<double> sizes = Sizes(0.8, 0.3, 0.6, byLargeSample, zMethod, options);
  ASSERT_EQ(sizes.size(), 2u);
  EXPECT_GT(sizes[1], (sizes[0] - 1) * (sizes[0] - 1));
  EXPECT_LE(sizes[1], sizes[0] * sizes[0]);
}

TEST(IndependentSizes, SecondSizeIsAtLeastOne) {
  for (const double ratio : {1e-9, 0.0, -1.0}) {
    for (const int exact : {byLargeSample, byTables}) {
      const std::vector<double> sizes = Sizes(0.5, 0.9, 0.1, exact, zMethod, {}, ratio);
      ASSERT_EQ(sizes.size(), 2u);
      EXPECT_GE(sizes[0], 2);
      EXPECT_EQ(sizes[1], 1);
      EXPECT_GE(Power(sizes[0], 1, 0.9, 0.1, exact, zMethod), 0.5);
    }
  }
}

TEST(IndependentSizes, LeavesANonEmptyVectorAlone) {
  std::vector<double> sizes = {7};
  CountingStop stop(1);
  PowerReverseIndSampBinom(0.8, 0.3, 0.6, sizes, 1, 0, 0, 0, 0.05, 0, 0, &stop);
  EXPECT_EQ(sizes, std::vector<double>{7});
  EXPECT_EQ(stop.asked, 0);
}

TEST(IndependentSizes, AreMissingWhenThePowerIsOutOfReach) {
  for (const int method : {zMethod, tMethod, likelihoodRatioMethod, arcsineMethod}) {
    EXPECT_EQ(Sizes(0.8, 0.3, 0.3, byLargeSample, method), bothMissing) << method;
    EXPECT_EQ(Sizes(1.5, 0.3, 0.6, byLargeSample, method), bothMissing) << method;
  }
  EXPECT_EQ(Sizes(0.8, 1.3, 0.6, byLargeSample, zMethod), bothMissing);
  // The exact tests end when the tables can no longer be counted, after groups of a thousand million.
  for (const int method : {zMethod, tMethod}) {
    EXPECT_EQ(Sizes(0.8, 0.3, 0.3, byTables, method), bothMissing) << method;
  }
}

TEST(IndependentSizes, StopWhenAsked) {
  for (const int method : {zMethod, tMethod, likelihoodRatioMethod, conditionalMethod}) {
    for (const std::int64_t n : {std::int64_t{1}, std::int64_t{2}, std::int64_t{1000}, std::int64_t{200000}}) {
      CountingStop stop(n);
      EXPECT_EQ(Sizes(0.8, 0.3, 0.3, byTables, method, {}, 1, &stop), bothMissing);
      EXPECT_GE(stop.asked, n);
    }
  }
}

// The sizes of the first search stand when the refinement is stopped.
TEST(IndependentSizes, AreNotRefinedAfterAStop) {
  constexpr int byUnrefinedTables = 2;
  for (const int method : {zMethod, tMethod, likelihoodRatioMethod, conditionalMethod}) {
    CountingStop first;
    const std::vector<double> unrefined = Sizes(0.9, 0.25, 0.6, byUnrefinedTables, method, {}, 1.3, &first);
    CountingStop whole;
    EXPECT_NE(Sizes(0.9, 0.25, 0.6, byTables, method, {}, 1.3, &whole), bothMissing);
    ASSERT_GT(whole.asked, first.asked);
    for (const std::int64_t n : {first.asked + 1, first.asked + 2, whole.asked - 1, whole.asked}) {
      CountingStop stop(n);
      EXPECT_EQ(Sizes(0.9, 0.25, 0.6, byTables, method, {}, 1.3, &stop), unrefined) << method << ' ' << n;
    }
  }
}

TEST(IndependentSizes, AreNotRefinedWhenTheFirstQuestionOfTheRefinementStops) {
  CountingStop first;
  const std::vector<double> unrefined = Sizes(0.9, 0.25, 0.6, 2, zMethod, {}, 1.3, &first);
  CountingStop stop(first.asked + 1);
  stop.stopsOnce = true;
  EXPECT_EQ(Sizes(0.9, 0.25, 0.6, byTables, zMethod, {}, 1.3, &stop), unrefined);
  EXPECT_EQ(stop.asked, first.asked + 1);
}

// Intervals -----------------------------------------------------------------------------------------------------------

double HalfWidth(double n1, double n2, double p1, double p2, int method, int corrected = 0) {
  return HalfCIIndSampBinom(n1, n2, p1, p2, method, 0.05, static_cast<std::uint8_t>(corrected));
}

TEST(IndependentInterval, FlagsOfWaldAndNewcombeDiffer) {
  const double plain = HalfWidth(40, 30, 0.3, 0.6, 0);
  EXPECT_DOUBLE_EQ(HalfWidth(40, 30, 0.3, 0.6, 0, 1), plain + (1 / 40.0 + 1 / 30.0) / 2);
  EXPECT_EQ(HalfWidth(40, 30, 0.3, 0.6, 0, 2), plain);
  EXPECT_EQ(HalfWidth(40, 30, 0.3, 0.6, 5, 2), HalfWidth(40, 30, 0.3, 0.6, 5, 1));
  EXPECT_GT(HalfWidth(40, 30, 0.3, 0.6, 5, 1), HalfWidth(40, 30, 0.3, 0.6, 5));
  EXPECT_EQ(HalfWidth(40, 30, 0.3, 0.6, 6), 0);
  EXPECT_EQ(HalfWidth(40, 30, 0.3, 0.6, -1), 0);
}

TEST(IndependentInterval, AllMethodsMeetInLargeGroups) {
  for (const double n : {1e6, 1e15, 1e200, 1e307}) {
    const double wald = HalfWidth(n, 2 * n, 0.3, 0.6, 0);
    for (int method = 1; method <= 5; ++method) {
      for (const int corrected : {0, 1}) {
        EXPECT_NEAR(HalfWidth(n, 2 * n, 0.3, 0.6, method, corrected) / wald, 1, 1.5 / std::sqrt(n) + 1e-14)
            << n << ' ' << method;
      }
    }
  }
}

TEST(IndependentInterval, SizesReachTheHalfWidth) {
  for (int method = 0; method <= 5; ++method) {
    for (const int corrected : {0, 1}) {
      for (const double halfWidth : {0.02, 0.1, 0.19}) {
        std::vector<double> sizes = {1, 2, 3};
        PowerReversebyHalfCIIndSampBinom(halfWidth, 0.3, 0.6, sizes, 1, method, 0.05,
                                         static_cast<std::uint8_t>(corrected), nullptr);
        ASSERT_EQ(sizes.size(), 2u);
        EXPECT_LE(HalfWidth(sizes[0], sizes[1], 0.3, 0.6, method, corrected), halfWidth + 1e-12);
        EXPECT_GT(HalfWidth(sizes[0] - 1, sizes[1] - 1, 0.3, 0.6, method, corrected), halfWidth);
      }
    }
  }
}

// Two of group 1 against 1.6e9 reach the power of the z test, which the search goes by, but not that of the conditional
// test; the next larger tables have too many to be counted.
TEST(IndependentSizes, AreMissingWhereTheNextTablesCannotBeCounted) {
  std::vector<double> sizes;
  PowerReverseIndSampBinom(0.9, 0.99, 0.3, sizes, 8e8, byTables, 4, 0, 0.05, 0, 0, nullptr);
  EXPECT_EQ(sizes, bothMissing);
}

TEST(IndependentInterval, SecondSizeIsAtLeastTwo) {
  std::vector<double> sizes;
  PowerReversebyHalfCIIndSampBinom(0.4, 0.3, 0.6, sizes, 1e-3, 1, 0.05, 0, nullptr);
  ASSERT_EQ(sizes.size(), 2u);
  EXPECT_GE(sizes[1], 2);
  EXPECT_EQ(sizes[1], std::max(2.0, std::ceil(1e-3 * sizes[0])));
  PowerReversebyHalfCIIndSampBinom(0.9, 0.3, 0.6, sizes, 1e-9, 0, 0.05, 0, nullptr);
  EXPECT_GE(sizes[1], 2);
}

TEST(IndependentInterval, SizesAreMissingWhenStoppedOrOutOfReach) {
  std::vector<double> sizes = {5};
  CountingStop stop(1);
  PowerReversebyHalfCIIndSampBinom(0.01, 0.3, 0.6, sizes, 1, 1, 0.05, 0, &stop);
  EXPECT_EQ(sizes, bothMissing);
  for (int method = 1; method <= 5; ++method) {
    PowerReversebyHalfCIIndSampBinom(-1, 0.3, 0.6, sizes, 1, method, 0.05, 0, nullptr);
    EXPECT_EQ(sizes, bothMissing) << method;
  }
  PowerReversebyHalfCIIndSampBinom(0.1, 0.3, 0.6, sizes, 1, 9, 0.05, 0, nullptr);
  EXPECT_EQ(sizes, (std::vector<double>{400, 400}));
}

// Arcsine tests at their smallest sizes, where a proportion less its correction is 0 and may round to less -------------

TEST(IndependentArcsine, HasAPowerAtItsSmallestSizes) {
  EXPECT_NEAR(Power(20, 5, 0.95, 0.9, 0, 3), Power(5, 20, 0.1, 0.05, 0, 3), 1e-14);
  for (int i = 1; i < 100; ++i) {
    for (int j = 1; j < 100; ++j) {
      for (const double n : {1.0, 2.0, 5.0, 10.0, 25.0, 50.0})
        ASSERT_GE(Power(n, 50, i / 100.0, j / 100.0, 0, 3), -1) << n << ' ' << i << ' ' << j;  // no NaN
    }
  }
  const SurfaceRecord plot(PlotNIndSampBinom(20, 20, 0.95, 0.9, 0, 3, 0, 0.05, 0, 0, 5, 10, 5, 10));
  for (int i = 0; i < plot.xCount * plot.yCount; ++i) EXPECT_FALSE(std::isnan(plot.z[i])) << i;
}

// A size below the limit of validity by more than rounding, but by less than sizes computed from a ratio may be off, has
// no real arcsine.
TEST(IndependentArcsine, IsNotANumberBelowItsSmallestSizes) {
  EXPECT_TRUE(std::isnan(Power(1.9999999999995, 10, 0.25, 0.125, 0, 3)));
}

TEST(IndependentArcsine, SizesReachTheirPower) {
  for (int i = 1; i < 100; i += 3) {
    for (int j = 1; j < 100; ++j) {
      if (i == j) continue;
      for (const double ratio : {0.5, 1.0, 2.0, 3.0}) {
        const double p1 = i / 100.0;
        const double p2 = j / 100.0;
        const std::vector<double> sizes = Sizes(0.8, p1, p2, 0, 3, {}, ratio);
        ASSERT_GE(Power(sizes[0], sizes[1], p1, p2, 0, 3), 0.8 - 1e-9) << p1 << ' ' << p2 << ' ' << ratio;
      }
    }
  }
  EXPECT_EQ(Sizes(0.8, 0.53, 0.56, 0, 3, {}, 1), (std::vector<double>{4391, 4391}));
  EXPECT_EQ(Sizes(0.8, 0.53, 0.58, 0, 3, {}, 2), (std::vector<double>{1192, 2384}));
}

TEST(IndependentPower, OfExactTestsIsNeverAboveOne) {
  const Options oneSided{true, 0.011599387884959771, 0, 0};
  EXPECT_EQ(Power(79.326830636181043, 186, 0.13321620511778842, 0.98694341478576708, byTables, likelihoodRatioMethod,
                  oneSided),
            1);
  for (int n = 20; n <= 300; n += 20) {
    for (const int method : {zMethod, tMethod, likelihoodRatioMethod, 3}) {
      for (const double p1 : {0.9, 0.95, 0.999}) {
        for (const double p2 : {0.02, 0.1, 0.16, 0.3})
          EXPECT_LE(Power(n, n, p1, p2, byTables, method), 1) << n << ' ' << p1 << ' ' << p2 << ' ' << method;
      }
    }
  }
}

}  // namespace
}  // namespace kelpower
