#include "ranks/nearly_normal.h"

#include <cmath>

#include "kelcommon/kel_dist_fun.h"

namespace kelpower::ranks {

using KelMath::KelDistFun;

namespace {

double SidesCounted(Sides sides) { return sides == Sides::One ? 1 : 2; }

/// The probability that a normal variable exceeds 0.
double AboveZero(double mean, double sd) {
  if (sd == 0 && mean == 0) return 0;
  return KelDistFun::CdfStdNorm(mean / sd);
}

/// Whether one in exp(`logCases`) cases is more than the level. The logarithms may be off by rounding.
bool IsTooFrequent(Sides sides, double alpha, double logCases) {
  constexpr double rounding = 1e-9;
  return logCases < std::log(SidesCounted(sides) / alpha) - rounding;
}

}  // namespace

// From the lower tail, which has all digits at small levels.
NormalTest::NormalTest(Sides sides, double alpha)
    : sides_(sides), critical_(-KelDistFun::IdfStdNorm(alpha / SidesCounted(sides))) {}

double NormalTest::Power(const NearlyNormal& statistic) const {
  const double near = AboveZero(statistic.effect - statistic.threshold, statistic.sd);
  return sides_ == Sides::One ? near : near + AboveZero(-statistic.effect - statistic.threshold, statistic.sd);
}

bool CanRejectTwoGroups(Sides sides, double alpha, double n1, double n2) {
  const auto logFactorial = [](double n) { return KelDistFun::orvadnlgam(n + 1); };
  constexpr double alwaysEnough = 2000;  // even of the smallest level above 0
  if (n1 >= alwaysEnough && n2 >= alwaysEnough) return true;
  return !IsTooFrequent(sides, alpha, logFactorial(n1 + n2) - logFactorial(n1) - logFactorial(n2));
}

bool CanRejectSigns(Sides sides, double alpha, double n) { return !IsTooFrequent(sides, alpha, n * std::log(2.0)); }

}  // namespace kelpower::ranks
