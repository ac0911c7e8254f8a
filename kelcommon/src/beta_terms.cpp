#include "beta_terms.h"

#include <cmath>
#include <limits>

#include "noncentral_f.h"
#include "normal.h"
#include "series.h"

namespace KelMath {

namespace {
constexpr long double pi = 3.14159265358979323846L;

// L(u) below, from u and from 1 + u: u loses the digits of 1 + u where that is small.
long double RatioDeviation(long double u, long double onePlusU) {
  return u < -0.5L ? std::log(onePlusU) - u : Log1pMinusArgument(u);
}

// Stirling's series, Abramowitz and Stegun (1964), 6.1.41; the next term is below 3e-20 at x = 16.
long double StirlingCorrection(long double x) {
  const long double r = 1 / x;
  const long double r2 = r * r;
  return r * (1 / 12.0L -
              r2 * (1 / 360.0L -
                    r2 * (1 / 1260.0L - r2 * (1 / 1680.0L - r2 * (1 / 1188.0L - r2 * (691 / 360360.0L - r2 / 156))))));
}

// LogScaledGamma of 1/2, 1, 3/2, ..., 31/2: the shapes are half the degrees of freedom, which are whole more often than
// not.
constexpr long double halfIntegerLogScaledGammas[] = {
    0.1534264097200273452914L,   0.08106146679532725821967L,  0.05481412105191765389614L,  0.04134069595540929409382L,
    0.03316287351993628748511L,  0.02767792568499833914879L,  0.02374616365629749597133L,  0.02079067210376509311152L,
    0.01848845053267318523078L,  0.01664469118982119216319L,  0.01513497322191737887351L,  0.01387612882307074799875L,
    0.01281046524292022692425L,  0.01189670994589177009506L,  0.01110455975820691732663L,  0.01041126526197209649748L,
    0.00979941612615880329839L,  0.009255462182712732917729L, 0.008768700134139385462955L, 0.008330563433362871256469L,
    0.00793411456431402054725L,  0.007573675487951840794972L, 0.007244554301320383179546L, 0.006942840107209529865664L,
    0.006665247032707682442356L, 0.00640899418800420706844L,  0.006171712263039457647535L, 0.005951370112758847735624L,
    0.005746216513010115682026L, 0.005554733551962801371039L, 0.005375599032926834493642L};

}  // namespace

double HalfDegrees(double df) { return std::fmax(df / 2, std::numeric_limits<double>::min()); }

long double ExtendedLogScaledGamma(double x) {
  if (x >= 16) return StirlingCorrection(x);
  if (2 * x == std::floor(2 * x)) return halfIntegerLogScaledGammas[static_cast<int>(2 * x) - 1];
  // Gamma(x) = Gamma(x + 16) / (x (x + 1) ... (x + 15)), with no more factors than needed.
  const long double start = x;
  long double end = start;
  long double product = 1;
  for (; end < 16; ++end) product *= end;
  return StirlingCorrection(end) + (end - 0.5L) * std::log(end) - (start - 0.5L) * std::log(start) - (end - start) -
         std::log(product);
}

namespace {

// With d = (c b - a) / (1 + c) the ratios of y to a / (a + b) and of 1 - y to b / (a + b) are 1 + d / a and 1 - d / b,
// and the terms linear in d cancel:
//   y^a (1-y)^b / B(a,b) = sqrt(a b / (2 pi (a+b))) G(a+b) / (G(a) G(b)) exp(a L(d/a) + b L(-d/b)),
//   L(u) = log(1+u) - u, G the scaled gamma function.
// Didonato and Morris (1992), Significant digit computation of the incomplete beta function ratios, ACM TOMS 18, sec. 4
// (BRCOMP). No term is larger than the result's own logarithm, so large a and b cost no digits.
struct BetaDensity {
  BetaDensity(double aIn, double bIn) : a(aIn), b(bIn) {
    root = std::sqrt(a / (a + b) * b / (2 * pi));
    const double sum = static_cast<double>(a + b);
    logGammas =
        (std::isinf(sum) ? 0 : ExtendedLogScaledGamma(sum)) - ExtendedLogScaledGamma(aIn) - ExtendedLogScaledGamma(bIn);
  }

  // The logarithm of y^a (1-y)^b / B(a, b) over the root.
  long double LogAt(long double c) const {
    const long double d = (c * b - a) / (1 + c);
    return a * RatioDeviation(d / a, c / (1 + c) * ((a + b) / a)) +
           b * RatioDeviation(-d / b, 1 / (1 + c) * ((a + b) / b)) + logGammas;
  }

  long double a;
  long double b;
  long double root;
  long double logGammas;
};

}  // namespace

ScaledValue BetaStep(double a, double b, long double c) {
  const BetaDensity density(a, b);
  return {density.root / a, density.LogAt(c)};
}

// Loader (2000), Fast and accurate computation of binomial probabilities: the same cancellation of the linear terms.
ScaledValue PoissonMass(double k, double m) {
  if (k == 0) return {1, -static_cast<long double>(m)};
  const long double lk = k;
  return {1 / std::sqrt(2 * pi * lk), lk * Log1pMinusArgument((m - lk) / lk) - ExtendedLogScaledGamma(k)};
}

namespace {

// Where the continued fraction needs more terms than this, the contour integral is faster.
constexpr int mostFractionTerms = 200;

// And with both shapes above this, the fraction rounds more: 1e-14 at 5e5, the integral 2e-15.
constexpr double largestFractionShape = 3e4;

// I_y(a, b) divided by y^a (1-y)^b / (a B(a, b)), by the even part of the continued fraction NIST Handbook (2010),
// 8.17.22: Didonato and Morris (1992), eq. 9 (BFRAC), evaluated by Lentz's method. It converges fast for y below
// (a + 1) / (a + b + 2). Negative where it has not converged.
double BetaFraction(double a, double b, long double c) {
  const long double exactY = c / (1 + c);
  const double y = static_cast<double>(exactY);
  const double by = static_cast<double>(exactY * b);
  const double excess = static_cast<double>((a - static_cast<long double>(b) * c) / (1 + c)) + 1;
  double f = a / (a + 1) * excess;
  double numeratorRatio = f;
  double denominatorRatio = 0;
  for (int n = 1; n <= mostFractionTerms; ++n) {
    const double below = a + 2 * n - 1;
    const double reduced = n * (by - n * y) / below;
    const double numerator = ((a + n - 1) / below) * (a * y + by + (n - 1) * y) * reduced;
    const double denominator = n + reduced + (a + n) / (below + 2) * (excess + n * (2 - y));
    denominatorRatio = 1 / (denominator + numerator * denominatorRatio);
    numeratorRatio = denominator + numerator / numeratorRatio;
    const double change = numeratorRatio * denominatorRatio;
    f *= change;
    if (std::fabs(change - 1) < 4e-16) return a / f;
  }
  return -1;
}

// The same divided value as the sum 1 + y (a+b)/(a+1) (1 + y (a+b+1)/(a+2) (1 + ...)), Didonato and Morris (1992),
// eq. 4. All terms are positive; a term costs a third of one of the fraction, but a comparison takes longer than a
// term.
long double BetaSeries(long double a, long double y, long double yTimesAPlusB) {
  constexpr int termsAtOnce = 4;
  long double factor = yTimesAPlusB;
  long double divisor = a + 1;
  long double term = 1;
  long double sum = 1;
  do {
    for (int i = 0; i < termsAtOnce; ++i) {
      term *= factor / divisor;
      sum += term;
      factor += y;
      divisor += 1;
    }
  } while (term > 1e-19L * sum);
  return sum;
}

bool IsSeriesShort(double a, double b, long double c) {
  return c < 1 && c * (static_cast<long double>(a) + b) < 20 * (1 + c);
}

// I_y(a, b) over the density of log(y / (1 - y)); negative where the fraction has not converged. The series in extended
// precision has digits to spare for the other tail.
struct Quotient {
  Quotient() = default;
  Quotient(double a, double b, long double c) {
    if (IsSeriesShort(a, b, c)) {
      const long double y = c / (1 + c);
      value = BetaSeries(a, y, y * (static_cast<long double>(a) + b)) / a;
      largestTail = 0.999;
    } else {
      value = BetaFraction(a, b, c) / static_cast<long double>(a);
    }
  }

  long double value = -1;
  double largestTail = 0.9;  // one minus a larger tail loses too many digits
};

struct TailsAndDensity {
  Tails tails;
  double density;  // of log(y / (1 - y))
};

TailsAndDensity EvaluateBeta(const BetaDensity& densityOfLogOdds, double a, double b, long double c) {
  const long double density = densityOfLogOdds.root * std::exp(densityOfLogOdds.LogAt(c));
  Quotient lower;
  Quotient upper;
  if (!(a > largestFractionShape && b > largestFractionShape)) {
    const bool lowerFirst = IsSeriesShort(a, b, c) || (!IsSeriesShort(b, a, 1 / c) && c * (b + 1.0L) <= a + 1.0L);
    (lowerFirst ? lower : upper) = lowerFirst ? Quotient(a, b, c) : Quotient(b, a, 1 / c);
    if (lower.value * density > lower.largestTail) upper = Quotient(b, a, 1 / c);
    if (upper.value * density > upper.largestTail) lower = Quotient(a, b, c);
  }
  const double roundedDensity = static_cast<double>(density);
  const long double lowerTail = lower.value * density;
  const long double upperTail = upper.value * density;
  if (upper.value >= 0 && (lower.value < 0 || upperTail < lowerTail))
    return {{static_cast<double>(std::fmax(1 - upperTail, 0.0L)), static_cast<double>(upperTail)}, roundedDensity};
  if (lower.value >= 0)
    return {{static_cast<double>(lowerTail), static_cast<double>(std::fmax(1 - lowerTail, 0.0L))}, roundedDensity};
  return {NoncentralBetaTailsByContour(a, b, 0, c), roundedDensity};
}

}  // namespace

Tails BetaTails(double a, double b, long double c) { return EvaluateBeta(BetaDensity(a, b), a, b, c).tails; }

namespace {

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

// The odds at which the tail I_y(a, b) = p, near enough for the inverse series.
long double QuantileStart(double a, double b, double p) {
  // The square of Student's t is its degrees of freedom times such odds.
  if (a == 0.5 && b > 1 && b < 1e15 && p > 1e-12) {
    const double t = HillQuantile(2 * b, 1 - p);
    if (t > 0) return t * t / (2 * b);
  }
  if (b == 0.5 && a > 1 && a < 1e15) {
    const double t = HillQuantile(2 * a, p);
    if (t > 0) return 2 * a / (t * t);
  }
  if (a > 0.9 && b > 0.9) {
    // Carter (1947), Approximation to percentage points of the z-distribution; Abramowitz and Stegun, 26.5.22.
    const double z = -NormalUpperQuantile(p);
    const double lambda = (z * z - 3) / 6;
    const double ra = 1 / (2 * a - 1);
    const double rb = 1 / (2 * b - 1);
    const double h = 2 / (ra + rb);
    if (h + lambda > 0) {
      const double w = z * std::sqrt(h + lambda) / h + (rb - ra) * (lambda + 5.0 / 6 - 2 / (3 * h));
      return static_cast<long double>(a) / b * std::exp(2 * w);
    }
  }
  // The leading term of the series at y = 0, y^a / (a B(a, b)), where it holds, and else that at y = 1.
  const ScaledValue one = BetaStep(a, b, 1);
  const long double logStep =
      std::log(one.factor) + one.exponent + (static_cast<long double>(a) + b) * 0.69314718055994530942L;
  const long double logY = (std::log(static_cast<long double>(p)) - logStep) / a;
  if (logY < -0.7L) return std::exp(logY);
  const long double logOneMinusY =
      (std::log1p(-static_cast<long double>(p)) - (logStep + std::log(a / static_cast<long double>(b)))) / b;
  return std::exp(-logOneMinusY);
}

// The density of the odds around c, divided by that at c, as a power series in u, where the odds are c (1 + u):
//   (1 + u) (1 + y u) f' = (k - 1 - y (b + 1) u) f,  y = c / (1 + c),  k = (a - b c) / (1 + c).
class DensitySeries {
public:
  // With the terms that matter up to u; more than `mostTerms` are not formed.
  DensitySeries(double b, double y, double k, double u) {
    double previous = 0;
    double power = 1;
    for (int n = 0; n < mostTerms && !isEnough_; ++n) {
      const double step = 1.0 / (n + 1);
      integral_[n] = density_[n] * step;
      density_[n + 1] = ((k - 1 - (1 + y) * n) * density_[n] - y * (b + n) * previous) * step;
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

struct QuantileStep {
  long double odds;  // NaN where there is no slope to follow
  bool isLast;
};

// From the odds c towards those at which the lower tail is p.
QuantileStep StepToQuantile(const BetaDensity& density, double p, long double c, const TailsAndDensity& at) {
  const double tail = at.tails.lower;
  const double slope = at.density / tail;
  if (!(slope > 0 && std::isfinite(slope))) return {std::numeric_limits<long double>::quiet_NaN(), false};
  // The inverse series of F(v) = log(I / p), v = log(c), to its third term. With F1 = s = density / I and the density's
  // logarithmic derivative k = (a - b c) / (1 + c), the derivatives are F2 = s (k - s) and
  // F3 = s ((k - s)^2 + dk/dv - F2).
  const long double exactY = c / (1 + c);
  const double k = static_cast<double>((density.a - density.b * c) / (1 + c));
  const double kSlope = -static_cast<double>((density.a + density.b) * exactY / (1 + c));
  const double miss = std::log(tail / p);
  const double newton = -miss / slope;
  const double second = (k - slope) / 2 * newton;
  const double third = ((k - slope) * (k - slope) + kSlope - slope * (k - slope)) / 6 * newton * newton;
  const double cubic = 2 * second * second - third;
  const bool isNear = std::fabs(second) < 0.3 && std::fabs(cubic) < 0.3;
  if (!isNear) return {c * std::exp(newton / (1 + std::fmin(std::fmax(second, -0.5), 1.0))), false};

  const double step = newton * (1 - second + cubic);
  const double u = std::expm1(step);
  // The fourth term is of the order of these to the third power. The odds themselves bend over a step of 1, which the
  // first two may hide: far out in a tail its logarithm is all but straight.
  const double order = std::fmax(std::fmax(std::fabs(second), std::sqrt(std::fabs(third))), std::fabs(newton));
  if (std::fabs(newton) * order * order * order < 1e-16) return {c + c * u, true};
  // The series keeps its digits where neither the odds nor their density change much, and a denormal density has few to
  // divide by.
  if (std::fabs(u) < 0.5 && std::fabs(miss) < 1 && at.density >= std::numeric_limits<double>::min()) {
    const DensitySeries series(static_cast<double>(density.b), static_cast<double>(exactY), k, u);
    if (series.IsEnough()) return {c + c * series.Root((p - tail) / at.density, u), true};
  }
  return {c * std::exp(step), false};
}

}  // namespace

long double BetaQuantileOdds(double a, double b, double p) {
  // The spread is below the last digit.
  if (a > 1e37 && b > 1e37) return static_cast<long double>(a) / b;
  // I_y(a, 1) = y^a and I_y(1, b) = 1 - (1-y)^b.
  if (b == 1) return 1 / std::expm1(-std::log(static_cast<long double>(p)) / a);
  if (a == 1) return std::expm1(-std::log1p(-static_cast<long double>(p)) / b);
  // Beyond, the odds are outside the range even of their products with any two doubles.
  constexpr long double farthest = 1e1700L;
  long double low = 1 / farthest;
  long double high = farthest;
  const BetaDensity density(a, b);
  long double c = std::fmin(std::fmax(QuantileStart(a, b, p), 2 * low), high / 2);
  for (int i = 0; i < 100 && high - low > 2e-19L * high; ++i) {
    const TailsAndDensity at = EvaluateBeta(density, a, b, c);
    (at.tails.lower > p ? high : low) = c;
    const QuantileStep next = StepToQuantile(density, p, c, at);
    if (next.isLast) return next.odds;
    c = next.odds > low && next.odds < high ? next.odds : std::sqrt(low * high);
  }
  return c;
}

}  // namespace KelMath
