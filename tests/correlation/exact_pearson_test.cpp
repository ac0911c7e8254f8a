#include "correlation/exact_pearson.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "correlation/pearson.h"
#include "kelcommon/kel_dist_fun.h"

namespace kelpower::correlation {
namespace {

using KelMath::KelDistFun;

constexpr double infinite = std::numeric_limits<double>::infinity();
const Level twoSided(0.05, false);
const Level oneSided(0.05, true);

// Nearer to 1 the rounding of a critical value shows: that of 0.99 and 3 cases moves the level by 2e-13.
TEST(ExactPower, IsTheLevelWithoutAnEffect) {
  for (const double n : {3.0, 5.0, 30.0, 1000.0}) {
    for (const double null : {-0.9, -0.2, 0.0, 0.5, 0.9}) {
      EXPECT_NEAR(*ExactPower(twoSided, n, {null, null}), 0.05, 1e-13) << n << ' ' << null;
    }
  }
}

TEST(ExactPower, OfANullOfZeroIsThatOfTheTTest) {
  for (const double n : {4.0, 20.0, 500.0}) {
    const double t = KelDistFun::IdfT(0.975, n - 2, 0, 0);
    const CriticalCorrelations critical = CriticalValues(twoSided, n, {0.3, 0});
    EXPECT_NEAR(critical.above, t / std::sqrt(n - 2 + t * t), 1e-15) << n;
    EXPECT_EQ(critical.below, -critical.above) << n;
  }
}

TEST(ExactPower, MirrorsWithTheCorrelations) {
  for (const Level& level : {twoSided, oneSided}) {
    for (const double n : {4.0, 25.0, 300.0}) {
      EXPECT_EQ(*ExactPower(level, n, {0.5, 0.2}), *ExactPower(level, n, {-0.5, -0.2})) << n;
      EXPECT_EQ(*ExactPower(level, n, {-0.1, 0.2}), *ExactPower(level, n, {0.1, -0.2})) << n;
    }
  }
}

TEST(ExactPower, GrowsWithTheSizeAndWithTheEffect) {
  for (const double null : {0.0, 0.4, -0.8}) {
    double before = 0;
    for (double n = 4; n < 3000; n *= 1.3) {
      const double power = *ExactPower(oneSided, n, {null + 0.1, null});
      EXPECT_GE(power, before) << n << ' ' << null;
      before = power;
    }
    before = 0;
    for (double r = null + 0.02; r < 1; r += 0.02) {
      const double power = *ExactPower(oneSided, 40, {r, null});
      EXPECT_GE(power, before) << r << ' ' << null;
      before = power;
    }
  }
}

// The difference falls about as fast as the size grows.
TEST(ExactPower, NearsThatOfFishersZ) {
  for (const double n : {50.0, 500.0, 5000.0}) {
    const double z = *Power({twoSided}, n, {3 / std::sqrt(n), 0});
    EXPECT_NEAR(*ExactPower(twoSided, n, {3 / std::sqrt(n), 0}), z, 0.5 / n) << n;
  }
}

TEST(ExactPower, IsRefusedWhereThereIsNoTest) {
  EXPECT_FALSE(ExactPower(twoSided, 2, {0.5, 0.2}));
  EXPECT_FALSE(ExactPower(twoSided, -infinite, {0.5, 0.2}));
  EXPECT_FALSE(ExactPower(twoSided, 20, {1.5, 0.2}));
  EXPECT_FALSE(ExactPower(twoSided, 20, {0.5, 1}));
  EXPECT_FALSE(ExactPower(twoSided, 20, {0.5, -1}));
  EXPECT_FALSE(ExactPower({1.5, false}, 20, {0.5, 0.2}));
  EXPECT_EQ(*ExactPower(twoSided, 20, {1, 0.2}), 1);
  EXPECT_EQ(*ExactPower(twoSided, infinite, {0.5, 0.2}), 1);
}

}  // namespace
}  // namespace kelpower::correlation
