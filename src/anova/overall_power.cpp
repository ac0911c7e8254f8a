#include "anova/overall_power.h"

#include <cmath>
#include <limits>

#include "frame/checks.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

namespace kelpower {

using KelCommon::KelMV;

double WeightedGrandMean(int numGroups, const double* groupMeans, const double* groupSizes) {
  if (numGroups <= 0) return std::numeric_limits<double>::quiet_NaN();
  const double totalSize = SampleSizeTotal(numGroups, groupSizes);
  double offset = 0;
  for (int i = 0; i < numGroups; ++i) offset += groupSizes[i] / totalSize * (groupMeans[i] - groupMeans[0]);
  return groupMeans[0] + offset;
}

double LargestDistance(int numGroups, const double* groupMeans, double center) {
  double largest = 0;
  for (int i = 0; i < numGroups; ++i) {
    const double distance = std::fabs(groupMeans[i] - center);
    if (!(distance <= largest)) largest = distance;
  }
  return largest;
}

GroupSpread GroupSpread::Of(int numGroups, const double* groupMeans, const double* groupSizes) {
  const double grandMean = WeightedGrandMean(numGroups, groupMeans, groupSizes);
  const double scale = LargestDistance(numGroups, groupMeans, grandMean);
  if (scale == 0) return {0, 0};

  const double totalSize = SampleSizeTotal(numGroups, groupSizes);
  double scaledVariance = 0;
  for (int i = 0; i < numGroups; ++i) {
    const double deviation = (groupMeans[i] - grandMean) / scale;
    scaledVariance += groupSizes[i] / totalSize * deviation * deviation;
  }
  return {scale, scaledVariance};
}

double GroupSpread::Noncentrality(double pooledSD, double sampleSize) const {
  const double relativeScale = scale / pooledSD;
  return relativeScale * sampleSize * relativeScale * scaledVariance;
}

double NoncentralityFromEffectSize(double effectSize, bool isEtaSquared, double sampleSize) {
  if (isEtaSquared) return effectSize * sampleSize / (1 - effectSize);
  return effectSize * sampleSize * effectSize;
}

OverallTest::OverallTest(int numGroups, double sampleSize, double alpha) {
  if (numGroups <= 1) return;
  if (numGroups > sampleSize) return;
  if (RejectsAlpha(alpha)) return;
  test_ = FTest::AtLevel(alpha, numGroups - 1, sampleSize - numGroups);
}

double OverallTest::Power(double noncentrality) const { return test_ ? test_->Power(noncentrality) : KelMV::Missing(); }

double OverallPowerFromMeans(int numGroups, const GroupSpread& spread, double pooledSD, double sampleSize,
                             double alpha) {
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  return OverallTest(numGroups, sampleSize, alpha).Power(spread.Noncentrality(pooledSD, sampleSize));
}

double OverallPowerFromEffectSize(int numGroups, double effectSize, bool isEtaSquared, double sampleSize,
                                  double alpha) {
  return OverallTest(numGroups, sampleSize, alpha)
      .Power(NoncentralityFromEffectSize(effectSize, isEtaSquared, sampleSize));
}

}  // namespace kelpower
