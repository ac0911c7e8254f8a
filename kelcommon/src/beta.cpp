#include <cmath>
#include <limits>

#include <boost/math/special_functions/beta.hpp>

#include "boost_policy.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"

namespace KelMath {

using KelCommon::KelMV;

double KelDistFun::CdfBeta(double x, double a, double b) noexcept {
  if (std::isnan(x) || std::isnan(a) || std::isnan(b)) return std::numeric_limits<double>::quiet_NaN();
  if (a < 0 || b < 0 || (a == 0 && b == 0)) return KelMV::Missing();
  if (a == 0) return x >= 0 ? 1 : 0;
  if (b == 0) return x >= 1 ? 1 : 0;
  if (x <= 0) return 0;
  if (x >= 1) return 1;
  return boost::math::ibeta(a, b, x, QuietPolicy());
}

double KelDistFun::IdfBeta(const double& p, const double& a, const double& b) noexcept {
  if (std::isnan(p) || std::isnan(a) || std::isnan(b)) return std::numeric_limits<double>::quiet_NaN();
  if (p < 0 || p > 1 || a < 0 || b < 0 || (a == 0 && b == 0)) return KelMV::Missing();
  if (a == 0) return 0;
  if (b == 0) return 1;
  if (p == 0) return 0;
  if (p == 1) return 1;
  return boost::math::ibeta_inv(a, b, p, QuietPolicy());
}

}  // namespace KelMath
