#include <cmath>
#include <limits>

#include "beta_quantile.h"
#include "half_degrees.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "noncentral_t.h"
#include "t_expansion.h"

namespace KelMath {

using KelCommon::KelMV;

namespace {

constexpr double pi = 3.141592653589793238;

// |t| with P(T <= -|t|) = min(p, 1 - p), 0 < p < 1.
double PositiveQuantile(double p, double df) {
  const double tail = p < 0.5 ? p : 1 - p;
  const double fromMiddle = std::fabs(p - 0.5);
  if (df == 1) return fromMiddle < 0.25 ? std::tan(pi * fromMiddle) : 1 / std::tan(pi * tail);
  if (df == 2) return fromMiddle * std::sqrt(2 / (tail * (1 - tail)));
  const double expanded = QuantileOfManyDegrees(tail, df);
  if (!std::isnan(expanded)) return expanded;
  // t^2 is a variable of F with 1 and df degrees of freedom. Near the middle its lower tail 2p - 1 is exact, outside
  // its upper tail.
  const double b = HalfDegrees(df);
  return fromMiddle < 0.25 ? BetaQuantileRatio(0.5, b, 2 * fromMiddle, 0.5) : BetaQuantileRatio(b, 0.5, 2 * tail, -0.5);
}

}  // namespace

double KelDistFun::IdfT(double p, double df, double, double) noexcept {
  if (std::isnan(p) || std::isnan(df)) return std::numeric_limits<double>::quiet_NaN();
  if (p < 0 || p > 1 || df <= 0) return KelMV::Missing();
  if (p == 0) return -std::numeric_limits<double>::infinity();
  if (p == 1) return std::numeric_limits<double>::infinity();
  if (p == 0.5) return 0;
  // The quantiles differ by (z^2 + 1) / (4 df) of themselves, z below 39.
  if (df > 1e18) return IdfStdNorm(p);
  const double magnitude = PositiveQuantile(p, df);
  return p < 0.5 ? -magnitude : magnitude;
}

double KelDistFun::NonCentralCdfT(double x, double df, double noncentrality, double) noexcept {
  if (std::isnan(x) || std::isnan(df) || std::isnan(noncentrality)) return std::numeric_limits<double>::quiet_NaN();
  if (df <= 0) return KelMV::Missing();
  if (std::isinf(x) || KelMV::IsMissing(x)) return x > 0 ? 1 : 0;
  if (std::isinf(noncentrality)) return noncentrality > 0 ? 0 : 1;
  if (std::isinf(df)) return CdfStdNorm(x - noncentrality);
  return std::fmin(std::fmax(NoncentralTLowerTail(x, df, noncentrality), 0.0), 1.0);
}

}  // namespace KelMath
