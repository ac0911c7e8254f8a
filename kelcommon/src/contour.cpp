#include "contour.h"

#include <algorithm>
#include <cmath>

#include "small_differences.h"

// At the point (x, y), y = 1 - x, the distribution function is the probability that y X1 - x X2 <= 0, X1 being gamma
// distributed with shape a + a Poisson number of mean m, X2 with shape b. With the logarithm of the moment generating
// function
//   K(t) = -a log(1 - p t) + m p t / (1 - p t) - b log(1 + q t),  -1/q < t < 1/p,
// p and q being y and x, divided by the smaller of both, which keeps t in range,
// the lower tail is the integral of exp(K(t)) / (-2 pi i t) along Re t = t0 with t0 < 0, the upper tail that of
// exp(K(t)) / (2 pi i t) with t0 > 0 (Lugannani and Rice (1980), Saddle point approximation for the distribution of the
// sum of independent random variables, eq. 3 to 6). Along the line through the saddle point the integrand does not
// oscillate near its peak, and t = t0 + i s sinh(u) makes the trapezoidal rule converge geometrically.
// The line is bent into a hyperbola, towards the side on which the larger of the two shapes makes the integrand decay:
// straight, it would oscillate long after the other shape's slow algebraic decay has begun.

namespace KelMath {

namespace {

// From this smaller shape on the integrand decays fast enough on a straight line. Below, F(4.4; 20, 0.77, 5621) needs
// the bend, without which it would be off by 6 %, and T(100.07; 40, 100) by 4e-14. At shapes of 45 it is the bend that
// errs.
constexpr double straightShape = 30;

// From this smaller shape on the integrand is near enough to a normal density for the wider step. With that, F(1.2;
// 2000, 30, 10) would err by 2e-12.
constexpr double wideStepShape = 1000;

// With b below, the integrand of the lower tail decays too slowly: F(5.4; 692, 0.0017, 4453) would err by 2e-6 of
// itself.
constexpr double leastLowerB = 0.1;

struct Complex {
  double real;
  double imaginary;
};

// atan(u) - u, without the cancellation near 0.
double AtanMinusArgument(double u) {
  if (std::fabs(u) > 0.3) return std::atan(u) - u;
  const double s = u * u;
  const double s2 = s * s;
  const double even = 1.0 / 3 + s2 * (1.0 / 7 + s2 * (1.0 / 11 + s2 * (1.0 / 15 + s2 * (1.0 / 19 + s2 / 23))));
  const double odd = 1.0 / 5 + s2 * (1.0 / 9 + s2 * (1.0 / 13 + s2 * (1.0 / 17 + s2 * (1.0 / 21 + s2 / 25))));
  return u * s * (s * odd - even);
}

// log(1 + z) - z. With |1 + z|^2 = 1 + w and u = Im z / (1 + Re z) the parts of log(1 + w) / 2 and of atan(u) that are
// linear in z cancel on paper. On the contour w = 2 s (c - 1) (s c - 1), c = cosh(u) and s > 0 the share of the way to
// the branch point, which is at least -(1 - s)^2 / 2.
Complex Log1pMinusArgument(const Complex& z) {
  const double square = z.real * z.real + z.imaginary * z.imaginary;
  const double real = (KelMath::Log1pMinusArgument(2 * z.real + square) + square) / 2;
  const double rest = 1 + z.real;
  if (rest <= 0) return {real, std::atan2(z.imaginary, rest) - z.imaginary};
  const double u = z.imaginary / rest;
  return {real, AtanMinusArgument(u) - z.real * u};
}

Complex Scaled(const Complex& z, double factor) { return {z.real * factor, z.imaginary * factor}; }

// z^2 / (1 - z)
Complex SquareOverRest(const Complex& z) {
  const Complex square{z.real * z.real - z.imaginary * z.imaginary, 2 * z.real * z.imaginary};
  const Complex rest{1 - z.real, z.imaginary};  // the conjugate of 1 - z
  const double size = rest.real * rest.real + rest.imaginary * rest.imaginary;
  return {(square.real * rest.real - square.imaginary * rest.imaginary) / size,
          (square.real * rest.imaginary + square.imaginary * rest.real) / size};
}

// The mean of y X1 - x X2, (a + m) y - b x: a difference that carries all that is known near the median.
double MeanDifference(double a, double b, double m, const UnitPoint& point) {
  const DoubleDouble shape = ExactSum(a, m);
  return -(BetaExcess(shape.hi, b, point) - shape.lo * point.y.hi);
}

class Contour {
public:
  Contour(double a, double b, double m, const UnitPoint& point) : a_(a), b_(b), m_(m) {
    const double least = std::min(point.x.hi, point.y.hi);
    p_ = point.y.hi / least;
    q_ = point.x.hi / least;
    mean_ = MeanDifference(a, b, m, point) / least;
  }

  double Mean() const { return mean_; }

  double Tail(bool lower) const {
    const double t0 = Saddle(lower);
    const double peak = Exponent(t0);
    // The integral's other factors are of the order of 1: such a tail underflows.
    if (!(peak > -800)) return 0;
    const double fromP = p_ / (1 - p_ * t0);
    const double fromQ = q_ / (1 + q_ * t0);
    const double slope = Slope(t0);
    const double scale = 1 / std::sqrt(Curvature(t0));
    const double smallerShape = std::min(a_ + m_, b_);
    const double bend = smallerShape < straightShape ? (b_ > a_ + m_ ? 1 : -1) : 0;
    const double stepWidth = smallerShape < wideStepShape ? 1 / 14.0 : 1 / 8.0;
    double sum = 0.5;
    for (int i = 1; i < mostNodes; ++i) {
      const double up = std::exp(stepWidth * i);
      const double sinh = (up - 1 / up) / 2;
      const double cosh = (up + 1 / up) / 2;
      const Complex delta{scale * bend * (cosh - 1), scale * sinh};
      const Complex fromA = Log1pMinusArgument(Scaled(delta, -fromP));
      const Complex fromM = SquareOverRest(Scaled(delta, fromP));
      const Complex fromB = Log1pMinusArgument(Scaled(delta, fromQ));
      const Complex fromPole = Log1pMinusArgument(Scaled(delta, 1 / t0));
      const auto Total = [&](double Complex::*part) {
        return -a_ * fromA.*part + m_ / (1 - p_ * t0) * fromM.*part - b_ * fromB.*part - fromPole.*part +
               slope * delta.*part;
      };
      const double size = std::exp(Total(&Complex::real));
      const double angle = Total(&Complex::imaginary);
      sum += size * (cosh * std::cos(angle) + bend * sinh * std::sin(angle));
      if (size * cosh < 1e-17) break;
    }
    constexpr double pi = 3.14159265358979323846;
    const double tail = std::exp(peak) * sum * stepWidth * scale / (std::fabs(t0) * pi);
    return tail > 0 ? std::min(tail, 1.0) : 0;
  }

private:
  static constexpr int mostNodes = 2000;

  // Near t = 0 the terms of K(t) that are linear in t cancel, and are taken together in the mean. Farther out they
  // would be large parts of it that cancel.
  bool IsFar(double t) const { return std::fabs(t) * std::max(p_, q_) > 0.5; }

  // K(t)
  double Exponent(double t) const {
    const double pt = p_ * t;
    const double qt = q_ * t;
    if (IsFar(t)) return -a_ * std::log1p(-pt) + m_ * pt / (1 - pt) - b_ * std::log1p(qt);
    return -a_ * KelMath::Log1pMinusArgument(-pt) + m_ * pt * pt / (1 - pt) - b_ * KelMath::Log1pMinusArgument(qt) +
           mean_ * t;
  }

  // d/dt (K(t) - log|t|)
  double Slope(double t) const {
    const double r = 1 / (1 - p_ * t);
    const double fromQ = q_ / (1 + q_ * t);
    if (IsFar(t)) return p_ * r * (a_ + m_ * r) - b_ * fromQ - 1 / t;
    return mean_ + p_ * (p_ * t * r) * (a_ + m_ * (1 + r)) + b_ * q_ * (t * fromQ) - 1 / t;
  }

  double Curvature(double t) const {
    const double r = 1 / (1 - p_ * t);
    const double fromP = p_ * r;
    const double fromQ = q_ / (1 + q_ * t);
    return fromP * fromP * (a_ + 2 * m_ * r) + fromQ * fromQ * b_ + 1 / (t * t);
  }

  // Where the search for the saddle starts: by the parabola at t = 0, unless the root is orders of magnitude away.
  // Then the slope is about p m / (1 - p t)^2 - b q in the lower tail and p (a + m) - (1 + b) / t in the upper.
  double Start(bool lower) const {
    const double farLower = (1 - std::sqrt(m_ / b_ * (p_ / q_))) / p_;
    const double farUpper = (1 + b_) / ((a_ + m_) * p_);
    if (lower && p_ * farLower < -10 && q_ * farLower > -0.1) return farLower;
    if (!lower && p_ * farUpper < 0.5 && q_ * farUpper > 1000) return farUpper;
    const double deviation = std::hypot(p_ * std::sqrt(a_ + 2 * m_), q_ * std::sqrt(b_));
    const double root = std::hypot(mean_, 2 * deviation);
    // Of the two forms of a root, the one in which nothing cancels.
    if (lower) return mean_ > 0 ? -(mean_ + root) / (2 * deviation) / deviation : -2 / (root - mean_);
    return mean_ < 0 ? (root - mean_) / (2 * deviation) / deviation : 2 / (root + mean_);
  }

  // The minimum of K(t) - log|t| on its side of 0, where the slope increases from -infinity to infinity. Newton's steps
  // are held inside a bracket; three digits are enough.
  double Saddle(bool lower) const {
    double low = lower ? -1 / q_ : 0.0;
    double high = lower ? 0.0 : 1 / p_;
    double t = Start(lower);
    for (int i = 0; i < 200; ++i) {
      if (!(t > low && t < high)) t = low + (high - low) / 2;
      const double slope = Slope(t);
      (slope > 0 ? high : low) = t;
      const double curvature = Curvature(t);
      const double step = slope / curvature;
      const bool isAtRoundingError = std::fabs(step) < 1e-15 * std::fabs(t);
      if (slope * slope < 1e-4 * curvature || isAtRoundingError) break;
      t -= step;
    }
    return t;
  }

  double a_;
  double b_;
  double m_;
  double p_;
  double q_;
  double mean_;
};

}  // namespace

Tails NoncentralBetaTailsByContour(double a, double b, double m, const UnitPoint& point) {
  const Contour contour(a, b, m, point);
  if (contour.Mean() > 0 && b >= leastLowerB) {
    const double lower = contour.Tail(true);
    return {lower, 1 - lower};
  }
  const double upper = contour.Tail(false);
  return {1 - upper, upper};
}

}  // namespace KelMath
