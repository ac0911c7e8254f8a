#include <gtest/gtest.h>

#include <cmath>

#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

namespace kelpower {
namespace {

using KelCommon::KelMV;
using KelMath::KelDistFun;

constexpr double critical = 1.959963984540054;

double TwoSided(double shift) {
  return KelDistFun::CdfStdNorm(shift - critical) + KelDistFun::CdfStdNorm(-shift - critical);
}

TEST(PowerbyOneSampSpearman, HasThreeVariances) {
  const double z = std::atanh(0.4);
  const double n = 40;
  EXPECT_NEAR(PowerbyOneSampSpearman(n, 0.4, 0, 0, 0, 0.05), TwoSided(z / std::sqrt((1 + 0.08) / (n - 3))), 1e-14);
  EXPECT_NEAR(PowerbyOneSampSpearman(n, 0.4, 0, 1, 0, 0.05), TwoSided(z / std::sqrt(1.06 / (n - 3))), 1e-14);
  EXPECT_NEAR(PowerbyOneSampSpearman(n, 0.4, 0, 2, 0, 0.05),
              TwoSided(z / std::sqrt(z / (6 * n + 4 * std::sqrt(n)) + 1 / (n - 2))), 1e-14);
}

TEST(PowerbyOneSampSpearman, AtThreeCasesIsOneUnlessItsVarianceIsFinite) {
  EXPECT_EQ(PowerbyOneSampSpearman(3, 0.4, 0, 0, 0, 0.05), 1);
  EXPECT_EQ(PowerbyOneSampSpearman(3, 0.4, 0, 1, 1, 0.05), 1);
  EXPECT_EQ(PowerbyOneSampSpearman(3, 0.4, 0, 7, 0, 0.05), 1);
  const double z = std::atanh(0.4);
  EXPECT_NEAR(PowerbyOneSampSpearman(3, 0.4, 0, 2, 0, 0.05), TwoSided(z / std::sqrt(z / (18 + 4 * std::sqrt(3)) + 1)),
              1e-14);
  EXPECT_EQ(PowerbyOneSampSpearman(std::nextafter(3.0, 0), 0.4, 0, 2, 0, 0.05), -1);
}

TEST(PowerbyOneSampSpearman, OfEqualCorrelationsIsAlpha) {
  for (const int method : {0, 1, 2}) {
    for (const int oneSided : {0, 1}) {
      for (const double alpha : {1e-6, 0.05, 0.9}) {
        EXPECT_NEAR(PowerbyOneSampSpearman(30, 0.4, 0.4, method, oneSided, alpha), alpha, 1e-14);
      }
    }
  }
}

// The variance of method 2 grows with z, so the largest double stands for z of a correlation of 1 on both sides.
TEST(PowerbyOneSampSpearman, OfAPerfectCorrelation) {
  for (const int method : {0, 1, 2}) {
    EXPECT_EQ(PowerbyOneSampSpearman(30, 1, 0.2, method, 0, 0.05), 1);
    EXPECT_EQ(PowerbyOneSampSpearman(30, -1, 0.2, method, 1, 0.05), 1);
  }
}

TEST(PowerbyOneSampSpearman, RejectsInvalidInput) {
  EXPECT_EQ(PowerbyOneSampSpearman(30, 0.4, 0, 3, 0, 0.05), -1);
  EXPECT_EQ(PowerbyOneSampSpearman(30, 0.4, 0, -1, 0, 0.05), -1);
  EXPECT_EQ(PowerbyOneSampSpearman(30, 1.1, 0, 0, 0, 0.05), -1);
  EXPECT_EQ(PowerbyOneSampSpearman(30, 0.4, -1.1, 0, 0, 0.05), -1);
  EXPECT_EQ(PowerbyOneSampSpearman(30, 0.4, 0, 0, 0, 1), -1);
}

TEST(PowerReversebyOneSampSpearman, GivesTheSizeThatReachesTheTarget) {
  for (const int method : {0, 1, 2}) {
    const double n = PowerReversebyOneSampSpearman(0.8, 0.35, 0, method, 0, 0.05);
    EXPECT_LE(PowerbyOneSampSpearman(n, 0.35, 0, method, 0, 0.05), 0.8);
    EXPECT_GT(PowerbyOneSampSpearman(n + 1e-8, 0.35, 0, method, 0, 0.05), 0.8);
  }
  EXPECT_TRUE(KelMV::IsMissing(PowerReversebyOneSampSpearman(0.8, 0.35, 0, 3, 0, 0.05)));
  EXPECT_TRUE(KelMV::IsMissing(PowerReversebyOneSampSpearman(0.8, 0.2, 0.2, 2, 0, 0.05)));
  // A small target is reached at the lower end, which is 3 for method 2 alone.
  EXPECT_EQ(PowerReversebyOneSampSpearman(0.01, 0.35, 0, 2, 0, 0.05), 3);
  EXPECT_EQ(PowerReversebyOneSampSpearman(0.01, 0.35, 0, 1, 0, 0.05), 4);
}

TEST(HalfCIOneSampSpearman, OfAnUnknownMethodIsZero) {
  EXPECT_EQ(HalfCIOneSampSpearman(30, 0.4, 3, 0.05), 0);
  EXPECT_EQ(PowerReversebyHalfCIOneSampSpearman(0.1, 0.4, 3, 0.05, nullptr), 4);
}

TEST(PowerReversebyHalfCIOneSampSpearman, GivesTheFirstWholeSizeThatIsNarrowEnough) {
  for (const int method : {0, 1, 2}) {
    const double n = PowerReversebyHalfCIOneSampSpearman(0.1, 0.4, method, 0.05, nullptr);
    EXPECT_LE(HalfCIOneSampSpearman(n, 0.4, method, 0.05), 0.1);
    EXPECT_GT(HalfCIOneSampSpearman(n - 1, 0.4, method, 0.05), 0.1);
  }
}

// The variance of Caruso and Cliff is infinite without cases.
TEST(HalfCIOneSampSpearman, WithoutCasesIsTheWholeRange) {
  EXPECT_EQ(HalfCIOneSampSpearman(0, 0.5, 2, 0.05), 1);
  EXPECT_TRUE(std::isnan(HalfCIOneSampSpearman(0, 0, 2, 0.05)));
}

}  // namespace
}  // namespace kelpower
