#include <algorithm>
#include <cmath>
#include <limits>

#include "beta_quantile.h"
#include "gamma_tails.h"
#include "kelcommon/distributions.h"
#include "kelcommon/kel_mv.h"

namespace kelcommon {

using KelCommon::KelMV;
using KelMath::BetaQuantileRatio;
using KelMath::GammaTails;
using KelMath::limitShape;
using KelMath::Tails;

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

// Below this shape an upper tail is the shape times the exponential integral, so that only the quotient of both counts.
constexpr double proportionalShape = 1e-90;

// Both tails at x of a gamma variable of shape df / 2 or, for `scale` = 1, df.
Tails TailsOf(double x, double shape) {
  if (x <= 0 || std::isinf(shape)) return {0, 1};
  if (std::isinf(x)) return {1, 0};
  return GammaTails(shape, x);
}

// The x with p <= 1/2 below it.
double LowerQuantile(double p, double shape) { return shape * BetaQuantileRatio(shape, limitShape, p, 1); }

// The x with q <= 1/2 above it.
double UpperQuantile(double q, double shape) {
  if (shape < proportionalShape) {
    q *= proportionalShape / shape;
    shape = proportionalShape;
    if (q > 0.5) return 0;
  }
  return shape * BetaQuantileRatio(limitShape, shape, q, -1);
}

// The smaller probability is the one that has its digits; one minus the other is exact.
double QuantileOfLower(double p, double shape) {
  if (p == 0) return 0;
  if (p == 1 || std::isinf(shape)) return infinity;
  return p <= 0.5 ? LowerQuantile(p, shape) : UpperQuantile(1 - p, shape);
}

double QuantileOfUpper(double q, double shape) {
  if (q == 1) return 0;
  if (q == 0 || std::isinf(shape)) return infinity;
  return q <= 0.5 ? UpperQuantile(q, shape) : LowerQuantile(1 - q, shape);
}

bool RejectsProbability(double p) { return p < 0 || p > 1; }

// Half of the least denormal would be 0.
double Half(double df) { return std::max(df / 2, std::numeric_limits<double>::denorm_min()); }

}  // namespace

double CdfGamma(double x, double shape) noexcept {
  if (std::isnan(x) || std::isnan(shape)) return nan;
  if (shape <= 0) return KelMV::Missing();
  return TailsOf(x, shape).lower;
}

double SfGamma(double x, double shape) noexcept {
  if (std::isnan(x) || std::isnan(shape)) return nan;
  if (shape <= 0) return KelMV::Missing();
  return TailsOf(x, shape).upper;
}

double IdfGamma(double p, double shape) noexcept {
  if (std::isnan(p) || std::isnan(shape)) return nan;
  if (RejectsProbability(p)) return KelMV::Missing();
  if (shape <= 0) return KelMV::Missing();
  return QuantileOfLower(p, shape);
}

double IsfGamma(double q, double shape) noexcept {
  if (std::isnan(q) || std::isnan(shape)) return nan;
  if (RejectsProbability(q)) return KelMV::Missing();
  if (shape <= 0) return KelMV::Missing();
  return QuantileOfUpper(q, shape);
}

double CdfChiSquare(double x, double df) noexcept {
  if (std::isnan(x) || std::isnan(df)) return nan;
  if (df <= 0) return KelMV::Missing();
  return TailsOf(x / 2, Half(df)).lower;
}

double SfChiSquare(double x, double df) noexcept {
  if (std::isnan(x) || std::isnan(df)) return nan;
  if (df <= 0) return KelMV::Missing();
  return TailsOf(x / 2, Half(df)).upper;
}

double IdfChiSquare(double p, double df) noexcept {
  if (std::isnan(p) || std::isnan(df)) return nan;
  if (RejectsProbability(p)) return KelMV::Missing();
  if (df <= 0) return KelMV::Missing();
  return 2 * QuantileOfLower(p, Half(df));
}

double IsfChiSquare(double q, double df) noexcept {
  if (std::isnan(q) || std::isnan(df)) return nan;
  if (RejectsProbability(q)) return KelMV::Missing();
  if (df <= 0) return KelMV::Missing();
  return 2 * QuantileOfUpper(q, Half(df));
}

}  // namespace kelcommon
