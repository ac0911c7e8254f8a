#include <cmath>
#include <limits>

#include <boost/math/distributions/binomial.hpp>
#include <boost/math/special_functions/beta.hpp>
#include <boost/math/special_functions/gamma.hpp>

#include "boost_policy.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"

namespace KelMath {

using KelCommon::KelMV;

double KelDistFun::CdfBin(double x, double n, double p, long& err) noexcept {
  err = 1;
  if (std::isnan(x) || std::isnan(n) || std::isnan(p)) return std::numeric_limits<double>::quiet_NaN();
  if (n < 0 || std::isinf(n) || p < 0 || p > 1) return KelMV::Missing();
  err = 0;
  if (x < 0) return 0;
  if (x >= n) return 1;
  const double k = std::floor(x);
  if (p == 0) return 1;
  if (p == 1) return 0;
  return boost::math::ibetac(k + 1, n - k, p, QuietPolicy());
}

double KelDistFun::IdfBin(double prob, double n, double p, long& err) noexcept {
  err = 1;
  if (std::isnan(prob) || std::isnan(n) || std::isnan(p)) return std::numeric_limits<double>::quiet_NaN();
  if (n < 0 || std::isinf(n) || p < 0 || p > 1 || prob < 0 || prob > 1) return KelMV::Missing();
  err = 0;
  if (prob == 1) return n;
  double low = -1;
  double high = std::ceil(n);
  while (high - low > 1) {
    const double mid = std::floor(low + (high - low) / 2);
    if (CdfBin(mid, n, p, err) <= prob)
      low = mid;
    else
      high = mid;
  }
  return low;
}

double KelDistFun::PdfBin(double x, double n, double p, long& err) noexcept {
  err = 1;
  if (std::isnan(x) || std::isnan(n) || std::isnan(p)) return std::numeric_limits<double>::quiet_NaN();
  if (n < 0 || std::isinf(n) || p < 0 || p > 1) return KelMV::Missing();
  err = 0;
  if (x < 0 || x > n) return 0;
  if (p == 0) return x == 0 ? 1 : 0;
  if (p == 1) return x == n ? 1 : 0;
  return boost::math::ibeta_derivative(x + 1, n - x + 1, p, QuietPolicy()) / (n + 1);
}

double KelDistFun::PdfNegBin(double x, double r, double p, long& err) noexcept {
  err = 1;
  if (std::isnan(x) || std::isnan(r) || std::isnan(p)) return std::numeric_limits<double>::quiet_NaN();
  if (r <= 0 || p <= 0 || p > 1) return KelMV::Missing();
  err = 0;
  if (x < 0) return 0;
  return (p / (r + x)) * boost::math::ibeta_derivative(r, x + 1, p, QuietPolicy());
}

}  // namespace KelMath
