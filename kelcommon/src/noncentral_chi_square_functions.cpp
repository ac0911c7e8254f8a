#include <algorithm>
#include <cmath>
#include <limits>

#include "kelcommon/distributions.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "noncentral_chi_square.h"

namespace kelcommon {

using KelCommon::KelMV;
using KelMath::KelDistFun;
using KelMath::Tails;

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

// Half of the least denormal would be 0.
double Half(double value) { return value == 0 ? 0 : std::max(value / 2, std::numeric_limits<double>::denorm_min()); }

Tails TailsAt(double x, double df, double noncentrality) {
  if (x <= 0 || std::isinf(df) || std::isinf(noncentrality)) return {0, 1};
  if (std::isinf(x)) return {1, 0};
  return KelMath::NoncentralGammaTails(Half(df), Half(noncentrality), Half(x));
}

// The normal quantile of the lower tail, from the smaller one. It is all but linear in the root of the noncentrality:
// the upper tail is about that of a normal variable at sqrt(x) - sqrt(noncentrality).
double DeviateOf(const Tails& tails) {
  return tails.upper < 0.5 ? KelDistFun::IdfStdNorm(tails.upper) : -KelDistFun::IdfStdNorm(tails.lower);
}

double Square(double root) { return root * root; }

// The root of the noncentrality at which the upper tail at x is q, between 0 and one that doubles until it is above:
// the rule of false position, of which the end that stays twice counts half (Dowell and Jarratt (1971), A modified
// regula falsi method for computing the root of an equation, BIT 11).
double RootOfNoncentrality(double q, double x, double df) {
  const double wanted = DeviateOf({1 - q, q});
  const auto Miss = [&](double root) { return DeviateOf(TailsAt(x, df, Square(root))) - wanted; };
  double low = 0;
  double atLow = Miss(low);
  double high = std::sqrt(x) + std::max(wanted, 0.0) + 1;
  double atHigh = Miss(high);
  for (int i = 0; i < 8 && atHigh < 0; ++i) {
    low = high;
    atLow = atHigh;
    high *= 2;
    atHigh = Miss(high);
  }
  for (int i = 0; i < 200 && high - low > 4e-16 * high; ++i) {
    double root = low + (high - low) * (atLow / (atLow - atHigh));
    // A bisection now and then bounds the number of steps; infinite deviates have no secant.
    if (!(root > low && root < high) || i % 16 == 15) root = low + (high - low) / 2;
    if (!(root > low && root < high)) break;
    const double at = Miss(root);
    if (at == 0) return root;
    if (at < 0) {
      low = root;
      atLow = at;
      atHigh /= 2;
    } else {
      high = root;
      atHigh = at;
      atLow /= 2;
    }
  }
  return std::fabs(atLow) < std::fabs(atHigh) ? low : high;
}

bool RejectsArguments(double df, double noncentrality) { return df <= 0 || noncentrality < 0; }

}  // namespace

double NonCentralCdfChiSquare(double x, double df, double noncentrality) noexcept {
  if (std::isnan(x) || std::isnan(df) || std::isnan(noncentrality)) return nan;
  if (RejectsArguments(df, noncentrality)) return KelMV::Missing();
  return TailsAt(x, df, noncentrality).lower;
}

double NonCentralSfChiSquare(double x, double df, double noncentrality) noexcept {
  if (std::isnan(x) || std::isnan(df) || std::isnan(noncentrality)) return nan;
  if (RejectsArguments(df, noncentrality)) return KelMV::Missing();
  return TailsAt(x, df, noncentrality).upper;
}

double NonCentralityChiSquare(double q, double x, double df) noexcept {
  if (std::isnan(q) || std::isnan(x) || std::isnan(df)) return nan;
  if (q < 0 || q > 1) return KelMV::Missing();
  if (x <= 0 || std::isinf(x)) return KelMV::Missing();
  if (df <= 0 || std::isinf(df)) return KelMV::Missing();
  if (q == 1) return infinity;
  const double central = TailsAt(x, df, 0).upper;
  if (q < central) return KelMV::Missing();
  if (q == central) return 0;
  return Square(RootOfNoncentrality(q, x, df));
}

}  // namespace kelcommon
