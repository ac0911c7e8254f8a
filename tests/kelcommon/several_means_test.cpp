#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "kelcommon/distributions.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"

// The studentized range and the bivariate normal distribution.
namespace {

using KelCommon::KelMV;
using KelMath::KelDistFun;
using namespace kelcommon;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(StudentizedRange, OfTwoMeansIsStudentsT) {
  for (double df : {0.3, 1.0, 1.5, 2.0, 3.6, 4.0, 10.0, 47.5, 1e3, 1e6, 1e12})
    for (double q : {1e-6, 0.01, 0.3, 1.0, 2.8, 5.0, 12.0, 40.0}) {
      const double upper = 2 * KelDistFun::NonCentralCdfT(-q / std::sqrt(2.0), df, 0, 0);
      if (upper < 1e-250) continue;
      const double allowed = df < 1 ? 2e-13 : 2e-12;  // relative; smaller ones are below what t itself is held to
      EXPECT_NEAR(SfStudentizedRange(q, 2, df) / upper, 1, allowed) << df << " " << q;
      EXPECT_NEAR(CdfStudentizedRange(q, 2, df), 1 - upper, 1e-14) << df << " " << q;
    }
}

// With 2 degrees of freedom u^2 is exponential; as they grow, the range is that with known standard deviation.
TEST(StudentizedRange, TendsToTheRange) {
  for (double k : {2.0, 3.0, 8.0, 40.0})
    for (double q : {0.5, 2.0, 4.0})
      EXPECT_NEAR(CdfStudentizedRange(q, k, 1e17), CdfStudentizedRange(q, k, infinity), 1e-14) << k << " " << q;
  EXPECT_NEAR(CdfStudentizedRange(2, 2, infinity), std::erf(1.0), 1e-15);
}

TEST(StudentizedRange, IsMonotone) {
  for (double df : {0.5, 1.0, 5.0, 30.0, 1e5})
    for (double k : {2.0, 4.0, 25.0}) {
      double before = 0;
      for (double q = 0.05; q < 60; q *= 2) {
        const double lower = CdfStudentizedRange(q, k, df);
        EXPECT_GE(lower, before - 1e-14) << q << " " << k << " " << df;
        EXPECT_NEAR(lower + SfStudentizedRange(q, k, df), 1, 2e-14) << q << " " << k << " " << df;
        EXPECT_LE(CdfStudentizedRange(q, k + 1, df), lower + 1e-14) << q << " " << k << " " << df;
        before = lower;
      }
    }
}

TEST(StudentizedRange, QuantilesInvertProbabilities) {
  for (double df : {1.0, 3.0, 12.0, 200.0, infinity})
    for (double k : {2.0, 3.0, 60.0})
      for (double p : {1e-9, 0.05, 0.3, 0.7, 0.95}) {
        const double above = IsfStudentizedRange(p, k, df);
        EXPECT_NEAR(SfStudentizedRange(above, k, df) / p, 1, 1e-12) << p << " " << k << " " << df;
        const double below = IdfStudentizedRange(p, k, df);
        EXPECT_NEAR(CdfStudentizedRange(below, k, df) / p, 1, 1e-11) << p << " " << k << " " << df;
      }
  EXPECT_NEAR(IsfStudentizedRange(0.05, 3, 57), 3.40318919259405, 1e-12);
  EXPECT_NEAR(IdfStudentizedRange(0.99, 5, 12), 5.836308366059, 1e-12);
}

TEST(StudentizedRange, KeepsItsContract) {
  for (auto function : {CdfStudentizedRange, SfStudentizedRange, IdfStudentizedRange, IsfStudentizedRange}) {
    EXPECT_TRUE(std::isnan(function(nan, 3, 10)));
    EXPECT_TRUE(std::isnan(function(0.5, nan, 10)));
    EXPECT_TRUE(std::isnan(function(0.5, 3, nan)));
    for (double k : {1.9, 0.0, -3.0, 1e7, infinity, -infinity})
      EXPECT_TRUE(KelMV::IsMissing(function(0.5, k, 10))) << k;
    for (double df : {0.0, -1.0, -infinity}) EXPECT_TRUE(KelMV::IsMissing(function(0.5, 3, df))) << df;
  }
  for (double q : {0.0, -1.0, -infinity}) {
    EXPECT_EQ(CdfStudentizedRange(q, 3, 10), 0);
    EXPECT_EQ(SfStudentizedRange(q, 3, 10), 1);
  }
  EXPECT_EQ(CdfStudentizedRange(infinity, 3, 10), 1);
  EXPECT_EQ(SfStudentizedRange(infinity, 3, 10), 0);
  for (double p : {-0.1, 1.1}) {
    EXPECT_TRUE(KelMV::IsMissing(IdfStudentizedRange(p, 3, 10)));
    EXPECT_TRUE(KelMV::IsMissing(IsfStudentizedRange(p, 3, 10)));
  }
  EXPECT_EQ(IdfStudentizedRange(0, 3, 10), 0);
  EXPECT_EQ(IdfStudentizedRange(1, 3, 10), infinity);
  EXPECT_EQ(IsfStudentizedRange(0, 3, 10), infinity);
  EXPECT_EQ(IsfStudentizedRange(1, 3, 10), 0);
}

TEST(StudentizedRange, AnswersEveryArgument) {
  const double specials[] = {5e-324, 1e-310, 1e-20, 0.01, 0.3, 1 - 0x1p-53, 1, 7.5, 400, 1e9, 1e150, 1e308, infinity};
  for (double q : specials)
    for (double k : {2.0, 2.5, 100.0})
      for (double df : specials) {
        for (auto probability : {CdfStudentizedRange, SfStudentizedRange}) {
          const double value = probability(q, k, df);
          EXPECT_TRUE(value >= 0 && value <= 1) << q << " " << k << " " << df << " " << value;
        }
        if (q > 1 || k > 2.5) continue;
        for (auto quantile : {IdfStudentizedRange, IsfStudentizedRange}) {
          const double value = quantile(q, k, df);
          EXPECT_TRUE(value >= 0) << q << " " << k << " " << df << " " << value;
        }
      }
}

TEST(StudentizedRange, TakesAMillionMeans) {
  EXPECT_NEAR(CdfStudentizedRange(12, 1e6, 20), 1 - SfStudentizedRange(12, 1e6, 20), 1e-14);
  const double upper = SfStudentizedRange(12, 1e6, 20);
  EXPECT_TRUE(upper > 0 && upper < 1) << upper;
}

TEST(BivariateNormal, HasItsSpecialValues) {
  const double pi = std::acos(-1.0);
  for (double rho : {-1.0, -0.999999, -0.4, 0.0, 1e-9, 0.3, 0.5, 0.75, 0.99999, 1.0}) {
    EXPECT_NEAR(CdfBivariateNormal(0, 0, rho), 0.25 + std::asin(rho) / (2 * pi), 1e-15) << rho;
    for (double a : {-3.0, -0.2, 1.4}) {
      EXPECT_NEAR(CdfBivariateNormal(a, infinity, rho), KelDistFun::CdfStdNorm(a), 1e-16);
      EXPECT_EQ(CdfBivariateNormal(a, -infinity, rho), 0);
      for (double b : {-2.0, 0.1, 2.5}) {
        EXPECT_NEAR(CdfBivariateNormal(a, b, rho), CdfBivariateNormal(b, a, rho), 1e-15) << a << " " << b << " " << rho;
        const double both = CdfBivariateNormal(a, b, rho) + CdfBivariateNormal(a, -b, -rho);
        EXPECT_NEAR(both, KelDistFun::CdfStdNorm(a), 2e-15) << a << " " << b << " " << rho;
      }
    }
  }
}

TEST(BivariateNormal, KeepsItsContract) {
  EXPECT_TRUE(std::isnan(CdfBivariateNormal(nan, 0, 0)));
  EXPECT_TRUE(std::isnan(CdfBivariateNormal(0, nan, 0)));
  EXPECT_TRUE(std::isnan(CdfBivariateNormal(0, 0, nan)));
  for (double rho : {-1.5, 1.0000001, infinity}) EXPECT_TRUE(KelMV::IsMissing(CdfBivariateNormal(0, 0, rho)));
  std::mt19937_64 random(3);
  for (int i = 0; i < 20000; ++i) {
    std::uniform_real_distribution<double> point(-45, 45);
    std::uniform_real_distribution<double> exponent(-16, 0);
    const double rho = (i % 2 == 0 ? 1 : -1) * (1 - std::pow(10, exponent(random)));
    const double a = point(random);
    const double b = i % 3 == 0 ? rho * a : point(random);
    const double value = CdfBivariateNormal(a, b, rho);
    EXPECT_TRUE(value >= 0 && value <= 1) << a << " " << b << " " << rho << " " << value;
  }
}

}  // namespace
