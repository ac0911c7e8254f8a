#include "compare.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace keltest {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kMissing = std::numeric_limits<double>::lowest();

bool IsExact(double expected, Metric metric) {
  if (!std::isfinite(expected) || expected == kMissing) return true;
  return metric != Metric::kGrid && (expected == -1 || expected == -2);
}

bool IsSinglePrecision(double v) {
  if (std::abs(v) > std::numeric_limits<float>::max()) return false;
  return static_cast<double>(static_cast<float>(v)) == v;
}

double AbsoluteOrRelative(double actual, double expected) {
  const double difference = std::abs(actual - expected) / std::max(1.0, std::abs(expected));
  return std::isnan(difference) ? kInfinity : difference;
}

double FloatUlps(double actual, double expected) {
  const float magnitude = std::abs(static_cast<float>(expected));
  const double ulp = std::nextafter(magnitude, std::numeric_limits<float>::infinity()) - magnitude;
  return std::abs(actual - expected) / ulp;
}

// A chart stores some values unrounded, such as those that stand in for a point without a power.
double SinglePrecisionDifference(double actual, double expected) {
  const double difference = AbsoluteOrRelative(actual, expected);
  if (difference <= Bound(Metric::kGrid)) return 0;
  if (!IsSinglePrecision(expected) || !IsSinglePrecision(actual)) return kInfinity;
  return FloatUlps(actual, expected);
}

}  // namespace

double Bound(Metric metric) {
  switch (metric) {
    case Metric::kValue: return 1e-10;
    case Metric::kGrid: return 1e-13;
    case Metric::kSingle: return 1;
  }
  return 0;
}

double Difference(double actual, double expected, Metric metric) {
  if (std::isnan(expected)) return std::isnan(actual) ? 0 : kInfinity;
  if (IsExact(expected, metric)) return actual == expected ? 0 : kInfinity;
  if (metric == Metric::kSingle) return SinglePrecisionDifference(actual, expected);
  return AbsoluteOrRelative(actual, expected);
}

}  // namespace keltest
