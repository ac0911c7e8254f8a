#include "effects/explained_variance.h"

#include <cmath>
#include <limits>

#include "effects/noncentrality.h"

namespace kelpower::effects {

double FSquaredOfEtaSquared(double etaSquared) {
  if (!(etaSquared >= 0 && etaSquared <= 1)) return std::numeric_limits<double>::quiet_NaN();
  return etaSquared / (1 - etaSquared);
}

double EtaSquaredOfFSquared(double fSquared) {
  if (!(fSquared >= 0)) return std::numeric_limits<double>::quiet_NaN();
  return std::isinf(fSquared) ? 1 : fSquared / (1 + fSquared);
}

std::optional<Estimate> FSquared(const FStatistic& test, double alpha) {
  if (!(test.size > 0)) return std::nullopt;
  const auto limits = NoncentralityOfF(test.f, test.df1, test.df2, alpha);
  if (!limits) return std::nullopt;
  return Estimate{test.f * (test.df1 / test.df2), {limits->lower / test.size, limits->upper / test.size}};
}

std::optional<Estimate> CohensF(const FStatistic& test, double alpha) {
  const auto fSquared = FSquared(test, alpha);
  if (!fSquared) return std::nullopt;
  const auto& [lower, upper] = fSquared->interval;
  return Estimate{std::sqrt(fSquared->value), {std::sqrt(lower), std::sqrt(upper)}};
}

std::optional<Estimate> EtaSquared(const FStatistic& test, double alpha) {
  const auto fSquared = FSquared(test, alpha);
  if (!fSquared) return std::nullopt;
  const auto& [lower, upper] = fSquared->interval;
  return Estimate{EtaSquaredOfFSquared(fSquared->value), {EtaSquaredOfFSquared(lower), EtaSquaredOfFSquared(upper)}};
}

std::optional<Estimate> OmegaSquared(const FStatistic& test, double alpha) {
  const auto etaSquared = EtaSquared(test, alpha);
  if (!etaSquared) return std::nullopt;
  const double explained = test.df1 * (test.f - 1);
  return Estimate{explained / (explained + test.size), etaSquared->interval};
}

std::optional<FStatistic> FOfRSquared(const RSquared& rSquared) {
  const auto& [value, predictors, size] = rSquared;
  const double df2 = size - predictors - 1;
  if (!(value >= 0 && value < 1)) return std::nullopt;
  if (!(predictors > 0 && df2 > 0)) return std::nullopt;
  return FStatistic{value / (1 - value) * (df2 / predictors), predictors, df2, size};
}

}  // namespace kelpower::effects
