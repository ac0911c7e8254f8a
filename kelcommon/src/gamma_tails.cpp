#include "gamma_tails.h"

#include <algorithm>
#include <cmath>

#include "log_gamma.h"

namespace KelMath {

namespace {

// With the shape and the point up to here the upper tail comes of the alternating series below. The beta distribution
// would give it as one minus the lower tail, and lose it where the shape is small.
constexpr double largestSmallShape = 1;
constexpr double largestSmallPoint = 1;

// Nearer to 0 the beta distribution's point would be denormal, and the first term of the series is all of it.
constexpr double leastPoint = 1e-180;

// P(a, x) = x^a / Gamma(1 + a) (1 + a sum_{k>=1} (-x)^k / (k! (a + k))), Abramowitz and Stegun 6.5.29. What it leaves
// of 1 is the upper tail, each part of which keeps its digits: Gil, Segura and Temme (2012), Efficient and accurate
// algorithms for the computation and inversion of the incomplete gamma function ratios, SIAM J. Sci. Comput. 34, 2.2.
Tails SmallGammaTails(double a, double x) {
  double term = 1;
  double sum = 0;
  for (int k = 1; std::fabs(term) > 1e-18 && k < 40; ++k) {
    term *= -x / k;
    sum += term / (a + k);
  }
  const double logPower = a * (std::log(x) - LogGammaOf1PlusOver(a));
  const double power = std::exp(logPower);
  return {power * (1 + a * sum), -std::expm1(logPower) - power * a * sum};
}

// The mass beyond x of a distribution narrower than the distance of doubles.
Tails StepTails(double shape, double x) {
  if (x == shape) return {0.5, 0.5};
  return x < shape ? Tails{0, 1} : Tails{1, 0};
}

// Below this shape the upper tail beyond a point of 1 is the shape times the exponential integral.
constexpr double proportionalShape = 1e-18;

Tails TailsOfBeta(double shape, double x) { return EvaluateBeta(shape, limitShape, GammaPoint(x)).tails; }

}  // namespace

Tails GammaTails(double shape, double x) {
  if (std::max(shape, x) > stepGamma) return StepTails(shape, x);
  if (shape <= largestSmallShape && x <= largestSmallPoint) return SmallGammaTails(shape, x);
  if (x < leastPoint) return SmallGammaTails(shape, x);
  if (shape >= proportionalShape) return TailsOfBeta(shape, x);
  const double upper = TailsOfBeta(proportionalShape, x).upper * (shape / proportionalShape);
  return {1 - upper, upper};
}

double GammaStep(double shape, double x) {
  if (shape <= largestSmallShape || x < leastPoint)
    return std::exp(shape * (std::log(x) - LogGammaOf1PlusOver(shape))) * std::exp(-x);
  return EvaluateBetaDensity(shape, limitShape, GammaPoint(x)) / shape;
}

}  // namespace KelMath
