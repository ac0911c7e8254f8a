#include "log_gamma.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "kelcommon/kel_dist_fun.h"

// The function that the library hides.
namespace {

using KelMath::LogScaledGamma;

struct Point {
  double x;
  double value;
};

// Made by tools/references/scaled_gamma.py.
constexpr Point points[] = {
#include "scaled_gamma.inc"
};

// A value up to 1/8 is stored with an error of up to 0.7e-17.
constexpr double storedError = 0.7e-17;

TEST(LogScaledGamma, HasTheErrorsItPromises) {
  for (const auto& [x, value] : points) {
    const double allowed = x < 1 ? 2.3e-16 * (1 + std::fabs(value)) : 2e-17 + storedError;
    EXPECT_LE(std::fabs(LogScaledGamma(x) - value), allowed) << x;
  }
}

// Gamma(x + 1) = x Gamma(x): J(x) = J(x + 1) + (x + 1/2) log(1 + 1/x) - 1.
TEST(LogScaledGamma, ObeysTheRecurrence) {
  for (double x = 0.0625; x < 40; x += 0.03125) {
    const double step = (x + 0.5) * std::log1p(1 / x) - 1;
    EXPECT_NEAR(LogScaledGamma(x), LogScaledGamma(x + 1) + step, 1e-15) << x;
  }
}

TEST(LogGamma, IsZeroWithoutASignAtOneAndTwo) {
  for (double x : {1.0, 2.0}) {
    EXPECT_EQ(KelMath::KelDistFun::orvadnlgam(x), 0) << x;
    EXPECT_FALSE(std::signbit(KelMath::KelDistFun::orvadnlgam(x))) << x;
  }
}

TEST(LogScaledGamma, TendsToZero) {
  EXPECT_EQ(LogScaledGamma(std::numeric_limits<double>::infinity()), 0);
  EXPECT_EQ(LogScaledGamma(1e200), 1 / 12e200);
}

}  // namespace
