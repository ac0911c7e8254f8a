#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"

namespace {

using KelCommon::KelMV;
using Dist = KelMath::KelDistFun;

constexpr double infinity = std::numeric_limits<double>::infinity();
const double nan = std::numeric_limits<double>::quiet_NaN();

double IdfT(double p, double df) { return Dist::IdfT(p, df, 1e-40, 1e-30); }
double CdfT(double x, double df, double delta) { return Dist::NonCentralCdfT(x, df, delta, 1e-12); }
double CdfF(double x, double df1, double df2, double lambda) {
  return Dist::NonCentralCdfF(x, df1, df2, lambda, 1e-12);
}

void ExpectRelative(double actual, double expected, double tolerance) {
  EXPECT_LE(std::fabs(actual - expected), tolerance * std::fabs(expected)) << actual << " is not " << expected;
}

const std::vector<double> someDf = {0.5, 1, 2, 3, 4.7, 10, 30, 123.4, 1000, 1e5, 1e7};
const std::vector<double> someDelta = {1e-6, 0.3, 1, 2.8, 5, 9.9, 10.1, 20, 60, 100};

TEST(TAndF, EndsOfTheSupport) {
  for (double df : someDf) {
    EXPECT_EQ(IdfT(0, df), -infinity);
    EXPECT_EQ(IdfT(1, df), infinity);
    EXPECT_EQ(IdfT(0.5, df), 0);
    EXPECT_EQ(Dist::IdfF(0, 3, df), 0);
    EXPECT_EQ(Dist::IdfF(1, 3, df), infinity);
    EXPECT_EQ(CdfT(-infinity, df, 1), 0);
    EXPECT_EQ(CdfT(KelMV::Missing(), df, -1), 0);
    EXPECT_EQ(CdfT(infinity, df, 1), 1);
    EXPECT_EQ(CdfT(1, df, infinity), 0);
    EXPECT_EQ(CdfT(1, df, -infinity), 1);
    EXPECT_EQ(CdfF(0, 3, df, 1), 0);
    EXPECT_EQ(CdfF(-1, 3, df, 1), 0);
    EXPECT_EQ(CdfF(-infinity, 3, df, 1), 0);
    EXPECT_EQ(CdfF(KelMV::Missing(), 3, df, 1), 0);
    EXPECT_EQ(CdfF(infinity, 3, df, 1), 1);
    EXPECT_EQ(CdfF(5, 3, df, infinity), 0);
  }
}

// Rows of the t and F tables to more digits, and closed forms.
TEST(TAndF, TextbookValues) {
  ExpectRelative(IdfT(0.975, 10), 2.2281388519862742, 1e-14);
  ExpectRelative(IdfT(0.975, infinity), 1.9599639845400545, 1e-14);
  ExpectRelative(Dist::IdfF(0.95, 3, 20), 3.0983912121407795, 1e-14);
  const double pi = std::acos(-1.0);
  for (double p : {1e-12, 0.001, 0.2, 0.49, 0.7, 0.975}) {
    ExpectRelative(IdfT(p, 1), -1 / std::tan(pi * p), 1e-13);
    ExpectRelative(IdfT(p, 2), (2 * p - 1) / std::sqrt(2 * p * (1 - p)), 1e-13);
    for (double df : {1.0, 7.0, 400.0})
      ExpectRelative(Dist::IdfF(p, 2, df), df / 2 * std::expm1(-2 / df * std::log1p(-p)), 1e-13);
  }
}

TEST(TAndF, QuantilesInvertTheDistribution) {
  for (double df : someDf) {
    for (double p : {1e-12, 1e-5, 0.025, 0.3, 0.6, 0.95, 0.999}) {
      ExpectRelative(CdfT(IdfT(p, df), df, 0), p, 1e-12);
      for (double df1 : {0.5, 1.0, 2.0, 5.0, 40.0}) ExpectRelative(CdfF(Dist::IdfF(p, df1, df), df1, df, 0), p, 2e-12);
    }
  }
}

TEST(TAndF, SquareOfTheTQuantileIsAnFQuantile) {
  for (double df : someDf)
    for (double p : {0.5, 0.8, 0.95, 0.9375, 1 - 0x1p-30}) {
      const double t = IdfT(1 - (1 - p) / 2, df);
      ExpectRelative(Dist::IdfF(p, 1, df), t * t, 1e-13);
    }
}

// The integral over the chi distribution to 20 digits, where its left end is long.
TEST(TAndF, WrongSideTailOfFewDegreesOfFreedom) {
  ExpectRelative(CdfT(-2, 0.001, 5), 2.8481010039069573e-7, 1e-12);
  ExpectRelative(CdfT(-2, 0.25, 5), 1.1787817042055102e-7, 1e-12);
  ExpectRelative(CdfT(-12.706, 1, 4), 4.4856784612844776e-7, 1e-12);
  ExpectRelative(CdfT(-1, 0.5, 3.5), 8.0360670826081700e-5, 1e-12);
  for (double df : {1e-18, 1e-30, 1e-300}) ExpectRelative(CdfT(-2, df, 5), 2.8665157187919391e-7, 1e-12);
}

// Whole degrees of freedom have tabulated gamma functions, their neighbours among the doubles have not.
TEST(TAndF, WholeDegreesOfFreedomAreAsTheirNeighbours) {
  for (double df = 1; df <= 33; ++df) {
    const double neighbour = std::nextafter(df, 100);
    for (double p : {0.01, 0.4, 0.95, 0.999}) {
      ExpectRelative(Dist::IdfF(p, df, 7.3), Dist::IdfF(p, neighbour, 7.3), 4e-15);
      ExpectRelative(Dist::IdfF(p, 7.3, df), Dist::IdfF(p, 7.3, neighbour), 4e-15);
      ExpectRelative(IdfT(p, df), IdfT(p, neighbour), 4e-15);
    }
    ExpectRelative(CdfF(1.4, df, 7.3, 3), CdfF(1.4, neighbour, 7.3, 3), 1e-14);
  }
}

// To 40 digits. Quantiles far out, where the logarithm of the tail is all but straight, and those whose tail is the
// complement of a larger one.
TEST(TAndF, QuantilesKeepTheirLastDigits) {
  ExpectRelative(Dist::IdfF(0.9999999905635342, 186.62660350311359, 1.8680982750524289), 375274278.09699947, 1e-15);
  ExpectRelative(Dist::IdfF(0.9480080309079868, 1.0, 17.93128993448286), 4.332691459921354, 1e-15);
  ExpectRelative(Dist::IdfF(0.6056932543924695, 1.0, 2452.0), 0.7258749859597944, 1e-15);
  ExpectRelative(Dist::IdfF(2.348535417933573e-174, 32.0, 13.77472511031557), 3.0294892854517590e-12, 1e-15);
  ExpectRelative(Dist::IdfF(1.950130255085848e-40, 30.0, 626.7742052237267), 0.00094448445247431335, 1e-15);
  ExpectRelative(IdfT(0.0062427569241741265, 18.322474467884547), -2.769718921052122, 1e-15);
  ExpectRelative(IdfT(0.975, 24.0), 2.0638985616280254, 1e-15);
  ExpectRelative(IdfT(0.8043239093063572, 36110.0), 0.857178047515988, 1e-15);
}

TEST(TAndF, TailsOfTSumToF) {
  for (double df : someDf)
    for (double delta : someDelta)
      for (double x : {0.1, 1.0, 2.0, 7.5, 30.0, 99.0}) {
        const double fromT = CdfT(x, df, delta) - CdfT(-x, df, delta);
        EXPECT_NEAR(CdfF(x * x, 1, df, delta * delta), fromT, 1e-13) << x << " " << df << " " << delta;
      }
}

TEST(TAndF, ReflectionOfT) {
  for (double df : someDf)
    for (double delta : someDelta)
      for (double x : {0.1, 1.0, 2.0, 7.5, 30.0, 99.0})
        EXPECT_NEAR(CdfT(x, df, delta) + CdfT(-x, df, -delta), 1, 1e-14) << x << " " << df << " " << delta;
}

// With two degrees of freedom s = sqrt(chi-square / 2) has P(s > u) = exp(-u^2), and the integral of Phi over it is
// elementary: P(T <= x) = Phi(-delta) + r exp(-delta^2 / (x^2 + 2)) Phi(delta r), r = x / sqrt(x^2 + 2).
TEST(TAndF, ClosedFormOfTAtTwoDegreesOfFreedom) {
  const auto Phi = [](double z) { return 0.5 * std::erfc(-z * std::sqrt(0.5)); };
  for (double delta : {-3.0, -0.7, 0.0, 0.4, 1.0, 2.8, 6.0, 12.0})
    for (double x : {-1.5, -0.2, 0.3, 1.0, 4.0, 40.0}) {
      const double r = x / std::sqrt(x * x + 2);
      EXPECT_NEAR(CdfT(x, 2, delta), Phi(-delta) + r * std::exp(-delta * delta / (x * x + 2)) * Phi(delta * r), 1e-14);
    }
}

TEST(TAndF, ProbabilityFallsWithTheNoncentralityAndGrowsWithX) {
  for (double df : someDf) {
    double previous = 1;
    for (double delta = -12; delta <= 60; delta += 0.37) {
      const double now = CdfT(3, df, delta);
      EXPECT_LE(now, previous * (1 + 1e-12)) << df << " " << delta;
      previous = now;
    }
    previous = 0;
    for (double x = -30; x <= 60; x += 0.37) {
      const double now = CdfT(x, df, 4.2);
      EXPECT_GE(now, previous * (1 - 1e-12)) << df << " " << x;
      previous = now;
    }
    previous = 1;
    for (double lambda = 0; lambda < 3e3; lambda += 1 + lambda / 8) {
      const double now = CdfF(2.5, 4, df, lambda);
      EXPECT_LE(now, previous * (1 + 1e-12)) << df << " " << lambda;
      previous = now;
    }
  }
}

// Over all orders of magnitude of every argument: where one of the methods fails, its neighbours do not.
TEST(TAndF, ProbabilityNeverFallsAsXGrows) {
  constexpr double noise = 1e-12;
  std::mt19937_64 random(20241121);
  const auto between = [&](double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  };
  for (int i = 0; i < 40'000; ++i) {
    const double df = std::pow(10, between(-3, i % 2 == 0 ? 20 : 300));
    const double delta = std::pow(10, between(-3, i % 2 == 0 ? 9 : 150));
    const double ratio = i % 5 == 0 ? std::pow(10, between(-10, 40)) : std::pow(10, between(-1, 1));
    const double growth = 1 + std::pow(10, between(-12, 2));

    const double t = delta * ratio;
    EXPECT_LE(CdfT(t, df, delta), CdfT(t * growth, df, delta) + noise) << t << ", " << df << ", " << delta;
    EXPECT_LE(CdfT(-t * growth, df, delta), CdfT(-t, df, delta) + noise) << -t << ", " << df << ", " << delta;

    const double df1 = std::pow(10, between(-2, 4));
    const double lambda = delta * delta;
    const double f = ratio * (1 + lambda / df1);
    EXPECT_LE(CdfF(f, df1, df, lambda), CdfF(f * growth, df1, df, lambda) + noise)
        << f << ", " << df1 << ", " << df << ", " << lambda;
  }
}

TEST(TAndF, LargeDegreesOfFreedomReachTheNormal) {
  const auto Phi = [](double z) { return 0.5 * std::erfc(-z * std::sqrt(0.5)); };
  for (double df : {1e17, 1e60, 1e300, infinity})
    for (double x : {-3.0, 0.5, 1.96})
      for (double delta : {-2.0, 0.0, 0.1, 3.0}) {
        EXPECT_NEAR(CdfT(x, df, delta), Phi(x - delta), 1e-14) << df << " " << x << " " << delta;
        EXPECT_NEAR(CdfF(x * x, 1, df, delta * delta), Phi(std::fabs(x) - delta) - Phi(-std::fabs(x) - delta), 1e-14);
      }
  // Two and four degrees of freedom: chi-square is elementary.
  for (double df2 : {1e17, 1e130, 1e307, infinity}) {
    ExpectRelative(CdfF(1.5, 2, df2, 0), -std::expm1(-1.5), 1e-14);
    ExpectRelative(CdfF(1.5, 4, df2, 0), 1 - 4 * std::exp(-3.0), 1e-14);
    ExpectRelative(Dist::IdfF(0.95, 2, df2), -std::log1p(-0.95), 1e-14);
  }
}

// Abramowitz and Stegun (1964), 26.7.5: from here on the next term, of the order of 1 / df^2, is below the last digit.
TEST(TAndF, QuantilesOfLargeDegreesOfFreedomApproachTheNormal) {
  for (double df : {1e10, 1e12, 1e14, 1e16})
    for (double p : {1e-10, 0.025, 0.3, 0.8, 0.975, 0.9999}) {
      const double z = Dist::IdfStdNorm(p);
      ExpectRelative(IdfT(p, df), z + (z * z * z + z) / (4 * df), 8e-16);
    }
}

// A size, a noncentrality that grows with it, and a critical value of its own size: as searches without an answer ask.
TEST(TAndF, SizesUpTo1e307) {
  for (double size = 1; size < 1e307; size *= 1e3) {
    EXPECT_LE(CdfT(1.96, size, 50 * std::sqrt(size)), 1e-100) << size;
    EXPECT_EQ(CdfT(1.96, size, -50 * std::sqrt(size)), 1) << size;
    EXPECT_LE(CdfF(3, 2, size, 4000 * std::fmax(size, 1)), 1e-15) << size;
    // Beyond, the rounding of the critical value is more than the distribution's spread.
    if (size < 1e25) {
      const double balanced = CdfF(1 + 1e-3 * size / 4, 4, size, 1e-3 * size);
      EXPECT_GT(balanced, 0.35) << size;
      EXPECT_LT(balanced, 0.65) << size;
    }
    const double quantile = Dist::IdfF(0.95, 3, size);
    EXPECT_GT(quantile, 2.6) << size;
    EXPECT_NEAR(CdfF(quantile, 3, size, 0), 0.95, 1e-14) << size;
  }
}

// So few that t is infinite, on the side of the normal variable.
TEST(TAndF, LeastDegreesOfFreedom) {
  for (double df : {5e-324, 1e-323, 1e-310, 1e-300})
    for (double x : {1e-300, 2.0, 1e300})
      for (double delta : {0.0, 1.0, -3.0}) {
        ExpectRelative(CdfT(x, df, delta), Dist::CdfStdNorm(-delta), 1e-15);
        ExpectRelative(CdfT(-x, df, delta), Dist::CdfStdNorm(-delta), 1e-15);
      }
}

// Critical values of few degrees of freedom reach the end of the doubles. References: the integral over the chi density
// and the series in the inverse noncentrality, in 60 digits.
TEST(TAndF, FarQuantilesOfFewDegreesOfFreedom) {
  ExpectRelative(CdfT(-1e155, 0.0025, 3.3), 0.000195646227084, 1e-11);
  ExpectRelative(CdfT(-1e300, 0.0025, 3.3), 8.4912470598e-5, 1e-10);
  ExpectRelative(CdfT(1e300, 0.0025, -3.3), 1 - 8.4912470598e-5, 1e-14);
  const auto upperTail = [](double alpha, double df, double delta) { return CdfT(-IdfT(1 - alpha, df), df, -delta); };
  ExpectRelative(upperTail(0.0372, 0.01, 500), 0.079669950358740802, 1e-13);
  ExpectRelative(upperTail(0.0372, 0.01, 1e5), 0.084004945639529318, 1e-13);
  ExpectRelative(upperTail(0.0372, 0.05, 1500), 0.11053986177206809, 1e-13);
  ExpectRelative(upperTail(0.0372, 0.1, 500), 0.14672987326149766, 1e-13);
  ExpectRelative(upperTail(0.0372, 0.15, 1500), 0.24199219632736321, 1e-13);
}

// The same series: noncentralities of a hundred and more far below x, where the tail is a small power of their ratio.
TEST(TAndF, TailsFarBeyondALargeNoncentrality) {
  const auto upperTail = [](double df, double delta, double ratio) {
    return CdfT(-delta * std::sqrt(ratio * df / 2), df, -delta);
  };
  ExpectRelative(upperTail(1, 350, 1e14), 1.1283791670955088e-7, 1e-13);
  ExpectRelative(upperTail(1, 350, 1e25), 3.5682482323055417e-13, 1e-13);
  ExpectRelative(upperTail(1.2, 1e8, 1e14), 4.4555157431919526e-9, 1e-13);
  ExpectRelative(upperTail(2, 1e5, 1e25), 1.0000000000999999e-25, 1e-13);
  ExpectRelative(upperTail(5, 1e5, 1e25), 9.5153286289967746e-64, 1e-12);
  ExpectRelative(upperTail(11, 5000, 1e25), 1.0984530508767087e-140, 1e-12);
}

TEST(TAndF, PlacesWherePlainSeriesFail) {
  EXPECT_GE(CdfT(-1, 1000, 23), 0);
  EXPECT_NEAR(CdfT(1.9600281895946416, 36949.546033616614, 38.560852472445234), 0, 1e-200);
  EXPECT_EQ(CdfT(1.96, 30, 2e7), 0);
  EXPECT_EQ(CdfF(3, 3, 30, 3e10), 0);
  EXPECT_EQ(CdfF(38.031728181019439, 2.8020860870648868e-200, 1e10, 9.96e-258), 1);
}

// With few error degrees of freedom the saddle point lies where c t is large, so that b c hides a + m. Reference: the
// series 1 - P = sum_k (-1)^k E[X1^(b+k)] / (k! (b + k) Gamma(b) c^(b+k)) in 40 digits.
TEST(TAndF, FarUpperTailsOfFewErrorDegreesOfFreedom) {
  EXPECT_NEAR(CdfF(6.3221240914716705e25, 1215, 1.0001, 5e8), 0.99999999993577523972, 2e-16);
  EXPECT_NEAR(CdfF(1e31, 1215, 1, 1e8), 0.999999999999927614, 2e-16);
  EXPECT_NEAR(CdfF(1e120, 10, 0.05, 4e7), 0.99864778275567580414, 2e-16);
  EXPECT_NEAR(CdfF(1e300, 3, 0.01, 1e9), 0.96593144265345925778, 2e-16);
  EXPECT_NEAR(CdfF(1e290, 0.2, 0.02, 1e12), 0.99838020158604834276, 2e-16);
}

// The same on the other side: far below the mean a + m hides b c. The probabilities are far below the smallest double.
TEST(TAndF, TinyValuesOfLargeNoncentralities) {
  EXPECT_EQ(CdfF(2.7919370593133034e-26, 1.7372289255803295, 7.738427183319752, 51899739089963.883), 0);
  EXPECT_EQ(CdfF(1.9798264678709985e-21, 0.041219571269787321, 36847.264799949575, 4232109.9148726957), 0);
  EXPECT_EQ(CdfF(1.4117054594123999e-24, 0.0063046700790707387, 27751606.270840686, 10858425.552379778), 0);
  EXPECT_EQ(CdfT(1.021346735682291e-15, 131789056.39961031, 8236.4300848410276), 0);
  EXPECT_EQ(CdfT(3.8133500309928559e-15, 336.79829916113488, 744399.62936636899), 0);
}

// Beside a noncentrality or numerator degrees of freedom so large the numerator is a constant: the probability is that
// of a chi-square variable, here of four degrees of freedom, to lie above a point.
TEST(TAndF, AHugeNumeratorIsAConstant) {
  const auto upperChiSquare4 = [](double x) { return std::exp(-x / 2) * (1 + x / 2); };
  for (double share : {0.25, 1.0, 3.0}) {
    ExpectRelative(CdfF(1e200 / share, 2, 4, 2e200), upperChiSquare4(4 * share), 1e-13);
    ExpectRelative(CdfF(1e130 / share, 1e-10, 4, 1e120), upperChiSquare4(4 * share), 1e-13);
    ExpectRelative(CdfF(1 / share, 1e250, 4, 100), upperChiSquare4(4 * share), 1e-13);
    ExpectRelative(CdfF(2 / share, 1e250, 4, 1e250), upperChiSquare4(4 * share), 1e-13);
    ExpectRelative(CdfT(1e60 / std::sqrt(share), 4, 1e60), upperChiSquare4(4 * share), 1e-13);
    ExpectRelative(1 - CdfT(-1e90 / std::sqrt(share), 4, -1e90), upperChiSquare4(4 * share), 1e-13);
  }
}

// Far out the upper tails of t and F fall like x^-df and x^-(df2 / 2). Near 0 the probability of F grows like
// x^(df1 / 2).
TEST(TAndF, PowerLawsReachTheEndsOfTheRange) {
  for (double delta : {0.0, 1.0, 5.0, 20.0}) {
    const auto upperTail = [delta](double x) { return CdfT(-x, 1.0 / 128, -delta); };
    for (double digits : {130.0, 150.0, 200.0, 300.0})
      ExpectRelative(upperTail(std::pow(10, digits)), upperTail(1e100) * std::pow(10, -(digits - 100) / 128), 1e-14);
  }
  for (double lambda : {0.0, 1.0, 3.0}) {
    const auto lowerTail = [lambda](int exponent) { return CdfF(std::ldexp(1, exponent), 1.0 / 64, 5, lambda); };
    for (int exponent : {-200, -500, -1000})
      ExpectRelative(lowerTail(exponent), lowerTail(-150) * std::exp2((exponent + 150) / 128.0), 1e-13);
    const auto upperTail = [lambda](double x) { return 1 - CdfF(x, 100, 1.0 / 64, lambda); };
    for (double digits : {50.0, 150.0, 308.0})
      ExpectRelative(upperTail(std::pow(10, digits)), upperTail(1e30) * std::pow(10, -(digits - 30) / 128), 1e-13);
  }
}

TEST(TAndF, EveryBitPatternHasAnAnswer) {
  std::mt19937_64 generator(20240611);
  const std::vector<double> special = {0,      -0.0, 1,    -1,    0.5,      5e-324,    1e-300,    1e308,
                                       -1e308, nan,  1e17, 1e130, infinity, -infinity, 0x1p-1022, KelMV::Missing()};
  const auto Draw = [&] {
    const std::uint64_t bits = generator();
    if (bits % 4 == 0) return special[(bits >> 8) % special.size()];
    if (bits % 4 == 1) return std::pow(10.0, static_cast<double>(bits >> 11) * 0x1p-53 * 30 - 15);
    const std::uint64_t pattern = generator();
    double value = 0;
    std::memcpy(&value, &pattern, sizeof value);
    return value;
  };
  for (int i = 0; i < 5000; ++i) {
    const double a = Draw();
    const double b = Draw();
    const double c = Draw();
    const double d = Draw();
    const double t = CdfT(a, b, c);
    const double f = CdfF(a, b, c, d);
    const double p = a >= 0 && a <= 1 ? a : static_cast<double>(generator() >> 11) * 0x1p-53;
    const double qt = IdfT(p, b);
    const double qf = Dist::IdfF(p, b, c);
    if (std::isnan(a) || std::isnan(b) || std::isnan(c) || std::isnan(d)) continue;
    EXPECT_TRUE(b <= 0 ? KelMV::IsMissing(t) : t >= 0 && t <= 1) << a << " " << b << " " << c;
    EXPECT_TRUE(b <= 0 || c <= 0 || d < 0 ? KelMV::IsMissing(f) : f >= 0 && f <= 1)
        << a << " " << b << " " << c << " " << d;
    EXPECT_TRUE(b <= 0 ? KelMV::IsMissing(qt) : (qt > 0) == (p > 0.5)) << p << " " << b;
    EXPECT_TRUE(b <= 0 || c <= 0 ? KelMV::IsMissing(qf) : qf >= 0) << p << " " << b << " " << c;
  }
}

}  // namespace
