#include <boost/math/special_functions/gamma.hpp>
#include <cmath>
#include <limits>

#include "boost_policy.h"
#include "kelcommon/kel_dist_fun.h"

namespace KelMath {

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr double logPi = 1.14472988584940017414;

// |Gamma(-r)| = pi / (r |sin(pi r)| Gamma(r)) for r above 0 that is not whole, Abramowitz and Stegun 6.1.17; the sine
// of the distance to the nearest whole number, which is exact.
double LogGammaOfNegative(double r) {
  const double fraction = r - std::floor(r);
  const double distance = fraction > 0.5 ? 1 - fraction : fraction;
  return logPi - std::log(r) - std::log(std::sin(pi * distance)) - boost::math::lgamma(r, QuietPolicy());
}

}  // namespace

double KelDistFun::orvadnlgam(const double& x) noexcept {
  if (std::isnan(x)) return x;
  // The poles, and every negative double that is too large to have a fraction.
  if (x <= 0 && std::floor(x) == x) return std::numeric_limits<double>::infinity();
  return x > 0 ? boost::math::lgamma(x, QuietPolicy()) : LogGammaOfNegative(-x);
}

}  // namespace KelMath
