#include "effects/mean_difference.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "effects/noncentrality.h"
#include "frame/gamma_ratio.h"
#include "frame/scale.h"

namespace kelpower::effects {

using KelMath::KelDistFun;

namespace {

constexpr double rootOfTwo = 1.4142135623730950488;
constexpr double logisticSd = 1.8137993642342178506;  // pi / sqrt(3)

/// d and its interval, where t is `perD` times d.
std::optional<Estimate> StandardisedBy(double perD, double t, double df, double alpha) {
  const auto limits = NoncentralityOfT(t, df, alpha);
  if (!limits) return std::nullopt;
  return Estimate{t / perD, Scaled(*limits, 1 / perD)};
}

}  // namespace

double PooledSd(const Group& first, const Group& second) {
  const double scale = BinaryScale(std::max(std::fabs(first.sd), std::fabs(second.sd)));
  const double sd1 = first.sd / scale;
  const double sd2 = second.sd / scale;
  const double df = first.size + second.size - 2;
  return scale * std::sqrt((first.size - 1) / df * (sd1 * sd1) + (second.size - 1) / df * (sd2 * sd2));
}

std::optional<Estimate> CohensD(const Group& first, const Group& second, double alpha) {
  if (!(first.size > 1 && second.size > 1)) return std::nullopt;
  if (!(first.sd > 0 && second.sd > 0)) return std::nullopt;
  const double d = (first.mean - second.mean) / PooledSd(first, second);
  const double perD = 1 / std::sqrt(1 / first.size + 1 / second.size);
  const auto estimate = StandardisedBy(perD, d * perD, first.size + second.size - 2, alpha);
  if (!estimate) return std::nullopt;
  return Estimate{d, estimate->interval};
}

std::optional<Estimate> CohensDOfT(double t, double n1, double n2, double alpha) {
  if (!(n1 > 0 && n2 > 0)) return std::nullopt;
  return StandardisedBy(1 / std::sqrt(1 / n1 + 1 / n2), t, n1 + n2 - 2, alpha);
}

std::optional<Estimate> CohensDOfOneSampleT(double t, double size, double alpha) {
  return StandardisedBy(std::sqrt(size), t, size - 1, alpha);
}

double HedgesFactor(double df) {
  if (!(df > 1)) return NAN;
  return std::sqrt(1 - 1 / df) * GammaRatio((df - 1) / 2);
}

std::optional<Estimate> HedgesG(const Estimate& d, double df) {
  const double factor = HedgesFactor(df);
  if (std::isnan(factor)) return std::nullopt;
  return Estimate{d.value * factor, Scaled(d.interval, factor)};
}

double ProbabilityOfSuperiority(double d) { return KelDistFun::CdfStdNorm(d / rootOfTwo); }

double CohensDOfSuperiority(double probability) {
  if (!(probability >= 0 && probability <= 1)) return NAN;
  return rootOfTwo * KelDistFun::IdfStdNorm(probability);
}

double CohensU3(double d) { return KelDistFun::CdfStdNorm(d); }

double OddsRatioOfCohensD(double d) { return std::exp(d * logisticSd); }

double CohensDOfOddsRatio(double oddsRatio) { return std::log(oddsRatio) / logisticSd; }

}  // namespace kelpower::effects
