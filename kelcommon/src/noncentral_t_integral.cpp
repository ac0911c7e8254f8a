#include "noncentral_t_integral.h"

#include <algorithm>
#include <cmath>

#include "log_gamma.h"
#include "small_differences.h"

// P(T <= -x) is the mean of Phi(-(x s + delta)) over s, df s^2 being chi-square. With s = e^v the integrand is
//   2 sqrt(b / (2 pi)) / G(b) Phi(-(x e^v + delta)) exp(-b (e^{2v} - 1 - 2v)),
// b = df / 2, G the scaled gamma function: logarithmically concave and analytic for |Im v| < pi/4, so that the
// trapezoidal rule converges geometrically; there is nothing to cancel.

namespace KelMath {

namespace {

constexpr double twoPi = 6.283185307179586477;
constexpr double rootHalf = 0.70710678118654752440;

// Below this shape the integrand decays like e^{2 b v} on the left: T(-2; 0.001, 5) would take 350,000 even steps.
// There v - center = sinh(u) reaches far in few.
constexpr double leastEvenShape = 1.8;

// Steps in standard deviations of the peak. The nearer it is to a normal density, the wider they may be: with 0.8 and
// 0.68 for the two, T(-2.7; 100, 0.4) would err by 2e-12 and T(-0.06; 16.3, 8.4) by 6e-11 of itself.
constexpr double normalPeakShape = 50;
constexpr double stepOfNormalPeak = 0.68;
constexpr double stepOfSkewPeak = 0.44;

// However wide the peak, the strip of analyticity bounds the step, and the more so where it is stretched: with 0.16 and
// 0.08, T(-0.02; 4.8, 4.6) would err by 4e-11 and T(-0.02; 0.025, 2.9) by 1e-10.
constexpr double widestStep = 0.11;
constexpr double widestStretchedStep = 0.05;

// Minus the logarithmic derivative of Phi(-z) to a few per cent: its bound by Birnbaum (1942), An inequality for Mill's
// ratio.
double Hazard(double z) { return (z + std::sqrt(z * z + 4)) / 2; }

// The integrand as a function of v, but for its constant factor.
struct Integrand {
  double At(double v) const {
    if (std::fabs(v) < 0.5) {
      // With e^v = 1 + v + w the exponent is v^2 + 2 (1 + v) w + w^2, free of cancellation near v = 0.
      const double w = Expm1MinusArgument(v);
      return Value(1 + (v + w), v * v + w * (2 * (1 + v) + w));
    }
    const double growth = std::exp(v);
    return Value(growth, growth * growth - 1 - 2 * v);
  }

  // Twice the value: the mean over many nodes does not need the last digit of each tail.
  double Value(double growth, double exponent) const {
    return std::erfc((x * growth + delta) * rootHalf) * std::exp(-b * exponent);
  }

  double x;
  double b;
  double delta;
};

struct Peak {
  double s;
  double curvature;  // of minus the logarithm, by v
};

// The square root of 1 + z^2 for any z >= 0.
double RootOf1PlusSquare(double z) { return z < 1e8 ? std::sqrt(1 + z * z) : z; }

// The peak solves 2 b (s^2 - 1) + x s hazard(x s + delta) = 0, a quadratic equation while the hazard is held. It need
// not be exact, for it only says where the nodes lie.
Peak FindPeak(const Integrand& f) {
  Peak peak{1, 0};
  double hazard = 0;
  double change = 1;
  for (int i = 0; i < 6 && std::fabs(change) > 0.01; ++i) {
    hazard = Hazard(f.x * peak.s + f.delta);
    const double half = f.x * hazard / (4 * f.b);
    const double s = 1 / (half + RootOf1PlusSquare(half));
    change = s / peak.s - 1;
    peak.s = s;
  }
  const double xs = f.x * peak.s;  // x^2 would overflow from 1e154 on, which quantiles of few degrees of freedom reach
  peak.curvature = 4 * f.b * peak.s * peak.s + xs * hazard + xs * xs;
  return peak;
}

// The trapezoidal rule on the whole line, outwards from the centre.
template <typename Term>
double SumOutwards(const Term& term, double step) {
  constexpr int mostNodes = 2000;
  double sum = term(0);
  for (double direction : {1.0, -1.0}) {
    for (int i = 1; i < mostNodes; ++i) {
      const double value = term(direction * step * i);
      sum += value;
      if (value < 1e-15 * sum) break;
    }
  }
  return sum * step;
}

}  // namespace

double NoncentralTWrongSideIntegral(double x, double b, double delta) {
  const Integrand f{x, b, delta};
  const Peak peak = FindPeak(f);
  const double inDeviations = (b > normalPeakShape ? stepOfNormalPeak : stepOfSkewPeak) / std::sqrt(peak.curvature);
  double integral = 0;
  if (b >= leastEvenShape) {
    const double center = std::log(peak.s);
    integral = SumOutwards([&](double u) { return f.At(center + u); }, std::min(inDeviations, widestStep));
  } else {
    // The nodes are to be dense where the integrand falls, which may be far right of its flat peak.
    const double fall = std::min(1.0, 1 / (x * Hazard(delta)));
    const double center = std::log(std::max(peak.s, fall));
    const auto Term = [&](double u) { return f.At(center + std::sinh(u)) * std::cosh(u); };
    integral = SumOutwards(Term, std::min(inDeviations, widestStretchedStep));
  }
  return integral * std::sqrt(b / twoPi) * std::exp(-LogScaledGamma(b));
}

}  // namespace KelMath
