#include "beta_quantile.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "beta_power_law.h"
#include "beta_tails.h"
#include "normal.h"

namespace KelMath {

namespace {

constexpr double smallest = std::numeric_limits<double>::min();
constexpr double largest = std::numeric_limits<double>::max();

// Below this shape a quantile comes of its power law, where it holds; the general method would magnify errors by 1 / a.
constexpr double powerLawShape = 1;

// Between this shape and the other the power law of the upper tail holds only where the lower tail is large.
constexpr double smallShape = 0.25;
constexpr double leastTailForUpperPowerLaw = 0.2;

// Both shapes beyond this: the spread is below the last digit. One shape beyond: a gamma distribution.
constexpr double stepShape = 1e37;

// Both shapes below this: all mass at the ends, b / (a + b) of it at 0.
constexpr double endShape = 1e-100;

// Shapes are brought to this range, beyond which no quantile changes.
constexpr double leastShape = 1e-200;
constexpr double mostShape = 1e100;

// Student's quantile |t| with P(|T| > |t|) = p to about four digits: Hill (1970), Algorithm 396: Student's t-quantiles.
double HillQuantile(double df, double p) {
  const double a = 1 / (df - 0.5);
  const double b = 48 / (a * a);
  double c = ((20700 * a / b - 98) * a - 16) * a + 96.36;
  const double d = ((94.5 / (b + c) - 3) / b + 1) * std::sqrt(a * 1.5707963267948966) * df;
  double y = std::pow(d * p, 2 / df);
  if (y > 0.05 + a) {
    const double x = NormalUpperQuantile(p / 2);
    y = x * x;
    if (df < 5) c += 0.3 * (df - 4.5) * (x + 0.6);
    c = (((0.05 * d * x - 5) * x - 7) * x - 2) * x + b + c;
    y = (((((0.4 * y + 6.3) * y + 36) * y + 94.5) / c - y - 3) / b + 1) * x;
    y = std::expm1(a * y * y);
  } else {
    y = ((1 / (((df + 6) / (df * y) - 0.089 * d - 0.822) * (df + 2) * 3) + 0.5 / (df + 4)) * y - 1) * (df + 1) /
            (df + 2) +
        1 / y;
  }
  return std::sqrt(df * y);
}

// The ratio near enough for the inverse series.
double StartingRatio(double a, double b, double p) {
  // The square of Student's t is a variable of F with one numerator degree of freedom, its reciprocal one with one
  // denominator degree. The lower half of the former comes of its power law and not here.
  if (b == 0.5 && a > 1 && a < 1e15) {
    const double t = HillQuantile(2 * a, p);
    if (t > 0) return 1 / (t * t);
  }
  if (a > 0.9 && b > 0.9) {
    // Carter (1947), Approximation to percentage points of the z-distribution; Abramowitz and Stegun, 26.5.22.
    const double z = -NormalUpperQuantile(p);
    const double lambda = (z * z - 3) / 6;
    const double ra = 1 / (2 * a - 1);
    const double rb = 1 / (2 * b - 1);
    const double h = 2 / (ra + rb);
    // h is 0.8 or more, lambda -0.5 or more.
    return std::exp(2 * (z * std::sqrt(h + lambda) / h + (rb - ra) * (lambda + 5.0 / 6 - 2 / (3 * h))));
  }
  // The power law at x = 0 or else that at x = 1, and between them the mean.
  const BetaPowerLaw atZero(a, b, {p, 0});
  if (atZero.Point() < 0.5) return atZero.Ratio(1);
  const BetaPowerLaw atOne(b, a, ExactSum(1, -p));
  return atOne.Point() < 0.5 ? atOne.Ratio(-1) : 1;
}

// The density of the odds around x / y, divided by that there, as a power series in u, where the odds have grown by the
// factor 1 + u:
//   (1 + u) (1 + x u) f' = (k - 1 - x (b + 1) u) f,  k = -excess.
class DensitySeries {
public:
  // With the terms that matter up to u; more than `mostTerms` are not formed.
  DensitySeries(double b, double x, double k, double u) {
    double previous = 0;
    double power = 1;
    for (int n = 0; n < mostTerms && !isEnough_; ++n) {
      const double step = 1.0 / (n + 1);
      integral_[n] = density_[n] * step;
      density_[n + 1] = ((k - 1 - (1 + x) * n) * density_[n] - x * (b + n) * previous) * step;
      previous = density_[n];
      ++terms_;
      const double previousPower = power;
      power *= u;
      // Two in a row, for one may vanish.
      isEnough_ = std::fabs(previous * previousPower) < 1e-15 && std::fabs(density_[n + 1] * power) < 1e-17;
    }
  }

  bool IsEnough() const { return isEnough_; }

  // The u at which the integral of the series from 0 to u is `wanted`, by Newton's method from near it.
  double Root(double wanted, double u) const {
    for (int i = 0; i < 4; ++i) {
      double integral = 0;
      double density = 0;
      for (int n = terms_ - 1; n >= 0; --n) {
        integral = integral * u + integral_[n];
        density = density * u + density_[n];
      }
      const double step = (integral * u - wanted) / density;
      u -= step;
      if (std::fabs(step) < 1e-7 * std::fabs(u)) break;  // what is left is of the order of its square
    }
    return u;
  }

private:
  static constexpr int mostTerms = 20;
  double density_[mostTerms + 1] = {1};
  double integral_[mostTerms] = {};
  int terms_ = 0;
  bool isEnough_ = false;
};

UnitPoint PointOfRatio(double a, double b, double ratio) {
  // Scaled, neither the product nor the other shape leaves the range of a double.
  const double scale = ratio > 1e100 ? 0x1p-600 : ratio < 1e-100 ? 0x1p600 : 1;
  return UnitPoint::FromRatio(ExactProduct(a, ratio * scale), {b * scale, 0});
}

struct Step {
  double growth;  // of the ratio, NaN where there is no slope to follow
  bool isLast;
};

// From the place `at` towards the one at which the lower tail is p.
Step StepTowards(double p, const PreciseBetaDensity& density, const UnitPoint& point, const PreciseTail& at) {
  const double tail = at.lower.hi;
  const double slope = at.density / tail;
  if (!(slope > 0 && std::isfinite(slope))) return {std::numeric_limits<double>::quiet_NaN(), false};
  // The inverse series of F(v) = log(I / p), v = log(x / y), to its third term. With F1 = s = density / I and the
  // density's logarithmic derivative k = -excess, the derivatives are F2 = s (k - s) and
  // F3 = s ((k - s)^2 + dk/dv - F2).
  const double k = -at.excess;
  const double kSlope = -(density.A() + density.B()) * point.x.hi * point.y.hi;
  const double excess = (tail - p) + at.lower.lo;
  const double miss = std::fabs(excess) < p / 2 ? std::log1p(excess / p) : std::log(tail / p);
  const double newton = -miss / slope;
  const double second = (k - slope) / 2 * newton;
  const double third = ((k - slope) * (k - slope) + kSlope - slope * (k - slope)) / 6 * newton * newton;
  const double cubic = 2 * second * second - third;
  const bool isNear = std::fabs(second) < 0.3 && std::fabs(cubic) < 0.3;
  if (!isNear) return {std::expm1(newton / (1 + std::clamp(second, -0.5, 1.0))), false};

  const double step = newton * (1 - second + cubic);
  const double growth = std::expm1(step);
  // The fourth term is of the order of these to the third power. The step itself is bounded too: far in a tail log I is
  // nearly linear, so the second and third order terms look small.
  const double order = std::max({std::fabs(second), std::sqrt(std::fabs(third)), std::fabs(newton)});
  if (std::fabs(newton) * order * order * order < 1e-16) return {growth, true};
  // The series keeps its digits where neither the odds nor their density change much, and a denormal density has few to
  // divide by.
  if (std::fabs(growth) < 0.5 && std::fabs(miss) < 0.3 && at.density >= smallest) {
    const DensitySeries series(density.B(), point.x.hi, k, growth);
    if (series.IsEnough()) return {series.Root(-excess / at.density, growth), true};
  }
  return {growth, false};
}

double SearchRatio(double a, double b, double p, double start) {
  const PreciseBetaDensity density(a, b);
  double low = smallest;
  double high = largest;
  double ratio = std::clamp(start, 2 * low, high / 2);
  for (int i = 1; i <= 200 && high - low > 2e-16 * high; ++i) {
    const UnitPoint point = PointOfRatio(a, b, ratio);
    const PreciseTail at = EvaluateLowerBeta(density, point, p);
    (at.lower.hi > p ? high : low) = ratio;
    const Step step = StepTowards(p, density, point, at);
    const double next = ratio + ratio * step.growth;
    if (step.isLast) return next;
    // Steps that crawl are broken off by a bisection of the logarithms.
    const bool isInside = next > low && next < high;
    ratio = isInside && i % 8 != 0 ? next : std::sqrt(low) * std::sqrt(high);
  }
  return ratio;
}

double ToThePower(double ratio, double power) {
  if (power == 1) return ratio;
  if (power == -1) return 1 / ratio;
  return power > 0 ? std::sqrt(ratio) : 1 / std::sqrt(ratio);
}

}  // namespace

double BetaQuantileRatio(double a, double b, double p, double power) {
  if (a > stepShape && b > stepShape) return 1;
  if (a < endShape && b < endShape)
    return std::pow(p * (a / b + 1) <= 1 ? 0 : std::numeric_limits<double>::infinity(), power);
  a = std::clamp(a, leastShape, mostShape);
  b = std::clamp(b, leastShape, mostShape);
  // I_x(1, b) = 1 - y^b and I_x(a, 1) = x^a, where that is not far from 1.
  if (a == 1 && b >= 1) return ToThePower(b * std::expm1(-std::log1p(-p) / b), power);
  if (b == 1 && -std::log(p) < a) return ToThePower(1 / (a * std::expm1(-std::log(p) / a)), power);
  if (a < powerLawShape) {
    const BetaPowerLaw atZero(a, b, {p, 0});
    if (atZero.Holds()) return atZero.Ratio(power);
  }
  if (b < smallShape || (b < powerLawShape && p > leastTailForUpperPowerLaw)) {
    const BetaPowerLaw atOne(b, a, ExactSum(1, -p));
    if (atOne.Holds()) return atOne.Ratio(-power);
  }
  const double start = StartingRatio(a, b, p);
  if (start < 1e-10) {
    const BetaPowerLaw atZero(a, b, {p, 0});
    if (atZero.IsPure()) return atZero.Ratio(power);
  }
  return ToThePower(SearchRatio(a, b, p, start), power);
}

}  // namespace KelMath
