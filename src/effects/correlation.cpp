#include "effects/correlation.h"

#include <cmath>
#include <limits>

namespace kelpower::effects {

namespace {

bool Rejects(const Correlation& correlation) { return !(std::fabs(correlation.r) < 1) || !(correlation.size > 3); }
bool RejectsLevel(double alpha) { return !(alpha > 0 && alpha < 1); }
bool RejectsShare(double share) { return !(share > 0 && share < 1); }

}  // namespace

std::optional<Estimate> FisherInterval(double r, double size, double alpha) {
  if (Rejects(Correlation{r, size})) return std::nullopt;
  if (RejectsLevel(alpha)) return std::nullopt;
  const double z = std::atanh(r);
  const double reach = NormalQuantile(alpha) / std::sqrt(size - 3);
  return Estimate{r, {std::tanh(z - reach), std::tanh(z + reach)}};
}

double CohensQ(double r1, double r2) { return std::atanh(r1) - std::atanh(r2); }

std::optional<Estimate> CohensQ(const Correlation& first, const Correlation& second, double alpha) {
  if (Rejects(first)) return std::nullopt;
  if (Rejects(second)) return std::nullopt;
  if (RejectsLevel(alpha)) return std::nullopt;
  const double q = CohensQ(first.r, second.r);
  const double reach = NormalQuantile(alpha) * std::sqrt(1 / (first.size - 3) + 1 / (second.size - 3));
  return Estimate{q, {q - reach, q + reach}};
}

double CorrelationOfCohensD(double d, double share) {
  if (RejectsShare(share)) return NAN;
  if (std::isinf(d)) return std::copysign(1.0, d);
  return d / std::hypot(d, 1 / std::sqrt(share * (1 - share)));
}

double CohensDOfCorrelation(double r, double share) {
  if (RejectsShare(share)) return NAN;
  return r / std::sqrt((1 - r) * (1 + r)) / std::sqrt(share * (1 - share));
}

}  // namespace kelpower::effects
