#include "means/margins.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "means/one_sample.h"
#include "means/t_test_of_a_mean.h"

namespace kelpower::means {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(Margins, OfZeroAreTheOrdinaryTest) {
  for (double difference : {0.5, 3.0}) {
    const TwoSampleDesign design{difference, {6, 6, true}, Sides::One, 0.05};
    EXPECT_EQ(*PowerBeyondMargin(difference, 0.05, PooledDifference(30, 20, 6)), *Power(design, 30, 20));
    EXPECT_EQ(*PowerBeyondMargin(difference, 0.05, WelchDifference(30, 6, 20, 9)),
              *Power({difference, {6, 9, false}, Sides::One, 0.05}, 30, 20));
    EXPECT_NEAR(*PowerBeyondMargin(difference, 0.01, SingleMean(25, 6)),
                *Power(OneSampleDesign{difference / 6, Sides::One, 0.01}, 25), 1e-14);
  }
}

TEST(Margins, RejectAtTheLevelOnTheMargin) {
  for (double alpha : {1e-6, 0.025, 0.05, 0.5, 0.9}) {
    EXPECT_NEAR(*PowerBeyondMargin(0, alpha, PooledDifference(7, 12, 6)), alpha, 1e-13);
  }
}

TEST(Margins, RejectLessOnTheWrongSide) {
  double before = 1;
  for (double distance : {5.0, 1.0, 0.0, -1.0, -5.0, -50.0}) {
    const double power = *PowerBeyondMargin(distance, 0.05, PooledDifference(20, 20, 5));
    EXPECT_LT(power, before);
    before = power;
  }
  EXPECT_LT(before, 1e-15);
}

TEST(Margins, GrowWithSizeLevelAndDistance) {
  const auto power = [](double distance, double alpha, double size) {
    return *PowerBeyondMargin(distance, alpha, SingleMean(size, 4));
  };
  for (double size = 2; size < 60; ++size) EXPECT_LT(power(1, 0.05, size), power(1, 0.05, size + 1));
  EXPECT_LT(power(1, 0.01, 20), power(1, 0.02, 20));
  EXPECT_LT(power(1, 0.05, 20), power(1.1, 0.05, 20));
}

TEST(Margins, RefuseWhatIsNoTest) {
  for (double alpha : {0.0, 1.0, -1.0, 2.0, nan, infinity}) {
    EXPECT_EQ(PowerBeyondMargin(1, alpha, {10, 1}).Reason(), NoValue::Refused) << alpha;
  }
  for (double df : {0.0, -1.0, nan, -infinity}) EXPECT_FALSE(PowerBeyondMargin(1, 0.05, {df, 1})) << df;
  for (double error : {0.0, -1.0, nan}) EXPECT_FALSE(PowerBeyondMargin(1, 0.05, {10, error})) << error;
  EXPECT_FALSE(PowerBeyondMargin(nan, 0.05, {10, 1}));
  EXPECT_FALSE(PowerBeyondMargin(infinity, 0.05, {10, infinity}));
}

TEST(Margins, ArePowersWhateverIsGiven) {
  for (double distance : {-infinity, -1e300, -1e-300, 0.0, 1e-300, 1.0, 1e300, infinity}) {
    for (double df : {1e-300, 0.1, 1.0, 1e6, 1e300}) {
      for (double error : {1e-300, 1.0, 1e300}) {
        for (double alpha : {1e-300, 0.05, 0.999}) {
          const Answer power = PowerBeyondMargin(distance, alpha, {df, error});
          ASSERT_TRUE(power);
          EXPECT_GE(*power, 0) << distance << ' ' << df << ' ' << error << ' ' << alpha;
          EXPECT_LE(*power, 1) << distance << ' ' << df << ' ' << error << ' ' << alpha;
        }
      }
    }
  }
}

TEST(Margins, OfRatiosAreDistancesOfLogarithms) {
  EXPECT_DOUBLE_EQ(LogDistance(0.95, 0.8), std::log(0.95) - std::log(0.8));
  EXPECT_DOUBLE_EQ(LogDistance(3, 0.01), std::log(300.0));
  EXPECT_EQ(LogDistance(0.8, 0.8), 0);
  EXPECT_DOUBLE_EQ(LogDistance(1 + 0x1p-40, 1), 0x1p-40 - 0x1p-81);
  EXPECT_DOUBLE_EQ(LogDistance(1e300, 1e-300), 600 * std::log(10.0));
  for (double bad : {0.0, -1.0, nan, -infinity}) {
    EXPECT_TRUE(std::isnan(LogDistance(bad, 1)));
    EXPECT_TRUE(std::isnan(LogDistance(1, bad)));
  }
}

TEST(Margins, TakeTheSpreadOfLogarithmsFromTheCoefficientOfVariation) {
  EXPECT_DOUBLE_EQ(SdOfLogarithms(0.25), std::sqrt(std::log(1.0625)));
  EXPECT_DOUBLE_EQ(SdOfLogarithms(1e-9), 1e-9);
  EXPECT_DOUBLE_EQ(SdOfLogarithms(0.99999999e8), std::sqrt(2 * std::log(0.99999999e8)));
  EXPECT_DOUBLE_EQ(SdOfLogarithms(1e300), std::sqrt(600 * std::log(10.0)));
}

}  // namespace
}  // namespace kelpower::means
