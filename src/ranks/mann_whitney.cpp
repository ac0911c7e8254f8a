#include "ranks/mann_whitney.h"

#include <algorithm>
#include <cmath>

#include "frame/checks.h"

namespace kelpower::ranks {

namespace {

/// Where each value of the one group exceeds each of the other.
constexpr double largestExcess = 0.5;

bool Rejects(const TwoGroupTest& design, double n1, double n2) {
  if (RejectsAlpha(design.alpha)) return true;
  if (n1 <= 0) return true;
  if (n2 <= 0) return true;
  return !CanRejectTwoGroups(design.sides, design.alpha, n1, n2);
}

Answer PowerOf(const TwoGroupTest& design, const std::optional<NearlyNormal>& statistic) {
  if (!statistic) return NoValue::Refused;
  return NormalTest(design.sides, design.alpha).Power(*statistic);
}

}  // namespace

std::optional<EquivalentT> ByEfficiency(const TwoGroupTest& design, Parent parent, double shift, double n1, double n2) {
  if (Rejects(design, n1, n2)) return std::nullopt;
  const double k = RelativeEfficiency(parent);
  const double df = k * (n1 + n2) - 2;
  if (df <= 0) return std::nullopt;
  const double noncentrality = std::fabs(shift) / std::sqrt((1 / n1 + 1 / n2) / k);
  return EquivalentT::AtLevel(design.sides, design.alpha, df, noncentrality);
}

Answer PowerByEfficiency(const TwoGroupTest& design, Parent parent, double shift, double n1, double n2) {
  const auto equivalent = ByEfficiency(design, parent, shift, n1, n2);
  return equivalent ? Answer(equivalent->Power()) : NoValue::Refused;
}

std::optional<NearlyNormal> ByNoether(const TwoGroupTest& design, double superiority, double n1, double n2) {
  if (Rejects(design, n1, n2)) return std::nullopt;
  const double sd = std::sqrt((1 / n1 + 1 / n2) / 12);
  const double critical = NormalTest(design.sides, design.alpha).Critical();
  return NearlyNormal{std::fabs(superiority - 0.5), sd, critical * sd, sd};
}

Answer PowerByNoether(const TwoGroupTest& design, double superiority, double n1, double n2) {
  return PowerOf(design, ByNoether(design, superiority, n1, n2));
}

// The variance of the count of pairs with X < Y, over (n1 n2)^2, is
// p q / (n1 n2) + (1 - 1 / n1) (p2 - p^2) / n2 + (1 - 1 / n2) (p2 - p^2) / n1.
std::optional<NearlyNormal> ByMoments(const TwoGroupTest& design, Parent parent, double shift, double n1, double n2) {
  if (Rejects(design, n1, n2)) return std::nullopt;
  const auto [excess, both] = Shifted(parent, std::fabs(shift));
  const double p = 0.5 + excess;
  const double covariance = both - p * p;
  const double ofPairs = (0.25 - excess * excess) / n1 / n2;
  const double variance = ofPairs + covariance * ((1 - 1 / n1) / n2 + (1 - 1 / n2) / n1);
  const double nullSd = std::sqrt((1 / n1 + 1 / n2 + 1 / n1 / n2) / 12);
  const double correction = 0.5 / n1 / n2;
  const double critical = NormalTest(design.sides, design.alpha).Critical();
  const double threshold = critical * nullSd + correction;
  if (threshold >= largestExcess) return std::nullopt;
  return NearlyNormal{excess, nullSd, threshold, std::sqrt(std::max(variance, 0.0))};
}

Answer PowerByMoments(const TwoGroupTest& design, Parent parent, double shift, double n1, double n2) {
  return PowerOf(design, ByMoments(design, parent, shift, n1, n2));
}

double Superiority(Parent parent, double shift) {
  return 0.5 + std::copysign(Shifted(parent, std::fabs(shift)).excess, shift);
}

}  // namespace kelpower::ranks
