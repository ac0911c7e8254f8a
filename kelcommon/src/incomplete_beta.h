#ifndef KELCOMMON_SRC_INCOMPLETE_BETA_H
#define KELCOMMON_SRC_INCOMPLETE_BETA_H

namespace KelMath {

/// A point of the unit interval with both distances to its ends, so that neither loses digits near an end.
struct UnitPoint {
  double x;
  double y;  ///< 1 - x

  static UnitPoint FromX(double x) { return {x, 1 - x}; }
};

/// The two probabilities of a beta distribution at a point, with their derivatives by log(x / y).
struct BetaTails {
  double lower;
  double upper;
  double slope;        ///< first derivative of `lower`, x^a y^b / B(a, b)
  double slopeGrowth;  ///< derivative of log(slope), a - (a + b) x
};

/// x^a y^b / B(a, b) for positive finite a and b and 0 < x < 1. The mass functions of the binomial and of the negative
/// binomial distribution are this over the count, up to a factor.
double BetaSlope(double a, double b, UnitPoint point);

/// Both probabilities of Beta(a, b), each with its relative accuracy when it is the smaller one; positive finite a and
/// b and 0 < x < 1.
BetaTails IncompleteBeta(double a, double b, UnitPoint point);

/// The point with lower probability `probability`, at most 1/2 and above 0, for positive finite a and b. Its x is 0
/// when the quantile is smaller than the least positive double.
UnitPoint BetaLowerQuantile(double probability, double a, double b);

}  // namespace KelMath

#endif
