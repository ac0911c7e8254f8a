#include "beta_terms.h"

#include <cmath>

#include <boost/math/special_functions/beta.hpp>

#include "boost_policy.h"

namespace KelMath {

namespace {
constexpr double pi = 3.141592653589793238;
}  // namespace

long double Log1pMinusArg(long double u) {
  // Below, the difference of the two would lose more than five of the nineteen digits.
  if (std::fabs(u) < 1e-5L) return u * u * (-1 / 2.0L + u * (1 / 3.0L + u * (-1 / 4.0L + u / 5)));
  return std::log1p(u) - u;
}

long double AtanMinusArg(long double u) {
  if (std::fabs(u) < 1e-3L) {
    const long double u2 = u * u;
    return u * u2 * (-1 / 3.0L + u2 * (1 / 5.0L + u2 * (-1 / 7.0L + u2 / 9)));
  }
  return std::atan(u) - u;
}

double ExpMinusTangent(double u) {
  if (std::fabs(u) > 0.5) return std::expm1(u) - u;
  // Taylor series; the first term left out is below 1e-17 of the sum.
  double sum = 0;
  for (int i = 15; i >= 3; --i) sum = (1 + sum) * u / i;
  return u * u * (1 + sum) / 2;
}

double ScaledGamma(double x) {
  if (x < 10) return std::tgamma(x) * std::sqrt(x / (2 * pi)) * std::exp(x - x * std::log(x));
  // Stirling's series, Abramowitz and Stegun (1964), 6.1.41; the next term is below 3e-17 at x = 10.
  const double r = 1 / x;
  const double r2 = r * r;
  const double logarithm =
      r * (1.0 / 12 -
           r2 * (1.0 / 360 -
                 r2 * (1.0 / 1260 - r2 * (1.0 / 1680 - r2 * (1.0 / 1188 - r2 * (691.0 / 360360 - r2 / 156))))));
  return std::exp(logarithm);
}

// With d = (c b - a) / (1 + c) the ratios of y to a / (a + b) and of 1 - y to b / (a + b) are 1 + d / a and 1 - d / b,
// and the terms linear in d cancel:
//   y^a (1-y)^b / B(a,b) = sqrt(a b / (2 pi (a+b))) G(a+b) / (G(a) G(b)) exp(a L(d/a) + b L(-d/b)),
//   L(u) = log(1+u) - u, G the scaled gamma function.
// Didonato and Morris (1992), Significant digit computation of the incomplete beta function ratios, ACM TOMS 18, sec. 4
// (BRCOMP). No term is larger than the result's own logarithm, so large a and b cost no digits.
ScaledValue BetaStep(double a, double b, long double c) {
  const long double la = a;
  const long double lb = b;
  const long double d = (c * lb - la) / (1 + c);
  const double root = static_cast<double>(std::sqrt(lb / (la * (la + lb))) * 0.3989422804014326779L);
  const double sum = static_cast<double>(la + lb);
  const double gammas = (std::isinf(sum) ? 1.0 : ScaledGamma(sum)) / (ScaledGamma(a) * ScaledGamma(b));
  return {root * gammas, la * Log1pMinusArg(d / la) + lb * Log1pMinusArg(-d / lb)};
}

// Loader (2000), Fast and accurate computation of binomial probabilities: the same cancellation of the linear terms.
ScaledValue PoissonMass(double k, double m) {
  if (k == 0) return {1, -static_cast<long double>(m)};
  const long double lk = k;
  return {1 / (std::sqrt(2 * pi * k) * ScaledGamma(k)), lk * Log1pMinusArg((m - lk) / lk)};
}

Tails BetaTails(double a, double b, long double c) {
  const double y = static_cast<double>(c / (1 + c));
  const double complement = static_cast<double>(1 / (1 + c));
  const double lower =
      y < 0.5 ? boost::math::ibeta(a, b, y, QuietPolicy()) : boost::math::ibetac(b, a, complement, QuietPolicy());
  const double upper =
      y < 0.5 ? boost::math::ibetac(a, b, y, QuietPolicy()) : boost::math::ibeta(b, a, complement, QuietPolicy());
  return {lower, upper};
}

}  // namespace KelMath
