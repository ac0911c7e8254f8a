#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"
#include "support/stop_requests.h"

namespace kelpower {
namespace {

using keltest::CountingStop;

using KelCommon::KelMV;
using KelMath::KelDistFun;

constexpr double quietNaN = std::numeric_limits<double>::quiet_NaN();
constexpr std::uint8_t bothFlags[] = {0, 1};

TEST(PowerbyOneSampPearson, MatchesPublishedTables) {
  // Cohen (1988), Tables 3.3.5 and 3.3.2: two-sided 0.05, r 0.30, n 84: 0.80; one-sided 0.05, r 0.30, n 68: 0.80.
  EXPECT_NEAR(PowerbyOneSampPearson(84, 0.3, 0, 0, 0, 0.05), 0.80, 0.006);
  EXPECT_NEAR(PowerbyOneSampPearson(68, 0.3, 0, 1, 0, 0.05), 0.80, 0.006);
}

TEST(PowerbyOneSampPearson, IsTheNormalProbabilityOfFishersZ) {
  const double shift = std::atanh(0.3) * std::sqrt(47.0);
  const double critical = 1.959963984540054;
  EXPECT_NEAR(PowerbyOneSampPearson(50, 0.3, 0, 0, 0, 0.05),
              KelDistFun::CdfStdNorm(shift - critical) + KelDistFun::CdfStdNorm(-shift - critical), 1e-14);
}

TEST(PowerbyOneSampPearson, OfEqualCorrelationsIsAlpha) {
  for (const double alpha : {1e-6, 0.01, 0.05, 0.5, 0.99}) {
    for (const double correlation : {-0.9, 0.0, 0.5}) {
      EXPECT_NEAR(PowerbyOneSampPearson(30, correlation, correlation, 0, 0, alpha), alpha, 1e-14);
      EXPECT_NEAR(PowerbyOneSampPearson(30, correlation, correlation, 1, 0, alpha), alpha, 1e-14);
    }
  }
}

TEST(PowerbyOneSampPearson, IsSymmetricInTheSigns) {
  for (const int oneSided : {0, 1}) {
    for (const std::uint8_t adjustBias : bothFlags) {
      EXPECT_NEAR(PowerbyOneSampPearson(30, 0.5, 0.1, oneSided, adjustBias, 0.05),
                  PowerbyOneSampPearson(30, -0.5, -0.1, oneSided, adjustBias, 0.05), 1e-15);
    }
  }
}

TEST(PowerbyOneSampPearson, GrowsWithSizeEffectAndAlpha) {
  for (const std::uint8_t adjustBias : bothFlags) {
    double last = 0;
    for (double n = 4; n < 100; n += 1.5) {
      EXPECT_GT(PowerbyOneSampPearson(n, 0.4, 0.1, 0, adjustBias, 0.05), last);
      last = PowerbyOneSampPearson(n, 0.4, 0.1, 0, adjustBias, 0.05);
    }
    last = 0;
    for (double correlation = 0.1; correlation < 0.7; correlation += 0.05) {
      EXPECT_GT(PowerbyOneSampPearson(30, correlation, 0, 0, adjustBias, 0.05), last);
      last = PowerbyOneSampPearson(30, correlation, 0, 0, adjustBias, 0.05);
    }
    last = 0;
    for (double alpha = 0.01; alpha < 1; alpha += 0.01) {
      EXPECT_GT(PowerbyOneSampPearson(30, 0.2, 0, 0, adjustBias, alpha), last);
      last = PowerbyOneSampPearson(30, 0.2, 0, 0, adjustBias, alpha);
    }
  }
}

TEST(PowerbyOneSampPearson, AnswersAtTheEndsOfItsArguments) {
  EXPECT_EQ(PowerbyOneSampPearson(3, 0.3, 0, 0, 0, 0.05), -1);
  EXPECT_GT(PowerbyOneSampPearson(std::nextafter(3.0, 4), 0.3, 0, 0, 0, 0.05), 0.04);
  EXPECT_EQ(PowerbyOneSampPearson(30, 1.01, 0, 0, 0, 0.05), -1);
  EXPECT_EQ(PowerbyOneSampPearson(30, 0, -1.01, 0, 0, 0.05), -1);
  EXPECT_EQ(PowerbyOneSampPearson(30, 0.3, 0, 0, 0, 0), -1);
  EXPECT_EQ(PowerbyOneSampPearson(30, 0.3, 0, 0, 0, 1), -1);
  EXPECT_GT(PowerbyOneSampPearson(30, 0.3, 0, 0, 0, 0.5), 0.5);
  EXPECT_EQ(PowerbyOneSampPearson(30, 1, 1, 0, 0, 0.05), 1);
  EXPECT_EQ(PowerbyOneSampPearson(30, 1, 0.5, 0, 1, 0.05), 1);
  EXPECT_EQ(PowerbyOneSampPearson(30, -1, 0.5, 0, 1, 0.05), 1);
  EXPECT_EQ(PowerbyOneSampPearson(1e308, 0.1, 0, 0, 1, 0.05), 1);
  EXPECT_NEAR(PowerbyOneSampPearson(1e307, 0.2, 0.2, 0, 1, 0.05), 0.05, 1e-14);
  EXPECT_TRUE(std::isnan(PowerbyOneSampPearson(quietNaN, 0.3, 0, 0, 0, 0.05)));
  EXPECT_TRUE(std::isnan(PowerbyOneSampPearson(30, quietNaN, 0, 0, 0, 0.05)));
  EXPECT_TRUE(std::isnan(PowerbyOneSampPearson(30, 0.3, 0, 0, 0, quietNaN)));
}

// The power functions correct for 1 alone, the searches for every byte but 0.
TEST(AdjustBias, IsReadDifferentlyByPowersAndSearches) {
  EXPECT_EQ(PowerbyOneSampPearson(30, 0.3, 0, 0, 2, 0.05), PowerbyOneSampPearson(30, 0.3, 0, 0, 0, 0.05));
  EXPECT_NE(PowerbyOneSampPearson(30, 0.3, 0, 0, 1, 0.05), PowerbyOneSampPearson(30, 0.3, 0, 0, 0, 0.05));
  EXPECT_EQ(HalfCIOneSampPearson(30, 0.3, 2, 0.05), HalfCIOneSampPearson(30, 0.3, 0, 0.05));
  EXPECT_NE(HalfCIOneSampPearson(30, 0.3, 1, 0.05), HalfCIOneSampPearson(30, 0.3, 0, 0.05));
  EXPECT_EQ(PowerReversebyOneSampPearson(0.8, 0.3, 0, 0, 2, 0.05, nullptr),
            PowerReversebyOneSampPearson(0.8, 0.3, 0, 0, 1, 0.05, nullptr));
  EXPECT_EQ(PowerReversebyHalfCIOneSampPearson(0.3, 0.9, 255, 0.05, nullptr),
            PowerReversebyHalfCIOneSampPearson(0.3, 0.9, 1, 0.05, nullptr));
}

TEST(PowerReversebyOneSampPearson, GivesTheSizeThatReachesTheTarget) {
  for (const int oneSided : {0, 1}) {
    for (const std::uint8_t adjustBias : bothFlags) {
      for (const double target : {0.2, 0.8, 0.99}) {
        const double n = PowerReversebyOneSampPearson(target, 0.25, 0.1, oneSided, adjustBias, 0.05, nullptr);
        EXPECT_NE(n, std::floor(n));
        EXPECT_LE(PowerbyOneSampPearson(n, 0.25, 0.1, oneSided, adjustBias, 0.05), target);
        EXPECT_GT(PowerbyOneSampPearson(n + 1e-8, 0.25, 0.1, oneSided, adjustBias, 0.05), target);
      }
    }
  }
}

TEST(PowerReversebyOneSampPearson, IsMissingWithoutASolution) {
  EXPECT_TRUE(KelMV::IsMissing(PowerReversebyOneSampPearson(0.8, 1.5, 0, 0, 0, 0.05, nullptr)));
  EXPECT_TRUE(KelMV::IsMissing(PowerReversebyOneSampPearson(0.8, 0.2, 0.2, 0, 0, 0.05, nullptr)));
  EXPECT_TRUE(KelMV::IsMissing(PowerReversebyOneSampPearson(0.8, 0.3, 0, 0, 0, 0, nullptr)));
  CountingStop stop(3);
  EXPECT_TRUE(KelMV::IsMissing(PowerReversebyOneSampPearson(0.8, 0.3, 0, 0, 0, 0.05, &stop)));
  EXPECT_EQ(stop.asked, 3);
}

TEST(HalfCIOneSampPearson, OfNoCorrelationNeedsNoCorrection) {
  EXPECT_EQ(HalfCIOneSampPearson(30, 0, 1, 0.05), HalfCIOneSampPearson(30, 0, 0, 0.05));
  EXPECT_NEAR(HalfCIOneSampPearson(30, 0, 0, 0.05), std::tanh(1.959963984540054 / std::sqrt(27.0)), 1e-15);
}

TEST(HalfCIOneSampPearson, ShrinksWithSize) {
  double last = 1;
  for (double n = 4; n < 1e12; n *= 1.7) {
    EXPECT_LT(HalfCIOneSampPearson(n, 0.4, 1, 0.05), last);
    last = HalfCIOneSampPearson(n, 0.4, 1, 0.05);
  }
}

TEST(PowerReversebyHalfCIOneSampPearson, MatchesPublishedSizes) {
  // Moinester and Gottfried (2014): a full width of 0.10 at 95%.
  EXPECT_EQ(PowerReversebyHalfCIOneSampPearson(0.05, 0.30, 0, 0.05, nullptr), 1274);
  EXPECT_EQ(PowerReversebyHalfCIOneSampPearson(0.05, 0.70, 0, 0.05, nullptr), 404);
}

TEST(PowerReversebyHalfCIOneSampPearson, GivesTheFirstWholeSizeThatIsNarrowEnough) {
  for (const double halfWidth : {0.4, 0.1, 0.01, 1e-4}) {
    const double n = PowerReversebyHalfCIOneSampPearson(halfWidth, 0.5, 1, 0.05, nullptr);
    EXPECT_EQ(n, std::floor(n));
    EXPECT_LE(HalfCIOneSampPearson(n, 0.5, 1, 0.05), halfWidth);
    EXPECT_GT(HalfCIOneSampPearson(n - 1, 0.5, 1, 0.05), halfWidth);
  }
}

}  // namespace
}  // namespace kelpower
