#include <cmath>

#include "anova/contrast_power.h"
#include "anova/group_sizes.h"
#include "frame/checks.h"
#include "frame/rejection.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

using namespace kelpower;
using KelCommon::KelMV;

namespace {

/// Makes the coefficients sum to zero by their last one. False when that one then lies outside [-1, 1].
bool RepairCoefficients(int numGroups, double* coefficients) {
  double sumOfOthers = 0;
  for (int i = 0; i < numGroups - 1; ++i) sumOfOthers += coefficients[i];
  double& last = coefficients[numGroups - 1];
  if (!(std::fabs(sumOfOthers + last) >= 1e-14)) return true;
  last = -sumOfOthers;
  return !(last > 1 || last < -1);
}

}  // namespace

// The repair comes before the check of the standard deviation, deliberately.
extern "C" double EffectSizeSC(int numGroups, const double* groupMeans, double pooledSD, double* contrastCoefficients) {
  if (numGroups > 0 && !RepairCoefficients(numGroups, contrastCoefficients)) return KelMV::Missing();
  return StandardisedContrast(ContrastValue(numGroups, groupMeans, contrastCoefficients), pooledSD);
}

extern "C" double PowerSC(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                          double* contrastCoefficients, int isDirectional, double alpha) {
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  const double totalSize = SampleSizeTotal(numGroups, groupSizes);
  const ContrastTest test(numGroups, totalSize, isDirectional != 0, alpha);
  if (!test.IsValid()) return KelMV::Missing();

  const double effectSize = EffectSizeSC(numGroups, groupMeans, pooledSD, contrastCoefficients);
  const double variance = ContrastVariance(numGroups, contrastCoefficients, groupSizes);
  return test.Power(ContrastNoncentrality(effectSize, 1, variance));
}

extern "C" double PowerSCwES(int numGroups, double effectSize, const double* groupSizes,
                             const double* contrastCoefficients, int isDirectional, double alpha) {
  const double variance = ContrastVariance(numGroups, contrastCoefficients, groupSizes);
  const double totalSize = SampleSizeTotal(numGroups, groupSizes);
  return ContrastTest(numGroups, totalSize, isDirectional != 0, alpha)
      .Power(ContrastNoncentrality(effectSize, 1, variance));
}

extern "C" double PowerReverseSC(int numGroups, const double* groupMeans, double pooledSD, const double* groupRatios,
                                 double* contrastCoefficients, double power, DoubleVector& groupSizesOut,
                                 int isDirectional, double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();

  ResizeToMissing(groupSizesOut, numGroups);
  DoubleVector coefficients(contrastCoefficients, contrastCoefficients + numGroups);  // the caller's are not repaired
  const double effectSize = EffectSizeSC(numGroups, groupMeans, pooledSD, coefficients.data());
  const double total =
      SolveContrastTotal(numGroups, effectSize, groupRatios, coefficients.data(), power, isDirectional != 0, alpha);
  return StoreByShares(total, numGroups, groupRatios, groupSizesOut);
}

extern "C" double PowerReverseSCwES(int numGroups, double effectSize, const double* groupRatios,
                                    const double* contrastCoefficients, double power, DoubleVector& groupSizesOut,
                                    int isDirectional, double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();

  ResizeToMissing(groupSizesOut, numGroups);
  const double total =
      SolveContrastTotal(numGroups, effectSize, groupRatios, contrastCoefficients, power, isDirectional != 0, alpha);
  return StoreByShares(total, numGroups, groupRatios, groupSizesOut);
}

extern "C" double PowerReversebyHalfCISCTest(double halfWidth, int numGroups, const double* groupRatios,
                                             const double* contrastCoefficients, double pooledSD,
                                             DoubleVector& groupSizesOut, double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();

  ResizeToMissing(groupSizesOut, numGroups);
  const double ratioSum = SampleSizeTotal(numGroups, groupRatios);
  const double variance = ContrastVariance(numGroups, contrastCoefficients, groupRatios);
  const double relativeWidth = halfWidth / pooledSD;
  const double slope = relativeWidth * relativeWidth / ratioSum;
  const double total = SolveTotalForHalfWidth(numGroups, slope, variance, alpha);
  return StoreByRatios(total, numGroups, groupRatios, groupSizesOut);
}

extern "C" double HalfCISCTest(double sampleSize, int numGroups, const double* groupSizes,
                               const double* contrastCoefficients, double pooledSD, double alpha) {
  const double totalSize = SampleSizeTotal(numGroups, groupSizes);
  const double variance = ContrastVariance(numGroups, contrastCoefficients, groupSizes);
  return std::sqrt(variance * totalSize / sampleSize) * (IntervalQuantileT(alpha, sampleSize - numGroups) * pooledSD);
}
