#include <cmath>
#include <cstddef>
#include <optional>

#include "anova/contrast_power.h"
#include "anova/group_sizes.h"
#include "frame/checks.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

using namespace kelpower;
using KelCommon::KelMV;

namespace {

/// The contrast of two groups: +1 at the first, -1 at the second. Group numbers start at 1; one that names no group
/// leaves the coefficients as they are.
DoubleVector PairContrast(int numGroups, int firstGroup, int secondGroup) {
  const auto size = static_cast<std::size_t>(numGroups > 0 ? numGroups : 0);
  DoubleVector contrast(size, 0.0);
  if (firstGroup >= 1 && firstGroup <= numGroups) contrast[static_cast<std::size_t>(firstGroup) - 1] = 1.0;
  if (secondGroup >= 1 && secondGroup <= numGroups) contrast[static_cast<std::size_t>(secondGroup) - 1] = -1.0;
  return contrast;
}

/// The level of one of the k (k - 1) / 2 pairwise comparisons; none for an unknown adjustment.
std::optional<double> AdjustedAlpha(int adjustment, int numGroups, double alpha) {
  const double k = numGroups;
  switch (adjustment) {
    case 0: return (alpha + alpha) / k / (k - 1);               // Bonferroni
    case 1: return 1 - std::pow(1 - alpha, 2.0 / k / (k - 1));  // Sidak (1967)
    case 2: return alpha;
    default: return std::nullopt;
  }
}

bool RejectsPair(int firstGroup, int secondGroup) { return firstGroup < 1 || firstGroup >= secondGroup; }

constexpr int kNonDirectional = 0;

}  // namespace

extern "C" double EffectSizePairwiseDiff(int numGroups, const double* groupMeans, double pooledSD,
                                         const void* /*unused*/, int firstGroup, int secondGroup) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  if (RejectsPair(firstGroup, secondGroup)) return KelMV::Missing();
  return EffectSizeSC(numGroups, groupMeans, pooledSD, PairContrast(numGroups, firstGroup, secondGroup).data());
}

extern "C" double PowerPairwiseDiff(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                                    int firstGroup, int secondGroup, int adjustment, double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  if (RejectsPair(firstGroup, secondGroup)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();

  const std::optional<double> adjustedAlpha = AdjustedAlpha(adjustment, numGroups, alpha);
  if (!adjustedAlpha) return KelMV::Missing();
  return PowerSC(numGroups, groupMeans, pooledSD, groupSizes, PairContrast(numGroups, firstGroup, secondGroup).data(),
                 kNonDirectional, *adjustedAlpha);
}

// Alpha is checked before its adjustment only, and the sizes are made ready before an unknown adjustment is refused.
extern "C" double PowerReversePairwiseDiff(int numGroups, const double* groupMeans, double pooledSD,
                                           const double* groupRatios, int firstGroup, int secondGroup, double power,
                                           DoubleVector& groupSizesOut, int adjustment, double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  if (RejectsPair(firstGroup, secondGroup)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();

  ResizeToMissing(groupSizesOut, numGroups);
  const std::optional<double> adjustedAlpha = AdjustedAlpha(adjustment, numGroups, alpha);
  if (!adjustedAlpha) return KelMV::Missing();
  DoubleVector contrast = PairContrast(numGroups, firstGroup, secondGroup);
  const double effectSize = EffectSizeSC(numGroups, groupMeans, pooledSD, contrast.data());
  const double total = SolveContrastTotal(numGroups, effectSize, groupRatios, contrast.data(), power,
                                          /*isDirectional=*/false, *adjustedAlpha);
  return StoreByShares(total, numGroups, groupRatios, groupSizesOut);
}

// The group numbers are not checked here; that is intended.
extern "C" double PowerReversebyHalfCIPairwiseDiff(double halfWidth, int numGroups, const double* groupRatios,
                                                   int firstGroup, int secondGroup, double pooledSD,
                                                   DoubleVector& groupSizesOut, int adjustment, double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();

  ResizeToMissing(groupSizesOut, numGroups);
  const std::optional<double> adjustedAlpha = AdjustedAlpha(adjustment, numGroups, alpha);
  if (!adjustedAlpha) return KelMV::Missing();
  return PowerReversebyHalfCISCTest(halfWidth, numGroups, groupRatios,
                                    PairContrast(numGroups, firstGroup, secondGroup).data(), pooledSD, groupSizesOut,
                                    *adjustedAlpha);
}

extern "C" double HalfCIPairwiseDiff(double sampleSize, int numGroups, const double* groupSizes, int firstGroup,
                                     int secondGroup, double pooledSD, int adjustment, double alpha) {
  const std::optional<double> adjustedAlpha = AdjustedAlpha(adjustment, numGroups, alpha);
  if (!adjustedAlpha) return KelMV::Missing();
  return HalfCISCTest(sampleSize, numGroups, groupSizes, PairContrast(numGroups, firstGroup, secondGroup).data(),
                      pooledSD, *adjustedAlpha);
}
