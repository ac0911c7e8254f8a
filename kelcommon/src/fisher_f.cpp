#include <cmath>
#include <limits>

#include "beta_terms.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "noncentral_f.h"

namespace KelMath {

using KelCommon::KelMV;

namespace {

// The shape of the gamma distribution of so many degrees of freedom. The largest double stands for infinity.
double Shape(double df) { return std::fmin(HalfDegrees(df), std::numeric_limits<double>::max() / 4); }

}  // namespace

double KelDistFun::IdfF(double p, double df1, double df2) noexcept {
  if (std::isnan(p) || std::isnan(df1) || std::isnan(df2)) return std::numeric_limits<double>::quiet_NaN();
  if (p < 0 || p > 1 || df1 <= 0 || df2 <= 0) return KelMV::Missing();
  if (p == 0) return 0;
  if (p == 1) return std::numeric_limits<double>::infinity();
  const double a = Shape(df1);
  const double b = Shape(df2);
  const long double odds = p <= 0.5 ? BetaQuantileOdds(a, b, p) : 1 / BetaQuantileOdds(b, a, 1 - p);
  return static_cast<double>(odds * (static_cast<long double>(b) / a));
}

double KelDistFun::NonCentralCdfF(double x, double df1, double df2, double noncentrality, double) noexcept {
  if (std::isnan(x) || std::isnan(df1) || std::isnan(df2) || std::isnan(noncentrality))
    return std::numeric_limits<double>::quiet_NaN();
  if (df1 <= 0 || df2 <= 0 || noncentrality < 0) return KelMV::Missing();
  if (x <= 0) return 0;
  if (std::isinf(x)) return 1;
  if (std::isinf(noncentrality)) return 0;
  const double a = Shape(df1);
  const double b = Shape(df2);
  const long double odds = static_cast<long double>(a) / b * x;
  const double probability = NoncentralBetaTails(a, b, noncentrality / 2, odds).lower;
  return std::fmin(std::fmax(probability, 0.0), 1.0);
}

}  // namespace KelMath
