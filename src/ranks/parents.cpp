#include "ranks/parents.h"

#include <algorithm>
#include <cmath>

#include "frame/integral.h"
#include "kelcommon/kel_dist_fun.h"

// With F the distribution and f the density of the parent, the probabilities of a shift s are
// P(X < Y) = integral of F(x + s) f(x), and P(X < Y and X' < Y) = integral of F(x + s)^2 f(x).

namespace kelpower::ranks {

namespace {

constexpr double pi = 3.141592653589793238;
constexpr double sqrt2 = 1.414213562373095049;
constexpr double sqrt3 = 1.732050807568877294;
constexpr double sqrt5 = 2.236067977499789696;

// The rule is exact to rounding on a piece where these integrands are smooth; it is not to look for more.
constexpr double tolerance = 1e-15;

/// Owen's T(h, 1 / sqrt 3) = 1 / (2 pi) times the integral from 0 to 1 / sqrt 3 of exp(-h^2 (1 + t^2) / 2) / (1 + t^2)
/// (Owen 1956, Annals of Mathematical Statistics 27, 1075-1090).
double OwensT(double h) {
  constexpr double beyondWhichItVanishes = 40;
  if (h > beyondWhichItVanishes) return 0;
  const auto integrand = [=](double t) { return std::exp(-h * h * (1 + t * t) / 2) / (1 + t * t); };
  return Integrate(integrand, 0, 1 / sqrt3, tolerance).value / (2 * pi);
}

/// Y - X is normal with standard deviation sqrt 2, and two such differences with one value in common have the
/// correlation 1/2: P(both below h) = Phi(h) - 2 T(h, 1 / sqrt 3).
ShiftProbabilities ShiftedNormal(double shift) {
  const double h = shift / sqrt2;
  const double below = std::erf(h / sqrt2) / 2;
  return {below, below + 0.5 - 2 * OwensT(h)};
}

/// In u = F(x), F(x + s) is u / (u + a (1 - u)) with a = exp(-s): integrals of a rational function. The closed forms
/// cancel at small shifts, where the integrands are smooth.
ShiftProbabilities ShiftedLogistic(double shift) {
  const double s = shift * pi / sqrt3;
  const double a = std::exp(-s);
  const double b = -std::expm1(-s);  // 1 - a
  if (a == 0) return {0.5, 1};
  if (s >= 1) return {1 / b - a * s / (b * b) - 0.5, (1 - a * a - 2 * a * s) / (b * b * b)};
  const auto moved = [=](double u) { return u / (a + b * u); };
  const auto raised = [=](double u) { return moved(u) - u; };
  const auto squared = [=](double u) { return moved(u) * moved(u); };
  return {Integrate(raised, 0, 1, tolerance).value, Integrate(squared, 0, 1, tolerance).value};
}

/// In units of the scale, which is 1 / sqrt 2. The first is 1/2 - exp(-s) (2 + s) / 4, without its cancellation.
ShiftProbabilities ShiftedLaplace(double shift) {
  const double s = shift * sqrt2;
  const double a = std::exp(-s);
  if (a == 0) return {0.5, 1};
  return {(-2 * std::expm1(-s) - s * a) / 4, 1 - a * (7.0 / 12 + s / 2) - a * a / 12};
}

/// In units of the width, which is 2 sqrt 3.
ShiftProbabilities ShiftedUniform(double shift) {
  const double s = std::min(shift / (2 * sqrt3), 1.0);
  return {s * (1 - s / 2), s + (1 - s * s * s) / 3};
}

/// In units of half the width, which is sqrt 5: the density is 3/4 (1 - y^2) on [-1, 1], and the integrands are
/// polynomials of degree 8 at most, which the rule integrates exactly.
ShiftProbabilities ShiftedParabola(double shift) {
  const double s = std::min(shift / sqrt5, 2.0);
  const auto density = [](double y) { return 0.75 * (1 - y * y); };
  const auto above = [](double y) { return (1 - y) * (1 - y) * (2 + y) / 4; };  // 1 - F
  const auto missed = [=](double y) { return above(y + s) * density(y); };
  const auto bothMissed = [=](double y) { return above(y + s) * (2 - above(y + s)) * density(y); };  // (1 - F^2) f
  return {0.5 - Integrate(missed, -1, 1 - s, tolerance).value, 1 - Integrate(bothMissed, -1, 1 - s, tolerance).value};
}

double ParabolaBelow(double x) {
  const double y = std::clamp(x / sqrt5, -1.0, 1.0);
  return (1 + y) * (1 + y) * (2 - y) / 4;
}

double LaplaceBelow(double x) {
  const double tail = std::exp(-std::fabs(x) * sqrt2) / 2;
  return x < 0 ? tail : 1 - tail;
}

}  // namespace

double RelativeEfficiency(Parent parent) {
  switch (parent) {
    case Parent::Normal: return 3 / pi;
    case Parent::Logistic: return pi * pi / 9;
    case Parent::Laplace: return 1.5;
    case Parent::Uniform: return 1;
    case Parent::Minimum: break;
  }
  return 108.0 / 125;
}

double Probability(Parent parent, double x) {
  switch (parent) {
    case Parent::Normal: return KelMath::KelDistFun::CdfStdNorm(x);
    case Parent::Logistic: return 1 / (1 + std::exp(-x * pi / sqrt3));
    case Parent::Laplace: return LaplaceBelow(x);
    case Parent::Uniform: return std::clamp(0.5 + x / (2 * sqrt3), 0.0, 1.0);
    case Parent::Minimum: break;
  }
  return ParabolaBelow(x);
}

ShiftProbabilities Shifted(Parent parent, double shift) {
  switch (parent) {
    case Parent::Normal: return ShiftedNormal(shift);
    case Parent::Logistic: return ShiftedLogistic(shift);
    case Parent::Laplace: return ShiftedLaplace(shift);
    case Parent::Uniform: return ShiftedUniform(shift);
    case Parent::Minimum: break;
  }
  return ShiftedParabola(shift);
}

}  // namespace kelpower::ranks
