#include <algorithm>
#include <cmath>
#include <limits>

#include "gamma_tails.h"
#include "kelcommon/distributions.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "log_gamma.h"
#include "small_differences.h"

namespace kelcommon {

using KelCommon::KelMV;
using KelMath::Tails;

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

// P(X <= k) and P(X > k) for k >= 0, finite or not. The count exceeds k when the waiting time for the event after it, a
// gamma variable of shape k + 1, is at most the mean.
Tails TailsAt(double k, double mean) {
  if (std::isinf(k) || mean == 0) return {1, 0};
  if (std::isinf(mean)) return {0, 1};
  return KelMath::GammaTails(k + 1, mean).Mirrored();
}

double LowerProbability(double k, double mean) { return TailsAt(k, mean).lower; }

// Loader (2000), Fast and accurate computation of binomial probabilities. Below half of the mean's ratio to the count
// 1 + u has lost the digits of the ratio; below a count of 1 Stirling's formula does not hold.
double Mass(double k, double mean) {
  constexpr double twoPi = 6.283185307179586477;
  if (k < 1) return std::exp(k * (std::log(mean) - KelMath::LogGammaOf1PlusOver(k)) - mean);
  const double ratio = mean / k;
  const double exponent =
      ratio < 0.5 ? k * (std::log(ratio) + 1) - mean : k * KelMath::Log1pMinusArgument((mean - k) / k);
  return std::exp(exponent - KelMath::LogScaledGamma(k)) / std::sqrt(twoPi) / std::sqrt(k);
}

// The Cornish-Fisher expansion of the quantile to its second term, not below 0.
double GuessQuantile(double p, double mean) {
  const double z = KelMath::KelDistFun::IdfStdNorm(std::max(p, std::numeric_limits<double>::denorm_min()));
  return std::max(std::floor(mean + z * std::sqrt(mean) + (z * z - 1) / 6 - 0.5), 0.0);
}

// 1, or where the counts are so large that they are further apart, their distance.
double CountSpacing(double k) { return std::max(1.0, std::nextafter(k, infinity) - k); }

// The last k in [low, high) with lower probability up to p.
double Bisect(double p, double mean, double low, double high) {
  while (true) {
    const double middle = std::floor(low + (high - low) / 2);
    if (middle <= low || middle >= high) return low;
    (LowerProbability(middle, mean) <= p ? low : high) = middle;
  }
}

}  // namespace

double PdfPoisson(double x, double mean) noexcept {
  if (std::isnan(x) || std::isnan(mean)) return nan;
  if (mean < 0) return KelMV::Missing();
  if (x < 0) return 0;
  if (x == 0) return std::exp(-mean);
  if (mean == 0 || std::isinf(x) || std::isinf(mean)) return 0;
  return Mass(x, mean);
}

double CdfPoisson(double x, double mean) noexcept {
  if (std::isnan(x) || std::isnan(mean)) return nan;
  if (mean < 0) return KelMV::Missing();
  if (x < 0) return 0;
  return TailsAt(std::floor(x), mean).lower;
}

double SfPoisson(double x, double mean) noexcept {
  if (std::isnan(x) || std::isnan(mean)) return nan;
  if (mean < 0) return KelMV::Missing();
  if (x < 0) return 1;
  return TailsAt(std::floor(x), mean).upper;
}

// From the guess the steps double until they pass the quantile, and the last one is halved.
double IdfPoisson(double p, double mean) noexcept {
  if (std::isnan(p) || std::isnan(mean)) return nan;
  if (mean < 0) return KelMV::Missing();
  if (p < 0 || p > 1) return KelMV::Missing();
  if (p == 1 || std::isinf(mean)) return infinity;
  if (mean == 0) return -1;
  double low = -1;
  double high = std::numeric_limits<double>::max();
  double k = GuessQuantile(p, mean);
  double step = CountSpacing(k);
  const bool startsLow = LowerProbability(k, mean) <= p;
  bool isLow = startsLow;
  while (isLow == startsLow) {
    (isLow ? low : high) = k;
    k = startsLow ? k + step : k - step;
    if (k <= low || k >= high) break;
    step *= 2;
    isLow = LowerProbability(k, mean) <= p;
  }
  if (low < k && k < high) (isLow ? low : high) = k;
  return Bisect(p, mean, low, high);
}

}  // namespace kelcommon
