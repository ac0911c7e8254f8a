#include <algorithm>
#include <cmath>
#include <limits>

#include "beta_tails.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "power.h"

namespace KelMath {

using KelCommon::KelMV;

namespace {

bool RejectsTrials(double n) { return n < 0 || std::isinf(n); }
bool RejectsProbability(double p) { return p < 0 || p > 1; }

// Up to here the sums of binomial coefficients are whole numbers that a double holds.
constexpr double largestExactTrials = 53;

// P(X <= k) with success probability 1/2, exactly, for whole k and n with 0 <= k < n: the null distribution of the sign
// test, where significance levels such as 1/32 meet the probability itself.
double SignTestProbability(double k, double n) {
  if (2 * k >= n) return 1 - SignTestProbability(n - k - 1, n);
  double coefficient = 1;
  double sum = 1;
  for (int i = 1; i <= static_cast<int>(k); ++i) {
    coefficient *= n - i + 1;
    coefficient /= i;
    sum += coefficient;
  }
  return std::ldexp(sum, static_cast<int>(-n));
}

// P(X <= k) for a whole k with 0 <= k < n.
double LowerProbability(double k, double n, double p) {
  if (p == 0) return 1;
  if (p == 1) return 0;
  if (p == 0.5 && n <= largestExactTrials && n == std::floor(n)) return SignTestProbability(k, n);
  // So too the median of an odd number of trials, however many.
  if (p == 0.5 && 2 * k + 1 == n) return 0.5;
  return EvaluateBeta(k + 1, n - k, UnitPoint::FromX(p)).tails.upper;
}

// The Cornish-Fisher expansion of the quantile to its second term, within the support.
double GuessQuantile(double prob, double n, double p) {
  const double z = KelDistFun::IdfStdNorm(std::max(prob, std::numeric_limits<double>::denorm_min()));
  const double guess = std::floor(n * p + z * std::sqrt(n * p * (1 - p)) + (z * z - 1) * (1 - 2 * p) / 6 - 0.5);
  return std::clamp(guess, 0.0, std::ceil(n) - 1);
}

// 1, or where the counts are so large that they are further apart, their distance.
double CountSpacing(double k) { return std::max(1.0, std::nextafter(k, std::numeric_limits<double>::infinity()) - k); }

}  // namespace

double KelDistFun::CdfBin(double x, double n, double p, long& err) noexcept {
  err = 1;
  if (std::isnan(x) || std::isnan(n) || std::isnan(p)) return std::numeric_limits<double>::quiet_NaN();
  if (RejectsTrials(n)) return KelMV::Missing();
  if (RejectsProbability(p)) return KelMV::Missing();
  err = 0;
  if (x < 0) return 0;
  if (x >= n) return 1;
  return LowerProbability(std::floor(x), n, p);
}

// From the guess the steps double until they pass the quantile, and the last one is halved.
double KelDistFun::IdfBin(double prob, double n, double p, long& err) noexcept {
  err = 1;
  if (std::isnan(prob) || std::isnan(n) || std::isnan(p)) return std::numeric_limits<double>::quiet_NaN();
  if (RejectsTrials(n)) return KelMV::Missing();
  if (RejectsProbability(p)) return KelMV::Missing();
  if (RejectsProbability(prob)) return KelMV::Missing();
  err = 0;
  if (prob == 1) return n;
  double low = -1;
  double high = std::ceil(n);
  if (high == 0) return low;

  double k = GuessQuantile(prob, n, p);
  double step = CountSpacing(k);
  const bool startsLow = LowerProbability(k, n, p) <= prob;
  bool isLow = startsLow;
  while (isLow == startsLow) {
    (isLow ? low : high) = k;
    k = startsLow ? k + step : k - step;
    if (k <= low || k >= high) break;
    step *= 2;
    isLow = LowerProbability(k, n, p) <= prob;
  }
  if (low < k && k < high) (isLow ? low : high) = k;

  while (true) {
    const double middle = std::floor(low + (high - low) / 2);
    if (middle <= low || middle >= high) return low;
    (LowerProbability(middle, n, p) <= prob ? low : high) = middle;
  }
}

double KelDistFun::PdfBin(double x, double n, double p, long& err) noexcept {
  err = 1;
  if (std::isnan(x) || std::isnan(n) || std::isnan(p)) return std::numeric_limits<double>::quiet_NaN();
  if (RejectsTrials(n)) return KelMV::Missing();
  if (RejectsProbability(p)) return KelMV::Missing();
  err = 0;
  if (x < 0 || x > n) return 0;
  if (p == 0) return x == 0 ? 1 : 0;
  if (p == 1) return x == n ? 1 : 0;
  if (x == 0) return std::exp(n * std::log1p(-p));
  if (x == n) return PowerOf({p, 0}, n);
  return EvaluateBetaDensity(x, n - x, UnitPoint::FromX(p)) / x * (n / (n - x));
}

double KelDistFun::PdfNegBin(double x, double r, double p, long& err) noexcept {
  err = 1;
  if (std::isnan(x) || std::isnan(r) || std::isnan(p)) return std::numeric_limits<double>::quiet_NaN();
  if (r <= 0) return KelMV::Missing();
  if (p <= 0) return KelMV::Missing();
  if (p > 1) return KelMV::Missing();
  err = 0;
  if (x < 0) return 0;
  if (x == 0) return PowerOf({p, 0}, r);
  if (p == 1 || std::isinf(x) || std::isinf(r)) return 0;
  return EvaluateBetaDensity(r, x, UnitPoint::FromX(p)) / x;
}

}  // namespace KelMath
