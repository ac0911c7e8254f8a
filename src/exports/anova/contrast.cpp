#include "exports/anova/contrast.h"

#include <cmath>
#include <limits>

#include "anova/contrast.h"
#include "exports/anova/group_sizes.h"
#include "exports/sentinels.h"
#include "frame/checks.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

using namespace kelpower;
using namespace kelpower::anova;
using namespace kelpower::exports;
using KelCommon::KelMV;

namespace kelpower::exports {

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

double StandardisedContrast(double value, double sd) { return sd > 0 ? value / sd : KelMV::Missing(); }

double EffectOrInfinity(double effectSize) {
  return KelMV::IsMissing(effectSize) ? std::numeric_limits<double>::infinity() : effectSize;
}

}  // namespace kelpower::exports

// The repair comes before the check of the standard deviation, deliberately.
extern "C" double EffectSizeSC(int numGroups, const double* groupMeans, double pooledSD, double* contrastCoefficients) {
  if (numGroups > 0 && !RepairCoefficients(numGroups, contrastCoefficients)) return KelMV::Missing();
  return StandardisedContrast(ContrastValue({contrastCoefficients, numGroups}, {groupMeans, numGroups}), pooledSD);
}

extern "C" double PowerSC(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                          double* contrastCoefficients, int isDirectional, double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();
  const PerGroup sizes(groupSizes, numGroups);
  const ContrastTest test(numGroups, Sum(sizes), isDirectional != 0, alpha);
  if (!test.IsValid()) return KelMV::Missing();  // before the coefficients are repaired

  const double effectSize = EffectSizeSC(numGroups, groupMeans, pooledSD, contrastCoefficients);
  const WeightedContrast contrast({contrastCoefficients, numGroups}, sizes);
  return OrMissing(test.Power(contrast.Noncentrality(EffectOrInfinity(effectSize), 1)));
}

extern "C" double PowerSCwES(int numGroups, double effectSize, const double* groupSizes,
                             const double* contrastCoefficients, int isDirectional, double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();
  const PerGroup sizes(groupSizes, numGroups);
  const WeightedContrast contrast({contrastCoefficients, numGroups}, sizes);
  const ContrastTest test(numGroups, Sum(sizes), isDirectional != 0, alpha);
  return OrMissing(test.Power(contrast.Noncentrality(EffectOrInfinity(effectSize), 1)));
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
  const PerGroup ratios(groupRatios, numGroups);
  const ContrastDesign design{coefficients, ratios, EffectOrInfinity(effectSize), isDirectional != 0, alpha};
  return StoreByShares(TotalForPower(design, power), ratios, groupSizesOut);
}

extern "C" double PowerReverseSCwES(int numGroups, double effectSize, const double* groupRatios,
                                    const double* contrastCoefficients, double power, DoubleVector& groupSizesOut,
                                    int isDirectional, double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();

  ResizeToMissing(groupSizesOut, numGroups);
  const PerGroup ratios(groupRatios, numGroups);
  const ContrastDesign design{
      {contrastCoefficients, numGroups}, ratios, EffectOrInfinity(effectSize), isDirectional != 0, alpha};
  return StoreByShares(TotalForPower(design, power), ratios, groupSizesOut);
}

extern "C" double PowerReversebyHalfCISCTest(double halfWidth, int numGroups, const double* groupRatios,
                                             const double* contrastCoefficients, double pooledSD,
                                             DoubleVector& groupSizesOut, double alpha) {
  if (numGroups <= 1) return KelMV::Missing();
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();

  ResizeToMissing(groupSizesOut, numGroups);
  const PerGroup ratios(groupRatios, numGroups);
  const ContrastInterval interval{{contrastCoefficients, numGroups}, ratios, pooledSD, alpha};
  return StoreByRatios(TotalForHalfWidth(interval, halfWidth), ratios, groupSizesOut);
}

extern "C" double HalfCISCTest(double sampleSize, int numGroups, const double* groupSizes,
                               const double* contrastCoefficients, double pooledSD, double alpha) {
  return HalfWidth({{contrastCoefficients, numGroups}, {groupSizes, numGroups}, pooledSD, alpha}, sampleSize);
}
