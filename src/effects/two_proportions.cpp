#include "effects/two_proportions.h"

#include <algorithm>
#include <cmath>

namespace kelpower::effects {

namespace {

bool Rejects(const EventCount& count) {
  return !(count.size > 0) || std::isinf(count.size) || !(count.events >= 0 && count.events <= count.size);
}

bool Rejects(const EventCount& first, const EventCount& second, double alpha) {
  if (Rejects(first)) return true;
  if (Rejects(second)) return true;
  return !(alpha > 0 && alpha < 1);
}

/// A ratio with the interval of its logarithm.
Estimate RatioWith(double ratio, double variance, double alpha) {
  const double factor = std::exp(NormalQuantile(alpha) * std::sqrt(variance));
  return {ratio, {ratio / factor, ratio * factor}};
}

/// The score interval of a proportion (Wilson 1927). Its distances from p = x / n are formed from
/// lower = 2 x^2 / n / (2 x + z^2 + root), which does not cancel, root = z sqrt(z^2 + 4 x (1 - p)).
struct ScoreInterval {
  double below;  ///< p less the lower limit
  double above;  ///< the upper limit less p

  ScoreInterval(const EventCount& count, double z)
      : below(Below(count.events, count.size, z)), above(Below(count.size - count.events, count.size, z)) {}

private:
  static double Below(double x, double n, double z) {
    const double p = x / n;
    const double root = z * std::sqrt(z * z + 4 * x * (1 - p));
    return p - (x > 0 ? 2 * x * p / (2 * x + z * z + root) : 0);
  }
};

}  // namespace

std::optional<Estimate> Proportion(const EventCount& group, double alpha) {
  if (Rejects(group, group, alpha)) return std::nullopt;
  const ScoreInterval around(group, NormalQuantile(alpha));
  const double p = group.Proportion();
  return Estimate{p, {p - around.below, p + around.above}};
}

std::optional<Estimate> OddsRatio(const EventCount& first, const EventCount& second, double alpha) {
  if (Rejects(first, second, alpha)) return std::nullopt;
  const double a = first.events;
  const double b = first.size - a;
  const double c = second.events;
  const double d = second.size - c;
  if (std::min({a, b, c, d}) == 0) return std::nullopt;
  return RatioWith(a / b * (d / c), 1 / a + 1 / b + 1 / c + 1 / d, alpha);
}

std::optional<Estimate> RiskRatio(const EventCount& first, const EventCount& second, double alpha) {
  if (Rejects(first, second, alpha)) return std::nullopt;
  if (first.events == 0 || second.events == 0) return std::nullopt;
  const double p1 = first.Proportion();
  const double p2 = second.Proportion();
  return RatioWith(p1 / p2, (1 - p1) / first.events + (1 - p2) / second.events, alpha);
}

std::optional<Estimate> RiskDifference(const EventCount& first, const EventCount& second, double alpha) {
  if (Rejects(first, second, alpha)) return std::nullopt;
  const double z = NormalQuantile(alpha);
  const ScoreInterval one(first, z);
  const ScoreInterval two(second, z);
  const double difference = first.Proportion() - second.Proportion();
  return Estimate{difference,
                  {difference - std::hypot(one.below, two.above), difference + std::hypot(one.above, two.below)}};
}

double CohensH(double proportion1, double proportion2) {
  return 2 * std::asin(std::sqrt(proportion1)) - 2 * std::asin(std::sqrt(proportion2));
}

std::optional<Estimate> CohensH(const EventCount& first, const EventCount& second, double alpha) {
  if (Rejects(first, second, alpha)) return std::nullopt;
  constexpr double pi = 3.14159265358979323846;
  const double h = CohensH(first.Proportion(), second.Proportion());
  const double reach = NormalQuantile(alpha) * std::sqrt(1 / first.size + 1 / second.size);
  return Estimate{h, {std::max(h - reach, -pi), std::min(h + reach, pi)}};
}

double ProportionOfOddsRatio(double oddsRatio, double proportion2) {
  return oddsRatio * proportion2 / (1 - proportion2 + oddsRatio * proportion2);
}

}  // namespace kelpower::effects
