#include "noncentral_chi_square.h"

#include <algorithm>
#include <cmath>

#include "contour.h"
#include "gamma_tails.h"
#include "poisson_mass.h"

// With p_j the Poisson probabilities at mean m and G_j the gamma distribution function of shape a + j at x the
// distribution function is
//   P = sum_j p_j G_j                                                                    (1)
// (Johnson, Kotz and Balakrishnan (1995), Continuous univariate distributions 2, eq. 29.3). Neighbours differ by
// g_j = G_j - G_{j+1} = x^{a+j} e^-x / Gamma(a + j + 1). Summation by parts gives the two forms used here,
//   P     = sum_k g_k P_k,                   P_k = p_0 + ... + p_k                       (2)
//   1 - P = sum_j p_j (1 - G_j),   1 - G_{j+1} = 1 - G_j + g_j                           (3)
// All terms are positive, so each sum keeps its digits. They are summed relative to their largest one.

namespace KelMath {

namespace {

// Terms below this part of the sum cannot change its last digit.
constexpr double negligible = 1e-17;

// A Poisson mass this many standard deviations below the mean is negligible.
constexpr double deviations = 9.3;

// Above this many terms the contour integral is faster, and rounds less.
constexpr double mostTerms = 900;

constexpr double leastContourPoint = 1e-180;

// A tail from this on is not subtracted from one: the other is summed too.
constexpr double subtrahend = 0.9;

// Where the first tail of (3) is below, it has lost digits that the sum still has.
constexpr double leastFirstTail = 1e-290;

struct Mixture {
  double a;
  double m;
  double x;
};

// Where the terms of (2) are largest while P_k still grows like p_k: the k >= 0 with g_{k+1} p_{k+1} = g_k p_k, that is
// (k + 1) (a + k + 1) = m x.
double PeakOfProducts(const Mixture& s) {
  const double constant = s.a + 1 - s.m * s.x;
  if (constant >= 0) return 0;
  const double linear = s.a + 2;
  return std::min(-2 * constant / (linear + std::sqrt(linear * linear - 4 * constant)), s.m);
}

double FirstTerm(double peak) { return peak < 90 ? 0 : std::floor(peak - deviations * std::sqrt(peak)); }

// P_k / p_k = 1 + k/m (1 + (k-1)/m (1 + ...)), for k below m.
double CumulativeOverMass(double k, double m) {
  double term = 1;
  double sum = 1;
  for (; k > 0 && term > negligible * sum; --k) {
    term *= k / m;
    sum += term;
  }
  return sum;
}

// Form (2), upwards from the first k that matters, relative to its step and mass; those of the peak set the scale.
double LowerTailSum(const Mixture& s) {
  const double peak = std::floor(PeakOfProducts(s));
  double k = FirstTerm(peak);
  double step = 1;
  double mass = 1;
  double cumulative = CumulativeOverMass(k, s.m);
  double term = cumulative;
  double sum = term;
  double productAtPeak = 1;
  while (term > negligible * sum || k < peak) {
    step *= s.x / (s.a + k + 1);
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
  }
  const double stepAtPeak = GammaStep(s.a + peak, s.x);
  return sum / productAtPeak * stepAtPeak * PoissonMass(peak, s.m);
}

// Form (3), upwards and downwards from the mode of the Poisson distribution. Downwards the recurrence cancels, but the
// terms above make up half of the sum or more, so its error stays at the rounding of the first tail.
// The sum is negative where the first tail is denormal.
double UpperTailSum(const Mixture& s) {
  const double mode = std::floor(s.m);
  const double firstTail = GammaTails(s.a + mode, s.x).upper;
  if (firstTail < leastFirstTail) return -1;
  const double firstStep = GammaStep(s.a + mode, s.x);
  double sum = firstTail;

  double upper = firstTail;
  double step = firstStep;
  double mass = 1;
  double term = 1;
  for (double j = mode; term > negligible * sum;) {
    upper += step;
    step *= s.x / (s.a + j + 1);
    j += 1;
    mass *= s.m / j;
    term = mass * upper;
    sum += term;
  }

  upper = firstTail;
  step = firstStep;
  mass = 1;
  term = 1;
  for (double j = mode; j > 0 && term > negligible * sum; --j) {
    step *= (s.a + j) / s.x;
    upper = std::max(upper - step, 0.0);
    mass *= j / s.m;
    term = mass * upper;
    sum += term;
  }
  return sum * PoissonMass(mode, s.m);
}

// About the number of terms of (2): the steps fall like a normal density about their peak.
double LowerTailTerms(const Mixture& s) {
  const double productPeak = PeakOfProducts(s);
  const double peak = std::max(productPeak, s.x - s.a - 1);
  return peak - FirstTerm(productPeak) + 9 * std::sqrt(s.a + peak + 1) + 10;
}

double UpperTailTerms(const Mixture& s) { return s.m - FirstTerm(s.m) + 9 * std::sqrt(s.m) + 10; }

Tails ByContour(const Mixture& s) { return NoncentralBetaTailsByContour(s.a, limitShape, s.m, GammaPoint(s.x)); }

Tails TailsBelowMean(const Mixture& s) {
  if (LowerTailTerms(s) > mostTerms) return ByContour(s);
  const double lower = std::min(LowerTailSum(s), 1.0);
  if (lower < subtrahend) return {lower, 1 - lower};
  const double upper = UpperTailSum(s);
  return {lower, upper >= 0 ? upper : 1 - lower};
}

Tails TailsAboveMean(const Mixture& s) {
  if (UpperTailTerms(s) > mostTerms) return ByContour(s);
  const double upper = std::min(UpperTailSum(s), 1.0);
  return upper >= 0 ? Tails{1 - upper, upper} : ByContour(s);
}

}  // namespace

Tails NoncentralGammaTails(double a, double m, double x) {
  if (m == 0) return GammaTails(a, x);
  // Narrower than the distance of doubles.
  if (std::max({a, m, x}) > stepGamma) return GammaTails(a + m, x);
  // Nothing is left so near to 0, where the point of the contour would be denormal.
  if (x < leastContourPoint && a > 2) return {0, 1};
  const Mixture s{a, m, x};
  return s.x < s.a + s.m ? TailsBelowMean(s) : TailsAboveMean(s);
}

}  // namespace KelMath
