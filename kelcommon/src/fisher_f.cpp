#include <cmath>
#include <limits>

#include "beta_quantile.h"
#include "half_degrees.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "noncentral_f.h"

namespace KelMath {

using KelCommon::KelMV;

double KelDistFun::IdfF(double p, double df1, double df2) noexcept {
  if (std::isnan(p) || std::isnan(df1) || std::isnan(df2)) return std::numeric_limits<double>::quiet_NaN();
  if (p < 0 || p > 1 || df1 <= 0 || df2 <= 0) return KelMV::Missing();
  if (p == 0) return 0;
  if (p == 1) return std::numeric_limits<double>::infinity();
  const double a = HalfDegrees(df1);
  const double b = HalfDegrees(df2);
  return p <= 0.5 ? BetaQuantileRatio(a, b, p, 1) : BetaQuantileRatio(b, a, 1 - p, -1);
}

double KelDistFun::NonCentralCdfF(double x, double df1, double df2, double noncentrality, double) noexcept {
  if (std::isnan(x) || std::isnan(df1) || std::isnan(df2) || std::isnan(noncentrality))
    return std::numeric_limits<double>::quiet_NaN();
  if (df1 <= 0 || df2 <= 0 || noncentrality < 0) return KelMV::Missing();
  if (x <= 0) return 0;
  if (std::isinf(x)) return 1;
  if (std::isinf(noncentrality)) return 0;
  const double probability = NoncentralFLowerTail(x, HalfDegrees(df1), HalfDegrees(df2), noncentrality / 2);
  return std::fmin(std::fmax(probability, 0.0), 1.0);
}

}  // namespace KelMath
