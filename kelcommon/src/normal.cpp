#include <cmath>
#include <limits>

#include <boost/math/special_functions/erf.hpp>

#include "boost_policy.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"

namespace KelMath {

using KelCommon::KelMV;

double KelDistFun::CdfStdNorm(double z) noexcept { return 0.5 * std::erfc(-z / std::sqrt(2.0)); }

double KelDistFun::IdfStdNorm(double p) noexcept {
  if (std::isnan(p)) return p;
  if (p < 0 || p > 1) return KelMV::Missing();
  if (p == 0) return -std::numeric_limits<double>::infinity();
  if (p == 1) return std::numeric_limits<double>::infinity();
  return -std::sqrt(2.0) * boost::math::erfc_inv(2 * p, QuietPolicy());
}

}  // namespace KelMath
