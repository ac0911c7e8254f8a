#include "design_effect/design_effect.h"

#include <cmath>

#include "frame/checks.h"

namespace kelpower::design_effect {

Answer DesignEffect(const Clusters& clusters) {
  const auto& [meanSize, cv, correlation] = clusters;
  if (meanSize < 1) return NoValue::Refused;
  if (cv < 0) return NoValue::Refused;
  if (correlation < 0 || correlation > 1) return NoValue::Refused;
  if (correlation == 0) return 1;
  return 1 + ((1 + cv * cv) * meanSize - 1) * correlation;
}

// 1 - dropout is off by up to half a rounding error of 1, so the quotient is by that over 1 - dropout, relative to
// itself, and the size itself may come from a computation.
Answer NumberToEnrol(double size, double dropout) {
  constexpr double roundingErrors = 8 * 0x1p-52;
  if (size <= 0) return NoValue::Refused;
  if (dropout < 0 || dropout >= 1) return NoValue::Refused;
  const double kept = 1 - dropout;
  const double quotient = size / kept;
  const double nearest = std::round(quotient);
  const bool isWhole = nearest > 0 && std::fabs(quotient - nearest) <= roundingErrors / kept * quotient;
  return isWhole ? nearest : std::ceil(quotient);
}

// As 1 / (1 / n + (1 - 1 / n) / N), which neither overflows nor needs a finite n or N.
Answer SizeInPopulation(double size, double population) {
  if (size < 1) return NoValue::Refused;
  if (population < 1) return NoValue::Refused;
  const double precision = 1 / size;
  return 1 / (precision + (1 - precision) / population);
}

Answer LevelOfEach(Division division, double alpha, double comparisons) {
  if (RejectsAlpha(alpha)) return NoValue::Refused;
  if (comparisons < 1) return NoValue::Refused;
  return division == Division::Bonferroni ? alpha / comparisons : -std::expm1(std::log1p(-alpha) / comparisons);
}

}  // namespace kelpower::design_effect
