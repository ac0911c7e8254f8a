#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "kelpower.h"

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double quietNaN = std::numeric_limits<double>::quiet_NaN();

/// The coefficient by sums of logarithms, term by term.
double CombinationByLogarithms(double n, double k) {
  if (k == 0 || k == n) return 1;
  const double m = n - k < k ? n - k : k;
  double s1 = 0;
  for (double i = 1; i <= m; ++i) s1 += std::log(i);
  double s2 = 0;
  for (double j = std::trunc(n - m + 1); j <= n; ++j) s2 += std::log(j);
  return std::exp(std::fabs(s1 - s2));
}

TEST(Combination, IsPascalsTriangle) {
  for (int n = 1; n <= 60; ++n) {
    for (int k = 1; k < n; ++k) {
      const double sum = Combination(n - 1, k - 1) + Combination(n - 1, k);
      EXPECT_NEAR(Combination(n, k) / sum, 1, 4e-16) << n << " over " << k;
      EXPECT_EQ(Combination(n, k), Combination(n, n - k));
    }
  }
}

TEST(Combination, IsTheNearestDouble) {
  EXPECT_EQ(Combination(56, 28), 7648690600760440);  // below 2^53
  EXPECT_EQ(Combination(57, 28), 1.503363324977052e16);
  EXPECT_EQ(Combination(410, 320), 2.447603944096778e92);
  EXPECT_EQ(Combination(605, 193), 1.1301418816497216e163);
  EXPECT_EQ(Combination(663, 420), 5.052442869957149e187);
  EXPECT_EQ(Combination(741, 357), 2.0735832224272923e221);
  EXPECT_EQ(Combination(1029, 514), 1.429820686498904e308);
}

TEST(Combination, AgreesWithTheSumsOfLogarithms) {
  for (double n = 0.25; n < 70; n += 0.75) {
    for (double k = -3; k < n + 3; k += 0.5) {
      const double wanted = CombinationByLogarithms(n, k);
      EXPECT_NEAR(Combination(n, k) / wanted, 1, 1e-13) << n << " over " << k;
    }
  }
}

TEST(Combination, HasItsEdges) {
  EXPECT_EQ(Combination(5, 0), 1);
  EXPECT_EQ(Combination(5, 5), 1);
  EXPECT_EQ(Combination(5, 2), 10);
  EXPECT_EQ(Combination(4, 2), 6);
  EXPECT_EQ(Combination(5, -1), 1);
  EXPECT_EQ(Combination(5, 7), 1);
  EXPECT_EQ(Combination(5.5, 2), 10);
}

TEST(Combination, IsTotalAndReturnsAtOnce) {
  EXPECT_EQ(Combination(1e300, 1), 1e300);
  EXPECT_EQ(Combination(1e300, 3), infinite);
  EXPECT_NEAR(Combination(1.8e154, 2) / 1.62e308, 1, 1e-15);
  EXPECT_EQ(Combination(1e18, 5e17), infinite);
  EXPECT_EQ(Combination(1e308, 1e308 - 1e300), infinite);
  EXPECT_EQ(Combination(infinite, 3), infinite);
  EXPECT_EQ(Combination(infinite, infinite), 1);
  EXPECT_EQ(Combination(infinite, -infinite), 1);
  EXPECT_EQ(Combination(-1e300, 5), 1);
  EXPECT_EQ(Combination(3, infinite), 1);
  EXPECT_EQ(Combination(quietNaN, 0), 1);
  EXPECT_TRUE(std::isnan(Combination(quietNaN, 3)));
  EXPECT_TRUE(std::isnan(Combination(3, quietNaN)));
  // The largest coefficients that are representable
  EXPECT_EQ(Combination(1030, 515), infinite);
}

TEST(InvTanh, IsTheInverseOfTanh) {
  for (double z = -6; z <= 6; z += 0.125) EXPECT_NEAR(InvTanh(std::tanh(z)), z, 1e-11);
  for (double x = -0.96875; x < 1; x += 0.03125) {
    EXPECT_NEAR(InvTanh(x), 0.5 * (std::log(1 + x) - std::log(1 - x)), 1e-15);
    EXPECT_EQ(InvTanh(x), -InvTanh(-x));
  }
}

TEST(InvTanh, HasItsEdges) {
  EXPECT_EQ(InvTanh(1.5), -1);
  EXPECT_EQ(InvTanh(-1.5), -1);
  EXPECT_EQ(InvTanh(infinite), -1);
  EXPECT_EQ(InvTanh(1), infinite);
  EXPECT_EQ(InvTanh(-1), -infinite);
  EXPECT_EQ(InvTanh(1e-13), 1e-13);
  EXPECT_TRUE(std::isnan(InvTanh(quietNaN)));
}

}  // namespace
