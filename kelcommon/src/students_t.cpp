#include <cmath>
#include <limits>

#include <boost/math/distributions/students_t.hpp>

#include "boost_policy.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "noncentral_t.h"

namespace KelMath {

using KelCommon::KelMV;

double KelDistFun::IdfT(double p, double df, double, double) noexcept {
  if (std::isnan(p) || std::isnan(df)) return std::numeric_limits<double>::quiet_NaN();
  if (p < 0 || p > 1 || df <= 0) return KelMV::Missing();
  if (p == 0) return -std::numeric_limits<double>::infinity();
  if (p == 1) return std::numeric_limits<double>::infinity();
  if (p == 0.5) return 0;
  if (df > 1e16) return IdfStdNorm(p);
  return quantile(boost::math::students_t_distribution<double, QuietPolicy>(df), p);
}

double KelDistFun::NonCentralCdfT(double x, double df, double noncentrality, double) noexcept {
  if (std::isnan(x) || std::isnan(df) || std::isnan(noncentrality)) return std::numeric_limits<double>::quiet_NaN();
  if (df <= 0) return KelMV::Missing();
  if (std::isinf(noncentrality)) return noncentrality > 0 ? 0 : 1;
  if (std::isinf(x) || KelMV::IsMissing(x)) return x > 0 ? 1 : 0;
  if (std::isinf(df)) return CdfStdNorm(x - noncentrality);
  return std::fmin(std::fmax(NoncentralTLowerTail(x, df, noncentrality), 0.0), 1.0);
}

}  // namespace KelMath
