#ifndef KELCOMMON_SRC_BETA_POWER_LAW_H
#define KELCOMMON_SRC_BETA_POWER_LAW_H

#include "double_double.h"

namespace KelMath {

/// The quantile of a beta distribution near 0, where I_x(a, b) is all but a power of x.
class BetaPowerLaw {
public:
  /// At the probability p, kept in two doubles because a small shape magnifies it: x grows like p^(1/a).
  BetaPowerLaw(double a, double b, DoubleDouble p);

  /// Whether the power series in x holds.
  bool Holds() const { return x_ < farthest && b_ * x_ < mostArgument; }

  /// Whether the power alone holds, to the last digit.
  bool IsPure() const { return x_ * (1 + b_) * a_ < 1e-17; }

  /// x.
  double Point() const { return x_; }

  /// The odds x / (1 - x) over a / b, to the power 1, -1, 1/2 or -1/2; that may be representable where x is not.
  double Ratio(double power) const;

private:
  static constexpr double farthest = 0.51;     // either end is nearer than this
  static constexpr double mostArgument = 0.7;  // of b x: up to it the series does not cancel

  double a_;
  double b_;
  DoubleDouble share_;
  double logScale_;
  double bend_ = 0;
  double x_;
};

}  // namespace KelMath

#endif
