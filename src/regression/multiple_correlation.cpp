#include "regression/multiple_correlation.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"

// With a = df1 / 2, e = df2 / 2 and h = a + e,
//
//   P(R^2 <= c) = sum over k >= 0 of w_k P_k,
//   w_k = Gamma(h + k) / (k! Gamma(h)) rho^2k (1 - rho^2)^h,    the negative binomial probability of k,
//   P_k = I_c(a + k, e),                                        the beta distribution function.
//
// w_k is concentrated within a few spreads sqrt(h rho^2) / (1 - rho^2) of its mode, and both factors have recurrences:
//
//   w_{k+1} = w_k rho^2 (h + k) / (k + 1),
//   P_{k+1} = P_k - g_k,  g_k = Gamma(h + k) / (Gamma(a + k + 1) Gamma(e)) c^(a+k) (1 - c)^e,
//   g_{k+1} = g_k c (h + k) / (a + k + 1).
//
// So the sum starts at the mode, where it takes one incomplete beta function and two probabilities, and goes on in
// both directions with a few multiplications a term. Downwards P_k only gains, so nothing cancels; upwards it loses
// digits only where its terms no longer matter.

namespace kelpower::regression {

using KelCommon::KelMV;
using KelMath::KelDistFun;

namespace {

constexpr double negligible = 1e-18;

/// A probability with its complement, either of which may be tiny.
struct Share {
  double value;
  double complement;
};

/// The mixture at one critical value and one rho^2.
struct Mixture {
  double a;
  double e;
  double h;
  Share c;
  Share rhoSquared;

  double FSquared() const { return rhoSquared.value / rhoSquared.complement; }
  double Mean() const { return h * FSquared(); }
  double Spread() const { return std::sqrt(Mean()) * std::sqrt(1 + FSquared()); }
};

/// Gamma(r + x) / (x! Gamma(r)) failure^x success^r for real x, formed so that neither a tiny share nor x >> r costs
/// digits.
double NegativeBinomialMass(double x, double r, Share failure) {
  long error;
  if (failure.value <= 0.5) return KelDistFun::PdfBin(x, r + x, failure.value, error) * (r / (r + x));
  return KelDistFun::PdfNegBin(x, r, failure.complement, error);
}

double BetaCdf(const Mixture& mix, double k) {
  if (mix.c.value <= 0.5) return KelDistFun::CdfBeta(mix.c.value, mix.a + k, mix.e);
  return 1 - KelDistFun::CdfBeta(mix.c.complement, mix.e, mix.a + k);
}

/// The sum over k, from the mode of the weights outwards. What is left of it when it stops is below `negligible`: the
/// weights beyond k are at most a geometric series, and no P_k beyond is larger than the last one, or than 1.
double SumFromMode(const Mixture& mix) {
  const auto& [a, e, h, c, rhoSquared] = mix;
  const double ratio = rhoSquared.value;
  const double mode = std::max(0.0, std::floor((h - 1) * mix.FSquared()));
  const double weightAtMode = NegativeBinomialMass(mode, h, rhoSquared);
  const double cdfAtMode = BetaCdf(mix, mode);
  const double stepAtMode = NegativeBinomialMass(a + mode, e, c);

  double sum = weightAtMode * cdfAtMode;

  double weight = weightAtMode;
  double cdf = cdfAtMode;
  double step = stepAtMode;
  for (double k = mode; cdf > 0; ++k) {
    const double growth = ratio * (h + k);
    if (weight * cdf * growth <= negligible * (k + 1 - growth)) break;
    weight *= growth / (k + 1);
    cdf -= step;
    step *= c.value * (h + k) / (a + k + 1);
    sum += weight * cdf;
  }

  weight = weightAtMode;
  cdf = cdfAtMode;
  step = stepAtMode;
  for (double k = mode; k > 0; --k) {
    const double growth = ratio * (h + k - 1);
    if (weight * k <= negligible * (growth - k)) break;
    weight *= k / growth;
    step *= (a + k) / (c.value * (h + k - 1));
    cdf += step;
    sum += weight * cdf;
  }
  return sum;
}

/// 1 + t - exp(t) without cancellation near 0, where it is about -t^2 / 2.
double LogGammaShape(double t) {
  if (std::fabs(t) > 0.5) return t - std::expm1(t);
  double term = t * t / 2;
  double sum = term;
  for (int i = 3; std::fabs(term) > 1e-17 * sum; ++i) {
    term *= t / i;
    sum += term;
  }
  return -sum;
}

/// The same probability for a mixture too wide to be summed: given the sum of squares of the response that the
/// predictors explain, F is noncentral with noncentrality 2 f^2 s, and s has the gamma distribution of shape h. The
/// trapezoidal rule in t = ln(s / h) converges geometrically, because the integrand is smooth and dies off at both
/// ends, and no feature of it is narrower than the gamma density.
double IntegrateOverNoncentrality(const FTest& test, const Mixture& mix) {
  constexpr double pointsPerSpread = 5;
  constexpr double logNegligible = -41;
  const double stride = 1 / (pointsPerSpread * std::sqrt(mix.h));
  const double atCentre = 2 * mix.Mean();

  double total = 0;
  double sum = 0;
  const auto add = [&](double t) {
    const double logWeight = mix.h * LogGammaShape(t);
    if (!(logWeight > logNegligible)) return false;
    const double weight = std::exp(logWeight);
    total += weight;
    sum += weight * (1 - test.Power(atCentre * std::exp(t)));
    return true;
  };
  add(0);
  for (int i = 1; add(i * stride); ++i) continue;
  for (int i = 1; add(-i * stride); ++i) continue;
  return sum / total;
}

}  // namespace

double CdfSquaredMultipleCorrelation(const FTest& test, double rhoSquared) {
  constexpr double widestSum = 1000;  // up to here the sum takes less time than the integral

  if (!(rhoSquared >= 0 && rhoSquared <= 1)) return std::numeric_limits<double>::quiet_NaN();
  if (std::isnan(test.critical)) return std::numeric_limits<double>::quiet_NaN();
  if (rhoSquared == 1) return 0;
  if (KelMV::IsMissing(test.critical)) return 0;
  if (std::isinf(test.critical)) return 1;

  const double a = test.df1 / 2;
  const double e = test.df2 / 2;
  const double scale = test.df2 / test.df1;
  const double range = scale + test.critical;
  const Mixture mix{a, e, a + e, {test.critical / range, scale / range}, {rhoSquared, 1 - rhoSquared}};

  if (rhoSquared == 0) return BetaCdf(mix, 0);
  if (std::isinf(mix.Mean())) return 0;
  const double spread = mix.Spread();
  // The weights below this point sum to less than exp(-9.2^2 / 2): a sum of nonnegative jumps has a lower tail below
  // the normal one.
  const double lowest = mix.Mean() - 9.2 * spread;
  if (lowest > 0 && BetaCdf(mix, std::floor(lowest)) < negligible) return 0;
  if (spread > widestSum) return IntegrateOverNoncentrality(test, mix);
  return SumFromMode(mix);
}

}  // namespace kelpower::regression
