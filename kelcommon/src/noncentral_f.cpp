#include "noncentral_f.h"

#include <algorithm>
#include <cmath>
#include <complex>

#include "series.h"

// With p_j the Poisson probabilities at mean m and I_j = I_y(a + j, b), y = c / (1 + c), the distribution function is
//   P = sum_j p_j I_j                                                                    (1)
// (Johnson, Kotz and Balakrishnan (1995), Continuous univariate distributions 2, eq. 30.10). Neighbours differ by
// g_j = I_j - I_{j+1} = y^{a+j} (1-y)^b / ((a+j) B(a+j, b)). Summation by parts gives the two forms used here,
//   P     = sum_k g_k P_k,                   P_k = p_0 + ... + p_k                       (2)
//   1 - P = sum_j p_j (1 - I_j),   1 - I_{j+1} = 1 - I_j + g_j                           (3)
// All terms are positive and all recurrences run in their stable direction, so each keeps its digits relative to
// itself: (2) in the lower tail, without a single incomplete beta function, and (3) in the upper.

namespace KelMath {

namespace {

// Terms below this part of the sum cannot change its last digit.
constexpr double negligible = 1e-18;

// A Poisson mass this many standard deviations below the mean is negligible.
constexpr double deviations = 9.3;

// Above this many terms (some 20 microseconds) the contour integral is faster, and rounds less.
constexpr double mostTerms = 4000;

// With both shapes and the mean below, the integrand decays too slowly for the contour integral.
constexpr double leastContourShape = 5;
constexpr double leastContourMean = 60;

// With b below, the contour of the lower tail would pass too near to the branch point at -1 / c.
constexpr double leastLowerB = 0.5;

struct Shape {
  double a;
  double b;
  double m;
  long double c;
  double y;
  double oneMinusY;
  double yTimesAPlusB;
};

Shape MakeShape(double a, double b, double m, long double c) {
  const long double y = c / (1 + c);
  return {a,
          b,
          m,
          c,
          static_cast<double>(y),
          static_cast<double>(1 / (1 + c)),
          static_cast<double>(y * (static_cast<long double>(a) + b))};
}

// g_{k+1} / g_k
double StepRatio(const Shape& s, double k) { return (s.yTimesAPlusB + s.y * k) / (s.a + k + 1); }

// Where the terms of (2) are largest while P_k still grows like p_k: the k >= 0 with g_{k+1} p_{k+1} = g_k p_k, that is
// (k + 1) (a + k + 1) = m (y (a + b) + y k).
double PeakOfProducts(const Shape& s) {
  const double linear = s.a + 2 - s.y * s.m;
  const double constant = s.a + 1 - s.m * s.yTimesAPlusB;
  if (constant >= 0) return 0;
  const double root = std::sqrt(linear * linear - 4 * constant);
  return std::min(linear > 0 ? -2 * constant / (linear + root) : (root - linear) / 2, s.m);
}

double FirstTerm(double peak) { return peak < 90 ? 0 : std::floor(peak - deviations * std::sqrt(peak)); }

// P_k / p_k = 1 + k/m (1 + (k-1)/m (1 + ...)), for k below m.
double CumulativeOverMass(double k, double m) {
  double term = 1;
  double sum = 1;
  while (k > 0 && term > negligible * sum) {
    term *= k / m;
    sum += term;
    k -= 1;
  }
  return sum;
}

double Combine(double sum, const ScaledValue& first, const ScaledValue& second) {
  return static_cast<double>(sum * std::exp(first.exponent + second.exponent) * first.factor * second.factor);
}

// Form (2), upwards from the first k that matters.
double LowerTailSum(const Shape& s) {
  double k = FirstTerm(PeakOfProducts(s));
  const ScaledValue firstStep = BetaStep(s.a + k, s.b, s.c);
  const ScaledValue firstMass = PoissonMass(k, s.m);
  double step = 1;
  double mass = 1;
  double cumulative = CumulativeOverMass(k, s.m);
  double term = cumulative;
  double sum = term;
  const double enough = negligible * s.oneMinusY;
  const double last = k + 10 * mostTerms;
  while (term > enough * sum && k < last) {
    step *= StepRatio(s, k);
    k += 1;
    mass *= s.m / k;
    cumulative += mass;
    if (cumulative > 1e200) {
      // Only the product of the two is of moderate size.
      cumulative *= 1e-200;
      mass *= 1e-200;
      step *= 1e200;
    }
    term = step * cumulative;
    sum += term;
  }
  return Combine(sum, firstStep, firstMass);
}

// Form (3), upwards from the first j that matters.
double UpperTailSum(const Shape& s) {
  double j = FirstTerm(s.m);
  const ScaledValue firstStep = BetaStep(s.a + j, s.b, s.c);
  const ScaledValue firstMass = PoissonMass(j, s.m);
  double step = static_cast<double>(firstStep.factor * std::exp(firstStep.exponent));
  double upper = BetaTails(s.a + j, s.b, s.c).upper;
  double mass = 1;
  double sum = upper;
  double term = upper;
  const double last = j + 10 * mostTerms;
  while ((term > negligible * sum || j < s.m) && j < last) {
    upper += step;
    step *= StepRatio(s, j);
    j += 1;
    mass *= s.m / j;
    term = mass * upper;
    sum += term;
  }
  return static_cast<double>(sum * firstMass.factor * std::exp(firstMass.exponent));
}

// About the number of terms of (2).
double LowerTailTerms(const Shape& s) {
  const double productPeak = PeakOfProducts(s);
  const double stepPeak = std::max(0.0, (s.yTimesAPlusB - s.a - 1) / s.oneMinusY);
  const double peak = std::max(productPeak, stepPeak);
  const double spread = std::sqrt((s.a + s.b + peak) / (s.b + 1) * (s.a + peak + 1));
  // Below two degrees of freedom or so the steps end like a geometric series of ratio y.
  const double geometric = 40 / s.oneMinusY;
  return peak - FirstTerm(productPeak) + (s.b < 4 ? geometric : std::min(9 * spread, geometric)) + 10;
}

double UpperTailTerms(const Shape& s) { return s.m - FirstTerm(s.m) + 9 * std::sqrt(s.m) + 10; }

// The distribution function is the probability that X1 - c X2 <= 0. With the logarithm of the moment generating
// function
//   K(t) = -a log(1 - t) + m t / (1 - t) - b log(1 + c t),  -1/c < t < 1,
// the lower tail is the integral of exp(K(t)) / (-2 pi i t) along Re t = t0 with t0 < 0, the upper tail that of
// exp(K(t)) / (2 pi i t) with t0 > 0 (Lugannani and Rice (1980), Saddle point approximation for the distribution of the
// sum of independent random variables, eq. 3 to 6). Along the line through the saddle point the integrand does not
// oscillate near its peak, and t = t0 + i s sinh(u) makes the trapezoidal rule converge geometrically.
// The line is bent into a hyperbola, towards the side on which the larger of the two shapes makes the integrand decay:
// straight, it would oscillate long after the other shape's slow algebraic decay has begun.
using Complex = std::complex<long double>;

// log(1 + z) - z
Complex ComplexLog1pMinusArgument(Complex z) {
  const long double x = z.real();
  const long double y = z.imag();
  if (std::fabs(x) + std::fabs(y) < 1e-3L)
    return z * z * (-1 / 2.0L + z * (1 / 3.0L + z * (-1 / 4.0L + z * (1 / 5.0L + z * (-1 / 6.0L + z / 7.0L)))));
  return Complex(std::log1p(x * (2 + x) + y * y) / 2 - x, std::atan2(y, 1 + x) - y);
}

class Contour {
public:
  Contour(long double aIn, long double bIn, long double mIn, long double cIn)
      : a(aIn), b(bIn), m(mIn), c(cIn), mean(a + m - b * c) {}

  long double Mean() const { return mean; }

  double Tail(bool lower) const {
    const long double t0 = Saddle(lower);
    const long double r = 1 - t0;
    const long double q = 1 + c * t0;
    const long double peak = Exponent(t0);
    // The integral's other factors are of the order of 1: such a tail underflows, as does one so far out that even
    // extended precision overflows on the way.
    if (!(peak > -800)) return 0;
    const long double scale = 1 / std::sqrt(Curvature(t0));
    const long double slope = Slope(t0);
    const long double smallerShape = std::min(a + m, b);
    const long double towardsLarger = b > a + m ? 1.0L : -1.0L;
    const long double bend = smallerShape < 20 ? towardsLarger : 0;
    const long double stepWidth = smallerShape < 1000 ? 1 / 16.0L : 1 / 8.0L;
    long double sum = 0.5L;
    for (int i = 1; i < mostNodes; ++i) {
      const long double up = std::exp(stepWidth * i);
      const long double sinh = (up - 1 / up) / 2;
      const long double cosh = (up + 1 / up) / 2;
      const Complex delta(scale * bend * (cosh - 1), scale * sinh);
      const Complex theta = delta / r;
      const Complex exponent = -a * ComplexLog1pMinusArgument(-theta) + m / r * theta * theta / (1.0L - theta) -
                               b * ComplexLog1pMinusArgument(c / q * delta) - ComplexLog1pMinusArgument(delta / t0) +
                               slope * delta;
      const long double size = std::exp(exponent.real());
      const Complex direction(cosh, -bend * sinh);
      sum += size * (direction.real() * std::cos(exponent.imag()) - direction.imag() * std::sin(exponent.imag()));
      if (size * cosh < 1e-18L) break;
    }
    const long double pi = 3.14159265358979323846L;
    const long double tail = std::exp(peak) * sum * stepWidth * scale / (std::fabs(t0) * pi);
    return tail > 0 ? static_cast<double>(std::fmin(tail, 1.0L)) : 0;
  }

private:
  static constexpr int mostNodes = 2000;

  // Near t = 0 the terms of K(t) that are linear in t cancel, and are taken together in the mean. Farther out they
  // would be large parts of it that cancel.
  bool IsFar(long double t) const { return std::fabs(t) > 0.5L || std::fabs(c * t) > 0.5L; }

  // K(t)
  long double Exponent(long double t) const {
    const long double r = 1 - t;
    if (IsFar(t)) return -a * std::log1p(-t) + m * t / r - b * std::log1p(c * t);
    return -a * Log1pMinusArgument(-t) + m * t * t / r - b * Log1pMinusArgument(c * t) + mean * t;
  }

  // d/dt (K(t) - log|t|)
  long double Slope(long double t) const {
    const long double r = 1 - t;
    const long double ct = c * t;
    if (IsFar(t)) return a / r + m / (r * r) - b * (c / (1 + ct)) - 1 / t;
    return mean + a * (t / r) + m * (t / r) * (1 + 1 / r) + b * c * (ct / (1 + ct)) - 1 / t;
  }

  long double Curvature(long double t) const {
    const long double r = 1 / (1 - t);
    const long double q = c / (1 + c * t);
    return a * r * r + 2 * m * r * r * r + b * q * q + 1 / (t * t);
  }

  // Where the search for the saddle starts: by the parabola at t = 0, unless the root is orders of magnitude away.
  // Then the slope is about m / (1 - t)^2 - b c in the lower tail and a + m - (1 + b) / t in the upper.
  long double Start(bool lower) const {
    const long double farLower = 1 - std::sqrt(m / (b * c));
    const long double farUpper = (1 + b) / (a + m);
    if (lower && farLower < -10 && c * farLower > -0.1L) return farLower;
    if (!lower && farUpper < 0.5L && c * farUpper > 1000) return farUpper;
    const long double spread = a + 2 * m + b * c * c;
    const long double root = std::sqrt(mean * mean + 4 * spread);
    if (lower) return mean > 0 ? -(mean + root) / (2 * spread) : -2 / (root - mean);
    return mean < 0 ? (root - mean) / (2 * spread) : 2 / (root + mean);
  }

  // The minimum of K(t) - log|t| on its side of 0, where the slope increases from -infinity to infinity. Newton's steps
  // are held inside a bracket; three digits are enough.
  long double Saddle(bool lower) const {
    long double low = lower ? -1 / c : 0.0L;
    long double high = lower ? 0.0L : 1.0L;
    long double t = Start(lower);
    for (int i = 0; i < 200; ++i) {
      if (!(t > low && t < high)) t = low + (high - low) / 2;
      const long double slope = Slope(t);
      (slope > 0 ? high : low) = t;
      const long double curvature = Curvature(t);
      const long double step = slope / curvature;
      const bool isAtRoundingError = std::fabs(step) < 1e-16L * std::fabs(t);
      if (slope * slope < 1e-4L * curvature || isAtRoundingError) break;
      t -= step;
    }
    return t;
  }

  long double a;
  long double b;
  long double m;
  long double c;
  long double mean;
};

}  // namespace

Tails NoncentralBetaTailsByContour(double a, double b, long double m, long double c) {
  const Contour contour(a, b, m, c);
  if (contour.Mean() > 0 && b >= leastLowerB) {
    const double lower = contour.Tail(true);
    return {lower, 1 - lower};
  }
  const double upper = contour.Tail(false);
  return {1 - upper, upper};
}

Tails NoncentralBetaTails(double a, double b, long double m, long double c) {
  if (m == 0) return BetaTails(a, b, c);
  // The number of terms grows with the root of m; a beyond 1e12 would overflow in its estimate, later.
  if (m > 1e6 || a > 1e12) return NoncentralBetaTailsByContour(a, b, m, c);
  const Shape s = MakeShape(a, b, static_cast<double>(m), c);
  const bool isLower = a + m - b * c > 0;
  const double lowerTerms = LowerTailTerms(s);
  const double upperTerms = UpperTailTerms(s);
  if (lowerTerms < mostTerms && (isLower || upperTerms >= mostTerms)) {
    const double lower = LowerTailSum(s);
    return {lower, 1 - lower};
  }
  if (upperTerms < mostTerms) {
    const double upper = UpperTailSum(s);
    // The complement of an upper tail near 1 has lost digits.
    const bool isSlow = std::max(a, b) < leastContourShape && m < leastContourMean;
    if (upper < 0.95 || isSlow) return {1 - upper, upper};
  }
  return NoncentralBetaTailsByContour(a, b, m, c);
}

}  // namespace KelMath
