#include <optional>

#include "anova/contrast.h"
#include "exports/anova/contrast.h"
#include "exports/anova/group_sizes.h"
#include "frame/checks.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

using namespace kelpower;
using namespace kelpower::anova;
using namespace kelpower::exports;
using KelCommon::KelMV;

namespace {

/// The level of one comparison; none for an unknown adjustment.
std::optional<double> AdjustedAlphaOf(int adjustment, int numGroups, double alpha) {
  if (adjustment < 0 || adjustment > 2) return std::nullopt;
  return AdjustedAlpha(Adjustment(adjustment), numGroups, alpha);
}

bool RejectsPair(int firstGroup, int secondGroup) { return firstGroup < 1 || firstGroup >= secondGroup; }

constexpr int nonDirectional = 0;

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

  const std::optional<double> adjustedAlpha = AdjustedAlphaOf(adjustment, numGroups, alpha);
  if (!adjustedAlpha) return KelMV::Missing();
  return PowerSC(numGroups, groupMeans, pooledSD, groupSizes, PairContrast(numGroups, firstGroup, secondGroup).data(),
                 nonDirectional, *adjustedAlpha);
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
  const std::optional<double> adjustedAlpha = AdjustedAlphaOf(adjustment, numGroups, alpha);
  if (!adjustedAlpha) return KelMV::Missing();
  DoubleVector contrast = PairContrast(numGroups, firstGroup, secondGroup);
  const double effectSize = EffectSizeSC(numGroups, groupMeans, pooledSD, contrast.data());
  const PerGroup ratios(groupRatios, numGroups);
  const ContrastDesign design{contrast, ratios, EffectOrInfinity(effectSize), /*isOneSided=*/false, *adjustedAlpha};
  return StoreByShares(TotalForPower(design, power), ratios, groupSizesOut);
}

// The group numbers are not checked here; that is intended.
extern "C" double PowerReversebyHalfCIPairwiseDiff(double halfWidth, int numGroups, const double* groupRatios,
                                                   int firstGroup, int secondGroup, double pooledSD,
                                                   DoubleVector& groupSizesOut, int adjustment, double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();

  ResizeToMissing(groupSizesOut, numGroups);
  const std::optional<double> adjustedAlpha = AdjustedAlphaOf(adjustment, numGroups, alpha);
  if (!adjustedAlpha) return KelMV::Missing();
  return PowerReversebyHalfCISCTest(halfWidth, numGroups, groupRatios,
                                    PairContrast(numGroups, firstGroup, secondGroup).data(), pooledSD, groupSizesOut,
                                    *adjustedAlpha);
}

extern "C" double HalfCIPairwiseDiff(double sampleSize, int numGroups, const double* groupSizes, int firstGroup,
                                     int secondGroup, double pooledSD, int adjustment, double alpha) {
  const std::optional<double> adjustedAlpha = AdjustedAlphaOf(adjustment, numGroups, alpha);
  if (!adjustedAlpha) return KelMV::Missing();
  return HalfCISCTest(sampleSize, numGroups, groupSizes, PairContrast(numGroups, firstGroup, secondGroup).data(),
                      pooledSD, *adjustedAlpha);
}
