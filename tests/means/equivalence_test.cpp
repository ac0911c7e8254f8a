#include "means/equivalence.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "means/margins.h"

namespace kelpower::means {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

/// With limits of -1 and 1.
double PowerAt(double difference, double alpha, const DifferenceDistribution& estimate) {
  return *PowerBetweenLimits({1 + difference, 1 - difference}, alpha, estimate);
}

// With one limit far away, the other one alone decides.
TEST(Equivalence, WithOneLimitIsAMargin) {
  for (double df : {1.0, 4.0, 38.0, 2000.0}) {
    for (double distance : {-0.5, 0.3, 1.0, 3.0}) {
      for (double alpha : {0.001, 0.05, 0.3}) {
        const DifferenceDistribution estimate{df, 0.4};
        const double margin = *PowerBeyondMargin(distance, alpha, estimate);
        EXPECT_NEAR(*PowerBetweenLimits({distance, 1e9}, alpha, estimate), margin, 1e-13) << df << ' ' << distance;
        EXPECT_NEAR(*PowerBetweenLimits({1e9, distance}, alpha, estimate), margin, 1e-13) << df << ' ' << distance;
      }
    }
  }
}

// Both tests reject at least as often as their rejections less one, and not more often than either.
TEST(Equivalence, LiesBetweenTheBoundsOfItsTests) {
  for (double df : {2.0, 20.0, 200.0}) {
    for (double error : {0.05, 0.2, 0.5, 1.0}) {
      for (double difference : {0.0, 0.4, 0.9, 1.2}) {
        const DifferenceDistribution estimate{df, error};
        const double lower = *PowerBeyondMargin(1 + difference, 0.05, estimate);
        const double upper = *PowerBeyondMargin(1 - difference, 0.05, estimate);
        const double power = PowerAt(difference, 0.05, estimate);
        EXPECT_GE(power, lower + upper - 1 - 1e-14);
        EXPECT_LE(power, std::fmin(lower, upper) + 1e-14);
      }
    }
  }
}

TEST(Equivalence, IsSymmetric) {
  for (double difference : {0.1, 0.7, 1.5}) {
    EXPECT_NEAR(PowerAt(difference, 0.05, {12, 0.3}), PowerAt(-difference, 0.05, {12, 0.3}), 1e-15);
  }
}

TEST(Equivalence, RisesToTheMiddleAndWithTheLevel) {
  const DifferenceDistribution estimate{22, 0.35};
  for (double difference = 0; difference < 1.2; difference += 0.1) {
    EXPECT_GT(PowerAt(difference, 0.05, estimate), PowerAt(difference + 0.1, 0.05, estimate));
  }
  for (double alpha : {0.01, 0.05, 0.2, 0.5, 0.7}) {
    EXPECT_LT(PowerAt(0.2, alpha, estimate), PowerAt(0.2, alpha + 0.1, estimate));
  }
}

TEST(Equivalence, RisesAsTheErrorFalls) {
  for (double error = 2; error > 0.01; error /= 1.5) {
    EXPECT_LE(PowerAt(0.3, 0.05, {18, error}), PowerAt(0.3, 0.05, {18, error / 1.5}));
  }
  EXPECT_NEAR(PowerAt(0.3, 0.05, {18, 1e-3}), 1, 1e-15);
  EXPECT_EQ(PowerAt(1.5, 0.05, {18, 1e-3}), 0);
}

// From the level on the power crosses a target once as both groups grow, which the search for sizes takes for granted.
TEST(Equivalence, RisesWithTheSizeOnceAboveTheLevel) {
  for (double alpha : {0.01, 0.05, 0.1, 0.3}) {
    for (double sd : {0.2, 1.0, 5.0}) {
      for (double difference : {0.0, 0.5, 0.95}) {
        double before = 0;
        for (double size = 2; size < 3000; size = std::ceil(size * 1.07)) {
          const double power = PowerAt(difference, alpha, PooledDifference(size, size, sd));
          if (before >= alpha) {
            EXPECT_GE(power, before - 1e-14) << alpha << ' ' << sd << ' ' << difference << ' ' << size;
          }
          before = power;
        }
      }
    }
  }
}

// On a limit the level is kept, and reached where the other limit is far.
TEST(Equivalence, KeepsItsLevelOnTheLimits) {
  for (double error : {0.02, 0.1, 0.5, 2.0}) EXPECT_LE(PowerAt(1, 0.05, {30, error}), 0.05 + 1e-15);
  EXPECT_NEAR(PowerAt(1, 0.05, {30, 0.02}), 0.05, 1e-14);
}

// Limits of 5.97 around 0, a difference of 8.5448 either way and a standard deviation of 1 in two groups of 7, at a level
// of 0.41: 2.33563295336e-7 in multiple precision.
TEST(Equivalence, KeepsTheDigitsOfSmallPowers) {
  const DifferenceDistribution estimate = PooledDifference(7, 7, 1);
  EXPECT_NEAR(*PowerBetweenLimits({5.97 + 8.5448, 5.97 - 8.5448}, 0.41, estimate), 2.33563295336e-7, 1e-18);
  EXPECT_NEAR(*PowerBetweenLimits({5.97 - 8.5448, 5.97 + 8.5448}, 0.41, estimate), 2.33563295336e-7, 1e-18);
}

// At a level above one half the critical value is negative, and no spread is too large to reject.
TEST(Equivalence, HasLevelsAboveOneHalf) {
  EXPECT_NEAR(PowerAt(0, 0.5, {10, 1e6}), 0, 1e-6);
  EXPECT_GT(PowerAt(0, 0.9, {10, 1e6}), 0.8 - 1e-3);
  EXPECT_LE(PowerAt(0, 0.9, {10, 1e6}), 0.8 + 1e-5);
}

TEST(Equivalence, RefusesWhatIsNoTest) {
  for (double alpha : {0.0, 1.0, nan}) EXPECT_EQ(PowerBetweenLimits({1, 1}, alpha, {10, 1}).Reason(), NoValue::Refused);
  EXPECT_FALSE(PowerBetweenLimits({1, 1}, 0.05, {0, 1}));
  EXPECT_FALSE(PowerBetweenLimits({1, 1}, 0.05, {10, 0}));
  EXPECT_FALSE(PowerBetweenLimits({nan, 1}, 0.05, {10, 1}));
  EXPECT_FALSE(PowerBetweenLimits({1, nan}, 0.05, {10, 1}));
}

TEST(Equivalence, IsAPowerWhateverIsGiven) {
  for (double lower : {-infinity, -1e300, -1.0, 0.0, 1e-300, 2.0, 1e300}) {
    for (double upper : {-1e300, -2.0, 0.0, 1.0, 1e300}) {
      for (double df : {1e-300, 0.1, 1.0, 1e6, 1e300}) {
        for (double error : {1e-300, 1.0, 1e300}) {
          for (double alpha : {1e-300, 0.05, 0.5, 0.999}) {
            const Answer power = PowerBetweenLimits({lower, upper}, alpha, {df, error});
            ASSERT_TRUE(power);
            EXPECT_GE(*power, 0) << lower << ' ' << upper << ' ' << df << ' ' << error << ' ' << alpha;
            EXPECT_LE(*power, 1 + 1e-13) << lower << ' ' << upper << ' ' << df << ' ' << error << ' ' << alpha;
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace kelpower::means
