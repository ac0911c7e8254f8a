#include "correlation.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "beta_tails.h"
#include "kelcommon/distributions.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"

namespace kelcommon {

using KelCommon::KelMV;
using KelMath::CorrelationTail;
using KelMath::KelDistFun;
using KelMath::Tails;
using KelMath::UnitPoint;

namespace {

constexpr double nextTo1 = 1 - 0x1p-53;

bool IsAnyNaN(double first, double n, double rho) { return std::isnan(first) || std::isnan(n) || std::isnan(rho); }

bool IsOutside(double n, double rho) { return n <= 2 || rho < -1 || rho > 1; }

// Endless samples, and those from a line, have the correlation of the population.
bool IsAtPopulation(double n, double rho) { return std::isinf(n) || std::fabs(rho) == 1; }

struct TailsAndDensity {
  Tails tails;
  double density;  // of atanh(r)
};

// For -1 < r < 1, finite n > 2 and -1 < rho < 1.
TailsAndDensity Inside(double r, double n, double rho) {
  const bool isLower = r <= rho;
  const double side = isLower ? 1 : -1;
  const CorrelationTail tail = KelMath::LowerTailOfCorrelation(side * r, n, side * rho);
  const double smaller = std::min(tail.probability, 1.0);
  const Tails tails{smaller, 1 - smaller};
  return {isLower ? tails : tails.Mirrored(), tail.density};
}

// Without a correlation (1 + r) / 2 has a beta distribution with both shapes (n - 2) / 2.
Tails WithoutCorrelation(double r, double n) {
  const double shape = (n - 2) / 2;
  return KelMath::EvaluateBeta(shape, shape, UnitPoint::FromRatio(KelMath::ExactSum(1, r), KelMath::ExactSum(1, -r)))
      .tails;
}

// There r sqrt(n - 2) / sqrt(1 - r^2) has the distribution of t.
double QuantileWithoutCorrelation(double p, double n) {
  const double t = KelDistFun::IdfT(p, n - 2, 0, 0);
  return std::isinf(t) ? std::copysign(1, t) : t / std::hypot(std::sqrt(n - 2), t);
}

Tails Evaluate(double r, double n, double rho) {
  if (r >= 1) return {1, 0};
  if (r < -1) return {0, 1};
  if (IsAtPopulation(n, rho)) return r < rho ? Tails{0, 1} : Tails{1, 0};
  if (r == -1) return {0, 1};
  if (rho == 0) return WithoutCorrelation(r, n);
  return Inside(r, n, rho).tails;
}

// tanh(atanh(r) + step)
double Moved(double r, double step) {
  const double by = std::tanh(step);
  return (r + by) / (1 + r * by);
}

// Newton's method for the logarithm of the smaller tail as a function of atanh(r), which is concave; in a bracket, which
// is halved on that scale where a step would leave it.
class Quantile {
public:
  Quantile(double p, double n, double rho) : n_(n), rho_(rho), isLower_(p < 0.5), tail_(isLower_ ? p : 1 - p) {
    r_ = Clamped(Moved(rho, KelDistFun::IdfStdNorm(p) / std::sqrt(n - 1)));
  }

  double Find() {
    for (int i = 0; i < mostSteps; ++i) {
      const Step step = FromHere();
      const double next = Moved(r_, step.length);
      // No double lies between this one and the end.
      if (std::fabs(next) == 1 && std::fabs(r_) == nextTo1) return next;
      const bool isInside = next > below_ && next < above_;
      if (isInside && std::fabs(step.distance) < closeEnough) return next;
      r_ = isInside ? Clamped(next) : Middle();
      if (r_ == below_ || r_ == above_) return r_;
    }
    return r_;
  }

private:
  static constexpr int mostSteps = 200;

  // A step squares the distance from the wanted logarithm.
  static constexpr double closeEnough = 1e-8;

  struct Step {
    double length;    // of atanh(r)
    double distance;  // of the logarithm of the tail
  };

  static double Clamped(double r) { return std::clamp(r, -nextTo1, nextTo1); }

  Step FromHere() {
    const TailsAndDensity here = Inside(r_, n_, rho_);
    const double tail = isLower_ ? here.tails.lower : here.tails.upper;
    const double outwards = isLower_ ? -1 : 1;
    const bool isBeyond = tail < tail_;
    ((isLower_ == isBeyond) ? below_ : above_) = r_;
    if (tail == 0 || here.density == 0) return {isBeyond ? -outwards : outwards, 1};
    const double distance = std::log(tail / tail_);
    return {outwards * distance * (tail / here.density), distance};
  }

  double Middle() const { return Clamped(std::tanh((std::atanh(Clamped(below_)) + std::atanh(Clamped(above_))) / 2)); }

  double n_;
  double rho_;
  bool isLower_;
  double tail_;
  double r_;
  double below_ = -1;
  double above_ = 1;
};

}  // namespace

double CdfCorrelation(double r, double n, double rho) noexcept {
  if (IsAnyNaN(r, n, rho)) return std::numeric_limits<double>::quiet_NaN();
  if (IsOutside(n, rho)) return KelMV::Missing();
  return Evaluate(r, n, rho).lower;
}

double SfCorrelation(double r, double n, double rho) noexcept {
  if (IsAnyNaN(r, n, rho)) return std::numeric_limits<double>::quiet_NaN();
  if (IsOutside(n, rho)) return KelMV::Missing();
  return Evaluate(r, n, rho).upper;
}

double IdfCorrelation(double p, double n, double rho) noexcept {
  if (IsAnyNaN(p, n, rho)) return std::numeric_limits<double>::quiet_NaN();
  if (IsOutside(n, rho) || p < 0 || p > 1) return KelMV::Missing();
  if (p == 0) return -1;
  if (p == 1) return 1;
  if (IsAtPopulation(n, rho)) return rho;
  if (rho == 0) return QuantileWithoutCorrelation(p, n);
  return Quantile(p, n, rho).Find();
}

}  // namespace kelcommon
