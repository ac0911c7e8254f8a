#include "incomplete_beta.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "gauss_legendre.h"
#include "kelcommon/kel_dist_fun.h"
#include "series.h"

namespace KelMath {

namespace {

constexpr double epsilon = std::numeric_limits<double>::epsilon();

// A shape below this puts the whole mass at its end of the interval, to double precision.
constexpr double negligibleShape = 1e-20;
// Shapes above this are brought down to it: the distribution is then a step, or a gamma distribution within 1e-300 of
// an end, and intermediate products stay finite.
constexpr double largestShape = 1e290;
// From this smaller shape on, thirty quadrature points are faster than the continued fraction.
constexpr double quadratureShape = 1500;
// A tail is cut where its integrand has fallen to exp(-tailCut).
constexpr double tailCut = 38;

// A beta distribution at a point, seen from the end nearest to the tail.
struct Place {
  double a;
  double b;
  UnitPoint point;
  double excess;  ///< (a + b) x - a
};

// (a + b) x - a, exact but for one rounding: every product and sum keeps its rounding error. This difference of nearly
// equal numbers carries all the information near the mean of large shapes.
double Excess(double a, double b, double x) {
  const double ax = a * x;
  const double bx = b * x;
  const double sum = ax + bx;
  const double other = sum - ax;
  const double sumError = (ax - (sum - other)) + (bx - other);
  const double difference = sum - a;
  const double taken = difference - sum;
  const double differenceError = (sum - (difference - taken)) + (-a - taken);
  return difference + (differenceError + sumError + std::fma(a, x, -ax) + std::fma(b, x, -bx));
}

// Brings `large` down to the largest shape. A small other shape makes this a gamma distribution of large * near, with
// `near` the distance to the near end; two large ones a step at a / (a + b).
void ScaleDown(double& large, double& other, double& near, double& far) {
  if (large <= largestShape) return;
  const double factor = large / largestShape;
  large = largestShape;
  if (other > 1e100) {
    other /= factor;
  } else {
    near = std::min(near * factor, 0.5);
    far = 1 - near;
  }
}

Place MakePlace(double a, double b, UnitPoint point) {
  if (b >= a)
    ScaleDown(b, a, point.x, point.y);
  else
    ScaleDown(a, b, point.y, point.x);
  const double excess = point.x <= point.y ? Excess(a, b, point.x) : -Excess(b, a, point.y);
  return {a, b, point, excess};
}

// a (log(ratio) - relativeExcess), where ratio = (a + b) x / a = 1 + relativeExcess.
double HalfDeviance(double a, double total, double x, double excess) {
  if (a < negligibleShape) return -excess;
  const double relativeExcess = excess / a;
  if (std::fabs(relativeExcess) <= 0.3) return a * Log1pMinusArgument(relativeExcess);
  if (relativeExcess > 1e100) return -1e100;
  return a * (std::log(total * (x / a)) - relativeExcess);
}

// Loader's saddle-point form: the three gamma functions by Stirling's formula, and x^a y^b against its maximum by the
// deviance, whose two terms have the same sign and so lose no digits. C. Loader, Fast and Accurate Computation of
// Binomial Probabilities (2000).
double SlopeAt(const Place& place) {
  const auto& [a, b, point, excess] = place;
  const double total = a + b;
  const double deviance = HalfDeviance(a, total, point.x, excess) + HalfDeviance(b, total, point.y, -excess);
  return StirlingRatio(a) * (StirlingRatio(b) / StirlingRatio(total)) * std::exp(deviance);
}

// Lower probability over slope, by I_x(a, b) = x^a / (a B(a, b)) (1 + a sum_k (1 - b) ... (k - b) x^k / (k! (a + k))).
double TailOverSlopeBySeries(const Place& place) {
  const auto& [a, b, point, excess] = place;
  double power = 1;
  double sum = 0;
  for (int k = 1; k < 1000; ++k) {
    power *= (k - b) / k * point.x;
    const double term = power / (a + k);
    sum += term;
    if (std::fabs(term) <= epsilon / 4 * std::fabs(sum + 1 / a)) break;
  }
  return (1 / a + sum) * std::exp(-b * std::log1p(-point.x));
}

// Lower probability over slope, by the continued fraction of DiDonato and Morris, Significant Digit Computation of the
// Incomplete Beta Function Ratios, ACM TOMS 18 (1992), equation 9, with the modified Lentz method. It needs of x only
// the excess and factors that are benign.
double TailOverSlopeByFraction(const Place& place) {
  const auto& [a, b, point, excess] = place;
  const double x = point.x;
  double value = a / (a + 1) * (1 - excess);
  double c = value;
  double d = 0;
  for (int m = 1; m < 20000; ++m) {
    const double scale = x / (a + 2 * m - 1);
    const double numerator = ((a + m - 1) * scale) * ((a + b + m - 1) * scale) * (m * (b - m));
    const double denominator = m + m * (b - m) * scale + (a + m) / (a + 2 * m + 1) * (1 - excess + m * (2 - x));
    d = 1 / (denominator + numerator * d);
    c = denominator + numerator / c;
    const double change = c * d;
    value *= change;
    if (std::fabs(change - 1) <= epsilon) break;
  }
  return 1 / value;
}

// Lower probability over slope at a shift s of log(x / y) downwards: minus the logarithm of the integrand,
// a s + (a + b) log(1 + x (exp(-s) - 1)), arranged so that the linear terms, which nearly cancel, are in the excess.
double TailExponent(const Place& place, double s) {
  const auto& [a, b, point, excess] = place;
  const bool nearLowerEnd = point.x <= point.y;
  const double share = nearLowerEnd ? point.x : point.y;
  const double shift = nearLowerEnd ? -s : s;
  const double curvature = Expm1MinusArgument(shift);
  return -excess * s + (a + b) * (Log1pMinusArgument(share * (shift + curvature)) + share * curvature);
}

// Lower probability over slope, by Gauss-Legendre quadrature of the tail in log(x / y), where the integrand lies
// between an exponential and a normal density.
double TailOverSlopeByQuadrature(const Place& place) {
  const double information = (place.a + place.b) * place.point.x * place.point.y;
  const double decay = std::max(-place.excess, 0.0);
  double end = 2 * tailCut / (decay + std::sqrt(decay * decay + 2 * tailCut * information));
  end *= std::sqrt(std::max(1.0, tailCut / TailExponent(place, end)));
  const double half = end / 2;
  double sum = 0;
  for (int i = 0; i < gaussLegendreCount; ++i) {
    const double offset = half * gaussLegendreNodes[i];
    sum += gaussLegendreWeights[i] *
           (std::exp(-TailExponent(place, half - offset)) + std::exp(-TailExponent(place, half + offset)));
  }
  return half * sum;
}

double TailOverSlope(const Place& place) {
  // Below 0.7 the terms of the series fall at once.
  if (place.b * place.point.x <= 0.7 && place.point.x <= 0.5) return TailOverSlopeBySeries(place);
  if (std::min(place.a, place.b) > quadratureShape) return TailOverSlopeByQuadrature(place);
  return TailOverSlopeByFraction(place);
}

double Clamp(double probability) { return std::min(std::max(probability, 0.0), 1.0); }

// A distribution whose mass lies at the ends, b / (a + b) of it at 0.
BetaAtPoint TwoPointTails(double a, double b) {
  if (b >= negligibleShape) return {1, 0, 0, 0};
  if (a >= negligibleShape) return {0, 1, 0, 0};
  const double ratio = a / b;
  return {1 / (1 + ratio), ratio / (1 + ratio), 0, 0};
}

BetaAtPoint EndTails(UnitPoint point) {
  if (point.x > 0) return {1, 0, 0, 0};
  return {0, 1, 0, 0};
}

// The logits between which a quantile is sought: beyond them x or y is below the least positive double.
struct LogitBracket {
  double low = -746;
  double high = 746;

  // The value itself when it lies inside, else the middle.
  double Inside(double logit) const { return low < logit && logit < high ? logit : low + (high - low) / 2; }
};

UnitPoint FromLogit(double logit) {
  const double odds = std::exp(-std::fabs(logit));
  if (logit < 0) return {odds / (1 + odds), 1 / (1 + odds)};
  return {1 / (1 + odds), odds / (1 + odds)};
}

// The point whose log(x / y) is larger by `step`, with the digits of the smaller of x and y.
UnitPoint Shift(UnitPoint point, double step) {
  const double growth = std::expm1(step);
  const double x = point.x * (1 + growth) / (1 + point.x * growth);
  if (x <= 0.5) return {x, 1 - x};
  const double y = point.y / (1 + point.x * growth);
  return {1 - y, y};
}

// A step of Halley's method for log(lower probability) as a function of log(x / y), a concave function; `miss` is the
// logarithm of the sought probability over the present one. Cubic convergence leaves nothing after a small miss. Far
// above the quantile, where the function is flat, Newton's step is taken: it passes the quantile and comes back.
constexpr double smallMiss = 1e-5;
// Tiny shapes have a flat middle, where a miss of one rounding error asks for a step of hundreds.
constexpr double smallStep = 1;
constexpr double farAbove = -1;

double LogTailStep(const BetaAtPoint& tails, double miss) {
  const double inverseSlope = tails.lower / tails.slope;
  if (miss < farAbove) return miss * inverseSlope;
  const double bend = 1 + miss * (tails.slopeGrowth * inverseSlope - 1) / 2;
  return miss * inverseSlope / std::max(bend, 0.5);
}

// Abramowitz and Stegun 26.5.22 for shapes above 1; else the two power laws at the ends, as Numerical Recipes 6.4 does.
double StartingLogit(double probability, double a, double b) {
  if (a > 1 && b > 1) {
    const double upperNormal = -KelDistFun::IdfStdNorm(probability);
    const double lambda = (upperNormal * upperNormal - 3) / 6;
    const double inverseA = 1 / (2 * a - 1);
    const double inverseB = 1 / (2 * b - 1);
    const double h = 2 / (inverseA + inverseB);
    const double w = upperNormal * std::sqrt(h + lambda) / h - (inverseB - inverseA) * (lambda + 5.0 / 6 - 2 / (3 * h));
    return std::log(a / b) - 2 * w;
  }
  const double massNear0 = std::pow(a / (a + b), a) / a;
  const double massNear1 = std::pow(b / (a + b), b) / b;
  const double mass = massNear0 + massNear1;
  if (probability < massNear0 / mass) {
    const double logX = std::log(a * mass * probability) / a;
    return logX - std::log(-std::expm1(logX));
  }
  const double logY = std::log(b * mass * (1 - probability)) / b;
  return std::log(-std::expm1(logY)) - logY;
}

}  // namespace

double BetaSlope(double a, double b, UnitPoint point) { return SlopeAt(MakePlace(a, b, point)); }

BetaAtPoint IncompleteBeta(double a, double b, UnitPoint point) {
  if (a < negligibleShape || b < negligibleShape) return TwoPointTails(a, b);
  Place place = MakePlace(a, b, point);
  const double slope = SlopeAt(place);
  // The switch of Numerical Recipes: a little above the mean, so that small shapes converge too.
  const bool lowerIsTail = place.excess + 2 * point.x <= 1;
  if (!lowerIsTail) place = {place.b, place.a, {point.y, point.x}, -place.excess};
  const double tail = slope > 0 ? Clamp(slope * TailOverSlope(place)) : 0;
  if (lowerIsTail) return {tail, 1 - tail, slope, -place.excess};
  return {1 - tail, tail, slope, place.excess};
}

UnitPoint BetaLowerQuantile(double probability, double a, double b) {
  LogitBracket bracket;
  double logit = bracket.Inside(StartingLogit(probability, a, b));
  UnitPoint point = FromLogit(logit);
  for (int i = 0; i < 200; ++i) {
    const BetaAtPoint tails = point.x > 0 && point.y > 0 ? IncompleteBeta(a, b, point) : EndTails(point);
    (tails.lower < probability ? bracket.low : bracket.high) = logit;
    const double miss = std::log1p((probability - tails.lower) / tails.lower);
    const double step = LogTailStep(tails, miss);
    if (std::fabs(miss) < smallMiss && std::fabs(step) < smallStep) return Shift(point, step);
    const double following = bracket.Inside(logit + step);
    if (following == logit) break;
    logit = following;
    point = FromLogit(logit);
  }
  return point;
}

}  // namespace KelMath
