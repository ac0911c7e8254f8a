#include "effects/noncentrality.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/reference_rows.h"
#include "support/share_of_studies.h"

namespace kelpower::effects {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(Noncentrality, OfTAgreesWithMultiplePrecision) {
  const auto rows = ReferenceRows(KELPOWER_REFERENCES "/noncentrality_t.csv");
  ASSERT_GE(rows.size(), 10u);
  for (const auto& row : rows) {
    const auto limits = NoncentralityOfT(row[0], row[1], row[2]);
    ASSERT_TRUE(limits);
    EXPECT_NEAR(limits->lower, row[3], 1e-12 * (1 + std::fabs(row[3]))) << row[0] << ' ' << row[1];
    EXPECT_NEAR(limits->upper, row[4], 1e-12 * (1 + std::fabs(row[4]))) << row[0] << ' ' << row[1];
  }
}

TEST(Noncentrality, OfFAgreesWithMultiplePrecision) {
  const auto rows = ReferenceRows(KELPOWER_REFERENCES "/noncentrality_f.csv");
  ASSERT_GE(rows.size(), 10u);
  for (const auto& row : rows) {
    const auto limits = NoncentralityOfF(row[0], row[1], row[2], row[3]);
    ASSERT_TRUE(limits);
    EXPECT_NEAR(limits->lower, row[4], 1e-12 * (1 + row[4])) << row[0] << ' ' << row[1];
    EXPECT_NEAR(limits->upper, row[5], 1e-12 * (1 + row[5])) << row[0] << ' ' << row[1];
  }
}

// The example of the R package MBESS 4.9.3 for t = 2.83, whose search stops at 1e-9.
TEST(Noncentrality, IsThatOfAnotherProgram) {
  const auto limits = NoncentralityOfT(2.83, 126, 0.05);
  EXPECT_NEAR(limits->lower, 0.8337502600219154, 1e-8);
  EXPECT_NEAR(limits->upper, 4.815359140493508, 1e-8);
}

TEST(Noncentrality, OfTIsMirrored) {
  for (const double df : {0.5, 1.0, 7.0, 1e3, 1e9}) {
    for (const double t : {0.0, 0.3, 5.0, 80.0}) {
      const auto limits = NoncentralityOfT(t, df, 0.1);
      const auto mirrored = NoncentralityOfT(-t, df, 0.1);
      ASSERT_TRUE(limits && mirrored) << df << ' ' << t;
      EXPECT_EQ(limits->lower, -mirrored->upper);
      EXPECT_EQ(limits->upper, -mirrored->lower);
      EXPECT_LT(limits->lower, limits->upper);
    }
  }
}

// A two-sided F test on 1 degree of freedom knows t up to its sign; with a sign that is certain the limits are squares.
TEST(Noncentrality, OfFIsThatOfTSquared) {
  const auto t = NoncentralityOfT(9, 40, 0.05);
  const auto f = NoncentralityOfF(81, 1, 40, 0.05);
  EXPECT_NEAR(f->lower, t->lower * t->lower, 1e-9);
  EXPECT_NEAR(f->upper, t->upper * t->upper, 1e-9);
}

TEST(Noncentrality, CoversTheTrueOneAsOftenAsStated) {
  const double truth = 2.2;
  const int df = 9;
  const auto share = Simulate(4000, 21, [&](auto& engine) {
    const double numerator = std::normal_distribution<double>(truth, 1)(engine);
    const double chiSquare = std::chi_squared_distribution<double>(df)(engine);
    const auto limits = NoncentralityOfT(numerator / std::sqrt(chiSquare / df), df, 0.1);
    return limits->lower <= truth && truth <= limits->upper;
  });
  EXPECT_LT(share.StandardErrorsFrom(0.9), kMostStandardErrors);
}

TEST(Noncentrality, OfFCoversTheTrueOneAsOftenAsStated) {
  const double truth = 9;
  const auto share = Simulate(4000, 22, [&](auto& engine) {
    std::normal_distribution<double> normal;
    const double first = normal(engine) + std::sqrt(truth);
    const double chiSquare = first * first + std::chi_squared_distribution<double>(2)(engine);
    const double error = std::chi_squared_distribution<double>(20)(engine);
    const auto limits = NoncentralityOfF(chiSquare / 3 / (error / 20), 3, 20, 0.1);
    return limits->lower <= truth && truth <= limits->upper;
  });
  EXPECT_LT(share.StandardErrorsFrom(0.9), kMostStandardErrors);
}

// Where the distribution functions run out of digits there may be no answer, but there is an end.
TEST(Noncentrality, AnswersExtremeStatistics) {
  for (const double x : {1e-300, 1e5, 1e15, 1e100}) {
    for (const double df : {0.01, 3.0, 1e12}) {
      const auto ofT = NoncentralityOfT(x, df, 0.05);
      const auto ofF = NoncentralityOfF(x, df, df, 0.05);
      if (x < 1e6 && df >= 3) {
        ASSERT_TRUE(ofT && ofF) << x << ' ' << df;
      }
      EXPECT_TRUE(!ofT || ofT->lower <= ofT->upper) << x << ' ' << df;
      EXPECT_TRUE(!ofF || ofF->lower <= ofF->upper) << x << ' ' << df;
    }
  }
}

TEST(Noncentrality, IsNoneForOtherArguments) {
  EXPECT_FALSE(NoncentralityOfT(HUGE_VAL, 10, 0.05));
  EXPECT_FALSE(NoncentralityOfT(2, 0, 0.05));
  EXPECT_FALSE(NoncentralityOfT(2, kNaN, 0.05));
  EXPECT_FALSE(NoncentralityOfT(2, 10, 1));
  EXPECT_FALSE(NoncentralityOfT(2, 10, kNaN));
  EXPECT_FALSE(NoncentralityOfF(-1, 2, 10, 0.05));
  EXPECT_FALSE(NoncentralityOfF(kNaN, 2, 10, 0.05));
  EXPECT_FALSE(NoncentralityOfF(2, -2, 10, 0.05));
  EXPECT_FALSE(NoncentralityOfF(2, 2, HUGE_VAL, 0.05));
  EXPECT_FALSE(NoncentralityOfF(2, 2, 10, 0));
}

}  // namespace
}  // namespace kelpower::effects
