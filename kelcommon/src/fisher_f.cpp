#include <cmath>
#include <limits>

#include <boost/math/distributions/chi_squared.hpp>
#include <boost/math/distributions/fisher_f.hpp>

#include "boost_policy.h"
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
  if (df2 > 1e16) return quantile(boost::math::chi_squared_distribution<double, QuietPolicy>(df1), p) / df1;
  return quantile(boost::math::fisher_f_distribution<double, QuietPolicy>(df1, df2), p);
}

double KelDistFun::NonCentralCdfF(double x, double df1, double df2, double noncentrality, double) noexcept {
  if (std::isnan(x) || std::isnan(df1) || std::isnan(df2) || std::isnan(noncentrality))
    return std::numeric_limits<double>::quiet_NaN();
  if (df1 <= 0 || df2 <= 0 || noncentrality < 0) return KelMV::Missing();
  if (x <= 0) return 0;
  if (std::isinf(noncentrality)) return 0;
  if (std::isinf(x)) return 1;
  const double largest = std::numeric_limits<double>::max();
  df1 = std::fmin(df1, largest);
  df2 = std::fmin(df2, largest);
  const long double odds = static_cast<long double>(df1) * x / df2;
  const double probability = NoncentralBetaTails(df1 / 2, df2 / 2, noncentrality / 2, odds).lower;
  return std::fmin(std::fmax(probability, 0.0), 1.0);
}

}  // namespace KelMath
