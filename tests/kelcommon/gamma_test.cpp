#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "kelcommon/distributions.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"

// What must hold between gamma, chi-square, their noncentral form and Poisson, whatever their method.
namespace kelcommon {
namespace {

constexpr int draws = 1000;

class Draw {
public:
  double LogUniform(double low, double high) { return low * std::pow(high / low, unit_(engine_)); }

private:
  std::mt19937_64 engine_{20261122};
  std::uniform_real_distribution<double> unit_{0, 1};
};

TEST(ChiSquare, IsExponentialOnTwoDegreesOfFreedom) {
  for (const double x : {1e-10, 0.1, 1.0, 5.0, 30.0, 1000.0}) {
    EXPECT_NEAR(CdfChiSquare(x, 2), -std::expm1(-x / 2), 1e-15) << x;
    EXPECT_NEAR(SfChiSquare(x, 2) / std::exp(-x / 2), 1, 2e-13) << x;
  }
}

TEST(ChiSquare, IsTheSquareOfANormalVariable) {
  for (const double z : {0.01, 0.5, 1.0, 2.0, 5.0, 20.0})
    EXPECT_NEAR(SfChiSquare(z * z, 1) / (2 * KelMath::KelDistFun::CdfStdNorm(-z)), 1, 1e-13) << z;
}

// Near 0 the lower tail is the power alone.
TEST(ChiSquare, KeepsItsDigitsNearZero) {
  for (const double df : {0.01, 1.0, 2.0, 2.5, 3.0}) {
    for (const double x : {1e-300, 1e-200, 1e-179, 1e-120, 1e-60}) {
      const double power = std::pow(x / 2, df / 2) / std::tgamma(1 + df / 2);
      if (power < 1e-290) continue;
      EXPECT_NEAR(CdfChiSquare(x, df) / power, 1, 1e-12) << x << ", " << df;
      EXPECT_NEAR(NonCentralCdfChiSquare(x, df, 3) / (power * std::exp(-1.5)), 1, 1e-12) << x << ", " << df;
    }
  }
}

TEST(ChiSquare, TailsAddToOne) {
  Draw draw;
  for (int i = 0; i < draws; ++i) {
    const double df = draw.LogUniform(1e-4, 1e8);
    const double x = df * draw.LogUniform(0.1, 10);
    EXPECT_NEAR(CdfChiSquare(x, df) + SfChiSquare(x, df), 1, 3e-16) << x << ", " << df;
  }
}

// The last digits of the quantile, which far out move its probability by more than its own error, bracket it.
TEST(ChiSquare, QuantilesUndoTheProbabilities) {
  constexpr double lastDigits = 1e-15;
  constexpr double probabilityError = 1e-13;
  Draw draw;
  for (int i = 0; i < draws; ++i) {
    const double df = draw.LogUniform(2, 1e6);
    const double p = draw.LogUniform(1e-200, 0.999);
    const double lower = IdfChiSquare(p, df);
    EXPECT_LE(CdfChiSquare(lower * (1 - lastDigits), df), p * (1 + probabilityError)) << p << ", " << df;
    EXPECT_GE(CdfChiSquare(lower * (1 + lastDigits), df), p * (1 - probabilityError)) << p << ", " << df;
    const double upper = IsfChiSquare(p, df);
    EXPECT_GE(SfChiSquare(upper * (1 - lastDigits), df), p * (1 - probabilityError)) << p << ", " << df;
    EXPECT_LE(SfChiSquare(upper * (1 + lastDigits), df), p * (1 + probabilityError)) << p << ", " << df;
  }
}

TEST(NonCentralChiSquare, IsCentralWithoutNoncentrality) {
  Draw draw;
  for (int i = 0; i < draws; ++i) {
    const double df = draw.LogUniform(0.1, 1000);
    const double x = df * draw.LogUniform(0.2, 4);
    EXPECT_EQ(NonCentralCdfChiSquare(x, df, 0), CdfChiSquare(x, df));
    EXPECT_EQ(NonCentralSfChiSquare(x, df, 0), SfChiSquare(x, df));
    EXPECT_NEAR(NonCentralSfChiSquare(x, df, 1e-300), SfChiSquare(x, df), 1e-15);
  }
}

TEST(NonCentralChiSquare, IsTheSquareOfAShiftedNormalVariable) {
  for (const double shift : {0.1, 1.0, 3.0, 10.0, 60.0, 400.0}) {
    for (const double z : {0.5, 2.0, 8.0, 59.0, 399.0}) {
      using KelMath::KelDistFun;
      const double above = KelDistFun::CdfStdNorm(shift - z) + KelDistFun::CdfStdNorm(-shift - z);
      EXPECT_NEAR(NonCentralSfChiSquare(z * z, 1, shift * shift), above, 1e-14 + 1e-12 * above) << z << ", " << shift;
    }
  }
}

TEST(NonCentralChiSquare, TailsAddToOneAndRiseWithTheNoncentrality) {
  Draw draw;
  for (int i = 0; i < draws; ++i) {
    const double df = draw.LogUniform(0.1, 1e4);
    const double noncentrality = draw.LogUniform(1e-3, 1e5);
    const double x = (df + noncentrality) * draw.LogUniform(0.5, 2);
    const double upper = NonCentralSfChiSquare(x, df, noncentrality);
    EXPECT_NEAR(NonCentralCdfChiSquare(x, df, noncentrality) + upper, 1, 3e-16);
    EXPECT_GE(NonCentralSfChiSquare(x, df, 1.01 * noncentrality), upper);
  }
}

TEST(NonCentralityChiSquare, GivesTheProbability) {
  Draw draw;
  for (int i = 0; i < draws; ++i) {
    const double df = draw.LogUniform(0.3, 1e4);
    const double x = df * draw.LogUniform(0.5, 4);
    const double central = SfChiSquare(x, df);
    const double q = central + (1 - central) * draw.LogUniform(1e-3, 0.999);
    const double noncentrality = NonCentralityChiSquare(q, x, df);
    EXPECT_NEAR(NonCentralSfChiSquare(x, df, noncentrality), q, 1e-14) << q << ", " << x << ", " << df;
  }
}

TEST(NonCentralityChiSquare, IsZeroAtTheLevel) {
  const double x = IsfChiSquare(0.05, 3);
  EXPECT_EQ(NonCentralityChiSquare(SfChiSquare(x, 3), x, 3), 0);
  EXPECT_TRUE(KelCommon::KelMV::IsMissing(NonCentralityChiSquare(0.049, x, 3)));
}

// Far above the mode of the weights the first tail is denormal, which the sum of all is not.
TEST(NonCentralChiSquare, KeepsItsDigitsFarOut) {
  EXPECT_NEAR(NonCentralSfChiSquare(12000, 2, 10000) / 7.1598277930817438e-22, 1, 1e-13);
  EXPECT_GT(NonCentralSfChiSquare(9264, 2, 4800), 1e-200);
}

TEST(Poisson, SumsItsMasses) {
  for (const double mean : {0.01, 0.7, 12.5, 300.0}) {
    double sum = 0;
    for (int k = 0; k < 400; ++k) {
      sum += PdfPoisson(k, mean);
      EXPECT_NEAR(CdfPoisson(k, mean), sum, 1e-13) << k << ", " << mean;
      EXPECT_NEAR(SfPoisson(k, mean), 1 - sum, 1e-13) << k << ", " << mean;
    }
  }
}

TEST(Poisson, QuantileIsTheLastCountUpToTheProbability) {
  Draw draw;
  for (int i = 0; i < draws; ++i) {
    const double mean = draw.LogUniform(1e-3, 1e9);
    const double p = draw.LogUniform(1e-12, 1);
    const double k = IdfPoisson(p, mean);
    EXPECT_LE(CdfPoisson(k, mean), p) << p << ", " << mean;
    EXPECT_GT(CdfPoisson(k + 1, mean), p) << p << ", " << mean;
  }
}

}  // namespace
}  // namespace kelcommon
