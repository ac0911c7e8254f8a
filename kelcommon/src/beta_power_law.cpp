#include "beta_power_law.h"

#include <algorithm>
#include <cmath>

#include "log_gamma.h"
#include "power.h"
#include "small_differences.h"

// With C = Gamma(1+a) Gamma(1+b) / Gamma(1+a+b), so that a B(a, b) = C (a + b) / b, and
//   S(x) = sum_{k>0} (1-b) ... (k-b) x^k / (k! (a+k)),
// I_x(a, b) = b / (a + b) x^a (1 + a S(x)) / C (Abramowitz and Stegun (1964), 26.5.4 and 6.6.8), and so
//   x = (p (a + b) / b)^(1/a) exp(log(C) / a - log(1 + a S(x)) / a).
// A small shape magnifies errors of I by 1 / a. Here log(C) / a and log(1 + a S) / a are formed without that division
// of an error: they keep their digits down to a = 0.

namespace KelMath {

namespace {

// (log(Gamma(z + a)) - log(Gamma(z))) / a - log(z + a) for z >= 1, a number of the order of 1 / z.
double LogGammaGrowth(double z, double a) {
  const double ratio = a / z;
  // (z - 1/2) log(1 + a / z) / a - 1, of which the 1 cancels.
  const double log1pOverRatio = std::log1p(ratio) / ratio;
  const double first = Log1pMinusArgument(ratio) / ratio;
  return first - log1pOverRatio / (2 * z) + (LogScaledGamma(z + a) - LogScaledGamma(z)) / a;
}

// p^(e / a)
DoubleDouble RootOf(const DoubleDouble& p, double e, double a) {
  const double exponent = e / a;
  return PrecisePowerOf(p, exponent, -ProductRest(exponent, a, e) / a);
}

struct Series {
  double sum;
  double slope;  // x times the derivative
};

Series SumSeries(double a, double b, double x) {
  double power = 1;
  Series series{0, 0};
  for (int k = 1; k < 100; ++k) {
    power *= (k - b) / k * x;
    const double term = power / (a + k);
    series.sum += term;
    series.slope += k * term;
    if (std::fabs(term) < 1e-17) break;
  }
  return series;
}

// The same sum alone, from the last term inwards, where each step damps the error of the one before.
double SumSeriesPrecisely(double a, double b, double x) {
  int k = 1;
  for (double power = 1; k < 100 && std::fabs(power) > 1e-18; ++k) power *= (k - b) / k * x;
  double sum = 0;
  for (; k > 0; --k) sum = (k - b) / k * x * (1 / (a + k) + sum);
  return sum;
}

bool IsFarFromEnds(double x) { return x > 1e-280 && x < 1e280; }

}  // namespace

BetaPowerLaw::BetaPowerLaw(double a, double b, DoubleDouble p)
    : a_(a),
      b_(b),
      share_(Product(p, Quotient(ExactSum(a, b), {b, 0}))),
      logScale_(LogGammaOf1PlusOver(a) - LogGammaGrowth(1 + b, a)) {
  const double pure = RootOf(share_, 1, a).hi * std::exp(logScale_) / (1 + b + a);
  x_ = pure;
  if (IsPure()) return;
  // Newton's method in log(x), within the range of the series.
  const double end = std::min(farthest, mostArgument / b);
  for (int i = 0; i < 30; ++i) {
    const double x = std::min(x_, end);
    const Series series = SumSeries(a, b, x);
    bend_ = std::log1p(a * series.sum) / a;
    const double miss = std::log(x / pure) + bend_;
    x_ = x * std::exp(-miss / (1 + series.slope / (1 + a * series.sum)));
    if (x_ > end && x == end) return;
    if (std::fabs(x_ - x) < 1e-9 * x) break;
  }
  bend_ = std::log1p(a * SumSeriesPrecisely(a, b, x_)) / a;
  x_ = pure * std::exp(-bend_);
}

double BetaPowerLaw::Ratio(double power) const {
  const DoubleDouble below = Product(Product(Sum(ExactSum(1, b_), a_), a_), ExactSum(1, -x_));
  const DoubleDouble scale = Quotient({b_, 0}, below);
  const DoubleDouble root = std::fabs(power) == 0.5 ? SquareRoot(scale) : scale;
  const DoubleDouble factor = Product(root, std::exp(std::fabs(power) * (logScale_ - bend_)));
  const DoubleDouble odds = RootOf(share_, power, a_);
  const double rounded = power > 0 ? odds.hi * factor.hi : odds.hi / factor.hi;
  // Near the ends of the range of doubles a pair loses its digits, and beyond them it is no number.
  if (IsFarFromEnds(odds.hi) && IsFarFromEnds(rounded))
    return power > 0 ? Product(odds, factor).hi : Quotient(odds, factor).hi;
  const double half = RootOf(share_, power / 2, a_).hi;
  return half * (power > 0 ? half * factor.hi : half / factor.hi);
}

}  // namespace KelMath
