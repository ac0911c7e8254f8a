#include <cmath>

#include "anova/group_sizes.h"
#include "anova/overall_power.h"
#include "frame/checks.h"
#include "frame/rejection.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

using namespace kelpower;
using KelCommon::KelMV;

extern "C" double SampleSizeTotal(int numGroups, const double* groupSizes) {
  double total = 0;
  for (int i = 0; i < numGroups; ++i) total += groupSizes[i];
  return total;
}

// The deviations are taken from the size-weighted grand mean but not weighted themselves; this mixture is intended.
extern "C" double RMSSEOverallTest(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                                   double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();

  const double grandMean = WeightedGrandMean(numGroups, groupMeans, groupSizes);
  const double scale = LargestDistance(numGroups, groupMeans, grandMean);
  if (scale == 0) return 0;
  double sumOfSquares = 0;
  for (int i = 0; i < numGroups; ++i) {
    const double deviation = (groupMeans[i] - grandMean) / scale;
    sumOfSquares += deviation * deviation;
  }
  return std::sqrt(sumOfSquares / (numGroups - 1)) * (scale / pooledSD);
}

extern "C" double PowerOverallTest(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                                   double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();
  return OverallPowerFromMeans(numGroups, GroupSpread::Of(numGroups, groupMeans, groupSizes), pooledSD,
                               SampleSizeTotal(numGroups, groupSizes), alpha);
}

extern "C" double PowerOverallTestwES(int numGroups, double effectSize, int isEtaSquared, const double* groupSizes,
                                      double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();
  return OverallPowerFromEffectSize(numGroups, effectSize, isEtaSquared != 0, SampleSizeTotal(numGroups, groupSizes),
                                    alpha);
}

extern "C" double PowerReverseOverallTest(int numGroups, const double* groupMeans, double pooledSD,
                                          const double* groupRatios, double power, DoubleVector& groupSizesOut,
                                          double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();

  ResizeToMissing(groupSizesOut, numGroups);
  const GroupSpread spread = GroupSpread::Of(numGroups, groupMeans, groupRatios);
  const double total = SolveTotalForPower(
      numGroups, [&](double size) { return OverallPowerFromMeans(numGroups, spread, pooledSD, size, alpha); }, power);
  return StoreByShares(total, numGroups, groupRatios, groupSizesOut);
}

extern "C" double PowerReverseOverallTestwES(int numGroups, double effectSize, int isEtaSquared,
                                             const double* groupRatios, double power, DoubleVector& groupSizesOut,
                                             double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();

  ResizeToMissing(groupSizesOut, numGroups);
  const auto powerAt = [&](double size) {
    return OverallPowerFromEffectSize(numGroups, effectSize, isEtaSquared != 0, size, alpha);
  };
  const double total = SolveTotalForPower(numGroups, powerAt, power);
  return StoreByShares(total, numGroups, groupRatios, groupSizesOut);
}

// The half-width equation t sd / sqrt(N) = w, squared and multiplied by N / sd^2, so that it grows with N.
extern "C" double PowerReversebyHalfCIOverallTest(double halfWidth, int numGroups, const double* groupRatios,
                                                  double pooledSD, DoubleVector& groupSizesOut, double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();

  ResizeToMissing(groupSizesOut, numGroups);
  const double relativeWidth = halfWidth / pooledSD;
  const double total = SolveTotalForHalfWidth(numGroups, relativeWidth * relativeWidth, 1, alpha);
  return StoreByRatios(total, numGroups, groupRatios, groupSizesOut);
}

extern "C" double HalfCIOverallTest(double sampleSize, int numGroups, double pooledSD, double alpha) {
  return IntervalQuantileT(alpha, sampleSize - numGroups) * pooledSD / std::sqrt(sampleSize);
}
