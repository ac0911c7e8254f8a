#include <algorithm>
#include <cmath>

#include "beta_quotients.h"
#include "gauss_legendre.h"
#include "small_differences.h"

// The lower tail is the integral of the density over the log-odds s below log(x / y). Relative to the density at x the
// integrand lies between an exponential and a normal density. It is cut where it has fallen to exp(-tailCut), and
// integrated by the Gauss-Legendre rule.

namespace KelMath {

namespace {

constexpr double tailCut = 38;

// Minus the logarithm of the integrand at s below log(x / y), a s + (a + b) log(1 + x (exp(-s) - 1)), arranged so that
// the linear terms, which nearly cancel, are in the excess.
double TailExponent(const BetaPlace& place, double s) {
  const double x = place.point.x.hi;
  const double y = place.point.y.hi;
  const bool nearLowerEnd = x <= y;
  const double share = nearLowerEnd ? x : y;
  const double shift = nearLowerEnd ? -s : s;
  const double curvature = Expm1MinusArgument(shift);
  return -place.excess * s +
         (place.a + place.b) * (Log1pMinusArgument(share * (shift + curvature)) + share * curvature);
}

}  // namespace

double BetaQuotientByQuadrature(const BetaPlace& place) {
  const double information = (place.a + place.b) * place.point.x.hi * place.point.y.hi;
  const double decay = std::max(-place.excess, 0.0);
  double end = 2 * tailCut / (decay + std::sqrt(decay * decay + 2 * tailCut * information));
  end *= std::sqrt(std::max(1.0, tailCut / TailExponent(place, end)));
  const double half = end / 2;
  double sum = 0;
  for (int i = 0; i < gaussLegendreCount; ++i) {
    const double offset = half * gaussLegendreNodes[i];
    sum += gaussLegendreWeights[i] *
           (std::exp(-TailExponent(place, half - offset)) + std::exp(-TailExponent(place, half + offset)));
  }
  return half * sum;
}

}  // namespace KelMath
