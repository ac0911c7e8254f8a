#include <boost/math/special_functions/erf.hpp>
#include <cmath>
#include <limits>

#include "boost_policy.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"

namespace KelMath {

using KelCommon::KelMV;

namespace {

// 1 / sqrt(2) as the sum of two doubles.
constexpr double rootHalf = 0.70710678118654752440;
constexpr double rootHalfRest = -4.8336466567264567e-17;

constexpr double fourOverPi = 1.2732395447351627;

}  // namespace

// erfc(-z / sqrt(2)) / 2. In the lower tail the rounding of the argument t = -z / sqrt(2) by e costs a relative
// 2 t e, a thousand units in the last place at z = -37. The rounding is therefore computed, and undone with the
// derivative of log(erfc), -(t + sqrt(t^2 + c)) with c between 4 / pi and 2 (Abramowitz and Stegun 7.1.13).
double KelDistFun::CdfStdNorm(double z) noexcept {
  const double argument = -z * rootHalf;
  const double probability = 0.5 * std::erfc(argument);
  if (!(argument > 0) || probability == 0) return probability;
  const double rounding = std::fma(-z, rootHalf, -argument) - z * rootHalfRest;
  return probability * (1 - rounding * (argument + std::sqrt(argument * argument + fourOverPi)));
}

double KelDistFun::IdfStdNorm(double p) noexcept {
  if (std::isnan(p)) return p;
  if (p < 0) return KelMV::Missing();
  if (p > 1) return KelMV::Missing();
  if (p == 0) return -std::numeric_limits<double>::infinity();
  if (p == 1) return std::numeric_limits<double>::infinity();
  if (p == 0.5) return 0;
  return -std::sqrt(2.0) * boost::math::erfc_inv(2 * p, QuietPolicy());
}

}  // namespace KelMath
