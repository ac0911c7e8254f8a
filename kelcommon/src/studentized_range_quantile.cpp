#include <cmath>
#include <limits>

#include "kelcommon/distributions.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"

namespace kelcommon {

namespace {

using KelCommon::KelMV;
using KelMath::KelDistFun;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double rootTwo = 1.41421356237309504880;
constexpr int mostEvaluations = 100;

// After a step this small the next one would be below the last digit.
constexpr double lastStep = 1e-9;

// The root of an increasing function between two numbers: the secant method, whose steps out of the bracket are replaced
// by its middle.
template <typename Function>
double IncreasingRoot(const Function& f, double x, double slope, double low, double high) {
  double before = 0;
  double valueBefore = 0;
  for (int i = 0; i < mostEvaluations; ++i) {
    const double value = f(x);
    if (value == 0) return x;
    (value < 0 ? low : high) = x;
    if (i > 0 && std::isfinite(valueBefore)) slope = (value - valueBefore) / (x - before);
    // Before the bracket, of which x is an end: a step below its last digit is not out of it.
    double next = x - value / slope;
    if (std::fabs(next - x) <= lastStep) return next;
    if (!(next > low && next < high)) next = low + (high - low) / 2;
    if (next == low || next == high) return next;
    before = x;
    valueBefore = value;
    x = next;
  }
  return x;
}

// Against the logarithm of what a single pair's t test has above q, the logarithm of the upper probability is almost a
// straight line; Bonferroni's inequality says where to begin.
double QuantileOfUpper(double upper, double k, double df) {
  const double target = std::log(upper);
  const auto Q = [=](double log) { return -rootTwo * KelDistFun::IdfT(std::exp(log) / 2, df, 0, 0); };
  const auto Excess = [=](double log) { return std::log(SfStudentizedRange(Q(log), k, df)) - target; };
  return Q(IncreasingRoot(Excess, target - std::log(k * (k - 1) / 2), 1, -745, 0));
}

// The lower probability is almost a power of q.
double QuantileOfLower(double lower, double k, double df) {
  const double target = std::log(lower);
  const auto Excess = [=](double log) { return std::log(CdfStudentizedRange(std::exp(log), k, df)) - target; };
  return std::exp(IncreasingRoot(Excess, 0, k - 1, -745, 709));
}

bool IsOutside(double p, double k, double df) { return p < 0 || p > 1 || k < 2 || k > 1e6 || df <= 0; }

}  // namespace

double IdfStudentizedRange(double p, double k, double df) noexcept {
  if (std::isnan(p) || std::isnan(k) || std::isnan(df)) return std::numeric_limits<double>::quiet_NaN();
  if (IsOutside(p, k, df)) return KelMV::Missing();
  if (p == 0) return 0;
  if (p == 1) return infinity;
  return p < 0.5 ? QuantileOfLower(p, k, df) : QuantileOfUpper(1 - p, k, df);
}

double IsfStudentizedRange(double p, double k, double df) noexcept {
  if (std::isnan(p) || std::isnan(k) || std::isnan(df)) return std::numeric_limits<double>::quiet_NaN();
  if (IsOutside(p, k, df)) return KelMV::Missing();
  if (p == 0) return infinity;
  if (p == 1) return 0;
  return p > 0.5 ? QuantileOfLower(1 - p, k, df) : QuantileOfUpper(p, k, df);
}

}  // namespace kelcommon
