#include "beta_tails.h"

#include <algorithm>
#include <cmath>

#include "beta_quotients.h"

namespace KelMath {

namespace {

// A shape below this puts the whole mass at its end of the interval, to double precision.
constexpr double negligibleShape = 1e-20;

// Shapes above this are brought down to it: the distribution is then a step, or a gamma distribution within 1e-280 of
// an end, and intermediate products stay finite.
constexpr double largestShape = 1e280;

// From this smaller shape on the quadrature is faster than the fraction, whose terms grow like its cube root: to 480 at
// the middle of two shapes of 5e5.
constexpr double quadratureShape = 12000;

double QuotientOfTail(const BetaPlace& place) {
  if (IsBetaSeriesShort(place)) return BetaQuotientBySeries(place);
  if (std::min(place.a, place.b) > quadratureShape) return BetaQuotientByQuadrature(place);
  return BetaQuotientByFraction(place);
}

DoubleDouble PreciseQuotientOfTail(const BetaPlace& place) {
  return IsBetaSeriesShort(place) ? BetaQuotientBySeriesPrecisely(place) : DoubleDouble{QuotientOfTail(place), 0};
}

// Negative where no method gives it, far beyond the mean.
double LowerTail(const BetaPlace& place, double density) {
  return density > 0 ? std::min(density * QuotientOfTail(place), 1.0) : 0;
}

// x is not far above the mean, where the fraction of the lower tail is fast.
bool IsFractionFast(const BetaPlace& place) { return place.excess + 2 * place.point.x.hi <= 1; }

// The lower tail is computed first: its series is short, or else the fraction of the lower tail is fast and the series
// of the upper one is not short. The tail that comes first always has its method.
bool IsLowerFirst(const BetaPlace& place) {
  if (IsBetaSeriesShort(place)) return true;
  return IsFractionFast(place) && !IsBetaSeriesShort(place.Mirrored());
}

// A tail from this on is not subtracted from one: the other is computed by itself. A probability is asked for its
// absolute error first, a quantile needs all the digits of its tail.
constexpr double subtrahendOfProbability = 0.9;
constexpr double subtrahendOfQuantile = 0.65;

// A lower tail that would be computed by itself in any case comes first where it can.
bool IsLowerFirst(const BetaPlace& place, double expected) {
  return IsLowerFirst(place) || (expected < 1 - subtrahendOfQuantile && IsFractionFast(place));
}

Tails TailsAt(const BetaPlace& place, double density) {
  const double lower = LowerTail(place, density);
  if (lower > subtrahendOfProbability) {
    const double upper = LowerTail(place.Mirrored(), density);
    if (upper >= 0) return {1 - upper, upper};
  }
  return {lower, 1 - lower};
}

// Nearer to an end than this, products may be denormal.
constexpr double denormalProducts = 1e-290;

struct ScaledShapes {
  double a;
  double b;
  UnitPoint point;
};

DoubleDouble Times(const DoubleDouble& value, double factor) { return {value.hi * factor, value.lo * factor}; }

// Brings the larger shape down to the largest shape. A small other shape makes this a gamma distribution of large *
// near, with `near` the distance to the near end; two large ones a step at a / (a + b).
void ScaleDown(double& large, double& other, DoubleDouble& near, DoubleDouble& far) {
  const double factor = large / largestShape;
  large = largestShape;
  if (other > 1e100) {
    other /= factor;
  } else {
    near = near.hi * factor < 0.5 ? Times(near, factor) : DoubleDouble{0.5, 0};
    far = ExactSum(1, -near.hi);
    far.lo -= near.lo;
  }
}

ScaledShapes Scale(double a, double b, const UnitPoint& point) {
  ScaledShapes scaled{a, b, point};
  if (std::max(a, b) <= largestShape) return scaled;
  if (b >= a)
    ScaleDown(scaled.b, scaled.a, scaled.point.x, scaled.point.y);
  else
    ScaleDown(scaled.a, scaled.b, scaled.point.y, scaled.point.x);
  return scaled;
}

bool IsNearEnd(const UnitPoint& point) { return std::min(point.x.hi, point.y.hi) < denormalProducts; }

bool IsOrdinary(double a, double b, const UnitPoint& point) {
  return std::max(a, b) <= largestShape && !IsNearEnd(point);
}

BetaDensity DensityFor(const ScaledShapes& scaled) {
  return IsNearEnd(scaled.point) ? BetaDensity(scaled.a, scaled.b) : BetaDensity::WithoutPowers(scaled.a, scaled.b);
}

TailsAndDensity EvaluateAt(const BetaDensity& densityOfLogOdds, const UnitPoint& point) {
  const double a = densityOfLogOdds.A();
  const double b = densityOfLogOdds.B();
  const BetaPlace place{a, b, point, BetaExcess(a, b, point)};
  const double density = densityOfLogOdds.At(point, place.excess);
  return {IsLowerFirst(place) ? TailsAt(place, density) : TailsAt(place.Mirrored(), density).Mirrored(), density};
}

// A distribution whose mass lies at the ends, b / (a + b) of it at 0.
Tails TwoPointTails(double a, double b) {
  if (b >= negligibleShape) return {1, 0};
  if (a >= negligibleShape) return {0, 1};
  const double ratio = a / b;
  return {1 / (1 + ratio), ratio / (1 + ratio)};
}

}  // namespace

TailsAndDensity EvaluateBeta(double a, double b, const UnitPoint& point) {
  if (a < negligibleShape || b < negligibleShape) return {TwoPointTails(a, b), 0};
  if (IsOrdinary(a, b, point)) return EvaluateAt(BetaDensity::WithoutPowers(a, b), point);
  const ScaledShapes scaled = Scale(a, b, point);
  return EvaluateAt(DensityFor(scaled), scaled.point);
}

PreciseTail EvaluateLowerBeta(const PreciseBetaDensity& densityOfLogOdds, const UnitPoint& point, double expected) {
  const double a = densityOfLogOdds.A();
  const double b = densityOfLogOdds.B();
  const BetaPlace place{a, b, point, BetaExcess(a, b, point)};
  const DoubleDouble density = densityOfLogOdds.At(point, place.excess);
  const auto By = [&](const DoubleDouble& quotient) {
    return PreciseTail{Product(density, quotient), density.hi, place.excess};
  };
  if (density.hi == 0) return {{place.excess > 0 ? 1.0 : 0.0, 0}, 0, place.excess};
  if (IsLowerFirst(place, expected)) return By(PreciseQuotientOfTail(place));
  PreciseTail tail = By(PreciseQuotientOfTail(place.Mirrored()));
  if (tail.lower.hi > subtrahendOfQuantile) {
    const DoubleDouble quotient = PreciseQuotientOfTail(place);
    if (quotient.hi >= 0) return By(quotient);
  }
  const DoubleDouble upper = tail.lower;
  tail.lower = ExactSum(1, -upper.hi);
  tail.lower.lo -= upper.lo;
  return tail;
}

double EvaluateBetaDensity(double a, double b, const UnitPoint& point) {
  if (a < negligibleShape || b < negligibleShape) return std::min(a, b) * (a > b ? a / (a + b) : b / (a + b));
  if (IsOrdinary(a, b, point)) return BetaDensity::WithoutPowers(a, b).At(point);
  const ScaledShapes scaled = Scale(a, b, point);
  return DensityFor(scaled).At(scaled.point);
}

}  // namespace KelMath
