#ifndef KELCOMMON_SRC_BETA_QUOTIENTS_H
#define KELCOMMON_SRC_BETA_QUOTIENTS_H

#include "unit_point.h"

// The incomplete beta function I_x(a, b) over the density x^a y^b / B(a, b) of log(x / y), y = 1 - x: a smooth
// function, of the order of 1 / a in the tail, that needs no gamma function. Three methods, each for its part of the
// domain.

namespace KelMath {

struct BetaPlace {
  double a;
  double b;
  UnitPoint point;
  double excess;  ///< (a + b) x - a

  BetaPlace Mirrored() const { return {b, a, point.Mirrored(), -excess}; }
};

/// True where `BetaQuotientBySeries` takes few terms.
bool IsBetaSeriesShort(const BetaPlace& place);
double BetaQuotientBySeries(const BetaPlace& place);

/// The same to the last digit, in twice the time.
DoubleDouble BetaQuotientBySeriesPrecisely(const BetaPlace& place);

/// What a method returns that would take too many terms.
constexpr double noQuotient = -1;

/// Takes few terms up to the mean, and ever more beyond, where it also loses digits if both shapes are large.
double BetaQuotientByFraction(const BetaPlace& place);

/// For large shapes and x up to the mean or a little beyond. The time does not depend on the arguments.
double BetaQuotientByQuadrature(const BetaPlace& place);

}  // namespace KelMath

#endif
