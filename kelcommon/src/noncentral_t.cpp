#include "noncentral_t.h"

#include <algorithm>
#include <cmath>

#include "beta_terms.h"
#include "noncentral_f.h"
#include "series.h"

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

constexpr double negligible = 1e-18;

// Beyond, Phi(-delta) < 1e-23 bounds P(T <= -x), so that the t distribution is that of its square to the last digit.
constexpr double largestSeriesDelta = 10;

// Beyond, Phi(-delta) underflows.
constexpr double largestDelta = 39;

// Half the degrees of freedom below which the chi distribution is all at 0.
constexpr double leastShape = 1e-20;

// From about this number of terms on the contour integral of the F distribution is faster.
constexpr double mostTerms = 1500;

double NormalUpperTail(double z) { return 0.5 * std::erfc(z * 0.70710678118654752440); }

struct Design {
  double x;
  double df;
  double delta;
  double b;
  double m;
  long double c;  // x^2 / df
  double y;
  double oneMinusY;
  double yTimesB;
};

Design MakeDesign(double x, double df, double delta) {
  const long double c = static_cast<long double>(x) * x / df;
  const long double y = c / (1 + c);
  return {x,
          df,
          delta,
          HalfDegrees(df),
          delta * delta / 2,
          c,
          static_cast<double>(y),
          static_cast<double>(1 / (1 + c)),
          static_cast<double>(y * df / 2)};
}

// The pair of sequences A_j and B_j by their steps A_j - A_{j+1} and B_j - B_{j+1}, and of the weights p_j and q_j.
// Weights are relative to e^-m.
struct Sequences {
  explicit Sequences(const Design& d) : design(d), weightA(1), weightB(d.delta * 0.79788456080286535588) {
    const ScaledValue first = BetaStep(0.5, d.b, d.c);
    stepA = static_cast<double>(first.factor * std::exp(first.exponent));
    onlyTail = static_cast<double>(std::exp(-d.b * std::log1p(d.c)));
    stepB = d.yTimesB * onlyTail;
  }

  void Next() {
    stepA *= (design.yTimesB + design.y * (j + 0.5)) / (j + 1.5);
    stepB *= (design.yTimesB + design.y * (j + 1)) / (j + 2);
    weightA *= design.m / (j + 1);
    weightB *= design.m / (j + 1.5);
    j += 1;
  }

  const Design& design;
  double j = 0;
  double weightA;
  double weightB;
  double stepA = 0;
  double stepB = 0;
  double onlyTail = 0;  // 1 - B_0 = (1 - y)^b
};

// (1) summed by parts: sum_k (A_k - A_{k+1}) (p_0 + ... + p_k), and so for B and q.
double LowerSum(const Design& d) {
  Sequences s(d);
  double cumulativeA = s.weightA;
  double cumulativeB = s.weightB;
  double term = s.stepA * cumulativeA + s.stepB * cumulativeB;
  double sum = term;
  const double enough = negligible * d.oneMinusY;
  while (term > enough * sum && s.j < 10 * mostTerms) {
    s.Next();
    cumulativeA += s.weightA;
    cumulativeB += s.weightB;
    term = s.stepA * cumulativeA + s.stepB * cumulativeB;
    sum += term;
  }
  return NormalUpperTail(d.delta) + 0.5 * std::exp(-d.m) * sum;
}

struct Halves {
  double even;
  double odd;
};

// The two halves of (2) and (3).
Halves UpperHalves(const Design& d) {
  Sequences s(d);
  double tailA = BetaTails(0.5, d.b, d.c).upper;
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
  const double peak = std::max(0.0, (d.yTimesB - 1) / d.oneMinusY);
  const double spread = std::sqrt((1 + d.b + peak) / (d.b + 1) * (peak + 1.5));
  const double geometric = 40 / d.oneMinusY;
  return peak + (d.b < 4 ? geometric : std::min(9 * spread, geometric)) + 10;
}

// P(T <= -x) as the mean of Phi(-(x s + delta)) over s, df s^2 being chi-square. With s = e^v the integrand is
//   2 sqrt(b / (2 pi)) / G(b) Phi(-(x e^v + delta)) exp(-b (e^{2v} - 1 - 2v)),
// G the scaled gamma function: logarithmically concave and analytic for |Im v| < pi/4, so that the trapezoidal rule
// converges geometrically; there is nothing to cancel.
double WrongSideIntegral(const Design& d) {
  const double x = d.x;
  const double b = d.b;
  double s = 1;
  double hazard = 0;
  // The peak solves 2 b (s^2 - 1) + x s hazard(x s + delta) = 0, a quadratic equation while the hazard is held. That of
  // the normal distribution to a few per cent: its bound by Birnbaum (1942), An inequality for Mill's ratio.
  const auto Hazard = [](double z) { return (z + std::sqrt(z * z + 4)) / 2; };
  for (int i = 0; i < 6; ++i) {
    hazard = Hazard(x * s + d.delta);
    const double half = x * hazard / (4 * b);
    s = 1 / (half + std::hypot(half, 1));
  }
  const double xs = x * s;  // x^2 would overflow from 1e154 on, which quantiles of few degrees of freedom reach
  const double curvature = 4 * b * s * s + xs * hazard + xs * xs;
  // Few degrees of freedom leave the integrand to decay like e^{2 b v} on the left: there v - center = sinh(u) reaches
  // far in few steps, which must be finer.
  const bool isLeftLong = b < 1.8;
  // The nodes are to be dense where the integrand falls, which may be far right of its flat peak.
  const double fall = std::min(1.0, 1 / (x * Hazard(d.delta)));
  const double center = std::log(isLeftLong ? std::max(s, fall) : s);
  // Somewhat above half a standard deviation of the peak; the nearer it is to a normal density, the wider.
  const double step = std::min((b > 50 ? 0.68 : 0.5) / std::sqrt(curvature), isLeftLong ? 0.06 : 0.12);
  const auto Integrand = [&](double v) {
    double growth = 0;
    double exponent = 0;
    if (std::fabs(v) < 0.5) {
      // With e^v = 1 + v + w the exponent is v^2 + 2 (1 + v) w + w^2, free of cancellation near v = 0.
      const double w = Expm1MinusArgument(v);
      growth = 1 + (v + w);
      exponent = v * v + w * (2 * (1 + v) + w);
    } else {
      growth = std::exp(v);
      exponent = growth * growth - 1 - 2 * v;
    }
    return NormalUpperTail(x * growth + d.delta) * std::exp(-b * exponent);
  };
  const auto Term = [&](double u) {
    if (!isLeftLong) return Integrand(center + u);
    const double up = std::exp(u);
    return Integrand(center + (up - 1 / up) / 2) * (up + 1 / up) / 2;
  };
  double sum = Term(0);
  for (double direction : {1.0, -1.0}) {
    for (int i = 1; i < 2000; ++i) {
      const double value = Term(direction * step * i);
      sum += value;
      if (value < 1e-15 * sum) break;
    }
  }
  return sum * step * 2 * StirlingRatio(b);
}

// P(T <= -x), x > 0, delta > 0.
double WrongSideTail(const Design& d) {
  if (d.delta > largestDelta) return 0;
  // The chi variable is then below every 1 / x but for a part of 1e-17.
  if (d.b < leastShape) return NormalUpperTail(d.delta);
  // (3) loses at most the three digits that the result can spare while it is not far out.
  const double z = (d.x + d.delta) / std::hypot(1, d.x / std::sqrt(2 * d.df));
  if (z < 2.7) {
    const Halves halves = UpperHalves(d);
    const double tail = halves.even - halves.odd;
    if (tail > 2e-3 * halves.even) return tail;
  }
  return WrongSideIntegral(d);
}

Tails SquareTails(const Design& d) {
  return NoncentralBetaTails(0.5, d.b, static_cast<long double>(d.delta) * d.delta / 2, d.c);
}

// P(T <= x), x > 0, delta > 0.
double RightSideLowerTail(const Design& d) {
  if (d.delta > largestSeriesDelta) {
    const double inside = SquareTails(d).lower;
    const double beyond = NormalUpperTail(d.delta);
    return inside < 1e6 * beyond ? inside + WrongSideTail(d) : inside;
  }
  const bool below = d.x < d.delta;
  if (LowerTerms(d) < (below ? mostTerms : d.m + 9 * d.delta + 60)) return LowerSum(d);
  const Halves halves = UpperHalves(d);
  return 1 - (halves.even + halves.odd);
}

// P(T > x), x > 0, delta > 0.
double RightSideUpperTail(const Design& d) {
  if (d.delta > largestSeriesDelta) return SquareTails(d).upper;
  const Halves halves = UpperHalves(d);
  return halves.even + halves.odd;
}

}  // namespace

double NoncentralTLowerTail(double x, double df, double delta) {
  if (x == 0) return NormalUpperTail(delta);
  const Design d = MakeDesign(std::fabs(x), df, std::fabs(delta));
  if (delta == 0) {
    const double tail = BetaTails(0.5, d.b, d.c).upper / 2;
    return x < 0 ? tail : 1 - tail;
  }
  if (delta > 0) return x > 0 ? RightSideLowerTail(d) : WrongSideTail(d);
  if (x < 0) return RightSideUpperTail(d);
  return 1 - WrongSideTail(d);
}

}  // namespace KelMath
