#include "anova/overall.h"

#include "exports/anova/group_sizes.h"
#include "exports/sentinels.h"
#include "frame/checks.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

using namespace kelpower;
using namespace kelpower::anova;
using namespace kelpower::exports;
using KelCommon::KelMV;

extern "C" double SampleSizeTotal(int numGroups, const double* groupSizes) {
  return Sum(PerGroup(groupSizes, numGroups));
}

// The deviations are taken from the size-weighted grand mean but not weighted themselves; this mixture is intended.
extern "C" double RMSSEOverallTest(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                                   double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();
  return RootMeanSquareEffect({groupMeans, numGroups}, {groupSizes, numGroups}, pooledSD);
}

extern "C" double PowerOverallTest(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                                   double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();
  const PerGroup sizes(groupSizes, numGroups);
  const GroupSpread spread = GroupSpread::Of({groupMeans, numGroups}, sizes);
  return OrMissing(PowerOfMeans(spread, pooledSD, numGroups, Sum(sizes), alpha));
}

extern "C" double PowerOverallTestwES(int numGroups, double effectSize, int isEtaSquared, const double* groupSizes,
                                      double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();
  const double totalSize = Sum(PerGroup(groupSizes, numGroups));
  return OrMissing(PowerOfEffect({effectSize, isEtaSquared != 0}, numGroups, totalSize, alpha));
}

extern "C" double PowerReverseOverallTest(int numGroups, const double* groupMeans, double pooledSD,
                                          const double* groupRatios, double power, DoubleVector& groupSizesOut,
                                          double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();

  ResizeToMissing(groupSizesOut, numGroups);
  const PerGroup ratios(groupRatios, numGroups);
  const Answer total = TotalForPowerOfMeans({groupMeans, numGroups}, pooledSD, ratios, power, alpha);
  return StoreByShares(total, ratios, groupSizesOut);
}

extern "C" double PowerReverseOverallTestwES(int numGroups, double effectSize, int isEtaSquared,
                                             const double* groupRatios, double power, DoubleVector& groupSizesOut,
                                             double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();

  ResizeToMissing(groupSizesOut, numGroups);
  const Answer total = TotalForPowerOfEffect({effectSize, isEtaSquared != 0}, numGroups, power, alpha);
  return StoreByShares(total, {groupRatios, numGroups}, groupSizesOut);
}

extern "C" double PowerReversebyHalfCIOverallTest(double halfWidth, int numGroups, const double* groupRatios,
                                                  double pooledSD, DoubleVector& groupSizesOut, double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();

  ResizeToMissing(groupSizesOut, numGroups);
  const Answer total = TotalForHalfWidthOfGrandMean(halfWidth, numGroups, pooledSD, alpha);
  return StoreByRatios(total, {groupRatios, numGroups}, groupSizesOut);
}

extern "C" double HalfCIOverallTest(double sampleSize, int numGroups, double pooledSD, double alpha) {
  return HalfWidthOfGrandMean(numGroups, sampleSize, pooledSD, alpha);
}
