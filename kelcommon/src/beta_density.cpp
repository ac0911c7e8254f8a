#include "beta_density.h"

#include <algorithm>
#include <cmath>

#include "log_gamma.h"
#include "power.h"
#include "small_differences.h"

// With d = (a + b) x - a the ratios of x to a / (a + b) and of y to b / (a + b) are r = 1 + d / a and s = 1 - d / b,
// and
//   x^a y^b / B(a, b) = sqrt(a b / (2 pi (a + b))) G(a + b) / (G(a) G(b)) r^a s^b,
// G(z) = Gamma(z) / (sqrt(2 pi / z) (z / e)^z). Didonato and Morris (1992), Significant digit computation of the
// incomplete beta function ratios, ACM TOMS 18, section 4 (BRCOMP); Loader (2000), Fast and accurate computation of
// binomial probabilities. No term is larger than the logarithm of the result, so large shapes cost no digits.

namespace KelMath {

namespace {

// 2 pi as the sum of two doubles.
constexpr double twoPi = 6.283185307179586477;
constexpr double twoPiRest = 2.4492935982947064e-16;

// Below this a number or its product may be denormal.
constexpr double leastFactor = 1e-290;

// The logarithm of r^a over exp(d), with d / a = relativeExcess.
double LogPower(double a, double relativeExcess, double ratio) {
  // Near 0 the ratio has digits that 1 + relativeExcess has lost.
  if (relativeExcess < -0.5) return a * (std::log(ratio) - relativeExcess);
  return a * Log1pMinusArgument(relativeExcess);
}

// r^a
double Power(double a, const DoubleDouble& wholeOverA, const DoubleDouble& share) {
  // A product with a denormal number would lose digits: I_x(0.009, 1.3) at x = 1e-323.
  if (share.hi < leastFactor) return std::exp(a * (std::log(wholeOverA.hi) + std::log(share.hi)));
  if (a == 0.5) return std::sqrt(wholeOverA.hi * share.hi);
  return PowerOf(Product(wholeOverA, share), a);
}

DoubleDouble PrecisePower(double a, const DoubleDouble& wholeOverA, const DoubleDouble& share) {
  if (share.hi < leastFactor) return {Power(a, wholeOverA, share), 0};
  const DoubleDouble ratio = Product(wholeOverA, share);
  if (a == 0.5) return SquareRoot(ratio);
  return PrecisePowerOf(ratio, a);
}

// (a + b) / a, in one double where no power is taken of it.
DoubleDouble WholeOver(double a, double b, bool isPower) {
  return isPower ? Quotient(ExactSum(a, b), {a, 0}) : DoubleDouble{(a + b) / a, 0};
}

}  // namespace

double BetaExcess(double a, double b, const UnitPoint& point) {
  const DoubleDouble above = ExactProduct(b, point.x.hi);
  const DoubleDouble below = ExactProduct(-a, point.y.hi);
  const DoubleDouble difference = ExactSum(above.hi, below.hi);
  return difference.hi + (difference.lo + (above.lo + below.lo + (b * point.x.lo - a * point.y.lo)));
}

BetaDensity::BetaDensity(double a, double b, double powerShape)
    : a_(a),
      b_(b),
      aIsPower_(a <= powerShape),
      bIsPower_(b <= powerShape),
      root_(std::sqrt(std::min(a, b) / twoPi * (std::max(a, b) / (a + b)))),
      logGammas_(LogScaledGamma(a + b) - (LogScaledGamma(a) + LogScaledGamma(b))),
      wholeOverA_(WholeOver(a, b, aIsPower_)),
      wholeOverB_(WholeOver(b, a, bIsPower_)) {}

double BetaDensity::At(const UnitPoint& point, double excess) const {
  const double powers =
      (aIsPower_ ? Power(a_, wholeOverA_, point.x) : 1) * (bIsPower_ ? Power(b_, wholeOverB_, point.y) : 1);
  const double rest = std::exp(logGammas_ + Exponent(point, excess));
  // Powers that overflow belong to a point so far out that nothing is left.
  return rest > 0 ? root_ * powers * rest : 0;
}

double BetaDensity::Exponent(const UnitPoint& point, double excess) const {
  if (aIsPower_ && bIsPower_) return 0;
  const double ofA = aIsPower_ ? -excess : LogPower(a_, excess / a_, wholeOverA_.hi * point.x.hi);
  const double ofB = bIsPower_ ? excess : LogPower(b_, -excess / b_, wholeOverB_.hi * point.y.hi);
  return ofA + ofB;
}

PreciseBetaDensity::PreciseBetaDensity(double a, double b) : density_(a, b, BetaDensity::largestPrecisePowerShape) {
  const DoubleDouble share = Quotient({std::max(a, b), 0}, ExactSum(a, b));
  const DoubleDouble root = SquareRoot(Product(Quotient({std::min(a, b), 0}, {twoPi, twoPiRest}), share));
  constant_ = Product(root, ExactSum(1, std::expm1(density_.logGammas_)));
}

DoubleDouble PreciseBetaDensity::At(const UnitPoint& point, double excess) const {
  const BetaDensity& d = density_;
  DoubleDouble product = constant_;
  if (d.aIsPower_) product = Product(product, PrecisePower(d.a_, d.wholeOverA_, point.x));
  if (d.bIsPower_) product = Product(product, PrecisePower(d.b_, d.wholeOverB_, point.y));
  const double rest = std::exp(d.Exponent(point, excess));
  return rest > 0 && std::isfinite(product.hi + product.lo) ? Product(product, rest) : DoubleDouble{0, 0};
}

}  // namespace KelMath
