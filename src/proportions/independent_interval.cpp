#include <algorithm>
#include <cmath>

#include "frame/root_finders.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

using KelCommon::KelMV;
using KelMath::KelDistFun;

namespace {

enum IntervalMethod { kWald, kAgrestiCaffo, kAgrestiCaffoUnbiased, kHalfAdded, kUnbiasedCorrected, kNewcombe };

struct Group {
  double size;
  double p;
};

double Variance(double p) { return p * (1 - p); }

/// The proportion after `added` successes and as many failures more.
double Shrunk(const Group& group, double added) { return (group.size * group.p + added) / (group.size + 2 * added); }

struct ScoreDistances {
  double below;  ///< from the proportion to its lower limit
  double above;
};

/// Of Wilson's interval, taken from the proportion itself: the limits less the proportion would lose digits. The
/// correction widens it by half a unit on either side.
ScoreDistances ScoreInterval(const Group& group, double z, bool continuityCorrection) {
  const double n = group.size;
  const double p = group.p;
  if (!continuityCorrection) {
    const double scale = 1 + z * z / n;
    const double pull = z * z / n * (0.5 - p);
    const double reach = z * std::sqrt((z * z / 4 / n + Variance(p)) / n);
    return {(reach - pull) / scale, (reach + pull) / scale};
  }
  const double scale = z * z + n;  // numerators and denominator are half of the paper's, against overflow
  const double pull = z * z * (0.5 - p);
  const double spread = z * z - 1 / n + 4 * (n * Variance(p));
  const double reachBelow = 0.5 * z * std::sqrt(spread + 4 * p - 2);
  const double reachAbove = 0.5 * z * std::sqrt(spread - 4 * p + 2);
  return {(0.5 - pull + reachBelow) / scale, (0.5 + pull + reachAbove) / scale};
}

// Newcombe, R. G. (1998), Interval estimation for the difference between independent proportions: comparison of eleven
// methods, Statistics in Medicine 17, 873-890, methods 10 and 11.
double NewcombeHalfWidth(const Group& group1, const Group& group2, double z, bool continuityCorrection) {
  const ScoreDistances first = ScoreInterval(group1, z, continuityCorrection);
  const ScoreDistances second = ScoreInterval(group2, z, continuityCorrection);
  return (std::hypot(second.below, first.above) + std::hypot(first.below, second.above)) / 2;
}

bool IsKnown(int ciMethod) { return ciMethod >= kWald && ciMethod <= kNewcombe; }

/// The half-width by every method but Wald's; 0 for an unknown method.
double HalfWidth(const Group& group1, const Group& group2, int ciMethod, double z, bool continuityCorrection) {
  const double n1 = group1.size;
  const double n2 = group2.size;
  switch (ciMethod) {
    case kAgrestiCaffo:
      return z * std::sqrt(Variance(Shrunk(group1, 1)) / (n1 + 2) + Variance(Shrunk(group2, 1)) / (n2 + 2));
    case kAgrestiCaffoUnbiased:
      return z * std::sqrt(Variance(Shrunk(group1, 1)) / (n1 + 3) + Variance(Shrunk(group2, 1)) / (n2 + 3));
    case kHalfAdded: return z * std::sqrt(Variance(Shrunk(group1, 0.5)) / n1 + Variance(Shrunk(group2, 0.5)) / n2);
    case kUnbiasedCorrected:
      return z * std::sqrt(Variance(group1.p) / (n1 - 1) + Variance(group2.p) / (n2 - 1)) +
             0.5 / (n2 / n1 >= 1 ? n1 : n2);
    case kNewcombe: return NewcombeHalfWidth(group1, group2, z, continuityCorrection);
    default: return 0;
  }
}

double WaldHalfWidth(const Group& group1, const Group& group2, double z, bool continuityCorrection) {
  const double halfWidth = z * std::sqrt(Variance(group1.p) / group1.size + Variance(group2.p) / group2.size);
  return continuityCorrection ? halfWidth + (1 / group1.size + 1 / group2.size) / 2 : halfWidth;
}

/// The size of group 1 at which Wald's half-width is h, in closed form.
double WaldSize(double halfWidth, const Group& group1, const Group& group2, double sizeRatio, double z,
                bool continuityCorrection) {
  const double variance = Variance(group1.p) + Variance(group2.p) / sizeRatio;
  if (!continuityCorrection) return z * z * variance / halfWidth / halfWidth;
  const double correction = 2 * halfWidth * (sizeRatio + 1) / sizeRatio;
  const double root = (z * std::sqrt(variance) + std::sqrt(z * z * variance + correction)) / (2 * halfWidth);
  return root * root;
}

}  // namespace

// Wald's method tests the flag for the value 1, Newcombe's for any but 0; both are intended.
extern "C" double HalfCIIndSampBinom(double sampleSize1, double sampleSize2, double proportion1, double proportion2,
                                     int ciMethod, double alpha, std::uint8_t continuityCorrection) {
  const Group group1{sampleSize1, proportion1};
  const Group group2{sampleSize2, proportion2};
  const double z = KelDistFun::IdfStdNorm(1 - alpha / 2);
  if (ciMethod == kWald) return WaldHalfWidth(group1, group2, z, continuityCorrection == 1);
  return HalfWidth(group1, group2, ciMethod, z, continuityCorrection != 0);
}

extern "C" void PowerReversebyHalfCIIndSampBinom(double halfWidth, double proportion1, double proportion2,
                                                 DoubleVector& sampleSizes, double sizeRatio, int ciMethod,
                                                 double alpha, std::uint8_t continuityCorrection, StopRequest* cancel) {
  const double z = KelDistFun::IdfStdNorm(1 - alpha / 2);
  const bool isCorrected = continuityCorrection != 0;
  const auto excess = [&](double n1) {
    if (!IsKnown(ciMethod)) return 0.0;
    return halfWidth - HalfWidth({n1, proportion1}, {sizeRatio * n1, proportion2}, ciMethod, z, isCorrected);
  };
  const double n1 = ciMethod == kWald
                        ? WaldSize(halfWidth, {0, proportion1}, {0, proportion2}, sizeRatio, z, isCorrected)
                        : kelpower::SolveContinuous(2, 400, 1e-9, excess, cancel);
  if (KelMV::IsMissing(n1)) {
    sampleSizes = {KelMV::Missing(), KelMV::Missing()};
    return;
  }
  sampleSizes = {std::ceil(n1), std::max(2.0, std::ceil(sizeRatio * n1))};
}
