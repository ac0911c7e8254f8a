#include <algorithm>
#include <cmath>

#include "beta_quotients.h"
#include "correlation.h"
#include "log_gamma.h"

// Fisher's density of r (1915), Biometrika 10, 507-521, is an integral,
//   f(r) = (n - 2) / pi (1 - rho^2)^((n - 1) / 2) (1 - r^2)^((n - 4) / 2) Int_0^oo (cosh w - rho r)^-(n - 1) dw.
// With the order of the integrals exchanged, the one over r has a closed form. Put r = (x + k) / (1 + k x), k = rho / c
// and c = cosh w: the integrand is then (1 - x^2)^(a - 1) (1 + k x) but for constants, a = (n - 2) / 2, so that
//   P(R <= r) = sqrt(1 - rho^2) / pi (1 - m^2)^a Int_0^oo (a q(x) - k) c / (c^2 - rho^2) cosh(u)^(-4 a) dw.
// Here m = (r - rho) / d, d = 1 - rho r, sinh(w / 2) = sqrt(d / 2) sinh u, x = (r c - rho) / (c - rho r), and q(x) is
// the incomplete beta function with both shapes a at (1 + x) / 2 over the density of its log-odds.
//
// As a function of u the integrand is even and analytic for |Im u| < pi / 2, or pi / 4 where rho < 0: the trapezoidal
// rule converges geometrically. All terms are positive.

namespace KelMath {

namespace {

constexpr double pi = 3.141592653589793238;

// Beyond this shape, where the distribution is a step, products would overflow.
constexpr double largestShape = 1e250;

// The step is this over sqrt(4 a + 13). At the distance v from the real axis the integrand is about cos(v)^-(4 a + 1)
// times as large, so that the rule errs by the least value of that times exp(-2 pi v / step): by 1e-16 or less.
constexpr double stepInDeviations = 0.72;

// Where rho < 0 the strip is narrower: with 0.72 and 0.12, P(R <= -1 + 1.3e-11) of 13 pairs with rho = -1 + 1.5e-11 would err
// by 5e-13.
constexpr double stepInDeviationsBelow0 = 0.6;
constexpr double widestStepBelow0 = 0.1;

// What may be left out, relative to the sum.
constexpr double negligible = 1e-17;
constexpr int mostNodes = 1000;

// The integral lies below 1e18, so that nothing is left of the probability.
constexpr double leastLogOfPower = -800;

// Below this point of the unit interval the terms of the series of a q - 1 fall by an eighth at least.
constexpr double seriesPoint = 1.0 / 16;

// From this shape on the quadrature of the quotient is faster than its fraction.
constexpr double quadratureShape = 12000;

// a q - 1 at the point y of the unit interval, by the series in beta_series.cpp. There q loses its difference from
// 1 / a.
double QuotientLess1BySeries(double a, double y) {
  double term = 1;
  double sum = 0;
  for (double k = 0; term > negligible * sum; ++k) {
    term *= y * ((2 * a + k) / (a + (k + 1)));
    sum += term;
  }
  return sum;
}

// q at (1 + x) / 2 for x <= 0, y = (1 + x) / 2.
double Quotient(double a, double x, double y) {
  const BetaPlace place{a, a, {{y, 0}, {1 - y, 0}}, a * x};
  if (IsBetaSeriesShort(place)) return BetaQuotientBySeries(place);
  return a > quadratureShape ? BetaQuotientByQuadrature(place) : BetaQuotientByFraction(place);
}

class Integrand {
public:
  Integrand(double r, double a, double rho)
      : a_(a),
        r_(r),
        rho_(rho),
        besideRho_(1 - std::fabs(rho)),
        distance_(besideRho_ + std::fabs(rho) * (rho > 0 ? 1 - r : 1 + r)),
        beyond_(r - rho),
        logOfMiddle_(2 * LogScaledGamma(a) - LogScaledGamma(2 * a)) {}

  double Distance() const { return distance_; }

  struct Terms {
    double probability;
    double density;
  };

  // By u, at s2 = sinh(u)^2. The term of the density has cosh(u)^-2 in place of the fraction.
  Terms At(double s2) const {
    const double growth = distance_ * s2;  // c - 1
    const double nearer = besideRho_ + growth;
    const double farther = 1 + std::fabs(rho_) + growth;
    const double cLessRho = rho_ > 0 ? nearer : farther;
    const double whole = distance_ * (1 + s2);
    const double x = (beyond_ + r_ * growth) / whole;
    const double y = (1 + r_) / 2 * (cLessRho / whole);
    const double logOfPower = -2 * a_ * std::log1p(s2);
    const double power = std::exp(logOfPower);
    const double speed = std::sqrt(2 * whole / (1 + growth / 2));
    // (a q - k) c = (a q - 1) c + (c - rho)
    const double excess = x > 0 ? (QuotientBeyondMiddle(x, logOfPower) - power * a_ * Quotient(a_, -x, 1 - y) - power)
                                : power * QuotientLess1(x, y);
    return {speed * (excess * (1 + growth) + power * cLessRho) / (nearer * farther), speed * power / (1 + s2)};
  }

private:
  double QuotientLess1(double x, double y) const {
    return y < seriesPoint ? QuotientLess1BySeries(a_, y) : a_ * Quotient(a_, x, y) - 1;
  }

  // a over the density of the log-odds, times a power whose logarithm is given: the quotient of the whole.
  double QuotientBeyondMiddle(double x, double logOfPower) const {
    return 2 * std::sqrt(pi * a_) * std::exp(logOfMiddle_ + logOfPower - a_ * std::log1p(-x * x));
  }

  double a_;
  double r_;
  double rho_;
  double besideRho_;
  double distance_;
  double beyond_;
  double logOfMiddle_;
};

// The logarithm of 1 - m^2 = (1 - r^2) (1 - rho^2) / d^2.
double LogOfBeside(double r, double rho, double distance) {
  const double m = (r - rho) / distance;
  if (m * m < 0.5) return std::log1p(-m * m);
  return std::log((1 - r) / distance * (1 + r) * ((1 - rho) / distance * (1 + rho)));
}

}  // namespace

CorrelationTail LowerTailOfCorrelation(double r, double n, double rho) {
  const double a = std::min((n - 2) / 2, largestShape);
  const Integrand integrand(r, a, rho);
  const double logOfPower = a * LogOfBeside(r, rho, integrand.Distance());
  if (logOfPower < leastLogOfPower) return {0, 0};
  const double width = 1 / std::sqrt(4 * a + 13);
  const double step = rho < 0 ? std::min(stepInDeviationsBelow0 * width, widestStepBelow0) : stepInDeviations * width;
  Integrand::Terms sum = integrand.At(0);
  sum.probability /= 2;
  sum.density /= 2;
  for (int i = 1; i < mostNodes; ++i) {
    const double s = std::sinh(step * i);
    const Integrand::Terms terms = integrand.At(s * s);
    sum.probability += terms.probability;
    sum.density += terms.density;
    if (terms.probability < negligible * sum.probability) break;
  }
  const double factor = std::exp(logOfPower) * step / pi * std::sqrt((1 - rho) * (1 + rho));
  return {factor * sum.probability, factor * 2 * a / integrand.Distance() * sum.density};
}

}  // namespace KelMath
