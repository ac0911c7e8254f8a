#include "correlation/exact_pearson.h"

#include <algorithm>
#include <cmath>

#include "kelcommon/distributions.h"

namespace kelpower::correlation {

namespace {

/// The correlation that a sample exceeds with probability `tail`: by symmetry, so that a small tail keeps its digits.
double UpperQuantile(double tail, double size, double null) { return -kelcommon::IdfCorrelation(tail, size, -null); }

}  // namespace

double CriticalCorrelations::Power(double size, double alternative) const {
  const double lower = kelcommon::CdfCorrelation(below, size, alternative);
  return std::min(lower + kelcommon::SfCorrelation(above, size, alternative), 1.0);
}

CriticalCorrelations CriticalValues(const Level& level, double size, const Hypotheses& hypotheses) {
  const auto& [alternative, null] = hypotheses;
  if (!level.isOneSided) {
    return {kelcommon::IdfCorrelation(level.alpha / 2, size, null), UpperQuantile(level.alpha / 2, size, null)};
  }
  if (alternative > null) return {-1, UpperQuantile(level.alpha, size, null)};
  return {kelcommon::IdfCorrelation(level.alpha, size, null), 1};
}

Answer ExactPower(const Level& level, double size, const Hypotheses& hypotheses) {
  if (size <= 2) return NoValue::Refused;
  if (Rejects(hypotheses, level)) return NoValue::Refused;
  if (std::fabs(hypotheses.null) == 1) return NoValue::Refused;
  return CriticalValues(level, size, hypotheses).Power(size, hypotheses.alternative);
}

}  // namespace kelpower::correlation
