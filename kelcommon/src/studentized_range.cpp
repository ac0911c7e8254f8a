#include <algorithm>
#include <cmath>
#include <limits>

#include "kelcommon/chi_integral.h"
#include "kelcommon/distributions.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "log_gamma.h"
#include "normal.h"
#include "normal_range.h"
#include "small_differences.h"

// The range of k standard normal variables, divided by u, the square root of an independent chi-square variable over its
// degrees of freedom. With s = e^v and b = df / 2
//   P(Q > q) = 2 sqrt(b / (2 pi)) / G(b) int P(range > q e^v) exp(-b (e^{2v} - 1 - 2v)) dv,
// G the scaled gamma function, and so for the lower probability (Harter 1960, "Tables of Range and Studentized Range",
// Annals of Mathematical Statistics 31). Both integrands are logarithmically concave, and analytic for |Im v| < pi/4, so
// that the trapezoidal rule converges geometrically.

namespace kelcommon {

namespace {

using KelCommon::KelMV;
using KelMath::KelDistFun;
using KelMath::NormalRange;

constexpr double twoPi = 6.283185307179586477;
constexpr double rootHalf = 0.70710678118654752440;
constexpr double densityAtZero = 0.39894228040143267794;
constexpr double mostMeans = 1e6;

// From here on the distribution of the range is that with known standard deviation to the last digit.
constexpr double endlessDf = 1e18;

// As for the noncentral t distribution: steps in standard deviations of the peak, and what the strip of analyticity
// allows; below the shape the integrand falls so slowly on the left that the nodes are stretched by a hyperbolic sine.
constexpr double stepInDeviations = 0.45;
constexpr double widestStep = 0.095;
constexpr double widestStretchedStep = 0.043;
constexpr double leastEvenShape = 1.8;
constexpr int mostNodes = 3000;

enum class Tail { Lower, Upper };

class Integrand {
public:
  Integrand(double q, double k, double b, Tail tail) : q_(q), b_(b), range_(k), tail_(tail) {}

  double At(double v) const {
    const double density = std::exp(-b_ * KelMath::Expm1MinusArgument(2 * v));
    if (density == 0) return 0;
    const double w = q_ * std::exp(v);
    return density * (tail_ == Tail::Lower ? range_.Below(w) : range_.Above(w));
  }

  const NormalRange& Range() const { return range_; }

private:
  double q_;
  double b_;
  NormalRange range_;
  Tail tail_;
};

// The trapezoidal rule outwards from about the peak of a function that has one; it ends where the terms fall below the
// last digit of the sum.
template <typename Term>
double SumOutwards(const Term& term, double step) {
  double sum = term(0);
  for (double direction : {1.0, -1.0}) {
    double before = sum;
    for (int i = 1; i < mostNodes; ++i) {
      const double value = term(direction * step * i);
      sum += value;
      if (value < 1e-17 * sum && value <= before) break;
      before = value;
    }
  }
  return sum * step;
}

// Where about the peak is. The probability below w, while small, grows like the (k - 1)-th power of the probability
// between -w / 2 and w / 2; that above w falls about like the tail of a normal variable of variance 2.
double PeakOf(double q, double k, double b, Tail tail) {
  if (tail == Tail::Upper) return -std::log1p((q * q / 2 + 2) / (2 * b)) / 2;
  double low = 0;
  double high = std::log1p((k - 1) / (2 * b)) / 2;
  for (int i = 0; i < 30; ++i) {
    const double v = (low + high) / 2;
    const double y = q * std::exp(v) / 2;
    const double slope =
        y > 1e-150 ? (k - 1) * 2 * y * densityAtZero * std::exp(-y * y / 2) / std::erf(y * rootHalf) : k - 1;
    (2 * b * std::expm1(2 * v) < slope ? low : high) = v;
  }
  return low;
}

double Integral(double q, double k, double b, Tail tail) {
  const Integrand f(q, k, b, tail);
  const double center = PeakOf(q, k, b, tail);
  const double s = std::exp(center);
  const double w = tail == Tail::Upper ? q * s : 0;
  const double deviation = 1 / std::sqrt(4 * b * s * s + w * w);
  double step = std::min({stepInDeviations * deviation, f.Range().StepInLog(), widestStep});
  double integral = 0;
  if (b >= leastEvenShape) {
    integral = SumOutwards([&](double x) { return f.At(center + x); }, step);
  } else {
    step *= widestStretchedStep / widestStep;
    integral = SumOutwards([&](double x) { return f.At(center + std::sinh(x)) * std::cosh(x); }, step);
  }
  return integral * 2 * std::sqrt(b / twoPi) * std::exp(-KelMath::LogScaledGamma(b));
}

// Below one degree of freedom the peak may be far from all that changes: there pieces that adapt give an absolute accuracy.
double Probability(double q, double k, double df, Tail tail) {
  if (df < 1) {
    const NormalRange range(k);
    if (tail == Tail::Lower) return MeanOverChi([&](double u) { return range.Below(q * u); }, df);
    return MeanOverChi([&](double u) { return range.Above(q * u); }, df);
  }
  if (df >= endlessDf) return tail == Tail::Lower ? NormalRange(k).Below(q) : NormalRange(k).Above(q);
  return std::min(Integral(q, k, df / 2, tail), 1.0);
}

bool IsOutside(double k, double df) { return k < 2 || k > mostMeans || df <= 0; }

// A probability that is not small has its relative accuracy from the other one too.
constexpr double notSmall = 0.9;

double Upper(double q, double k, double df) {
  const double upper = Probability(q, k, df, Tail::Upper);
  return upper < notSmall ? upper : 1 - Probability(q, k, df, Tail::Lower);
}

double Lower(double q, double k, double df) {
  const double upper = Probability(q, k, df, Tail::Upper);
  return upper < notSmall ? 1 - upper : Probability(q, k, df, Tail::Lower);
}

}  // namespace

double SfStudentizedRange(double q, double k, double df) noexcept {
  if (std::isnan(q) || std::isnan(k) || std::isnan(df)) return std::numeric_limits<double>::quiet_NaN();
  if (IsOutside(k, df)) return KelMV::Missing();
  if (q <= 0) return 1;
  if (std::isinf(q)) return 0;
  return Upper(q, k, df);
}

double CdfStudentizedRange(double q, double k, double df) noexcept {
  if (std::isnan(q) || std::isnan(k) || std::isnan(df)) return std::numeric_limits<double>::quiet_NaN();
  if (IsOutside(k, df)) return KelMV::Missing();
  if (q <= 0) return 0;
  if (std::isinf(q)) return 1;
  return Lower(q, k, df);
}

}  // namespace kelcommon
