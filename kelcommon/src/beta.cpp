#include <algorithm>
#include <cmath>
#include <limits>

#include "beta_quantile.h"
#include "beta_tails.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"

namespace KelMath {

using KelCommon::KelMV;

namespace {

constexpr double largest = std::numeric_limits<double>::max();

bool RejectsShapes(double a, double b) { return a < 0 || b < 0 || (a == 0 && b == 0); }

// An infinite shape acts as a zero one at the other end; two of them put the mass at 1/2.
bool AllMassAt0(double a, double b) { return a == 0 || (std::isinf(b) && !std::isinf(a)); }
bool AllMassAt1(double a, double b) { return b == 0 || (std::isinf(a) && !std::isinf(b)); }

}  // namespace

double KelDistFun::CdfBeta(double x, double a, double b) noexcept {
  if (std::isnan(x) || std::isnan(a) || std::isnan(b)) return std::numeric_limits<double>::quiet_NaN();
  if (RejectsShapes(a, b)) return KelMV::Missing();
  if (AllMassAt0(a, b)) return x >= 0 ? 1 : 0;
  if (AllMassAt1(a, b)) return x >= 1 ? 1 : 0;
  if (x <= 0) return 0;
  if (x >= 1) return 1;
  return EvaluateBeta(std::min(a, largest), std::min(b, largest), UnitPoint::FromX(x)).tails.lower;
}

double KelDistFun::IdfBeta(const double& p, const double& a, const double& b) noexcept {
  if (std::isnan(p) || std::isnan(a) || std::isnan(b)) return std::numeric_limits<double>::quiet_NaN();
  if (p < 0) return KelMV::Missing();
  if (p > 1) return KelMV::Missing();
  if (RejectsShapes(a, b)) return KelMV::Missing();
  if (AllMassAt0(a, b)) return 0;
  if (AllMassAt1(a, b)) return 1;
  if (p == 0) return 0;
  if (p == 1) return 1;
  const double finiteA = std::min(a, largest);
  const double finiteB = std::min(b, largest);
  // The smaller probability is the one that has its digits.
  if (p <= 0.5) return 1 / (1 + finiteB / finiteA / BetaQuantileRatio(finiteA, finiteB, p, 1));
  return 1 / (1 + finiteB / finiteA * BetaQuantileRatio(finiteB, finiteA, 1 - p, 1));
}

}  // namespace KelMath
