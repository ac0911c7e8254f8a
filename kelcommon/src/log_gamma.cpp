#include <cmath>
#include <limits>

#include <boost/math/special_functions/gamma.hpp>

#include "boost_policy.h"
#include "kelcommon/kel_dist_fun.h"

namespace KelMath {

double KelDistFun::orvadnlgam(const double& x) noexcept {
  if (std::isnan(x)) return x;
  // The poles, and every double that is too large to have a fraction.
  if (x <= 0 && std::floor(x) == x) return std::numeric_limits<double>::infinity();
  return boost::math::lgamma(x, QuietPolicy());
}

}  // namespace KelMath
