#ifndef KELCOMMON_SRC_BETA_DENSITY_H
#define KELCOMMON_SRC_BETA_DENSITY_H

#include "unit_point.h"

namespace KelMath {

/// (a + b) x - a, the distance from the mean, for shapes from 1e-140 to 1e290.
double BetaExcess(double a, double b, const UnitPoint& point);

/// The density x^a y^b / B(a, b) of the log-odds log(x / y) of a beta variable, y = 1 - x. What depends on the shapes
/// alone is formed once. Shapes lie between 1e-20 and 1e290.
class BetaDensity {
public:
  /// Without the powers of small shapes: an eighth faster. It errs by 3e-15 at a probability of 1e-12.
  static BetaDensity WithoutPowers(double a, double b) { return BetaDensity(a, b, 0); }

  BetaDensity(double a, double b) : BetaDensity(a, b, largestPowerShape) {}

  double At(const UnitPoint& point) const { return At(point, BetaExcess(a_, b_, point)); }
  double At(const UnitPoint& point, double excess) const;

  double A() const { return a_; }
  double B() const { return b_; }

private:
  friend class PreciseBetaDensity;

  // Up to this shape r^a is a power, from then on exp(a (log(r) - d / a)) with the linear terms of both cancelled. The
  // exponential errs by its exponent times 2^-53, 3e-15 at a probability of 1e-12; a power, which takes longer, by one
  // unit in the last place. Quantiles magnify the error by 1 / a.
  static constexpr double largestPowerShape = 16;
  static constexpr double largestPrecisePowerShape = 64;

  BetaDensity(double a, double b, double powerShape);

  // The logarithm of r^a s^b, as far as it is no product of powers.
  double Exponent(const UnitPoint& point, double excess) const;

  double a_;
  double b_;
  bool aIsPower_;
  bool bIsPower_;
  double root_;
  double logGammas_;
  DoubleDouble wholeOverA_;  // (a + b) / a
  DoubleDouble wholeOverB_;
};

/// The same without the roundings of its products, which quantiles of small shapes magnify: what is left are those of
/// two powers, half a unit in the last place each.
class PreciseBetaDensity {
public:
  PreciseBetaDensity(double a, double b);

  DoubleDouble At(const UnitPoint& point, double excess) const;

  double A() const { return density_.A(); }
  double B() const { return density_.B(); }

private:
  BetaDensity density_;
  DoubleDouble constant_;
};

}  // namespace KelMath

#endif
