#include "noncentral_t.h"

#include <algorithm>
#include <cmath>

#include "half_degrees.h"
#include "log_gamma.h"
#include "noncentral_f.h"
#include "noncentral_t_integral.h"
#include "normal.h"
#include "power.h"
#include "small_differences.h"

// For x, delta >= 0 let y = x^2 / (df + x^2), m = delta^2 / 2, b = df / 2,
//   p_j = e^-m m^j / j!,  q_j = (delta / sqrt 2) e^-m m^j / Gamma(j + 3/2),
//   A_j = I_y(j + 1/2, b),  B_j = I_y(j + 1, b).
// Then (Guenther (1978), Evaluation of probabilities for the noncentral distributions and the difference of two T
// variables with a desk calculator; Benton and Krishnamoorthy (2003), Computing discrete mixtures of continuous
// distributions, eq. 3.2)
//   P(T <=  x) = Phi(-delta) + 1/2 sum_j (p_j A_j + q_j B_j)                               (1)
//   P(T >   x) = 1/2 sum_j (p_j (1 - A_j) + q_j (1 - B_j))                                 (2)
//   P(T <= -x) = 1/2 sum_j (p_j (1 - A_j) - q_j (1 - B_j))                                 (3)
// (1) and (2) have positive terms only and keep their digits relative to the result. (3) cancels: it is used while the
// loss is bearable, and else replaced by an integral over the chi distribution.

namespace KelMath {

namespace {

constexpr double negligible = 1e-17;

// sqrt(2 / pi): the even and the odd weights are those of the two halves of a normal variable.
constexpr double rootTwoOverPi = 0.79788456080286535588;
constexpr double rootPi = 1.77245385090551602730;

// Beyond, Phi(-delta) < 1e-23 bounds P(T <= -x), so that the t distribution is that of its square to the last digit.
constexpr double largestSeriesDelta = 10;

// From here on the rounding of the terms of (1) adds up: to 1e-14 at T(13.6; 497, 8.4), of which the upper tail is
// 1e-6.
constexpr double longSumDelta = 4;

// Beyond, Phi(-delta) underflows.
constexpr double largestDelta = 39;

// Half the degrees of freedom below which the chi distribution is all at 0.
constexpr double leastShape = 1e-20;

// (3) keeps fourteen digits while the difference is this part of the sums, which it is up to about this many standard
// deviations. With a tenth of the part, T(-242; 1.75, 2.1) would err by 6e-13 of itself.
constexpr double leastDifference = 2e-2;
constexpr double farthestDifference = 2.2;

// From about this number of terms on the contour integral of the F distribution is faster.
constexpr double mostTerms = 1500;

// |x| below this is 0: the density is below 1.
constexpr double negligibleX = 1e-150;

// A noncentrality beyond this hides the normal variable: only its ratio to x counts.
constexpr double constantDelta = 1e50;

// Beyond this x the upper tail falls like x^-df, whatever the noncentrality.
constexpr double farX = 1e140;

// Half the degrees of freedom beyond which the distribution is normal to the last digit.
constexpr double normalShape = 1e100;

struct Design {
  double x;
  double df;
  double delta;
  double b;
  double m;
  UnitPoint point;  // of the share x^2 / (df + x^2)
  double y;
  double oneMinusY;
};

Design MakeDesign(double x, double df, double delta) {
  const double b = std::min(HalfDegrees(df), normalShape);
  const double nearX = std::min(x, farX);
  // Scaled, the squares stay in range.
  const double scale = nearX > 1e75 ? 0x1p-300 : nearX < 1e-75 ? 0x1p300 : 1;
  const UnitPoint point = UnitPoint::FromRatio(ExactProduct(nearX * scale, nearX * scale), {2 * b * scale * scale, 0});
  return {x, df, delta, b, delta * delta / 2, point, point.x.hi, point.y.hi};
}

// Gamma(b + 1/2) / Gamma(b)
double GammaRatio(double b) {
  const double logExcess = b * Log1pMinusArgument(0.5 / b) + (LogScaledGamma(b + 0.5) - LogScaledGamma(b));
  return std::sqrt(b) * std::exp(logExcess);
}

// The pair of sequences A_j and B_j by their steps A_j - A_{j+1} and B_j - B_{j+1}, and of the weights p_j and q_j.
// Weights are relative to e^-m.
struct Sequences {
  // (1 - y)^b falls to exp(-x^2 / 2), of which an exponential would lose digits.
  explicit Sequences(const Design& d)
      : design(d), weightA(1), weightB(d.delta * rootTwoOverPi), onlyTail(PowerOf(d.point.y, d.b)) {
    stepA = onlyTail * 2 * std::sqrt(d.y) * GammaRatio(d.b) / rootPi;
    stepB = onlyTail * d.y * d.b;
  }

  void Next() {
    const double halfBelow = 1 / (j + 1.5);
    const double wholeBelow = 1 / (j + 2);
    stepA *= design.y * (design.b + (j + 0.5)) * halfBelow;
    stepB *= design.y * (design.b + (j + 1)) * wholeBelow;
    weightA *= design.m * lastWholeBelow;
    weightB *= design.m * halfBelow;
    lastWholeBelow = wholeBelow;
    j += 1;
  }

  const Design& design;
  double j = 0;
  double lastWholeBelow = 1;  // 1 / (j + 1)
  double weightA;
  double weightB;
  double onlyTail;  // 1 - B_0 = (1 - y)^b
  double stepA;
  double stepB;
};

// (1) summed by parts: sum_k (A_k - A_{k+1}) (p_0 + ... + p_k), and so for B and q. The k-th steps have k factors y,
// whose rounding is taken out at the end.
double LowerSum(const Design& d) {
  Sequences s(d);
  double cumulativeA = s.weightA;
  double cumulativeB = s.weightB;
  double term = s.stepA * cumulativeA + s.stepB * cumulativeB;
  double sum = term;
  double factors = 0;
  const double enough = negligible * d.oneMinusY;
  while (term > enough * sum && s.j < 10 * mostTerms) {
    s.Next();
    cumulativeA += s.weightA;
    cumulativeB += s.weightB;
    term = s.stepA * cumulativeA + s.stepB * cumulativeB;
    sum += term;
    factors += s.j * term;
  }
  sum += factors * (d.point.x.lo / d.y);
  return NormalUpperTail(d.delta) + 0.5 * std::exp(-d.m) * sum;
}

// What the upper tail at `farX` is to be multiplied by.
double FarFactor(const Design& d) { return d.x > farX ? std::pow(farX / d.x, d.df) : 1; }

struct Halves {
  double even;
  double odd;
};

// The two halves of (2) and (3).
Halves UpperHalves(const Design& d) {
  Sequences s(d);
  double tailA = EvaluateBeta(0.5, d.b, d.point).tails.upper;
  double tailB = s.onlyTail;
  double even = s.weightA * tailA;
  double odd = s.weightB * tailB;
  double term = even + odd;
  while ((term > negligible * even || s.j < d.m) && s.j < 10 * mostTerms) {
    tailA += s.stepA;
    tailB += s.stepB;
    s.Next();
    const double evenTerm = s.weightA * tailA;
    const double oddTerm = s.weightB * tailB;
    even += evenTerm;
    odd += oddTerm;
    term = evenTerm + oddTerm;
  }
  const double scale = 0.5 * std::exp(-d.m);
  return {scale * even, scale * odd};
}

// Terms of (1): the steps A_k - A_{k+1} must have decreased. Those of (2) and (3) end with the Poisson weights.
double LowerTerms(const Design& d) {
  const double peak = std::max(0.0, (d.y * d.b - 1) / d.oneMinusY);
  const double spread = std::sqrt((1 + d.b + peak) / (d.b + 1) * (peak + 1.5));
  const double geometric = 40 / d.oneMinusY;
  return peak + (d.b < 4 ? geometric : std::min(9 * spread, geometric)) + 10;
}

// P(T <= -x), x > 0, delta > 0.
double WrongSideTail(const Design& d) {
  if (d.delta > largestDelta) return 0;
  const double z = (d.x + d.delta) / std::hypot(1, d.x / std::sqrt(2 * d.df));
  if (z < farthestDifference) {
    const Halves halves = UpperHalves(d);
    const double tail = halves.even - halves.odd;
    if (tail > leastDifference * halves.even) return FarFactor(d) * tail;
  }
  return NoncentralTWrongSideIntegral(d.x, d.b, d.delta);
}

Tails SquareTails(const Design& d) { return NoncentralBetaTails(0.5, d.b, d.m, d.point); }

// P(T > x), x > 0, delta > 0.
double RightSideUpperTail(const Design& d) {
  if (d.delta > largestSeriesDelta) return FarFactor(d) * SquareTails(d).upper;
  const Halves halves = UpperHalves(d);
  return FarFactor(d) * (halves.even + halves.odd);
}

// P(T <= x), x > 0, delta > 0.
double RightSideLowerTail(const Design& d) {
  if (d.x > farX) return 1 - RightSideUpperTail(d);
  if (d.delta > largestSeriesDelta) {
    const double inside = SquareTails(d).lower;
    const double beyond = NormalUpperTail(d.delta);
    return inside < 1e16 * beyond ? inside + WrongSideTail(d) : inside;
  }
  // Above the median the complement has fewer digits to lose, the more so the more terms there are.
  const bool below = d.x < d.delta;
  const double termsBesides = d.m + 9 * d.delta + 60;
  if (below ? LowerTerms(d) < mostTerms : d.delta < longSumDelta && LowerTerms(d) < termsBesides) return LowerSum(d);
  return 1 - RightSideUpperTail(d);
}

}  // namespace

double NoncentralTLowerTail(double x, double df, double delta) {
  if (std::fabs(x) < negligibleX) return NormalUpperTail(delta);
  // The chi variable is 0, but for a probability below 1e-17.
  if (HalfDegrees(df) < leastShape) return NormalUpperTail(delta);
  if (std::fabs(delta) > constantDelta) {
    x *= constantDelta / std::fabs(delta);
    delta = std::copysign(constantDelta, delta);
  }
  const Design d = MakeDesign(std::fabs(x), df, std::fabs(delta));
  if (delta == 0) {
    const double tail = FarFactor(d) * EvaluateBeta(0.5, d.b, d.point).tails.upper / 2;
    return x < 0 ? tail : 1 - tail;
  }
  if (delta > 0) return x > 0 ? RightSideLowerTail(d) : WrongSideTail(d);
  if (x < 0) return RightSideUpperTail(d);
  return 1 - WrongSideTail(d);
}

}  // namespace KelMath
