#include "correlation/two_correlations.h"

#include <cmath>

#include "frame/checks.h"

namespace kelpower::correlation {

double StandardError(const GroupSizes& sizes) { return std::sqrt(1 / (sizes.first - 3) + 1 / (sizes.second - 3)); }

Answer PowerOfDifference(const Level& level, double q, const GroupSizes& sizes) {
  if (sizes.first <= 3) return NoValue::Refused;
  if (sizes.second <= 3) return NoValue::Refused;
  if (RejectsOpenUnit(level.alpha)) return NoValue::Refused;
  return level.Power(q / StandardError(sizes), 1, q > 0);
}

}  // namespace kelpower::correlation
