#include "ranks/signed_rank.h"

#include <algorithm>
#include <cmath>

#include "frame/checks.h"

namespace kelpower::ranks {

namespace {

/// Where all values have the same sign.
constexpr double largestShareExcess = 0.5;

bool Rejects(const SignedRankTest& design, double n) {
  if (RejectsAlpha(design.alpha)) return true;
  if (n <= 0) return true;
  return !CanRejectSigns(design.sides, design.alpha, n);
}

Answer PowerOf(const SignedRankTest& design, const std::optional<NearlyNormal>& statistic) {
  if (!statistic) return NoValue::Refused;
  return NormalTest(design.sides, design.alpha).Power(*statistic);
}

}  // namespace

std::optional<EquivalentT> ByEfficiency(const SignedRankTest& design, Parent parent, double shift, double n) {
  if (Rejects(design, n)) return std::nullopt;
  const double k = RelativeEfficiency(parent);
  const double df = k * n - 1;
  if (df <= 0) return std::nullopt;
  return EquivalentT::AtLevel(design.sides, design.alpha, df, std::fabs(shift) * std::sqrt(k * n));
}

Answer PowerByEfficiency(const SignedRankTest& design, Parent parent, double shift, double n) {
  const auto equivalent = ByEfficiency(design, parent, shift, n);
  return equivalent ? Answer(equivalent->Power()) : NoValue::Refused;
}

std::optional<NearlyNormal> ByNoether(const SignedRankTest& design, double positiveAverage, double n) {
  if (Rejects(design, n)) return std::nullopt;
  const double sd = 1 / std::sqrt(3 * n);
  const double critical = NormalTest(design.sides, design.alpha).Critical();
  return NearlyNormal{std::fabs(positiveAverage - 0.5), sd, critical * sd, sd};
}

Answer PowerByNoether(const SignedRankTest& design, double positiveAverage, double n) {
  return PowerOf(design, ByNoether(design, positiveAverage, n));
}

// With p1 the probability of a value above 0, p2 of an average of two, and p3 of two averages with a value in common,
// the count of positive averages has the mean n p1 + n (n - 1) p2 / 2 and the variance n p1 (1 - p1) +
// n (n - 1) / 2 (2 (p1 - p2)^2 + 3 p2 (1 - p2)) + n (n - 1) (n - 2) (p3 - p2^2). Here they are over n (n + 1) / 2 and its
// square. An average of two values around the shift d is above 0 as often as a value moved up by 2 d exceeds another.
std::optional<NearlyNormal> ByMoments(const SignedRankTest& design, Parent parent, double shift, double n) {
  if (Rejects(design, n)) return std::nullopt;
  const double distance = std::fabs(shift);
  const double one = Probability(parent, distance) - 0.5;
  const auto [two, both] = Shifted(parent, 2 * distance);
  const double effect = one * (2 / (n + 1)) + two * ((n - 1) / (n + 1));
  const double ofTwo = 0.25 - two * two;
  const double covariance = both - (0.5 + two) * (0.5 + two);
  const double ofAverages = (n - 1) / 2 * (2 * (one - two) * (one - two) + 3 * ofTwo);
  const double sum = 0.25 - one * one + ofAverages + (n - 1) * (n - 2) * covariance;
  const double variance = sum / n / (n + 1) / (n + 1) * 4;
  const double nullSd = std::sqrt((2 * n + 1) / n / (n + 1) / 6);
  const double threshold = NormalTest(design.sides, design.alpha).Critical() * nullSd;
  if (threshold >= largestShareExcess) return std::nullopt;
  return NearlyNormal{effect, nullSd, threshold, std::sqrt(std::max(variance, 0.0))};
}

Answer PowerByMoments(const SignedRankTest& design, Parent parent, double shift, double n) {
  return PowerOf(design, ByMoments(design, parent, shift, n));
}

double PositiveAverage(Parent parent, double shift) {
  return 0.5 + std::copysign(Shifted(parent, 2 * std::fabs(shift)).excess, shift);
}

}  // namespace kelpower::ranks
