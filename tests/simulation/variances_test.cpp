#include <gtest/gtest.h>

#include <cmath>

#include "kelcommon/distributions.h"
#include "support/share_of_studies.h"
#include "variances/one_variance.h"
#include "variances/two_variances.h"

// Normal samples drawn, and their variances tested.
namespace kelpower::variances {
namespace {

constexpr int studies = 1000000;

void ExpectOne(int n, double sd, double nullSd, double alpha, bool isOneSided, unsigned seed) {
  const VarianceTest test = *VarianceTest::Checked(n, alpha, isOneSided);
  const auto share = Simulate(studies, seed, [&](auto& engine) {
    const double chiSquare = (n - 1) * DrawNormal(engine, n, 3, sd).variance / (nullSd * nullSd);
    const bool isAbove = chiSquare > test.UpperCritical();
    const bool isBelow = chiSquare < test.LowerCritical();
    if (isOneSided) return sd < nullSd ? isBelow : isAbove;
    return isAbove || isBelow;
  });
  const double power = *test.Power(sd * sd / (nullSd * nullSd));
  EXPECT_LT(share.StandardErrorsFrom(power), kMostStandardErrors) << share.share << ", " << power;
}

void ExpectTwo(int n1, int n2, double sd1, double sd2, double alpha, bool isOneSided, unsigned seed) {
  const TwoVariancesTest test = *TwoVariancesTest::Checked(n1, n2, alpha, isOneSided);
  const auto share = Simulate(studies, seed, [&](auto& engine) {
    const double f = DrawNormal(engine, n1, 1, sd1).variance / DrawNormal(engine, n2, 2, sd2).variance;
    const bool isAbove = f > test.UpperCritical();
    const bool isBelow = f < test.LowerCritical();
    if (isOneSided) return sd1 < sd2 ? isBelow : isAbove;
    return isAbove || isBelow;
  });
  const double power = *test.Power(sd1 * sd1 / (sd2 * sd2));
  EXPECT_LT(share.StandardErrorsFrom(power), kMostStandardErrors) << share.share << ", " << power;
}

TEST(SimulatedVariance, TwoSided) { ExpectOne(12, 1.5, 1, 0.05, false, 21); }

TEST(SimulatedVariance, LessThanItsNullValue) { ExpectOne(16, 0.7, 1, 0.05, true, 22); }

TEST(SimulatedVariance, MoreThanItsNullValue) { ExpectOne(8, 12, 8, 0.1, true, 23); }

TEST(SimulatedTwoVariances, TwoSidedOfUnequalGroups) { ExpectTwo(9, 15, 3, 2, 0.05, false, 24); }

TEST(SimulatedTwoVariances, LessThanTheOther) { ExpectTwo(10, 8, 1, 2, 0.05, true, 25); }

TEST(SimulatedTwoVariances, MoreThanTheOther) { ExpectTwo(7, 12, 2, 1, 0.01, true, 26); }

}  // namespace
}  // namespace kelpower::variances
