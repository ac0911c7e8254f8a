#include "noncentral_f.h"

#include <algorithm>
#include <cmath>

#include "contour.h"
#include "poisson_mass.h"

// With p_j the Poisson probabilities at mean m and I_j = I_x(a + j, b) the distribution function is
//   P = sum_j p_j I_j                                                                    (1)
// (Johnson, Kotz and Balakrishnan (1995), Continuous univariate distributions 2, eq. 30.10). Neighbours differ by
// g_j = I_j - I_{j+1} = x^{a+j} y^b / ((a+j) B(a+j, b)), y = 1 - x. Summation by parts gives the two forms used here,
//   P     = sum_k g_k P_k,                   P_k = p_0 + ... + p_k                       (2)
//   1 - P = sum_j p_j (1 - I_j),   1 - I_{j+1} = 1 - I_j + g_j                           (3)
// All terms are positive, so each keeps its digits relative to itself: (2) in the lower tail, without a single
// incomplete beta function, and (3) in the upper. Recurrences give the terms relative to the largest one, which is
// computed by itself: the rounding of x, which each step repeats, then cancels between both sides.

namespace KelMath {

namespace {

// Terms below this part of the sum cannot change its last digit.
constexpr double negligible = 1e-17;

// A Poisson mass this many standard deviations below the mean is negligible.
constexpr double deviations = 9.3;

// Above this many terms the contour integral is faster, and rounds less: F(6.97; 1326, 1007, 7932), of 1,200 terms, by
// 2e-16 and not 1e-14.
constexpr double mostTerms = 900;

// With both shapes and the mean below, the integrand decays too slowly for the contour integral: F(2; 0.6, 2.1, 45)
// would err by 2e-11 of itself.
constexpr double leastContourShape = 5;
constexpr double leastContourMean = 60;

struct Mixture {
  Mixture(double aIn, double bIn, double mIn, const UnitPoint& pointIn)
      : a(aIn), b(bIn), m(mIn), point(pointIn), x(point.x.hi), y(point.y.hi), aPlusB(ExactSum(a, b)) {}

  // g_{k+1} / g_k
  double StepRatio(double k) const { return x * (aPlusB.hi + k + aPlusB.lo) / (a + k + 1); }

  double a;
  double b;
  double m;
  UnitPoint point;
  double x;
  double y;
  DoubleDouble aPlusB;
};

// Where the terms of (2) are largest while P_k still grows like p_k: the k >= 0 with g_{k+1} p_{k+1} = g_k p_k, that is
// (k + 1) (a + k + 1) = m (x (a + b) + x k).
double PeakOfProducts(const Mixture& s) {
  const double linear = s.a + 2 - s.x * s.m;
  const double constant = s.a + 1 - s.m * (s.x * s.aPlusB.hi);
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

// Form (2), upwards from the first k that matters, relative to its step and mass; those of the peak set the scale. Away
// from the peak the k-th step has k factors x more, whose rounding is taken out at the end. Negative where there are
// too many terms.
double LowerTailSum(const Mixture& s) {
  const double peak = std::floor(PeakOfProducts(s));
  double k = FirstTerm(peak);
  const double last = k + 10 * mostTerms;
  double step = 1;
  double mass = 1;
  double cumulative = CumulativeOverMass(k, s.m);
  double term = cumulative;
  double sum = term;
  double factors = (k - peak) * term;
  double productAtPeak = 1;
  const double enough = negligible * s.y;
  while (term > enough * sum || k < peak) {
    if (k >= last) return -1;
    step *= s.StepRatio(k);
    k += 1;
    mass *= s.m / k;
    cumulative += mass;
    if (k == peak) productAtPeak = step * mass;
    if (cumulative > 1e200) {
      // Only the product of the two is of moderate size.
      cumulative *= 1e-200;
      mass *= 1e-200;
      step *= 1e200;
    }
    term = step * cumulative;
    sum += term;
    factors += (k - peak) * term;
  }
  sum += factors * (s.point.x.lo / s.x);
  const double stepAtPeak = EvaluateBetaDensity(s.a + peak, s.b, s.point) / (s.a + peak);
  return sum / productAtPeak * stepAtPeak * PoissonMass(peak, s.m);
}

// Form (3), upwards and downwards from the mode of the Poisson distribution. Downwards the recurrence cancels, but the
// terms above make up half of the sum or more, so its error stays at the rounding of the first tail.
double UpperTailSum(const Mixture& s) {
  const double mode = std::floor(s.m);
  const TailsAndDensity at = EvaluateBeta(s.a + mode, s.b, s.point);
  const double firstStep = at.density / (s.a + mode);
  double sum = at.tails.upper;

  double upper = at.tails.upper;
  double step = firstStep;
  double mass = 1;
  double term = sum;
  for (double j = mode; term > negligible * sum && j < mode + 10 * mostTerms;) {
    upper += step;
    step *= s.StepRatio(j);
    j += 1;
    mass *= s.m / j;
    term = mass * upper;
    sum += term;
  }

  upper = at.tails.upper;
  step = firstStep;
  mass = 1;
  term = sum;
  for (double j = mode; j > 0 && term > negligible * sum; --j) {
    step /= s.StepRatio(j - 1);
    upper = std::max(upper - step, 0.0);
    mass *= j / s.m;
    term = mass * upper;
    sum += term;
  }
  return sum * PoissonMass(mode, s.m);
}

// About the number of terms of (2). The steps fall like a normal density about their peak, below two degrees of freedom
// or so like a geometric series of ratio x, and never slower than one of the ratio that they have at the peak of the
// terms.
double LowerTailTerms(const Mixture& s) {
  const double productPeak = PeakOfProducts(s);
  const double stepPeak = std::max(0.0, (s.x * s.aPlusB.hi - s.a - 1) / s.y);
  const double peak = std::max(productPeak, stepPeak);
  const double spread = 9 * std::sqrt((s.a + s.b + peak) / (s.b + 1) * (s.a + peak + 1));
  const double ratio = s.StepRatio(productPeak);
  const double fromRatio = ratio < 1 ? 40 / (1 - ratio) : spread;
  return peak - FirstTerm(productPeak) + (s.b < 4 ? 40 / s.y : std::min(spread, fromRatio)) + 10;
}

double UpperTailTerms(const Mixture& s) { return s.m - FirstTerm(s.m) + 9 * std::sqrt(s.m) + 10; }

}  // namespace

Tails NoncentralBetaTails(double a, double b, double m, const UnitPoint& point) {
  if (m == 0) return EvaluateBeta(a, b, point).tails;
  // The number of terms grows with the root of m.
  if (m > 1e6 || a > 1e12) return NoncentralBetaTailsByContour(a, b, m, point);
  const Mixture s(a, b, m, point);
  const bool isContourSlow = std::max(a, b) < leastContourShape && m < leastContourMean;
  const bool isBelowMean = (a + m) * s.y - b * s.x > 0;
  if (isBelowMean && LowerTailTerms(s) < mostTerms) {
    const double lower = LowerTailSum(s);
    if (lower >= 0) return {lower, 1 - lower};
  }
  if (isContourSlow || (!isBelowMean && UpperTailTerms(s) < mostTerms)) {
    const double upper = UpperTailSum(s);
    return {1 - upper, upper};
  }
  return NoncentralBetaTailsByContour(a, b, m, point);
}

double NoncentralFLowerTail(double x, double a, double b, double m) {
  // A shape beyond this is a constant, which only its ratio to the other numbers tells apart.
  constexpr double largest = 1e100;
  const double excess = std::max(a, m) / largest;
  if (excess > 1) {
    a /= excess;
    m /= excess;
  }
  b = std::min(b, largest);
  const double scale = x > 1e100 ? 0x1p-600 : x < 1e-100 ? 0x1p600 : 1;
  const UnitPoint point = UnitPoint::FromRatio(ExactProduct(a, x * scale), {b * scale, 0});
  return NoncentralBetaTails(a, b, m, point).lower;
}

}  // namespace KelMath
