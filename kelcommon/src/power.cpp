#include "power.h"

#include <cmath>

namespace KelMath {

namespace {

DoubleDouble Corrected(double power, double correction) {
  if (power == 0 || std::isinf(power)) return {power, 0};
  if (std::fabs(correction) < 1e-8) return ExactSumOfSorted(power, power * correction);
  const double factor = std::exp(correction);
  if (power * factor == 0 || std::isinf(power * factor)) return {power * factor, 0};
  return ExactProduct(power, factor);
}

#if defined(__MINGW32__)

// This C library's power errs by 1e-8 of the result at (1 - 1e-8)^1e9, where the logarithm needs more digits than a
// double has. Here the logarithm is a pair of doubles, and what is left to the library is an exponential.

constexpr double rootHalf = 0.70710678118654752440;

// log(2) as the sum of two doubles; the products of the first with exponents are exact.
constexpr double logTwo = 0x1.62e42fefap-1;
constexpr double logTwoRest = 0x1.cf79abc9e3b3ap-40;

// atanh(r) / r - 1 by its series, s = r^2 up to 0.03, even and odd terms side by side.
double AtanhSeries(double s) {
  const double s2 = s * s;
  const double odd = 1.0 / 3 + s2 * (1.0 / 7 + s2 * (1.0 / 11 + s2 * (1.0 / 15 + s2 * (1.0 / 19 + s2 / 23))));
  const double even = 1.0 / 5 + s2 * (1.0 / 9 + s2 * (1.0 / 13 + s2 * (1.0 / 17 + s2 * (1.0 / 21 + s2 / 25))));
  return s * (odd + s * even);
}

// With the base 2^k m, m between the roots of 1/2 and 2, and r = (m - 1) / (m + 1): log(m) = 2 atanh(r).
DoubleDouble Log(const DoubleDouble& base) {
  int k = 0;
  double m = std::frexp(base.hi, &k);
  if (m < rootHalf) {
    m *= 2;
    --k;
  }
  const double rest = std::ldexp(base.lo, -k);
  const DoubleDouble r = Quotient(ExactSum(m - 1, rest), Sum(ExactSum(m, 1), rest));
  const DoubleDouble logM = ExactSum(2 * r.hi, 2 * r.hi * AtanhSeries(r.hi * r.hi));
  const DoubleDouble sum = ExactSum(k * logTwo, logM.hi);
  return ExactSumOfSorted(sum.hi, sum.lo + (logM.lo + 2 * r.lo + k * logTwoRest));
}

DoubleDouble PowerOfPositive(const DoubleDouble& base, double exponent, double rest) {
  // Small whole powers the library multiplies out, so that 1/4 squared is 1/16.
  const bool isMultipliedOut = base.lo == 0 && exponent == std::floor(exponent) && exponent >= 0 && exponent < 64;
  if (isMultipliedOut) return {std::pow(base.hi, exponent), 0};
  const DoubleDouble log = Log(base);
  const double product = log.hi * exponent;
  return Corrected(std::exp(product), ProductRest(log.hi, exponent, product) + (log.lo * exponent + log.hi * rest));
}

#else

DoubleDouble PowerOfPositive(const DoubleDouble& base, double exponent, double rest) {
  return Corrected(std::pow(base.hi, exponent),
                   exponent * (base.lo / base.hi) + (rest == 0 ? 0 : rest * std::log(base.hi)));
}

#endif

}  // namespace

DoubleDouble PrecisePowerOf(const DoubleDouble& base, double exponent, double rest) {
  if (!(base.hi > 0) || std::isinf(base.hi) || std::isinf(exponent)) return {std::pow(base.hi, exponent), 0};
  return PowerOfPositive(base, exponent, rest);
}

}  // namespace KelMath
