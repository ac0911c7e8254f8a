#include "means/margins.h"

#include <cmath>
#include <limits>

#include "frame/checks.h"

namespace kelpower::means {

DifferenceDistribution SingleMean(double size, double sd) { return {size - 1, sd / std::sqrt(size)}; }

double SdOfLogarithms(double cv) {
  constexpr double large = 1e8;  // 1 + cv^2 is cv^2 from here on
  return std::sqrt(cv < large ? std::log1p(cv * cv) : 2 * std::log(cv));
}

double LogDistance(double ratio, double other) {
  if (!(ratio > 0) || !(other > 0)) return std::numeric_limits<double>::quiet_NaN();
  const double change = (ratio - other) / other;
  return std::fabs(change) < 0.5 ? std::log1p(change) : std::log(ratio) - std::log(other);
}

std::optional<TTest> OneSidedTest(double alpha, const DifferenceDistribution& estimate) {
  if (std::isnan(alpha) || RejectsAlpha(alpha)) return std::nullopt;
  if (!(estimate.df > 0)) return std::nullopt;
  if (!(estimate.standardError > 0)) return std::nullopt;
  return TTest::OneSided(alpha, estimate.df);
}

Answer PowerBeyondMargin(double distance, double alpha, const DifferenceDistribution& estimate) {
  const std::optional<TTest> test = OneSidedTest(alpha, estimate);
  const double noncentrality = distance / estimate.standardError;
  if (!test || std::isnan(noncentrality)) return NoValue::Refused;
  return test->PowerUpperTail(noncentrality);
}

}  // namespace kelpower::means
