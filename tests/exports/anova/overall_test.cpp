#include "anova/overall.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numeric>
#include <vector>

#include "kelcommon/kel_mv.h"
#include "kelpower.h"

namespace kelpower {
namespace {

using KelCommon::KelMV;

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double quietNaN = std::numeric_limits<double>::quiet_NaN();

const std::vector<double> usualMeans = {10, 12, 15};
const std::vector<double> usualSizes = {20, 20, 20};

double Power(const std::vector<double>& means, double sd, const std::vector<double>& sizes, double alpha = 0.05) {
  return PowerOverallTest(static_cast<int>(means.size()), means.data(), sd, sizes.data(), alpha);
}

double PowerOfF(double f, const std::vector<double>& sizes, double alpha = 0.05) {
  return PowerOverallTestwES(static_cast<int>(sizes.size()), f, 0, sizes.data(), alpha);
}

// Cohen (1988), example 8.1, has 0.53 from an approximation; the value of the noncentral F distribution is the one that
// the documentation of R's pwr package gives for it, as the sizes of example 8.10 and of R's power.anova.test are.
TEST(PowerOverallTest, MatchesPublishedValues) {
  EXPECT_NEAR(PowerOfF(0.28, {20, 20, 20, 20}), 0.5149793, 5e-8);
  const double n = 35.75789;
  EXPECT_NEAR(PowerOfF(0.28, {n, n, n, n}), 0.80, 1e-7);
  const double m = 11.92613;  // between-group variance 1, within-group variance 3
  EXPECT_NEAR(PowerOfF(std::sqrt(1.0 * 3 / 4 / 3), {m, m, m, m}), 0.80, 1e-6);
}

TEST(PowerOverallTest, OfEqualMeansIsAlpha) {
  for (const double alpha : {1e-6, 0.01, 0.05, 0.5, 0.99}) {
    EXPECT_NEAR(Power({7.1, 7.1, 7.1}, 2, {5, 9, 30}, alpha), alpha, 1e-13);
    EXPECT_NEAR(PowerOfF(0, {5, 9, 30}, alpha), alpha, 1e-13);
  }
}

TEST(PowerOverallTest, GrowsWithSizeEffectAndAlphaAndFallsWithTheStandardDeviation) {
  double last = 0;
  for (double n = 2; n <= 200; n += 3) {
    const double power = Power(usualMeans, 6, {n, n, n});
    EXPECT_GT(power, last);
    last = power;
  }
  last = 0;
  for (double f = 0.05; f < 1; f += 0.05) {
    EXPECT_GT(PowerOfF(f, usualSizes), last);
    last = PowerOfF(f, usualSizes);
  }
  last = 0;
  for (double alpha = 0.01; alpha < 1; alpha += 0.01) {
    EXPECT_GT(Power(usualMeans, 6, usualSizes, alpha), last);
    last = Power(usualMeans, 6, usualSizes, alpha);
  }
  last = 1;
  for (double sd = 1; sd < 30; sd += 1) {
    EXPECT_LE(Power(usualMeans, sd, usualSizes), last);
    last = Power(usualMeans, sd, usualSizes);
  }
}

TEST(PowerOverallTest, DoesNotDependOnTheUnitOfTheMeans) {
  const double power = Power(usualMeans, 6, {10, 20, 15});
  EXPECT_NEAR(Power({1010, 1012, 1015}, 6, {10, 20, 15}), power, 1e-14);
  EXPECT_NEAR(Power({10e200, 12e200, 15e200}, 6e200, {10, 20, 15}), power, 1e-14);
  EXPECT_NEAR(Power({10e-200, 12e-200, 15e-200}, 6e-200, {10, 20, 15}), power, 1e-14);
  EXPECT_NEAR(Power({15, 10, 12}, 6, {15, 10, 20}), power, 1e-14);
}

TEST(PowerOverallTest, AgreesWithTheEffectSizeThatTheMeansHave) {
  // With equal sizes f is the standard deviation of the means around their mean over that of the groups.
  const double grandMean = std::accumulate(usualMeans.begin(), usualMeans.end(), 0.0) / 3;
  double variance = 0;
  for (const double mean : usualMeans) variance += (mean - grandMean) * (mean - grandMean) / 3;
  const double f = std::sqrt(variance) / 6;
  EXPECT_NEAR(Power(usualMeans, 6, usualSizes), PowerOfF(f, usualSizes), 1e-13);
  const double etaSquared = f * f / (1 + f * f);
  EXPECT_NEAR(PowerOverallTestwES(3, etaSquared, 1, usualSizes.data(), 0.05), PowerOfF(f, usualSizes), 1e-13);
  EXPECT_EQ(PowerOverallTestwES(3, etaSquared, -7, usualSizes.data(), 0.05),
            PowerOverallTestwES(3, etaSquared, 1, usualSizes.data(), 0.05));
}

TEST(PowerOverallTest, OfTwoGroupsIsThatOfTheTwoSidedTTest) {
  const std::vector<double> pair = {1, -1};
  const std::vector<double> sizes = {12, 17};
  std::vector<double> coefficients = pair;
  EXPECT_NEAR(Power({3, 5}, 2.5, sizes),
              PowerSC(2, std::vector<double>{3, 5}.data(), 2.5, sizes.data(), coefficients.data(), 0, 0.05), 1e-13);
}

TEST(PowerOverallTest, RejectsWhatItMust) {
  EXPECT_TRUE(KelMV::IsMissing(PowerOverallTest(1, usualMeans.data(), 6, usualSizes.data(), 0.05)));
  EXPECT_TRUE(KelMV::IsMissing(PowerOverallTest(-3, usualMeans.data(), 6, usualSizes.data(), 0.05)));
  for (const double sd : {0.0, -1.0, -infinite}) EXPECT_TRUE(KelMV::IsMissing(Power(usualMeans, sd, usualSizes)));
  for (const double alpha : {0.0, 1.0, -0.05, 1.5, infinite}) {
    EXPECT_TRUE(KelMV::IsMissing(Power(usualMeans, 6, usualSizes, alpha)));
    EXPECT_TRUE(KelMV::IsMissing(PowerOfF(0.3, usualSizes, alpha)));
  }
  EXPECT_TRUE(KelMV::IsMissing(Power(usualMeans, 6, {1, 1, 0.5})));  // fewer subjects than groups
}

TEST(PowerOverallTest, ANaNPassesTheChecks) {
  EXPECT_TRUE(std::isnan(Power(usualMeans, quietNaN, usualSizes)));
  EXPECT_TRUE(std::isnan(Power(usualMeans, 6, usualSizes, quietNaN)));
  EXPECT_TRUE(std::isnan(Power({10, quietNaN, 15}, 6, usualSizes)));
  EXPECT_TRUE(std::isnan(PowerOfF(quietNaN, usualSizes)));
}

TEST(PowerOverallTest, WithoutErrorDegreesOfFreedomIsOne) {
  EXPECT_EQ(Power(usualMeans, 6, {1, 1, 1}), 1);  // the noncentral probability is missing and counts as 0
  EXPECT_EQ(PowerOfF(0.3, {1, 1, 1}), 1);
}

TEST(PowerOverallTestwES, OfAProportionOfVarianceOfOneIsOne) {
  EXPECT_EQ(PowerOverallTestwES(3, 1, 1, usualSizes.data(), 0.05), 1);
}

TEST(RMSSEOverallTest, IsUnweightedAroundTheWeightedMean) {
  EXPECT_NEAR(RMSSEOverallTest(3, usualMeans.data(), 6, usualSizes.data(), 0.05),
              std::sqrt((std::pow(10 - 37.0 / 3, 2) + std::pow(12 - 37.0 / 3, 2) + std::pow(15 - 37.0 / 3, 2)) / 2) / 6,
              1e-15);
  const std::vector<double> unequal = {30, 20, 10};
  const double weightedMean = (300 + 240 + 150) / 60.0;
  EXPECT_NEAR(
      RMSSEOverallTest(3, usualMeans.data(), 6, unequal.data(), 0.05),
      std::sqrt((std::pow(10 - weightedMean, 2) + std::pow(12 - weightedMean, 2) + std::pow(15 - weightedMean, 2)) /
                2) /
          6,
      1e-15);
  for (const double alpha : {0.0, 1.0}) {
    EXPECT_TRUE(KelMV::IsMissing(RMSSEOverallTest(3, usualMeans.data(), 6, usualSizes.data(), alpha)));
  }
  EXPECT_TRUE(KelMV::IsMissing(RMSSEOverallTest(1, usualMeans.data(), 6, usualSizes.data(), 0.05)));
  EXPECT_TRUE(KelMV::IsMissing(RMSSEOverallTest(3, usualMeans.data(), 0, usualSizes.data(), 0.05)));
  EXPECT_EQ(RMSSEOverallTest(2, std::vector<double>{4, 4}.data(), 6, usualSizes.data(), 0.05), 0);
}

TEST(SampleSizeTotal, SumsWhatItIsTold) {
  const std::vector<double> sizes = {1.5, 2, 3};
  EXPECT_EQ(SampleSizeTotal(3, sizes.data()), 6.5);
  EXPECT_EQ(SampleSizeTotal(2, sizes.data()), 3.5);
  EXPECT_EQ(SampleSizeTotal(0, sizes.data()), 0);
  EXPECT_EQ(SampleSizeTotal(-4, nullptr), 0);
}

TEST(PowerReverseOverallTest, ReachesThePowerAndOneTotalLessDoesNot) {
  for (const double power : {0.5, 0.8, 0.95}) {
    for (const double sd : {3.0, 6.0, 20.0}) {
      DoubleVector sizes;
      const double total = PowerReverseOverallTest(3, usualMeans.data(), sd, usualSizes.data(), power, sizes, 0.05);
      ASSERT_EQ(sizes.size(), 3U);
      EXPECT_EQ(total, SampleSizeTotal(3, sizes.data()));
      EXPECT_GE(Power(usualMeans, sd, sizes), power);
      const double perGroup = sizes[0] - 1;
      if (perGroup >= 2) {
        EXPECT_LT(Power(usualMeans, sd, {perGroup, perGroup, perGroup}), power);
      }
    }
  }
}

// Powers of totals a little above and below a whole size of each group: the total is found to 1e-6 before it is spread.
TEST(PowerReverseOverallTest, RoundsUpATotalThatIsFoundToSixDecimals) {
  const std::vector<double> ratios = {1, 1, 1};
  for (int n = 5; n <= 40; ++n) {
    for (const double excess : {-1e-4, 1e-4}) {
      DoubleVector sizes;
      const double power = Power(usualMeans, 6, std::vector<double>(3, n + excess));
      PowerReverseOverallTest(3, usualMeans.data(), 6, ratios.data(), power, sizes, 0.05);
      EXPECT_EQ(sizes, DoubleVector(3, excess > 0 ? n + 1 : n)) << n;
    }
  }
}

TEST(PowerReverseOverallTest, MatchesAPublishedSize) {
  // Cohen (1988), example 8.10: k = 4, f 0.25, alpha 0.05, power 0.80 needs 45 per group.
  DoubleVector sizes;
  const std::vector<double> equal = {1, 1, 1, 1};
  EXPECT_EQ(PowerReverseOverallTestwES(4, 0.25, 0, equal.data(), 0.80, sizes, 0.05), 180);
  EXPECT_EQ(sizes, (DoubleVector{45, 45, 45, 45}));
}

TEST(PowerReverseOverallTest, SpreadsTheTotalByTheRatiosWithAtLeastTwoEach) {
  DoubleVector sizes = {1, 2, 3, 4, 5};
  const std::vector<double> ratios = {1, 50, 100};
  const double total = PowerReverseOverallTest(3, usualMeans.data(), 6, ratios.data(), 0.8, sizes, 0.05);
  ASSERT_EQ(sizes.size(), 3U);
  EXPECT_EQ(sizes[0], 2);
  EXPECT_EQ(total, sizes[0] + sizes[1] + sizes[2]);
  EXPECT_NEAR(sizes[2] / sizes[1], 2, 0.05);
}

TEST(PowerReverseOverallTest, ATargetAtOrBelowAlphaIsReachedByTwoEach) {
  DoubleVector sizes;
  EXPECT_EQ(PowerReverseOverallTest(3, usualMeans.data(), 6, usualSizes.data(), 0.05, sizes, 0.05), 6);
  EXPECT_EQ(sizes, (DoubleVector{2, 2, 2}));
}

TEST(PowerReverseOverallTest, AnUnreachablePowerGivesTwoEach) {
  DoubleVector sizes;
  EXPECT_EQ(PowerReverseOverallTest(3, std::vector<double>{5, 5, 5}.data(), 6, usualSizes.data(), 0.8, sizes, 0.05), 6);
  EXPECT_EQ(PowerReverseOverallTestwES(3, 0, 0, usualSizes.data(), 0.8, sizes, 0.05), 6);
  EXPECT_EQ(PowerReverseOverallTestwES(3, 0.3, 0, usualSizes.data(), 1.5, sizes, 0.05), 6);
}

TEST(PowerReverseOverallTest, LeavesTheOutputAloneOnInvalidInput) {
  DoubleVector sizes = {42};
  EXPECT_TRUE(KelMV::IsMissing(PowerReverseOverallTest(1, usualMeans.data(), 6, usualSizes.data(), 0.8, sizes, 0.05)));
  EXPECT_TRUE(KelMV::IsMissing(PowerReverseOverallTest(3, usualMeans.data(), 0, usualSizes.data(), 0.8, sizes, 0.05)));
  EXPECT_TRUE(KelMV::IsMissing(PowerReverseOverallTest(3, usualMeans.data(), 6, usualSizes.data(), 0.8, sizes, 1)));
  EXPECT_TRUE(KelMV::IsMissing(PowerReverseOverallTestwES(1, 0.3, 0, usualSizes.data(), 0.8, sizes, 0.05)));
  EXPECT_TRUE(KelMV::IsMissing(PowerReversebyHalfCIOverallTest(1, 3, usualSizes.data(), -6, sizes, 0.05)));
  EXPECT_EQ(sizes, DoubleVector{42});
}

TEST(HalfCIOverallTest, IsInvertedByTheSizeForIt) {
  for (const double halfWidth : {0.5, 1.0, 3.0}) {
    DoubleVector sizes;
    const double total = PowerReversebyHalfCIOverallTest(halfWidth, 3, usualSizes.data(), 6, sizes, 0.05);
    EXPECT_LE(HalfCIOverallTest(total, 3, 6, 0.05), halfWidth);
    EXPECT_GT(HalfCIOverallTest(total - 3, 3, 6, 0.05), halfWidth);
  }
}

TEST(HalfCIOverallTest, IsTOverTheRootOfTheSize) {
  // t(0.975, 57) = 2.002465459291007
  EXPECT_NEAR(HalfCIOverallTest(60, 3, 6, 0.05), 2.002465459291007 * 6 / std::sqrt(60.0), 1e-14);
}

TEST(HalfCIOverallTest, WithoutDegreesOfFreedomComesBackAllTheSame) {
  EXPECT_LT(HalfCIOverallTest(3, 3, 6, 0.05), 0);  // what the missing quantile makes of it
}

TEST(RMSSEOverallTest, OfEqualMeansKeepsTheStandardDeviation) {
  const std::vector<double> equal = {5, 5};
  EXPECT_TRUE(std::isnan(RMSSEOverallTest(2, equal.data(), std::nan(""), usualSizes.data(), 0.05)));
}

// Only the group without subjects lies apart, so the means do not differ, however small the standard deviation.
TEST(PowerOverallTest, OfGroupsThatDifferWithoutWeightIsAlpha) {
  const std::vector<double> means = {5, 1, 1};
  const std::vector<double> sizes = {0, 10, 10};
  EXPECT_NEAR(PowerOverallTest(3, means.data(), 1e-200, sizes.data(), 0.05), 0.05, 1e-15);
}

TEST(PowerReversebyHalfCIOverallTest, GivesTwoEachWhereTheQuantileIsInfinite) {
  const std::vector<double> ratios = {1, 1};
  DoubleVector sizes;
  EXPECT_EQ(PowerReversebyHalfCIOverallTest(2, 2, ratios.data(), 1, sizes, 1e-17), 4);
  EXPECT_EQ(sizes, (DoubleVector{2, 2}));
}

}  // namespace
}  // namespace kelpower
