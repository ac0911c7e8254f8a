#include <boost/math/special_functions/gamma.hpp>

#include "boost_policy.h"
#include "kelcommon/kel_dist_fun.h"

namespace KelMath {

double KelDistFun::orvadnlgam(const double& x) noexcept { return boost::math::lgamma(x, QuietPolicy()); }

}  // namespace KelMath
