#include "assurance/correlation.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "assurance/first_size.h"
#include "frame/bracketed_root.h"
#include "frame/gamma_ratio.h"
#include "frame/integral.h"
#include "kelcommon/kel_dist_fun.h"

namespace kelpower::assurance {

using KelMath::KelDistFun;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

double LogCosh(double x) {
  const double a = std::fabs(x);
  if (a > 1) return a - std::log(2.0) + std::log1p(std::exp(-2 * a));
  const double sinh = std::sinh(a / 2);
  return std::log1p(2 * sinh * sinh);
}

/// The centre of the interval from where on it is short enough: that of tanh(z - h) to tanh(z + h) has the half-width
/// sinh(2 h) / (cosh(2 z) + cosh(2 h)). Divided by e^(2 h), which may overflow.
double ShortCentre(double h, double halfWidth) {
  const double decay = std::exp(-4 * h);
  const double scaled = (1 - decay) / halfWidth - (1 + decay);  // cosh(2 z) 2 e^(-2 h)
  const double logOfCosh = std::log(scaled / 2) + 2 * h;
  if (!(scaled > 0) || logOfCosh <= 0) return 0;
  if (logOfCosh > 300) return (logOfCosh + std::log(2.0)) / 2;
  return std::acosh(std::exp(logOfCosh)) / 2;
}

/// The z whose corrected value z - tanh(z) / (2 (n - 1)) is `centre` >= 0.
double Uncorrected(double centre, double size) {
  const double most = 0.5 / (size - 1);
  const auto excess = [&](double z) { return z - most * std::tanh(z) - centre; };
  return BracketedRoot(excess, centre, centre + most).ValueOr(centre);
}

/// The hypergeometric function F(1/2, 1/2; c; x), 0 <= x <= 1, c >= 3.5. Its terms fall at least like those of a zeta
/// function of c.
double HypergeometricHalf(double c, double x) {
  constexpr int mostTerms = 100000;
  double term = 1;
  double sum = 1;
  for (int k = 0; k < mostTerms && term > 1e-16 * sum; ++k) {
    term *= (k + 0.5) / (c + k) * ((k + 0.5) / (k + 1)) * x;
    sum += term;
  }
  return sum;
}

/// The density of z = atanh(r), in a form whose powers do not cancel: with zeta = atanh(rho)
///   (n - 2) Gamma(n - 1) / (sqrt(2 pi) Gamma(n - 1/2)) sqrt(cosh(z) / cosh(zeta)) cosh(z - zeta)^-(n - 3/2)
///     F(1/2, 1/2; n - 1/2; (1 + rho r) / 2).
/// It follows from Hotelling's by 1 - rho r = cosh(z - zeta) / (cosh(z) cosh(zeta)).
class ExactZ {
public:
  ExactZ(double correlation, double size)
      : zeta_(std::atanh(correlation)),
        rho_(correlation),
        size_(size),
        constant_((size - 2) / std::sqrt(size - 1) / GammaRatio(size - 1) * inverseRootOfTwoPi) {}

  /// P(|z| >= edge)
  double Beyond(double edge) const {
    const double spread = 1 / std::sqrt(size_ - 2);
    const double reach = 9 * spread + 40 * spread * spread;  // nothing but 1e-17 lies further from zeta
    const double low = zeta_ - reach;
    const double high = zeta_ + reach;
    const double sum = Between(low, std::min(-edge, high)) + Between(std::max(edge, low), high);
    return std::clamp(sum, 0.0, 1.0);
  }

private:
  static constexpr double inverseRootOfTwoPi = 0.3989422804014326779;
  static constexpr double tolerance = 1e-12;

  double Density(double z) const {
    const double log = (LogCosh(z) - LogCosh(zeta_)) / 2 - (size_ - 1.5) * LogCosh(z - zeta_);
    return constant_ * std::exp(log) * HypergeometricHalf(size_ - 0.5, (1 + rho_ * std::tanh(z)) / 2);
  }

  double Between(double from, double to) const {
    if (!(from < to)) return 0;
    const auto density = [&](double z) { return Density(z); };
    const double middle = std::clamp(zeta_, from, to);
    return Integrate(density, from, middle, tolerance).value + Integrate(density, middle, to, tolerance).value;
  }

  double zeta_;
  double rho_;
  double size_;
  double constant_;
};

double FisherBeyond(double correlation, double size, double edge) {
  const double mean = std::atanh(correlation) + correlation / (2 * (size - 1));
  const double root = std::sqrt(size - 3);
  return KelDistFun::CdfStdNorm((mean - edge) * root) + KelDistFun::CdfStdNorm((-mean - edge) * root);
}

double AssuranceAt(const CorrelationInterval& interval, const Wish& wish, double size) {
  const double effective = size - interval.partialledOut;
  const double anyNaN = interval.correlation + effective + wish.halfWidth + wish.alpha;
  if (std::isnan(anyNaN)) return anyNaN;
  const double h = -KelDistFun::IdfStdNorm(wish.alpha / 2) / std::sqrt(effective - 3);
  if (std::fabs(interval.correlation) == 1 || wish.halfWidth >= 1) return 1;
  if (wish.halfWidth == 0) return 0;
  const double centre = ShortCentre(h, wish.halfWidth);
  const double edge = interval.isCorrected ? Uncorrected(centre, size) : centre;
  if (edge == 0) return 1;
  if (edge == infinity) return 0;
  return interval.model == CorrelationModel::Exact ? ExactZ(interval.correlation, effective).Beyond(edge)
                                                   : FisherBeyond(interval.correlation, effective, edge);
}

bool Rejects(const CorrelationInterval& interval) {
  return RejectsCorrelation(interval.correlation) || interval.partialledOut < 0;
}

}  // namespace

Answer Assurance(const CorrelationInterval& interval, const Wish& wish, double size) {
  if (Rejects(interval)) return NoValue::Refused;
  if (Rejects(wish)) return NoValue::Refused;
  if (size - interval.partialledOut <= 3) return NoValue::Refused;
  return AssuranceAt(interval, wish, size);
}

Answer FirstSize(const CorrelationInterval& interval, const Wish& wish, double assurance) {
  if (Rejects(interval)) return NoValue::Refused;
  if (Rejects(wish)) return NoValue::Refused;
  if (RejectsOpenUnit(assurance)) return NoValue::Refused;
  const double smallest = std::floor(interval.partialledOut) + 4;
  return FirstSize(
      {smallest, smallest + 16}, [&](double size) { return AssuranceAt(interval, wish, size); }, assurance);
}

}  // namespace kelpower::assurance
