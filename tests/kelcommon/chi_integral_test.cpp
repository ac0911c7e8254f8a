#include "kelcommon/chi_integral.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "kelcommon/kel_dist_fun.h"

namespace {

using kelcommon::ChiRange;
using kelcommon::MeanOverChi;
using KelMath::KelDistFun;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

constexpr auto One = [](double) { return 1.0; };

// Owen's Q function (1965, "A special case of a bivariate non-central t-distribution", Biometrika 52).
double OwensQ(double df, double t, double delta, double r) {
  ChiRange range;
  range.limit = r / std::sqrt(df);
  return MeanOverChi([=](double u) { return KelDistFun::CdfStdNorm(t * u - delta); }, df, range);
}

struct Point {
  double df, t, delta, r, value;
};

// By quadrature of the density of u with 40 digits in mpmath.
TEST(MeanOverChi, GivesOwensQ) {
  const Point points[] = {{4, 3, 2, 5, .710489166472472236},     {1, 3, 2, 5, .524856588430544093},
                          {2, 3, 2, 5, .629381933065269041},     {3, 3, 2, 5, .680011733557231403},
                          {1, 3, 2, 1, .219018703856082},        {5, 2, 2, 5, .4635679860302189},
                          {10, -1.8, -3, 4.5, .859841758386835}, {1, 1, .5, 2, .5489109600181498},
                          {300, 2, 3, 18, .1280277302607012},    {.5, 2, 1, 3, .51962816767553340091}};
  for (const auto& [df, t, delta, r, value] : points) EXPECT_NEAR(OwensQ(df, t, delta, r), value, 1e-14) << df;
  EXPECT_NEAR(OwensQ(40, 1.68, 45, 30), 0, 1e-300);  // 4e-393
}

struct Equivalence {
  double df, alpha, difference, lower, upper, se;

  // Two one-sided tests: Phillips (1990), "Power of the two one-sided tests procedure in bioequivalence".
  double Power(int* calls = nullptr) const {
    const double t = KelDistFun::IdfT(1 - alpha, df, 0, 0);
    const double d1 = (difference - lower) / se;
    const double d2 = (difference - upper) / se;
    ChiRange range;
    range.limit = (d1 - d2) / (2 * t);
    const auto rejects = [=](double u) {
      if (calls) ++*calls;
      return KelDistFun::CdfStdNorm(-d2 - t * u) - KelDistFun::CdfStdNorm(t * u - d1);
    };
    return MeanOverChi(rejects, df, range);
  }
};

TEST(MeanOverChi, GivesTheTwoOneSidedTests) {
  EXPECT_NEAR((Equivalence{12, .41, 8.5448, -5.97, 5.97, std::sqrt(2 / 7.0)}.Power()), 2.33563295336e-07, 1e-17);
  EXPECT_NEAR((Equivalence{124, .05, 0, -1.3, 1.3, 2.2 * std::sqrt(2 / 63.0)}.Power()), .901758443889736, 1e-14);
  const double log125 = std::log(1.25);
  const auto crossover = [=](double cv, double ratio, double n) {
    const double first = std::ceil(n / 2);  // subjects of the first sequence
    const double se = std::sqrt(std::log1p(cv * cv) * (1 / first + 1 / (n - first)) / 2);
    return Equivalence{n - 2, .05, std::log(ratio), -log125, log125, se}.Power();
  };
  EXPECT_NEAR(crossover(.25, .95, 24), .739115481198803, 1e-14);
  EXPECT_NEAR(crossover(.3, .95, 40), .815845280273126, 1e-14);
  EXPECT_NEAR(crossover(.385, 1.24, 7000), .356878387143761, 1e-14);
  EXPECT_NEAR(crossover(.1, 1, 4), .479754125783862, 1e-14);
  EXPECT_NEAR(crossover(.1, 1, 3), .222137910057019, 1e-14);
}

TEST(MeanOverChi, AsksSmoothFunctionsFewTimes) {
  for (double df : {2.0, 4.0, 10.0, 22.0, 124.0, 6998.0, 1e6}) {
    int calls = 0;
    (Equivalence{df, .05, 0.05, -0.5, 0.5, 1 / std::sqrt(df + 2)}.Power(&calls));
    EXPECT_LE(calls, (df < 10 ? 360 : 180) + 3) << df;  // of the pieces, and at the mode and both ends
  }
}

// The noncentral t distribution is computed in another way.
TEST(MeanOverChi, GivesTheNoncentralTDistribution) {
  for (double df : {1e-3, 0.01, 0.2, 1.0, 2.5, 7.0, 30.0, 1e3, 1e5, 1e7, 1e9, 1e12})
    for (double delta : {-1.0, 0.0, 0.4, 3.0, 20.0})
      for (double t : {-2.0, 0.0, 0.5, 3.0, 21.0}) {
        const double mean = MeanOverChi([=](double u) { return KelDistFun::CdfStdNorm(t * u - delta); }, df);
        EXPECT_NEAR(mean, KelDistFun::NonCentralCdfT(t, df, delta, 0), 1e-14) << df << " " << t << " " << delta;
      }
}

TEST(MeanOverChi, GivesTheDistributionOfU) {
  for (double df : {1.0, 2.0, 5.0, 60.0, 1e4}) EXPECT_NEAR(MeanOverChi(One, df), 1, 1e-14) << df;
  for (double df : {1e-290, 1e-100, 1e-6, 1e-3, 1e9, 1e15, 1e100, 1e300, infinity})
    EXPECT_NEAR(MeanOverChi(One, df), 1, 1e-13) << df;
  for (double x : {0.01, 0.5, 0.9, 1.1, 2.0}) {
    EXPECT_NEAR(MeanOverChi(One, 2, {x}), -std::expm1(-x * x), 1e-14) << x;
    EXPECT_NEAR(MeanOverChi(One, 1, {x}), std::erf(x / std::sqrt(2.0)), 1e-14) << x;
  }
  // Small parts keep their relative accuracy.
  EXPECT_NEAR(MeanOverChi(One, 2, {1e-20}) / 1e-40, 1, 1e-13);
  // At df degrees of freedom E[u^2] = 1, which is not bounded but smooth.
  for (double df : {0.5, 3.0, 1e3}) EXPECT_NEAR(MeanOverChi([](double u) { return u * u; }, df), 1, 1e-13) << df;
}

// A kink between breaks, and a step that the breaks enclose.
TEST(MeanOverChi, TakesBreaks) {
  const double kinks[] = {1.5, 0.5};
  const auto g = [](double u) { return u < 0.5 ? 0.0 : u < 1.5 ? u - 0.5 : 1.0; };
  const auto part = [](double a, double b) {  // E[u; a < u < b] at 2 degrees of freedom
    const auto upper = [](double x) { return x * std::exp(-x * x) + std::sqrt(std::acos(-1.0)) / 2 * std::erfc(x); };
    return upper(a) - upper(b);
  };
  const double expected = part(0.5, 1.5) - 0.5 * (std::exp(-0.25) - std::exp(-2.25)) + std::exp(-2.25);
  EXPECT_NEAR(MeanOverChi(g, 2, {infinity, kinks, 2}), expected, 1e-14);
  const double steps[] = {0.7, 0.7001};
  const auto narrow = [](double u) { return u > 0.7 && u < 0.7001 ? 1.0 : 0.0; };
  EXPECT_NEAR(MeanOverChi(narrow, 2, {infinity, steps, 2}), std::exp(-0.49) - std::exp(-0.7001 * 0.7001), 1e-14);
  double many[100];
  for (int i = 0; i < 100; ++i) many[i] = 0.01 * (i + 1);
  EXPECT_NEAR(MeanOverChi(One, 2, {infinity, many, 100}), 1, 1e-14);
  const double odd[] = {nan, -1, 0, infinity, 1};
  EXPECT_NEAR(MeanOverChi(One, 2, {infinity, odd, 5}), 1, 1e-14);
}

TEST(MeanOverChi, AnswersEveryArgument) {
  for (double df : {0.0, -0.0, -1.0, -infinity, nan}) EXPECT_TRUE(std::isnan(MeanOverChi(One, df))) << df;
  EXPECT_TRUE(std::isnan(MeanOverChi(One, 3, {nan})));
  for (double limit : {0.0, -1.0, -infinity}) EXPECT_EQ(MeanOverChi(One, 3, {limit}), 0) << limit;
  EXPECT_TRUE(std::isnan(MeanOverChi([](double) { return nan; }, 3)));
  for (double df : {5e-324, 1e-310, 1e-20, 0.3, 1.0, 53.0, 1e17, 1e308, infinity})
    for (double limit : {5e-324, 1e-310, 1e-20, 0.3, 1.0, 53.0, 1e17, 1e308, infinity}) {
      const double mean = MeanOverChi(One, df, {limit});
      EXPECT_TRUE(mean >= 0 && mean <= 1 + 1e-13) << df << " " << limit << " " << mean;
    }
}

// Whatever the function, its values are asked a bounded number of times.
TEST(MeanOverChi, EndsForNoise) {
  std::mt19937_64 random(7);
  int calls = 0;
  const auto noise = [&](double) {
    ++calls;
    return static_cast<double>(random() >> 11) * 0x1p-53;
  };
  for (double df : {0.01, 3.0, 1e6}) {
    calls = 0;
    MeanOverChi(noise, df);
    EXPECT_LE(calls, 15100) << df;
  }
}

}  // namespace
