#include "compare.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace keltest {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double missingValue = std::numeric_limits<double>::lowest();

bool IsExact(double expected, Metric metric) {
  if (!std::isfinite(expected) || expected == missingValue) return true;
  return metric != Metric::Grid && (expected == -1 || expected == -2);
}

bool IsSinglePrecision(double v) {
  if (std::abs(v) > std::numeric_limits<float>::max()) return false;
  return static_cast<double>(static_cast<float>(v)) == v;
}

double AbsoluteOrRelative(double actual, double expected) {
  const double difference = std::abs(actual - expected) / std::max(1.0, std::abs(expected));
  return std::isnan(difference) ? infinite : difference;
}

double FloatUlps(double actual, double expected) {
  const float magnitude = std::abs(static_cast<float>(expected));
  const double ulp = std::nextafter(magnitude, std::numeric_limits<float>::infinity()) - magnitude;
  return std::abs(actual - expected) / ulp;
}

// A chart stores some values unrounded, such as those that stand in for a point without a power.
double SinglePrecisionDifference(double actual, double expected) {
  const double difference = AbsoluteOrRelative(actual, expected);
  if (difference <= Bound(Metric::Grid)) return 0;
  if (!IsSinglePrecision(expected) || !IsSinglePrecision(actual)) return infinite;
  return FloatUlps(actual, expected);
}

}  // namespace

double Bound(Metric metric) {
  switch (metric) {
    case Metric::Value: return 1e-10;
    case Metric::Grid: return 1e-13;
    case Metric::Single: return 1;
  }
  return 0;
}

double Difference(double actual, double expected, Metric metric) {
  if (std::isnan(expected)) return std::isnan(actual) ? 0 : infinite;
  if (IsExact(expected, metric)) return actual == expected ? 0 : infinite;
  if (metric == Metric::Single) return SinglePrecisionDifference(actual, expected);
  return AbsoluteOrRelative(actual, expected);
}

}  // namespace keltest
