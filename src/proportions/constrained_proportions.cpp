#include "proportions/constrained_proportions.h"

#include <algorithm>
#include <cmath>

namespace kelpower::proportions {

namespace {

constexpr double pi = 3.14159265358979323846;

/// a x^3 + b x^2 + c x + d.
struct Cubic {
  double a;
  double b;
  double c;
  double d;

  double At(double x) const { return ((a * x + b) * x + c) * x + d; }
  double SlopeAt(double x) const { return (3 * a * x + 2 * b) * x + c; }
};

/// The middle one of three real roots, by the cosine of a third of an angle.
double MiddleRoot(const Cubic& cubic) {
  const double third = cubic.b / (3 * cubic.a);
  const double v = third * third * third - cubic.b * cubic.c / (6 * cubic.a * cubic.a) + cubic.d / (2 * cubic.a);
  const double square = third * third - cubic.c / (3 * cubic.a);
  const double u = std::copysign(std::sqrt(std::max(0.0, square)), v);
  if (u == 0) return -third;
  const double cosine = std::clamp(v / (u * u * u), -1.0, 1.0);
  return 2 * u * std::cos((pi + std::acos(cosine)) / 3) - third;
}

/// Newton's steps take away what the cosine has lost. One that leads away from the root is not taken.
double Polished(const Cubic& cubic, double root) {
  for (int i = 0; i < 3; ++i) {
    const double next = root - cubic.At(root) / cubic.SlopeAt(root);
    if (!(std::fabs(cubic.At(next)) < std::fabs(cubic.At(root)))) break;
    root = next;
  }
  return root;
}

// Farrington, C. P. and Manning, G. (1990), Statistics in Medicine 9, 1447-1454, appendix, with the groups and the sign
// of the difference as there: their first group is group 2 here, and theta the size of group 1 over that of group 2.
TwoProportions AtDifference(double difference, const TwoProportions& of, double ratio) {
  const double theta = 1 / ratio;
  const auto& [p1, p2] = of;
  const double sum = p2 + theta * p1;
  if (difference == 0) return {sum / (1 + theta), sum / (1 + theta)};
  const Cubic cubic{1 + theta, -(1 + theta + sum + difference * (theta + 2)),
                    difference * difference + difference * (2 * p2 + theta + 1) + sum,
                    -p2 * difference * (1 + difference)};
  const double root = Polished(cubic, MiddleRoot(cubic));
  const double second = std::clamp(root, std::max(0.0, difference), std::min(1.0, 1 + difference));
  return {std::clamp(second - difference, 0.0, 1.0), second};
}

// The same: the smaller root of a quadratic equation in p1, in the form in which nothing cancels.
TwoProportions AtRiskRatio(double riskRatio, const TwoProportions& of, double ratio) {
  const auto& [p1, p2] = of;
  const double a = riskRatio * (1 + ratio);
  const double b = 1 + ratio * p2 + riskRatio * (p1 + ratio);
  const double sum = p1 + ratio * p2;
  const double first = 2 * sum / (b + std::sqrt(std::max(0.0, b * b - 4 * a * sum)));
  return {std::min(1.0, first), std::min(1.0, riskRatio * first)};
}

// The expected number of successes stays: p1 + r p2 is the same for both, with the odds of p2 those of p1 times the limit.
TwoProportions AtOddsRatio(double oddsRatio, const TwoProportions& of, double ratio) {
  const auto& [p1, p2] = of;
  const double sum = p1 + ratio * p2;
  const double a = oddsRatio - 1;
  const double b = 1 + ratio * oddsRatio - sum * a;
  const double first = std::clamp(2 * sum / (b + std::sqrt(std::max(0.0, b * b + 4 * a * sum))), 0.0, 1.0);
  return {first, std::clamp((sum - first) / ratio, 0.0, 1.0)};
}

}  // namespace

TwoProportions ConstrainedProportions(Contrast contrast, double limit, const TwoProportions& proportions,
                                      double ratio) {
  switch (contrast) {
    case Contrast::RiskRatio: return AtRiskRatio(limit, proportions, ratio);
    case Contrast::OddsRatio: return AtOddsRatio(limit, proportions, ratio);
    case Contrast::Difference: break;
  }
  return AtDifference(limit, proportions, ratio);
}

}  // namespace kelpower::proportions
