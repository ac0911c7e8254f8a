#include "regression/multiple_correlation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <fstream>
#include <limits>
#include <random>
#include <string>

#include "kelcommon/kel_dist_fun.h"
#include "stated_series.h"

namespace kelpower::regression {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double quietNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double accuracy = 1e-12;

double Cdf(double df1, double df2, double critical, double rhoSquared) {
  return CdfSquaredMultipleCorrelation({df1, df2, critical, 1e-10}, rhoSquared);
}

TEST(SquaredMultipleCorrelation, AgreesWithMultiplePrecisionReferences) {
  std::ifstream file(KELPOWER_REFERENCES "/multiple_correlation.csv");
  std::string line;
  ASSERT_TRUE(std::getline(file, line));
  int rows = 0;
  for (; std::getline(file, line); ++rows) {
    double df1, df2, critical, rhoSquared, cdf;
    ASSERT_EQ(5, std::sscanf(line.c_str(), "%lf,%lf,%lf,%lf,%lf", &df1, &df2, &critical, &rhoSquared, &cdf)) << line;
    EXPECT_NEAR(Cdf(df1, df2, critical, rhoSquared), cdf, accuracy) << line;
  }
  EXPECT_GT(rows, 200);
}

// The series keeps about 14 digits less those of its largest logarithm; small samples keep twelve.
TEST(SquaredMultipleCorrelation, EqualsTheStatedSeriesOverRandomDesigns) {
  std::mt19937 random(20240601);
  const auto uniform = [&](double low, double high) { return std::uniform_real_distribution<>(low, high)(random); };
  for (int i = 0; i < 5000; ++i) {
    const double df1 = std::floor(uniform(1, 9));
    const double df2 = uniform(1, 25);
    const double rhoSquared = uniform(1e-4, 0.25);
    const FTest test = FTest::AtLevel(std::exp(uniform(std::log(1e-3), std::log(0.5))), df1, df2);
    ASSERT_NEAR(CdfSquaredMultipleCorrelation(test, rhoSquared), CdfByStatedSeries(test, rhoSquared), accuracy)
        << "df1 " << df1 << " df2 " << df2 << " critical " << test.critical << " rho^2 " << rhoSquared;
  }
}

TEST(SquaredMultipleCorrelation, WithoutCorrelationIsTheCentralDistribution) {
  for (const double df2 : {1.0, 7.5, 194.0, 1e8, 1e300}) {
    const FTest test = FTest::AtLevel(0.05, 5, df2);
    EXPECT_NEAR(CdfSquaredMultipleCorrelation(test, 0), 0.95, 1e-13) << df2;
    EXPECT_NEAR(CdfSquaredMultipleCorrelation(test, 1e-320), 0.95, 1e-13) << df2;
  }
}

// With df1 = df2 = 2 and a = e = 1: I_c(1 + k, 1) = c^(1 + k), and the mixture is c ((1 - rho^2) / (1 - c rho^2))^2.
TEST(SquaredMultipleCorrelation, HasTheClosedFormOfTwoAndTwoDegreesOfFreedom) {
  for (const double critical : {0.1, 1.0, 19.0, 1e4, 1e9}) {
    for (const double rhoSquared : {1e-9, 0.1, 0.5, 0.99, 0.99999, 1 - 1e-9, 1 - 1e-13}) {
      const double beyond = 1 / (1 + critical);
      const double c = critical * beyond;
      const double base = (1 - rhoSquared) / (1 - rhoSquared + beyond * rhoSquared);
      EXPECT_NEAR(Cdf(2, 2, critical, rhoSquared), c * base * base, accuracy) << critical << ' ' << rhoSquared;
    }
  }
}

// For large samples with a small effect the weights become Poisson weights, and the mixture that of a noncentral F.
TEST(SquaredMultipleCorrelation, TendsToTheNoncentralFDistribution) {
  for (const double size : {1e13, 1e100, 1e300, 1e307}) {
    const FTest test = FTest::AtLevel(0.05, 5, size);
    EXPECT_NEAR(1 - CdfSquaredMultipleCorrelation(test, 12 / size), test.Power(12), 1e-11) << size;
  }
}

// Where the sum hands over to the integral, neighbours must not step.
// The spread of the weights passes 1000 between these two, where the sum hands over to the integral: at rho^2 = r it is
// sqrt(h r) / (1 - r).
TEST(SquaredMultipleCorrelation, IsContinuousWhereTheMethodChanges) {
  for (const double df2 : {1e3, 1e4, 1e5, 1e6}) {
    const double df1 = 5;
    const double h = (df1 + df2) / 2;
    double low = 0;
    double high = 1;
    while (std::nextafter(low, 1) < high) {
      const double mid = low + (high - low) / 2;
      (std::sqrt(h * mid) / (1 - mid) < 1000 ? low : high) = mid;
    }
    const double centre = 1 + 2 * h / df1 * high / (1 - high);
    for (const double factor : {0.98, 1.0, 1.01}) {
      const double below = Cdf(df1, df2, centre * factor, low * (1 - 1e-15));
      EXPECT_NEAR(below, Cdf(df1, df2, centre * factor, high * (1 + 1e-15)), accuracy) << df2;
      EXPECT_GT(below, 0);
      EXPECT_LT(below, 1);
    }
  }
}

TEST(SquaredMultipleCorrelation, FallsWithTheCorrelation) {
  double last = 1;
  for (double rhoSquared = 0; rhoSquared < 0.95; rhoSquared += 1.0 / 512) {
    const double cdf = Cdf(3, 20, 4, rhoSquared);
    EXPECT_LT(cdf, last);
    last = cdf;
  }
  EXPECT_LT(last, 1e-9);
}

TEST(SquaredMultipleCorrelation, AnswersAtTheEndsOfItsArguments) {
  EXPECT_EQ(Cdf(5, 94, 2.3, 1), 0);
  EXPECT_EQ(Cdf(5, 94, infinite, 0.3), 1);
  EXPECT_TRUE(std::isnan(Cdf(5, 94, 2.3, -1e-9)));
  EXPECT_TRUE(std::isnan(Cdf(5, 94, 2.3, 1 + 1e-9)));
  EXPECT_TRUE(std::isnan(Cdf(5, 94, 2.3, quietNaN)));
  EXPECT_TRUE(std::isnan(Cdf(5, 94, quietNaN, 0.3)));
  EXPECT_TRUE(std::isnan(Cdf(quietNaN, 94, 2.3, 0.3)));
  EXPECT_EQ(Cdf(5, infinite, 2.3, 0.3), 0);
}

}  // namespace
}  // namespace kelpower::regression
